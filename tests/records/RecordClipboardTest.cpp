#include "records/RecordClipboard.h"

#include "records/RecordTest.h"

#include <QMap>

namespace lineforge
{
namespace
{

using forms::Form3;
using testing::Range;
using testing::Values;
using testing::WithParamInterface;

constexpr TextBox Form3::*boxes[] = {&Form3::Text1,  &Form3::Text2,  &Form3::Text3,  &Form3::Text4,  &Form3::Text5,
                                     &Form3::Text6,  &Form3::Text7,  &Form3::Text8,  &Form3::Text9,  &Form3::Text10,
                                     &Form3::Text11, &Form3::Text12, &Form3::Text13, &Form3::Text14, &Form3::Text15,
                                     &Form3::Text16, &Form3::Text17, &Form3::Text18, &Form3::Text19, &Form3::Text20,
                                     &Form3::Text21, &Form3::Text22, &Form3::Text23, &Form3::Text24};

class RecordClipboardTest : public RecordTest
{
protected:
    RecordClipboardTest() { GivenRecordForm(); }

    // Selects by mouse: the click ends it.
    static void Select(TextBox& box, int start, QStringView text)
    {
        box.SelStart = start;
        box.SelText = text.toString();
        Fire(box.Click);
    }
    static void LoseSelection(TextBox& box, int caret)
    {
        box.SelStart = caret;
        box.SelText.clear();
    }

