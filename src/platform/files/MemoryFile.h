#pragma once

#include <QFile>

namespace lineforge
{

// A file that stands in no directory and is gone with this object: for libraries that write to a path, and don't look
// whether the disk has taken it.
//     const MemoryFile paper;
//     printer.setOutputFileName(paper.Path());
class MemoryFile
{
public:
    MemoryFile();

    // Opens it, within this process.
    QString Path() const;
    QByteArray Bytes() const;

private:
    QFile file_;
};

} // namespace lineforge
