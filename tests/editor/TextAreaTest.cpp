#include "editor/TextArea.h"

#include "support/Printing.h"

#include <QApplication>
#include <QClipboard>
#include <QTest>

#include <gmock/gmock.h>

namespace lineforge
{

using namespace Qt::StringLiterals;

namespace
{
TEST(TextAreaTest, Text_ComesBackCharacterForCharacter)
{
    TextArea area;
    for (const QString& text :
         {u""_s, u"\n"_s, u"a\n\nb\n"_s, u"no\u00A0break"_s, u"line\u2028separator"_s, u"paragraph\u2029separator"_s,
          u"object\uFFFC, mark\uFEFF"_s, u"\t\f\v\x1B"_s, u"tree \U0001F333"_s, u"\u0081\u0085\u008D"_s}) {
        area.SetText(text);
        EXPECT_EQ(area.Text(), text);
    }
}

TEST(TextAreaTest, TextThatIsSet_StartsAnew)
{
    TextArea area;
    area.insertPlainText(u"before"_s);
    area.SetText(u"after"_s);
    EXPECT_FALSE(area.document()->isModified());
    EXPECT_FALSE(area.document()->isUndoAvailable());
}

TEST(TextAreaTest, ShiftEnter_IsALineLikeAnyOther)
{
    TextArea area;
    QTest::keyClicks(&area, u"a"_s);
    QTest::keyClick(&area, Qt::Key_Return, Qt::ShiftModifier);
    QTest::keyClicks(&area, u"b"_s);
    EXPECT_EQ(area.Text(), u"a\nb"_s);
}

TEST(TextAreaTest, WhatIsCopied_HasItsBlanksAndLines)
{
    TextArea area;
    area.SetText(u"a\u00A0b\nc"_s);
    area.selectAll();
    area.copy();
    EXPECT_EQ(QApplication::clipboard()->text(), u"a\u00A0b\nc"_s);
}

TEST(TextAreaTest, WhatIsPasted_LosesWhatNoTextFileMayHold)
{
    TextArea area;
    QString foreign = u"a?b\uFDD0\uFDD2\r\nc"_s;
    foreign[1] = QChar(0);
    QApplication::clipboard()->setText(foreign);
    area.paste();
    EXPECT_EQ(area.Text(), u"ab\nc"_s);
}
} // namespace

} // namespace lineforge
