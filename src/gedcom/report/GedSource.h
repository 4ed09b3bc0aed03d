#pragma once

#include "gedcom/report/GedLines.h"

#include <QByteArray>

#include <optional>

namespace lineforge
{

// The source of a conversion. Its bytes are read once, so that a run sees the file as it stood at the first opening;
// each opening goes back to the start. It is read by characters or by lines, not by both between two openings.
class GedSource
{
public:
    explicit GedSource(QByteArray bytes) : bytes_(std::move(bytes)) {}

    // RuntimeError 55 when it is open already. What follows is error 52 when it isn't.
    void Open();
    void Close() { isOpen_ = false; }

    bool AtEnd() const;
    // The next character; RuntimeError 62 when there is none.
    char Next();

    // All lines, whichever has been reached.
    const GedLines& Lines();
    // The next line to be read: their count when that is the tail, one more when nothing is left.
    qsizetype Line() const { return line_; }
    void GoToLine(qsizetype line) { line_ = line; }

private:
    void RequireOpen() const;

    QByteArray bytes_;
    qsizetype at_ = 0;
    std::optional<GedLines> lines_;
    qsizetype line_ = 0;
    bool isOpen_ = false;
};

} // namespace lineforge
