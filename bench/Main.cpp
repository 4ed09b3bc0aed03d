#include "RatioReporter.h"

#include <QGuiApplication>

using lineforge::bench::RatioReporter;

int main(int argc, char* argv[])
{
    qputenv("QT_QPA_PLATFORM", "offscreen");
    QGuiApplication application(argc, argv);
    benchmark::Initialize(&argc, argv);
    RatioReporter reporter({
        {"a walk over 100,000 rows, by bare SQLite calls", "WalkRecordset", "WalkBare", 1.5},
        {"opening a branch with 10 siblings, by reading their files once", "OpenBranch", "ReadFilesBare", 3.0},
        {"a double click on the last of 100,000 people, by a bare walk to her", "DoubleClickLast", "WalkBareToLast",
         1.2},
        {"a step of the scanner onto a 12-megapixel picture seen before", "ScannerStep", "", 2.0},
        {"a full map of 200 lines, 100 boxes and 200 texts drawn anew", "RedrawFullMap", "", 10.0},
        {"one move of a zone that holds all of these", "DragFullZone", "", 4.0},
        {"one move of a chain of 50 lines", "DragChain", "", 1.0},
        {"a word that is in none of 100,000 records, by the engine's own comparison", "SearchWordWithoutHit",
         "SearchWordBare", 1.5},
        {"the text file of 100,000 records, by bare SQLite calls and one file", "WriteTextFile", "WriteTextBare", 2.0},
        {"where-same by surname over 2,500 x 2,500 without a match, by the double loop", "WhereSame2500",
         "DoubleLoop2500", 0.05},
        {"over twice as many", "WhereSame5000", "WhereSame2500", 2.6},
        {"over four times as many", "WhereSame10000", "WhereSame2500", 5.2},
        {"where-same by surname over 10,000 x 10,000 without a match", "WhereSame10000", "", 500.0},
        {"field differences over 10,000 equal pairs", "EqualPairs10000", "", 1000.0},
        {"the first picture of a page of 98 photographs of 12 megapixels", "GalleryFirstPicture", "", 150.0},
        {"all of them", "GalleryPage", "", 6000.0},
        {"the longest time between two of them in which nobody is served", "GalleryLongestPause", "", 250.0},
        {"the same page again", "GalleryPageAgain", "", 50.0},
        {"a GEDCOM file of 1.4 MB and 15 families as a report: 20 ms a family and 50", "ConvertLargeFile", "",
         15 * 20.0 + 50.0},
        {"a run that ends when the children can't be counted any more", "ConvertWithoutEnd", "", 3000.0},
        {"the memory that it takes, in MB", "MemoryWithoutEnd", "", 100.0},
        {"the export of a branch of 2,000 files of 1 MB, by cp -r", "ExportLargeBranch", "CopyLargeBranch", 1.3},
        {"50,000 records of an older installation, by the export of their library", "ConvertOldDatabase",
         "ExportOldDatabase", 3.0},
        {"the memory of the idle program with the example branch above an empty window's, in MB",
         "IdleMemoryAboveEmpty", "", 40.0},
        {"how often it is woken in two seconds more than that", "IdleWakingsAboveEmpty", "", 0.0},
        {"start to a shown main window, by an empty window's", "StartLineforge", "StartEmpty", 1.5},
    });
    benchmark::RunSpecifiedBenchmarks(&reporter);
    return reporter.AllKept() ? 0 : 1;
}
