#pragma once

#include <QString>

#include <vector>

namespace lineforge
{

// A line of a directory list.
struct DirectoryRow {
    QString Path;
    QString Name;
    int Depth;   // 0 for the root
    bool IsOpen; // the directory where the list stands, and those above it
};

// The directories from the root down to that one, and then those in it by name, hidden ones left out.
std::vector<DirectoryRow> DirectoryRows(const QString& path);

} // namespace lineforge
