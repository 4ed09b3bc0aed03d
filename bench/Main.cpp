#include "RatioReporter.h"

#include <QGuiApplication>

using lineforge::bench::Measure;
using lineforge::bench::RatioReporter;

int main(int argc, char* argv[])
{
    qputenv("QT_QPA_PLATFORM", "offscreen");
    QGuiApplication application(argc, argv);
    benchmark::Initialize(&argc, argv);
    RatioReporter reporter({
        {"start to a shown main window, by that of a window with a menu bar and a label", "StartLineforge",
         "StartEmpty", 1.25},
        {"the memory of the idle program with the example branch above that window's, in MB", "IdleMemory",
         "IdleMemoryEmpty", 25, Measure::More},
        {"how often it is woken in two seconds more than that", "IdleWakings", "IdleWakingsEmpty", 0, Measure::More},
        {"a walk over 100,000 rows, by bare SQLite calls", "WalkRecordset", "WalkBare", 1.1},
        {"a double click on the last of 100,000 people, by a bare walk to her", "DoubleClickLast", "WalkBareToLast",
         1.2},
        {"opening a branch with 10 siblings, by reading their files once", "OpenBranch", "ReadFilesBare", 3.0},
        {"a word that is in none of 100,000 records, by the engine's own comparison", "SearchWordWithoutHit",
         "SearchWordBare", 1.0},
        {"the text file of 100,000 records, by bare SQLite calls and one file", "WriteTextFile", "WriteTextBare", 1.4},
        {"a full map of 200 lines, 100 boxes and 200 texts drawn anew, by painting them", "RedrawFullMap",
         "PaintFullMap", 1.5},
        {"one move of a zone that holds all of these, by painting what it paints", "DragFullZone", "PaintFullZone",
         1.5},
        {"one move of a chain of 50 lines, by painting them", "DragChain", "PaintChain", 1.5},
        {"a step of the scanner onto a 12-megapixel picture seen before, by decoding it", "ScannerStep",
         "DecodePortrait", 0.02},
        {"the first picture of a page of 98 photographs of 12 megapixels, by decoding it", "GalleryFirstPicture",
         "DecodeFirst", 1.5},
        {"all of them, by decoding them on all cores", "GalleryPage", "DecodeAll", 1.2},
        {"the longest time between two of them in which nobody is served, by decoding one", "GalleryLongestPause",
         "DecodeFirst", 1.5},
        {"the same page again, by decoding one of its pictures", "GalleryPageAgain", "DecodeFirst", 0.5},
        {"where-same by surname over 2,500 x 2,500 without a match, by the double loop", "WhereSame2500",
         "DoubleLoop2500", 0.05},
        {"over twice as many", "WhereSame5000", "WhereSame2500", 2.6},
        {"over four times as many", "WhereSame10000", "WhereSame2500", 5.2},
        {"over four times as many, by looking them up in a set", "WhereSame10000", "JoinSurnamesBare", 3.0},
        {"field differences over 10,000 equal pairs, by comparing their fields", "EqualPairs10000", "CompareFieldsBare",
         3.0},
        {"a GEDCOM file of 1.4 MB and 15 families as a report, by passing its lines for each reference",
         "ConvertLargeFile", "PassLargeSource", 1.5},
        {"a run that ends when the children can't be counted any more, likewise", "ConvertWithoutEnd",
         "PassSourceWithoutEnd", 1.5},
        {"the memory that it takes, by that of the lines that it shows", "MemoryWithoutEnd", "MemoryOfReport", 1.5},
        {"the export of a branch of 2,000 files of 1 MB, by cp -r and sync", "ExportLargeBranch", "CopyLargeBranch",
         1.3},
        {"50,000 records of an older installation, by the export of their library", "ConvertOldDatabase",
         "ExportOldDatabase", 3.0},
    });
    benchmark::RunSpecifiedBenchmarks(&reporter);
    return reporter.AllKept() ? 0 : 1;
}
