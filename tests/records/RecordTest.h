#pragma once

#include "program/branch/WorkDatabase.h"
#include "records/RecordScanner.h"
#include "shell/ShellTest.h"
#include "support/SqliteFile.h"

namespace lineforge
{

// Branch A with three records, each with its box and its picture, open in the record form; branch B beside it, branch C
// without a record.
class RecordTest : public ShellTest
{
protected:
    RecordTest()
    {
        GivenRegistry({{u"Smiths", u"LfgDat_A"}, {u"Jones", u"LfgDat_B"}, {u"Nobody", u"LfgDat_C"}});
        WriteTemplates(Home);
        BranchBuilder(Home, u'A')
            .Row({{u"File", u"A001"}, {u"Forename", u"John"}, {u"Surname", u"Smith"}, {u"Gender", u"Male"}})
            .Row({{u"File", u"A002"}, {u"Forename", u"Mary"}, {u"Surname", u"Jones"}, {u"Gender", u"Female"}})
            .Row({{u"File", u"A003"}, {u"Forename", u"Peter"}, {u"Gender", u"Male"}})
            .Boxes(u"1200,600,255,A001,John,3000,600,255,A002,Mary,5000,600,255,A003,Peter,")
            .Picture(u"A001", Qt::red)
            .Picture(u"A002", Qt::green)
            .Picture(u"A003", Qt::blue)
            .Build();
        BranchOf(u'B').Build();
        BranchBuilder(Home, u'C').Build();
        StartProgram(P);
        Choose(u"Smiths");
    }

    // What the event loop does when a handler has returned.
    void LoopRuns()
    {
        Click([this] { P.Form3->Data1.Settle(); });
    }

    void GivenRecordForm() { P.Form1->Command1.Click(); }

    // The branch without a record, and the form open on it.
    void GivenEmptyBranch()
    {
        ExpectEmptyBox();
        Choose(u"Nobody");
        GivenRecordForm();
    }

    // A record of another branch, as a double click on an external box shows it.
    void GivenRecordOfSibling()
    {
        P.Map.BoxArr[2][BoxColumn::File] = u"B002"_s;
        P.Mouse.DownX = 5100;
        P.Mouse.DownY = 700;
        P.Form1->Picture1.DblClick();
        ASSERT_EQ(P.Branch.UsingAlternate, 1);
    }

    void ExpectMissingPicture(QStringView picture, ScriptedPrompts::WhileOpen whileOpen = {})
    {
        const QString text = u"Searched Image File for "_s + picture;
        Prompts.Expect(u"Image not Present", text, Buttons::Information, Answer::Ok, std::move(whileOpen));
    }

    void RemovePicture(QStringView file) { QFile::remove(Home.Path(u"LfgDat_A") + PathSeparator + file + u"Sub.jpg"); }

    // What stands in the file of branch A, whatever the program believes.
    std::optional<QString> Stored(const char* field, const char* file = "A001")
    {
        return SqliteFile(Home.Path(u"LfgDat_A/LfgDat_A.mdb"))
            .Value(QByteArray("SELECT ") + field + " FROM Tree99 WHERE File = '" + file + "'");
    }

    QString Current() { return Records(P.Form3).Text(u"File"); }

    // "none", "red", "green", "blue": the one colour of a subject picture.
    static QString ColourOf(const Image& image)
    {
        const QImage picture = image.Picture;
        if (picture.isNull())
            return u"none"_s;
        const QColor colour = picture.pixelColor(10, 10);
        if (colour.red() > 200)
            return u"red"_s;
        return colour.blue() > 200 ? u"blue"_s : u"green"_s;
    }

    QString ShownRef() { return P.Form1->Frame1.Caption; }
    int MarkerLeft() { return P.Form1->Shape1.Left; }

    // Of the boxes in columns: left of the box, plus half its width, less the marker's offset.
    static constexpr int MarkerOn(int boxLeft) { return boxLeft + 307 - 60; }
};

} // namespace lineforge
