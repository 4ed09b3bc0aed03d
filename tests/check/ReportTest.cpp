
#include "check/CheckTest.h"
#include "check/ReportText.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QProcess>

namespace lineforge::check
{
namespace
{

using namespace Qt::StringLiterals;

struct Outcome {
    int Status = -1;
    QString Output;
    QString Errors;
};

class ReportTest : public CheckTest
{
protected:
    QString Text(const QString& place) const { return QString::fromUtf8(ReportText(CheckHome(place), place)); }
    QString Text() const { return Text(home.Path()); }
    QJsonObject Json() const { return Object(ReportJson(CheckHome(home.Path()), home.Path())); }

    // The program itself, on a machine without a display.
    Outcome RunProgram(const QStringList& arguments, const QString& output = {}) const
    {
        QProcess process;
        if (!output.isEmpty())
            process.setStandardOutputFile(output);
        QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
        for (const QString& name : {u"DISPLAY"_s, u"WAYLAND_DISPLAY"_s, u"QT_QPA_PLATFORM"_s})
            environment.remove(name);
        environment.insert(u"LC_ALL"_s, u"C.UTF-8"_s);
        process.setProcessEnvironment(environment);
        process.setWorkingDirectory(home.Path());
        process.start(QStringLiteral(LINEFORGE_CHECK), arguments);
        EXPECT_TRUE(process.waitForFinished());
        return {process.exitCode(), QString::fromUtf8(process.readAllStandardOutput()),
                QString::fromUtf8(process.readAllStandardError())};
    }

    void GivenFindings()
    {
        Sql("UPDATE Tree99 SET FatherRec = 'A0\xc3\xa4\"' WHERE File = 'A003'; INSERT INTO Tree99 (File) VALUES "
            "('Z001')");
    }

    static QJsonObject Object(const QByteArray& text)
    {
        QJsonParseError error;
        const QJsonDocument document = QJsonDocument::fromJson(text, &error);
        EXPECT_EQ(error.error, QJsonParseError::NoError) << qUtf8Printable(error.errorString());
        return document.object();
    }
};

// What nobody has read can't tell that all is well.
TEST_F(ReportTest, ReportThatCantBeWritten_EndsWith2_AndALineOnTheErrorOutput)
{
    for (const QStringList& arguments : {QStringList{home.Path()}, QStringList{u"--json"_s, home.Path()}}) {
        const Outcome outcome = RunProgram(arguments, u"/dev/full"_s);
        EXPECT_EQ(outcome.Status, 2);
        EXPECT_EQ(outcome.Errors, u"lineforge-check: the report can't be written: No space left on device\n");
    }
}

TEST_F(ReportTest, AnswerOfTheCommandLineThatCantBeWritten_EndsWith2_AndALineOnTheErrorOutput)
{
    for (const QString& asked : {u"help"_s, u"version"_s}) {
        const Outcome outcome = RunProgram({u"--"_s + asked}, u"/dev/full"_s);
        EXPECT_EQ(outcome.Status, 2);
        EXPECT_EQ(outcome.Errors,
                  QString(u"lineforge-check: the "_s + asked + u" can't be written: No space left on device\n"));
    }
}

TEST_F(ReportTest, HomeInOrder_IsToldInWords)
{
    EXPECT_EQ(Text(), u"Looked at 1 branch with 3 records, 4 boxes, 3 pictures of people and 3 gallery files.\n"
                      u"Nothing wrong was found.\n");
}

TEST_F(ReportTest, Findings_AreALineEach_FileAndRecordFirst)
{
    GivenFindings();
    EXPECT_EQ(Text(), u"LfgDat_A: note: records without a picture: Z001\n"
                      u"LfgDat_A/LfgDat_A.cfg: note: records without a box: Z001\n"
                      u"LfgDat_A/LfgDat_A.mdb: A003: FatherRec leads to A0\u00e4\", which isn't there\n"
                      u"Looked at 1 branch with 4 records, 4 boxes, 3 pictures of people and 3 gallery files.\n"
                      u"1 thing is wrong.\n");
}

TEST_F(ReportTest, HomeThatIsNotThere_IsNamed)
{
    EXPECT_EQ(Text(home.Path(u"nowhere")),
              QString(home.Path(u"nowhere") +
                      u": there is no such directory\n"_s
                      u"Looked at 0 branches with 0 records, 0 boxes, 0 pictures of people and 0 gallery files.\n"
                      u"Nothing wrong was found. 1 place couldn't be looked at, so there may be more.\n"));
}

TEST_F(ReportTest, Json_IsOneObject_OfTheSameFindings)
{
    GivenFindings();
    const QJsonObject whole = Json();
    EXPECT_EQ(whole[u"home"_s].toString(), home.Path());
    EXPECT_EQ(whole[u"status"_s].toInt(), 1);
    EXPECT_EQ(whole[u"looked-at"_s][u"records"_s].toInt(), 4);
    EXPECT_EQ(whole[u"findings"_s].toArray(),
              QJsonArray{(QJsonObject{{u"kind"_s, u"link"_s},
                                      {u"file"_s, u"LfgDat_A/LfgDat_A.mdb"_s},
                                      {u"record"_s, u"A003"_s},
                                      {u"text"_s, u"FatherRec leads to A0\u00e4\", which isn't there"_s}})});
    EXPECT_EQ(whole[u"notes"_s].toArray().size(), 2);
}

TEST_F(ReportTest, JsonOfAHomeInOrder_HasEmptyLists)
{
    const QJsonObject whole = Json();
    EXPECT_EQ(whole[u"status"_s].toInt(-1), 0);
    EXPECT_TRUE(whole[u"findings"_s].isArray());
    EXPECT_TRUE(whole[u"findings"_s].toArray().isEmpty());
    EXPECT_TRUE(whole[u"notes"_s].toArray().isEmpty());
}

// Each kind has a word of its own for scripts.
TEST_F(ReportTest, EveryKindInJson_HasItsOwnWord)
{
    QStringList words;
    for (int kind = 0; kind <= static_cast<int>(Kind::StrangeFile); ++kind) {
        const Report report{{{static_cast<Kind>(kind), {}, {}, {}}}, {}};
        const QString list = IsNote(static_cast<Kind>(kind)) ? u"notes"_s : u"findings"_s;
        words += Object(ReportJson(report, {}))[list].toArray()[0][u"kind"_s].toString();
    }
    EXPECT_FALSE(words.contains(QString()));
    EXPECT_EQ(words.removeDuplicates(), 0);
}

TEST_F(ReportTest, TheProgram_NeedsNoDisplay_AndTellsItsStatus)
{
    const Outcome inOrder = RunProgram({home.Path()});
    EXPECT_EQ(inOrder.Status, 0);
    EXPECT_EQ(inOrder.Output, Text());
    EXPECT_EQ(RunProgram({u"nowhere"_s}).Status, 2);
    EXPECT_EQ(RunProgram({}).Status, 2);
    GivenFindings();
    const Outcome outcome = RunProgram({u"."_s, u"--json"_s});
    EXPECT_EQ(outcome.Status, 1);
    EXPECT_EQ(Object(outcome.Output.toUtf8())[u"home"_s].toString(), home.Path());
    EXPECT_EQ(outcome.Errors, QString());
}

} // namespace
} // namespace lineforge::check
