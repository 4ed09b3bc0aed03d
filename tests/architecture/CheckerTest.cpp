#include "Architecture.h"

#include <gtest/gtest.h>
#include <ostream>

// How a failed expectation shows findings; GoogleTest looks for it next to the type.
void PrintTo(const QString& finding, std::ostream* out)
{
    *out << qUtf8Printable(finding);
}

// The checks themselves, on small trees that break one rule each.
namespace lineforge::architecture
{

namespace
{
using namespace Qt::StringLiterals;
using testing::TestWithParam;
using testing::Values;

struct Word {
    QString File;
    QString Text;
    QStringList Findings;
};

class WidgetsBelowTheLineTest : public TestWithParam<Word>
{
};

TEST_P(WidgetsBelowTheLineTest, Word_IsFoundWhereItMustNotStand)
{
    EXPECT_EQ(WidgetsBelowTheLine({{GetParam().File, GetParam().Text}}), GetParam().Findings);
}

INSTANTIATE_TEST_SUITE_P(
    Forbidden, WidgetsBelowTheLineTest,
    Values(Word{u"map/A.cpp"_s, u"#include <QtWidgets>\n"_s, {u"map/A.cpp names QtWidgets"_s}},
           Word{u"map/A.cpp"_s, u"#include <QWidget>\n"_s, {u"map/A.cpp names QWidget"_s}},
           Word{u"platform/base/A.h"_s, u"QMessageBox::question();"_s, {u"platform/base/A.h names QMessageBox"_s}},
           Word{u"shell/A.h"_s, u"class QFileDialog;"_s, {u"shell/A.h names QFileDialog"_s}},
           Word{u"output/A.h"_s, u"QPrinter* printer;"_s, {u"output/A.h names QPrinter"_s}},
           Word{u"shell/handlers/A.cpp"_s, u"QApplication::exit"_s, {u"shell/handlers/A.cpp names QApplication"_s}},
           Word{u"gallery/A.h"_s, u"QMediaPlayer p;"_s, {u"gallery/A.h names QMediaPlayer"_s}},
           Word{u"gallery/A.h"_s, u"QMedia"_s, {u"gallery/A.h names QMedia"_s}},
           Word{u"gallery/A.h"_s, u"#include <QtMultimedia/QSound>"_s, {u"gallery/A.h names QtMultimedia"_s}},
           Word{u"output/A.h"_s, u"#include <QtPrintSupport>"_s, {u"output/A.h names QtPrintSupport"_s}},
           Word{u"mainly/A.h"_s, u"QWidget"_s, {u"mainly/A.h names QWidget"_s}}));

INSTANTIATE_TEST_SUITE_P(Allowed, WidgetsBelowTheLineTest,
                         Values(Word{u"qt/A.cpp"_s, u"#include <QWidget>\nQMediaPlayer p;"_s, {}},
                                Word{u"main.cpp"_s, u"QApplication application;"_s, {}},
                                Word{u"editor/A.cpp"_s, u"#include <QWidget>\nQPrinter p;"_s, {}},
                                Word{u"map/A.cpp"_s, u"QGuiApplication QCoreApplication QString MyQWidget"_s, {}},
                                Word{u"map/A.cpp"_s, u""_s, {}}));

QString Including(const QString& file)
{
    return u"// A file.\n#include \"%1\"\n#include <QString>\n"_s.arg(file);
}

struct Step {
    QString From;
    QString To;
    bool IsAllowed;
};

class TowerTest : public TestWithParam<Step>
{
};

TEST_P(TowerTest, Include_GoesDownOnly)
{
    const auto& [from, to, isAllowed] = GetParam();
    const QStringList findings = IncludesAgainstTheTower({{from, Including(to)}, {to, u"// Another.\n"_s}});

    EXPECT_EQ(findings, isAllowed ? QStringList() : QStringList(from + u" includes " + to));
}

INSTANTIATE_TEST_SUITE_P(
    Down, TowerTest,
    Values(Step{u"platform/base/A.h"_s, u"platform/base/B.h"_s, true},
           Step{u"platform/files/A.h"_s, u"platform/base/B.h"_s, true},
           Step{u"forms/A.h"_s, u"platform/canvas/B.h"_s, true}, Step{u"program/state/A.h"_s, u"forms/B.h"_s, true},
           Step{u"map/items/A.h"_s, u"program/branch/B.h"_s, true},
           Step{u"map/tools/A.h"_s, u"map/subjects/B.h"_s, true}, Step{u"output/A.h"_s, u"map/items/B.h"_s, true},
           Step{u"interchange/A.h"_s, u"map/subjects/B.h"_s, true}, Step{u"records/A.h"_s, u"gallery/B.h"_s, true},
           Step{u"shell/run/A.h"_s, u"records/B.h"_s, true}, Step{u"shell/handlers/A.cpp"_s, u"shell/run/B.h"_s, true},
           Step{u"main.cpp"_s, u"shell/run/B.h"_s, true}, Step{u"main.cpp"_s, u"qt/B.h"_s, true},
           Step{u"qt/windows/A.h"_s, u"qt/text/B.h"_s, true}, Step{u"qt/views/A.h"_s, u"platform/store/B.h"_s, true},
           Step{u"editor/A.h"_s, u"platform/files/B.h"_s, true}, Step{u"editor/A.h"_s, u"editor/B.h"_s, true}));

INSTANTIATE_TEST_SUITE_P(
    Up, TowerTest,
    Values(Step{u"platform/base/A.h"_s, u"platform/files/B.h"_s, false},
           Step{u"platform/machine/A.h"_s, u"forms/B.h"_s, false}, Step{u"forms/A.h"_s, u"program/state/B.h"_s, false},
           Step{u"program/state/A.h"_s, u"program/branch/B.h"_s, false},
           Step{u"program/branch/A.h"_s, u"map/items/B.h"_s, false},
           Step{u"map/items/A.h"_s, u"map/tools/B.h"_s, false}, Step{u"map/items/A.h"_s, u"output/B.h"_s, false},
           Step{u"output/A.h"_s, u"records/B.h"_s, false}, Step{u"records/A.h"_s, u"shell/run/B.h"_s, false},
           Step{u"records/A.h"_s, u"shell/handlers/B.h"_s, false}, Step{u"shell/run/A.h"_s, u"main.h"_s, false}));

INSTANTIATE_TEST_SUITE_P(Sideways, TowerTest,
                         Values(Step{u"map/items/A.h"_s, u"gallery/B.h"_s, false},
                                Step{u"gedcom/report/A.h"_s, u"map/items/B.h"_s, false},
                                Step{u"gedcom/report/A.h"_s, u"gedcom/writer/B.h"_s, false},
                                Step{u"compare/A.h"_s, u"gedcom/writer/B.h"_s, false},
                                Step{u"output/A.h"_s, u"interchange/B.h"_s, false}));

INSTANTIATE_TEST_SUITE_P(ToTheWidgets, TowerTest,
                         Values(Step{u"platform/base/A.h"_s, u"qt/B.h"_s, false},
                                Step{u"shell/run/A.h"_s, u"qt/style/B.h"_s, false},
                                Step{u"qt/style/A.h"_s, u"forms/B.h"_s, false},
                                Step{u"qt/A.h"_s, u"shell/run/B.h"_s, false}, Step{u"qt/A.h"_s, u"main.h"_s, false}));

INSTANTIATE_TEST_SUITE_P(OfTheEditor, TowerTest,
                         Values(Step{u"editor/A.h"_s, u"qt/B.h"_s, false}, Step{u"editor/A.h"_s, u"forms/B.h"_s, false},
                                Step{u"editor/A.h"_s, u"shell/run/B.h"_s, false},
                                Step{u"platform/base/A.h"_s, u"editor/B.h"_s, false},
                                Step{u"qt/A.h"_s, u"editor/B.h"_s, false},
                                Step{u"shell/run/A.h"_s, u"editor/B.h"_s, false},
                                Step{u"main.cpp"_s, u"editor/B.h"_s, false}));

INSTANTIATE_TEST_SUITE_P(OfTheCheckOfAHome, TowerTest,
                         Values(Step{u"check/A.h"_s, u"map/items/B.h"_s, true},
                                Step{u"check/A.h"_s, u"check/B.h"_s, true}, Step{u"check/A.h"_s, u"qt/B.h"_s, false},
                                Step{u"check/A.h"_s, u"jet/B.h"_s, false}, Step{u"main.cpp"_s, u"check/B.h"_s, false},
                                Step{u"shell/run/A.h"_s, u"check/B.h"_s, false}));

TEST(TowerEdgeTest, UnknownFolder_IsNoRoom)
{
    EXPECT_EQ(IncludesAgainstTheTower({{u"helpers/A.h"_s, u""_s}}), QStringList(u"helpers/A.h stands in no room"_s));
}

TEST(TowerEdgeTest, IncludeOfANeighbourByItsBareName_CountsAsItsFolder)
{
    const Sources sources{{u"shell/run/A.cpp"_s, Including(u"B.h"_s)},
                          {u"shell/run/B.h"_s, u""_s},
                          {u"platform/base/A.cpp"_s, Including(u"../../shell/run/B.h"_s)}};

    EXPECT_EQ(IncludesAgainstTheTower(sources), QStringList(u"platform/base/A.cpp includes shell/run/B.h"_s));
    EXPECT_EQ(DanglingIncludes(sources), QStringList());
}

TEST(TowerEdgeTest, IncludeHoweverSpaced_IsSeen)
{
    const Sources sources{{u"platform/base/A.cpp"_s, u"int a;\n  #  include\t\"shell/run/B.h\" // why\n"_s},
                          {u"shell/run/B.h"_s, u""_s}};

    EXPECT_EQ(IncludesAgainstTheTower(sources), QStringList(u"platform/base/A.cpp includes shell/run/B.h"_s));
}

TEST(DanglingIncludesTest, FileThatIsNotThere_IsFound_ButNotWhatIsGenerated)
{
    EXPECT_EQ(DanglingIncludes({{u"map/A.cpp"_s, Including(u"map/Gone.h"_s)}, {u"qt/A.cpp"_s, Including(u"A.moc"_s)}}),
              QStringList(u"map/A.cpp includes map/Gone.h, which isn't there"_s));
}

TEST(CirclesTest, FilesThatIncludeEachOther_AreFound)
{
    EXPECT_EQ(CirclesOfFiles({{u"map/A.h"_s, Including(u"map/B.h"_s)}, {u"map/B.h"_s, Including(u"map/A.h"_s)}}),
              QStringList(u"map/A.h -> map/B.h -> map/A.h"_s));
}

TEST(CirclesTest, FileThatIncludesItself_IsFound)
{
    EXPECT_EQ(CirclesOfFiles({{u"map/A.h"_s, Including(u"map/A.h"_s)}}), QStringList(u"map/A.h -> map/A.h"_s));
}

TEST(CirclesTest, LongCircleBehindAWayIn_IsFound)
{
    const Sources sources{{u"map/A.h"_s, Including(u"map/B.h"_s)},
                          {u"map/B.h"_s, Including(u"map/C.h"_s)},
                          {u"map/C.h"_s, Including(u"map/D.h"_s)},
                          {u"map/D.h"_s, Including(u"map/B.h"_s)}};

    EXPECT_EQ(CirclesOfFiles(sources), QStringList(u"map/B.h -> map/C.h -> map/D.h -> map/B.h"_s));
}

TEST(CirclesTest, TwoWaysToTheSameFile_AreNoCircle)
{
    const Sources sources{{u"map/A.h"_s, Including(u"map/B.h"_s) + Including(u"map/C.h"_s)},
                          {u"map/B.h"_s, Including(u"map/D.h"_s)},
                          {u"map/C.h"_s, Including(u"map/D.h"_s)},
                          {u"map/D.h"_s, u""_s}};

    EXPECT_EQ(CirclesOfFiles(sources), QStringList());
}

TEST(CirclesTest, RoomsThatIncludeEachOtherByDifferentFiles_AreFound)
{
    const Sources sources{{u"map/A.h"_s, Including(u"gallery/B.h"_s)},
                          {u"gallery/B.h"_s, u""_s},
                          {u"gallery/C.h"_s, Including(u"map/D.h"_s)},
                          {u"map/D.h"_s, u""_s}};

    EXPECT_EQ(CirclesOfFiles(sources), QStringList());
    EXPECT_EQ(CirclesOfUnits(sources), QStringList());
    EXPECT_EQ(CirclesOfRooms(sources), QStringList(u"gallery -> map -> gallery"_s));
    EXPECT_EQ(CirclesOfWings(sources), QStringList(u"gallery -> map -> gallery"_s));
}

TEST(CirclesTest, RoomsOfOneWing_AreACircleOfRoomsAlone)
{
    const Sources sources{{u"map/items/A.h"_s, Including(u"map/tools/B.h"_s)},
                          {u"map/tools/B.h"_s, u""_s},
                          {u"map/tools/C.h"_s, Including(u"map/items/D.h"_s)},
                          {u"map/items/D.h"_s, u""_s}};

    EXPECT_EQ(CirclesOfRooms(sources), QStringList(u"map/items -> map/tools -> map/items"_s));
    EXPECT_EQ(CirclesOfWings(sources), QStringList());
}

TEST(CirclesTest, SourcesThatNeedEachOthersHeaders_AreACircleOfUnits)
{
    const Sources sources{{u"map/A.h"_s, u""_s},
                          {u"map/A.cpp"_s, Including(u"map/A.h"_s) + Including(u"map/B.h"_s)},
                          {u"map/B.h"_s, u""_s},
                          {u"map/B.cpp"_s, Including(u"map/B.h"_s) + Including(u"map/A.h"_s)}};

    EXPECT_EQ(CirclesOfFiles(sources), QStringList());
    EXPECT_EQ(CirclesOfUnits(sources), QStringList(u"map/A -> map/B -> map/A"_s));
}

TEST(CirclesTest, FilesOfOneRoom_AreNoCircleOfRooms)
{
    EXPECT_EQ(CirclesOfRooms({{u"map/A.h"_s, Including(u"map/B.h"_s)}, {u"map/B.h"_s, u""_s}}), QStringList());
}

} // namespace
} // namespace lineforge::architecture
