#include "gui/ProgramWindowTest.h"
#include "program/branch/WorkDatabase.h"
#include "support/SqliteFile.h"

#include <QClipboard>
#include <QLineEdit>
#include <QMenu>
#include <QMenuBar>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QTest>

namespace lineforge
{
namespace
{
using namespace Qt::StringLiterals;

// Cut, copy and paste in the record form of the whole program, by mouse and menu.
class RecordClipboardTest : public ProgramWindowTest
{
protected:
    RecordClipboardTest()
    {
        BranchBuilder(Home, u'A')
            .Row({{u"File", u"A001"},
                  {u"Forename", u"John Henry"},
                  {u"Surname", u"Smith"},
                  {u"Notes", u"first line\r\nsecond line"}})
            .Row({{u"File", u"A002"}, {u"Forename", u"Mary"}, {u"Surname", u"Jones"}})
            .Boxes(u"1200,600,255,A001,John,")
            .Picture(u"A001", Qt::red)
            .Picture(u"A002", Qt::green)
            .Build();
        WriteAliasList(Home, {{u"Smiths", u"LfgDat_A"}});
        QGuiApplication::clipboard()->clear();
        OpenBranch(u"Smiths"_s);
        QTest::mouseClick(&Find<QPushButton>(*P.Form1, u"Command1"_s), Qt::LeftButton);
        ServeEvents();
        Activate(*P.Form3);
    }

    ~RecordClipboardTest() override { QGuiApplication::clipboard()->clear(); }

    QLineEdit& Line(const QString& name) { return Find<QLineEdit>(*P.Form3, name); }
    QPlainTextEdit& Lines(const QString& name) { return Find<QPlainTextEdit>(*P.Form3, name); }

    // Where the mouse meets the gap before a character.
    static QPoint PlaceOf(QLineEdit& line, int position)
    {
        QPoint place(0, line.height() / 2);
        while (place.x() < line.width() && line.cursorPositionAt(place) < position)
            place.rx() += 1;
        return place + QPoint(1, 0);
    }
    static QPoint PlaceOf(const QPlainTextEdit& lines, int position)
    {
        QTextCursor cursor = lines.textCursor();
        cursor.setPosition(position);
        return lines.cursorRect(cursor).center();
    }

    static void Drag(QWidget& widget, QPoint from, QPoint to)
    {
        QTest::mousePress(&widget, Qt::LeftButton, {}, from);
        QTest::mouseMove(&widget, to);
        QTest::mouseRelease(&widget, Qt::LeftButton, {}, to);
        // The next click is no part of a double one.
        QTest::qWait(QApplication::doubleClickInterval() + 10);
    }
    void SelectByMouse(const QString& box, int from, int to)
    {
        Drag(Line(box), PlaceOf(Line(box), from), PlaceOf(Line(box), to));
    }
    void SelectByMouseInLines(const QString& box, int from, int to)
    {
        Drag(*Lines(box).viewport(), PlaceOf(Lines(box), from), PlaceOf(Lines(box), to));
    }
    void ClickInto(const QString& box, int position) { SelectByMouse(box, position, position); }

    // A click that the window hands on: menus look whether the mouse has moved since they came up.
    static void ClickLikeAUser(const QWidget& widget, QPoint place)
    {
        QTest::mouseClick(widget.window()->windowHandle(), Qt::LeftButton, {}, widget.mapTo(widget.window(), place));
    }

    // Opens the Edit menu and chooses, both by the mouse.
    void Choose(const QString& entry)
    {
        auto* bar = ViewOf(*P.Form3).findChild<QMenuBar*>();
        auto& menu = Find<QMenu>(*P.Form3, u"mnuEdit"_s);
        ClickLikeAUser(*bar, bar->actionGeometry(menu.menuAction()).center());
        ASSERT_TRUE(menu.isVisible());
        const QAction& action = Find<QAction>(*P.Form3, entry);
        ClickLikeAUser(menu, menu.actionGeometry(const_cast<QAction*>(&action)).center());
        ServeEvents();
        EXPECT_FALSE(menu.isVisible());
    }

    static QString Held() { return QGuiApplication::clipboard()->text(); }