    TextBox& Surname() { return P.Form3->Text2; }
    QString SurnameText() { return Surname().Text; }
    std::optional<QString>& Text() { return Machine.Clipboard.Text; }
};

TEST_F(RecordClipboardTest, Copy_PutsTheClickedSelectionOnTheClipboard_InThePlaceOfAll)
{
    Machine.Clipboard.Picture = QImage(3, 3, QImage::Format_RGB32);
    Select(Surname(), 1, u"mit");

    P.Form3->mnuCopy.Click();

    EXPECT_EQ(Text(), u"mit"_s);
    EXPECT_FALSE(Machine.Clipboard.HasPicture());
    EXPECT_EQ(SurnameText(), u"Smith"_s);
}

TEST_F(RecordClipboardTest, CopyBeforeAnyClick_CopiesEmptyText)
{
    Text() = u"before"_s;

    P.Form3->mnuCopy.Click();

    EXPECT_EQ(Text(), QString());
}

TEST_F(RecordClipboardTest, SelectionByKeyboard_IsNotNoticed)
{
    Select(Surname(), 1, u"mit");
    Surname().SelStart = 0;
    Surname().SelText = u"Smith"_s;

    P.Form3->mnuCopy.Click();

    EXPECT_EQ(Text(), u"mit"_s);
}

TEST_F(RecordClipboardTest, LastClickedBoxCounts)
{
    Select(Surname(), 1, u"mit");
    Select(P.Form3->Text3, 0, u"Jo");

    P.Form3->mnuCut.Click();

    EXPECT_EQ(Text(), u"Jo"_s);
    EXPECT_EQ(SurnameText(), u"Smith"_s);
    EXPECT_EQ(P.Form3->Text3.Text.value(), u"hn"_s);
}

TEST_F(RecordClipboardTest, Cut_TakesTheSelectionOut_AndLeavesTheCaretThere)
{
    Select(Surname(), 1, u"mit");

    P.Form3->mnuCut.Click();

    EXPECT_EQ(Text(), u"mit"_s);
    EXPECT_EQ(SurnameText(), u"Sh"_s);
    EXPECT_EQ(Surname().SelStart, 1);
}

TEST_F(RecordClipboardTest, CutOnABoxThatLostItsSelection_RemovesNothing_ButTheStoredTextIsCopied)
{
    Select(Surname(), 1, u"mit");
    LoseSelection(Surname(), 3);

    P.Form3->mnuCut.Click();

    EXPECT_EQ(Text(), u"mit"_s);
    EXPECT_EQ(SurnameText(), u"Smith"_s);
}

TEST_F(RecordClipboardTest, CutOnABoxThatLostItsSelection_StoresNothing)
{
    Select(Surname(), 1, u"mit");
    LoseSelection(Surname(), 3);

    P.Form3->mnuCut.Click();

    // Another program's text would be written over if the box counted as edited.
    Records(P.Form3).Rest();
    SqliteFile(Home.Path(u"LfgDat_A/LfgDat_A.mdb")).Execute("UPDATE Tree99 SET Surname = 'Brown' WHERE File = 'A001'");
    Records(P.Form3).MoveNext();
    EXPECT_EQ(Text(), u"mit"_s);
    EXPECT_EQ(Stored("Surname"), u"Brown"_s);
}

// What has never been filled in stays so.
TEST_F(RecordClipboardTest, CutWithoutASelection_LeavesTheStoredField)
{
    Records(P.Form3).MoveLast();
    Select(Surname(), 0, u"");

    P.Form3->mnuCut.Click();

    Records(P.Form3).MoveFirst();
    EXPECT_EQ(Stored("Surname", "A003"), std::nullopt);
}

TEST_F(RecordClipboardTest, PasteOfNothingWithoutSelection_LeavesTheStoredField)
{
    Records(P.Form3).MoveLast();
    Text() = QString();
    Select(Surname(), 0, u"");

    P.Form3->mnuPaste.Click();

    Records(P.Form3).MoveFirst();
    EXPECT_EQ(Stored("Surname", "A003"), std::nullopt);
}

TEST_F(RecordClipboardTest, PasteOfNothingAtAll_DoesNothing)
{
    Machine.Clipboard.Clear();
    Select(Surname(), 0, u"Smith");

    P.Form3->mnuPaste.Click();

    EXPECT_EQ(SurnameText(), u"Smith"_s);
}

TEST_F(RecordClipboardTest, CutWithAnotherSelectionByNow_RemovesThat_AndCopiesTheStoredText)
{
    Select(Surname(), 1, u"mit");
    Surname().SelStart = 0;
    Surname().SelText = u"S"_s;

    P.Form3->mnuCut.Click();

    EXPECT_EQ(Text(), u"mit"_s);
    EXPECT_EQ(SurnameText(), u"mith"_s);
}

TEST_F(RecordClipboardTest, CutBeforeAnyClick_RemovesNothing)
{
    Surname().SelText = u"Smith"_s;

    P.Form3->mnuCut.Click();

    EXPECT_EQ(Text(), QString());
    EXPECT_EQ(SurnameText(), u"Smith"_s);
}

TEST_F(RecordClipboardTest, Paste_ReplacesTheSelection)
{
    Text() = u"yt"_s;
    Select(Surname(), 2, u"it");

    P.Form3->mnuPaste.Click();

    EXPECT_EQ(SurnameText(), u"Smyth"_s);
    EXPECT_EQ(Text(), u"yt"_s);
}

TEST_F(RecordClipboardTest, PasteWithoutSelection_GoesInAtTheCaret)
{
    Text() = u"--"_s;
    Select(Surname(), 2, u"");

    P.Form3->mnuPaste.Click();
    P.Form3->mnuPaste.Click();

    EXPECT_EQ(SurnameText(), u"Sm----ith"_s);
    EXPECT_EQ(Surname().SelStart, 6);
}

TEST_F(RecordClipboardTest, PasteOfMoreThanTheBoxTakes_IsCutShort)
{
    Text() = QString(100, u'x');
    Select(Surname(), 0, u"Smith");

    P.Form3->mnuPaste.Click();

    EXPECT_EQ(SurnameText(), QString(30, u'x'));
}

// As a box that is typed in does.
TEST_F(RecordClipboardTest, PasteWhereNoRecordStands_DoesNothing)
{
    Select(Surname(), 0, u"");
    Records(P.Form3).MoveLast();
    Records(P.Form3).MoveNext();
    Text() = u"Brown"_s;

    P.Form3->mnuPaste.Click();

    EXPECT_EQ(SurnameText(), QString());
    EXPECT_EQ(Text(), u"Brown"_s);
}

TEST_F(RecordClipboardTest, PasteIntoATextBeyondTheLimit_TakesItsSelectionAlone)
{
    const QString stored(40, u's');
    Records(P.Form3).Edit();
    Records(P.Form3).Put(u"Surname", stored);
    Records(P.Form3).Update();
    Select(Surname(), 0, u"ss");
    Text() = u"abc"_s;

    P.Form3->mnuPaste.Click();

    EXPECT_EQ(SurnameText(), QString(u"ab"_s + stored.mid(2)));
}

TEST_F(RecordClipboardTest, PasteOfAPicture_DoesNothing)
{
    Machine.Clipboard.Picture = QImage(3, 3, QImage::Format_RGB32);
    Select(Surname(), 0, u"Smith");

    P.Form3->mnuPaste.Click();

    EXPECT_EQ(SurnameText(), u"Smith"_s);
}

TEST_F(RecordClipboardTest, PasteOfEmptyText_RemovesTheSelection)
{
    Text() = QString();
    Select(Surname(), 1, u"mit");

    P.Form3->mnuPaste.Click();

    EXPECT_EQ(SurnameText(), u"Sh"_s);
}

TEST_F(RecordClipboardTest, PastedText_IsStoredLikeTypedText_AndCutTextToo)
{
    Text() = u"Ålander"_s;
    Select(Surname(), 0, u"Smith");
    P.Form3->mnuPaste.Click();
    Select(P.Form3->Text3, 2, u"hn");
    P.Form3->mnuCut.Click();
    EXPECT_EQ(Stored("Surname"), u"Smith"_s);

    Records(P.Form3).MoveNext();

    EXPECT_EQ(Stored("Surname"), u"Ålander"_s);
    EXPECT_EQ(Stored("Forename"), u"Jo"_s);
}

// A number of a box, as the last click has left it.
class BoxNumberTest : public RecordClipboardTest, public WithParamInterface<int>
{
protected:
    BoxNumberTest()
    {
        for (TextBox Form3::*member : boxes) {
            TextBox& box = (*P.Form3).*member;
            box.Text = u"abc"_s;
            box.SelStart = 1;
            box.SelText = u"b"_s;
        }
        P.Record.ClipSource = GetParam();
    }
    // Every box but those of the number has its text still.
    void ExpectOnly(int served, QStringView text)
    {
        int number = 0;
        for (TextBox Form3::*member : boxes)
            EXPECT_EQ(((*P.Form3).*member).Text.value(), ++number == served ? text.toString() : u"abc"_s) << number;
    }
};

class ServedBoxTest : public BoxNumberTest
{
};

TEST_P(ServedBoxTest, CutTakesFromThatBoxAlone)
{
    P.Form3->mnuCut.Click();

    ExpectOnly(GetParam(), u"ac");
}

TEST_P(ServedBoxTest, PasteGoesIntoThatBoxAlone)
{
    Text() = u"xyz"_s;

    P.Form3->mnuPaste.Click();

    ExpectOnly(GetParam(), u"axyzc");
}

INSTANTIATE_TEST_SUITE_P(Numbers, ServedBoxTest, Range(1, 23));

class UnservedBoxTest : public BoxNumberTest
{
};

TEST_P(UnservedBoxTest, CutAndPasteChangeNoBox)
{
    Text() = u"xyz"_s;
    P.Form3->mnuPaste.Click();
    P.Form3->mnuCut.Click();

    ExpectOnly(GetParam() > 0 ? 0 : GetParam(), u"abc");
}

INSTANTIATE_TEST_SUITE_P(Numbers, UnservedBoxTest, Values(0, -1, 23, 24));

// The whole record as text.
class CopyRecordTest : public RecordClipboardTest
{
protected:
    void Store(QStringView field, const QString& text)
    {
        SqliteFile(Home.Path(u"LfgDat_A/LfgDat_A.mdb"))
            .Query("UPDATE Tree99 SET " + field.toUtf8() + " = ?1 WHERE File = 'A003'", {text});
    }

