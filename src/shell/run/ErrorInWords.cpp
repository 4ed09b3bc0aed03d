#include "shell/run/ErrorInWords.h"

#include <algorithm>
#include <array>

namespace lineforge
{

using namespace Qt::StringLiterals;

namespace
{
struct Words {
    int Number;
    QStringView Text; // of what the error is about, which stands on the lines below
};

constexpr std::array<Words, 28> words{{
    {ErrorNumber::InvalidCall, u"The program can do nothing with this:"},
    {ErrorNumber::Overflow, u"This number is out of range:"},
    {ErrorNumber::OutOfMemory, u"The memory isn't enough for this:"},
    {ErrorNumber::Subscript, u"The list or table that is needed has no place of this number:"},
    {ErrorNumber::TypeMismatch, u"A number should stand where this stands:"},
    {ErrorNumber::FileNotFound, u"There is no such file:"},
    {ErrorNumber::DeviceIo, u"The disk failed at this:"},
    {ErrorNumber::FileAlreadyExists, u"A file of this name is there already:"},
    {ErrorNumber::DiskFull, u"The disk has no room left for this:"},
    {ErrorNumber::InputPastEnd, u"This file ends too early:"},
    {ErrorNumber::PermissionDenied, u"This isn't permitted with:"},
    {ErrorNumber::PathFileAccess, u"This can't be opened, made, changed or removed:"},
    {ErrorNumber::PathNotFound, u"There is no such directory:"},
    {ErrorNumber::ObjectNotSet, u"No database is open for this:"},
    {ErrorNumber::InvalidUseOfNull, u"This field has never been filled in:"},
    {ErrorNumber::ArrayElementMissing, u"This isn't in the window:"},
    {ErrorNumber::ArrayElementLoaded, u"This is in the window already:"},
    {ErrorNumber::InvalidPicture, u"This file is no picture that can be shown:"},
    {ErrorNumber::UpdateWithoutEdit, u"There is no change to store in this database:"},
    {ErrorNumber::NoCurrentRecord, u"No record is on show of this database:"},
    {ErrorNumber::DatabaseNotFound, u"This database isn't there, or can't be opened:"},
    {ErrorNumber::DatabaseReadOnly, u"This database can only be read:"},
    {ErrorNumber::TableNotFound, u"This database has no table of records:"},
    {ErrorNumber::RecordDeleted, u"The record has been deleted from this database:"},
    {ErrorNumber::RecordChanged, u"Another program has changed the record in this database:"},
    {ErrorNumber::DatabaseBusy, u"Another program is working on this database:"},
    {ErrorNumber::ItemNotFound, u"The records have no such field:"},
    {ErrorNumber::NotADatabase, u"This can't be read as a database of records:"},
}};

QString InWords(const RuntimeError& error)
{
    const auto known = std::ranges::find(words, error.Number, &Words::Number);
    return known == words.end() ? error.Subject : known->Text + u'\n' + error.Subject;
}
} // namespace

QString FatalText(const RuntimeError& error)
{
    const QString text = u"Run-time error '%1':\n\n%2"_s.arg(QString::number(error.Number), error.Text);
    return error.Subject.isEmpty() ? text : QString(text + u"\n\n" + InWords(error));
}

} // namespace lineforge
