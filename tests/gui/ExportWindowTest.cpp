#include "forms/Form4.h"
#include "gui/ProgramWindowTest.h"
#include "qt/views/DirectoryView.h"

#include <QAccessible>
#include <QPushButton>
#include <QTest>

namespace lineforge
{
namespace
{
using namespace Qt::StringLiterals;

// An export by the mouse on the real window.
class ExportWindowTest : public ProgramWindowTest
{
protected:
    ExportWindowTest()
    {
        for (const QChar letter : {u'A', u'B'})
            BranchBuilder(Home, letter)
                .Row({{u"File", QString(letter + u"001"_s)}})
                .Boxes(u"1200,600,255,%1001,John,"_s.arg(letter))
                .Picture(QString(letter + u"001"_s), Qt::red)
                .Gallery({{u"notes.txt"_s, "notes"}})
                .Build();
        WriteAliasList(Home, {{u"Smiths", u"LfgDat_A"}, {u"Jones", u"LfgDat_B"}});
        Home.MakeDirectory(u"stick");
        OpenBranch(u"Smiths"_s);
        Prompts.ExpectOpenFile(u"Select Export Database source File", u"DataBase *.mdb|*.mdb|All Files|*.*|",
                               Home.Path(u"LfgDat_B/LfgDat_B.mdb"));
        P.Form1->mnuExpSub.Click();
        ServeEvents();
        Activate(*P.Form4);
    }

    void GoTo(const QString& name)
    {
        DirectoryView& view = Find<DirectoryView>(*P.Form4, u"Dir1"_s);
        for (int row = 0; row < view.count(); ++row)
            if (view.item(row)->data(Qt::AccessibleTextRole) == name) {
                view.scrollToItem(view.item(row));
                const QPoint place = view.visualItemRect(view.item(row)).center();
                QTest::mouseDClick(ViewOf(*P.Form4).windowHandle(), Qt::LeftButton, {},
                                   view.viewport()->mapTo(&ViewOf(*P.Form4), place));
                return;
            }
        ADD_FAILURE() << qUtf8Printable(name);
    }
    void Press(const QString& name)
    {
        QTest::mouseClick(&Find<QPushButton>(*P.Form4, name), Qt::LeftButton);
        ServeEvents();
    }
};

TEST_F(ExportWindowTest, TheListOfDrives_HasItsLabel)
{
    QStringList labels;
    auto* drives = QAccessible::queryAccessibleInterface(&Find<QWidget>(*P.Form4, u"Drive1"_s));
    for (const auto& [label, relation] : drives->relations(QAccessible::Label))
        labels += label->text(QAccessible::Name);
    EXPECT_EQ(labels, QStringList{u"Drive"_s});
}

TEST_F(ExportWindowTest, DirectoryByDoubleClick_ThenOk_Exports)
{
    GoTo(u"stick"_s);
    const QString question =
        u"Database and files will be placed in\n"_s + Home.Path(u"stick/LfgDat_B") + u"\ndirectory. ";
    Prompts.Expect(u"Export Directory and Files", question, Buttons::InformationOkCancel);

    Press(u"Command1"_s);

    EXPECT_EQ(Home.ReadFile(u"stick/LfgDat_B/LfgDat_B.mdb"), Home.ReadFile(u"LfgDat_B/LfgDat_B.mdb"));
    EXPECT_EQ(Home.ReadFile(u"stick/LfgDat_B/LfgGal_B/notes.txt"), "notes");
    EXPECT_FALSE(P.Form4->Visible);
}

TEST_F(ExportWindowTest, Cancel_PutsItAway)
{
    Press(u"Command2"_s);

    EXPECT_FALSE(P.Form4.IsLoaded());
    EXPECT_FALSE(Home.Exists(u"stick/LfgDat_B"));
}

} // namespace
} // namespace lineforge
