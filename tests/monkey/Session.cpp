#include "monkey/Session.h"

#include "forms/Form1.h"
#include "monkey/Journal.h"
#include "monkey/Ledger.h"
#include "monkey/Player.h"
#include "monkey/Scratch.h"
#include "program/state/Program.h"
#include "qt/QtPlatform.h"
#include "shell/handlers/InstallHandlers.h"
#include "shell/run/RunHandler.h"
#include "shell/run/StartUp.h"
#include "support/Clocks.h"
#include "support/FakeProcesses.h"
#include "support/Windows.h"

#include <QApplication>
#include <QFileInfo>

namespace lineforge::monkey
{

using namespace Qt::StringLiterals;

namespace
{
// The real loop; its user is let in where the program yields.
class PlayedLoop : public EventLoop
{
public:
    explicit PlayedLoop(QtEventLoop& real) : real_(real) {}
    void DoEvents() override
    {
        if (Yielding)
            Yielding([this] { real_.DoEvents(); });
        else
            real_.DoEvents();
    }
    void PaintWindows() override { real_.PaintWindows(); }
    [[noreturn]] void End(int exitCode) override
    {
        real_.End(exitCode);
        throw ProgramEnded{}; // as the real one has done; the compiler can't tell
    }

    std::function<void(const std::function<void()>& serve)> Yielding;

private:
    QtEventLoop& real_;
};

// A device for sound and film that loads and plays nothing: what a real one tells of its file comes when its threads
// like. While it loads a file the user can do nothing, but timers go on.
class SilentPlayer
{
public:
    SilentPlayer(MultimediaControl& control, Player& player) : control_(control), player_(player) {}

    void Act(QStringView command) const
    {
        if (command == u"Open" && control_.HasPlace())
            Open();
        else if (command == u"Close")
            Tell(false, 0);
        else if (control_.IsOpen)
            control_.Position = command == u"Play" || command == u"Step" ? control_.Length / 2 : 0;
    }

private:
    void Open() const
    {
        constexpr qint64 smallest = 64; // bytes
        constexpr int length = 4000;
        Tell(false, 0);
        const QFileInfo file(control_.FileName);
        if (!file.exists())
            throw RuntimeError(ErrorNumber::FileNotFound, control_.FileName);
        player_.WhileShut([] {
            LetTimePass(std::chrono::milliseconds(300));
            QCoreApplication::processEvents(QEventLoop::ExcludeUserInputEvents);
        });
        if (file.size() < smallest)
            throw RuntimeError(ErrorNumber::InvalidFileFormat, control_.FileName);
        Tell(true, length);
    }

    void Tell(bool isOpen, int length) const
    {
        control_.IsOpen = isOpen;
        control_.Length = length;
        control_.Position = 0;
    }

    MultimediaControl& control_;
    Player& player_;
};

// The real windows, but for what sounds.
class PlayedWindows : public WindowSystem
{
public:
    explicit PlayedWindows(WindowSystem& real) : real_(real) {}
    void Made(Form& form) override
    {
        real_.Made(form);
        Silence(form);
    }
    void Retire(std::unique_ptr<Form> form) override { real_.Retire(std::move(form)); }

    Player* Of = nullptr;

private:
    void Silence(const Container& container)
    {
        for (Control* control : container.Controls()) {
            if (auto* sounding = dynamic_cast<MultimediaControl*>(control))
                sounding->Act = [device = SilentPlayer(*sounding, *Of)](QStringView command) { device.Act(command); };
            if (const auto* inner = dynamic_cast<const Container*>(control))
                Silence(*inner);
        }
    }

    WindowSystem& real_;
};

class Session
{
public:
    Session(const SessionOrder& order, const Scratch& scratch)
        : order_(order), scratch_(scratch), chance_(order.Seed), journal_(scratch.JournalFile(), scratch.Places()),
          ledger_({scratch.Home(), scratch.Elsewhere()}, scratch.LedgerFile(), journal_)
    {
    }

    void Play()
    {
        do {
            PlayRun();
            ledger_.Audit();
        } while (journal_.Steps() < order_.Steps);
    }

private:
    void PlayRun()
    {
        Program* running = nullptr;
        QtPlatform machine(forms::MainWindowClient, [&running] { return running->Files.CurDir(); });
        PlayedLoop loop(machine.Loop());
        PlayedWindows windows(machine.Windows());
        FakeProcesses processes;
        const Platform real = machine.Bundle();
        Program p({windows, real.Prompts, loop, real.Screen, real.Clipboard, real.PrintSystem, processes,
                   scratch_.Home() + u'/'});
        running = &p;
        Player player(p, machine, chance_, scratch_, journal_, ledger_, order_.Steps);
        loop.Yielding = [&player](const std::function<void()>& serve) { player.Yield(serve); };
        windows.Of = &player;
        InstallHandlers(p);
        machine.Windows().RunHandler = [&p](const Event& handler) { RunHandler(p, handler); };

        machine.Windows().Run([&p] { StartProgram(p); });
        if (!machine.Loop().HasEnded())
            QApplication::exec();
        machine.Windows().CloseAll();
        Judge(machine, player);
    }

    void Judge(QtPlatform& machine, const Player& player)
    {
        const QtEventLoop& loop = machine.Loop();
        journal_.End(player.End());
        if (!loop.HasEnded())
            journal_.Finding(u"the program has ended without being told to"_s);
        else if ((loop.ExitCode() != 0) != player.End().startsWith(u"fatal"))
            journal_.Finding(u"the program has ended with the code %1"_s.arg(loop.ExitCode()));
    }

    SessionOrder order_;
    const Scratch& scratch_;
    Chance chance_;
    Journal journal_;
    Ledger ledger_;
};
} // namespace

int PlaySession(const SessionOrder& order, const Scratch& scratch)
{
    StopClocks();
    Session(order, scratch).Play();
    return static_cast<int>(Story(scratch.JournalFile()).Findings.size());
}

} // namespace lineforge::monkey
