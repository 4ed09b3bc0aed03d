#include "Failure.h"
#include "Ink.h"
#include "MapView.h"
#include "Menus.h"
#include "stops/Stops.h"

#include <QDir>

namespace lineforge::tour
{

using namespace Qt::StringLiterals;

namespace
{
// The first of the home's directories by name, so that it stands right below the home in the list.
const QString elsewhere = u"A stick"_s;
const QString exported = elsewhere + u"/LfgDat_C";
const QString imported = u"Import_C"_s;
const QString backup = u"windsor"_s;
const QString newName = u"Windsor Cousins"_s;

// Types into a box once it can be seen to take it.
void TypeInto(Tour& tour, const QString& title, const QString& text)
{
    const ScreenWindow question = tour.AwaitWindow(title);
    const QImage empty = tour.PictureOf(question.Place);
    tour.Hands.Type(text);
    tour.Await(u"the text in the box"_s, [&] { return tour.PictureOf(question.Place) != empty; });
}

void SourceIsChosen(Tour& tour)
{
    Expect(QDir(tour.Home.Directory()).mkdir(elsewhere), u"a directory to export to"_s);
    Choose(tour, tour.MainForm.mnuFile, tour.MainForm.mnuExport, tour.MainForm.mnuExpSub);
    TypeInto(tour, u"Select Export Database source File"_s, tour.Home.Directory() + u"/LfgDat_C/LfgDat_C.mdb");
}

void DestinationIsChosen(Tour& tour)
{
    tour.Answer(u"Select Export Database source File"_s, Key::Return);
    const ScreenWindow window = tour.AwaitWindow(tour.ExportForm.Caption);
    const QRect list = tour.PlaceOf(window, tour.ExportForm, tour.ExportForm.Dir1);
    tour.Await(u"the directories"_s, [&] { return HoldsBlackLetters(tour.PictureOf(list)); });
    const QImage atHome = tour.PictureOf(list);
    tour.Hands.Press(Key::Tab); // from the drives to the directories
    tour.Hands.Press(Key::Down);
    tour.Hands.Press(Key::Return);
    tour.Await(u"the directory below"_s, [&] { return tour.PictureOf(list) != atHome; });
}

void PlaceIsConfirmed(Tour& tour)
{
    const ScreenWindow window = tour.AwaitWindow(tour.ExportForm.Caption);
    tour.Hands.Click(tour.PlaceOf(window, tour.ExportForm, tour.ExportForm.Command1).center());
    tour.AwaitWindow(u"Export Directory and Files"_s);
    Expect(tour.Home.Has(exported), u"the new directory in the one that was chosen"_s);
}

void BranchIsExported(Tour& tour)
{
    tour.Answer(u"Export Directory and Files"_s, Key::Return);
    for (const auto& file : {u"/LfgDat_C.mdb"_s, u"/LfgDat_C.cfg"_s})
        tour.Await(file + u" in the export", [&] {
            return tour.Home.Has(exported + file) &&
                   tour.Home.Read(exported + file) == tour.Home.Read(u"LfgDat_C"_s + file);
        });
    tour.Await(u"the gallery in the export"_s, [&] { return tour.Home.Has(exported + u"/LfgGal_C"); });
}

void LetterIsInUse(Tour& tour)
{
    Choose(tour, tour.MainForm.mnuFile, tour.MainForm.mnuImport, tour.MainForm.mnuImpSub);
    TypeInto(tour, u"Select Import Database File"_s, tour.Home.Directory() + u'/' + exported + u"/LfgDat_C.mdb");
    tour.Answer(u"Select Import Database File"_s, Key::Return);
    tour.AwaitWindow(u"Import database name in use"_s);
}

void NewNameIsGiven(Tour& tour)
{
    tour.Answer(u"Import database name in use"_s, Key::Return);
    TypeInto(tour, u"Imported Tree Branch alternate name"_s, newName);
}

void BranchIsImported(Tour& tour)
{
    tour.Answer(u"Imported Tree Branch alternate name"_s, Key::Return);
    tour.Answer(u"New Directory and Files"_s, Key::Return);
    tour.Await(u"the imported map"_s, [&] { return !IsOneColour(MapPicture(tour)); });
    tour.Await(u"its name in the window"_s,
               [&] { return tour.Screen.Find(u"Lineforge "_s + newName + u" Tree Branch.").has_value(); });
    Expect(tour.Home.Read(imported + u"/LfgDat_C.mdb") == tour.Home.Read(exported + u"/LfgDat_C.mdb"),
           u"the same records in the new directory"_s);
    Expect(tour.Home.BranchNames().contains(newName), u"the new name in the list"_s);
}

void BackupIsNamed(Tour& tour)
{
    Choose(tour, tour.MainForm.mnuFile, tour.MainForm.mnuMainCopy, tour.MainForm.mnuBackup);
    tour.Answer(u"Backup Database"_s, Key::Return);
    TypeInto(tour, u"Select Backup Destination Directory"_s, tour.Home.Directory() + u'/' + elsewhere + u'/' + backup);
}

void BackupIsWritten(Tour& tour)
{
    tour.Answer(u"Select Backup Destination Directory"_s, Key::Return);
    const QString stem = elsewhere + u'/' + backup;
    tour.Await(u"the records in the backup"_s, [&] {
        return tour.Home.Has(stem + u".~md") &&
               tour.Home.Read(stem + u".~md") == tour.Home.Read(imported + u"/LfgDat_C.mdb");
    });
    tour.Await(u"the map in the backup"_s, [&] { return tour.Home.Has(stem + u".~cf"); });
}

void DeletionIsAsked(Tour& tour)
{
    Choose(tour, tour.MainForm.mnuEdit, tour.MainForm.mnuDel, tour.MainForm.mnuDelSub);
    tour.Answer(u"Delete '"_s + newName + u"' DataBase and Galleries", Key::Return);
    tour.AwaitWindow(u"Deletion of '"_s + newName + u"' Database, Gallery and Files");
    Expect(tour.Home.Has(imported + u"/LfgDat_C.mdb"), u"the branch until the second answer"_s);
}

void BranchIsDeleted(Tour& tour)
{
    tour.Answer(u"Deletion of '"_s + newName + u"' Database, Gallery and Files", Key::Return);
    tour.Await(u"an end of the directory"_s, [&] { return !tour.Home.Has(imported); });
    tour.Await(u"a blank map"_s, [&] { return IsOneColour(MapPicture(tour)); });
    Expect(!tour.Home.BranchNames().contains(newName), u"the name gone from the list"_s);
    Expect(tour.Home.Has(u"LfgDat_C/LfgDat_C.mdb"_s), u"the branch of the same letter where it was"_s);
}
} // namespace

Steps InterchangeStop()
{
    return {{u"export-source"_s, SourceIsChosen},
            {u"export-destination"_s, DestinationIsChosen},
            {u"export-confirmation"_s, PlaceIsConfirmed},
            {u"exported"_s, BranchIsExported},
            {u"import-letter-in-use"_s, LetterIsInUse},
            {u"import-name"_s, NewNameIsGiven},
            {u"imported"_s, BranchIsImported},
            {u"backup-name"_s, BackupIsNamed},
            {u"backup"_s, BackupIsWritten},
            {u"delete-question"_s, DeletionIsAsked},
            {u"deleted"_s, BranchIsDeleted}};
}

} // namespace lineforge::tour
