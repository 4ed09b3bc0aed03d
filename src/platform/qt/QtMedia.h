#pragma once

#include "platform/Controls.h"

#include <map>
#include <memory>

namespace lineforge
{

// Plays the sounds of multimedia controls. Nothing of the sound system is touched before the first sound is to be
// played; a missing file or device is passed over.
class QtMedia
{
public:
    QtMedia();
    ~QtMedia();
    QtMedia(const QtMedia&) = delete;
    QtMedia& operator=(const QtMedia&) = delete;

    void Act(MultimediaControl& control, QStringView command);

    // Whether the sound that the control would play is waited for.
    static bool Waits(const MultimediaControl& control, int milliseconds);

private:
    class Playback;

    void Play(const MultimediaControl& control);

    std::map<const MultimediaControl*, std::unique_ptr<Playback>> playing_;
};

} // namespace lineforge
