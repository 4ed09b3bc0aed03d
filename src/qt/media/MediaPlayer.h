#pragma once

#include "platform/controls/Controls.h"

#include <memory>

namespace lineforge
{

// Plays the file of a multimedia control and keeps the control's state up to date. Nothing of the sound system is
// touched before `Open`. A sound device that isn't there is done without: the file takes its own length all the same.
class MediaPlayer
{
public:
    explicit MediaPlayer(MultimediaControl& control);
    // Lets go of the file and leaves the control alone, which may be gone by then.
    ~MediaPlayer();
    MediaPlayer(const MediaPlayer&) = delete;
    MediaPlayer& operator=(const MediaPlayer&) = delete;

    // Returns when the file can be played, or when it has been closed meanwhile. Raises FileNotFound and
    // InvalidFileFormat.
    void Open();
    void Close();

    // All of them do nothing while nothing is open.
    void Rewind();
    // From where it stands; at the end from the beginning.
    void Play();
    // What has been paused or stepped goes on.
    void Pause();
    // To the next picture of a film, or a little further in a sound; at the end it stays.
    void Step();
    // Back at the beginning, where a film shows its first picture.
    void Stop();

private:
    struct Machine;

    void Load(const QString& path);
    void Follow();
    void ShowPosition();
    bool IsPlaying() const;
    bool IsAtEnd() const;
    qint64 NextStop() const;

    MultimediaControl& control_;
    std::unique_ptr<Machine> machine_; // while a file is open
    bool isPaused_ = false;
};

} // namespace lineforge