    QByteArray Copied()
    {
        Records(P.Form3).MoveFirst();
        Records(P.Form3).MoveLast();
        Click(P.Form3->mnuCopyRecToClip.Click);
        EXPECT_EQ(ExitCode(), std::nullopt);
        return Text().value_or(u"nothing"_s).toUtf8();
    }

    // Of the record Peter, whose other fields hold nothing, with these lines instead of those of their labels.
    static QByteArray TextWith(const QMap<QString, QString>& values)
    {
        QString text;
        for (const QStringView label : labels) {
            const QString name = label.trimmed().toString();
            const bool isKnown = values.contains(name);
            text += label;
            text += isKnown ? values[name] : ValueOfPeter(name);
            text += u'\n';
        }
        return text.toUtf8();
    }
    static QString ValueOfPeter(QStringView label)
    {
        if (label == u"Data Ref:")
            return u"A003"_s;
        if (label == u"ForeNames:")
            return u"Peter"_s;
        if (label == u"Gender:")
            return u"Male"_s;
        const bool isLong = label == u"Education:" || label == u"Profession:" || label.startsWith(u"Notes(");
        return isLong ? u" "_s : QString();
    }

    static constexpr QStringView labels[] = {
        u"           Data Ref:      ", u"           Surname:       ", u"           ForeNames:     ",
        u"           Maiden Name:   ", u"           Gender:        ", u"           Nationality:   ",
        u"           Father Rec:    ", u"           Mother Rec:    ", u"           Birth date:    ",
        u"           Birth Place:   ", u"           Spouse:        ", u"           Children:      ",
        u"           Partner:       ", u"           Wedding Date:  ", u"           Wedding Place: ",
        u"           Prev.Children: ", u"           Education:     ", u"           Profession:    ",
        u"           Deceased:      ", u"           Birth Cert.    ", u"           Marriage Cert: ",
        u"           Death Cert:    ", u"           Notes(1):      ", u"           Notes(2):      "};
    static inline const QString Indent = QString(33, u' ');
};

TEST_F(CopyRecordTest, EveryField_HasItsLine)
{
    for (const QString& field : RecordFields())
        if (field != u"File")
            Store(field, u"the "_s + field);

    EXPECT_EQ(Copied(), "           Data Ref:      A003\n"
                        "           Surname:       the Surname\n"
                        "           ForeNames:     the Forename\n"
                        "           Maiden Name:   the Maiden\n"
                        "           Gender:        the Gender\n"
                        "           Nationality:   the Nationality\n"
                        "           Father Rec:    the FatherRec\n"
                        "           Mother Rec:    the MotherRec\n"
                        "           Birth date:    the BirthDate\n"
                        "           Birth Place:   the BirthPlace\n"
                        "           Spouse:        the Spouse\n"
                        "           Children:      the Children\n"
                        "           Partner:       the Partner\n"
                        "           Wedding Date:  the WedDate\n"
                        "           Wedding Place: the Wedding\n"
                        "           Prev.Children: the PrevChildren\n"
                        "           Education:     the Education \n"
                        "           Profession:    the Profession \n"
                        "           Deceased:      the Deceased\n"
                        "           Birth Cert.    the BirthCertificate\n"
                        "           Marriage Cert: the MarriageCertificate\n"
                        "           Death Cert:    the DeathCertificate\n"
                        "           Notes(1):      the Medical \n"
                        "           Notes(2):      the Notes \n");
}

TEST_F(CopyRecordTest, NullFields_LeaveTheLabels)
{
    SqliteFile(Home.Path(u"LfgDat_A/LfgDat_A.mdb"))
        .Execute("UPDATE Tree99 SET Forename = NULL, Gender = NULL WHERE File = 'A003'");

    EXPECT_EQ(Copied(), TextWith({{u"ForeNames:"_s, {}}, {u"Gender:"_s, {}}}));
}

TEST_F(CopyRecordTest, EmptyFields_LookLikeNull)
{
    for (const QString& field : RecordFields()) {
        if (field != u"File")
            SqliteFile(Home.Path(u"LfgDat_A/LfgDat_A.mdb"))
                .Execute("UPDATE Tree99 SET " + field.toUtf8() + " = '' WHERE File = 'A003'");
    }

    EXPECT_EQ(Copied(), TextWith({{u"ForeNames:"_s, {}}, {u"Gender:"_s, {}}}));
}

TEST_F(CopyRecordTest, AccentedTexts_StayWhatTheyAre)
{
    Store(u"Surname", u"Ålander-Ωß"_s);
    Store(u"Notes", u"né à Zürich 😀"_s);

    EXPECT_EQ(Copied(), TextWith({{u"Surname:"_s, u"Ålander-Ωß"_s}, {u"Notes(2):"_s, u"né à Zürich 😀 "_s}}));
}

TEST_F(CopyRecordTest, LongValues_AreWrappedInTheFourLongFieldsAlone)
{
    const QString value = u"abcdef "_s.repeated(25).chopped(1); // 174 characters
    const QString line = u"abcdef "_s.repeated(11);             // 77, and the next word would be too long
    const QString wrapped = line + u'\n' + Indent + line + u'\n' + Indent + u"abcdef abcdef abcdef ";
    for (const QStringView field : {u"Education", u"Profession", u"Medical", u"Notes", u"Children"})
        Store(field, value);

    EXPECT_EQ(Copied(), TextWith({{u"Education:"_s, wrapped},
                                  {u"Profession:"_s, wrapped},
                                  {u"Notes(1):"_s, wrapped},
                                  {u"Notes(2):"_s, wrapped},
                                  {u"Children:"_s, value}}));
}

TEST_F(CopyRecordTest, CutFallsBehindTheEightiethCharacter_WhenThatIsABlank)
{
    const QString value = u"word "_s.repeated(30).chopped(1);
    const QString wrapped = u"word "_s.repeated(16) + u'\n' + Indent + u"word "_s.repeated(14);
    Store(u"Notes", value);

    EXPECT_EQ(Copied(), TextWith({{u"Notes(2):"_s, wrapped}}));
}

TEST_F(CopyRecordTest, ValueOf78Characters_IsOneLine)
{
    const QString value = u"abc "_s.repeated(19) + u"xy";
    Store(u"Notes", value);

    EXPECT_EQ(Copied(), TextWith({{u"Notes(2):"_s, value + u' '}}));
}

// The rule runs once more on what is left, which is nothing.
TEST_F(CopyRecordTest, ValueOf79Characters_FillsALine_AndLeavesAnEmptyOne)
{
    const QString value = u"abc "_s.repeated(19) + u"xyz";
    Store(u"Notes", value);

    EXPECT_EQ(Copied(), TextWith({{u"Notes(2):"_s, value + u" \n" + Indent}}));
}

TEST_F(CopyRecordTest, ValueOf80Characters_BreaksBeforeItsLastWord)
{
    const QString front = u"abc "_s.repeated(19);
    Store(u"Notes", front + u"wxyz");

    EXPECT_EQ(Copied(), TextWith({{u"Notes(2):"_s, front + u'\n' + Indent + u"wxyz "}}));
}

TEST_F(CopyRecordTest, RunWithoutABlank_IsNotCut)
{
    const QString run(100, u'x');
    Store(u"Notes", run);

    EXPECT_EQ(Copied(), TextWith({{u"Notes(2):"_s, run + u" \n" + Indent}}));
}

TEST_F(CopyRecordTest, LineBreaksInAValue_StayInIt)
{
    Store(u"Medical", u"first\nsecond"_s);

    EXPECT_EQ(Copied(), TextWith({{u"Notes(1):"_s, u"first\nsecond "_s}}));
}

TEST_F(CopyRecordTest, TakesThePlaceOfAllThatWasOnTheClipboard)
{
    Machine.Clipboard.Picture = QImage(3, 3, QImage::Format_RGB32);

    Copied();

    EXPECT_FALSE(Machine.Clipboard.HasPicture());
}

TEST_F(CopyRecordTest, AfterIt_PasteDoesNothing_AndCopyCopiesTheRecordAgain)
{
    Select(Surname(), 0, u"Smith");
    const QByteArray record = Copied();
    EXPECT_EQ(P.Record.ClipSource, 0);

    P.Form3->mnuPaste.Click();
    EXPECT_EQ(SurnameText(), QString());

    Text() = u"something else"_s;
    P.Form3->mnuCopy.Click();
    EXPECT_EQ(Text().value_or(QString()).toUtf8(), record);
}

TEST_F(CopyRecordTest, ChangesNoFile_AndLeavesTheCursor)
{
    const Tree before = Home.Snapshot();

    Copied();

    EXPECT_EQ(Current(), u"A003"_s);
    EXPECT_EQ(Differences(before, Home.Snapshot()), QStringList());
}

TEST_F(CopyRecordTest, WithoutARecord_DoesNothing)
{
    GivenEmptyBranch();
    Text() = u"before"_s;

    Click(P.Form3->mnuCopyRecToClip.Click);

    EXPECT_EQ(ExitCode(), std::nullopt);
    EXPECT_EQ(Text(), u"before"_s);
}

} // namespace
} // namespace lineforge