    std::optional<QString> Stored(const char* field)
    {
        return SqliteFile(Home.Path(u"LfgDat_A/LfgDat_A.mdb"))
            .Value(QByteArray("SELECT ") + field + " FROM Tree99 WHERE File = 'A001'");
    }
};

TEST_F(RecordClipboardTest, Copy_TakesTheSelection_AndLeavesIt)
{
    SelectByMouse(u"Text3"_s, 0, 4);

    Choose(u"mnuCopy"_s);

    EXPECT_EQ(Held(), u"John"_s);
    EXPECT_EQ(Line(u"Text3"_s).text(), u"John Henry"_s);
}

TEST_F(RecordClipboardTest, Cut_TakesTheSelectionAway_AndTheRowIsWrittenWithoutIt)
{
    SelectByMouse(u"Text3"_s, 4, 10);

    Choose(u"mnuCut"_s);

    EXPECT_EQ(Held(), u" Henry"_s);
    EXPECT_EQ(Line(u"Text3"_s).text(), u"John"_s);
    EXPECT_EQ(Line(u"Text3"_s).cursorPosition(), 4);
    Records(P.Form3).MoveNext();
    EXPECT_EQ(Stored("Forename"), u"John"_s);
}

TEST_F(RecordClipboardTest, Paste_PutsTheTextAtTheCaret_AndTheCaretBehindIt)
{
    QGuiApplication::clipboard()->setText(u"Goods"_s);
    ClickInto(u"Text2"_s, 0);

    Choose(u"mnuPaste"_s);

    EXPECT_EQ(Line(u"Text2"_s).text(), u"GoodsSmith"_s);
    EXPECT_EQ(Line(u"Text2"_s).cursorPosition(), 5);
    Choose(u"mnuPaste"_s);
    EXPECT_EQ(Line(u"Text2"_s).text(), u"GoodsGoodsSmith"_s);
    Records(P.Form3).MoveNext();
    EXPECT_EQ(Stored("Surname"), u"GoodsGoodsSmith"_s);
}

TEST_F(RecordClipboardTest, Paste_TakesThePlaceOfTheSelection)
{
    QGuiApplication::clipboard()->setText(u"William"_s);
    SelectByMouse(u"Text3"_s, 5, 10);

    Choose(u"mnuPaste"_s);

    EXPECT_EQ(Line(u"Text3"_s).text(), u"John William"_s);
}

TEST_F(RecordClipboardTest, CutInOneBox_PastedInAnother_MovesTheText)
{
    SelectByMouse(u"Text3"_s, 4, 10);
    Choose(u"mnuCut"_s);
    ClickInto(u"Text2"_s, 5);
    Choose(u"mnuPaste"_s);

    EXPECT_EQ(Line(u"Text3"_s).text(), u"John"_s);
    EXPECT_EQ(Line(u"Text2"_s).text(), u"Smith Henry"_s);
    Records(P.Form3).MoveNext();
    EXPECT_EQ(Stored("Forename"), u"John"_s);
    EXPECT_EQ(Stored("Surname"), u"Smith Henry"_s);
}

TEST_F(RecordClipboardTest, Paste_StopsAtTheLimitOfTheField)
{
    QGuiApplication::clipboard()->setText(QString(40, u'x'));
    ClickInto(u"Text2"_s, 5);

    Choose(u"mnuPaste"_s);

    EXPECT_EQ(Line(u"Text2"_s).text(), QString(u"Smith" + QString(25, u'x')));
}

TEST_F(RecordClipboardTest, PasteOfAPicture_IsPassedOver)
{
    QImage image(4, 4, QImage::Format_RGB32);
    image.fill(Qt::red);
    QGuiApplication::clipboard()->setImage(image);
    SelectByMouse(u"Text2"_s, 0, 5);

    Choose(u"mnuPaste"_s);

    EXPECT_EQ(Line(u"Text2"_s).text(), u"Smith"_s);
}

TEST_F(RecordClipboardTest, NotesOfSeveralLines_AreCutAndPastedWithTheirLineEnds)
{
    SelectByMouseInLines(u"Text11"_s, 6, 17);
    Choose(u"mnuCut"_s);
    EXPECT_EQ(Held(), u"line\r\nsecond"_s);
    EXPECT_EQ(Lines(u"Text11"_s).toPlainText(), u"first  line"_s);

    Choose(u"mnuPaste"_s);

    EXPECT_EQ(Lines(u"Text11"_s).toPlainText(), u"first line\nsecond line"_s);
    Records(P.Form3).MoveNext();
    EXPECT_EQ(Stored("Notes"), u"first line\r\nsecond line"_s);
}

TEST_F(RecordClipboardTest, CopyRecord_TakesTheWholeRecord_AndForgetsTheBox)
{
    ClickInto(u"Text2"_s, 0);

    Choose(u"mnuCopyRecToClip"_s);

    const QString record = Held();
    EXPECT_TRUE(record.contains(u"Smith"_s)) << record.toStdString();
    EXPECT_TRUE(record.contains(u"John Henry"_s));
    Choose(u"mnuPaste"_s);
    EXPECT_EQ(Line(u"Text2"_s).text(), u"Smith"_s);
}

} // namespace
} // namespace lineforge
