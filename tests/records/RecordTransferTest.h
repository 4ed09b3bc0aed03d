#pragma once

#include "map/items/MapItems.h"
#include "records/RecordTest.h"
#include "support/Pixels.h"

namespace lineforge
{

// A user who copies the records of branch A over others.
class RecordTransferTest : public RecordTest
{
protected:
    RecordTransferTest() { GivenRecordForm(); }

    void Execute(const QByteArray& sql, QChar branch = u'A') { SqliteFile(DatabaseOf(branch)).Execute(sql); }
    std::vector<SqliteFile::Row> Rows(const QByteArray& where, QChar branch = u'A')
    {
        return SqliteFile(DatabaseOf(branch)).Query("SELECT * FROM Tree99 WHERE " + where + " ORDER BY rowid");
    }
    std::optional<QString> StoredIn(QChar branch, const char* field, const char* file)
    {
        return SqliteFile(DatabaseOf(branch))
            .Value(QByteArray("SELECT ") + field + " FROM Tree99 WHERE File = '" + file + "'");
    }

    // Every field of A001 but its number holds "its " and the name of the field.
    void GivenFullSource()
    {
        for (const QString& field : RecordFields())
            if (field != u"File")
                Execute("UPDATE Tree99 SET " + field.toUtf8() + " = 'its " + field.toUtf8() + "' WHERE File = 'A001'");
        // A change from outside is seen by a cursor that is opened afresh.
        P.Form3->Data1.Refresh(P.Databases, P.Files);
    }

    void ExpectConfirmation(Answer answer)
    {
        Prompts.Expect(u"Record Set Copy",
                       u"This complete Recordset will be copied to an existing\n"
                       u"pre mapped Data Record of your choice.\n"
                       u"Tree Map name containers should be the same colour.",
                       Buttons::InformationOkCancel, answer);
    }
    void ExpectNumber(QStringView answer)
    {
        Prompts.ExpectInput(u"Data Record Destination.", u"Enter Destination Data Ref Number.", answer);
    }
    void ExpectTransferTo(QStringView number)
    {
        ExpectConfirmation(Answer::Ok);
        ExpectNumber(number);
    }
    void ExpectCopyProblem()
    {
        Prompts.Expect(u"Subject File Copy Problem.", u"Subject Picture File Error.", Buttons::Information);
    }
    void ExpectLoadProblem()
    {
        Prompts.Expect(u"Subject File Loaad Problem.", u"Cannot Load Subject Picture File.", Buttons::Information);
    }
    void ExpectNoMatch(QStringView number)
    {
        const QString text = u"No Match Found for Data Ref: "_s + number;
        Prompts.Expect(u"Database Result", text, Buttons::Information);
    }
    // Chooses the entry; nothing may end the program.
    void Press()
    {
        Click(P.Form3->MnuRecTransfer.Click);
        EXPECT_EQ(ExitCode(), std::nullopt);
    }
    void TransferTo(QStringView number)
    {
        ExpectTransferTo(number);
        Press();
    }

    QByteArray PictureOf(QStringView file, QChar branch = u'A')
    {
        return Home.ReadFile(QString(u"LfgDat_"_s + branch + u'/' + file + u"Sub.jpg"));
    }
    QStringList ChangesSince(const Tree& before) { return Differences(before, Home.Snapshot()); }
    QImage Map() { return ShownBy(P.Form1->Picture1).copy(); }

    // What the map looks like once one name has been wiped in a box by hand, and another printed.
    QImage MapWith(int boxLeft, const QString& wiped, const QString& printed)
    {
        PictureBox& picture = P.Form1->Picture1;
        ResetMapFont(picture);
        picture.ForeColor = picture.BackColor;
        picture.PrintAt({boxLeft + 50, 600 + 100}, wiped);
        picture.ForeColor = Black;
        picture.PrintAt({boxLeft + 50, 600 + 100}, printed);
        return Map();
    }

    const QByteArray Red = PictureBytes(Qt::red);
    const QByteArray Green = PictureBytes(Qt::green);
    const QByteArray Blue = PictureBytes(Qt::blue);

private:
    QString DatabaseOf(QChar branch) { return Home.Path(QString(u"LfgDat_%1/LfgDat_%1.mdb"_s.arg(branch))); }
};

} // namespace lineforge
