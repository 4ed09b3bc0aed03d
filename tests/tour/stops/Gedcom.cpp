#include "Failure.h"
#include "Ink.h"
#include "Menus.h"
#include "stops/Stops.h"

#include <QFile>

namespace lineforge::tour
{

using namespace Qt::StringLiterals;

namespace
{
const QString written = u"LfgDat_A/Gedcom.tmp"_s;
const QString source = u"smiths.ged"_s;
const QString report = u"smiths.txt"_s;

// As another program exports a family of three. Each person has a zero in a date: without one the record that follows
// would be passed over.
const QByteArray family = "0 HEAD\r\n1 SOUR ELSEWHERE\r\n"
                          "0 @I1@ INDI\r\n1 NAME John /Smith/\r\n2 GIVN John\r\n2 SURN Smith\r\n1 SEX M\r\n"
                          "1 BIRT\r\n2 DATE 10 May 1871\r\n2 PLAC Leeds\r\n"
                          "0 @I2@ INDI\r\n1 NAME Mary /Jones/\r\n2 GIVN Mary\r\n2 SURN Jones\r\n1 SEX F\r\n"
                          "1 BIRT\r\n2 DATE 30 March 1874\r\n2 PLAC York\r\n"
                          "0 @I3@ INDI\r\n1 NAME Ann /Smith/\r\n2 GIVN Ann\r\n2 SURN Smith\r\n1 SEX F\r\n"
                          "1 BIRT\r\n2 DATE 20 June 1899\r\n2 PLAC Hull\r\n"
                          "0 @F1@ FAM\r\n1 HUSB @I1@\r\n1 WIFE @I2@\r\n1 MARR\r\n2 DATE 1 June 1898\r\n2 PLAC York\r\n"
                          "1 CHIL @I3@\r\n0 TRLR\r\n";

QRect OnForm(Tour& tour, const ScreenWindow& window, const Control& control)
{
    return tour.PlaceOf(window, tour.GedcomForm, control);
}

void StartRecordIsTyped(Tour& tour)
{
    Choose(tour, tour.MainForm.mnuFile, tour.MainForm.mnuExport, tour.MainForm.mnuExpGedcom);
    const ScreenWindow window = tour.AwaitWindow(tour.GedcomForm.Caption);
    const QRect number = OnForm(tour, window, tour.GedcomForm.Text7);
    tour.Await(u"the number that is proposed"_s, [&] { return HoldsBlackLetters(tour.PictureOf(number)); });
    tour.Hands.DoubleClick(number.center());
    tour.Hands.Type(u"A029"_s);
}

void FileIsWritten(Tour& tour)
{
    const ScreenWindow window = tour.AwaitWindow(tour.GedcomForm.Caption);
    tour.Hands.Click(OnForm(tour, window, tour.GedcomForm.Command1).center());
    tour.Await(u"the GEDCOM file"_s,
               [&] { return tour.Home.Has(written) && tour.Home.Read(written).endsWith("0 TRLR\r\n"); });
    const QByteArray lines = tour.Home.Read(written);
    const qsizetype count = lines.indexOf("1 DESC ");
    Expect(count >= 0 && lines.mid(count + 7, 1).toInt() > 1, u"more than one person in the line of A029"_s);
}

void SourceIsChosen(Tour& tour)
{
    const ScreenWindow window = tour.AwaitWindow(tour.GedcomForm.Caption);
    tour.Hands.Click(OnForm(tour, window, tour.GedcomForm.Command2).center());
    tour.AwaitGone(window);
    QFile file(tour.Home.Directory() + source);
    Expect(file.open(QFile::WriteOnly) && file.write(family) == family.size(), u"to write a GEDCOM file"_s);
    file.close();
    Choose(tour, tour.MainForm.mnuFile, tour.MainForm.mnuImport, tour.MainForm.mnuImpGedcom);
    const ScreenWindow dialog = tour.AwaitWindow(u"Select Import GedCom File"_s);
    tour.Hands.Type(tour.Home.Directory() + source);
    tour.Hands.Press(Key::Return);
    tour.AwaitGone(dialog);
    tour.AwaitWindow(QString(tour.Home.Directory() + source + u" Gedcom file selected."));
}

void ReportIsShown(Tour& tour)
{
    tour.Answer(QString(tour.Home.Directory() + source + u" Gedcom file selected."), Key::Return);
    const ScreenWindow window = tour.AwaitWindow(u"Ged File Conversion completed."_s);
    tour.Await(u"the report in its window"_s, [&] { return HoldsBlackLetters(tour.PictureOf(window.Place)); });
    const QByteArray lines = tour.Home.Read(report);
    for (const QByteArray text : {"HEAD OF FAMILY (1)", "John", "Jones", "York", "CHILDREN", "Ann"})
        Expect(lines.contains(text), QString(u"in the report: " + QString::fromLatin1(text)));
}

void ReportIsClosed(Tour& tour)
{
    const ScreenWindow window = tour.AwaitWindow(u"Ged File Conversion completed."_s);
    tour.Close(window);
    tour.AwaitGone(window);
}
} // namespace

Steps GedcomStop()
{
    return {{u"gedcom-form"_s, StartRecordIsTyped},
            {u"gedcom-written"_s, FileIsWritten},
            {u"gedcom-chosen"_s, SourceIsChosen},
            {u"gedcom-report"_s, ReportIsShown},
            {u"gedcom-closed"_s, ReportIsClosed}};
}

} // namespace lineforge::tour
