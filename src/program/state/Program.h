#pragma once

#include "forms/Form1.h"
#include "forms/Form11.h"
#include "forms/Form12.h"
#include "forms/Form2.h"
#include "forms/Form3.h"
#include "forms/Form4.h"
#include "forms/Form5.h"
#include "forms/Form6.h"
#include "forms/Form7.h"
#include "forms/Form8.h"
#include "forms/form9.h"
#include "platform/base/RuntimeError.h"
#include "platform/drawing/PictureFile.h"
#include "platform/drawing/Thumbnails.h"
#include "platform/files/FileIdentity.h"
#include "platform/files/FileSystem.h"
#include "platform/files/SequentialFile.h"
#include "platform/files/TextFile.h"
#include "platform/machine/Platform.h"
#include "platform/store/Database.h"
#include "platform/store/Recordset.h"
#include "program/state/GedcomState.h"
#include "program/state/MapState.h"
#include "program/state/ToolState.h"

#include <QSet>
#include <QString>

namespace lineforge
{

struct BranchState {
    QString HomeDir;      // with a trailing separator; all fixed files and branch directories stand beneath it
    QString WorkDir;      // directory of the open branch, without a trailing separator; empty: none is open
    Integer16 WorkDirLen; // its length, kept beside it
    // The open database; empty: none. A whole path after New and after a switch to a sibling branch, the bare file
    // name after Open, so that whoever compares it tries both.
    QString sDbaseName;
    QString sBranchName;
    // 1 while the current record comes from a branch other than the one whose map is shown; the two directories then
    // point at that branch and the saved ones hold the map's own.
    Integer16 UsingAlternate;
    QString WorkDirSaved;
    QString HomeDirSaved;
    // Letters that were in use at some time of this run; one that a deletion has freed stays in here.
    FixedArray<bool, 1, 26> TakenLetters;
};

struct AliasState {
    QString sAliasList;                    // "name=directory," again and again
    FixedArray<QString, 0, 99> AliasTable; // the same entries without their commas; the first empty one ends them
    Integer16 AliasAttr;                   // attributes of the list's file at its last reading
    Integer16 NoSplash;                    // 1: the splash isn't shown
};

// What the mouse did on the map; twips on the picture.
struct MapMouseState {
    Integer16 DownX;
    Integer16 DownY;
    Integer16 BoxX; // position of the box at hand
    Integer16 BoxY;
    Integer16 BoxLeft;
    Integer16 BoxTop;
    Integer16 BoxIdx; // the box that a press hit
    Integer16 BoxMiss;
    QString sCoords;
};

struct RecordState {
    QString sCurFile; // `File` of the record at hand
    QString sPicFile; // and its picture's name
    QString sPicSuffix;
    QString sForeName;
    QString sAltName;         // forename of a record of another branch
    QString sShownName;       // forename when the map last opened the record form
    QString sClipText;        // selected at the last click in a box of the record form
    Integer16 ClipSource;     // that box's number, 0 for none
    Integer16 RecordScanMode; // 1 fast forward, 2 forward, 3 stopped, 4 back, 5 fast back
    Bookmark SavedBookmark;
};

// The values of `ScanState` that the gallery knows.
namespace GalleryScan
{
inline constexpr int Browsing = 0;
inline constexpr int ItemOpen = 1;
inline constexpr int Deleting = 6; // the next click on a tile deletes its file
} // namespace GalleryScan

struct GalleryState {
    Integer16 FirstShow;  // 1: the page must be built before it is shown
    Integer16 GalleryTop; // the highest subscript of the page, and so the index of the empty tile behind it
    Integer16 GallerySel; // the tile last clicked
    // Where the tile of an enlarged picture stood; twips.
    Integer16 GalSaveTop;
    Integer16 GalSaveHeight;
    Integer16 GalSaveWidth;
    QString GalSaveLeft;
    QImage TilePicture;              // what the tile of an enlarged picture showed
    std::optional<int> EnlargedTile; // none: no picture is open
    qint64 EditorTask = 0;
    int Page = 0; // grows with every page that is begun, and when a page has gone with its window
    // Whose files are on the page, and where they are, with a trailing separator. Cursor and branch may have gone on
    // since: what is opened, added or deleted goes by what the user sees.
    QString PageRecord;
    QString PageDirectory;
    QString PageForename; // of that record, and its surname, as the record form last showed them
    QString PageSurname;
};

// Whom one side of the comparison shows. Numbers don't tell: two people may have the same.
struct ShownRecord {
    QString Directory; // of the branch
    Bookmark Record;   // none: nobody
    friend bool operator==(const ShownRecord&, const ShownRecord&) = default;
};

// The comparison of the open branch with another one.
struct CompareState {
    QString sCompDbFile; // "LfgDat_B.mdb"
    QString sCompDir;    // with a trailing separator
    QString sCompName;
    Integer16 SearchMask; // the keys that a pair must agree on, see `CompareKey`; 8 while a compare branch is asked for
    bool IsChoosing = false; // a compare branch is asked for: a search meanwhile changes the mask, not the request
    Integer16 FieldStep;     // where the search for differences goes on: 0 and 1 at the first field, 23 behind the last
    Integer16 SearchEnded;   // 1: a recordset has run out
    Integer16 ResetDone;     // 1 from Reset to the next Search
    QString sCompField;      // the field on show
    QString sSelText;        // selected at the last click in a box of the window
    Integer16 SelBox;        // that box's number, 1 to 4, 0 for none
    ShownRecord ShownCurrent;
    ShownRecord ShownCompare;
    // The numbers of appended records that have been seen, as long as the window lives.
    FixedArray<QString, 0, 99> ZNumberTable;
};

// The export of a branch, between its two stages.
struct ExportState {
    QString sExportSource; // the database that was chosen
};

struct BookmarkState {
    static constexpr int Last = 100;
    FixedArray<QString, 0, Last> BookmarkList; // numbers of records; the first empty one ends them
    Integer16 BookmarkCount;
};

struct OutputState {
    Integer16 PrintToPrinter;             // 1: the map's draw routines write to the page instead of the picture
    Surface* Page = nullptr;              // the printer's page while that is so
    Integer16 OutputMode;                 // where records are being put out to, see output/OutputMode.h
    std::unique_ptr<TextWriter> TextFile; // the one that is open for output
};

// The columns of a row of the lineage's table: numbers of records, and "Fam" or nothing in the first.
namespace LineageColumn
{
inline constexpr int Fam = 0;  // all offspring have one mother
inline constexpr int Indi = 1; // whose row it is; an empty one ends the table
inline constexpr int Spse = 2;
inline constexpr int Pa = 3;
inline constexpr int Ma = 4;
inline constexpr int Sib1 = 5; // the first of six offspring
inline constexpr int Sib4 = 8;
inline constexpr int Last = 14; // nothing is ever put behind the six, which ends them
} // namespace LineageColumn

// The lineage that goes with a GEDCOM file.
struct LineageState {
    static constexpr int LastRow = 99;
    static constexpr int LastMother = 10;
    using Row = FixedArray<QString, 0, LineageColumn::Last>;

