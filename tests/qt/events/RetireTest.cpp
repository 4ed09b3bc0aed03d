#include "platform/canvas/PictureBox.h"
#include "platform/controls/DataControl.h"
#include "qt/Dialogs.h"
#include "qt/WindowTest.h"

#include <QDeadlineTimer>
#include <QListWidget>
#include <QPointer>
#include <QPushButton>
#include <QScrollBar>
#include <QTest>

namespace lineforge
{

using namespace Qt::StringLiterals;

namespace
{
// Tells when it goes.
struct MortalForm : Form {
    MortalForm() : Form(u"MortalForm", u"Mortal", {6000, 4000}) { List1.Items = QStringList{u"a"_s, u"b"_s}; }
    ~MortalForm()
    {
        if (Gone)
            ++*Gone;
    }
    int* Gone = nullptr;
    Button Command1{*this, u"Command1", {150, 150, 1200, 375}, u"Close"};
    CheckBox Check1{*this, u"Check1", {150, 600, 1500, 315}, u"Tick"};
    ListBox List1{*this, u"List1", {150, 1000, 1500, 1500}};
    ScrollBar VScroll1{*this, u"VScroll1", {5600, 0, 255, 3900}, 100, 1, 10};
    TextBox Text1{*this, u"Text1", {1800, 600, 1500, 315}};
    PictureBox Picture1{*this, u"Picture1", {3600, 150, 1500, 1500}};
};

struct RetireTest : WindowTest {
    int Gone = 0;
    Window<MortalForm> Mortal{System()};
    void SetUp() override
    {
        Mortal.Install = [this](MortalForm& form) { form.Gone = &Gone; };
        Mortal->Visible = true;
    }
    // A handler that unloads its own window, and still reads it afterwards.
    Event UnloadAndGoOn(QString& read)
    {
        return [this, &read, &form = *Mortal] {
            Mortal.Unload();
            ServeEvents();
            read = form.Caption.value();
        };
    }
};

TEST_F(RetireTest, TheWindowLeavesTheScreenAtOnce_AndGoesWithItsFormWhenTheLoopRuns)
{
    const QPointer<QWidget> view = &ViewOf(*Mortal);
    Mortal.Unload();
    ASSERT_TRUE(view);
    EXPECT_FALSE(view->isVisible());
    EXPECT_EQ(view->objectName(), QString());
    EXPECT_EQ(Gone, 0);
    PassEventLoop();
    EXPECT_FALSE(view);
    EXPECT_EQ(Gone, 1);
}

TEST_F(RetireTest, AFormThatWasNeverShownGoesAsWell)
{
    Window<MortalForm> hidden(System());
    hidden.Install = [this](MortalForm& form) { form.Gone = &Gone; };
    hidden.Load();
    hidden.Unload();
    PassEventLoop();
    EXPECT_EQ(Gone, 1);
}

TEST_F(RetireTest, FromAButton_TheHandlerGoesOnSafely)
{
    QString read;
    Mortal->Command1.Click = UnloadAndGoOn(read);
    QTest::mouseClick(&Find<QPushButton>(*Mortal, u"Command1"_s), Qt::LeftButton);
    EXPECT_EQ(read, u"Mortal"_s);
    EXPECT_EQ(Gone, 0);
    PassEventLoop();
    EXPECT_EQ(Gone, 1);
}

TEST_F(RetireTest, FromEveryOtherKindOfEvent)
{
    const std::vector<std::function<void()>> events{
        [this] {
            Mortal->Check1.Click = [this] { Mortal.Unload(); };
            QTest::mouseClick(&Find<QWidget>(*Mortal, u"Check1"_s), Qt::LeftButton, {}, {8, 8});
        },
        [this] {
            Mortal->List1.DblClick = [this] { Mortal.Unload(); };
            auto& list = Find<QListWidget>(*Mortal, u"List1"_s);
            const QPoint at = list.visualItemRect(list.item(1)).center();
            QTest::mouseDClick(ViewOf(*Mortal).windowHandle(), Qt::LeftButton, {},
                               list.viewport()->mapTo(&ViewOf(*Mortal), at));
        },
        [this] {
            Mortal->VScroll1.Change = [this] { Mortal.Unload(); };
            Find<QScrollBar>(*Mortal, u"VScroll1"_s).triggerAction(QAbstractSlider::SliderPageStepAdd);
        },
        [this] {
            Mortal->Text1.Click = [this] { Mortal.Unload(); };
            QTest::mouseClick(&Find<QWidget>(*Mortal, u"Text1"_s), Qt::LeftButton);
        },
        [this] {
            Mortal->Picture1.MouseDown = [this](int, int, double, double) { Mortal.Unload(); };
            QTest::mousePress(&Find<QWidget>(*Mortal, u"Picture1"_s), Qt::LeftButton);
        },
        [this] {
            Mortal->Click = [this] { Mortal.Unload(); };
            QTest::mouseClick(ViewOf(*Mortal).windowHandle(), Qt::LeftButton, {}, {200, 250});
        },
        [this] { ViewOf(*Mortal).close(); },
    };
    int expected = 0;
    for (const auto& event : events) {
        Mortal->Visible = true;
        event();
        EXPECT_FALSE(Mortal.IsLoaded()) << expected;
        ++expected;
        for (const QDeadlineTimer patience(5000); Gone < expected && !patience.hasExpired();)
            PassEventLoop();
        EXPECT_EQ(Gone, expected);
    }
}

TEST_F(RetireTest, InsideABoxThatWaits_TheFormStaysUntilTheOuterHandlerReturns)
{
    int goneInside = -1;
    QString read;
    Mortal->Command1.Click = [&, &form = *Mortal] {
        Mortal.Unload();
        const NextDialog dialog([&](QDialog& box) {
            ServeEvents();
            goneInside = Gone;
            Press(AsMessageBox(box), QMessageBox::Ok);
        });
        Machine().Bundle().Prompts.MsgBox(u"t"_s, u"x"_s, Buttons::Plain);
        read = form.Caption.value();
    };
    QTest::mouseClick(&Find<QPushButton>(*Mortal, u"Command1"_s), Qt::LeftButton);
    EXPECT_EQ(goneInside, 0);
    EXPECT_EQ(read, u"Mortal"_s);
    PassEventLoop();
    EXPECT_EQ(Gone, 1);
}

TEST_F(RetireTest, WhatIsUnloadedOutsideOfAnyWindowsEventLivesUntilRunReturns)
{
    System().Run([this] {
        Mortal.Unload();
        PassEventLoop();
        EXPECT_EQ(Gone, 0);
    });
    PassEventLoop();
    EXPECT_EQ(Gone, 1);
}

TEST_F(RetireTest, AWindowThatHasGoneFiresNothingMore)
{
    int clicks = 0;
    Mortal->Command1.Click = [&clicks] { ++clicks; };
    auto& button = Find<QPushButton>(*Mortal, u"Command1"_s);
    Mortal.Unload();
    button.click();
    EXPECT_EQ(clicks, 0);
}

TEST_F(RetireTest, MadeAgainInTheSameHandler_TheNewWindowIsTheOneFoundByName)
{
    Mortal->Command1.Click = [this] {
        Mortal.Unload();
        Mortal->Show();
    };
    Find<QPushButton>(*Mortal, u"Command1"_s).click();
    int named = 0;
    for (const QWidget* window : QApplication::topLevelWidgets())
        named += window->objectName() == u"MortalForm" ? 1 : 0;
    EXPECT_EQ(named, 1);
    EXPECT_TRUE(ViewOf(*Mortal).isVisible());
}

TEST_F(RetireTest, CloseAllTakesTheWindowsDown_AndTheFormsStayUsable)
{
    const QPointer<QWidget> view = &ViewOf(*Mortal);
    System().CloseAll();
    EXPECT_FALSE(view);
    Mortal->Caption = u"later"_s;
    Mortal->Show();
    Mortal->Picture1.Line({0, 0}, {100, 100});
    Mortal->VScroll1.Value = 5;
    EXPECT_EQ(System().WidgetOf(*Mortal), nullptr);
    EXPECT_EQ(Gone, 0);
}
} // namespace

} // namespace lineforge
