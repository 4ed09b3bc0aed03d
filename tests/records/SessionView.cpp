#include "records/SessionView.h"

#include "compare/Sides.h"
#include "program/branch/WorkDatabase.h"

#include <QColor>

namespace lineforge
{

using namespace Qt::StringLiterals;

namespace
{
using forms::Form1;
using forms::Form3;
using forms::Form6;

QString YesOrNo(bool value)
{
    return value ? u"yes"_s : u"no"_s;
}

QString PlaceOf(const LiteralMarker& marker)
{
    return marker.IsShown ? u"%1,%2,%3"_s.arg(marker.X).arg(marker.Y).arg(marker.Border, 6, 16) : u"hidden"_s;
}

const QMap<QString, QColor>& colours()
{
    static const QMap<QString, QColor> named{
        {u"red"_s, Qt::red},         {u"green"_s, Qt::green},   {u"blue"_s, Qt::blue},  {u"cyan"_s, Qt::cyan},
        {u"magenta"_s, Qt::magenta}, {u"yellow"_s, Qt::yellow}, {u"white"_s, Qt::white}};
    return named;
}

QString ColourOf(const QImage& picture)
{
    if (picture.isNull())
        return {};
    const QColor shown = picture.pixelColor(5, 5);
    for (auto named = colours().cbegin(); named != colours().cend(); ++named)
        if (std::abs(named->red() - shown.red()) + std::abs(named->green() - shown.green()) +
                std::abs(named->blue() - shown.blue()) <
            60)
            return named.key();
    return shown.name();
}

constexpr std::pair<int, Label Form1::*> labels[] = {
    {9, &Form1::Label9},   {10, &Form1::Label10}, {11, &Form1::Label11}, {12, &Form1::Label12},
    {14, &Form1::Label14}, {15, &Form1::Label15}, {17, &Form1::Label17}};

constexpr std::pair<int, Image Form3::*> faces[] = {
    {2, &Form3::Image2}, {3, &Form3::Image3}, {4, &Form3::Image4}, {5, &Form3::Image5},   {6, &Form3::Image6},
    {7, &Form3::Image7}, {8, &Form3::Image8}, {9, &Form3::Image9}, {10, &Form3::Image10}, {11, &Form3::Image11}};

QString FaceOf(Form3& form, const Button& button)
{
    for (const auto& [number, image] : faces)
        if ((form.*image).Picture.value().cacheKey() == button.Picture.value().cacheKey())
            return QString::number(number);
    return u"none"_s;
}

// ---- of the model

QString PositionOf(const LiteralTables& tables, const LiteralCursor& cursor)
{
    if (!cursor.IsOpen())
        return u"closed"_s;
    if (cursor.Bof || cursor.Eof)
        return cursor.IsEmpty() ? u"empty"_s : cursor.Bof ? u"begin"_s : u"end"_s;
    const LiteralRow* row = tables.Branches.at(cursor.Letter).Find(cursor.Id);
    return row ? u"on "_s + row->Fields.value(u"File"_s).value_or(QString()) : u"gone"_s;
}

void AddRecordForm(SessionView& view, const LiteralSession& session)
{
    view[u"Form3"_s] = YesOrNo(session.IsFormVisible);
    if (!session.Current.IsOpen())
        return;
    for (const FieldBox& box : FieldBoxes())
        view[u"Form3 "_s + box.Field] = session.Shown.value(box.Field).value_or(QString());
    view[u"Form3 File"_s] = session.Shown.value(u"File"_s).value_or(QString());
    view[u"Form3 picture"_s] = session.RecordPicture;
    view[u"Form3 bar"_s] = YesOrNo(session.IsBarEnabled);
    view[u"Form3 timer"_s] = YesOrNo(session.IsTimerOn) + u' ' + QString::number(session.Interval);
    for (std::size_t at = 0; at < session.Faces.size(); ++at)
        view[u"Form3 face %1"_s.arg(at + 1)] = QString::number(session.Faces[at]);
    view[u"Form3 transports"_s] = YesOrNo(session.AreTransportsEnabled) + u' ' + YesOrNo(session.AreTransportsVisible);
}

void AddSide(SessionView& view, const QString& name, const LiteralSide& side)
{
    view[name + u" number"] = side.Number;
    view[name + u" picture"] = side.Picture;
    view[name + u" surname"] = side.Surname;
    view[name + u" forename"] = side.Forename;
    view[name + u" caption"] = side.FieldCaption;
    view[name + u" field"] = side.Field;
}

void AddComparison(SessionView& view, const LiteralSession& session)
{
    view[u"Compare button"_s] = YesOrNo(session.IsCompareButtonVisible);
    view[u"Form6"_s] = YesOrNo(session.IsCompareVisible);
    view[u"FieldStep"_s] = QString::number(session.FieldStep);
    view[u"SearchEnded"_s] = QString::number(session.SearchEnded);
    view[u"ResetDone"_s] = QString::number(session.ResetDone);
    view[u"sCompField"_s] = session.CompField;
    if (!session.IsCompareLoaded)
        return;
    view[u"sSelText"_s] = session.SelText;
    view[u"SelBox"_s] = QString::number(session.SelBox);
    view[u"compare"_s] = PositionOf(session, session.Compare);
    view[u"Label2"_s] = session.OpenName;
    view[u"Label7"_s] = session.CompareName;
    view[u"light"_s] = QString::number(session.Light, 16);
    AddSide(view, u"our"_s, session.Ours);
    AddSide(view, u"their"_s, session.Theirs);
    for (auto number = session.ZNumbers.cbegin(); number != session.ZNumbers.cend(); ++number)
        view[u"Z %1"_s.arg(number.key())] = number.value();
}

// ---- of the program

QString PositionOf(const Recordset& records)
{
    if (records.Bof() || records.Eof())
        return records.IsEmpty() ? u"empty"_s : records.Bof() ? u"begin"_s : u"end"_s;
    return records.HasRow() ? u"on "_s + records.Text(u"File") : u"gone"_s;
}

void AddRecordForm(SessionView& view, Program& p)
{
    const bool isLoaded = p.Form3.IsLoaded();
    view[u"Form3"_s] = YesOrNo(isLoaded && p.Form3->Visible);
    if (!isLoaded || !p.Form3->Data1.IsOpen())
        return;
    Form3& form = *p.Form3;
    for (const FieldBox& box : FieldBoxes())
        view[u"Form3 "_s + box.Field] = (form.*box.Box).Text.value();
    view[u"Form3 File"_s] = form.Label25.Caption.value();
    view[u"Form3 picture"_s] = ColourOf(form.Image1.Picture);
    view[u"Form3 bar"_s] = YesOrNo(form.Data1.Enabled);
    view[u"Form3 timer"_s] = YesOrNo(form.Timer1.Enabled) + u' ' + QString::number(form.Timer1.Interval);
    bool areEnabled = true;
    bool areVisible = true;
    int number = 0;
    for (Button Form3::*transport : Form3::Transport) {
        view[u"Form3 face %1"_s.arg(++number)] = FaceOf(form, form.*transport);
        areEnabled = areEnabled && (form.*transport).Enabled;
        areVisible = areVisible && (form.*transport).Visible;
    }
    view[u"Form3 transports"_s] = YesOrNo(areEnabled) + u' ' + YesOrNo(areVisible);
}

void AddSide(SessionView& view, const QString& name, Form6& form, const Side& side)
{
    view[name + u" number"] = (form.*side.Number).Caption.value();
    view[name + u" picture"] = ColourOf((form.*side.Picture).Picture);
    view[name + u" surname"] = (form.*side.Surname).Text.value();
    view[name + u" forename"] = (form.*side.Forename).Text.value();
    view[name + u" caption"] = (form.*side.FieldFrame).Caption.value();
    view[name + u" field"] = (form.*side.Field).Text.value();
}

void AddComparison(SessionView& view, Program& p)
{
    const bool isLoaded = p.Form6.IsLoaded();
    view[u"Compare button"_s] = YesOrNo(p.Form1->Command5.Visible);
    view[u"Form6"_s] = YesOrNo(isLoaded && p.Form6->Visible);
    view[u"FieldStep"_s] = QString::number(p.Compare.FieldStep);
    view[u"SearchEnded"_s] = QString::number(p.Compare.SearchEnded);
    view[u"ResetDone"_s] = QString::number(p.Compare.ResetDone);
    view[u"sCompField"_s] = p.Compare.sCompField;
    if (!isLoaded)
        return;
    Form6& form = *p.Form6;
    view[u"sSelText"_s] = p.Compare.sSelText;
    view[u"SelBox"_s] = QString::number(p.Compare.SelBox);
    view[u"compare"_s] = form.Data1.IsOpen() ? PositionOf(form.Data1.Records()) : u"closed"_s;
    view[u"Label2"_s] = form.Label2.Caption.value();
    view[u"Label7"_s] = form.Label7.Caption.value();
    view[u"light"_s] = QString::number(form.Command1.BackColor.value().value_or(0), 16);
    AddSide(view, u"our"_s, form, CurrentSide);
    AddSide(view, u"their"_s, form, CompareSide);
    for (int number = 0; number <= 99; ++number)
        if (const QString& file = p.Compare.ZNumberTable[number]; !file.isEmpty())
            view[u"Z %1"_s.arg(number)] = file;
}

void AddBoxes(SessionView& view, Program& p)
{
    for (int row = 0; row <= LastFiledBox; ++row) {
        const auto& box = p.Map.BoxArr[row];
        if (box[BoxColumn::X].IsZero())
            continue;
        QStringList cells;
        for (int column = 0; column < BoxColumn::Count; ++column)
            cells += box[column].Text();
        view[u"box %1"_s.arg(row)] = cells.join(u',');
    }
}
} // namespace

QColor ColourNamed(const QString& name)
{
    return colours().value(name);
}

const std::vector<FieldBox>& FieldBoxes()
{
    static const std::vector<FieldBox> boxes{{u"Nationality"_s, &Form3::Text1},
                                             {u"Surname"_s, &Form3::Text2},
                                             {u"Forename"_s, &Form3::Text3},
                                             {u"BirthDate"_s, &Form3::Text4},
                                             {u"BirthPlace"_s, &Form3::Text5},
                                             {u"Spouse"_s, &Form3::Text6},
                                             {u"Children"_s, &Form3::Text7},
                                             {u"Education"_s, &Form3::Text8},
                                             {u"Profession"_s, &Form3::Text9},
                                             {u"Deceased"_s, &Form3::Text10},
                                             {u"Notes"_s, &Form3::Text11},
                                             {u"Medical"_s, &Form3::Text12},
                                             {u"BirthCertificate"_s, &Form3::Text13},
                                             {u"MarriageCertificate"_s, &Form3::Text14},
                                             {u"DeathCertificate"_s, &Form3::Text15},
                                             {u"Maiden"_s, &Form3::Text16},
                                             {u"Partner"_s, &Form3::Text17},
                                             {u"PrevChildren"_s, &Form3::Text18},
                                             {u"Wedding"_s, &Form3::Text19},
                                             {u"WedDate"_s, &Form3::Text20},
                                             {u"FatherRec"_s, &Form3::Text21},
                                             {u"MotherRec"_s, &Form3::Text22},
                                             {u"Gender"_s, &Form3::Text23},
                                             {u"SpouseRec"_s, &Form3::Text24}};
    return boxes;
}

SessionView ViewOf(const LiteralSession& session)
{
    SessionView view;
    view[u"current"_s] = PositionOf(session, session.Current);
    view[u"branch"_s] = session.WorkLetter.isNull() ? QString() : session.DirectoryOf(session.WorkLetter);
    view[u"name"_s] = session.BranchName;
    view[u"alternate"_s] = YesOrNo(session.IsAlternate);
    view[u"directory"_s] = session.CurrentDirectory;
    view[u"sNewDir"_s] = session.NewDirectory;
    for (std::size_t row = 0; row < session.Boxes.size(); ++row) {
        const LiteralBox& box = session.Boxes[row];
        view[u"box %1"_s.arg(row)] =
            QStringList{QString::number(box.X), QString::number(box.Y), box.Colour, box.File, box.Name}.join(u',');
    }
    for (const auto& [number, label] : labels)
        view[u"Label%1"_s.arg(number)] = session.Labels.value(number);
    view[u"Frame1"_s] = session.PanelFrame;
    view[u"panel picture"_s] = session.PanelPicture;
    view[u"marker"_s] = PlaceOf(session.Marker);
    view[u"Form1"_s] = YesOrNo(session.IsMapVisible) + u' ' + session.MapCaption;
    view[u"Form2"_s] = YesOrNo(session.IsEnlarged);
    view[u"Form5"_s] = YesOrNo(session.IsGalleryVisible);
    view[u"sCurFile"_s] = session.CurFile;
    view[u"sPicFile"_s] = session.PicFile;
    view[u"sShownName"_s] = session.ShownName;
    view[u"FirstShow"_s] = QString::number(session.FirstShow);
    view[u"RecordScanMode"_s] = QString::number(session.ScanMode);
    view[u"ScanState"_s] = QString::number(session.ScanState);
    view[u"sClipText"_s] = session.ClipText;
    view[u"ClipSource"_s] = QString::number(session.ClipSource);
    view[u"clipboard"_s] = session.Clipboard.value_or(u"(nothing)"_s);
    AddRecordForm(view, session);
    AddComparison(view, session);
    return view;
}

SessionView ViewOf(Program& p)
{
    SessionView view;
    const bool isOpen = p.Form3.IsLoaded() && p.Form3->Data1.IsOpen();
    view[u"current"_s] = isOpen ? PositionOf(Records(p.Form3)) : u"closed"_s;
    view[u"branch"_s] = p.Branch.WorkDir;
    view[u"name"_s] = p.Branch.sBranchName;
    view[u"alternate"_s] = YesOrNo(p.Branch.UsingAlternate == 1);
    view[u"directory"_s] = p.Files.CurDir();
    view[u"sNewDir"_s] = p.Scratch.sNewDir;
    AddBoxes(view, p);
    Form1& form = *p.Form1;
    for (const auto& [number, label] : labels)
        view[u"Label%1"_s.arg(number)] = (form.*label).Caption.value();
    view[u"Frame1"_s] = form.Frame1.Caption.value();
    view[u"panel picture"_s] = ColourOf(form.Image1.Picture);
    view[u"marker"_s] = PlaceOf({form.Shape1.Visible, form.Shape1.Left, form.Shape1.Top, form.Shape1.BorderColor});
    view[u"Form1"_s] = YesOrNo(form.Visible) + u' ' + form.Caption.value();
    view[u"Form2"_s] = YesOrNo(p.Form2.IsLoaded() && p.Form2->Visible);
    view[u"Form5"_s] = YesOrNo(p.Form5.IsLoaded() && p.Form5->Visible);
    view[u"sCurFile"_s] = p.Record.sCurFile;
    view[u"sPicFile"_s] = p.Record.sPicFile;
    view[u"sShownName"_s] = p.Record.sShownName;
    view[u"FirstShow"_s] = QString::number(p.Gallery.FirstShow);
    view[u"RecordScanMode"_s] = QString::number(p.Record.RecordScanMode);
    view[u"ScanState"_s] = QString::number(p.Scratch.ScanState);
    view[u"sClipText"_s] = p.Record.sClipText;
    view[u"ClipSource"_s] = QString::number(p.Record.ClipSource);
    view[u"clipboard"_s] = p.Clipboard.HasText() ? p.Clipboard.GetText() : u"(nothing)"_s;
    AddRecordForm(view, p);
    AddComparison(view, p);
    return view;
}

QStringList DifferencesOf(const SessionView& program, const SessionView& model)
{
    QStringList lines;
    for (auto item = model.cbegin(); item != model.cend(); ++item)
        if (program.value(item.key(), u"(missing)"_s) != item.value())
            lines +=
                u"%1: '%2' and not '%3'"_s.arg(item.key(), program.value(item.key(), u"(missing)"_s), item.value());
    for (auto item = program.cbegin(); item != program.cend(); ++item)
        if (!model.contains(item.key()))
            lines += u"%1: '%2' and nothing"_s.arg(item.key(), item.value());
    return lines;
}

} // namespace lineforge
