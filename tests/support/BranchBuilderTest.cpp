#include "support/BranchBuilder.h"

#include "support/SqliteFile.h"

#include <QColor>
#include <QImage>

#include <gtest/gtest.h>

namespace lineforge
{
namespace
{
using namespace Qt::StringLiterals;

TEST(BranchBuilderTest, Branch_HasItsRecordsInTheirOrder_AndNullForWhatIsNotTold)
{
    TemporaryHome home;
    const QString directory = BranchBuilder(home, u'A')
                                  .Row({{u"File", u"A001"}, {u"Forename", u"Zo\u00eb"}})
                                  .Row({})
                                  .Row({{u"File", u"A002"}, {u"Surname", u""}})
                                  .Build();

    EXPECT_EQ(directory, home.Path(u"LfgDat_A"));
    SqliteFile database(home.Path(u"LfgDat_A/LfgDat_A.mdb"));
    EXPECT_EQ(database.Query("SELECT File, Surname, Forename FROM Tree99 ORDER BY rowid"),
              (std::vector<SqliteFile::Row>{
                  {u"A001"_s, {}, u"Zo\u00eb"_s}, {std::nullopt, std::nullopt, std::nullopt}, {u"A002"_s, u""_s, {}}}));
    EXPECT_EQ(database.Query("SELECT * FROM Tree99").front().size(), 25u);
    EXPECT_EQ(RecordFields().size(), 25);
}

TEST(BranchBuilderTest, MapFile_HasItsEightLines)
{
    TemporaryHome home;
    BranchBuilder(home, u'B').Boxes(u"1,2,3,B001,John,").Texts(u"1,2,Hi,Arial,8,0,").Build();

    EXPECT_EQ(home.ReadFile(u"LfgDat_B/LfgDat_B.cfg"),
              "This File Contains Graphic Data crucial to your program. Warning: DO NOT MODIFY.\r\n"
              "[LfgDat_B]\r\n[Boxes]\r\n1,2,3,B001,John,\r\n[Lines]\r\n0,0,0,\r\n[Text]\r\n1,2,Hi,Arial,8,0,\r\n");
}

TEST(BranchBuilderTest, PicturesAndGallery_AreFiles)
{
    TemporaryHome home;
    BranchBuilder(home, u'A').Picture(u"A001", Qt::red).Gallery({{u"note.txt"_s, "hello"}}).Build();

    const QImage picture(home.Path(u"LfgDat_A/A001Sub.jpg"));
    ASSERT_FALSE(picture.isNull());
    EXPECT_GT(picture.pixelColor(20, 15).red(), 250);
    EXPECT_LT(picture.pixelColor(20, 15).blue(), 5);
    EXPECT_EQ(home.ReadFile(u"LfgDat_A/LfgGal_A/note.txt"), "hello");
}

TEST(BranchBuilderTest, ImportedBranch_KeepsTheNamesOfItsFiles)
{
    TemporaryHome home;
    BranchBuilder(home, u'C').InDirectory(u"Import_A").Build();

    EXPECT_TRUE(home.Exists(u"Import_A/LfgDat_C.mdb"));
    EXPECT_TRUE(home.Exists(u"Import_A/LfgDat_C.cfg"));
}

TEST(BranchBuilderTest, AliasList_HasItsFiveLines)
{
    TemporaryHome home;
    WriteAliasList(home, {{u"Smiths", u"LfgDat_A"}, {u"Jones family", u"LfgDat_B"}});
    EXPECT_EQ(home.ReadFile(u"AliasList.cfg"),
              "This File Contains Graphic Data crucial to your program. Warning: DO NOT MODIFY.\r\n"
              "[Alias]\r\n[Smiths=LfgDat_A,Jones family=LfgDat_B,]\r\n[CFG]\r\n[1,]\r\n");

    WriteAliasList(home, {}, 0);
    EXPECT_TRUE(home.ReadFile(u"AliasList.cfg").endsWith("[Alias]\r\n[]\r\n[CFG]\r\n[0,]\r\n"));
}

TEST(BranchBuilderTest, Templates_AreAnEmptyBranch)
{
    TemporaryHome home;
    WriteTemplates(home);

    EXPECT_EQ(SqliteFile(home.Path(u"LfgEmpt.~Md")).Value("SELECT count(*) FROM Tree99"), u"0"_s);
    EXPECT_TRUE(
        home.ReadFile(u"LfgEmpt.~cf").contains("[Boxes]\r\n0,0,0,\r\n[Lines]\r\n0,0,0,\r\n[Text]\r\n0,0,0,\r\n"));
}

} // namespace
} // namespace lineforge