    FixedArray<Row, 0, LastRow> LineageArr;
    FixedArray<QString, 0, LastMother> MaArray; // the mothers of a row's offspring, in their order
    Integer16 MaDiffer;                         // how often two neighbours there differ
    QString sLineageCount;                      // rows of the line of forebears
    std::unique_ptr<SequentialFile> GedcomFile; // the one that is being written
};

// Shared by all routines. They carry no state between commands, but some routines read what a called one left there.
struct ScratchState {
    Integer16 ScanState; // one word for gallery, comparison and GEDCOM conversion, none of which resets the others'
    int IdxA = 0;
    int IdxB = 0;
    int LenScratch = 0;
    QString sFileA;
    QString sFileB;
    QString sNewDir; // written by several commands; the searches and the gallery rely on the last writer
    QString sPath;
    QString sInput;
};

// One run of the program: the machine it runs on, all its state, and its windows.
struct Program {
    explicit Program(const Platform& platform);

    lineforge::Prompts& Prompts;
    EventLoop& Loop;
    lineforge::Screen& Screen;
    lineforge::Clipboard& Clipboard;
    lineforge::Processes& Processes;
    lineforge::Printer Printer;
    QString ExecutableDirectory;
    QString FirstHome; // in which the run begins, with a trailing separator
    FileSystem Files;
    lineforge::Databases Databases;
    // Databases of older installations that could not be taken in this run, so that a map which shows their people
    // doesn't ask at each drawing.
    QSet<FileIdentity> RefusedDatabases;
    PictureCache Pictures;
    lineforge::Thumbnails Thumbnails;
    ErrorState Errors;

    BranchState Branch;
    AliasState Alias;
    ToolState Tools;
    MapState Map;
    MapMouseState Mouse;
    MappingState Mapping;
    RecordState Record;
    GalleryState Gallery;
    CompareState Compare;
    ExportState Export;
    BookmarkState Bookmarks;
    OutputState Output;
    LineageState Lineage;
    GedcomState Gedcom;
    ScratchState Scratch;

    Window<forms::form9> form9;
    Window<forms::Form1> Form1;
    Window<forms::Form2> Form2;
    Window<forms::Form3> Form3;
    Window<forms::Form4> Form4;
    Window<forms::Form5> Form5;
    Window<forms::Form6> Form6;
    Window<forms::Form7> Form7;
    Window<forms::Form8> Form8;
    Window<forms::Form11> Form11;
    Window<forms::Form12> Form12;
};

} // namespace lineforge
