#include "monkey/Reopen.h"
#include "monkey/Session.h"
#include "monkey/Supervisor.h"

#include <QApplication>
#include <QCommandLineParser>
#include <QDir>

#include <cstdio>

using namespace Qt::StringLiterals;
using namespace lineforge::monkey;

namespace
{
// Of a screen that is none.
void Complain(QtMsgType, const QMessageLogContext&, const QString& text)
{
    if (!text.startsWith(u"This plugin does not support"))
        std::fprintf(stderr, "%s\n", qUtf8Printable(text));
}

// The machine has no screen, no sound and no printer, and what stands on the desk of whoever runs it has no say.
void PrepareMachine(const Scratch& scratch)
{
    const std::pair<const char*, QByteArray> settings[] = {
        {"QT_QPA_PLATFORM", "offscreen"},
        {"QT_STYLE_OVERRIDE", "Fusion"},
        {"QT_NO_GLIB", "1"}, // whose loop doesn't tell when it is about to wait
        {"QT_HASH_SEED", "0"},
        {"LC_ALL", "C.UTF-8"},
        {"TZ", "UTC"},
        {"CUPS_SERVER", "/nowhere"},
        {"PULSE_SERVER", "/nowhere"},
        {"HOME", scratch.User().toLocal8Bit()},
        {"XDG_RUNTIME_DIR", scratch.User().toLocal8Bit()},
    };
    for (const auto& [name, value] : settings)
        qputenv(name, value);
    for (const char* name : {"XDG_CONFIG_HOME", "XDG_DATA_HOME", "XDG_CACHE_HOME", "DISPLAY", "WAYLAND_DISPLAY"})
        qunsetenv(name);
    QFile::setPermissions(scratch.User(), QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner);
    qInstallMessageHandler(Complain);
}

int PlayAs(int argc, char** argv, const Scratch& scratch, const std::function<int()>& play)
{
    PrepareMachine(scratch);
    const QApplication application(argc, argv);
    return play() == 0 ? EXIT_SUCCESS : EXIT_FAILURE;
}

Plan PlanOf(const QCommandLineParser& line)
{
    const auto arguments = line.positionalArguments();
    Plan plan;
    plan.Sessions = arguments.value(0, u"1"_s).toInt();
    plan.FirstSeed = line.value(u"from"_s).toULongLong();
    plan.Steps = line.value(u"steps"_s).toInt();
    plan.Kills = line.isSet(u"kill"_s);
    plan.Keep = line.value(u"keep"_s);
    return plan;
}

int Supervise(int argc, char** argv)
{
    qputenv("QT_QPA_PLATFORM", "offscreen");
    const QGuiApplication application(argc, argv);
    QCommandLineParser line;
    line.setApplicationDescription(u"Lets a user who is led by nothing but a seed play with the program."_s);
    line.addHelpOption();
    line.addPositionalArgument(u"sessions"_s, u"How many."_s);
    line.addOptions({{u"from"_s, u"The first seed."_s, u"seed"_s, u"1"_s},
                     {u"steps"_s, u"Of a session."_s, u"number"_s, u"200"_s},
                     {u"kill"_s, u"Kill each session at a moment of its own."_s},
                     {u"keep"_s, u"Leave the directories of sessions with findings there."_s, u"directory"_s}});
    line.addOption({u"prepare"_s,
                    u"Play nothing; make the directory that a session begins with, for a debugger: "
                    u"lineforge_monkey --play SEED STEPS DIRECTORY."_s,
                    u"directory"_s});
    line.process(application);
    if (const QString directory = line.value(u"prepare"_s); !directory.isEmpty()) {
        Pristine().CopyTo(directory);
        return EXIT_SUCCESS;
    }
    return Supervisor(QCoreApplication::applicationFilePath(), PlanOf(line)).Run() == 0 ? EXIT_SUCCESS : EXIT_FAILURE;
}
} // namespace

int main(int argc, char** argv)
{
    const auto word = [&](int at) { return at < argc ? QString::fromLocal8Bit(argv[at]) : QString(); };
    if (word(1) == u"--play") {
        const Scratch scratch(word(4));
        return PlayAs(argc, argv, scratch, [&] {
            return PlaySession({word(2).toULongLong(), word(3).toInt()}, scratch);
        });
    }
    if (word(1) == u"--reopen") {
        const Scratch scratch(word(2));
        return PlayAs(argc, argv, scratch, [&] { return ReopenAll(scratch); });
    }
    return Supervise(argc, argv);
}
