#include "qt/dialogs/HelpWindowTest.h"

#include <QFile>
#include <QPointer>
#include <QScrollBar>
#include <QTextBlock>

namespace lineforge
{

using testing::ElementsAre;

namespace
{
QByteArray BytesOf(const QString& path)
{
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly))
        throw std::runtime_error("no file " + path.toStdString());
    return file.readAll();
}

class RefusedHelpTest : public HelpWindowTest
{
protected:
    // Files that are no manual leave the page that is on show, and a box tells of it.
    void ExpectRefused(const QString& path)
    {
        OpenHelp(SmallManual);
        ClickEntry(u"Trees"_s);
        bool isTold = false;
        const NextDialog dialog([&](QDialog& box) {
            isTold = AsMessageBox(box).text() == u"The help file can't be found.\n"_s + path;
            box.reject();
        });
        Ask->ShowHelp(path);
        EXPECT_TRUE(isTold);
        EXPECT_EQ(Place(), u"trees.html#top"_s);
        EXPECT_TRUE(Page().toPlainText().contains(u"An oak grows slowly."));
    }
};

TEST_F(HelpWindowTest, OpensOnTheContentsPage)
{
    OpenHelp(SmallManual);
    ASSERT_EQ(HelpWindows().size(), 1);
    EXPECT_EQ(Window().windowTitle(), u"Help on trees"_s);
    EXPECT_TRUE(Page().toPlainText().startsWith(u"A small manual"));
}

TEST_F(HelpWindowTest, OpenedAgain_ItIsTheSameWindow_OnTheContentsPage)
{
    OpenHelp(SmallManual);
    ClickEntry(u"Trees"_s);
    OpenHelp(SmallManual);
    EXPECT_EQ(HelpWindows().size(), 1);
    EXPECT_EQ(Place(), u"index.html#"_s);
}

TEST_F(HelpWindowTest, Minimised_ItComesBackWhenItIsOpenedAgain)
{
    OpenHelp(SmallManual);
    QWidget& help = Window();
    help.showMinimized();
    OpenHelp(SmallManual);
    EXPECT_FALSE(help.isMinimized());
    EXPECT_TRUE(help.isVisible());
}

TEST_F(HelpWindowTest, AnotherManual_TakesThePlaceOfTheOneBefore)
{
    OpenHelp(SmallManual);
    OpenHelp(WholeManual);
    EXPECT_EQ(HelpWindows().size(), 1);
    EXPECT_EQ(Window().windowTitle(), u"Lineforge Help"_s);
    EXPECT_TRUE(Contents().findItems(u"Boxes"_s, Qt::MatchExactly | Qt::MatchRecursive).isEmpty());
}

TEST_F(HelpWindowTest, ClosedByItsFrameItComesBack)
{
    OpenHelp(SmallManual);
    Window().close();
    EXPECT_TRUE(HelpWindows().isEmpty());
    OpenHelp(SmallManual);
    EXPECT_EQ(HelpWindows().size(), 1);
}

TEST_F(HelpWindowTest, AMissingFileIsTold_AndNothingOpens)
{
    const QString path = Home.Path() + u"/nowhere.hlp"_s;
    const NextDialog dialog([&path](QDialog& box) {
        EXPECT_EQ(box.windowTitle(), u"Lineforge"_s);
        EXPECT_EQ(AsMessageBox(box).text(), u"The help file can't be found.\n"_s + path);
        box.reject();
    });
    Ask->ShowHelp(path);
    EXPECT_TRUE(HelpWindows().isEmpty());
}

TEST_F(RefusedHelpTest, ADirectoryIsNoManual)
{
    ExpectRefused(Home.Path());
}

TEST_F(RefusedHelpTest, APlainPageIsNoManual)
{
    ExpectRefused(Home.WriteFile(u"a.hlp", "<html><title>Help</title><body>first</body></html>"));
}

TEST_F(RefusedHelpTest, AnEmptyFileIsNoManual)
{
    ExpectRefused(Home.WriteFile(u"a.hlp", ""));
}

TEST_F(RefusedHelpTest, AManualCutShortIsNone)
{
    const QByteArray whole = BytesOf(SmallManual);
    ExpectRefused(Home.WriteFile(u"a.hlp", whole.first(whole.size() / 2)));
}

TEST_F(RefusedHelpTest, ABundleWithoutContentsIsNoManual)
{
    ExpectRefused(QStringLiteral(LINEFORGE_NO_MANUAL));
}

