#pragma once

#include "shell/ShellTest.h"

namespace lineforge
{

// Branches of two installations: that of the test, and what came from another one in the directory "stick".
class InterchangeTest : public ShellTest
{
protected:
    static constexpr QStringView Filter = u"DataBase *.mdb|*.mdb|All Files|*.*|";

    // One at home, one that another installation has brought, and where the first can go.
    void GivenBranchesOfBoth()
    {
        GivenRegistry({{u"Smiths", u"LfgDat_A"}});
        BranchOf(u'A').Gallery({{u"A001_01.jpg"_s, "picture"}}).Build();
        BranchOf(u'C').InDirectory(u"gift/LfgDat_C").Gallery({{u"C001_01.jpg"_s, "picture"}}).Build();
        Home.MakeDirectory(u"stick");
        StartProgram(P);
    }

    void ChooseToExport(const std::optional<QString>& path)
    {
        Prompts.ExpectOpenFile(u"Select Export Database source File", Filter, path);
        P.Form1->mnuExpSub.Click();
    }
    void ExpectExportQuestion(const QString& directory, Answer answer = Answer::Ok,
                              ScriptedPrompts::WhileOpen whileOpen = {})
    {
        const QString text = u"Database and files will be placed in\n"_s + directory + u"\ndirectory. ";
        Prompts.Expect(u"Export Directory and Files", text, Buttons::InformationOkCancel, answer, std::move(whileOpen));
    }
    // The branch of that letter, from the test's home into that directory of it.
    void Export(QChar letter, const QString& beneath)
    {
        ChooseToExport(Home.Path(u"LfgDat_%1/LfgDat_%1.mdb"_s.arg(letter)));
        P.Form4->Dir1.GoTo(beneath);
        ExpectExportQuestion(beneath + u"/LfgDat_" + letter);
        P.Form4->Command1.Click();
    }

    void ExpectPathFileAccessBox(ScriptedPrompts::WhileOpen whileOpen = {})
    {
        ExpectErrorBox(ErrorNumber::PathFileAccess, u"Path/File access error", std::move(whileOpen));
    }

    void ExpectImportDialog(const std::optional<QString>& path)
    {
        Prompts.ExpectOpenFile(u"Select Import Database File", Filter, path);
    }
    void ExpectImportName(QStringView answer)
    {
        Prompts.ExpectInput(u"Imported Tree Branch alternate name",
                            u"Enter alternate user friendly name for this imported Tree Branch Map.", answer);
    }
    void ExpectNameInUse(const QString& directory)
    {
        const QString text = u"This database is already present in the Home Directory and will be placed in: "_s +
                             directory + u" Directory";
        Prompts.Expect(u"Import database name in use", text, Buttons::Information);
    }
    void ExpectImportQuestion(const QString& name, const QString& directory, Answer answer = Answer::Ok)
    {
        const QString text = u"Imported '"_s + name + u"' Database and files will be placed in\ndirectory " +
                             Home.Path() + u'/' + directory;
        Prompts.Expect(u"New Directory and Files", text, Buttons::InformationOkCancel, answer);
    }
    void Import() { P.Form1->mnuImpSub.Click(); }

    // What stands in a directory of the home, by paths relative to it.
    Tree TreeOf(const QString& directory) const { return TreeOf(Home, directory); }
    static Tree TreeOf(const TemporaryHome& home, const QString& directory)
    {
        Tree tree;
        const Tree all = home.Snapshot();
        for (auto entry = all.begin(); entry != all.end(); ++entry)
            if (entry.key().startsWith(directory + u'/'))
                tree[entry.key().sliced(directory.size() + 1)] = entry.value();
        return tree;
    }
};

} // namespace lineforge
