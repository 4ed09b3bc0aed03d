#pragma once

#include "platform/store/Recordset.h"
#include "support/Refusal.h"
#include "support/SqliteFile.h"
#include "support/TemporaryHome.h"

#include <gtest/gtest.h>

namespace lineforge
{

// A database file `people.db` with a table `People` of the fields File and Name, for tests of cursors.
class PeopleTable : public testing::Test
{
protected:
    PeopleTable() { SqliteFile(FilePath()).Execute("CREATE TABLE People (File TEXT, Name TEXT)"); }

    // Rows A001, A002 and so on with these names.
    void GivenPeople(const QList<std::optional<QString>>& names)
    {
        SqliteFile file(FilePath());
        int number = 0;
        for (const std::optional<QString>& name : names)
            file.Query("INSERT INTO People VALUES (?, ?)",
                       {QStringLiteral("A%1").arg(++number, 3, 10, QLatin1Char('0')), name});
    }

    // A cursor of its own over the table.
    Recordset Open() { return Recordset(databases.Open(files, QStringLiteral("people.db")), QStringLiteral("People")); }

    QString FilePath() const { return home.Path(u"people.db"); }

    // The names that a walk from the first row passes; "-" for Null.
    static QStringList Walk(Recordset& people, QStringView field = u"Name")
    {
        QStringList names;
        for (people.MoveFirst(); !people.Eof(); people.MoveNext())
            names.push_back(people.Value(field).value_or(QStringLiteral("-")));
        return names;
    }

    // What stands in the file, read by a connection of its own.
    QStringList Stored() const
    {
        QStringList names;
        for (const SqliteFile::Row& row : SqliteFile(FilePath()).Query("SELECT Name FROM People ORDER BY rowid"))
            names.push_back(row.front().value_or(QStringLiteral("-")));
        return names;
    }

    // The number of a refusal of which the user has been told, 0 for none.
    template <class Act>
    static int ToldRefusalOf(Act&& act)
    {
        try {
            act();
        } catch (const RuntimeError& refusal) {
            EXPECT_TRUE(refusal.IsTold);
            return refusal.Number;
        }
        return 0;
    }

    static void Rename(Recordset& people, const QString& name)
    {
        people.Edit();
        people.Put(u"Name", name);
        people.Update();
    }

    // On Bob, the second, read and at rest.
    static Recordset& OnBob(Recordset& people)
    {
        people.Seek(u"Name", QStringLiteral("Bob"));
        EXPECT_EQ(people.Text(u"File"), u"A002");
        return people;
    }

    TemporaryHome home;
    FileSystem files{home.Path()};
    Databases databases;
};

} // namespace lineforge
