#include "check/CheckTest.h"

#include <QFile>

namespace lineforge::check
{
namespace
{

using namespace Qt::StringLiterals;

class DatabaseCheckTest : public CheckTest
{
protected:
    static Finding OfDatabase(QStringView text) { return Of(Kind::Database, database, u"", text); }
};

TEST_F(DatabaseCheckTest, DatabaseThatIsNotThere_IsTold)
{
    ASSERT_TRUE(QFile::remove(home.Path(database)));
    EXPECT_EQ(Findings(), Found{OfDatabase(u"the database isn't there")});
}

struct Foreign {
    QByteArray Bytes;
    Kind ItsKind;
    QStringView Text;
};

class ForeignDatabaseTest : public DatabaseCheckTest, public testing::WithParamInterface<Foreign>
{
};

TEST_P(ForeignDatabaseTest, IsTold_AndLeftAsItIs)
{
    home.WriteFile(database, GetParam().Bytes);
    EXPECT_EQ(Findings(), Found{Of(GetParam().ItsKind, database, u"", GetParam().Text)});
}

QByteArray BeginningOf(const char* family, char version)
{
    return QByteArray("\0\1\0\0", 4) + family + QByteArray(1, '\0') + QByteArray(1, version) + QByteArray(4096, 'x');
}

constexpr QStringView old =
    u"of an older installation: it is converted when the branch is opened, and its records weren't looked at";

INSTANTIATE_TEST_SUITE_P(Files, ForeignDatabaseTest,
                         testing::Values(Foreign{"", Kind::Database, u"this is no database of records"},
                                         Foreign{"some text", Kind::Database, u"this is no database of records"},
                                         Foreign{BeginningOf("Standard Jet DB", 0), Kind::OldDatabase, old},
                                         Foreign{BeginningOf("Standard Jet DB", 1), Kind::OldDatabase, old},
                                         Foreign{BeginningOf("Standard ACE DB", 2), Kind::Database,
                                                 u"the form of this database is too new to be converted"},
                                         Foreign{QByteArray("SQLite format 3\0", 16) + QByteArray(4096, 'x'),
                                                 Kind::Database, u"damaged: its records can't be read"}));

TEST_F(DatabaseCheckTest, DamagedPage_IsTold)
{
    QFile file(home.Path(database));
    ASSERT_TRUE(file.open(QFile::ReadWrite) && file.seek(4096));
    ASSERT_EQ(file.write(QByteArray(4096, '\x7f')), 4096);
    file.close();

    const Found found = Findings();

    ASSERT_GE(found.size(), 2);
    EXPECT_TRUE(found.front().Text.startsWith(u"damaged: ")) << qUtf8Printable(found.front().Text);
    EXPECT_EQ(found.back(), OfDatabase(u"damaged: its records can't be read"));
    for (const Finding& finding : found)
        EXPECT_EQ(finding.Kind, Kind::Database);
}

// A page that nothing leads to can be read past, and is a sign of damage all the same.
TEST_F(DatabaseCheckTest, DamageThatLeavesTheRecordsReadable_IsTold)
{
    QFile file(home.Path(database));
    ASSERT_TRUE(file.open(QFile::ReadWrite));
    const qint64 pages = file.size() / 4096;
    ASSERT_TRUE(file.resize(file.size() + 4096) && file.seek(28));
    // The number of pages that the file tells of itself.
    const char told[] = {0, 0, 0, static_cast<char>(pages + 1)};
    ASSERT_EQ(file.write(told, sizeof told), 4);
    file.close();

    const Found found = Findings();

    ASSERT_EQ(found.size(), 1);
    EXPECT_TRUE(found.front().Text.startsWith(u"damaged: ")) << qUtf8Printable(found.front().Text);
}

TEST_F(DatabaseCheckTest, DatabaseWithoutTheTable_IsTold)
{
    Sql("DROP TABLE Tree99");
    EXPECT_EQ(Findings(), Found{OfDatabase(u"there is no table of records in it")});
}

// What would make the program wait for ever, or has no rows that it could write, is no table of records.
TEST_F(DatabaseCheckTest, ViewInPlaceOfTheTable_IsTold)
{
    Sql("ALTER TABLE Tree99 RENAME TO Kept; CREATE VIEW Tree99 AS WITH RECURSIVE n(File) AS "
        "(SELECT 'A001' UNION ALL SELECT File FROM n) SELECT File FROM n");
    EXPECT_EQ(Findings(), Found{OfDatabase(u"there is no table of records in it")});
}

TEST_F(DatabaseCheckTest, TableWithoutNumbersOfItsRows_IsTold)
{
    Sql("DROP TABLE Tree99; CREATE TABLE Tree99 (File TEXT PRIMARY KEY) WITHOUT ROWID");
    EXPECT_EQ(Findings(), Found{OfDatabase(u"there is no table of records in it")});
}

TEST_F(DatabaseCheckTest, FieldThatIsNotThere_IsTold)
{
    Sql("ALTER TABLE Tree99 DROP COLUMN Notes; ALTER TABLE Tree99 DROP COLUMN SpouseRec");
    EXPECT_EQ(Findings(), (Found{OfDatabase(u"the records have no field SpouseRec"),
                                 OfDatabase(u"the records have no field Notes")}));
}

TEST_F(DatabaseCheckTest, FieldOfTheNumber_IsMissedWithoutLookingFurther)
{
    Sql("ALTER TABLE Tree99 DROP COLUMN File");
    EXPECT_EQ(Findings(), Found{OfDatabase(u"the records have no field File")});
}

TEST_F(DatabaseCheckTest, MoreFieldsTablesAndOtherCase_AreLegal)
{
    Sql("ALTER TABLE Tree99 ADD COLUMN Hobby TEXT; CREATE TABLE Mine (x); CREATE UNIQUE INDEX byHobby ON Tree99 "
        "(Hobby);"
        "ALTER TABLE Tree99 RENAME COLUMN File TO FILE");
    EXPECT_EQ(Findings(), Found());
}

struct Number {
    QByteArray Value; // as a literal of the engine
    QStringView Record;
    QStringView Text;
};

class RecordNumberTest : public DatabaseCheckTest, public testing::WithParamInterface<Number>
{
};

TEST_P(RecordNumberTest, IsTold)
{
    Sql("INSERT INTO Tree99 (File) VALUES (" + GetParam().Value + ")");
    const Found found = Findings();
    ASSERT_FALSE(found.empty());
    EXPECT_EQ(std::ranges::count_if(found, [](const Finding& each) { return !IsNote(each.Kind); }), 1);
    const auto told = std::ranges::find(found, Kind::RecordNumber, &Finding::Kind);
    ASSERT_NE(told, found.end());
    EXPECT_EQ(*told, Of(Kind::RecordNumber, database, GetParam().Record, GetParam().Text));
}

constexpr QStringView form = u"the number isn't a letter and three digits";

INSTANTIATE_TEST_SUITE_P(Numbers, RecordNumberTest,
                         testing::Values(Number{"NULL", u"", u"the record in row 4 has no number"},
                                         Number{"''", u"", u"the record in row 4 has no number"},
                                         Number{"'A1000'", u"A1000", form}, Number{"'A1'", u"A1", form},
                                         Number{"'A0x1'", u"A0x1", form}, Number{"'0001'", u"0001", form},
                                         Number{"1234", u"1234", form}, Number{"'A004 '", u"A004 ", form},
                                         Number{"'\xc3\x84"
                                                "004'",
                                                u"\u00c4004", form},
                                         Number{"'A0' || char(10) || '1'", u"A0?1", form},
                                         Number{"'B001'", u"B001", u"the number has the letter of another branch"},
                                         Number{"'a002'", u"a002", u"more than one record has this number"}));

TEST_F(DatabaseCheckTest, NumberOfManyRecords_IsToldOnce)
{
    Sql("INSERT INTO Tree99 (File) VALUES ('A003'), ('A003'), ('A003')");
    EXPECT_EQ(Findings(), Found{Of(Kind::RecordNumber, database, u"A003", u"more than one record has this number")});
}

TEST_F(DatabaseCheckTest, AppendedRecords_AreLegal_AndNotedAsWithoutBoxAndPicture)
{
    Sql("INSERT INTO Tree99 (File) VALUES ('Z001'), ('Z002')");
    EXPECT_EQ(Findings(), (Found{Of(Kind::WithoutPicture, u"LfgDat_A", u"", u"records without a picture: Z001 Z002"),
                                 Of(Kind::WithoutBox, map, u"", u"records without a box: Z001 Z002")}));
}

} // namespace
} // namespace lineforge::check
