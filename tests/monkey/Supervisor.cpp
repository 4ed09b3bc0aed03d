#include "monkey/Supervisor.h"

#include "monkey/ChosenFiles.h"
#include "monkey/Ledger.h"
#include "monkey/Verdict.h"
#include "program/branch/AliasFile.h"

#include <QDir>
#include <QFile>

#include <chrono>
#include <cstdio>
#include <fcntl.h>
#include <numeric>
#include <sys/resource.h>
#include <thread>
#include <unistd.h>

namespace lineforge::monkey
{

using namespace Qt::StringLiterals;
using std::chrono::milliseconds;

namespace
{
constexpr unsigned patienceSeconds = 900;
constexpr rlim_t busySeconds = 120;       // of a processor
constexpr milliseconds longestLife{4000}; // of a session that is to be killed, from its first step on
constexpr qsizetype stepsTold = 25;
constexpr qsizetype errorsTold = 60;

void Tell(const QString& line)
{
    std::printf("%s\n", qUtf8Printable(line));
    std::fflush(stdout);
}

// Takes the place of this process, which is a child of the supervisor's; what it complains of goes to a file.
int Become(const QString& program, const QStringList& arguments, const Scratch& scratch)
{
    QList<QByteArray> words{QFile::encodeName(program)};
    for (const QString& argument : arguments)
        words += QFile::encodeName(argument);
    std::vector<char*> pointers;
    for (QByteArray& word : words)
        pointers.push_back(word.data());
    pointers.push_back(nullptr);
    const int errors = open(QFile::encodeName(scratch.ErrorsFile()).constData(), O_WRONLY | O_CREAT | O_APPEND, 0600);
    dup2(errors, STDERR_FILENO);
    // These hold across what follows, and kill.
    alarm(patienceSeconds);
    const rlimit busy{busySeconds, busySeconds};
    setrlimit(RLIMIT_CPU, &busy);
    execv(pointers.front(), pointers.data());
    return EXIT_FAILURE;
}

QStringList LinesOf(const QString& path)
{
    QFile file(path);
    return file.open(QFile::ReadOnly) ? QString::fromLocal8Bit(file.readAll()).split(u'\n', Qt::SkipEmptyParts)
                                      : QStringList();
}

void WaitForFirstStep(const Scratch& scratch)
{
    constexpr int most = 20000;
    for (int waited = 0; waited < most && Story(scratch.JournalFile()).Steps == 0; ++waited)
        std::this_thread::sleep_for(milliseconds(2));
}

const QStringList& Homes()
{
    static const QStringList homes{u"/home"_s, u"/elsewhere/other-home"_s};
    return homes;
}
} // namespace

// A directory for one, gone with it.
struct Supervisor::Session {
    explicit Session(const Pristine& pristine) { pristine.CopyTo(Files.Directory()); }

