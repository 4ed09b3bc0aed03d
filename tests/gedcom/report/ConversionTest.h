#pragma once

#include "gedcom/report/GedSeek.h"
#include "gedcom/report/GedSource.h"
#include "gedcom/report/GedcomConversion.h"
#include "shell/ShellTest.h"

namespace lineforge
{

// Lines of a source, each with carriage return and line feed.
inline QByteArray Crlf(const QByteArray& lines)
{
    return QByteArray(lines).replace("\n", "\r\n");
}

// The end that every run comes to in a source whose lines end in two characters.
inline const QByteArray Trailer = "0 TRLR\n";

// Two people and their children, as far as a report is interested in them.
inline const QByteArray SmallFamily = "0 HEAD\n"
                                      "1 CHAR ANSI\n"
                                      "0 @I1@ INDI\n"
                                      "1 NAME John /Smith/\n"
                                      "2 GIVN John\n"
                                      "2 SURN Smith\n"
                                      "1 SEX M\n"
                                      "1 BIRT\n"
                                      "2 DATE 10 May 1901\n"
                                      "2 PLAC Leeds, England\n"
                                      "0 @I2@ INDI\n"
                                      "1 NAME Mary /Jones/\n"
                                      "2 GIVN Mary\n"
                                      "2 SURN Jones\n"
                                      "1 SEX F\n"
                                      "1 CHR\n"
                                      "2 DATE 20 June 1902\n"
                                      "2 PLAC York\n"
                                      "0 @I3@ INDI\n"
                                      "1 NAME Ann /Smith/\n"
                                      "2 GIVN Ann\n"
                                      "2 SURN Smith\n"
                                      "1 SEX F\n"
                                      "1 BIRT\n"
                                      "2 DATE 1930\n"
                                      "2 PLAC Hull\n"
                                      "1 CHR\n"
                                      "2 DATE 1931\n"
                                      "2 PLAC Goole\n"
                                      "0 @F1@ FAM\n"
                                      "1 HUSB @I1@\n"
                                      "1 WIFE @I2@\n"
                                      "1 MARR\n"
                                      "2 DATE 2 June 1925\n"
                                      "2 PLAC York Minster, York\n"
                                      "1 CHIL @I3@\n";

// A user at the main window who converts files that each test writes.
class ConversionTest : public ShellTest
{
protected:
    ConversionTest()
    {
        GivenRegistry();
        StartProgram(P);
    }

    // As after the first opening in a run; reading is at its start.
    void GivenSource(const QByteArray& bytes)
    {
        P.Gedcom.Source = std::make_shared<GedSource>(bytes);
        P.Gedcom.Source->Open();
    }
    void GivenReport() { P.Gedcom.Report = std::make_unique<SequentialFile>(P.Files, Home.Path(u"report.txt")); }
    QByteArray ClosedReport()
    {
        P.Gedcom.Report.reset();
        return Home.ReadFile(u"report.txt");
    }

    void ExpectChoice(const std::optional<QString>& path, ScriptedPrompts::WhileOpen whileOpen = {})
    {
        Prompts.ExpectOpenFile(u"Select Import GedCom File", u"GedCom *.ged|*.ged|All Files|*.*|", path,
                               std::move(whileOpen));
    }
    void ExpectAnnouncement(const QString& path, ScriptedPrompts::WhileOpen whileOpen = {})
    {
        Prompts.Expect(QString(path + u" Gedcom file selected."),
                       u"The selected Gedcom file will be re formatted and\nplaced in the above directory as a text "
                       u"file.",
                       Buttons::Information, Answer::Ok, std::move(whileOpen));
    }
    void ExpectRefusal(ScriptedPrompts::WhileOpen whileOpen = {})
    {
        Prompts.Expect(u"GedFile 'HEAD' not present.", u"File format problem.", Buttons::Information, Answer::Ok,
                       std::move(whileOpen));
    }

    // The user chooses that file, whatever is in it.
    void Convert(const QString& path)
    {
        ExpectChoice(path);
        ExpectAnnouncement(path);
        Click(P.Form1->mnuImpGedcom.Click);
    }
    void ConvertBytes(const QByteArray& bytes) { Convert(Home.WriteFile(u"family.ged", bytes)); }

    // What the user does at that yield of the coming run; the first comes before the files are opened.
    void AtYield(int number, std::function<void()> action)
    {
        for (int earlier = 1; earlier < number; ++earlier)
            Machine.Loop.AtNextYield([] {});
        Machine.Loop.AtNextYield(std::move(action));
    }

    QString SourcePath() const { return Home.Path(u"family.ged"); }

    // The report without the two lines at its head, which every report has.
    QByteArray Report() const
    {
        const QByteArray heading = "   Data extracted from File " + SourcePath().toUtf8() + "\r\n\r\r\n";
        const QByteArray report = Home.ReadFile(u"family.txt");
        EXPECT_TRUE(report.startsWith(heading)) << report.constData();
        return report.sliced(std::min(report.size(), heading.size()));
    }
    QByteArray ReportOf(const QByteArray& lines)
    {
        ConvertBytes(Crlf(lines));
        return Report();
    }

    QStringList& Panel() { return P.Form11->Picture1.Lines; }
    QString Caption() { return P.Form11->Caption; }
    bool IsCompleted() { return Caption() == u"Ged File Conversion completed."; }
};

} // namespace lineforge