TEST_F(HelpWindowTest, ItGoesWithTheProgram)
{
    OpenHelp(SmallManual);
    const QPointer<QWidget> window = &Window();
    Ask.reset();
    EXPECT_FALSE(window);
}

TEST_F(HelpWindowTest, Contents_ArePagesInChapters_WithTheirSections)
{
    OpenHelp(SmallManual);
    QStringList entries;
    for (QTreeWidgetItemIterator entry(&Contents()); *entry; ++entry)
        entries += (*entry)->text(0);
    // A page that isn't there isn't listed.
    EXPECT_THAT(entries, ElementsAre(u"Growing"_s, u"Boxes"_s, u"Colours"_s, u"Trees"_s, u"Pruning"_s, u"The oak"_s,
                                     u"Elsewhere"_s, u"Lines"_s));
}

TEST_F(HelpWindowTest, EntryOfTheContents_IsGoneTo)
{
    OpenHelp(SmallManual);
    ClickEntry(u"Trees"_s);
    EXPECT_EQ(Place(), u"trees.html#top"_s);
    EXPECT_EQ(Window().windowTitle(), u"Trees - Help on trees"_s);
    ClickEntry(u"Colours"_s);
    EXPECT_EQ(Place(), u"boxes.html#colours"_s);
    EXPECT_EQ(ChosenEntry(), u"Colours"_s);
    ClickEntry(u"Boxes"_s);
    EXPECT_EQ(Place(), u"boxes.html#top"_s);
    EXPECT_EQ(ChosenEntry(), u"Boxes"_s);
}

TEST_F(HelpWindowTest, EntryOfTheContents_IsGoneToByKeyboard)
{
    OpenHelp(SmallManual);
    EXPECT_TRUE(Contents().hasFocus());
    Contents().setCurrentItem(Contents().findItems(u"Lines"_s, Qt::MatchExactly | Qt::MatchRecursive).first());
    QTest::keyClick(&Contents(), Qt::Key_Return);
    EXPECT_EQ(Place(), u"lines.html#top"_s);
}

TEST_F(HelpWindowTest, Link_IsFollowed_AndTheContentsFollowToo)
{
    OpenHelp(SmallManual);
    ClickLink(u"Boxes"_s);
    EXPECT_EQ(Place(), u"boxes.html#"_s);
    EXPECT_EQ(ChosenEntry(), u"Boxes"_s);
    ClickLink(u"On to the pruning"_s);
    EXPECT_EQ(Place(), u"trees.html#pruning"_s);
    EXPECT_EQ(ChosenEntry(), u"Pruning"_s);
}

TEST_F(HelpWindowTest, LinkThatLeadsOutOfTheManual_IsntFollowed)
{
    OpenHelp(SmallManual);
    for (const QString& link : {u"Outside"_s, u"Missing"_s}) {
        ClickLink(link);
        EXPECT_EQ(Place(), u"index.html#"_s) << link.toStdString();
        EXPECT_TRUE(Page().toPlainText().startsWith(u"A small manual"));
    }
}

TEST_F(HelpWindowTest, BackAndForward_GoTheWayThatWasCome)
{
    OpenHelp(SmallManual);
    EXPECT_FALSE(Command(u"Back"_s).isEnabled());
    EXPECT_FALSE(Command(u"Forward"_s).isEnabled());
    ClickEntry(u"Boxes"_s);
    ClickEntry(u"Lines"_s);
    Command(u"Back"_s).trigger();
    EXPECT_EQ(Place(), u"boxes.html#top"_s);
    EXPECT_EQ(ChosenEntry(), u"Boxes"_s);
    Command(u"Forward"_s).trigger();
    EXPECT_EQ(Place(), u"lines.html#top"_s);
    Command(u"Contents"_s).trigger();
    EXPECT_EQ(Place(), u"index.html#"_s);
}

TEST_F(HelpWindowTest, BackAndForward_ByKeyboard)
{
    OpenHelp(SmallManual);
    ClickEntry(u"Boxes"_s);
    QTest::keyClick(&Page(), Qt::Key_Left, Qt::AltModifier);
    EXPECT_EQ(Place(), u"index.html#"_s);
    QTest::keyClick(&Page(), Qt::Key_Right, Qt::AltModifier);
    EXPECT_EQ(Place(), u"boxes.html#top"_s);
    QTest::keyClick(&Page(), Qt::Key_Home, Qt::AltModifier);
    EXPECT_EQ(Place(), u"index.html#"_s);
}

