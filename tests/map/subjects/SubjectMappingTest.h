#pragma once

#include "map/subjects/MapInteractionTest.h"
#include "support/SqliteFile.h"

namespace lineforge
{

// A user who ties the boxes of branch A's map to records: the rows 0 and 2 are empty, row 1 holds A001.
class SubjectMappingTest : public MapInteractionTest
{
protected:
    using Option = OptionButton forms::Form7::*;

    SubjectMappingTest() { Home.WriteFile(u"Tree99.jpg", Portrait); }

    void GivenRecords(const QStringList& files)
    {
        for (const QString& file : files)
            BranchA.Row({{u"File", file}, {u"Forename", QString(u"N" + file)}, {u"Gender", u"Female"}});
        GivenOpen(BranchA);
        GivenBox(0, {1000, 500}, u"0");
        GivenBox(1, {2000, 500}, u"A001");
        GivenBox(2, {3000, 500}, u"0");
        P.Map.SBoxes = 2;
    }
    void GivenSibling()
    {
        BranchB.Row({{u"File", u"B001"}, {u"Forename", u"Ann"}, {u"Gender", u"Female"}})
            .Row({{u"File", u"B002"}, {u"Forename", u"Tom"}, {u"Gender", u"Male"}})
            .Picture(u"B002", Qt::green)
            .Build();
    }

    // Answers the options window; the cross then waits for the double click.
    void Choose(Option option, QStringView number = {}, Option picture = &forms::Form7::Option6)
    {
        P.Form1->mnuMapSubject.Click();
        forms::Form7& form = *P.Form7;
        (form.*option).Click();
        form.Text1.Text = number.toString();
        form.Option4.Value = true;
        for (Option other : {&forms::Form7::Option6, &forms::Form7::Option7})
            (form.*other).Value = other == picture;
        form.Command1.Click();
        ASSERT_EQ(P.Tools.MapCursorMode, 1);
        ASSERT_EQ(P.Screen.Pointer, MousePointer::Cross);
    }
    void ChooseNewRecord(Option picture = &forms::Form7::Option6) { Choose(&forms::Form7::Option1, u"", picture); }

    void ExpectNotPresent(QStringView text) { Prompts.Expect(u"Record not Present", text, Buttons::Information); }
    void ExpectPictureQuestion(Answer answer)
    {
        Prompts.Expect(u"New Subject Mapping",
                       u"This Subject has already been Logged into the Database.\n"
                       u"Do you want to change the Subject Picture ? ",
                       Buttons::QuestionYesNo, answer);
    }
    void ExpectPictureDialog(std::optional<QString> answer)
    {
        Prompts.ExpectOpenFile(u"Select Picture Source File", u"DataBase|*.jpg|All Files|*.*|", std::move(answer));
    }

    // What stands in the branch's database, a text a record.
    QStringList FilesOf(const BranchBuilder& branch) { return Column(branch, "File"); }
    QStringList GendersOf(const BranchBuilder& branch) { return Column(branch, "Gender"); }
    QByteArray MapBytes() const { return Home.ReadFile(BranchA.MapFile()); }
    static QByteArray MapWith(QStringView boxes) { return MapFileBytes(u"LfgDat_A", boxes, u"", u""); }

    QByteArray PictureOf(QStringView file) const { return Home.ReadFile(PathOfPicture(file)); }
    bool HasPicture(QStringView file) const { return Home.Exists(PathOfPicture(file)); }
    static QString PathOfPicture(QStringView file) { return u"LfgDat_A/" + file + u"Sub.jpg"; }

    // Both windows show a picture of that colour.
    testing::AssertionResult BothShow(const QColor& colour)
    {
        for (const QImage& shown : {P.Form1->Image1.Picture.value(), P.Form3->Image1.Picture.value()}) {
            if (shown.isNull())
                return testing::AssertionFailure() << "no picture";
            const QColor pixel = shown.pixelColor(5, 5);
            for (const int distance :
                 {pixel.red() - colour.red(), pixel.green() - colour.green(), pixel.blue() - colour.blue()})
                if (std::abs(distance) > 20)
                    return testing::AssertionFailure() << "shows " << pixel.name().toStdString();
        }
        return testing::AssertionSuccess();
    }

    void ExpectNothingPending()
    {
        EXPECT_EQ(P.Tools.MapCursorMode, 0);
        EXPECT_EQ(P.Screen.Pointer, MousePointer::Default);
    }
    void ExpectStillPending()
    {
        EXPECT_EQ(P.Tools.MapCursorMode, 1);
        EXPECT_EQ(P.Screen.Pointer, MousePointer::Cross);
    }
    bool TransportIs(bool enabled)
    {
        for (Button forms::Form3::*transport : forms::Form3::Transport)
            if (((*P.Form3).*transport).Enabled != enabled)
                return false;
        return true;
    }

    static constexpr QStringView UntouchedBoxes = u"1000,500,0,0,,2000,500,0,A001,,3000,500,0,0,,";
    const QByteArray Portrait = PictureBytes(Qt::yellow);

private:
    QStringList Column(const BranchBuilder& branch, const QByteArray& field)
    {
        QStringList texts;
        SqliteFile file(Home.Path(branch.DatabaseFile()));
        for (const SqliteFile::Row& row : file.Query("SELECT " + field + " FROM Tree99 ORDER BY rowid"))
            texts.push_back(row.front().value_or(QString()));
        return texts;
    }
};

} // namespace lineforge
