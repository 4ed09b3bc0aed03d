#include "output/OutputTest.h"

#include <QRegularExpression>

#include <algorithm>

namespace lineforge
{
namespace
{

class RecordReportPaperTest : public OutputTest
{
protected:
    QString PaperWith(const Fields& record)
    {
        GivenRecords({record});
        P.Form3->mnuPrinRecord.Click();
        EXPECT_EQ(Jobs().size(), 1);
        return Jobs().value(0);
    }

    // What stands below each of the two headings of the notes.
    QStringList NotesOf(const QString& medical, const QString& notes)
    {
        const QStringList lines = LinesOn(PaperWith({{u"File", u"A001"}, {u"Medical", medical}, {u"Notes", notes}}));
        return lines.sliced(std::max<qsizetype>(0, lines.indexOf(u"Notes(1):"_s)));
    }

    // From the second heading of the notes to the record that follows on the same page.
    double RoomOfNotes(const QString& notes)
    {
        GivenRecords({{{u"File", u"A001"}, {u"Notes", notes}}, {{u"File", u"A002"}}});
        GivenBookmarks({u"A001"_s, u"A002"_s});
        P.Form1->mnuPrinList.Click();
        double heading = 0;
        for (const PrintedWord& word : WordsOn(Jobs().value(0)))
            if (word.Text == u"ANCESTRAL")
                heading = word.Place.top();
        return heading - WordOn(Jobs().value(0), u"Notes(2):").Place.top();
    }

