#include "Names.h"

#include <QFile>

#include <gtest/gtest.h>

namespace lineforge::architecture
{
namespace
{
using namespace Qt::StringLiterals;

const QString root = QStringLiteral(LINEFORGE_ROOT);

QString PageOfTheArchitecture()
{
    QFile page(root + u"/docs/architecture.md"_s);
    EXPECT_TRUE(page.open(QFile::ReadOnly));
    return QString::fromUtf8(page.readAll());
}

QStringList Sorted(QStringList names)
{
    names.sort();
    return names;
}

TEST(NamesTest, EveryOddityThatIsKeptIsHeldByATest)
{
    const Sources sources = ReadSources(root + u"/src"_s);
    const Sources tests = ReadSources(root + u"/tests"_s);
    EXPECT_TRUE(tests.contains(u"architecture/NamesTest.cpp"_s));
    EXPECT_EQ(OdditiesWithoutATest(sources, tests), QStringList());
}

TEST(NamesTest, EveryOddityThatIsKeptTellsWhatMendingItWouldChange)
{
    EXPECT_EQ(OdditiesWithoutAReason(ReadSources(root + u"/src"_s)), QStringList());
}

TEST(NamesTest, EveryWindowThatASourceSpeaksOfIsThere)
{
    EXPECT_EQ(UnknownWindows(ReadSources(root + u"/src"_s)), QStringList());
}

TEST(NamesTest, ThePageTellsOfEachWindowAndOfNoOther)
{
    EXPECT_EQ(Sorted(FirstCellsBelow(u"Windows"_s, PageOfTheArchitecture())),
              Sorted(WindowsOf(ReadSources(root + u"/src"_s))));
}

TEST(NamesTest, ThePageTellsOfEachRoom_FromTheGroundUp)
{
    QStringList rooms = RoomsFromTheGroundUp();
    rooms.replaceInStrings(u"main"_s, u"main.cpp"_s);
    EXPECT_EQ(FirstCellsBelow(u"Rooms"_s, PageOfTheArchitecture()), rooms);
}

TEST(OdditiesTest, NamedTest_MustBeThere)
{
    const Sources tests{{u"map/ATest.cpp"_s, u"TEST_F(ATest, Holds)\nTEST(BTest,\n     Holds_Too)"_s}};
    const auto findings = [&](const QString& text) { return OdditiesWithoutATest({{u"map/A.cpp"_s, text}}, tests); };

    EXPECT_EQ(findings(u"// KEPT(ATest.Holds): so.\n// KEPT(BTest.Holds_Too): so."_s), QStringList());
    EXPECT_EQ(findings(u"// KEPT(ATest.Hold): so."_s),
              QStringList{u"map/A.cpp is held by no test: KEPT(ATest.Hold)"_s});
    EXPECT_EQ(findings(u"// KEPT: so."_s), QStringList{u"map/A.cpp is held by no test: KEPT"_s});
}

TEST(OdditiesTest, WhatMendingWouldChange_MustBeTold_InTheSameComment)
{
    const auto findings = [](const QString& text) { return OdditiesWithoutAReason({{u"map/A.cpp"_s, text}}); };
    const QStringList untold{u"map/A.cpp doesn't tell what mending would change: KEPT(ATest.Holds)"_s};

    EXPECT_EQ(findings(u"// Oddly so. KEPT(ATest.Holds): so. Mended, not."_s), QStringList());
    EXPECT_EQ(findings(u"    // KEPT(ATest.Holds): so\n    // and so.\n    // Mended, not.\nint a;"_s), QStringList());
    EXPECT_EQ(findings(u"// KEPT(ATest.Holds): so."_s), untold);
    EXPECT_EQ(findings(u"// KEPT(ATest.Holds): so.\nint a;\n// Mended, not."_s), untold);
    EXPECT_EQ(findings(u"// KEPT(ATest.Holds): so.\n// KEPT(BTest.Holds): so.\n// Mended, not."_s), untold);
}

TEST(WindowNamesTest, Name_MustBeThatOfAWindow)
{
    const Sources sources{{u"forms/Form1.h"_s, u""_s},
                          {u"forms/form9.h"_s, u""_s},
                          {u"map/A.cpp"_s, u"Form1Handlers // Form1, form9, Form9, Form10, transform10"_s}};
    const QStringList unknown{u"map/A.cpp speaks of Form9"_s, u"map/A.cpp speaks of Form10"_s};

    EXPECT_EQ(WindowsOf(sources), (QStringList{u"Form1"_s, u"form9"_s}));
    EXPECT_EQ(UnknownWindows(sources), unknown);
}

TEST(TableTest, FirstCells_AreThoseBelowTheHeadingAlone)
{
    const QString page =
        u"# P\n\n## A\n\n| x | y |\n|---|---|\n| `a` | `b` |\n| `c/d` | e |\n\n## B\n\n| `f` | g |\n"_s;
    EXPECT_EQ(FirstCellsBelow(u"A"_s, page), (QStringList{u"a"_s, u"c/d"_s}));
    EXPECT_EQ(FirstCellsBelow(u"B"_s, page), QStringList{u"f"_s});
    EXPECT_EQ(FirstCellsBelow(u"C"_s, page), QStringList());
}

} // namespace
} // namespace lineforge::architecture
