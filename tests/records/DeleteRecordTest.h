#pragma once

#include "records/RecordTest.h"
#include "support/Pixels.h"

namespace lineforge
{

// A user who deletes the records of branch A.
class DeleteRecordTest : public RecordTest
{
protected:
    static constexpr QStringView DatabaseFile = u"LfgDat_A/LfgDat_A.mdb";

    DeleteRecordTest() { GivenRecordForm(); }

    void Execute(const QByteArray& sql) { SqliteFile(Home.Path(DatabaseFile)).Execute(sql); }
    std::vector<SqliteFile::Row> AllRows(const QByteArray& where = "1")
    {
        return SqliteFile(Home.Path(DatabaseFile)).Query("SELECT * FROM Tree99 WHERE " + where + " ORDER BY rowid");
    }
    QStringList Numbers()
    {
        QStringList numbers;
        for (const SqliteFile::Row& row : AllRows())
            numbers += row.front().value_or(u"Null"_s);
        return numbers;
    }

    void ExpectFirstQuestion(Answer answer)
    {
        Prompts.Expect(u"Delete Record", u"Do you really want to delete this record?", Buttons::QuestionYesNo, answer);
    }
    void ExpectSecondQuestion(Answer answer)
    {
        Prompts.Expect(u"Deletion of Subject Records",
                       u"All information in this record will be deleted\n"
                       u"including any Subject and Gallery graphic files.\n"
                       u"Are you sure this is what you want ? ",
                       Buttons::ErrorYesNo, answer);
    }
    // Both questions answered with yes, and whatever else is expected; nothing may end the program.
    void Delete(const std::function<void()>& expectMore = [] {})
    {
        ExpectFirstQuestion(Answer::Yes);
        ExpectSecondQuestion(Answer::Yes);
        expectMore();
        Click(P.Form3->mnuDelete.Click);
        EXPECT_EQ(ExitCode(), std::nullopt);
    }

    void Add(QStringView file)
    {
        Home.WriteFile(u"Tree99.jpg", PictureBytes(Qt::blue));
        Prompts.Expect(u"New Database Record",
                       u"Adding a new Record here will not \n"
                       u"be mapped into the Tree system.",
                       Buttons::InformationOkCancel, Answer::Ok);
        const QString text = u"New Record "_s + file + u" created.";
        Prompts.Expect(u"New Blank Record Created", text, Buttons::Information);
        P.Form3->mnuAdd.Click();
    }

    bool HasPicture(QStringView file) { return Home.Exists(QString(u"LfgDat_A/" + file + u"Sub.jpg")); }
    int CaptionPixels(int left) { return CountPixels(P.Form1->Picture1, Black, {left + 50, 620, 500, 200}); }
};

} // namespace lineforge
