#pragma once

#include "platform/base/FixedArray.h"
#include "platform/base/Number.h"
#include "platform/files/TextFile.h"

#include <QString>

#include <memory>

namespace lineforge
{

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
    Integer16 OutputMode;                 // where records are being put out to, see output/OutputMode.h
    std::unique_ptr<TextWriter> TextFile; // the one that is open for output
};

} // namespace lineforge
