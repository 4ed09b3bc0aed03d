#include "qt/Dialogs.h"
#include "qt/WindowTest.h"
#include "qt/dialogs/QtPrompts.h"
#include "qt/machine/QtPrintSystem.h"
#include "support/TemporaryHome.h"

#include <QColorDialog>
#include <QFileDialog>
#include <QFontDatabase>
#include <QFontDialog>
#include <QInputDialog>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QRasterWindow>
#include <QScreen>
#include <QTest>

#include <stdexcept>

namespace lineforge
{

using namespace Qt::StringLiterals;

namespace
{
struct PromptsTest : WindowTest {
    Prompts& Ask() { return Machine().Bundle().Prompts; }
};

struct BoxRow {
    Buttons Set;
    QMessageBox::Icon Icon;
    std::vector<QMessageBox::StandardButton> Shown;
    Answer ByEnter;
    Answer ByEscape;
};

struct MessageBoxTest : PromptsTest, testing::WithParamInterface<BoxRow> {
    Answer AskAndMeet(const std::function<void(QMessageBox&)>& meet)
    {
        const NextDialog dialog([&meet](QDialog& box) { meet(AsMessageBox(box)); });
        return Ask().MsgBox(u"The title"_s, u"First <b>line</b>\nSecond & last"_s, GetParam().Set);
    }
};

TEST_P(MessageBoxTest, ShowsTitle_PlainText_IconAndButtonsOfItsSet)
{
    const BoxRow& row = GetParam();
    AskAndMeet([&row](QMessageBox& box) {
        EXPECT_EQ(box.windowTitle(), u"The title"_s);
        EXPECT_EQ(box.text(), u"First <b>line</b>\nSecond & last"_s);
        EXPECT_EQ(box.textFormat(), Qt::PlainText);
        EXPECT_EQ(box.icon(), row.Icon);
        EXPECT_EQ(box.buttons().size(), static_cast<qsizetype>(row.Shown.size()));
        for (const auto button : row.Shown)
            EXPECT_NE(box.button(button), nullptr) << button;
        EXPECT_TRUE(box.isModal());
        box.reject();
    });
}

TEST_P(MessageBoxTest, EnterPressesTheDefault)
{
    EXPECT_EQ(AskAndMeet([](QMessageBox& box) { PressKey(box, Qt::Key_Return); }), GetParam().ByEnter);
}

TEST_P(MessageBoxTest, EscapeAndTheFrameRefuse)
{
    EXPECT_EQ(AskAndMeet([](QMessageBox& box) { PressKey(box, Qt::Key_Escape); }), GetParam().ByEscape);
    EXPECT_EQ(AskAndMeet([](QMessageBox& box) { box.close(); }), GetParam().ByEscape);
}

TEST_P(MessageBoxTest, TheLastButtonAnswersItself)
{
    const auto last = GetParam().Shown.back();
    EXPECT_EQ(AskAndMeet([last](QMessageBox& box) { Press(box, last); }), GetParam().ByEscape);
}

constexpr auto ok = QMessageBox::Ok;
constexpr auto cancel = QMessageBox::Cancel;
constexpr auto yes = QMessageBox::Yes;
constexpr auto no = QMessageBox::No;

INSTANTIATE_TEST_SUITE_P(
    Sets, MessageBoxTest,
    testing::Values(
        BoxRow{Buttons::Plain, QMessageBox::NoIcon, {ok}, Answer::Ok, Answer::Ok},
        BoxRow{Buttons::Error, QMessageBox::Critical, {ok}, Answer::Ok, Answer::Ok},
        BoxRow{Buttons::ErrorYesNo, QMessageBox::Critical, {yes, no}, Answer::Yes, Answer::No},
        BoxRow{Buttons::QuestionOkCancel, QMessageBox::Question, {ok, cancel}, Answer::Ok, Answer::Cancel},
        BoxRow{Buttons::QuestionYesNo, QMessageBox::Question, {yes, no}, Answer::Yes, Answer::No},
        BoxRow{Buttons::Information, QMessageBox::Information, {ok}, Answer::Ok, Answer::Ok},
        BoxRow{Buttons::InformationOkCancel, QMessageBox::Information, {ok, cancel}, Answer::Ok, Answer::Cancel},
        BoxRow{Buttons::InformationYesNo, QMessageBox::Information, {yes, no}, Answer::Yes, Answer::No},
        BoxRow{Buttons::InformationRetryCancel,
               QMessageBox::Information,
               {QMessageBox::Retry, cancel},
               Answer::Retry,
               Answer::Cancel},
        BoxRow{Buttons::QuestionYesNoDefaultNo, QMessageBox::Question, {yes, no}, Answer::No, Answer::No}),
    [](const testing::TestParamInfo<BoxRow>& row) { return std::to_string(static_cast<int>(row.param.Set)); });

TEST_F(PromptsTest, ABoxStandsAboveTheActiveWindow)
{
    struct Behind : Form {
        Behind() : Form(u"Behind", u"Behind", {6000, 3000}) {}
    };
    Window<Behind> behind(System());
    behind->Show();
    Activate(*behind);
    const QWidget* parent = nullptr;
    const NextDialog dialog([&parent](QDialog& box) {
        parent = box.parentWidget();
        box.reject();
    });
    Ask().MsgBox(u"t"_s, u"x"_s, Buttons::Plain);
    EXPECT_EQ(parent, &ViewOf(*behind));
}

// Half of what the screen of the tests has room for, and more than the toolkit gives a text there by itself.
TEST_F(PromptsTest, ALineOfAMessage_IsNotBrokenWhereThereIsRoomForIt)
{
    const QString line(20, u'H');
    const NextDialog dialog([&line](QDialog& box) {
        auto* label = box.findChild<QLabel*>(u"qt_msgbox_label"_s);
        ASSERT_TRUE(label);
        EXPECT_GE(label->width(), label->fontMetrics().horizontalAdvance(line));
        EXPECT_LT(label->height(), 2 * label->fontMetrics().height());
        EXPECT_TRUE(box.screen()->availableGeometry().contains(box.geometry()));
        box.reject();
    });
    Ask().MsgBox(u"t"_s, line, Buttons::Information);
}

TEST_F(PromptsTest, TheFileDialog_HasRoomForNamesAndDates)
{
    const NextDialog dialog([](QDialog& box) {
        const int line = box.fontMetrics().lineSpacing();
        EXPECT_GE(box.width(), 50 * line);
        EXPECT_GE(box.height(), 30 * line);
        box.reject();
    });
    Ask().OpenFile({u"t"_s, u"Texts (*.txt)|*.txt"_s});
}

TEST_F(PromptsTest, InputBoxGivesWhatWasEntered)
{
    const NextDialog next([](QDialog& dialog) {
        auto& box = dynamic_cast<QInputDialog&>(dialog);
        EXPECT_EQ(box.windowTitle(), u"The title"_s);
        EXPECT_EQ(box.labelText(), u"<i>Which</i> name?"_s);
        EXPECT_EQ(box.findChild<QLabel*>()->textFormat(), Qt::PlainText);
        box.setTextValue(u" Smiths "_s);
        box.accept();
    });
    EXPECT_EQ(Ask().InputBox(u"The title"_s, u"<i>Which</i> name?"_s), u" Smiths "_s);
}

TEST_F(PromptsTest, InputBoxGivesOneLine_WhateverWasPasted)
{
    const NextDialog next([](QDialog& dialog) {
        auto& box = dynamic_cast<QInputDialog&>(dialog);
        box.setTextValue(u"first\nsecond\r\nthird\u2028fourth"_s);
        box.accept();
    });
    EXPECT_EQ(Ask().InputBox(u"t"_s, u"p"_s), u"first second third fourth"_s);
}

TEST_F(PromptsTest, InputBoxCancelledGivesNothing)
{
    const NextDialog next([](QDialog& dialog) {
        dynamic_cast<QInputDialog&>(dialog).setTextValue(u"typed"_s);
        PressKey(dialog, Qt::Key_Escape);
    });
    EXPECT_EQ(Ask().InputBox(u"t"_s, u"p"_s), QString());
}

TEST_F(PromptsTest, TheColourDialog_OpensOnThePresentColour_AndGivesTheChosenOne)
{
    const NextDialog next([](QDialog& dialog) {
        auto& box = dynamic_cast<QColorDialog&>(dialog);
        EXPECT_TRUE(box.isModal());
        EXPECT_TRUE(box.testOption(QColorDialog::DontUseNativeDialog));
        EXPECT_EQ(box.currentColor(), QColor(10, 20, 30));
        box.setCurrentColor(QColor(200, 100, 50));
        PressKey(dialog, Qt::Key_Return);
    });
    EXPECT_EQ(Ask().PickColour(Rgb(10, 20, 30)), Rgb(200, 100, 50));
}

TEST_F(PromptsTest, TheColourDialogCancelled_GivesNothing)
{
    const NextDialog next([](QDialog& dialog) {
        dynamic_cast<QColorDialog&>(dialog).setCurrentColor(Qt::red);
        PressKey(dialog, Qt::Key_Escape);
    });
    EXPECT_EQ(Ask().PickColour(Black), std::nullopt);
}

// A window in front that isn't one of the program's own, as another program's would be.
struct OtherProgram {
    OtherProgram()
    {
        Window.show();
        Window.requestActivate();
        if (!QTest::qWaitFor([] { return !QApplication::activeWindow(); }))
            throw std::runtime_error("the program's window stays in front");
    }
    QRasterWindow Window;
};

TEST_F(PromptsTest, ABoxBelongsToTheWindowUsedLast_WhileAnotherProgramIsInUse)
{
    QWidget first;
    QWidget last;
    for (QWidget* window : {&first, &last}) {
        window->show();
        window->activateWindow();
        ASSERT_TRUE(QTest::qWaitForWindowActive(window));
    }
    const OtherProgram other;
    {
        const NextDialog next([&last](QDialog& dialog) {
            EXPECT_EQ(dialog.parentWidget(), &last);
            dialog.reject();
        });
        Ask().MsgBox(u"t"_s, u"text"_s, Buttons::Information);
    }
    last.showMinimized();
    const NextDialog next([&first](QDialog& dialog) {
        EXPECT_EQ(dialog.parentWidget(), &first) << "what belongs to a minimised window may be hidden with it";
        dialog.reject();
    });
    Ask().MsgBox(u"t"_s, u"text"_s, Buttons::Information);
}

// A family that every machine of the tests has.
QString SomeFamily()
{
    return QFontDatabase::families().constFirst();
}

TEST_F(PromptsTest, TheFontDialog_OpensOnThePresentFont_AndGivesTheChosenOne)
{
    const NextDialog next([](QDialog& dialog) {
        auto& box = dynamic_cast<QFontDialog&>(dialog);
        EXPECT_TRUE(box.isModal());
        EXPECT_TRUE(box.testOption(QFontDialog::DontUseNativeDialog));
        EXPECT_EQ(box.currentFont().family(), SomeFamily());
        EXPECT_EQ(box.currentFont().pointSize(), 12);
        QFont other = box.currentFont();
        other.setPointSize(18);
        box.setCurrentFont(other);
        box.accept();
    });
    EXPECT_EQ(Ask().PickFont({SomeFamily(), 12}), (TextFont{SomeFamily(), 18}));
}

TEST_F(PromptsTest, TheFontDialog_LeftAsItOpened_KeepsTheStyle_WhateverItsNameInTheFamily)
{
    for (const QString& family : QFontDatabase::families())
        for (const bool isBold : {false, true}) {
            SCOPED_TRACE(family.toStdString());
            const TextFont present{family, 12, isBold, false};
            const NextDialog next([](QDialog& dialog) { dialog.accept(); });
            EXPECT_EQ(Ask().PickFont(present), present);
        }
}

TEST_F(PromptsTest, TheFontDialog_OpensOnThePlainStyle_WhateverItsNameInTheFamily)
{
    for (const QString& family : QFontDatabase::families()) {
        const QStringList styles = QFontDatabase::styles(family);
        const auto isPlain = [&family](const QString& style) {
            const QFont font = QFontDatabase::font(family, style, 12);
            return !font.bold() && !font.italic();
        };
        if (std::none_of(styles.begin(), styles.end(), isPlain))
            continue;
        const NextDialog next([&family](QDialog& dialog) {
            const QFont shown = dynamic_cast<QFontDialog&>(dialog).currentFont();
            EXPECT_FALSE(shown.bold() || shown.italic())
                << family.toStdString() << ", " << shown.styleName().toStdString();
            dialog.reject();
        });
        EXPECT_EQ(Ask().PickFont({family, 12}), std::nullopt);
    }
}

TEST_F(PromptsTest, TheFontDialogCancelled_GivesNothing)
{
    const NextDialog next([](QDialog& dialog) { PressKey(dialog, Qt::Key_Escape); });
    EXPECT_EQ(Ask().PickFont({SomeFamily(), 12}), std::nullopt);
}

TEST_F(PromptsTest, WhatTheFontDialogCannotShow_StaysAsItWasWhereTheUserLeavesIt)
{
    const TextFont present{u"No Such Family"_s, 8.25};
    {
        const NextDialog next([](QDialog& dialog) { dialog.accept(); });
        EXPECT_EQ(Ask().PickFont(present), present);
    }
    const NextDialog next([](QDialog& dialog) {
        auto& box = dynamic_cast<QFontDialog&>(dialog);
        QFont larger = box.currentFont();
        larger.setPointSize(20);
        box.setCurrentFont(larger);
        dialog.accept();
    });
    EXPECT_EQ(Ask().PickFont(present), (TextFont{u"No Such Family"_s, 20}));
}

struct FontStyleTest : PromptsTest, testing::WithParamInterface<std::pair<bool, bool>> {
    // A style of any family that is as bold and as slanted as the test wants.
    std::optional<QFont> FindFont()
    {
        for (const QString& family : QFontDatabase::families())
            for (const QString& style : QFontDatabase::styles(family))
                if (const QFont font = QFontDatabase::font(family, style, 9);
                    font.bold() == GetParam().first && font.italic() == GetParam().second)
                    return font;
        return std::nullopt;
    }
};

TEST_P(FontStyleTest, BoldAndItalic_AreThoseChosen)
{
    const std::optional<QFont> wanted = FindFont();
    ASSERT_TRUE(wanted);
    const NextDialog next([&wanted](QDialog& dialog) {
        dynamic_cast<QFontDialog&>(dialog).setCurrentFont(*wanted);
        dialog.accept();
    });
    const auto [bold, italic] = GetParam();
    EXPECT_EQ(Ask().PickFont({SomeFamily(), 20, !bold, !italic}), (TextFont{wanted->family(), 9, bold, italic}));
}

INSTANTIATE_TEST_SUITE_P(Styles, FontStyleTest,
                         testing::Values(std::pair(false, false), std::pair(true, false), std::pair(false, true),
                                         std::pair(true, true)));

struct OpenFileTest : testing::Test {
    TemporaryHome Home;
    QtEventLoop Loop;
    QtPrintSystem Printers;
    QtPrompts Ask{Loop, Printers, [this] { return Home.Path(); }};
};

TEST_F(OpenFileTest, AsksForAnExistingFile_StartingInTheCurrentDirectory)
{
    const QString path = Home.WriteFile(u"tree.mdb", "x");
    const NextDialog next([&](QDialog& dialog) {
        auto& box = dynamic_cast<QFileDialog&>(dialog);
        EXPECT_EQ(box.windowTitle(), u"Select File"_s);
        EXPECT_EQ(box.directory().canonicalPath(), QDir(Home.Path()).canonicalPath());
        EXPECT_EQ(box.nameFilters(), QStringList({u"DataBase (*.mdb)"_s, u"All Files (*)"_s}));
        EXPECT_EQ(box.fileMode(), QFileDialog::ExistingFile);
        box.selectFile(path);
        box.findChild<QLineEdit*>(u"fileNameEdit"_s)->setText(u"tree.mdb"_s);
        PressKey(dialog, Qt::Key_Return);
    });
    const auto chosen = Ask.OpenFile({u"Select File"_s, u"DataBase|*.mdb|All Files|*.*|"_s});
    ASSERT_TRUE(chosen);
    EXPECT_EQ(QFileInfo(*chosen).canonicalFilePath(), QFileInfo(path).canonicalFilePath());
}

TEST_F(OpenFileTest, CancelledGivesNothing)
{
    const NextDialog dialog([](QDialog& box) { PressKey(box, Qt::Key_Escape); });
    EXPECT_FALSE(Ask.OpenFile({u"Select File"_s, {}}));
}

struct SaveFileTest : OpenFileTest {
    std::optional<QString> Save(const QString& typed)
    {
        const NextDialog next([&](QDialog& dialog) {
            auto& box = dynamic_cast<QFileDialog&>(dialog);
            EXPECT_EQ(box.windowTitle(), u"Select Place"_s);
            EXPECT_EQ(box.acceptMode(), QFileDialog::AcceptSave);
            EXPECT_EQ(box.directory().canonicalPath(), QDir(Home.Path()).canonicalPath());
            EXPECT_EQ(box.nameFilters(), QStringList({u"DataBase (*.mdb)"_s, u"All Files (*)"_s}));
            box.findChild<QLineEdit*>(u"fileNameEdit"_s)->setText(typed);
            PressKey(dialog, Qt::Key_Return);
        });
        return Ask.SaveFile({u"Select Place"_s, u"DataBase|*.mdb|All Files|*.*|"_s});
    }
};

TEST_F(SaveFileTest, NameWithoutAnEnding_GetsTheFilters)
{
    EXPECT_EQ(Save(u"backup"_s), Home.Path(u"backup.mdb"));
    EXPECT_EQ(Save(u"backup.bak"_s), Home.Path(u"backup.bak"));
}

TEST_F(SaveFileTest, FileThatExists_IsTakenWithoutAQuestion)
{
    Home.WriteFile(u"backup.mdb", "older");

    EXPECT_EQ(Save(u"backup.mdb"_s), Home.Path(u"backup.mdb"));
    EXPECT_EQ(Home.ReadFile(u"backup.mdb"), "older");
}

TEST_F(SaveFileTest, CancelledGivesNothing)
{
    const NextDialog dialog([](QDialog& box) { PressKey(box, Qt::Key_Escape); });
    EXPECT_FALSE(Ask.SaveFile({u"Select Place"_s, {}}));
}
} // namespace

} // namespace lineforge
