#include "records/LiteralSession.h"

#include <algorithm>

namespace lineforge
{

using namespace Qt::StringLiterals;

namespace
{
// The field that is compared, what the frames say of it, and what is kept as its name.
struct Row {
    QString Field;
    QString Caption;
    QString Kept;
};
const std::vector<Row> rows{{u"Surname"_s, u"Surname"_s, u"Surname"_s},
                            {u"Forename"_s, u"Forename"_s, u"Forename"_s},
                            {u"Maiden"_s, u"Maiden Name"_s, u"Maiden"_s},
                            {u"Nationality"_s, u"Nationality"_s, u"Nation"_s},
                            {u"FatherRec"_s, u"Fathers Record"_s, u"Father"_s},
                            {u"MotherRec"_s, u"Mothers Record"_s, u"Mother"_s},
                            {u"BirthDate"_s, u"Birth Date"_s, u"BirthDate"_s},
                            {u"BirthPlace"_s, u"Birth Place"_s, u"BirthPlace"_s},
                            {u"Spouse"_s, u"Spouse"_s, u"Spouse"_s},
                            {u"Children"_s, u"Children"_s, u"Children"_s},
                            {u"Partner"_s, u"Partner"_s, u"Partner"_s},
                            {u"PrevChildren"_s, u"Previous Children"_s, u"PrevChildren"_s},
                            {u"Maiden"_s, u"Maiden Name"_s, u"Maiden"_s},
                            {u"Wedding"_s, u"Wedding"_s, u"Wedding"_s},
                            {u"BirthCertificate"_s, u"Birth Certificate"_s, u"BirthCertificate"_s},
                            {u"MarriageCertificate"_s, u"Marriage Certificate"_s, u"MarriageCertificate"_s},
                            {u"DeathCertificate"_s, u"Death Certificate"_s, u"DeathCertificate"_s},
                            {u"Education"_s, u"Education"_s, u"Education"_s},
                            {u"Profession"_s, u"Profession"_s, u"Profession"_s},
                            {u"Deceased"_s, u"Deceased"_s, u"Deceased"_s},
                            {u"Medical"_s, u"Notes(1)"_s, u"Medical"_s},
                            {u"Notes"_s, u"Notes(2)"_s, u"Notes"_s}};

const Colour red = Rgb(220, 0, 0);
const Colour byHand = Rgb(200, 0, 0);
const Colour green = Rgb(0, 220, 0);
const Colour darkGreen = Rgb(0, 200, 0);
} // namespace

void LiteralSession::EndAt(const QString& which)
{
    Tell(which + u" Database End of File", u"End of "_s + which + u" Database Records");
    ShowFields({}, {});
    SearchEnded = 1;
}

bool LiteralSession::Agrees() const
{
    const QString keys[] = {u"File"_s, u"Surname"_s, u"BirthDate"_s};
    for (int key = 0; key < 3; ++key) {
        const QString ours = Text(Current, keys[key]);
        if (IsKeyTicked[key] && (ours.isEmpty() || !IsSame(ours, Text(Compare, keys[key]))))
            return false;
    }
    return true;
}

void LiteralSession::SearchWhereSame()
{
    if (ScanState == 1) {
        ScanState = 0;
        MoveNext(Compare);
        if (Compare.Eof) {
            MoveFirst(Compare);
            if (!Current.Eof)
                MoveNext(Current);
        }
        if (Current.Eof) {
            EndAt(u"Current"_s);
            Light = red;
            return;
        }
    }
    while (!Current.Eof && !Compare.Eof) {
        if (Agrees()) {
            ScanState = 2;
            FieldStep = 0;
            Theirs.Picture = PictureIn(CompLetter, Text(Compare, u"File"_s));
            return;
        }
        MoveNext(Compare);
        if (Compare.Eof) {
            MoveFirst(Compare);
            MoveNext(Current);
        }
    }
    MoveFirst(Compare);
    Tell(u"Database End of File"_s, u"End of Database Records"_s);
    SetCaptions(u"End of Records search "_s, u"End of Records search"_s);
    ShowFields({}, {});
    ScanState = 3;
}

// Without any there is none to be taken for another.
bool LiteralSession::IsFieldNamed(const LiteralSide& side) const
{
    return CompField.isEmpty() || std::ranges::any_of(rows, [&](const Row& row) {
               return side.FieldCaption == u"Field: "_s + row.Caption && row.Kept == CompField;
           });
}

// Shows what differs first of the pair, from the row on at which the walk stands.
bool LiteralSession::FindDifference()
{
    for (int row = std::max(1, FieldStep); row <= static_cast<int>(rows.size()); ++row) {
        const auto& [field, caption, kept] = rows[static_cast<std::size_t>(row - 1)];
        const QString ours = Text(Current, field);
        const QString theirs = Text(Compare, field);
        if (IsSame(ours, theirs))
            continue;
        SetCaptions(u"Field: "_s + caption, u"Field: "_s + caption);
        CompField = kept;
        FieldStep = row + 1;
        ShowFields(ours, theirs);
        Ours.Forename = Text(Current, u"Forename"_s);
        Theirs.Forename = Text(Compare, u"Forename"_s);
        Light = darkGreen;
        return true;
    }
    return false;
}

void LiteralSession::SearchFields()
{
    if (ScanState == 3 || SearchEnded == 1)
        return;
    if (Current.Eof || RequireCompare().Eof) {
        EndAt(Current.Eof ? u"Current"_s : u"Compare"_s);
        SetCaptions(u"End of Records Field search "_s, u"End of Records Field search"_s);
        return;
    }
    for (;;) {
        // The whole pair, wherever the window shows another one.
        const bool isOnShow = !IsElsewhere(Ours, Current) && !IsElsewhere(Theirs, Compare);
        if (FieldStep <= 1 || !isOnShow) {
            ShowSide(Ours, ReadSide(Current, true));
            ShowSide(Theirs, ReadSide(Compare, true));
        }
        if (FindDifference())
            return;
        FieldStep = 0;
        if (ScanState == 2) {
            ShowFields({}, {});
            SetCaptions(u"End of Fields this Record"_s, u"End of Fields this Record"_s);
            Light = darkGreen;
            ScanState = 1;
            return;
        }
        MoveNext(Compare);
        if (!Compare.Eof)
            continue;
        MoveFirst(Compare);
        MoveNext(Current);
        if (!Current.Eof) {
            Light = green;
            ShowPair();
            ShowFields({}, {});
            SetCaptions(u"Field:"_s, u"Field:"_s);
            return;
        }
        Tell(u"Database End of File"_s, u"End of Database Records"_s);
        Light = green;
        SetCaptions(u"End of Records Field search "_s, u"End of Records Field search"_s);
        ShowFields({}, {});
        SearchEnded = 1;
        return;
    }
}

void LiteralSession::SearchPairs()
{
    if (TellIfComparesAlternate() || SearchEnded == 1)
        return;
    Light = red;
    if (ResetDone == 1) {
        SetCaptions(u"Searching Record Fields"_s, u"Searching Record Fields"_s);
        ResetDone = 0;
    }
    const bool hasKey = IsKeyTicked[0] || IsKeyTicked[1] || IsKeyTicked[2];
    if (hasKey && ScanState < 2) {
        // With no record on one side only, where the walk ends isn't told.
        if (!Current.Eof && RequireCompare().Eof)
            throw Unmodelled();
        RequireCompare();
        SearchWhereSame();
    }
    SearchFields();
}

void LiteralSession::Reset()
{
    if (TellIfComparesAlternate())
        return;
    if (RequireCompare().IsEmpty() || Current.IsEmpty())
        return Tell(u"Database Empty"_s, u"The Database has no records to access"_s);
    SearchEnded = 0;
    Light = red;
    MoveFirst(Current);
    MoveFirst(Compare);
    ResetDone = 1;
    ShowFields({}, {});
    SetCaptions(u"Field"_s, u"Field"_s);
    Light = green;
    ShowPair();
    ScanState = 0;
    FieldStep = 0;
}

void LiteralSession::ForgetPair()
{
    if (ScanState == 2)
        ScanState = 0;
    if (FieldStep >= 2 && FieldStep <= 18)
        FieldStep = 0;
}

void LiteralSession::Next(bool isCompare)
{
    if (TellIfComparesAlternate() || SearchEnded == 1)
        return;
    Light = byHand;
    ForgetPair();
    LiteralCursor& cursor = isCompare ? RequireCompare() : Current;
    if (!cursor.Eof)
        MoveNext(cursor);
    if (cursor.Eof) {
        EndAt(isCompare ? u"Compare"_s : u"Current"_s);
        Light = red;
        return;
    }
    ShowStepped(isCompare, false);
    Light = green;
}

void LiteralSession::StepCompareByBar(int direction)
{
    if (direction == -2)
        MoveFirst(Compare);
    if (direction == 2)
        MoveLast(Compare);
    if (direction == -1 && !Compare.Bof)
        MovePrevious(Compare);
    if (direction == -1 && Compare.Bof)
        MoveFirst(Compare);
    if (direction == 1 && !Compare.Eof)
        MoveNext(Compare);
    if (direction == 1 && Compare.Eof)
        MoveLast(Compare);
    ForgetPair();
    if (HasRow(Compare))
        ShowStepped(true, true);
}

} // namespace lineforge
