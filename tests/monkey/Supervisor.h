#pragma once

#include "check/HomeCheck.h"
#include "monkey/Chance.h"
#include "monkey/Journal.h"
#include "monkey/Scratch.h"
#include "support/ChildProcess.h"

#include <QMap>

#include <memory>

namespace lineforge::monkey
{

struct Plan {
    int Sessions = 1;
    std::uint64_t FirstSeed = 1;
    int Steps = 200;
    bool Kills = false; // each session is killed at a moment of its own, and plays on till then
    QString Keep;       // where the directories of sessions with findings are left; nowhere for an empty one
};

// Plays sessions one after the other, each in a process of its own and a directory of its own, and judges what they
// leave. Tells of those that find something as they come, and the figures in the end.
class Supervisor
{
public:
    // `program` plays a session when it is started with "--play", a seed, a number of steps and a directory, and opens
    // all branches of a home with "--reopen" and a directory.
    Supervisor(QString program, const Plan& plan);

    // How many sessions have found something.
    int Run();

private:
    struct Session;
    void Play(std::uint64_t seed);
    bool PlayOnce(std::uint64_t seed, bool isLast);
    void Kill(std::uint64_t seed);
    std::unique_ptr<ChildProcess> Start(const Scratch& scratch, const QStringList& arguments) const;
    void NoteHomes(const Scratch& scratch);
    check::Report WithoutWhatAKillMayLeave(const check::Report& report, const QString& home, const Story& story) const;
    QStringList CheckHomes(const Scratch& scratch) const;
    void Close(std::uint64_t seed, const Scratch& scratch, const QStringList& findings);
    void TellFigures() const;

    const QString program_;
    const Plan plan_;
    Pristine pristine_;
    QMap<QString, check::Report> before_; // by the home: what is found before anything is played
    QMap<QString, QStringList> listed_;   // likewise: the directories of the branches in its list
    QMap<QString, int> ends_;
    int steps_ = 0;
    int failures_ = 0;
};

} // namespace lineforge::monkey
