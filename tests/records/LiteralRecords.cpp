#include "records/LiteralRecords.h"

namespace lineforge
{

using namespace Qt::StringLiterals;

namespace
{
const QMap<int, QString> labelFields{{9, u"Forename"_s}, {10, u"Surname"_s}, {11, u"BirthDate"_s}, {12, u"Deceased"_s},
                                     {14, u"Spouse"_s},  {15, u"Maiden"_s},  {17, u"Gender"_s}};
} // namespace

QString LiteralRecords::NameOf(QChar letter)
{
    return letter == u'A' ? u"Smiths"_s : letter == u'B' ? u"Jones"_s : u"Nobody"_s;
}

// ---- the data control

void LiteralRecords::Leaving(LiteralCursor& cursor)
{
    if (&cursor != &Current || Typed.isEmpty())
        return;
    if (HasRow(cursor))
        Update(cursor);
    else
        Typed.clear();
}

void LiteralRecords::Updating(LiteralCursor& cursor)
{
    if (&cursor != &Current || Typed.isEmpty())
        return;
    if (!cursor.Edit)
        Edit(cursor);
    // What the program has put in the field since has been put later.
    for (auto typed = Typed.cbegin(); typed != Typed.cend(); ++typed)
        if (!cursor.Edit->contains(typed.key()))
            Put(cursor, typed.key(), typed.value());
}

void LiteralRecords::Arrived(LiteralCursor& cursor)
{
    if (&cursor != &Current)
        return;
    Typed.clear();
    const LiteralRow* row = HasRow(cursor) ? Branches.at(cursor.Letter).Find(cursor.Id) : nullptr;
    Shown = row ? row->Fields : LiteralFields();
    for (auto label = labelFields.cbegin(); label != labelFields.cend(); ++label)
        Labels[label.key()] = Shown.value(label.value()).value_or(QString());
}

void LiteralRecords::Open(QChar letter)
{
    Leaving(Current);
    Current = LiteralCursor(letter, Branches.at(letter));
    SavedBookmark.reset();
    IsFormLoaded = true;
    Arrived(Current);
}

void LiteralRecords::Type(const QString& field, const QString& text)
{
    if (!HasRow(Current))
        return;
    Typed[field] = text;
    Shown[field] = text;
    if (Current.Edit)
        Current.Edit->remove(field);
}

// ---- questions

void LiteralRecords::TickUnderBox()
{
    if (!IsTimerOn || Dice(4) != 0)
        return;
    Script.back().TicksMeanwhile = true;
    try {
        Tick();
    } catch (const RuntimeError&) {
        throw Unmodelled();
    }
}

Answer LiteralRecords::Ask(const QString& title, const QString& text, Buttons buttons,
                           const std::vector<Answer>& answers)
{
    const Answer answer = answers[static_cast<std::size_t>(Dice(static_cast<int>(answers.size())))];
    Script.push_back({LiteralQuestion::Kind::Message, title, text, buttons, answer, {}, false});
    TickUnderBox();
    return answer;
}

void LiteralRecords::Tell(const QString& title, const QString& text)
{
    Ask(title, text, Buttons::Information, {Answer::Ok});
}

QString LiteralRecords::AskInput(const QString& title, const QString& prompt, const QStringList& pool)
{
    const QString answer = OneOf(pool);
    Script.push_back({LiteralQuestion::Kind::Input, title, prompt, Buttons::Plain, Answer::Ok, answer, false});
    TickUnderBox();
    return answer;
}

bool LiteralRecords::TellIfAlternate(const QString& title, const QString& text)
{
    if (IsAlternate)
        Tell(title, text);
    return IsAlternate;
}

QStringList LiteralRecords::Numbers() const
{
    QStringList numbers;
    for (const auto& [letter, branch] : Branches)
        for (const LiteralRow& row : branch.Rows)
            numbers += row.Fields.value(u"File"_s).value_or(QString());
    return numbers;
}

// ---- branches and the map

void LiteralRecords::ReadMap()
{
    Boxes.clear();
    HitBox = 0;
    const QString list = Branches.at(WorkLetter).Boxes;
    if (list.isEmpty())
        Tell(u"Box Config File record corrupt"_s, u"Config Box Record empty"_s);
    if (list.size() < 9)
        return;
    const QStringList values = list.split(u',');
    for (qsizetype at = 0; at + 4 < values.size(); at += 5)
        Boxes.push_back({values[at].toInt(), values[at + 1].toInt(), values[at + 2], values[at + 3], values[at + 4]});
    HighestBox = static_cast<int>(Boxes.size()) - 1;
    if (HasRow(Current))
        SavedBookmark = Bookmark(Current);
}

void LiteralRecords::SaveBoxes()
{
    const QChar letter = IsAlternate ? OwnLetter : WorkLetter;
    if (letter.isNull())
        return;
    QString list;
    for (const LiteralBox& box : Boxes)
        list += QString::number(box.X) + u',' + QString::number(box.Y) + u',' + box.Colour + u',' + box.File + u',' +
                box.Name + u',';
    Branches.at(letter).Boxes = list;
}

void LiteralRecords::EndAlternate()
{
    if (!IsAlternate)
        return;
    IsAlternate = false;
    AreTransportsEnabled = AreTransportsVisible = true;
}

void LiteralRecords::OpenBranch(QChar letter)
{
    if (!WorkLetter.isNull())
        SaveBoxes();
    BranchName = NameOf(letter);
    Marker.IsShown = false;
    Boxes.clear();
    EndAlternate();
    WorkLetter = letter;
    CurrentDirectory = DirectoryOf(letter);
    HasBranch = true;
    try {
        Open(letter);
    } catch (const RuntimeError&) {
        // The program is then between two branches.
        throw Unmodelled();
    }
    NameBranch();
    ReadMap();
    if (Current.IsEmpty()) {
        Tell(u"Database Empty"_s, u"This Database has no records to access"_s);
        PanelFrame = u"Ref  "_s;
        PanelPicture.clear();
        return;
    }
    SetPictureName();
    PanelPicture = PictureIn(WorkLetter, CurFile);
    MarkCurrentBox();
    FillLabels();
    MapCaption = u"Lineforge "_s + BranchName + u" Tree Branch.";
    RecordsCaption = u"Lineforge "_s + BranchName + u" Records.";
    if (PanelPicture.isEmpty()) {
        Marker.IsShown = false;
        TellPictureMissing();
    }
}

void LiteralRecords::CloseBranch()
{
    SaveBoxes();
    Boxes.clear();
    HitBox = 0;
    IsAlternate = false;
    QMap<int, QString> labels = Labels;
    for (const int label : {9, 10, 11, 12, 14, 17})
        labels[label] = QString();
    PanelFrame = u"Ref  "_s;
    PanelPicture.clear();
    Marker.IsShown = false;
    HasBranch = false;
    PicFile.clear();
    WorkLetter = QChar();
    Leaving(Current);
    Current = {};
    Typed.clear();
    Shown.clear();
    Labels = labels;
    IsFormLoaded = IsFormVisible = IsGalleryVisible = IsEnlarged = IsTimerOn = false;
    RecordPicture.clear();
    RecordPictureOf.clear();
    IsBarEnabled = AreTransportsEnabled = AreTransportsVisible = true;
    Interval = 100;
    Faces = {2, 4, 7, 8, 10};
    GalleryRecord.clear();
    GalleryLetter = QChar();
    UnloadComparison();
}

void LiteralRecords::Exit()
{
    PassOver([&] { Update(Current); });
    SaveBoxes();
    IsOver = true;
    Leaving(Current);
}

void LiteralRecords::EndWithError()
{
    Current.Edit.reset();
    Current.IsAddition = false;
    PassOver([&] { Leaving(Current); });
}

void LiteralRecords::ReturnFromSibling()
{
    WorkLetter = OwnLetter;
    Open(WorkLetter);
    EndAlternate();
}

void LiteralRecords::DoubleClick(int x, int y)
{
    if (IsAlternate) {
        ReturnFromSibling();
        PanelFrame = u"Ref  "_s;
    }
    if (!HasBranch)
        return Tell(u"Data not available"_s, u"Cannot View until database file is Opened"_s);
    bool isHit = false;
    if (HighestBox != 0) {
        for (HitBox = 0; HitBox <= HighestBox && !isHit; ++HitBox) {
            const bool isThere = HitBox < static_cast<int>(Boxes.size());
            const LiteralBox box = isThere ? Boxes[static_cast<std::size_t>(HitBox)] : LiteralBox();
            isHit = box.X != 0 && x > box.X && x < box.X + 615 && y > box.Y && y < box.Y + 217;
        }
        HitBox -= isHit ? 1 : 0;
    }
    CurFile = isHit ? Boxes[static_cast<std::size_t>(HitBox)].File : QString();
    if (CurFile.isEmpty() || CurFile == u"0")
        return;
    if (const QChar letter = CurFile[0].toUpper(); letter != WorkLetter) {
        // A small letter would make another name of the same directory.
        if (letter != CurFile[0])
            throw Unmodelled();
        if (!Branches.contains(letter)) {
            const QString database = Home + u"/LfgDat_" + CurFile[0] + u"/LfgDat_" + CurFile[0] + u".mdb";
            return Tell(u"External Record not present."_s,
                        u"Cannot Access this External Database and subject.\n"_s + database + u" not present.");
        }
        OwnLetter = WorkLetter;
        WorkLetter = letter;
        Open(letter);
        IsAlternate = true;
        AreTransportsEnabled = false;
        PanelFrame = u"Ref  "_s;
    }
    if (Current.IsEmpty())
        return Tell(u"Database Empty"_s, u"This Tree Branch has no records to access"_s);
    if (HasRow(Current))
        SavedBookmark = Bookmark(Current);
    if (!Walk(Current, u"File"_s, CurFile)) {
        Tell(u"Database Searched"_s, u"No File data found"_s);
        if (SavedBookmark)
            GoBack(Current, *SavedBookmark);
        return;
    }
    ShowRecordOnMap();
    if (!Text(Current, u"Gender"_s).isEmpty())
        MarkCurrentBox();
}

int LiteralRecords::RowOf(const LiteralField& file) const
{
    for (std::size_t row = 0; file && !file->isEmpty() && row < Boxes.size(); ++row)
        if (IsSame(Boxes[row].File, *file))
            return static_cast<int>(row);
    return -1;
}

void LiteralRecords::MarkCurrentBox()
{
    Marker.IsShown = false;
    FirstShow = 1;
    const int row = HasRow(Current) ? RowOf(Value(Current, u"File"_s)) : -1;
    if (row < 0)
        return;
    const LiteralBox& box = Boxes[static_cast<std::size_t>(row)];
    const QString gender = Text(Current, u"Gender"_s).left(1).toUpper();
    Marker = {true, box.X + 307 - 60, box.Y + 108 - 60,
              gender == u"F"   ? Rgb(255, 0, 0)
              : gender == u"M" ? Rgb(0, 0, 255)
                               : Rgb(255, 0, 255)};
}

// What stands beside the map is one person's.
void LiteralRecords::FollowSubject()
{
    const QString number = Shown.value(u"File"_s).value_or(QString());
    if (!Current.IsOpen() || (PanelFrame == u"Ref  "_s + number && (!number.isEmpty() || PanelPicture.isEmpty())))
        return;
    PanelFrame = u"Ref  "_s + number;
    PanelPicture = PictureIn(WorkLetter, number);
}

// ---- the two windows in step

QString LiteralRecords::PictureIn(QChar letter, const QString& number) const
{
    const auto branch = Branches.find(letter);
    return branch == Branches.end() ? QString() : branch->second.Pictures.value(number.toLower());
}

void LiteralRecords::SetPictureName()
{
    CurFile = Shown.value(u"File"_s).value_or(QString());
    PicFile = CurFile + u"Sub.Jpg";
}

void LiteralRecords::ShowNamedPicture()
{
    const QString number = PicFile.chopped(std::min<qsizetype>(7, PicFile.size()));
    RecordPicture = PictureIn(WorkLetter, number);
    RecordPictureOf = WorkLetter + number.toLower();
}

void LiteralRecords::PutRecordPicture(const QString& colour)
{
    RecordPicture = colour;
    RecordPictureOf = WorkLetter + Shown.value(u"File"_s).value_or(QString()).toLower();
}

void LiteralRecords::ShowRecordPicture(const QString& directory)
{
    CurFile = Shown.value(u"File"_s).value_or(QString());
    PicFile = CurFile + u"Sub.jpg";
    PutRecordPicture({});
    for (const auto& [letter, branch] : Branches)
        if (directory == DirectoryOf(letter))
            PutRecordPicture(PictureIn(letter, CurFile));
}

void LiteralRecords::FillLabels()
{
    for (auto label = labelFields.cbegin(); label != labelFields.cend(); ++label)
        Labels[label.key()] = Shown.value(label.value()).value_or(QString());
    PanelFrame = u"Ref  "_s + Shown.value(u"File"_s).value_or(QString());
}

void LiteralRecords::TellPictureMissing()
{
    Tell(u"Image not Present"_s, u"Searched Image File for "_s + PicFile);
}

void LiteralRecords::ShowRecordOnMap()
{
    SetPictureName();
    PanelPicture = PictureIn(WorkLetter, CurFile);
    FillLabels();
    if (PanelPicture.isEmpty())
        TellPictureMissing();
}

void LiteralRecords::ShowRecords()
{
    if (!HasBranch)
        return Tell(u"Data not available"_s, u"Cannot View until database file is Opened"_s);
    SetPictureName();
    ShowNamedPicture();
    ShownName = Shown.value(u"Forename"_s).value_or(QString());
    IsFormVisible = true;
}

void LiteralRecords::CarryForename()
{
    const QString name = Shown.value(u"Forename"_s).value_or(QString());
    if (IsSame(name, ShownName))
        return;
    if (HasRow(Current))
        RenameBox(name);
}

// What would break the map file stays out of it.
void LiteralRecords::RenameBox(QString name)
{
    for (const QChar breaking : u",[\r\n"_s)
        name.remove(breaking);
    if (const int row = RowOf(Value(Current, u"File"_s)); row >= 0)
        Boxes[static_cast<std::size_t>(row)].Name = name;
}

void LiteralRecords::KeepGender()
{
    const QString typed = Shown.value(u"Gender"_s).value_or(QString());
    if (!HasRow(Current) || IsSame(Text(Current, u"Gender"_s), typed))
        return;
    Edit(Current);
    Put(Current, u"Gender"_s, typed);
    PassOver([&] { Update(Current); });
    MarkCurrentBox();
}

void LiteralRecords::PressTree()
{
    CarryForename();
    KeepGender();
    ShowRecordOnMap();
    if (FirstShow == 1)
        MarkCurrentBox();
    IsMapVisible = true;
    IsFormVisible = false;
}

bool LiteralRecords::NeedsPage() const
{
    return FirstShow == 1 || GalleryLetter != WorkLetter ||
           !IsSame(GalleryRecord, Shown.value(u"File"_s).value_or(QString()));
}

void LiteralRecords::ShowGallery()
{
    // The state word is the comparison's as well.
    if (ScanState != 0)
        throw Unmodelled();
    IsGalleryVisible = true;
    if (!NeedsPage())
        return;
    FirstShow = 0;
    GalleryRecord = Shown.value(u"File"_s).value_or(QString());
    GalleryLetter = WorkLetter;
    CurrentDirectory = DirectoryOf(WorkLetter);
    NewDirectory = Home;
}

void LiteralRecords::PressGalleryOnRecords()
{
    CarryForename();
    KeepGender();
    PassOver([&] { Update(Current); });
    ShowRecordOnMap();
    if (FirstShow == 1)
        MarkCurrentBox();
    ShowGallery();
    IsFormVisible = false;
}

void LiteralRecords::PressGalleryOnMap()
{
    if (!HasBranch)
        return Tell(u"Data not available"_s, u"Cannot View until database file is Opened"_s);
    ShowGallery();
    ShownName = Shown.value(u"Forename"_s).value_or(QString());
    IsMapVisible = false;
}

void LiteralRecords::LeaveGalleryForTree()
{
    IsMapVisible = true;
    IsGalleryVisible = false;
}

void LiteralRecords::LeaveGalleryForRecords()
{
    ShowNamedPicture();
    IsFormVisible = true;
    IsGalleryVisible = false;
    if (IsAlternate)
        AreTransportsVisible = false;
}

void LiteralRecords::FollowWithPicture()
{
    const QString number = Shown.value(u"File"_s).value_or(QString());
    if (IsFormVisible && Current.IsOpen() && RecordPictureOf != WorkLetter + number.toLower())
        PutRecordPicture(PictureIn(WorkLetter, number));
}

void LiteralRecords::Enlarge()
{
    SetPictureName();
    if (!PictureIn(WorkLetter, PicFile.chopped(std::min<qsizetype>(7, PicFile.size()))).isEmpty()) {
        IsEnlarged = true;
        return;
    }
    PanelPicture.clear();
    TellPictureMissing();
}

void LiteralRecords::StepByBar(int direction)
{
    if (direction == -2)
        MoveFirst(Current);
    if (direction == 2)
        MoveLast(Current);
    if (direction == -1 && !Current.Bof)
        MovePrevious(Current);
    if (direction == -1 && Current.Bof)
        MoveFirst(Current);
    if (direction == 1 && !Current.Eof)
        MoveNext(Current);
    if (direction == 1 && Current.Eof)
        MoveLast(Current);
}

} // namespace lineforge
