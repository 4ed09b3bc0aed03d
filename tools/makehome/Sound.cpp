#include "Sound.h"

#include "Riff.h"

#include <QList>
#include <QRegularExpression>
#include <QStringList>

#include <algorithm>
#include <array>
#include <cmath>
#include <numbers>

namespace lineforge::makehome
{

using namespace Qt::StringLiterals;

namespace
{

constexpr int rate = 22050;
constexpr double loudness = 0.7;

using Samples = QList<double>;

qsizetype SampleCount(double seconds)
{
    return static_cast<qsizetype>(std::lround(seconds * rate));
}

struct Partial {
    double ratio;
    double level;
    double decay;
};

// A struck bell: the overtones are slightly stretched and die away before the ground note does.
constexpr std::array<Partial, 4> bell{{{1.0, 1.0, 3.0}, {2.0, 0.45, 4.5}, {3.01, 0.2, 7.0}, {4.2, 0.1, 10.0}}};

void Strike(Samples& samples, double start, double frequency, double level, double decayScale)
{
    constexpr double attack = 0.012;
    for (qsizetype index = SampleCount(start); index < samples.size(); ++index) {
        const double time = static_cast<double>(index) / rate - start;
        const double rise = std::clamp(time / attack, 0.0, 1.0);
        double value = 0.0;
        for (const Partial& partial : bell) {
            value += partial.level * std::exp(-partial.decay * decayScale * time) *
                     std::sin(2.0 * std::numbers::pi * frequency * partial.ratio * time);
        }
        samples[index] += level * rise * value;
    }
}

// A cut-off tail clicks in the loudspeaker; the last stretch always runs down to silence.
void FadeOut(Samples& samples, double seconds)
{
    const qsizetype length = std::min(SampleCount(seconds), samples.size());
    for (qsizetype step = 0; step < length; ++step) {
        samples[samples.size() - 1 - step] *= static_cast<double>(step) / static_cast<double>(length);
    }
}

QByteArray WaveFile(const Samples& samples)
{
    double peak = 1e-9;
    for (const double sample : samples) {
        peak = std::max(peak, std::abs(sample));
    }
    Riff riff;
    riff.BeginList("RIFF", "WAVE");
    riff.BeginChunk("fmt ");
    riff.U16(1);
    riff.U16(1);
    riff.U32(rate);
    riff.U32(rate * 2);
    riff.U16(2);
    riff.U16(16);
    riff.End();
    riff.BeginChunk("data");
    for (const double sample : samples) {
        const long level = std::lround(sample / peak * loudness * 32767.0);
        riff.U16(static_cast<quint16>(static_cast<qint16>(level)));
    }
    riff.End();
    riff.End();
    return riff.Result();
}

double Frequency(int semitonesFromA4)
{
    return 440.0 * std::exp2(semitonesFromA4 / 12.0);
}

struct Note {
    bool sounding;
    int semitones;
    double beats;
};

bool ReadNote(const QString& text, Note& note)
{
    static const QRegularExpression pattern(u"^(?:([A-G])(#?)([2-6])|-):(\\d+(?:\\.\\d+)?)$"_s);
    const QRegularExpressionMatch match = pattern.match(text);
    if (!match.hasMatch()) {
        return false;
    }
    note.sounding = !match.captured(1).isEmpty();
    note.beats = match.captured(4).toDouble();
    if (note.sounding) {
        constexpr std::array<int, 7> fromA{0, 2, -9, -7, -5, -4, -2};
        const auto letter = static_cast<std::size_t>(match.captured(1).at(0).unicode() - u'A');
        note.semitones = fromA[letter] + (match.captured(2).isEmpty() ? 0 : 1) + 12 * (match.captured(3).toInt() - 4);
    }
    return true;
}

} // namespace

QByteArray ChimeSound()
{
    Samples samples(SampleCount(1.5), 0.0);
    Strike(samples, 0.0, Frequency(3), 0.8, 1.0);
    Strike(samples, 0.16, Frequency(7), 0.7, 1.0);
    Strike(samples, 0.32, Frequency(10), 0.7, 1.0);
    Strike(samples, 0.48, Frequency(15), 0.9, 1.2);
    FadeOut(samples, 0.35);
    return WaveFile(samples);
}

QByteArray ClickSound()
{
    Samples samples(SampleCount(0.03), 0.0);
    quint32 noise = 12345;
    for (qsizetype index = 0; index < samples.size(); ++index) {
        const double time = static_cast<double>(index) / rate;
        noise = noise * 1664525U + 1013904223U;
        const double hiss = static_cast<double>(noise >> 16) / 32768.0 - 1.0;
        samples[index] = std::exp(-220.0 * time) * std::sin(2.0 * std::numbers::pi * 1700.0 * time) +
                         0.35 * std::exp(-900.0 * time) * hiss;
    }
    FadeOut(samples, 0.005);
    return WaveFile(samples);
}

QByteArray TuneSound(const QString& notes, int beatsPerMinute)
{
    QList<Note> tune;
    double beats = 0.0;
    const QStringList parts = notes.split(u' ', Qt::SkipEmptyParts);
    for (const QString& part : parts) {
        Note note{};
        if (!ReadNote(part, note)) {
            return {};
        }
        tune.append(note);
        beats += note.beats;
    }
    if (tune.isEmpty() || beatsPerMinute <= 0) {
        return {};
    }
    const double beat = 60.0 / beatsPerMinute;
    Samples samples(SampleCount(beats * beat + 0.5), 0.0);
    double start = 0.0;
    for (const Note& note : tune) {
        if (note.sounding) {
            Strike(samples, start, Frequency(note.semitones), 0.8, 1.3);
        }
        start += note.beats * beat;
    }
    FadeOut(samples, 0.5);
    return WaveFile(samples);
}

} // namespace lineforge::makehome
