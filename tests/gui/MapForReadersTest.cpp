#include "gui/ProgramWindowTest.h"
#include "qt/pictures/KeyboardPointer.h"
#include "qt/views/Reader.h"

#include <QTest>

namespace lineforge
{
namespace
{
using namespace Qt::StringLiterals;

// The map as it is read aloud, and worked by whoever reads it aloud.
class MapForReadersTest : public ProgramWindowTest
{
protected:
    MapForReadersTest()
    {
        BranchBuilder(Home, u'A')
            .Row({{u"File", u"A001"}, {u"Forename", u"John"}, {u"Surname", u"Smith"}, {u"Gender", u"Male"}})
            .Row({{u"File", u"A002"}, {u"Forename", u"Mary"}, {u"Surname", u"Smith"}, {u"Gender", u"Female"}})
            .Boxes(u"1200,600,255,A001,John,2400,600,255,A002,Mary,3600,600,0,0,,")
            .Picture(u"A001", Qt::red)
            .Picture(u"A002", Qt::blue)
            .Build();
        WriteAliasList(Home, {{u"Smiths", u"LfgDat_A"}});
        OpenBranch(u"Smiths"_s);
        Activate(*P.Form1);
    }

    QAccessibleInterface& Map()
    {
        return *QAccessible::queryAccessibleInterface(&Find<QWidget>(*P.Form1, u"Picture1"_s));
    }
    // Those of its children that stand for no widget.
    std::vector<QAccessibleInterface*> Boxes()
    {
        std::vector<QAccessibleInterface*> boxes;
        for (int index = 0; index < Map().childCount(); ++index)
            if (QAccessibleInterface* child = Map().child(index); !child->object())
                boxes.push_back(child);
        return boxes;
    }
    QStringList Read()
    {
        QStringList read;
        for (const QAccessibleInterface* box : Boxes())
            read += box->text(QAccessible::Name) + u" at " + box->text(QAccessible::Description);
        return read;
    }
    void Press(int box)
    {
        Boxes()
            .at(static_cast<std::size_t>(box))
            ->actionInterface()
            ->doAction(QAccessibleActionInterface::pressAction());
        ServeEvents();
    }

    Reader Listening;
};

TEST_F(MapForReadersTest, ItsBoxes_AreReadWithNumberForenameAndPlace)
{
    EXPECT_EQ(Read(),
              QStringList({u"A001 John at 1200, 600"_s, u"A002 Mary at 2400, 600"_s, u"Empty box at 3600, 600"_s}));
    const QPoint corner(PixelScale().ToPixels(2400), PixelScale().ToPixels(600));
    EXPECT_EQ(Boxes()[1]->rect().topLeft(), Find<QWidget>(*P.Form1, u"Picture1"_s).mapToGlobal(corner));
}

TEST_F(MapForReadersTest, ABoxPressed_ShowsItsSubject)
{
    Press(1);
    EXPECT_EQ(P.Form1->Frame1.Caption.value(), u"Ref  A002"_s);
    EXPECT_EQ(P.Form1->Label9.Caption.value(), u"Mary"_s);
}

TEST_F(MapForReadersTest, TheKeyboardsCross_TellsTheBoxBelowIt)
{
    Boxes()[2]->actionInterface()->doAction(QAccessibleActionInterface::setFocusAction());
    ServeEvents();
    EXPECT_EQ(Find<QWidget>(*P.Form1, KeyboardPointer::Name).accessibleName(), u"Pointer on Empty box"_s);
    EXPECT_TRUE(Boxes()[2]->state().focused);
}

TEST_F(MapForReadersTest, ABoxThatIsDrawn_AndAMapThatIsClosed_AreTold)
{
    Read();
    P.Form1->mnuTreeTools.Click();
    P.Form1->Image7.Click();
    P.Form1->Picture1.MouseDown(1, 0, 3000, 3000);
    P.Form1->Picture1.MouseUp(1, 0, 3000, 3000);
    EXPECT_EQ(Read().last(), u"Empty box at 2693, 2892"_s);
    Prompts.Expect(u"Closing Graphics Tools"_s, u"Save the Tree Graphic changes ?"_s, Buttons::InformationYesNo,
                   Answer::No);
    P.Form1->mnuCloseDB.Click();
    EXPECT_EQ(Read(), QStringList());
}

TEST_F(MapForReadersTest, AForenameThatTheTreeButtonCarriesToTheMap_IsReadFromThenOn)
{
    Read();
    P.Form1->Command1.Click();
    P.Form3->Text3.Text = u"Johnny"_s;
    P.Form3->Command2.Click();
    ServeEvents();
    EXPECT_EQ(Read().first(), u"A001 Johnny at 1200, 600"_s);
}

} // namespace
} // namespace lineforge
