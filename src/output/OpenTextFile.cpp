#include "output/OpenTextFile.h"

namespace lineforge
{

namespace
{
constexpr int fileNameLength = 12; // of "LfgDat_A.txt"
} // namespace

void OpenTextFile(OutputState& output, FileSystem& files, const QString& file, const QString& before)
{
    if (files.LookUpGivesTail(file, fileNameLength))
        files.FileCopy(file, before);
    output.TextFile = std::make_unique<TextWriter>(files, file);
}

void CloseTextFile(OutputState& output)
{
    const std::unique_ptr<TextWriter> file = std::move(output.TextFile);
    file->Close();
}

} // namespace lineforge
