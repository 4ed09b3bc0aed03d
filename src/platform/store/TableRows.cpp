#include "platform/store/TableRows.h"

#include "platform/base/RuntimeError.h"
#include "platform/base/Text.h"
#include "platform/store/OtherPrograms.h"

#include <QScopeGuard>

#include <algorithm>
#include <cstring>
#include <limits>
#include <numeric>
#include <ranges>
#include <span>

namespace lineforge
{

namespace
{
constexpr std::int64_t beforeAllRows = std::numeric_limits<std::int64_t>::min();
constexpr std::int64_t behindAllRows = std::numeric_limits<std::int64_t>::max();

// What is no number of the engine's stays the last.
std::int64_t NumberAfter(std::int64_t row)
{
    return row == behindAllRows ? row : row + 1;
}

std::uint64_t Mixed(std::uint64_t print, std::uint64_t word)
{
    constexpr std::uint64_t oddFactor = 0x9E3779B97F4A7C15;
    print = (print ^ word) * oddFactor;
    return print ^ (print >> 32);
}

// Eight bytes at a time: the toolkit's own hash takes longer than all reading of a row.
std::uint64_t Mixed(std::uint64_t print, QByteArrayView bytes)
{
    print = Mixed(print, static_cast<std::uint64_t>(bytes.size()));
    while (!bytes.isEmpty()) {
        std::uint64_t word = 0;
        const qsizetype length = std::min<qsizetype>(bytes.size(), sizeof word);
        std::memcpy(&word, bytes.data(), static_cast<std::size_t>(length));
        print = Mixed(print, word);
        bytes = bytes.sliced(length);
    }
    return print;
}

std::uint32_t NextSerial()
{
    static std::uint32_t last = 0;
    return ++last;
}

// Where the entries stand in the order of one of their prints; those of the same print in stored order.
template <class Entries, class PrintOf>
std::vector<std::size_t> OrderedBy(const Entries& entries, std::vector<std::size_t> places, PrintOf&& printOf)
{
    std::ranges::stable_sort(places, {}, [&](std::size_t place) { return printOf(entries[place]); });
    return places;
}

std::vector<std::size_t> AllPlaces(std::size_t count)
{
    std::vector<std::size_t> places(count);
    std::iota(places.begin(), places.end(), std::size_t{0});
    return places;
}

using Places = std::span<const std::size_t>;

// Hands over the places of each print that stands on both sides.
template <class Entries, class PrintOf, class Take>
void ForEachPrint(const Entries& a, const std::vector<std::size_t>& placesA, const Entries& b,
                  const std::vector<std::size_t>& placesB, PrintOf&& printOf, Take&& take)
{
    const std::vector<std::size_t> orderA = OrderedBy(a, placesA, printOf);
    const std::vector<std::size_t> orderB = OrderedBy(b, placesB, printOf);
    for (Places restA(orderA), restB(orderB); !restA.empty() && !restB.empty();) {
        const auto print = std::max(printOf(a[restA.front()]), printOf(b[restB.front()]));
        const auto cut = [&](const Entries& entries, Places& rest) {
            const auto low = std::ranges::find_if(rest, [&](auto at) { return printOf(entries[at]) >= print; });
            const auto high = std::find_if(low, rest.end(), [&](auto at) { return printOf(entries[at]) > print; });
            const Places run(low, high);
            rest = Places(high, rest.end());
            return run;
        };
        const Places runA = cut(a, restA);
        const Places runB = cut(b, restB);
        if (!runA.empty() && !runB.empty())
            take(runA, runB);
    }
}
} // namespace

RowPlace Renumbering::PlaceOf(std::int64_t before) const
{
    const auto row = std::ranges::lower_bound(Rows, before, {}, &Row::Before);
    if (row == Rows.end() || row->Before != before || row->Fate == RowFate::Gone)
        return GapAfter(before);
    return {row->Now, row->Now, row->Fate};
}

RowPlace Renumbering::GapAfter(std::int64_t before) const
{
    auto row = std::ranges::upper_bound(Rows, before, {}, &Row::Before);
    while (row != Rows.begin() && (row - 1)->Fate == RowFate::Gone)
        --row;
    const std::int64_t last = row == Rows.begin() ? beforeAllRows : (row - 1)->Now;
    return {last, NumberAfter(last), RowFate::Gone};
}

TableRows::TableRows(const QByteArray& table) : table_(table), serial_(NextSerial()) {}

void TableRows::Attach(Connection& file)
{
    auto failed = qScopeGuard([this] { Detach(); });
    file_ = &file;
    file.Others().Patiently(file.Path(), [&](int milliseconds) {
        file.BePatient(milliseconds);
        Prepare();
    });
    failed.dismiss();
}

void TableRows::Detach()
{
    file_ = nullptr;
    version_.reset();
    one_.reset();
}

void TableRows::Prepare()
{
    names_ = file_->Prepare("SELECT * FROM " + table_)->ColumnNames();
    fields_.clear();
    for (const QString& name : names_)
        fields_ += (fields_.isEmpty() ? "" : ", ") + Quoted(name.toUtf8());
    version_ = file_->Prepare("PRAGMA data_version");
    one_ = file_->Prepare("SELECT " + fields_ + " FROM " + table_ + " WHERE rowid = ?1");
    opening_ = file_->Opening();
    seenVersion_.reset();
    file_->RequireTable(table_, names_);
}

TableRows::Hold::Hold(TableRows& rows, Notices notices) : rows_(rows)
{
    rows_.Take();
    auto failed = qScopeGuard([this] { rows_.Release(); });
    if (notices == Notices::Yes)
        rows_.Notice();
    failed.dismiss();
}

TableRows::Hold::~Hold()
{
    rows_.Release();
}

void TableRows::Take()
{
    if (holds_ == 0)
        Lock();
    ++holds_;
}

void TableRows::Release()
{
    if (--holds_ == 0)
        version_->Reset();
}

void TableRows::Lock()
{
    file_->Others().Patiently(file_->Path(), [this](int milliseconds) {
        file_->BePatient(milliseconds);
        file_->FollowUsableFile();
        if (opening_ != file_->Opening())
            Prepare();
        version_->Step();
    });
}

void TableRows::Notice()
{
    const std::int64_t version = version_->Integer(0);
    if (version == seenVersion_)
        return;
    Entries now = ReadAll();
    // Before that there was nobody who could remember a row.
    if (entries_ && now != *entries_)
        steps_.push_back(std::make_unique<const Renumbering>(StepBetween(*entries_, now)));
    entries_ = std::move(now);
    seenVersion_ = version;
    highest_ = Highest();
}

TableRows::Print TableRows::PrintAt(const Statement& row) const
{
    Print print;
    for (int column = 0; column < static_cast<int>(names_.size()); ++column) {
        // Nothing is not the same as an empty text.
        print.Content = Mixed(print.Content, 1);
        if (row.IsNull(column))
            continue;
        const QByteArrayView bytes = row.Bytes(column);
        print.Content = Mixed(print.Content, bytes);
        if (column == 0 && !bytes.isEmpty())
            print.Name = std::max<std::uint64_t>(1, print.Content);
    }
    return print;
}

TableRows::Entries TableRows::ReadAll()
{
    Entries entries;
    entries.reserve(entries_ ? entries_->size() : 0);
    // The number comes last, so that the fields count from 0.
    const auto rows = file_->Prepare("SELECT " + fields_ + ", rowid FROM " + table_ + " ORDER BY rowid");
    const int fields = static_cast<int>(names_.size());
    while (rows->Step())
        entries.push_back({rows->Integer(fields), PrintAt(*rows)});
    return entries;
}

// Rows of the same content stand in the order in which they stood. One that has no equal is the same person's when it
// bears a name that nobody else has.
Renumbering TableRows::StepBetween(const Entries& before, const Entries& now)
{
    Renumbering step;
    for (const Entry& entry : before)
        step.Rows.push_back({entry.Row, entry.Row, RowFate::Gone});
    std::vector<bool> isKnown(now.size());
    const auto pair = [&](std::size_t a, std::size_t b, RowFate fate) {
        step.Rows[a].Now = now[b].Row;
        step.Rows[a].Fate = fate;
        isKnown[b] = true;
    };

    ForEachPrint(
        before, AllPlaces(before.size()), now, AllPlaces(now.size()),
        [](const Entry& entry) { return entry.Held.Content; },
        [&](Places a, Places b) {
            for (std::size_t at = 0; at < std::min(a.size(), b.size()); ++at)
                pair(a[at], b[at], a.size() == b.size() ? RowFate::Same : RowFate::Changed);
        });

    std::vector<std::size_t> lost = AllPlaces(before.size());
    std::erase_if(lost,
                  [&](std::size_t at) { return step.Rows[at].Fate != RowFate::Gone || before[at].Held.Name == 0; });
    std::vector<std::size_t> strange = AllPlaces(now.size());
    std::erase_if(strange, [&](std::size_t at) { return isKnown[at] || now[at].Held.Name == 0; });
    ForEachPrint(
        before, lost, now, strange, [](const Entry& entry) { return entry.Held.Name; },
        [&](Places a, Places b) {
            if (a.size() == 1 && b.size() == 1)
                pair(a.front(), b.front(), RowFate::Changed);
        });

    for (std::size_t at = 0; at < now.size(); ++at)
        if (!isKnown[at])
            step.Added.push_back(now[at].Row);
    return step;
}

RowPlace TableRows::Find(const RowMark& mark) const
{
    if (mark.Table != serial_ || mark.Numbering > Numbering())
        throw RuntimeError(ErrorNumber::NotABookmark, file_->Path());
    RowPlace place{mark.Row, mark.Row};
    for (std::uint32_t numbering = mark.Numbering; numbering < Numbering(); ++numbering) {
        const Renumbering& step = StepFrom(numbering);
        const RowFate fate = place.Fate;
        place = fate == RowFate::Gone ? step.GapAfter(place.After) : step.PlaceOf(place.After);
        place.Fate = std::max(place.Fate, fate);
    }
    return place;
}

TableRows::Print TableRows::PrintOf(std::int64_t row)
{
    one_->Bind(0, row);
    const Print print = one_->Step() ? PrintAt(*one_) : Print();
    one_->Reset();
    return print;
}

std::int64_t TableRows::Highest() const
{
    return entries_->empty() ? 0 : entries_->back().Row;
}

std::int64_t TableRows::NewNumber() const
{
    return NumberAfter(std::max(highest_, Highest()));
}

TableRows::Entries::iterator TableRows::EntryFrom(std::int64_t row)
{
    return std::ranges::lower_bound(*entries_, row, {}, &Entry::Row);
}

void TableRows::Put(std::int64_t row, const Print& print)
{
    const auto place = EntryFrom(row);
    if (place != entries_->end() && place->Row == row)
        place->Held = print;
    else
        entries_->insert(place, {row, print});
    highest_ = std::max(highest_, row);
}

void TableRows::Remove(std::int64_t row)
{
    if (const auto place = EntryFrom(row); place != entries_->end() && place->Row == row)
        entries_->erase(place);
}

} // namespace lineforge
