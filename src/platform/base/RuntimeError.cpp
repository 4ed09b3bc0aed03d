#include "platform/base/RuntimeError.h"

#include <array>

namespace lineforge
{

using namespace Qt::StringLiterals;

namespace
{
struct KnownError {
    int Number;
    QStringView Text;
};

constexpr std::array<KnownError, 33> knownErrors{{
    {5, u"Invalid procedure call or argument"},
    {6, u"Overflow"},
    {7, u"Out of memory"},
    {9, u"Subscript out of range"},
    {13, u"Type mismatch"},
    {52, u"Bad file name or number"},
    {53, u"File not found"},
    {55, u"File already open"},
    {57, u"Device I/O error"},
    {58, u"File already exists"},
    {61, u"Disk full"},
    {62, u"Input past end of file"},
    {70, u"Permission denied"},
    {75, u"Path/File access error"},
    {76, u"Path not found"},
    {91, u"Object variable not set"},
    {94, u"Invalid use of Null"},
    {321, u"Invalid file format"},
    {340, u"Control array element doesn't exist"},
    {360, u"Object already loaded"},
    {481, u"Invalid picture"},
    {482, u"Printer error"},
    {3020, u"Update or CancelUpdate without AddNew or Edit."},
    {3021, u"No current record."},
    {3024, u"Couldn't find the database file."},
    {3027, u"Can't update. Database or object is read-only."},
    {3078, u"The database engine can't find the input table."},
    {3159, u"Not a valid bookmark."},
    {3167, u"Record is deleted."},
    {3197, u"Couldn't update; changed by another program."},
    {3260, u"Couldn't update; currently locked."},
    {3265, u"Item not found in this collection."},
    {3343, u"Unrecognized database format."},
}};
} // namespace

QString RuntimeErrorText(int number)
{
    for (const KnownError& known : knownErrors)
        if (known.Number == number)
            return known.Text.toString();
    return u"Application-defined or object-defined error"_s;
}

RuntimeError::RuntimeError(int number, QString subject)
    : Number(number), Text(RuntimeErrorText(number)), Subject(std::move(subject))
{
}

} // namespace lineforge
