#include "qt/media/MediaPlayer.h"

#include "platform/base/RuntimeError.h"
#include "platform/files/MediaSignature.h"

#include <QAudioOutput>
#include <QEventLoop>
#include <QFileInfo>
#include <QMediaMetaData>
#include <QMediaPlayer>
#include <QTimer>
#include <QUrl>
#include <QVideoFrame>
#include <QVideoSink>

#include <algorithm>
#include <cmath>
#include <limits>

namespace lineforge
{

namespace
{
// Of a file on which the toolkit never decides, in milliseconds.
constexpr int patience = 20'000;
constexpr int soundStep = 100; // milliseconds
// Of a film that doesn't tell how long it shows a picture.
constexpr double usualPicturesASecond = 25;

// A file may claim any length.
int Milliseconds(qint64 told)
{
    return static_cast<int>(std::clamp<qint64>(told, 0, std::numeric_limits<int>::max()));
}
} // namespace

// The toolkit's player and where it plays to.
struct MediaPlayer::Machine {
    Machine()
    {
        Player.setAudioOutput(&Loudspeaker);
        Player.setVideoSink(&Screen);
        QObject::connect(&Screen, &QVideoSink::videoFrameChanged, &Listener, [this](const QVideoFrame& frame) {
            if (frame.isValid())
                Picture = frame;
        });
    }

    // An error that leaves the file valid stops nothing: a track that nobody can decode, a device that isn't there.
    bool HasFailed() const { return !Player.isAvailable() || Player.mediaStatus() == QMediaPlayer::InvalidMedia; }

    // What follows may have begun when it is asked.
    bool IsLoaded() const
    {
        const QMediaPlayer::MediaStatus status = Player.mediaStatus();
        return status == QMediaPlayer::LoadedMedia || status == QMediaPlayer::BufferingMedia ||
               status == QMediaPlayer::BufferedMedia;
    }

    // A film without a sound is nothing before its first picture.
    bool IsPlayable() const { return !HasFailed() && IsLoaded() && (Player.hasAudio() || Picture.isValid()); }

    // It ends without a picture if there is none that can be decoded.
    bool IsDecided() const
    {
        return HasFailed() || IsPlayable() || (IsLoaded() && !Player.hasVideo()) ||
               Player.mediaStatus() == QMediaPlayer::EndOfMedia;
    }

