#pragma once

#include "jet/Fixtures.h"
#include "program/branch/WorkDatabase.h"
#include "shell/ShellTest.h"
#include "support/SqliteFile.h"

#include <QFile>

namespace lineforge
{

// The records that stand in a database of ours, as the engine has them.
inline Records25 StoredRecords(const QString& database)
{
    QByteArray fields;
    for (const std::string_view field : jetstream::fields)
        fields += (fields.isEmpty() ? "" : ", ") + QByteArray(field.data(), static_cast<qsizetype>(field.size()));
    SqliteFile file(database);
    return file.Query("SELECT " + fields + " FROM Tree99 ORDER BY rowid");
}

// A user whose branches are those of an older installation. The reader stands beside the program.
class OldBranchTest : public ShellTest
{
protected:
    OldBranchTest()
    {
        QFile::link(QStringLiteral(LINEFORGE_JET), Home.Path(u"lineforge-jet"));
        GivenRegistry({{u"Smiths", u"LfgDat_A"}, {u"Jones", u"LfgDat_B"}});
        WriteTemplates(Home);
    }

    // A branch whose database is that fixture; gives back the database's path.
    QString GivenOldBranch(QChar letter, const QString& fixture, QStringView boxes = u"0,0,0,")
    {
        BranchBuilder branch(Home, letter);
        branch.Picture(u"1", Qt::red).Boxes(boxes).Build();
        return Home.WriteFile(branch.DatabaseFile(), FixtureBytes(fixture));
    }

    // Whether the fixture's records have taken the place of the database, which is kept beside it.
    void ExpectConverted(QChar letter, const std::string& fixture) const
    {
        const QString stem = u"LfgDat_%1/LfgDat_%1"_s.arg(letter);
        EXPECT_EQ(StoredRecords(Home.Path(QString(stem + u".mdb"))), ExpectedRecords(fixture));
        EXPECT_EQ(Home.ReadFile(QString(stem + u".jet")), FixtureBytes(QString::fromStdString(fixture) + u".mdb"));
    }

    void ExpectCannotOpenBox()
    {
        Prompts.Expect(u"Read Only or Incorrect Database", u"Cannot open this database", Buttons::Information);
    }

    void ExpectLossBox(QChar letter, QStringView numbers, Answer answer)
    {
        const QString text = numbers + u"\nGo on with what can be read? The database stays beside it, unchanged, as "
                                       u"LfgDat_%1.jet."_s.arg(letter);
        Prompts.Expect(u"Old Database is damaged", text, Buttons::QuestionYesNoDefaultNo, answer);
    }
};

} // namespace lineforge
