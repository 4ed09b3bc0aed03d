#include "RecordChecks.h"

#include "Failure.h"

#include <QRegularExpression>

namespace lineforge::makehome
{

using namespace Qt::StringLiterals;

namespace
{

// People of whom children may still live are nobody's example.
constexpr int lastYear = 1960;

[[noreturn]] void Refuse(const Record& record, const QString& message)
{
    throw FailureAt(record.sourcePath, record.sourceLine, record.Value(Field::File) + u": "_s + message);
}

void CheckNumbering(const Branch& branch)
{
    int number = 0;
    for (const Record& record : branch.records) {
        ++number;
        const QString expected = branch.letter + u"%1"_s.arg(number, 3, 10, QLatin1Char('0'));
        if (record.Value(Field::File) != expected) {
            Refuse(record, u"the next record of the branch must be %1"_s.arg(expected));
        }
    }
}

void CheckDates(const Record& record)
{
    static const QRegularExpression endsInYear(u"(^|\\s)\\d{4}$"_s);
    static const QRegularExpression anyYear(u"\\b\\d{4}\\b"_s);
    const QString& birth = record.Value(Field::BirthDate);
    if (!birth.isEmpty() && !endsInYear.match(birth).hasMatch()) {
        Refuse(record, u"BirthDate must end in the year"_s);
    }
    if (record.DeathYear().isEmpty()) {
        Refuse(record, u"Deceased must give a year: the example holds no living people"_s);
    }
    auto years = anyYear.globalMatch(record.Value(Field::Deceased));
    while (years.hasNext()) {
        if (years.next().captured().toInt() > lastYear) {
            Refuse(record, u"the example holds nobody who died after %1"_s.arg(lastYear));
        }
    }
    if (!birth.isEmpty() && record.BirthYear().toInt() > record.DeathYear().toInt()) {
        Refuse(record, u"died before being born"_s);
    }
}

void CheckPerson(const Record& record)
{
    if (record.Value(Field::Forename).isEmpty() || record.Value(Field::Surname).isEmpty()) {
        Refuse(record, u"a forename and a surname are needed"_s);
    }
    // The first forename goes into the map file, where these characters have a meaning.
    if (record.FirstForename().contains(u',') || record.FirstForename().contains(u'[')) {
        Refuse(record, u"the first forename must be free of commas and brackets"_s);
    }
    const QString& gender = record.Value(Field::Gender);
    if (gender != "Male"_L1 && gender != "Female"_L1) {
        Refuse(record, u"Gender must be Male or Female"_s);
    }
    CheckDates(record);
}

const Record& Linked(const QList<Branch>& branches, const Record& from, Field link)
{
    const Record* other = FindRecord(branches, from.Value(link));
    if (!other) {
        Refuse(from, u"links to %1, which is in none of the branches"_s.arg(from.Value(link)));
    }
    if (other == &from) {
        Refuse(from, u"links to itself"_s);
    }
    return *other;
}

void CheckSpouse(const QList<Branch>& branches, const Record& record)
{
    if (record.Value(Field::SpouseRec).isEmpty()) {
        return;
    }
    const Record& spouse = Linked(branches, record, Field::SpouseRec);
    if (spouse.Value(Field::SpouseRec) != record.Value(Field::File)) {
        Refuse(record, u"%1 does not name this record as spouse"_s.arg(record.Value(Field::SpouseRec)));
    }
    if (spouse.Value(Field::WedDate) != record.Value(Field::WedDate) ||
        spouse.Value(Field::Wedding) != record.Value(Field::Wedding)) {
        Refuse(record, u"%1 gives another wedding"_s.arg(record.Value(Field::SpouseRec)));
    }
    if (!record.Value(Field::Spouse).contains(spouse.FirstForename())) {
        Refuse(record, u"Spouse does not name %1"_s.arg(spouse.FirstForename()));
    }
}

void CheckParent(const QList<Branch>& branches, const Record& record, Field link, QLatin1StringView gender)
{
    if (record.Value(link).isEmpty()) {
        return;
    }
    const Record& parent = Linked(branches, record, link);
    if (parent.Value(Field::Gender) != gender) {
        Refuse(record, u"the parent %1 should be %2"_s.arg(record.Value(link), gender));
    }
    if (!parent.BirthYear().isEmpty() && !record.BirthYear().isEmpty() &&
        parent.BirthYear().toInt() >= record.BirthYear().toInt()) {
        Refuse(record, u"is older than the parent %1"_s.arg(record.Value(link)));
    }
    // Only a list of names can leave one out: where children are merely counted there is nothing to compare. A row of
    // names too long for its field is carried on in the notes.
    const QString& children = parent.Value(Field::Children);
    const QString named = children + parent.Value(Field::PrevChildren) + parent.Value(Field::Notes);
    if (children.contains(u',') && !named.contains(record.FirstForename())) {
        Refuse(record, u"%1 does not name this child"_s.arg(record.Value(link)));
    }
}

} // namespace

void CheckRecords(const QList<Branch>& branches)
{
    for (const Branch& branch : branches) {
        CheckNumbering(branch);
        for (const Record& record : branch.records) {
            CheckPerson(record);
            CheckSpouse(branches, record);
            CheckParent(branches, record, Field::FatherRec, "Male"_L1);
            CheckParent(branches, record, Field::MotherRec, "Female"_L1);
        }
    }
}

} // namespace lineforge::makehome
