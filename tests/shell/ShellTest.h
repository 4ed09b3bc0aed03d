#pragma once

#include "platform/store/OtherPrograms.h"
#include "shell/run/RunHandler.h"
#include "shell/run/StartUp.h"
#include "support/BranchBuilder.h"
#include "support/ProgramTest.h"
#include "support/SqliteFile.h"

#include <QColor>

#include <memory>

namespace lineforge
{

using namespace Qt::StringLiterals;

// A program whose user has branches at hand and works with menus and buttons.
class ShellTest : public ProgramTest
{
protected:
    void GivenRegistry(const std::vector<Alias>& branches = {}) { WriteAliasList(Home, branches); }

    // A branch of two records, each with its box and its picture.
    BranchBuilder BranchOf(QChar letter)
    {
        const QString first = letter + u"001"_s;
        const QString second = letter + u"002"_s;
        return BranchBuilder(Home, letter)
            .Row({{u"File", first},
                  {u"Forename", u"John"},
                  {u"Surname", u"Smith"},
                  {u"BirthDate", u"1 May 1901"},
                  {u"Deceased", u"1950"},
                  {u"Spouse", u"Mary Jones"},
                  {u"Maiden", u"none"},
                  {u"Gender", u"Male"}})
            .Row({{u"File", second}, {u"Forename", u"Mary"}, {u"Gender", u"Female"}})
            .Boxes(u"1200,600,255,%1,John,2000,600,255,%2,Mary,"_s.arg(first, second))
            .Lines(u"1507,817,2307,817,0,")
            .Texts(u"300,150,The Smiths,Arial,8,0,")
            .Picture(first, Qt::red)
            .Picture(second, Qt::blue);
    }

    // Two branches, listed and on disk, and the main window before the user.
    void GivenSmithsAndJones()
    {
        GivenRegistry({{u"Smiths", u"LfgDat_A"}, {u"Jones", u"LfgDat_B"}});
        BranchOf(u'A').Build();
        BranchOf(u'B').Build();
        WriteTemplates(Home);
        StartProgram(P);
    }

    void Choose(QStringView name)
    {
        P.Form1->Open.Click();
        P.Form8->List1.SetText(name.toString());
        P.Form8->Command1.Click();
    }

    // As the window does when the user has clicked: nothing leaves a handler.
    void Click(const Event& handler) { RunHandler(P, handler); }

    void MoveFirstBoxTo(int x) { P.Map.BoxArr[0][BoxColumn::X] = x; }

    QByteArray MapOf(QChar letter) const { return Home.ReadFile(u"LfgDat_%1/LfgDat_%1.cfg"_s.arg(letter)); }

    QByteArray Registry() const { return Home.ReadFile(u"AliasList.cfg"); }

    // The questions of New.
    void AnswerName(QStringView name, ScriptedPrompts::WhileOpen whileOpen = {})
    {
        Prompts.ExpectInput(u"New Tree Branch name", u"Enter the name for this new Tree Branch Map", name,
                            std::move(whileOpen));
    }

    void Confirm(QStringView name, QStringView directory, Answer answer = Answer::Ok,
                 ScriptedPrompts::WhileOpen whileOpen = {})
    {
        const QString title = name + u" Tree Branch new Directory and Files"_s;
        const QString text = u"New '%1' Tree Branch Database and new map file will be \n"
                             u"placed in new Directory %2%3.\n"
                             u"New '%1' Subject and Gallery files will be copied to this \n"
                             u"directory when presented."_s.arg(name, P.Branch.HomeDir, directory);
        Prompts.Expect(title, text, Buttons::InformationOkCancel, answer, std::move(whileOpen));
    }

    // The two questions of Delete.
    void ExpectDeletionQuestion(Answer answer, const QString& name = u"Smiths"_s)
    {
        const QString title = u"Delete '%1' DataBase and Galleries"_s.arg(name);
        const QString text =
            u"Do you really want to delete the Database\nand Gallery files in '%1' Tree Branch ?"_s.arg(name);
        Prompts.Expect(title, text, Buttons::QuestionYesNo, answer);
    }
    void ExpectDeletionWarning(Answer answer, const QString& name = u"Smiths"_s, QStringView directory = u"LfgDat_A")
    {
        const QString title = u"Deletion of '%1' Database, Gallery and Files"_s.arg(name);
        const QString text = u"All files in %1\n'%2' Ancestral Tree Branch will be deleted.\n"
                             u"This includes the Database, Gallery and its Directories\n"
                             u"Are you sure this is what you want ? "_s.arg(Home.Path(directory), name);
        Prompts.Expect(title, text, Buttons::ErrorYesNo, answer);
    }
    void DeleteForGood(const QString& name = u"Smiths"_s, QStringView directory = u"LfgDat_A")
    {
        ExpectDeletionQuestion(Answer::Yes, name);
        ExpectDeletionWarning(Answer::Yes, name, directory);
        Click(P.Form1->mnuDelSub.Click);
    }

    void ExpectCannotOpenBox(ScriptedPrompts::WhileOpen whileOpen = {})
    {
        Prompts.Expect(u"Read Only or Incorrect Database", u"Cannot open this database", Buttons::Information,
                       Answer::Ok, std::move(whileOpen));
    }

    // What is refused is told with its number, and the program goes on.
    void ExpectErrorBox(int number, QStringView text, ScriptedPrompts::WhileOpen whileOpen = {})
    {
        const QString words = u"Error # %1 was generated by Lineforge\r%2"_s.arg(number).arg(text);
        Prompts.Expect(u"Error", words, Buttons::Plain, Answer::Ok, std::move(whileOpen));
    }

    void ExpectEmptyBox()
    {
        Prompts.Expect(u"Database Empty", u"This Database has no records to access", Buttons::Information);
    }

    // Another program works on that branch's database as long as what is given back lives. Nobody waits for it.
    std::unique_ptr<SqliteFile> LockDatabase(QChar letter)
    {
        P.Databases.Others().Milliseconds = 0;
        auto other = std::make_unique<SqliteFile>(Home.Path(u"LfgDat_%1/LfgDat_%1.mdb"_s.arg(letter)));
        other->Execute("BEGIN EXCLUSIVE");
        return other;
    }

    void ExpectDatabaseInUse(Answer answer, ScriptedPrompts::WhileOpen whileOpen = {})
    {
        Prompts.Expect(u"Database in use", u"The Database is in use by another program.",
                       Buttons::InformationRetryCancel, answer, std::move(whileOpen));
    }

    // The platform's own text, and what stands beneath it.
    void ExpectFatalBox(QStringView text, const QString& words = {})
    {
        Prompts.Expect(u"Lineforge", words.isEmpty() ? text.toString() : QString(text + u"\n\n" + words),
                       Buttons::Error);
    }

    std::optional<int> ExitCode() const { return Machine.Loop.ExitCode; }
};

} // namespace lineforge
