#include "shell/ShellTest.h"

#include <QDirIterator>
#include <QProcess>

#include <gmock/gmock.h>

namespace lineforge
{
namespace
{

QString OutputOf(const QString& program, const QStringList& arguments, const QString& home)
{
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    environment.insert(u"LC_ALL"_s, u"C.UTF-8"_s);
    for (const QString& variable : {u"HOME"_s, u"GRAMPSHOME"_s})
        environment.insert(variable, home);
    QProcess process;
    process.setProcessEnvironment(environment);
    process.setProcessChannelMode(QProcess::MergedChannels);
    process.start(program, arguments);
    constexpr int patience = 100000;
    if (!process.waitForFinished(patience) || process.exitStatus() != QProcess::NormalExit || process.exitCode() != 0)
        throw std::runtime_error(program.toStdString() + ": " + process.readAll().toStdString());
    return QString::fromUtf8(process.readAll());
}

// A user of the example home, who hands the file of a branch on to a friend with another program.
class GrampsTest : public ShellTest, public testing::WithParamInterface<const char*>
{
protected:
    GrampsTest()
    {
        const QString example = QStringLiteral(LINEFORGE_EXAMPLE_HOME);
        for (QDirIterator file(example, QDir::Files, QDirIterator::Subdirectories); file.hasNext();) {
            const QString relative = file.next().sliced(example.size() + 1);
            const QString copy = Home.Path(relative);
            QDir().mkpath(QFileInfo(copy).path());
            if (!QFile::copy(file.filePath(), copy))
                throw std::runtime_error("no copy of " + relative.toStdString());
        }
        StartProgram(P);
    }

    QByteArray WriteGedcom()
    {
        forms::Form12& form = *P.Form12;
        form.Text1.Text = u"Ann Smith"_s;
        form.Text2.Text = u"1 Mill Lane"_s;
        form.Text3.Text = u"York"_s;
        form.Text4.Text = QString();
        form.Text5.Text = u"01904 1"_s;
        form.Text7.Text = P.Form3->Label25.Caption.value();
        Click(form.Command1.Click);
        return Home.ReadFile(written_);
    }

    // The friend's program: what it says while it takes the file, and what it then knows, as its own file tells.
    void Import()
    {
        const QString taken = Home.WriteFile(u"friend/taken.ged", Home.ReadFile(written_));
        const QString kept = Home.Path(u"friend/kept.gramps");
        Said = OutputOf(u"gramps"_s, {u"-q"_s, u"-i"_s, taken, u"-e"_s, kept}, Home.Path(u"friend"));
        Known = OutputOf(u"gzip"_s, {u"-dc"_s, kept}, Home.Path());
    }

    static QStringList LinesOf(const QByteArray& file)
    {
        return QString::fromUtf8(file).split(u"\r\n"_s, Qt::SkipEmptyParts);
    }
    // Those lines of the file that the other program has told of.
    QStringList LinesComplainedAbout(const QByteArray& file) const
    {
        QStringList lines = LinesOf(file);
        lines.removeIf([this](const QString& line) { return !Said.contains(line); });
        return lines;
    }

    QString Said;
    QString Known;

private:
    const QString written_ = u"LfgDat_%1/Gedcom.tmp"_s.arg(QLatin1Char(GetParam()[0]));
};

INSTANTIATE_TEST_SUITE_P(Branches, GrampsTest, testing::Values("A", "B"),
                         [](const auto& branch) { return std::string(branch.param); });

TEST_P(GrampsTest, TakesTheFile_WithItsSubmitter_AndTheNobodyWhoIsInIt)
{
    Choose(GetParam()[0] == 'A' ? u"Victoria and Albert" : u"House of Hanover");
    const QByteArray file = WriteGedcom();
    ASSERT_TRUE(file.endsWith("0 TRLR\r\n"));

    Import();

    EXPECT_EQ(Known.count(u"<person "_s), file.count(" INDI"));
    EXPECT_EQ(Known.count(u"<family "_s), file.count(" FAM"));
    EXPECT_EQ(file.count(" INDI") + file.count(" FAM"), 0) << "the file tells how many there are, and nothing else";
    for (const QString& told :
         {u"<resname>Created by Ann Smith<"_s, u"<resaddr>1 Mill Lane, York<"_s, u"<resphone>01904 1<"_s})
        EXPECT_TRUE(Known.contains(told)) << Known.toStdString();
    // These are the settled form of the file; newer versions know no record of a submission.
    const QStringList settled{u",3 ADDR Westholme, Marsh End,"_s, u"3 COPY Copyright 2001 Tarnwick Technology"_s,
                              u"2 VERS GEDCOM 5.5"_s};
    QStringList submission = LinesOf(file);
    submission = submission.mid(submission.indexOf(u"0 @N01@ SUBN"_s) + 1, 2);
    ASSERT_TRUE(submission.first().startsWith(u"1 DESC "));
    EXPECT_THAT(LinesComplainedAbout(file), testing::AnyOf(settled, settled + submission)) << Said.toStdString();
}

} // namespace
} // namespace lineforge
