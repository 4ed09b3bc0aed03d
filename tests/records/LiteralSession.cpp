#include "records/LiteralSession.h"

namespace lineforge
{

using namespace Qt::StringLiterals;

namespace
{
const QStringList copiedFields{u"Surname"_s,          u"Forename"_s,
                               u"Nationality"_s,      u"FatherRec"_s,
                               u"MotherRec"_s,        u"BirthDate"_s,
                               u"BirthPlace"_s,       u"Spouse"_s,
                               u"Children"_s,         u"Education"_s,
                               u"Profession"_s,       u"Deceased"_s,
                               u"BirthCertificate"_s, u"MarriageCertificate"_s,
                               u"DeathCertificate"_s, u"Notes"_s,
                               u"Medical"_s,          u"Gender"_s,
                               u"Maiden"_s,           u"Partner"_s,
                               u"PrevChildren"_s,     u"Wedding"_s,
                               u"WedDate"_s};

} // namespace

// ---- the window

bool LiteralSession::TellIfComparesAlternate()
{
    return TellIfAlternate(u"Compare Record Data not available"_s,
                           u"Cannot compare this alternate Tree Branch Database record\n"
                           u"unless you de select this subject or change and open it's Tree Branch Database."_s);
}

void LiteralSession::Load()
{
    if (IsCompareLoaded)
        return;
    IsCompareLoaded = true;
    OpenName = BranchName;
    CompareName.clear();
    Ours = Theirs = {};
    for (bool& isTicked : IsKeyTicked)
        isTicked = false;
    GoesToCompare = true;
    ScanState = 0;
    ZNumbers.clear();
    SelText.clear();
    SelBox = 0;
    Light = 0;
}

void LiteralSession::NameBranch()
{
    Load();
    OpenName = BranchName;
}

void LiteralSession::UnloadComparison()
{
    IsCompareLoaded = IsCompareVisible = false;
    Compare = {};
}

// Two cursors on one table see each other's changes sooner or later, and the model doesn't say when.
void LiteralSession::Changing()
{
    if (Compare.IsOpen() && Compare.Letter == Current.Letter)
        throw Unmodelled();
}

LiteralCursor& LiteralSession::RequireCompare()
{
    if (!Compare.IsOpen())
        throw RuntimeError(ErrorNumber::ObjectNotSet, u"Manual Compare Search"_s);
    return Compare;
}

LiteralSide LiteralSession::ReadSide(const LiteralCursor& cursor, bool allowsNull) const
{
    const QChar letter = &cursor == &Current ? WorkLetter : CompLetter;
    LiteralSide side;
    side.Number = Text(cursor, u"File"_s);
    const LiteralField forename = Value(cursor, u"Forename"_s);
    if (!forename && !allowsNull)
        throw RuntimeError(ErrorNumber::InvalidUseOfNull,
                           u"Forename\nRecord "_s + side.Number + u'\n' + DirectoryOf(letter));
    side.Forename = forename.value_or(QString());
    side.Surname = Text(cursor, u"Surname"_s);
    side.Picture = PictureIn(letter, side.Number);
    side.Letter = letter;
    side.Id = cursor.Id;
    return side;
}

void LiteralSession::ShowSide(LiteralSide& side, const LiteralSide& read)
{
    side.Number = read.Number;
    side.Picture = read.Picture;
    side.Surname = read.Surname;
    side.Forename = read.Forename;
    side.Letter = read.Letter;
    side.Id = read.Id;
}

void LiteralSession::ShowPair()
{
    const LiteralSide ours = ReadSide(Current, false);
    const LiteralSide theirs = ReadSide(RequireCompare(), false);
    ShowSide(Ours, ours);
    ShowSide(Theirs, theirs);
    CompareName = CompName;
}

void LiteralSession::ShowStepped(bool isCompare, bool allowsNull)
{
    LiteralSide& side = isCompare ? Theirs : Ours;
    ShowSide(side, ReadSide(isCompare ? Compare : Current, allowsNull));
    side.FieldCaption = u"Field:"_s;
    side.Field.clear();
}

void LiteralSession::SetCaptions(const QString& ours, const QString& theirs)
{
    Ours.FieldCaption = ours;
    Theirs.FieldCaption = theirs;
}

void LiteralSession::ShowFields(const QString& ours, const QString& theirs)
{
    Ours.Field = ours;
    Theirs.Field = theirs;
}

void LiteralSession::OpenComparison()
{
    if (TellIfComparesAlternate())
        return;
    if (!HasBranch)
        return Tell(u"Data not available"_s, u"Cannot View until database file is Opened"_s);
    if (Current.IsEmpty())
        return Tell(u"Database Empty"_s, u"The Database has no records to access"_s);
    MoveFirst(Current);
    Load();
    ShowSide(Ours, ReadSide(Current, true));
    Ours.Field = Ours.Surname;
    Ours.FieldCaption = u"Field: Surname"_s;
    IsCompareButtonVisible = true;
    ResetDone = 0;
    IsCompareVisible = true;
}

void LiteralSession::ReturnToComparison()
{
    if (!IsCompareVisible)
        return OpenComparison();
    if (TellIfComparesAlternate())
        return;
    if (!HasRow(Current))
        return;
    PassOver([&] { Leaving(Current); });
    if (!IsElsewhere(Ours, Current)) {
        ShowSide(Ours, ReadSide(Current, true));
    } else {
        ForgetPair();
        ShowStepped(false, true);
    }
    if (HasRow(Compare) && !IsElsewhere(Theirs, Compare))
        ShowSide(Theirs, ReadSide(Compare, true));
}

void LiteralSession::CloseComparison()
{
    CurrentDirectory = DirectoryOf(WorkLetter);
    UnloadComparison();
    IsCompareButtonVisible = false;
    IsMapVisible = true;
}

void LiteralSession::CancelCompare()
{
    TellIfComparesAlternate();
}

void LiteralSession::OpenCompare(QChar letter)
{
    if (TellIfComparesAlternate())
        return;
    if (Current.IsEmpty())
        return Tell(u"Database Empty"_s, u"The Database has no records to access"_s);
    Compare = LiteralCursor(letter, Branches.at(letter));
    CompLetter = letter;
    if (Compare.IsEmpty()) {
        CompareName.clear();
        Theirs = {};
        return Tell(u"No Database records"_s, u"No Records in this Database"_s);
    }
    CompName = NameOf(letter);
    MoveFirst(Current);
    MoveFirst(Compare);
    ScanState = 0;
    FieldStep = 1;
    ResetDone = 0;
    ShowPair();
    SetCaptions(u"Field: Surname"_s, u"Field: Surname"_s);
    ShowFields(Ours.Surname, Theirs.Surname);
    CompField = u"Surname"_s;
    Light = Rgb(0, 200, 0);
}

// Whether the cursor stands on a record that the window doesn't show.
bool LiteralSession::IsElsewhere(const LiteralSide& side, const LiteralCursor& cursor) const
{
    const QChar letter = &cursor == &Current ? WorkLetter : CompLetter;
    return HasRow(cursor) && (side.Letter != letter || side.Id != cursor.Id);
}

void LiteralSession::ShowSidesAnew()
{
    ForgetPair();
    if (HasRow(Current))
        ShowStepped(false, true);
    if (HasRow(Compare))
        ShowStepped(true, true);
}

bool LiteralSession::IsSeen()
{
    const bool isSeen = !IsElsewhere(Ours, Current) && !IsElsewhere(Theirs, Compare);
    if (!isSeen)
        ShowSidesAnew();
    return isSeen;
}

bool LiteralSession::IsPairSeen()
{
    return !HasRow(Current) || !HasRow(Compare) || IsSeen();
}

// ---- copying

// Before the one side's change, which the record form shows, too.
void LiteralSession::StoreTypedIfOneRecord()
{
    if (HasRow(Current) && HasRow(Compare) && Current.Letter == Compare.Letter && Current.Id == Compare.Id)
        Leaving(Current);
}

LiteralCursor& LiteralSession::Target()
{
    return GoesToCompare ? RequireCompare() : Current;
}

void LiteralSession::CopyField()
{
    if (TellIfComparesAlternate() || !IsPairSeen())
        return;
    LiteralSide& side = GoesToCompare ? Theirs : Ours;
    const QString before = side.Field;
    try {
        StoreTypedIfOneRecord();
        LiteralCursor& to = Target();
        LiteralCursor& from = GoesToCompare ? Current : RequireCompare();
        const bool isField =
            CompField != u"Nation" && CompField != u"Father" && CompField != u"Mother" && !CompField.isEmpty();
        if (!isField || !IsFieldNamed(Ours) || !IsFieldNamed(Theirs))
            throw RuntimeError(ErrorNumber::ItemNotFound);
        const LiteralField value = Value(from, CompField);
        Edit(to);
        Put(to, CompField, value);
        side.Field = value.value_or(QString());
        Update(to);
    } catch (const RuntimeError&) {
        side.Field = before;
        if (!GoesToCompare || Compare.IsOpen())
            (GoesToCompare ? Compare : Current).Edit.reset();
        Tell(u"Copy Error"_s, u"There is no record to copy across."_s);
    }
}

void LiteralSession::CopyAllFields()
{
    if (TellIfComparesAlternate() || !IsPairSeen())
        return;
    StoreTypedIfOneRecord();
    LiteralCursor& to = Target();
    Edit(to);
    LiteralCursor& from = GoesToCompare ? Current : RequireCompare();
    for (const QString& field : copiedFields)
        Put(to, field, Value(from, field));
    Update(to);
}

void LiteralSession::Append()
{
    if (TellIfComparesAlternate())
        return;
    if (GoesToCompare && IsElsewhere(Ours, Current))
        return ShowSidesAnew();
    LiteralCursor& to = Target();
    const int saved = Bookmark(to);
    LiteralCursor& from = GoesToCompare ? Current : RequireCompare();
    MoveFirst(Compare);
    const LiteralField file = Value(from, u"File"_s);
    const QString branch = GoesToCompare ? u"Compare"_s : u"Current"_s;
    const QString lineFeed = GoesToCompare ? u"\n"_s : QString();
    for (; !to.Eof; MoveNext(to)) {
        if (const LiteralField there = Value(to, u"File"_s); file && there && IsSame(*there, *file)) {
            Tell(u"Append Error"_s, u"Record already exists in "_s + branch + u" Database." + lineFeed +
                                        u"Delete the record before appending or else copy " + lineFeed +
                                        u"the details to the existing record.");
            return GoBack(to, saved);
        }
        if (const QString compared = Text(Compare, u"File"_s); compared.startsWith(u'Z', Qt::CaseInsensitive)) {
            if (compared.right(3).toInt() > 99)
                throw Unmodelled();
            ZNumbers[compared.right(3).toInt()] = compared;
        }
    }
    QString number;
    for (int free = 99; free >= 1; --free)
        if (ZNumbers.value(free).isEmpty())
            number = u"Z%1"_s.arg(free, 3, 10, QChar(u'0'));
    MoveLast(to);
    const int checked = Bookmark(from);
    Tell(GoesToCompare ? u"Append Record to Database."_s : u"Append Compare Record to Current Database."_s,
         u"This Record will be Appended to the "_s + branch + u"\nDatabase as " + number +
             u" but will not be mapped into\nthe Ancestral Tree Display.");
    GoBack(from, checked);
    Edit(to);
    AddNew(to);
    Put(to, u"File"_s, number);
    for (const QString& field : copiedFields)
        Put(to, field, Value(from, field));
    ShowStepped(GoesToCompare, true);
    Update(to);
    (GoesToCompare ? Theirs : Ours).Id = to.LastModified;
}

// ---- the edit menu

QString& LiteralSession::BoxText(int number)
{
    QString* const boxes[] = {&Ours.Surname, &Ours.Field,    &Theirs.Surname,
                              &Theirs.Field, &Ours.Forename, &Theirs.Forename};
    return *boxes[number - 1];
}

void LiteralSession::TypeInBox(int number, const QString& text)
{
    BoxText(number) = text;
}

void LiteralSession::ClickCompareBox(int number, const QString& selection)
{
    SelText = selection;
    SelBox = number;
}

void LiteralSession::CopyCompare()
{
    Clipboard = SelText;
}

void LiteralSession::Store(const QString& text)
{
    const bool isField = SelBox == 2 || SelBox == 4;
    if (HasRow(SelBox <= 2 ? Current : Compare)) {
        if (!IsSeen())
            return;
        if (isField && !IsFieldNamed(SelBox == 2 ? Ours : Theirs)) {
            BoxText(SelBox) = text;
            return;
        }
    }
    LiteralCursor& cursor = SelBox <= 2 ? Current : RequireCompare();
    const QString field = isField ? CompField : u"Surname"_s;
    StoreTypedIfOneRecord();
    Edit(cursor);
    if (field == u"Nation" || field == u"Father" || field == u"Mother" || field.isEmpty())
        throw RuntimeError(ErrorNumber::ItemNotFound, field + u'\n' + DatabaseOf(cursor.Letter));
    Put(cursor, field, text);
    BoxText(SelBox) = text;
    Update(cursor);
}

void LiteralSession::CutCompare()
{
    if (TellIfComparesAlternate())
        return;
    CopyCompare();
    if (SelBox != 0)
        Store({});
}

void LiteralSession::PasteCompare()
{
    if (!TellIfComparesAlternate() && Clipboard && SelBox != 0)
        Store(*Clipboard);
}

} // namespace lineforge
