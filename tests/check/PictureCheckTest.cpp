#include "check/CheckTest.h"

#include <QFile>

namespace lineforge::check
{
namespace
{

class PictureCheckTest : public CheckTest
{
};

TEST_F(PictureCheckTest, PictureOfARecordThatIsGone_IsTold)
{
    home.WriteFile(u"LfgDat_A/A009Sub.jpg", PictureBytes(Qt::red));
    EXPECT_EQ(Findings(), Found{Of(Kind::SubjectPicture, u"LfgDat_A/A009Sub.jpg", u"A009",
                                   u"the picture of a record that isn't there")});
}

TEST_F(PictureCheckTest, PictureThatNoReaderTakes_IsTold)
{
    home.WriteFile(u"LfgDat_A/A002Sub.jpg", "no picture");
    EXPECT_EQ(Findings(),
              Found{Of(Kind::SubjectPicture, u"LfgDat_A/A002Sub.jpg", u"A002", u"no picture that can be shown")});
}

TEST_F(PictureCheckTest, EmptyPicture_IsTold)
{
    home.WriteFile(u"LfgDat_A/A002Sub.jpg", "");
    EXPECT_EQ(Findings(),
              Found{Of(Kind::SubjectPicture, u"LfgDat_A/A002Sub.jpg", u"A002", u"no picture that can be shown")});
}

TEST_F(PictureCheckTest, RecordWithoutAPicture_IsNoted)
{
    ASSERT_TRUE(QFile::remove(home.Path(u"LfgDat_A/A002Sub.jpg")));
    EXPECT_EQ(Findings(), Found{Of(Kind::WithoutPicture, u"LfgDat_A", u"", u"records without a picture: A002")});
}

TEST_F(PictureCheckTest, PicturesOfABranchWhoseRecordsCantBeTold_AreLookedAtAllTheSame)
{
    home.WriteFile(database, "none");
    home.WriteFile(u"LfgDat_A/A009Sub.jpg", "no picture");
    EXPECT_EQ(Findings(),
              (Found{Of(Kind::SubjectPicture, u"LfgDat_A/A009Sub.jpg", u"A009", u"no picture that can be shown"),
                     Of(Kind::Database, database, u"", u"this is no database of records")}));
}

} // namespace
} // namespace lineforge::check
