#include "monkey/Reopen.h"

#include "forms/Form1.h"
#include "monkey/Journal.h"
#include "monkey/Scratch.h"
#include "program/branch/WorkDatabase.h"
#include "program/state/Program.h"
#include "qt/QtPlatform.h"
#include "shell/handlers/InstallHandlers.h"
#include "shell/run/RunHandler.h"
#include "shell/run/StartUp.h"
#include "support/Windows.h"

#include <QApplication>

namespace lineforge::monkey
{

using namespace Qt::StringLiterals;

namespace
{
// Boxes that tell that a branch can't be had.
const QStringList& Refusals()
{
    static const QStringList titles{u"Read Only or Incorrect Database"_s, u"File not Found."_s,
                                    u"Graphic Config File not Found."_s};
    return titles;
}

// Agrees to everything, chooses no file, and notes what is refused.
class Agreeing : public Prompts
{
public:
    explicit Agreeing(Journal& journal) : journal_(journal) {}

    Answer MsgBox(const QString& title, const QString& text, Buttons) override
    {
        journal_.Note(u"\"%1\": %2"_s.arg(title, text));
        if (Refusals().contains(title) || text.startsWith(u"Run-time error"))
            journal_.Finding(title + u": " + text);
        return Answer::Yes;
    }
    QString InputBox(const QString&, const QString&) override { return {}; }
    std::optional<QString> OpenFile(const FileQuestion&) override { return {}; }
    std::optional<QString> SaveFile(const FileQuestion&) override { return {}; }
    std::optional<Colour> PickColour(Colour) override { return {}; }
    std::optional<TextFont> PickFont(const TextFont&) override { return {}; }
    void PickPrinter() override {}
    void ShowHelp(const QString&) override {}

private:
    Journal& journal_;
};

void OpenBranch(Program& p, const QString& name, Journal& journal)
{
    journal.Step(u"open "_s + name);
    p.Form1->Open.Click();
    p.Form8->List1.SetText(name);
    p.Form8->Command1.Click();
    QCoreApplication::processEvents();
    if (p.Branch.WorkDir.isEmpty() || !p.Form3->Data1.IsOpen())
        journal.Finding(u"the branch "_s + name + u" doesn't open");
    p.Form1->mnuCloseDB.Click();
}

void OpenBranches(Program& p, Journal& journal)
{
    StartProgram(p);
    p.Form1->Open.Click();
    const QStringList names = p.Form8->List1.Items;
    p.Form8->Command2.Click();
    for (const QString& name : names)
        OpenBranch(p, name, journal);
    p.Form1->mnuExit.Click();
}
} // namespace

int ReopenAll(const Scratch& scratch)
{
    Journal journal(scratch.JournalFile(), scratch.Places());
    Program* running = nullptr;
    QtPlatform machine(forms::MainWindowClient, [&running] { return running->Files.CurDir(); });
    const Platform real = machine.Bundle();
    Agreeing prompts(journal);
    Program p({real.Windows, prompts, real.Loop, real.Screen, real.Clipboard, real.PrintSystem, real.Processes,
               scratch.Home() + u'/'});
    running = &p;
    InstallHandlers(p);
    machine.Windows().RunHandler = [&p](const Event& handler) { RunHandler(p, handler); };
    machine.Windows().Run([&] { OpenBranches(p, journal); });
    if (!machine.Loop().HasEnded())
        journal.Finding(u"the program hasn't ended"_s);
    machine.Windows().CloseAll();
    return static_cast<int>(Story(scratch.JournalFile()).Findings.size());
}

} // namespace lineforge::monkey
