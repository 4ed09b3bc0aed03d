#include "qt/dialogs/FileFilters.h"

#include "qt/WindowTest.h"

namespace lineforge
{

using namespace Qt::StringLiterals;

namespace
{
struct FilterRow {
    QString Filter;
    QStringList Expected;
};

class FileFiltersTest : public testing::TestWithParam<FilterRow>
{
};

TEST_P(FileFiltersTest, PairsBecomeFilters)
{
    EXPECT_EQ(ToFileFilters(GetParam().Filter), GetParam().Expected);
}

INSTANTIATE_TEST_SUITE_P(Filters, FileFiltersTest,
                         testing::Values(FilterRow{u"DataBase *.mdb|*.mdb|All Files|*.*|"_s,
                                                   {u"DataBase *.mdb (*.mdb)"_s, u"All Files (*)"_s}},
                                         FilterRow{u"Text|*.txt"_s, {u"Text (*.txt)"_s}},
                                         FilterRow{u"Pictures|*.jpg;*.bmp; *.gif|"_s,
                                                   {u"Pictures (*.jpg *.bmp *.gif)"_s}},
                                         FilterRow{u"Only a description|"_s, {}}, FilterRow{{}, {}}));

TEST(FirstEndingTest, IsThatOfTheFirstPattern_WhereItHasAPlainOne)
{
    EXPECT_EQ(FirstEnding(u"DataBase *.mdb|*.mdb|All Files|*.*|"_s), u"mdb"_s);
    EXPECT_EQ(FirstEnding(u"Pictures|*.jpg;*.bmp|"_s), u"jpg"_s);
    EXPECT_EQ(FirstEnding(u"All Files|*.*|"_s), QString());
    EXPECT_EQ(FirstEnding(u"Registry|AliasList.cfg|"_s), QString());
    EXPECT_EQ(FirstEnding(QString()), QString());
}
} // namespace

} // namespace lineforge
