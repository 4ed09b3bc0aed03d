#pragma once

#include "platform/controls/Controls.h"

#include <map>
#include <memory>

namespace lineforge
{

class MediaPlayer;

// Plays the sounds and films of multimedia controls. Nothing of the sound system is touched before the first of them is
// to be played or opened.
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
    void Open(MultimediaControl& control);
    void Close(const MultimediaControl& control);
    // What the buttons of a control with a place stand for.
    void Operate(const MultimediaControl& control, QStringView command);

    std::map<const MultimediaControl*, std::unique_ptr<Playback>> playing_;
    std::map<const MultimediaControl*, std::shared_ptr<MediaPlayer>> players_; // of what is open
};

} // namespace lineforge
