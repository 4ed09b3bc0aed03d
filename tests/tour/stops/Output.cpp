#include "Failure.h"
#include "Ink.h"
#include "MapView.h"
#include "Menus.h"
#include "SubjectView.h"
#include "stops/Stops.h"

#include <QFile>
#include <QFileInfo>
#include <QProcess>

namespace lineforge::tour
{

using namespace Qt::StringLiterals;

namespace
{
const QString firstJob = u"Lineforge.pdf"_s; // what the dialog proposes, in the user's home
const QString secondJob = u"Lineforge-2.pdf"_s;
const QString textFile = u"LfgDat_A/LfgDat_A.txt"_s;

void Select(Tour& tour, const QString& file)
{
    const QImage before = PanelPicture(tour);
    tour.Hands.DoubleClick(CentreOf(tour, BoxOfRecord(BoxesOfMap(tour.Home.Read(MapFileOf(u'A'))), file)));
    tour.Await(u"another subject beside the map"_s, [&] { return PanelPicture(tour) != before; });
}

// Whole, from the first word of a PDF file to its last.
bool IsPrinted(const Tour& tour, const QString& file)
{
    QFile job(tour.Home.SettingsDirectory() + u'/' + file);
    if (!job.open(QFile::ReadOnly))
        return false;
    const QByteArray bytes = job.readAll().trimmed();
    return bytes.startsWith("%PDF") && bytes.endsWith("%%EOF");
}

// The first page as a picture, kept beside those of the screen.
QImage PageOf(const Tour& tour, const QString& file)
{
    const QString page = tour.Pictures.filePath(QString(u"page-" + QFileInfo(file).completeBaseName()));
    QProcess render;
    render.start(u"pdftoppm"_s, {u"-png"_s, u"-r"_s, u"72"_s, u"-f"_s, u"1"_s, u"-l"_s, u"1"_s, u"-singlefile"_s,
                                 tour.Home.SettingsDirectory() + u'/' + file, page});
    Expect(render.waitForFinished() && render.exitCode() == 0, u"pdftoppm to render "_s + file);
    return QImage(page + u".png");
}

void TwoRecordsAreMarked(Tour& tour)
{
    for (const QString& file : {u"A002"_s, u"A004"_s}) {
        Select(tour, file);
        Choose(tour, tour.MainForm.mnuFile, tour.MainForm.mnuAddBkMark);
    }
}

void PrinterIsAskedFor(Tour& tour)
{
    Choose(tour, tour.MainForm.mnuFile, tour.MainForm.mnuTreePrint, tour.MainForm.mnuPrinterSetUp);
    tour.AwaitWindow(u"Print"_s);
}

void ListIsPrintedToAFile(Tour& tour)
{
    tour.Answer(u"Print"_s, Key::Return);
    Choose(tour, tour.MainForm.mnuFile, tour.MainForm.mnuTreePrint, tour.MainForm.mnuPrinList);
    tour.Await(u"the printed list"_s, [&] { return IsPrinted(tour, firstJob); });
    Expect(HoldsBlackLetters(PageOf(tour, firstJob)), u"letters on the page of the list"_s);
}

void MapIsPrintedToAFile(Tour& tour)
{
    Choose(tour, tour.MainForm.mnuFile, tour.MainForm.mnuTreePrint, tour.MainForm.mnuPrint);
    tour.Await(u"the printed map"_s, [&] { return IsPrinted(tour, secondJob); });
    constexpr int coloursOfAMap = 3;
    Expect(CountColours(PageOf(tour, secondJob)) > coloursOfAMap, u"boxes in their colours on the page of the map"_s);
}

void TextFileIsAnnounced(Tour& tour)
{
    Choose(tour, tour.MainForm.mnuFile, tour.MainForm.mnuMainCopy, tour.MainForm.mnuTxtDBase);
    tour.AwaitWindow(u"Make a Text File."_s);
}

void TextFileIsWritten(Tour& tour)
{
    constexpr qsizetype people = 60;
    tour.Answer(u"Make a Text File."_s, Key::Return);
    tour.Await(u"the text file"_s, [&] { return tour.Home.Has(textFile); });
    Expect(tour.Home.Read(textFile).count("ANCESTRAL RECORD") == people, u"everybody in the text file"_s);
}
} // namespace

Steps OutputStop()
{
    return {{u"bookmarks"_s, TwoRecordsAreMarked},     {u"printer-setup"_s, PrinterIsAskedFor},
            {u"list-printed"_s, ListIsPrintedToAFile}, {u"map-printed"_s, MapIsPrintedToAFile},
            {u"text-file"_s, TextFileIsAnnounced},     {u"text-file-written"_s, TextFileIsWritten}};
}

} // namespace lineforge::tour
