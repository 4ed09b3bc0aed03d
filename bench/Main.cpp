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
        {"start to a shown main window, by an empty window's", "StartLineforge", "StartEmpty", 1.5},
    });
    benchmark::RunSpecifiedBenchmarks(&reporter);
    return reporter.AllKept() ? 0 : 1;
}
