#include "gedcom/report/GedLines.h"

#include "gedcom/report/GedFields.h"

#include <algorithm>

namespace lineforge
{

GedLines::GedLines(const QByteArray& source)
{
    constexpr qsizetype shortest = 4;
    text_.reserve(source.size());
    for (const char character : source) {
        runsOff_ = false;
        if (!IsLineEnd(character)) {
            text_ += character;
        } else if (text_.size() - tailAt_ < shortest) {
            runsOff_ = true;
        } else {
            Add(tailAt_);
            tailAt_ = text_.size();
        }
    }
}

void GedLines::Add(qsizetype at)
{
    const qint32 number = static_cast<qint32>(lines_.size());
    const GedFields fields = FieldsOf(QByteArrayView(text_).sliced(at));
    const bool hasValue = !fields.Value.isEmpty();
    lines_.push_back({at, hasValue ? number : static_cast<qint32>(LastValued(number - 1))});
    if (fields.Level == "0")
        records_.push_back(number);
    tagged_[fields.Tag.toByteArray().toLower()].push_back(number);
}

QByteArrayView GedLines::Text(qsizetype line) const
{
    const auto index = static_cast<std::size_t>(line);
    const qsizetype end = index + 1 < lines_.size() ? lines_[index + 1].At : tailAt_;
    return QByteArrayView(text_).sliced(lines_[index].At, end - lines_[index].At);
}

qsizetype GedLines::FirstFrom(const Numbers& numbers, qsizetype from) const
{
    const auto found = std::ranges::lower_bound(numbers, from);
    return found == numbers.end() ? Count() : *found;
}

const GedLines::Numbers& GedLines::Tagged(const QByteArray& tag) const
{
    static const Numbers none;
    const auto found = tagged_.constFind(tag.toLower());
    return found == tagged_.constEnd() ? none : *found;
}

qsizetype GedLines::NextTagged(const QByteArray& tag, qsizetype from) const
{
    return FirstFrom(Tagged(tag), from);
}

qsizetype GedLines::NextRecord(qsizetype from) const
{
    return FirstFrom(records_, from);
}

qsizetype GedLines::LastValued(qsizetype line) const
{
    return line < 0 ? -1 : lines_[static_cast<std::size_t>(line)].LastValued;
}

qsizetype GedLines::BehindTagged(const QByteArray& tag, qsizetype from, qsizetype n, qsizetype& passed) const
{
    const Numbers& numbers = Tagged(tag);
    const auto first = std::ranges::lower_bound(numbers, from);
    const auto end = std::ranges::lower_bound(numbers, NextRecord(from));
    passed = std::clamp<qsizetype>(n, 0, std::max<qsizetype>(end - first - 1, 0));
    return passed == 0 ? from : *(first + (passed - 1)) + 1;
}

} // namespace lineforge