    // The lines between the two headings, empty ones too.
    int LinesUsedByNote(int length)
    {
        const QString paper = PaperWith({{u"File", u"A001"}, {u"Medical", QString(length, u'i')}});
        const auto top = [&](QStringView word) { return WordOn(paper, word).Place.top(); };
        const double line = top(u"ForeNames:") - top(u"Surname:");
        return qRound((top(u"Notes(2):") - top(u"Notes(1):")) / line) - 1;
    }
};

TEST_F(RecordReportPaperTest, FullRecord_HasItsLinesInOrder_TheDateOfTheWeddingBeforeItsPlace)
{
    const QString paper = PaperWith(FullRecord());

    EXPECT_EQ(LinesOn(paper),
              QStringList({u"ANCESTRAL RECORD A001"_s,
                           u"Surname: Smith"_s,
                           u"ForeNames: John Paul"_s,
                           u"Maiden Name: none"_s,
                           u"Gender: Male. Nationality: British. Fathers Record: A002. Mothers Record: A003"_s,
                           u"Birth date: 1 May 1901"_s,
                           u"Birth Place: Leeds"_s,
                           u"Spouse: Mary Jones"_s,
                           u"Children: Ann, Bob"_s,
                           u"Partner: Eve"_s,
                           u"Wedding Date: 2 June 1925"_s,
                           u"Wedding Place: York"_s,
                           u"Prev.Children: Carl"_s,
                           u"Education: School"_s,
                           u"Profession: Baker"_s,
                           u"Deceased: 1950"_s,
                           u"Birth Cert. BC 1"_s,
                           u"Marriage Cert: MC 2"_s,
                           u"Death Cert: DC 3"_s,
                           u"Notes(1):"_s,
                           u"Weak heart"_s,
                           u"Notes(2):"_s,
                           u"Liked cats"_s}));
    EXPECT_EQ(PagesOf(paper), 1);
}

TEST_F(RecordReportPaperTest, NullFields_AreEmpty)
{
    EXPECT_EQ(LinesOn(PaperWith({{u"File", u"A001"}})),
              QStringList({u"ANCESTRAL RECORD A001"_s,
                           u"Surname:"_s,
                           u"ForeNames:"_s,
                           u"Maiden Name:"_s,
                           u"Gender: . Nationality: . Fathers Record: . Mothers Record:"_s,
                           u"Birth date:"_s,
                           u"Birth Place:"_s,
                           u"Spouse:"_s,
                           u"Children:"_s,
                           u"Partner:"_s,
                           u"Wedding Date:"_s,
                           u"Wedding Place:"_s,
                           u"Prev.Children:"_s,
                           u"Education:"_s,
                           u"Profession:"_s,
                           u"Deceased:"_s,
                           u"Birth Cert."_s,
                           u"Marriage Cert:"_s,
                           u"Death Cert:"_s,
                           u"Notes(1):"_s,
                           u"Notes(2):"_s}));
}

TEST_F(RecordReportPaperTest, Accents_AreOnThePaper)
{
    const QStringList lines =
        LinesOn(PaperWith({{u"File", u"A001"}, {u"Surname", u"Müller-Łódź"}, {u"Notes", u"„Café“"}}));

    EXPECT_TRUE(lines.contains(u"Surname: Müller-Łódź"_s));
    EXPECT_EQ(lines.value(lines.size() - 1), u"„Café“"_s);
}

TEST_F(RecordReportPaperTest, Paper_IsUpright)
{
    EXPECT_EQ(PaperOf(PaperWith({{u"File", u"A001"}})), QSize(595, 842));
}

TEST_F(RecordReportPaperTest, Heading_IsOf12Points_AndAllBelowOf10)
{
    const QString paper = PaperWith({{u"File", u"A001"}, {u"Surname", u"Smith"}, {u"Notes", u"Cats"}});

    const double heading = WordOn(paper, u"ANCESTRAL").Place.height();
    for (const QStringView word : {u"Surname:", u"Death", u"Notes(2):", u"Cats"})
        EXPECT_NEAR(WordOn(paper, word).Place.height() / heading, 10.0 / 12, 0.02);
}

TEST_F(RecordReportPaperTest, All_IsBold)
{
    const QStringList fonts = FontsOf(PaperWith({{u"File", u"A001"}, {u"Surname", u"Smith"}, {u"Notes", u"Cats"}}));

    EXPECT_FALSE(fonts.isEmpty());
    for (const QString& font : fonts)
        EXPECT_TRUE(font.contains(u"Bold")) << qPrintable(font);
}

TEST_F(RecordReportPaperTest, EmptyLines_StandBelowTheHeadingAndNotes2_NotBelowNotes1)
{
    const QString paper = PaperWith({{u"File", u"A001"}, {u"Medical", u"Fever"}, {u"Notes", u"Cats"}});
    const auto top = [&](QStringView word) { return WordOn(paper, word).Place.top(); };

    const double line = top(u"ForeNames:") - top(u"Surname:");
    EXPECT_GT(line, 0);
    EXPECT_NEAR(top(u"Fever") - top(u"Notes(1):"), line, 0.1 * line);
    EXPECT_NEAR(top(u"Notes(2):") - top(u"Fever"), line, 0.1 * line);
    EXPECT_NEAR(top(u"Cats") - top(u"Notes(2):"), 2 * line, 0.1 * line);
    // Two lines of 12 points.
    EXPECT_NEAR(top(u"Surname:") - top(u"ANCESTRAL"), 2.4 * line, 0.4 * line);
}

TEST_F(RecordReportPaperTest, Labels_AreIndentedBy11Blanks_NotesBy23_TheHeadingBy8)
{
    const QString paper = PaperWith({{u"File", u"A001"}, {u"Medical", u"Fever"}, {u"Notes", u"Cats"}});
    const auto left = [&](QStringView word) { return WordOn(paper, word).Place.left(); };

    const double blank = left(u"Surname:") / 11;
    EXPECT_GT(blank, 0);
    EXPECT_NEAR(left(u"Notes(1):"), 11 * blank, blank);
    EXPECT_NEAR(left(u"Fever"), 23 * blank, blank);
    EXPECT_NEAR(left(u"Cats"), 23 * blank, blank);
    EXPECT_NEAR(left(u"ANCESTRAL"), 8 * 1.2 * blank, blank);
}

TEST_F(RecordReportPaperTest, LongNotes_AreCutBehindABlank)
{
    const QString line = u"ten chars "_s.repeated(8);
    const QString value = line + line + u"the end"_s;

    EXPECT_EQ(NotesOf(value, value), QStringList({u"Notes(1):"_s, line.trimmed(), line.trimmed(), u"the end"_s,
                                                  u"Notes(2):"_s, line.trimmed(), line.trimmed(), u"the end"_s}));
}

TEST_F(RecordReportPaperTest, NoteOf78Characters_IsOneLine)
{
    EXPECT_EQ(LinesUsedByNote(78), 1);
}

TEST_F(RecordReportPaperTest, NoteOf79Characters_TakesTwoLines)
{
    EXPECT_EQ(LinesUsedByNote(79), 2);
}

TEST_F(RecordReportPaperTest, EmptyNotes_TakeALineLikeAWordWould)
{
    EXPECT_EQ(LinesUsedByNote(0), 1);
}

struct EmptyNotesTest : RecordReportPaperTest, testing::WithParamInterface<QStringView> {
};

TEST_P(EmptyNotesTest, BeforeTheNextRecord_AreOneLineOfBlanks_AndTwoEmptyOnes)
{
    const double room = RoomOfNotes(GetParam().toString());
    const double line =
        WordOn(Jobs().value(0), u"ForeNames:").Place.top() - WordOn(Jobs().value(0), u"Surname:").Place.top();

    // The label's own line, the empty one below it, the notes, and the two empty ones.
    EXPECT_NEAR(room / line, 5, 0.3);
}

INSTANTIATE_TEST_SUITE_P(Notes, EmptyNotesTest, testing::Values(u"", u"Cats"));

TEST_F(RecordReportPaperTest, LineBreaksInNotes_BreakTheLineOnPaper)
{
    EXPECT_EQ(NotesOf(u"first\r\nsecond"_s, u"one\ntwo"_s),
              QStringList({u"Notes(1):"_s, u"first"_s, u"second"_s, u"Notes(2):"_s, u"one"_s, u"two"_s}));
}

TEST_F(RecordReportPaperTest, NoteWithARunOf300Characters_LosesNothing)
{
    const QString run(300, u'W');

    const QStringList lines = NotesOf(u"see "_s + run + u" for more"_s, {});

    EXPECT_EQ(lines.join(QString()), u"Notes(1):see"_s + run + u"for moreNotes(2):"_s);
    EXPECT_EQ(lines.value(1), u"see"_s);
}

TEST_F(RecordReportPaperTest, LineWiderThanThePage_GoesOnBelow_AndLosesNothing)
{
    const QString words = u"WIDE WORDS "_s.repeated(20).trimmed();
    const QString paper = PaperWith({{u"File", u"A001"}, {u"Education", words}});

    const QStringList lines = LinesOn(paper);
    const qsizetype first = lines.indexOf(QRegularExpression(u"^Education: .*"_s));
    const qsizetype behind = lines.indexOf(u"Profession:"_s);
    ASSERT_GE(first, 0);
    EXPECT_GT(behind, first + 1);
    EXPECT_EQ(lines.sliced(first, behind - first).join(u' '), u"Education: "_s + words);
    for (const PrintedWord& word : WordsOn(paper))
        EXPECT_LE(word.Place.right(), 595 * 20) << qPrintable(word.Text);
}

TEST_F(RecordReportPaperTest, LongNotes_RunOnOverThePages)
{
    QStringList words;
    for (int number = 1; number <= 2000; ++number)
        words.push_back(u"word%1"_s.arg(number));

    const QString paper = PaperWith({{u"File", u"A001"}, {u"Notes", words.join(u' ')}});

    EXPECT_GT(PagesOf(paper), 2);
    QStringList found;
    double lowest = 0;
    for (const PrintedWord& word : WordsOn(paper)) {
        if (word.Text.startsWith(u"word"))
            found.push_back(word.Text);
        lowest = std::max(lowest, word.Place.bottom());
    }
    EXPECT_EQ(found, words);
    EXPECT_LE(lowest, 842 * 20);
    EXPECT_GT(lowest, 800 * 20);
}

} // namespace
} // namespace lineforge