    QVideoFrame Picture; // the last one that was to be seen
    QAudioOutput Loudspeaker;
    QVideoSink Screen;
    QMediaPlayer Player;
    QObject Listener; // the last member: it goes first, and what the others say while they go is heard by nobody
};

MediaPlayer::MediaPlayer(MultimediaControl& control) : control_(control) {}
MediaPlayer::~MediaPlayer() = default;

void MediaPlayer::Open()
{
    Close();
    const QFileInfo file(control_.FileName);
    if (!file.exists())
        throw RuntimeError(ErrorNumber::FileNotFound, control_.FileName);
    // What only pretends to be sound or film is kept away from the machinery that would take it apart.
    if (!IsMediaFile(file.absoluteFilePath()))
        throw RuntimeError(ErrorNumber::InvalidFileFormat, control_.FileName);
    Load(file.absoluteFilePath());
    if (!machine_)
        return;
    if (!machine_->IsPlayable()) {
        Close();
        throw RuntimeError(ErrorNumber::InvalidFileFormat, control_.FileName);
    }
    Follow();
    control_.Length = Milliseconds(machine_->Player.duration());
    control_.IsOpen = true;
}

// The user can do nothing meanwhile; the screen is kept up. A timer's handler may close what is being opened.
void MediaPlayer::Load(const QString& path)
{
    machine_ = std::make_unique<Machine>();
    QMediaPlayer& player = machine_->Player;
    QEventLoop loop;
    const auto leaveWhenDecided = [&loop, machine = machine_.get()] {
        if (machine->IsDecided())
            loop.quit();
    };
    QObject::connect(&player, &QMediaPlayer::mediaStatusChanged, &loop, leaveWhenDecided);
    QObject::connect(&player, &QMediaPlayer::hasAudioChanged, &loop, leaveWhenDecided);
    QObject::connect(&player, &QMediaPlayer::errorOccurred, &loop, leaveWhenDecided);
    QObject::connect(&machine_->Screen, &QVideoSink::videoFrameChanged, &loop, leaveWhenDecided);
    QObject::connect(&machine_->Listener, &QObject::destroyed, &loop, &QEventLoop::quit);
    QTimer::singleShot(patience, &loop, &QEventLoop::quit);
    player.setSource(QUrl::fromLocalFile(path));
    player.pause(); // a player that has been stopped shows no picture
    if (!machine_->IsDecided())
        loop.exec(QEventLoop::ExcludeUserInputEvents);
}

void MediaPlayer::Follow()
{
    const QMediaPlayer& player = machine_->Player;
    QObject* listener = &machine_->Listener;
    QObject::connect(&player, &QMediaPlayer::durationChanged, listener,
                     [this](qint64 length) { control_.Length = Milliseconds(length); });
    const auto showPosition = [this] { ShowPosition(); };
    QObject::connect(&player, &QMediaPlayer::positionChanged, listener, showPosition);
    QObject::connect(&player, &QMediaPlayer::mediaStatusChanged, listener, showPosition);
    // Later, since a player can't be told to stop by what it is just telling; once, since stopping may fail as well.
    const auto giveUp = [this] {
        if (IsPlaying() && machine_->HasFailed())
            Stop();
    };
    QObject::connect(&player, &QMediaPlayer::errorOccurred, listener, giveUp, Qt::QueuedConnection);
    const auto show = [this](const QVideoFrame& frame) {
        if (frame.isValid())
            control_.Screen = frame.toImage();
    };
    QObject::connect(&machine_->Screen, &QVideoSink::videoFrameChanged, listener, show);
    show(machine_->Picture);
}

// The toolkit tells the last position some time before it stops, or never: the end is reached when it has stopped. A
// stop that was on its way when the user went back to the beginning is none.
void MediaPlayer::ShowPosition()
{
    const int position = Milliseconds(machine_->Player.position());
    const int length = control_.Length;
    control_.Position = IsAtEnd() && position > 0 ? length : std::clamp(position, 0, std::max(0, length - 1));
}

void MediaPlayer::Close()
{
    machine_.reset();
    isPaused_ = false;
    control_.IsOpen = false;
    control_.Position = 0;
    control_.Length = 0;
    control_.Screen = QImage();
}

bool MediaPlayer::IsPlaying() const
{
    return machine_->Player.playbackState() == QMediaPlayer::PlayingState;
}

bool MediaPlayer::IsAtEnd() const
{
    return machine_->Player.mediaStatus() == QMediaPlayer::EndOfMedia;
}

void MediaPlayer::Rewind()
{
    if (!machine_)
        return;
    if (!IsPlaying())
        machine_->Player.pause();
    machine_->Player.setPosition(0);
}

void MediaPlayer::Play()
{
    if (!machine_)
        return;
    isPaused_ = false;
    machine_->Player.play();
}

void MediaPlayer::Pause()
{
    if (!machine_)
        return;
    if (IsPlaying()) {
        machine_->Player.pause();
        isPaused_ = true;
    } else if (isPaused_) {
        Play();
    }
}

void MediaPlayer::Step()
{
    if (!machine_ || IsAtEnd())
        return;
    machine_->Player.pause();
    isPaused_ = true;
    const qint64 next = NextStop();
    if (next < machine_->Player.duration())
        machine_->Player.setPosition(next);
}

qint64 MediaPlayer::NextStop() const
{
    const QMediaPlayer& player = machine_->Player;
    if (!player.hasVideo())
        return player.position() + soundStep;
    const qint64 shownUntil = (machine_->Screen.videoFrame().endTime() + 999) / 1000; // it tells microseconds
    if (shownUntil > player.position())
        return shownUntil;
    const double told = player.metaData().value(QMediaMetaData::VideoFrameRate).toDouble();
    return player.position() + static_cast<qint64>(std::ceil(1000 / (told > 0 ? told : usualPicturesASecond)));
}

void MediaPlayer::Stop()
{
    if (!machine_)
        return;
    isPaused_ = false;
    machine_->Player.pause();
    machine_->Player.setPosition(0);
}

} // namespace lineforge
