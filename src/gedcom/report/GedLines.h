#pragma once

#include <QByteArray>
#include <QHash>

#include <vector>

namespace lineforge
{

// The lines of a source as seeks meet them, one seek beginning where the last one stopped, the first at the start. A
// line of less than four characters runs on into the next.
//
// A report seeks the same few tags again and again from the heads of the same records; where each of these seeks stops
// is looked up here instead of being read over.
class GedLines
{
public:
    explicit GedLines(const QByteArray& source);

    qsizetype Count() const { return static_cast<qsizetype>(lines_.size()); }
    // Without its end.
    QByteArrayView Text(qsizetype line) const;

    // The first line from that one on with this tag, or at level 0; the count when there is none.
    qsizetype NextTagged(const QByteArray& tag, qsizetype from) const;
    qsizetype NextRecord(qsizetype from) const;
    // The last line up to that one that has a third field; -1 when there is none.
    qsizetype LastValued(qsizetype line) const;

    // The line behind the n-th with this tag from that one on, but no record further and never behind the last such
    // line before its end. How many were passed is put in `passed`, at most `n`.
    qsizetype BehindTagged(const QByteArray& tag, qsizetype from, qsizetype n, qsizetype& passed) const;

    // What stands behind the last line: a line without an end, or one that is too short to end.
    QByteArrayView Tail() const { return QByteArrayView(text_).sliced(tailAt_); }
    // Whether reading the tail asks for a character behind the last one.
    bool RunsOff() const { return runsOff_; }

private:
    struct Line {
        qsizetype At;
        qint32 LastValued;
    };
    using Numbers = std::vector<qint32>;

    void Add(qsizetype at);
    const Numbers& Tagged(const QByteArray& tag) const;
    qsizetype FirstFrom(const Numbers& numbers, qsizetype from) const;

    QByteArray text_; // of all lines, one behind another
    std::vector<Line> lines_;
    Numbers records_;
    QHash<QByteArray, Numbers> tagged_; // by the tag in small letters
    qsizetype tailAt_ = 0;
    bool runsOff_ = false;
};

} // namespace lineforge
