#pragma once

#include "compare/Sides.h"
#include "program/branch/WorkDatabase.h"
#include "program/state/ScanState.h"
#include "shell/ShellTest.h"
#include "support/SqliteFile.h"

#include <map>

namespace lineforge
{

// A user who compares branch A, the open one, with branch B. Both are filled by the test.
class CompareTest : public ShellTest
{
protected:
    using Fields = std::vector<FieldText>;

    CompareTest()
    {
        GivenRegistry({{u"Smiths", u"LfgDat_A"}, {u"Jones", u"LfgDat_B"}, {u"Nobody", u"LfgDat_C"}});
        WriteTemplates(Home);
        BranchBuilder(Home, u'C').Build();
    }

    // Each with a picture of its own colour.
    void GivenBranch(QChar letter, const std::vector<Fields>& records)
    {
        BranchBuilder branch(Home, letter);
        for (const Fields& record : records) {
            branch.Row(record);
            for (const FieldText& field : record)
                if (field.Field == u"File") {
                    colours_[field.Text] = QColor::fromHsv((static_cast<int>(colours_.size()) * 67) % 360, 255, 220);
                    branch.Picture(field.Text, colours_[field.Text]);
                }
        }
        branch.Build();
    }

    // The window as File, Open Compare leaves it.
    void GivenComparison(const std::vector<Fields>& current, const std::vector<Fields>& compare)
    {
        GivenBranch(u'A', current);
        GivenBranch(u'B', compare);
        StartProgram(P);
        Choose(u"Smiths");
        Click(P.Form1->mnuComp.Click);
        ChooseCompare(u"Jones");
    }

    void ChooseCompare(QStringView name)
    {
        Click(P.Form6->mnuOpen.Click);
        P.Form8->List1.SetText(name.toString());
        Click(P.Form8->Command1.Click);
    }

    void Search() { Click(P.Form6->Command1.Click); }
    void Reset() { Click(P.Form6->Command2.Click); }
    void NextCompare() { Click(P.Form6->Command5.Click); }
    void NextCurrent() { Click(P.Form6->Command6.Click); }
    void SearchTimes(int presses)
    {
        for (int press = 0; press < presses; ++press)
            Search();
    }

    void Tell(QStringView title, QStringView text) { Prompts.Expect(title, text, Buttons::Information); }
    void ExpectEndOfCurrent() { Tell(u"Current Database End of File", u"End of Current Database Records"); }
    void ExpectEndOfCompare() { Tell(u"Compare Database End of File", u"End of Compare Database Records"); }
    void ExpectEndOfRecords() { Tell(u"Database End of File", u"End of Database Records"); }

    static QString NumberAt(const Recordset& records) { return records.Eof() ? u"end"_s : records.Text(u"File"); }
    // Where the two cursors stand.
    QString Pair() { return NumberAt(Records(P.Form3)) + u' ' + NumberAt(CompareRecords(P.Form6)); }
    // The numbers that the window shows.
    QString ShownPair() { return P.Form6->Label4.Caption.value() + u' ' + P.Form6->Label9.Caption.value(); }
    QString Captions() { return P.Form6->Frame5.Caption.value() + u'|' + P.Form6->Frame6.Caption.value(); }
    QString Texts() { return P.Form6->Text2.Text.value() + u'|' + P.Form6->Text4.Text.value(); }
    QString Surnames() { return P.Form6->Text1.Text.value() + u'|' + P.Form6->Text3.Text.value(); }
    QString Forenames() { return P.Form6->Text5.Text.value() + u'|' + P.Form6->Text6.Text.value(); }

    // The colour of the Search button, by the numbers of its lights.
    QString Light()
    {
        const Colour colour = P.Form6->Command1.BackColor.value().value_or(0);
        return u"%1,%2,%3"_s.arg(colour & 255).arg((colour >> 8) & 255).arg((colour >> 16) & 255);
    }
    static inline const QString Busy = u"220,0,0"_s;
    static inline const QString Ready = u"0,220,0"_s;
    static inline const QString Found = u"0,200,0"_s;
    static inline const QString ByHand = u"200,0,0"_s;

    // Whose picture that is.
    QString PersonOn(const Image& image) const
    {
        if (image.Picture.value().isNull())
            return u"none"_s;
        const QColor shown = image.Picture.value().pixelColor(5, 5);
        for (const auto& [file, colour] : colours_)
            if (std::abs(colour.red() - shown.red()) + std::abs(colour.green() - shown.green()) +
                    std::abs(colour.blue() - shown.blue()) <
                20)
                return file;
        return shown.name();
    }
    QString Pictures() { return PersonOn(P.Form6->Image1) + u' ' + PersonOn(P.Form6->Image2); }

    // Every field but the number holds the mark and its own name.
    static Fields PersonOf(QStringView file, QStringView mark)
    {
        Fields fields{{u"File", file}};
        for (const QString& field : RecordFields())
            if (field != u"File")
                fields.push_back({field, QString(mark + u' ' + field)});
        return fields;
    }

    QString DatabaseOf(QChar branch) { return Home.Path(QString(u"LfgDat_%1/LfgDat_%1.mdb"_s.arg(branch))); }
    std::vector<SqliteFile::Row> Rows(QChar branch, const QByteArray& fields = "*")
    {
        return SqliteFile(DatabaseOf(branch)).Query("SELECT " + fields + " FROM Tree99 ORDER BY rowid");
    }
    std::optional<QString> Stored(QChar branch, const char* field, const char* file)
    {
        return SqliteFile(DatabaseOf(branch))
            .Value(QByteArray("SELECT ") + field + " FROM Tree99 WHERE File = '" + file + "'");
    }

    // By another program, between two of the user's presses.
    void ChangeOutside(QChar branch, const QByteArray& sql)
    {
        Records(P.Form3).Rest();
        CompareRecords(P.Form6).Rest();
        SqliteFile(DatabaseOf(branch)).Execute(sql);
    }

    int State() const { return P.Scratch.ScanState; }

private:
    std::map<QString, QColor> colours_; // of the pictures, by their records
};

} // namespace lineforge
