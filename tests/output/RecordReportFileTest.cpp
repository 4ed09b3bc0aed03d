#include "output/OpenTextFile.h"
#include "output/OutputTest.h"
#include "output/RecordReport.h"
#include "output/TextReport.h"

#include <QFile>

namespace lineforge
{
namespace
{

class RecordReportFileTest : public OutputTest
{
protected:
    QByteArray ReportOf(const Fields& record)
    {
        GivenRecords({record});
        ExpectDatabaseTextBox();
        P.Form1->mnuTxtDBase.Click();
        return Home.ReadFile(u"LfgDat_A/LfgDat_A.txt");
    }

    // What stands below each of the two headings of the notes, all but the last line's empty one.
    QByteArray NotesOf(const QString& medical, const QString& notes)
    {
        const QByteArray report = ReportOf({{u"File", u"A001"}, {u"Medical", medical}, {u"Notes", notes}});
        const qsizetype start = report.indexOf("Notes(1):");
        return start < 0 ? QByteArray() : report.sliced(start);
    }
};

TEST_F(RecordReportFileTest, FullRecord_HasEveryFieldOnItsLine)
{
    EXPECT_EQ(ReportOf(FullRecord()), "     ANCESTRAL RECORD A001\r\n"
                                      "\r\n"
                                      "Surname:        Smith\r\n"
                                      "ForeNames:      John Paul\r\n"
                                      "Maiden Name:    none\r\n"
                                      "Gender:         Male\r\n"
                                      "Nationality:    British\r\n"
                                      "Fathers Record: A002\r\n"
                                      "Mothers Record: A003\r\n"
                                      "Birth date:     1 May 1901\r\n"
                                      "Birth Place:    Leeds\r\n"
                                      "Spouse:         Mary Jones\r\n"
                                      "Children:       Ann, Bob\r\n"
                                      "Partner:        Eve\r\n"
                                      "Wedding Place:  York\r\n"
                                      "Wedding Date:   2 June 1925\r\n"
                                      "Prev.Children:  Carl\r\n"
                                      "Education:      School\r\n"
                                      "Profession:     Baker\r\n"
                                      "Deceased:       1950\r\n"
                                      "Birth Cert.     BC 1\r\n"
                                      "Marriage Cert:  MC 2\r\n"
                                      "Death Cert:     DC 3\r\n"
                                      "Notes(1):       \r\n"
                                      "        Weak heart \r\n"
                                      "Notes(2):      \r\n"
                                      "        Liked cats \r\n"
                                      "\r\n");
}

const QByteArray EmptyReport = "     ANCESTRAL RECORD A001\r\n"
                               "\r\n"
                               "Surname:        \r\n"
                               "ForeNames:      \r\n"
                               "Maiden Name:    \r\n"
                               "Gender:         \r\n"
                               "Nationality:    \r\n"
                               "Fathers Record: \r\n"
                               "Mothers Record: \r\n"
                               "Birth date:     \r\n"
                               "Birth Place:    \r\n"
                               "Spouse:         \r\n"
                               "Children:       \r\n"
                               "Partner:        \r\n"
                               "Wedding Place:  \r\n"
                               "Wedding Date:   \r\n"
                               "Prev.Children:  \r\n"
                               "Education:      \r\n"
                               "Profession:     \r\n"
                               "Deceased:       \r\n"
                               "Birth Cert.     \r\n"
                               "Marriage Cert:  \r\n"
                               "Death Cert:     \r\n"
                               "Notes(1):       \r\n"
                               "         \r\n"
                               "Notes(2):      \r\n"
                               "         \r\n"
                               "\r\n";

TEST_F(RecordReportFileTest, NullFields_AreEmpty)
{
    EXPECT_EQ(ReportOf({{u"File", u"A001"}}), EmptyReport);
}

TEST_F(RecordReportFileTest, EmptyFields_LookLikeNull_AndEmptyNotesAreEightBlanksAndTheAddedOne)
{
    Fields record{{u"File", u"A001"}};
    for (const QString& field : RecordFields().sliced(1))
        record.push_back({field, u""});

    EXPECT_EQ(ReportOf(record), EmptyReport);
}

TEST_F(RecordReportFileTest, NumberThatIsNull_LeavesTheHeadingItsBlank)
{
    EXPECT_TRUE(
        ReportOf({{u"Surname", u"Smith"}}).startsWith("     ANCESTRAL RECORD \r\n\r\nSurname:        Smith\r\n"));
}

TEST_F(RecordReportFileTest, Accents_AreUtf8WithoutAByteOrderMark)
{
    const QByteArray report = ReportOf({{u"File", u"A001"},
                                        {u"Surname", u"Müller-Łódź"},
                                        {u"Forename", u"Zoë 李"},
                                        {u"Medical", u"Fieber 39,5 °C"},
                                        {u"Notes", u"„Café“ – naïve"}});

    EXPECT_TRUE(report.startsWith("     ANCESTRAL RECORD A001\r\n\r\n"
                                  "Surname:        M\xC3\xBCller-\xC5\x81\xC3\xB3"
                                  "d\xC5\xBA\r\n"
                                  "ForeNames:      Zo\xC3\xAB \xE6\x9D\x8E\r\n"));
    EXPECT_TRUE(report.endsWith("Notes(1):       \r\n"
                                "        Fieber 39,5 \xC2\xB0"
                                "C \r\n"
                                "Notes(2):      \r\n"
                                "        \xE2\x80\x9E"
                                "Caf\xC3\xA9\xE2\x80\x9C \xE2\x80\x93 na\xC3\xAFve \r\n"
                                "\r\n"));
}

TEST_F(RecordReportFileTest, LineBreaksInNotes_StayInsideTheLine)
{
    EXPECT_EQ(NotesOf(u"first\r\nsecond"_s, u"one\ntwo"_s), "Notes(1):       \r\n"
                                                            "        first\r\nsecond \r\n"
                                                            "Notes(2):      \r\n"
                                                            "        one\ntwo \r\n"
                                                            "\r\n");
}

TEST_F(RecordReportFileTest, NoteOf78Characters_IsOneLine)
{
    const QByteArray note(78, 'x');

    EXPECT_EQ(NotesOf(QString::fromLatin1(note), {}), "Notes(1):       \r\n"
                                                      "        " +
                                                          note +
                                                          " \r\n"
                                                          "Notes(2):      \r\n"
                                                          "         \r\n"
                                                          "\r\n");
}

TEST_F(RecordReportFileTest, NoteOf79Characters_TakesTwoLines)
{
    const QByteArray note(79, 'x');

    EXPECT_EQ(NotesOf({}, QString::fromLatin1(note)), "Notes(1):       \r\n"
                                                      "         \r\n"
                                                      "Notes(2):      \r\n"
                                                      "        " +
                                                          note +
                                                          " \r\n"
                                                          "        \r\n"
                                                          "\r\n");
}

TEST_F(RecordReportFileTest, LongNotes_AreCutBehindABlank_EachLineBehindEightBlanks)
{
    const QByteArray words(QByteArray("ten chars ").repeated(17) + "the end");

    EXPECT_EQ(NotesOf(QString::fromLatin1(words), QString::fromLatin1(words)),
              "Notes(1):       \r\n"
              "        " +
                  QByteArray("ten chars ").repeated(8) + "\r\n        " + QByteArray("ten chars ").repeated(8) +
                  "\r\n        ten chars the end \r\n"
                  "Notes(2):      \r\n"
                  "        " +
                  QByteArray("ten chars ").repeated(8) + "\r\n        " + QByteArray("ten chars ").repeated(8) +
                  "\r\n        ten chars the end \r\n"
                  "\r\n");
}

TEST_F(RecordReportFileTest, NoteWithARunOf100Characters_PutsItOutWholeOnALineOfItsOwn)
{
    const QByteArray run(100, 'x');

    EXPECT_EQ(NotesOf(u"see "_s + QString::fromLatin1(run) + u" for more"_s, {}), "Notes(1):       \r\n"
                                                                                  "        see \r\n"
                                                                                  "        " +
                                                                                      run +
                                                                                      " \r\n"
                                                                                      "        for more \r\n"
                                                                                      "Notes(2):      \r\n"
                                                                                      "         \r\n"
                                                                                      "\r\n");
}

TEST_F(RecordReportFileTest, OtherLongFields_StayOnOneLine)
{
    const QByteArray words(QByteArray("ten chars ").repeated(30) + "the end");

    const QByteArray report =
        ReportOf({{u"File", u"A001"}, {u"Education", QString::fromLatin1(words)}, {u"Children", u"Ann\r\nBob"}});

    EXPECT_TRUE(report.contains(QByteArray("\r\nEducation:      " + words + "\r\nProfession:     \r\n")));
    EXPECT_TRUE(report.contains("\r\nChildren:       Ann\r\nBob\r\nPartner:        \r\n"));
}

TEST_F(RecordReportFileTest, Record_LeavesTheCursorWhereItIs)
{
    GivenPeople(3);
    GoTo(u"A002");
    P.Output.TextFile = std::make_unique<TextWriter>(P.Files, Home.Path(u"report.txt"));

    WriteRecordToFile(Records(P.Form3), P.Output, P.Scratch);
    WriteRecordToFile(Records(P.Form3), P.Output, P.Scratch);
    CloseTextFile(P.Output);

    EXPECT_EQ(Current(), u"A002"_s);
    EXPECT_EQ(RecordsIn(u"report.txt"), QStringList({u"A002"_s, u"A002"_s}));
}

TEST_F(RecordReportFileTest, BehindTheLastRecord_NothingIsWritten)
{
    GivenPeople(1);
    Records(P.Form3).MoveNext();
    P.Output.TextFile = std::make_unique<TextWriter>(P.Files, Home.Path(u"report.txt"));

    WriteRecordToFile(Records(P.Form3), P.Output, P.Scratch);
    CloseTextFile(P.Output);

    EXPECT_EQ(Home.ReadFile(u"report.txt"), QByteArray());
}

} // namespace
} // namespace lineforge
