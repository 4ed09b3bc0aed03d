#include "output/TextFile.h"

namespace lineforge
{

namespace
{
constexpr int fileNameLength = 12; // of "LfgDat_A.txt"
} // namespace

void OpenTextFile(Program& p, const QString& file, const QString& before)
{
    if (p.Files.LookUpGivesTail(file, fileNameLength))
        p.Files.FileCopy(file, before);
    p.Output.TextFile = std::make_unique<TextWriter>(p.Files, file);
}

void CloseTextFile(Program& p)
{
    const std::unique_ptr<TextWriter> file = std::move(p.Output.TextFile);
    file->Close();
}

} // namespace lineforge