    TemporaryHome Root;
    Scratch Files{Root.Path(u"session")};
};

Supervisor::Supervisor(QString program, const Plan& plan) : program_(std::move(program)), plan_(plan)
{
    const Session session(pristine_);
    NoteHomes(session.Files);
    // The branch of an older installation is a matter of its own.
    Start(session.Files, {u"--reopen"_s, session.Files.Directory()})->Wait();
    NoteHomes(session.Files);
}

void Supervisor::NoteHomes(const Scratch& scratch)
{
    for (const QString& home : Homes()) {
        const QString directory = scratch.Directory() + home;
        for (const check::Finding& finding : check::CheckHome(directory).Findings)
            before_[home].Findings.push_back(finding);
        ReadAliasSection(FileSystem(directory), u"AliasList.cfg"_s, AliasSection::Branches,
                         [&](const QString& entry) { listed_[home] += entry.section(u'=', -1); });
    }
}

int Supervisor::Run()
{
    for (int session = 0; session < plan_.Sessions; ++session) {
        const std::uint64_t seed = plan_.FirstSeed + static_cast<std::uint64_t>(session);
        plan_.Kills ? Kill(seed) : Play(seed);
    }
    TellFigures();
    return failures_;
}

std::unique_ptr<ChildProcess> Supervisor::Start(const Scratch& scratch, const QStringList& arguments) const
{
    return std::make_unique<ChildProcess>([&] { return Become(program_, arguments, scratch); });
}

// A deletion takes the branch out of the list before its directory goes.
check::Report Supervisor::WithoutWhatAKillMayLeave(const check::Report& report, const QString& home,
                                                   const Story& story) const
{
    return WithoutUnfinished(report, [&](const QString& name) {
        return listed_[home].contains(name, Qt::CaseInsensitive) &&
               !story.TellsOfDeletionOf(u"~"_s + home + u'/' + name);
    });
}

QStringList Supervisor::CheckHomes(const Scratch& scratch) const
{
    QStringList findings;
    const ChosenFiles chosen(scratch.ChosenFile());
    const Story story(scratch.JournalFile());
    for (const QString& home : Homes()) {
        const QString directory = scratch.Directory() + home;
        const auto isTheUsers = [&](const QString& file) { return chosen.Hold(directory + u'/' + file); };
        const auto isExport = [&](const QString& name) { return story.TellsOfExportTo(u"~"_s + home + u'/' + name); };
        const auto isEmpty = [&](const QString& name) { return QDir(directory + u'/' + name).isEmpty(); };
        check::Report report = check::CheckHome(directory);
        if (plan_.Kills)
            report = WithoutWhatAKillMayLeave(report, home, story);
        report = WithoutExports(WithoutChosen(report, isTheUsers), isExport, isEmpty);
        for (const QString& finding : NewFindings(before_[home], report))
            findings += home + u'/' + finding;
    }
    return findings;
}

void Supervisor::Play(std::uint64_t seed)
{
    constexpr int mostAttempts = 5;
    for (int attempt = 1; !PlayOnce(seed, attempt == mostAttempts); ++attempt)
        Tell(u"seed %1: the sanitizer itself has stumbled, once more"_s.arg(seed));
}

// False when nothing is known of the session: what looks for leaks has stumbled over a thread that was just ending.
bool Supervisor::PlayOnce(std::uint64_t seed, bool isLast)
{
    const Session session(pristine_);
    const Scratch& scratch = session.Files;
    const int code =
        Start(scratch, {u"--play"_s, QString::number(seed), QString::number(plan_.Steps), scratch.Directory()})->Wait();
    if (!isLast && LinesOf(scratch.ErrorsFile()).join(u'\n').contains(u"LeakSanitizer has encountered a fatal error"))
        return false;
    const Story story(scratch.JournalFile());
    QStringList findings = story.Findings + CheckHomes(scratch);
    if (code < 0)
        findings += u"the process was killed by a signal"_s;
    else if (code != 0 && story.Findings.isEmpty())
        findings += u"the process ended with %1"_s.arg(code);
    for (const QString& end : story.Ends) {
        ++ends_[end.section(u':', 0, 0)];
        if (end.startsWith(u"fatal"))
            Tell(u"seed %1 ended by a box: %2"_s.arg(seed).arg(end));
    }
    steps_ += story.Steps;
    Close(seed, scratch, findings);
    return true;
}

// The moment is the clock's, and no seed's: it can't be had again.
void Supervisor::Kill(std::uint64_t seed)
{
    const Session session(pristine_);
    const Scratch& scratch = session.Files;
    Chance moment(seed);
    const std::unique_ptr<ChildProcess> player =
        Start(scratch, {u"--play"_s, QString::number(seed), QString::number(INT_MAX), scratch.Directory()});
    WaitForFirstStep(scratch);
    std::this_thread::sleep_for(milliseconds(moment.Below(static_cast<int>(longestLife.count()))));
    player->KillNow();
    const int code = player->Wait();

    const Story story(scratch.JournalFile());
    QStringList findings = story.Findings + FaultsAfterDeath(scratch.LedgerFile());
    if (code != -1)
        findings += u"the process had ended with %1"_s.arg(code);
    if (Start(scratch, {u"--reopen"_s, scratch.Directory()})->Wait() != 0)
        findings += Story(scratch.JournalFile()).Findings + QStringList{u"not every branch opens again"_s};
    findings += CheckHomes(scratch);
    ++ends_[u"killed"_s];
    steps_ += story.Steps;
    Close(seed, scratch, findings);
}

void Supervisor::Close(std::uint64_t seed, const Scratch& scratch, const QStringList& findings)
{
    if (findings.isEmpty())
        return;
    ++failures_;
    Tell(u"seed %1, after these steps:"_s.arg(seed));
    for (const QString& line : Story(scratch.JournalFile()).Last(stepsTold))
        Tell(u"    "_s + line);
    const QStringList errors = LinesOf(scratch.ErrorsFile());
    for (const QString& line : errors.first(std::min(errorsTold, errors.size())))
        Tell(u"  ! "_s + line);
    for (const QString& finding : findings)
        Tell(u"  * "_s + finding);
    if (!plan_.Keep.isEmpty())
        scratch.CopyTo(plan_.Keep + u"/seed-%1"_s.arg(seed));
}

void Supervisor::TellFigures() const
{
    QStringList ends;
    for (auto end = ends_.begin(); end != ends_.end(); ++end)
        ends += u"%1 × %2"_s.arg(end.value()).arg(end.key());
    Tell(u"%1 sessions from seed %2 on, %3 steps; ends: %4; sessions with findings: %5"_s.arg(plan_.Sessions)
             .arg(plan_.FirstSeed)
             .arg(steps_)
             .arg(ends.join(u", "_s))
             .arg(failures_));
}

} // namespace lineforge::monkey