// The program's fonts are told in pixels, a desktop's in points.
TEST_F(HelpWindowTest, Letters_AreMadeLargerAndSmaller)
{
    QFont inPixels;
    inPixels.setPixelSize(15);
    QFont inPoints;
    inPoints.setPointSize(11);
    for (const QFont& font : {inPixels, inPoints}) {
        OpenHelp(SmallManual);
        Window().setFont(font);
        const int usual = Page().fontInfo().pixelSize();
        QTest::keyClick(&Page(), Qt::Key_Plus, Qt::ControlModifier);
        EXPECT_GT(Page().fontInfo().pixelSize(), usual);
        QTest::keyClick(&Page(), Qt::Key_0, Qt::ControlModifier);
        EXPECT_EQ(Page().fontInfo().pixelSize(), usual);
        QTest::keyClick(&Page(), Qt::Key_Minus, Qt::ControlModifier);
        EXPECT_LT(Page().fontInfo().pixelSize(), usual);
        QTest::keyClick(&Page(), Qt::Key_0, Qt::ControlModifier);
    }
}

TEST_F(HelpWindowTest, Letters_StayReadable_HoweverOftenTheyAreMadeSmaller)
{
    OpenHelp(SmallManual);
    for (int press = 0; press < 40; ++press)
        QTest::keyClick(&Page(), Qt::Key_Minus, Qt::ControlModifier);
    EXPECT_GE(Page().fontInfo().pixelSize(), 6);
}

TEST_F(HelpWindowTest, DarkDesktop_HasADarkManual_AndStaysOnItsPage)
{
    OpenHelp(SmallManual);
    ClickEntry(u"Boxes"_s);
    const auto noteLightness = [] {
        const QTextBlock note = Page().document()->find(u"Mind"_s).block();
        return note.blockFormat().background().color().lightness();
    };
    const auto linkLightness = [] {
        return Page().document()->find(u"On to the"_s).charFormat().foreground().color().lightness();
    };
    EXPECT_GT(noteLightness(), 200);
    EXPECT_LT(linkLightness(), 150);
    QPalette dark = Window().palette();
    dark.setColor(QPalette::Base, QColor(30, 30, 30));
    dark.setColor(QPalette::Text, QColor(230, 230, 230));
    Window().setPalette(dark);
    EXPECT_LT(noteLightness(), 80);
    EXPECT_GT(linkLightness(), 150);
    EXPECT_EQ(Place(), u"boxes.html#top"_s);
}

TEST_F(HelpWindowTest, ScreenReaders_AreToldWhatEachPartIs)
{
    OpenHelp(SmallManual);
    EXPECT_EQ(Page().accessibleName(), u"Page"_s);
    EXPECT_EQ(Contents().accessibleName(), u"Contents"_s);
    EXPECT_EQ(Search().accessibleName(), u"Search the help"_s);
    EXPECT_EQ(Hits().accessibleName(), u"Found"_s);
}

TEST_F(HelpWindowTest, WholeManual_EveryEntryLeadsToItsPage)
{
    OpenHelp(WholeManual);
    int entries = 0;
    for (QTreeWidgetItemIterator entry(&Contents()); *entry; ++entry, ++entries) {
        emit Contents().itemActivated(*entry, 0);
        const QString title = (*entry)->parent() && !(*entry)->parent()->parent()
                                  ? (*entry)->text(0) + u" - Lineforge Help"_s
                                  : Window().windowTitle();
        EXPECT_EQ(Window().windowTitle(), title);
        EXPECT_TRUE(Page().toPlainText().contains((*entry)->text(0))) << (*entry)->text(0).toStdString();
    }
    EXPECT_GT(entries, 100) << "chapters, pages and sections";
}

TEST_F(HelpWindowTest, LeavesRoomForFrameAndPanel_HoweverLargeTheLetters)
{
    const QFont usual = QApplication::font();
    QFont large = usual;
    large.setPixelSize(40);
    QApplication::setFont(large);
    OpenHelp(WholeManual);
    QApplication::setFont(usual);
    constexpr int frameAndPanel = 80;
    EXPECT_EQ(Window().height(), Window().screen()->availableSize().height() - frameAndPanel);
}

TEST_F(HelpWindowTest, WholeManual_FitsOnASmallScreen)
{
    OpenHelp(WholeManual);
    Window().resize(800, 600);
    QCoreApplication::processEvents();
    EXPECT_EQ(Window().size(), QSize(800, 600));
    for (QTreeWidgetItemIterator entry(&Contents()); *entry; ++entry) {
        emit Contents().itemActivated(*entry, 0);
        EXPECT_EQ(Page().horizontalScrollBar()->maximum(), 0) << Place().toStdString();
    }
}
} // namespace

} // namespace lineforge
