#include "records/LiteralRecords.h"

namespace lineforge
{

using namespace Qt::StringLiterals;

namespace
{
const QStringList copiedFields{u"FatherRec"_s,        u"MotherRec"_s,
                               u"Surname"_s,          u"Forename"_s,
                               u"Nationality"_s,      u"BirthDate"_s,
                               u"BirthPlace"_s,       u"Spouse"_s,
                               u"Children"_s,         u"Education"_s,
                               u"Profession"_s,       u"Deceased"_s,
                               u"BirthCertificate"_s, u"MarriageCertificate"_s,
                               u"DeathCertificate"_s, u"Notes"_s,
                               u"Medical"_s,          u"Gender"_s,
                               u"Maiden"_s,           u"Partner"_s,
                               u"PrevChildren"_s,     u"Wedding"_s,
                               u"WedDate"_s};

const QStringList wordFields{u"FatherRec"_s,        u"MotherRec"_s,
                             u"Surname"_s,          u"Forename"_s,
                             u"Nationality"_s,      u"BirthDate"_s,
                             u"BirthPlace"_s,       u"Spouse"_s,
                             u"Children"_s,         u"Education"_s,
                             u"Profession"_s,       u"Deceased"_s,
                             u"BirthCertificate"_s, u"MarriageCertificate"_s,
                             u"DeathCertificate"_s, u"Notes"_s,
                             u"Medical"_s,          u"Maiden"_s,
                             u"PrevChildren"_s,     u"Partner"_s,
                             u"Wedding"_s,          u"WedDate"_s};

// The box by its number, and how many characters it takes; 0 for no limit.
struct ClippedBox {
    QString Field;
    int Limit;
};
const std::vector<ClippedBox> clippedBoxes{{u"Nationality"_s, 0},       {u"Surname"_s, 30},
                                           {u"Forename"_s, 30},         {u"BirthDate"_s, 30},
                                           {u"BirthPlace"_s, 100},      {u"Spouse"_s, 100},
                                           {u"Children"_s, 100},        {u"Education"_s, 100},
                                           {u"Profession"_s, 100},      {u"Deceased"_s, 100},
                                           {u"Notes"_s, 255},           {u"Medical"_s, 255},
                                           {u"BirthCertificate"_s, 30}, {u"MarriageCertificate"_s, 30},
                                           {u"DeathCertificate"_s, 30}, {u"Maiden"_s, 30},
                                           {u"Partner"_s, 30},          {u"PrevChildren"_s, 100},
                                           {u"Wedding"_s, 100},         {u"WedDate"_s, 100},
                                           {u"FatherRec"_s, 30},        {u"MotherRec"_s, 30}};

// On the clipboard; the label is padded to 26 characters, 11 of them before it.
struct ClipLine {
    QString Label;
    QString Field;
    bool IsWrapped;
};
const std::vector<ClipLine> clipLines{{u"Surname:"_s, u"Surname"_s, false},
                                      {u"ForeNames:"_s, u"Forename"_s, false},
                                      {u"Maiden Name:"_s, u"Maiden"_s, false},
                                      {u"Gender:"_s, u"Gender"_s, false},
                                      {u"Nationality:"_s, u"Nationality"_s, false},
                                      {u"Father Rec:"_s, u"FatherRec"_s, false},
                                      {u"Mother Rec:"_s, u"MotherRec"_s, false},
                                      {u"Birth date:"_s, u"BirthDate"_s, false},
                                      {u"Birth Place:"_s, u"BirthPlace"_s, false},
                                      {u"Spouse:"_s, u"Spouse"_s, false},
                                      {u"Children:"_s, u"Children"_s, false},
                                      {u"Partner:"_s, u"Partner"_s, false},
                                      {u"Wedding Date:"_s, u"WedDate"_s, false},
                                      {u"Wedding Place:"_s, u"Wedding"_s, false},
                                      {u"Prev.Children:"_s, u"PrevChildren"_s, false},
                                      {u"Education:"_s, u"Education"_s, true},
                                      {u"Profession:"_s, u"Profession"_s, true},
                                      {u"Deceased:"_s, u"Deceased"_s, false},
                                      {u"Birth Cert."_s, u"BirthCertificate"_s, false},
                                      {u"Marriage Cert:"_s, u"MarriageCertificate"_s, false},
                                      {u"Death Cert:"_s, u"DeathCertificate"_s, false},
                                      {u"Notes(1):"_s, u"Medical"_s, true},
                                      {u"Notes(2):"_s, u"Notes"_s, true}};

const QStringList patterns{u""_s,    u"smith"_s, u"SM"_s,     u"Jones"_s, u"o"_s, u"a"_s,     u"A00"_s, u"*"_s,
                           u"m?r"_s, u"#"_s,     u"[a-j]o"_s, u"[!x]n"_s, u"["_s, u"Paris"_s, u"zz"_s,  u" "_s};
} // namespace

// ---- the scanner

void LiteralRecords::StartScan(int mode)
{
    ScanMode = mode;
    IsTimerOn = true;
    NewDirectory = Home + u'/';
    CurrentDirectory = Home;
    Faces = {2, 4, 6, 8, 10};
    ++Faces[static_cast<std::size_t>(mode - 1)];
}

void LiteralRecords::StopScan()
{
    ScanMode = 3;
    IsTimerOn = false;
    NewDirectory = Home + u'/';
    CurrentDirectory = Home;
    Faces = {2, 4, 7, 8, 10};
    ShowRecordOnMap();
    MarkCurrentBox();
}

void LiteralRecords::EndScan(bool hasMoved)
{
    switch (ScanMode) {
    case 1:
        hasMoved ? Faces[0] = 2 : Faces[1] = 4;
        break;
    case 2:
        Faces[1] = 4;
        break;
    case 4:
        Faces[3] = 8;
        break;
    default:
        hasMoved ? Faces[4] = 10 : Faces[3] = 10;
        break;
    }
    Faces[2] = 7;
    ScanMode = 3;
    IsTimerOn = false;
    CurrentDirectory = DirectoryOf(WorkLetter);
    ShowRecordOnMap();
    MarkCurrentBox();
}

void LiteralRecords::Tick()
{
    if (IsAlternate)
        return;
    FirstShow = 1;
    Interval = ScanMode == 1 || ScanMode == 5 ? 250 : 1000;
    const bool isForward = ScanMode <= 2;
    if (isForward ? Current.Eof : Current.Bof)
        return EndScan(false);
    isForward ? MoveNext(Current) : MovePrevious(Current);
    if (isForward ? Current.Eof : Current.Bof) {
        isForward ? MovePrevious(Current) : MoveNext(Current);
        return EndScan(true);
    }
    ShowRecordPicture(DirectoryOf(WorkLetter));
}

// ---- searches

void LiteralRecords::TellNoMatch(const QString& text)
{
    PutRecordPicture({});
    Tell(u"Database Result"_s, text);
}

void LiteralRecords::SearchBy(Search search)
{
    if (TellIfAlternate(u"Search Alternate Tree Branch Records."_s,
                        u"This Record is from another Tree Branch. You must open \n"
                        u"that Tree Branch to Search the Records of the Database. "_s))
        return;
    IsBarEnabled = false;
    struct Words {
        QString Prompt;
        QString NoMatch;
        QStringList Fields;
    };
    const Words all[] = {
        {u"Enter the Data Reference number"_s, u"No Match Found for Data Ref: "_s, {u"File"_s}},
        {u"Enter the Surname or partial Surname"_s, u"No Match Found for Surname: "_s, {u"Surname"_s}},
        {u"Enter the BirthPlace"_s, u"No Match Found for BirthPlace: "_s, {u"BirthPlace"_s}},
        {u"Enter the search Word or partial Word "_s, u"No Match Found for search Word: "_s, wordFields}};
    const Words& words = all[static_cast<int>(search)];
    const bool isDataRef = search == Search::DataRef;
    const QString answer =
        AskInput(u"Search Database"_s, words.Prompt,
                 isDataRef ? Numbers() + QStringList{u""_s, u"a001"_s, u"A0?1"_s, u"A09"_s} : patterns);
    if (answer.isEmpty())
        return;
    // A picture beneath the current directory is found where nobody has written another place.
    const auto showPicture = [&] { ShowRecordPicture(NewDirectory.isEmpty() ? CurrentDirectory : QString()); };
    CurFile = isDataRef ? answer : u'*' + answer + u'*';
    for (MoveFirst(Current);; MoveNext(Current)) {
        if (Current.Eof)
            return TellNoMatch(words.NoMatch + answer);
        bool isHit = false;
        for (const QString& field : words.Fields)
            if (const LiteralField text = Value(Current, field); text && !isHit)
                isHit = isDataRef ? IsSame(*text, answer) : IsLike(*text, u'*' + answer + u'*');
        if (!isHit)
            continue;
        if (search != Search::BirthPlace)
            showPicture();
        if (isDataRef)
            return;
        const Answer goesOn =
            Ask(u"Search Word Found"_s, u"Continue this Search ?"_s, Buttons::QuestionYesNo, {Answer::Yes, Answer::No});
        if (search == Search::BirthPlace)
            showPicture();
        if (goesOn == Answer::No)
            return;
        CurFile = u'*' + answer + u'*';
    }
}

void LiteralRecords::ShowFirstRecord()
{
    MoveFirst(Current);
    IsBarEnabled = true;
    ShowRecordPicture(NewDirectory.isEmpty() ? CurrentDirectory : QString());
}

// ---- adding and deleting

void LiteralRecords::AddRecord()
{
    if (TellIfAlternate(u"Addition of Subject Records"_s, u"This Record is from another Tree Branch. You must open\n"
                                                          u" that Tree Branch first to Add a new unmapped record. "_s))
        return;
    if (Ask(u"New Database Record"_s, u"Adding a new Record here will not \nbe mapped into the Tree system."_s,
            Buttons::InformationOkCancel, {Answer::Ok, Answer::Ok, Answer::Cancel}) == Answer::Cancel)
        return;
    if (Current.IsEmpty())
        return Tell(u"Database Empty"_s, u"The Database has no records to access"_s);
    MoveLast(Current);
    SavedBookmark = Bookmark(Current);
    const QString last = Text(Current, u"File"_s);
    const int number = last.right(3).toInt() + 1;
    const QString file = last.left(1) + u"%1"_s.arg(number, 3, 10, QChar(u'0'));
    AddNew(Current);
    Put(Current, u"File"_s, file);
    Update(Current);
    GoBack(Current, Current.LastModified);
    Branches.at(WorkLetter).Pictures[file.toLower()] = u"white"_s;
    PutRecordPicture(u"white"_s);
    Tell(u"New Blank Record Created"_s, u"New Record "_s + file + u" created.");
}

void LiteralRecords::Unlink()
{
    const QString file = Text(Current, u"File"_s);
    const bool isHit = HitBox < static_cast<int>(Boxes.size()) && !file.isEmpty() &&
                       IsSame(Boxes[static_cast<std::size_t>(HitBox)].File, file);
    const int row = isHit ? HitBox : RowOf(file);
    ReturnFromSibling();
    if (row >= 0) {
        Boxes[static_cast<std::size_t>(row)].File = u"0"_s;
        Boxes[static_cast<std::size_t>(row)].Name.clear();
    }
    SaveBoxes();
    MoveFirst(Current);
}

void LiteralRecords::DeleteWithFiles()
{
    const QString file = Text(Current, u"File"_s);
    try {
        Delete(Current);
    } catch (const RuntimeError&) {
        return;
    }
    if (const int row = RowOf(file); row >= 0 && row < 99) {
        Boxes[static_cast<std::size_t>(row)].File = u"0"_s;
        Boxes[static_cast<std::size_t>(row)].Name.clear();
    }
    if (!file.isEmpty())
        Branches.at(WorkLetter).Pictures.remove(file.toLower());
    MoveFirst(Current);
    SaveBoxes();
}

void LiteralRecords::DeleteRecord()
{
    if (!HasRow(Current))
        return;
    const int asked = Bookmark(Current);
    const std::vector<Answer> answers{Answer::Yes, Answer::Yes, Answer::No};
    if (IsAlternate) {
        if (Ask(u"Deletion of Subject Records"_s,
                u"This Record is from another Tree Branch. You must \n"
                u"open that Tree Branch to delete the full record. This\n"
                u"delete will remove access to it from this Tree Branch.\n\n"
                u"             Is this what you want ? "_s,
                Buttons::QuestionYesNo, answers) == Answer::No)
            return;
        Unlink();
    } else {
        if (Ask(u"Delete Record"_s, u"Do you really want to delete this record?"_s, Buttons::QuestionYesNo, answers) ==
                Answer::No ||
            Ask(u"Deletion of Subject Records"_s,
                u"All information in this record will be deleted\n"
                u"including any Subject and Gallery graphic files.\n"
                u"Are you sure this is what you want ? "_s,
                Buttons::ErrorYesNo, answers) == Answer::No)
            return;
        if (!HasRow(Current) || Bookmark(Current) != asked)
            GoBack(Current, asked);
        DeleteWithFiles();
    }
    ShowRecordPicture(DirectoryOf(WorkLetter));
}

void LiteralRecords::ChangePicture()
{
    if (TellIfAlternate(u"Change to Subject Picture."_s, u"This Record is from another Tree Branch. You must \n"
                                                         u"open that Tree Branch to change the Subject Picture. "_s))
        return;
    const bool hasRecord = HasRow(Current);
    const int asked = hasRecord ? Bookmark(Current) : 0;
    if (Ask(u"Subject Picture Change."_s, u"Change or add the Subject Picture ?"_s, Buttons::QuestionOkCancel,
            {Answer::Ok, Answer::Ok, Answer::Cancel}) == Answer::Cancel ||
        !hasRecord)
        return;
    const bool isChosen = Dice(4) != 0;
    Script.push_back({LiteralQuestion::Kind::File, u"Select Picture Source File"_s, u"Graphics|*.jpg|All Files|*.*|"_s,
                      Buttons::Plain, Answer::Ok, isChosen ? QString(Home + u"/Album/me.jpg") : QString(), false});
    TickUnderBox();
    if (!isChosen)
        return;
    if (!HasRow(Current) || Bookmark(Current) != asked)
        GoBack(Current, asked);
    Branches.at(WorkLetter).Pictures[Text(Current, u"File"_s).toLower()] = u"yellow"_s;
    PutRecordPicture(u"yellow"_s);
}

// ---- transfer

QString LiteralRecords::AskDestination()
{
    const QStringList pool = Numbers() + QStringList{u""_s, u"A01"_s, u"A0001"_s, u"a001"_s, u"A099"_s, u"X001"_s};
    for (;;) {
        if (Ask(u"Record Set Copy"_s,
                u"This complete Recordset will be copied to an existing\n"
                u"pre mapped Data Record of your choice.\n"
                u"Tree Map name containers should be the same colour."_s,
                Buttons::InformationOkCancel, {Answer::Ok, Answer::Ok, Answer::Ok, Answer::Cancel}) == Answer::Cancel)
            return {};
        QString number = AskInput(u"Data Record Destination."_s, u"Enter Destination Data Ref Number."_s, pool);
        if (number.isEmpty() || number.size() == 4)
            return number;
        Tell(u"Incorrect Character length."_s, u"Incorrect File Ref Input."_s);
    }
}

bool LiteralRecords::CopyPicture(QChar from, const QString& source, QChar to, const QString& destination)
{
    const QString colour = PictureIn(from, source);
    const bool isItself = from == to && IsSame(source, destination);
    if (colour.isEmpty() || isItself || !Branches.contains(to))
        Tell(u"Subject File Copy Problem."_s, u"Subject Picture File Error."_s);
    else
        Branches.at(to).Pictures[destination.toLower()] = colour;
    if (PictureIn(to, destination).isEmpty()) {
        Tell(u"Subject File Loaad Problem."_s, u"Cannot Load Subject Picture File."_s);
        return false;
    }
    PanelPicture = PictureIn(to, destination);
    return true;
}

// A record that is refused keeps its picture.
void LiteralRecords::PutPictureBack(QChar letter, const QString& file, const QString& before)
{
    QMap<QString, QString>& pictures = Branches.at(letter).Pictures;
    if (before.isEmpty())
        pictures.remove(file.toLower());
    else
        pictures[file.toLower()] = before;
}

void LiteralRecords::Transfer()
{
    if (TellIfAlternate(u"Search Alternate Tree Branch Records."_s,
                        u"This Record is from another Tree Branch. You must open \n"
                        u"that Tree Branch to Transfer this Record."_s))
        return;
    PassOver([&] { Update(Current); });
    if (!HasRow(Current))
        return;
    const int asked = Bookmark(Current);
    const QString destination = AskDestination();
    if (destination.isEmpty())
        return;
    if (!HasRow(Current) || Bookmark(Current) != asked)
        GoBack(Current, asked);
    const QString source = Text(Current, u"File"_s);
    QStringList texts;
    for (const QString& field : copiedFields)
        texts += Text(Current, field);

    const QChar from = WorkLetter;
    QChar to = WorkLetter;
    bool isOpen = true;
    if (!IsSame(destination.left(1), source.left(1))) {
        to = destination[0];
        // A small letter would make another name of the same directory.
        if (to.isLower())
            throw Unmodelled();
        isOpen = false;
        PassOver([&] {
            if (Branches.contains(to)) {
                Open(to);
                isOpen = true;
            }
        });
        if (isOpen) {
            WorkLetter = to;
            ReadMap();
            if (Current.IsEmpty())
                return;
        }
    }
    // Of a branch that can't be opened nobody's picture goes.
    const QString before = PictureIn(to, destination);
    const QString shown = PanelPicture;
    const bool keepsPicture = !isOpen && !before.isEmpty();
    if (!keepsPicture && !CopyPicture(from, source, to, destination))
        return;
    try {
        if (!Walk(Current, u"File"_s, destination)) {
            TellNoMatch(u"No Match Found for Data Ref: "_s + (isOpen ? CurFile : destination));
            return;
        }
        Edit(Current);
        for (qsizetype at = 0; at < copiedFields.size(); ++at)
            Put(Current, copiedFields[at], texts[at]);
        Update(Current);
    } catch (const RuntimeError&) {
        PutPictureBack(to, destination, before);
        PanelPicture = shown;
        throw;
    }
    RenameBox(Text(Current, u"Forename"_s));
    FillLabels();
    MarkCurrentBox();
}

// ---- the clipboard

void LiteralRecords::ClickBox(int number, int start, const QString& selection)
{
    SelectionStart = start;
    Selection = selection;
    ClipText = selection;
    ClipSource = number;
}

void LiteralRecords::LoseSelection()
{
    SelectionStart = 0;
    Selection.clear();
}

void LiteralRecords::ReplaceSelection(const QString& text)
{
    if (ClipSource < 1 || ClipSource > 22 || !HasRow(Current))
        return;
    const auto& [field, limit] = clippedBoxes[static_cast<std::size_t>(ClipSource - 1)];
    const QString before = Shown.value(field).value_or(QString());
    const QString rest = before.left(SelectionStart) + before.mid(SelectionStart + Selection.size());
    const QString taken = limit == 0 ? text : text.left(std::max<qsizetype>(limit, before.size()) - rest.size());
    const QString after = rest.left(SelectionStart) + taken + rest.mid(SelectionStart);
    SelectionStart += static_cast<int>(taken.size());
    Selection.clear();
    if (after != before)
        Type(field, after);
}

void LiteralRecords::Copy()
{
    Clipboard = ClipText;
}

void LiteralRecords::Cut()
{
    Copy();
    ReplaceSelection({});
}

void LiteralRecords::Paste()
{
    if (Clipboard)
        ReplaceSelection(*Clipboard);
}

void LiteralRecords::CopyRecord()
{
    if (!HasRow(Current))
        return;
    const auto line = [](const QString& label, const QString& value) -> QString {
        return QString(11, u' ') + label.leftJustified(15) + value + u'\n';
    };
    ClipText = line(u"Data Ref:"_s, Shown.value(u"File"_s).value_or(QString()));
    for (const auto& [label, field, isWrapped] : clipLines) {
        const QString value = Text(Current, field) + (isWrapped ? u" "_s : QString());
        // Longer ones would have to be cut.
        if (isWrapped && value.size() >= 80)
            throw Unmodelled();
        ClipText += line(label, value);
    }
    ClipSource = 0;
    Copy();
}

} // namespace lineforge
