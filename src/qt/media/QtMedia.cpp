#include "qt/media/QtMedia.h"

#include "platform/base/RuntimeError.h"
#include "platform/base/Text.h"
#include "qt/media/MediaPlayer.h"
#include "qt/media/SoundFile.h"

#include <QAudioDevice>
#include <QAudioSink>
#include <QBuffer>
#include <QEventLoop>
#include <QMediaDevices>
#include <QTimer>

#include <utility>

namespace lineforge
{

namespace
{
// A sound no longer than this is a click: it answers a press of the mouse, and the interface must not stand still for
// it, whatever its control says about waiting.
constexpr int longestClick = 200;
// A device that has stalled holds the program up no longer than this beyond the length of the sound.
constexpr int patience = 1000;

QAudioFormat FormatOf(const SoundFile& sound)
{
    QAudioFormat format;
    format.setSampleRate(sound.SamplesASecond);
    format.setChannelCount(sound.Channels);
    format.setSampleFormat(sound.BitsASample == 8    ? QAudioFormat::UInt8
                           : sound.BitsASample == 16 ? QAudioFormat::Int16
                                                     : QAudioFormat::Int32);
    return format;
}
} // namespace

class QtMedia::Playback
{
public:
    Playback(const QAudioDevice& device, SoundFile sound) : sound_(std::move(sound)), sink_(device, FormatOf(sound_))
    {
        samples_.setData(sound_.Samples);
        samples_.open(QIODevice::ReadOnly);
        // Gives the device back as soon as it has run dry.
        QObject::connect(&sink_, &QAudioSink::stateChanged, &sink_, [this](QAudio::State state) {
            if (state == QAudio::IdleState)
                sink_.stop();
        });
        sink_.start(&samples_);
    }

    ~Playback() { sink_.stop(); }

    // The user can do nothing meanwhile; the screen is kept up.
    void WaitForEnd()
    {
        QEventLoop loop;
        QObject::connect(&sink_, &QAudioSink::stateChanged, &loop, [&loop](QAudio::State state) {
            if (state != QAudio::ActiveState)
                loop.quit();
        });
        QTimer::singleShot(sound_.Milliseconds() + patience, &loop, &QEventLoop::quit);
        if (sink_.state() == QAudio::ActiveState)
            loop.exec(QEventLoop::ExcludeUserInputEvents);
    }

private:
    SoundFile sound_;
    QBuffer samples_;
    QAudioSink sink_;
};

QtMedia::QtMedia() = default;
QtMedia::~QtMedia() = default;

// Without a place "Open" has nothing to do: the file is read when it is played, since the control may be opened before
// it is told which.
void QtMedia::Act(MultimediaControl& control, QStringView command)
{
    if (SameText(command, u"Sound"))
        Play(control);
    else if (SameText(command, u"Close"))
        Close(control);
    else if (SameText(command, u"Open") && control.HasPlace())
        Open(control);
    else
        Operate(control, command);
}

void QtMedia::Open(MultimediaControl& control)
{
    Close(control);
    // A handler that runs while the file is loaded may close the control: the player is kept until it has returned.
    const auto player = std::make_shared<MediaPlayer>(control);
    players_[&control] = player;
    try {
        player->Open();
    } catch (const RuntimeError&) {
        players_.erase(&control);
        throw;
    }
}

void QtMedia::Close(const MultimediaControl& control)
{
    playing_.erase(&control);
    if (const auto player = players_.extract(&control))
        player.mapped()->Close();
}

void QtMedia::Operate(const MultimediaControl& control, QStringView command)
{
    struct Order {
        QStringView Command;
        void (MediaPlayer::*Obey)();
    };
    static constexpr Order orders[] = {{u"Rewind", &MediaPlayer::Rewind},
                                       {u"Play", &MediaPlayer::Play},
                                       {u"Pause", &MediaPlayer::Pause},
                                       {u"Step", &MediaPlayer::Step},
                                       {u"Stop", &MediaPlayer::Stop}};
    const auto player = players_.find(&control);
    if (player == players_.end())
        return;
    for (const Order& order : orders)
        if (SameText(command, order.Command))
            (*player->second.*order.Obey)();
}

bool QtMedia::Waits(const MultimediaControl& control, int milliseconds)
{
    return control.Wait && !control.Notify && milliseconds > longestClick;
}

void QtMedia::Play(const MultimediaControl& control)
{
    playing_.erase(&control);
    std::optional<SoundFile> sound = ReadSound(control.FileName);
    if (!sound)
        return;
    const QAudioDevice device = QMediaDevices::defaultAudioOutput();
    if (device.isNull())
        return;
    const bool waits = Waits(control, sound->Milliseconds());
    const auto playback = playing_.emplace(&control, std::make_unique<Playback>(device, *std::move(sound))).first;
    if (waits)
        playback->second->WaitForEnd();
}

} // namespace lineforge
