#include "editor/EditorTest.h"

#include <QAction>
#include <QFontDialog>
#include <QLineEdit>
#include <QPrintDialog>

namespace lineforge
{

using namespace Qt::StringLiterals;

namespace
{
using FormatTest = EditorTest;

TEST_F(FormatTest, WordWrap_IsOnAndCanBeTakenAway)
{
    EXPECT_EQ(Area().lineWrapMode(), QPlainTextEdit::WidgetWidth);
    EXPECT_TRUE(Find<QAction>(u"WordWrap"_s).isChecked());
    Choose(u"WordWrap"_s);
    EXPECT_EQ(Area().lineWrapMode(), QPlainTextEdit::NoWrap);
    Choose(u"WordWrap"_s);
    EXPECT_EQ(Area().lineWrapMode(), QPlainTextEdit::WidgetWidth);
}

TEST_F(FormatTest, WordWrap_PutsNothingIntoTheText)
{
    const QByteArray longLine = QByteArray("word ").repeated(500);
    OpenFile(u"a.txt", longLine);
    Choose(u"WordWrap"_s);
    Choose(u"WordWrap"_s);
    Choose(u"Save"_s);
    EXPECT_EQ(Home.ReadFile(u"a.txt"), longLine);
}

TEST_F(FormatTest, Font_IsTheChosenOne_AndNoChangeOfTheText)
{
    const NextDialog next([](QDialog& dialog) {
        auto& box = dynamic_cast<QFontDialog&>(dialog);
        QFont larger = box.currentFont();
        larger.setPointSize(20);
        box.setCurrentFont(larger);
        dialog.accept();
    });
    Choose(u"Font"_s);
    EXPECT_EQ(Area().font().pointSize(), 20);
    EXPECT_FALSE(IsModified());
}

TEST_F(FormatTest, FontCancelled_Stays)
{
    const QFont before = Area().font();
    const NextDialog next([](QDialog& dialog) { PressKey(dialog, Qt::Key_Escape); });
    Choose(u"Font"_s);
    EXPECT_EQ(Area().font(), before);
}

TEST_F(FormatTest, Print_PutsTheTextOnPaper)
{
    OpenFile(u"a.txt", "hello");
    const QString paper = Home.Path(u"paper.pdf");
    const NextDialog next([&paper](QDialog& dialog) {
        auto* name = dialog.findChild<QLineEdit*>(u"filename"_s);
        ASSERT_NE(name, nullptr);
        name->setText(paper);
        dialog.accept();
    });
    Choose(u"Print"_s);
    EXPECT_TRUE(Home.ReadFile(u"paper.pdf").startsWith("%PDF"));
}

TEST_F(FormatTest, PrintCancelled_PrintsNothing)
{
    const Tree before = Home.Snapshot();
    const NextDialog next([](QDialog& dialog) { PressKey(dialog, Qt::Key_Escape); });
    Choose(u"Print"_s);
    EXPECT_EQ(Differences(before, Home.Snapshot()), QStringList());
}

TEST_F(FormatTest, About_TellsWhatThisIs)
{
    const NextDialog next(Answering(QMessageBox::Ok, u"Lineforge Editor"_s));
    Choose(u"About"_s);
}
} // namespace

} // namespace lineforge
