#include "monkey/Verdict.h"

#include "monkey/ChosenFiles.h"
#include "monkey/Journal.h"
#include "support/Printing.h"
#include "support/TemporaryHome.h"

#include <gtest/gtest.h>

namespace lineforge::monkey
{
namespace
{
using namespace Qt::StringLiterals;
using check::Kind;

check::Report With(std::vector<check::Finding> findings)
{
    return {std::move(findings), {}};
}

const check::Finding torn{Kind::MapFile, u"LfgDat_A/LfgDat_A.cfg"_s, {}, u"it ends too early"_s};
const auto none = [](const QString&) { return false; };
const check::Finding leftover{Kind::Leftover, u"LfgDat_A/.lineforge-x"_s, {}, u"left"_s};

TEST(VerdictTest, WhatWasNotThereBefore_IsTold)
{
    EXPECT_EQ(NewFindings(With({torn}), With({torn, leftover})), QStringList(u"LfgDat_A/.lineforge-x : left"_s));
}

TEST(VerdictTest, WhatABranchTakesAlong_AndHandsOnToNewRecords_IsNotNew)
{
    const auto number = [](const QString& file, const QString& record) {
        return With({{Kind::RecordNumber, file, record, u"the number isn't a letter and three digits"_s}});
    };
    const check::Report before = number(u"LfgDat_D/LfgDat_D.mdb"_s, u"1"_s);
    EXPECT_TRUE(NewFindings(before, number(u"Import_D/LfgDat_D.mdb"_s, u"2"_s)).empty());
    EXPECT_EQ(NewFindings(before, number(u"LfgDat_A/LfgDat_A.mdb"_s, u"1"_s)).size(), 1);
}

TEST(VerdictTest, WhatTheUserMayBringAbout_IsNoFinding_ATornPictureIs)
{
    EXPECT_TRUE(NewFindings({}, With({{Kind::Link, u"LfgDat_A/LfgDat_A.mdb"_s, u"A001"_s, u"FatherRec leads to"_s},
                                      {Kind::Box, u"LfgDat_A/LfgDat_A.cfg"_s, u"B001"_s, u"which isn't there"_s},
                                      {Kind::GalleryFile, u"LfgDat_A/LfgGal_A/A009_01.jpg"_s, u"A009"_s,
                                       u"the file of a record that isn't there"_s},
                                      {Kind::SubjectPicture, u"LfgDat_A/A009Sub.jpg"_s, u"A009"_s,
                                       u"the picture of a record that isn't there"_s}}))
                    .empty());
    EXPECT_EQ(NewFindings({}, With({{Kind::SubjectPicture, u"LfgDat_A/A001Sub.jpg"_s, u"A001"_s, u"no picture"_s},
                                    {Kind::MapItem, u"LfgDat_A/LfgDat_A.cfg"_s, {}, u"cut"_s}}))
                  .size(),
              2);
}

class ChosenTest : public testing::Test
{
protected:
    ChosenTest()
    {
        home_.WriteFile(u"things/portrait.jpg", "no picture");
        chosen_.Note(home_.Path(u"things/portrait.jpg"));
        home_.WriteFile(u"LfgDat_A/A001Sub.jpg", "no picture");
        home_.WriteFile(u"LfgDat_A/A002Sub.jpg", "no pict");
    }

    qsizetype FindingsOf(Kind kind, const QString& file, const QString& text) const
    {
        const check::Report report = WithoutChosen(
            With({{kind, file, {}, text}}), [this](const QString& path) { return chosen_.Hold(home_.Path(path)); });
        return NewFindings({}, report).size();
    }

    TemporaryHome home_;
    ChosenFiles chosen_{home_.Path(u"chosen")};
};

TEST_F(ChosenTest, PictureThatTheUserHasChosen_IsHisOwn_WhatIsTornIsAFinding)
{
    const QString text = u"no picture that can be shown"_s;
    EXPECT_EQ(FindingsOf(Kind::SubjectPicture, u"LfgDat_A/A001Sub.jpg"_s, text), 0);
    EXPECT_EQ(FindingsOf(Kind::GalleryFile, u"LfgDat_A/A001Sub.jpg"_s, text), 0);
    EXPECT_EQ(FindingsOf(Kind::SubjectPicture, u"LfgDat_A/A002Sub.jpg"_s, text), 1);
    EXPECT_EQ(FindingsOf(Kind::SubjectPicture, u"LfgDat_A/A003Sub.jpg"_s, text), 1);
}

TEST_F(ChosenTest, ChosenFile_IsJudgedLikeOthersInWhatIsNotItsContent)
{
    EXPECT_EQ(FindingsOf(Kind::GalleryFile, u"LfgDat_A/A001Sub.jpg"_s, u"hidden by A001_01.wav"_s), 1);
    EXPECT_EQ(FindingsOf(Kind::Leftover, u"LfgDat_A/A001Sub.jpg"_s, u"no use"_s), 1);
}

TEST_F(ChosenTest, PathWithoutAFile_IsNoChoice)
{
    chosen_.Note(home_.Path(u"things"));
    chosen_.Note(home_.Path(u"things/not-there.jpg"));
    EXPECT_FALSE(chosen_.Hold(home_.Path(u"LfgDat_A")));
    EXPECT_FALSE(chosen_.Hold(home_.Path(u"things/not-there.jpg")));
}

TEST(VerdictTest, BranchThatIsntInTheList_IsUnfinished_TheOthersAreNot)
{
    const check::Finding unlisted{Kind::Registry, u"LfgDat_G"_s, {}, u"this branch isn't in the list of branches"_s};
    const check::Finding empty{Kind::MapFile, u"LfgDat_G/LfgDat_G.cfg"_s, {}, u"the map isn't there"_s};
    EXPECT_EQ(WithoutUnfinished(With({unlisted, torn, empty}), none).Findings, std::vector{torn});
    EXPECT_EQ(WithoutUnfinished(With({torn, empty}), none).Findings.size(), 2U);
}

TEST(VerdictTest, BranchThatTheListHasLost_IsAFinding_WithAllThatIsWrongInIt)
{
    const check::Finding lost{Kind::Registry, u"LfgDat_A"_s, {}, u"this branch isn't in the list of branches"_s};
    const check::Finding made{Kind::Registry, u"LfgDat_G"_s, {}, u"this branch isn't in the list of branches"_s};
    const auto isA = [](const QString& directory) { return directory == u"LfgDat_A"; };
    EXPECT_EQ(WithoutUnfinished(With({lost, torn, made}), isA).Findings, (std::vector{lost, torn}));
}

TEST(VerdictTest, JournalTellsWhichBranchTheUserWasAskedToDelete)
{
    const TemporaryHome home;
    {
        Journal journal(home.Path(u"journal"), {{u"/tmp/x"_s, u"~"_s}});
        journal.Note(
            u"\"Deletion of 'Smiths' Database, Gallery and Files\": All files in /tmp/x/home/LfgDat_A\n'Smiths' "
            u"Ancestral Tree Branch will be deleted."_s);
    }
    const Story story(home.Path(u"journal"));
    EXPECT_TRUE(story.TellsOfDeletionOf(u"~/home/LfgDat_A"_s));
    EXPECT_FALSE(story.TellsOfDeletionOf(u"~/home/LfgDat_"_s));
    EXPECT_FALSE(story.TellsOfDeletionOf(u"~/other-home/LfgDat_A"_s));
}

TEST(VerdictTest, ExportThatWasPutBesideTheBranches_IsNoFinding_WhatIsWrongInItIs)
{
    const check::Finding unlisted{Kind::Registry, u"LfgDat_E"_s, {}, u"this branch isn't in the list of branches"_s};
    const check::Finding noMap{Kind::MapFile, u"LfgDat_E/LfgDat_E.cfg"_s, {}, u"the map isn't there"_s};
    const auto isE = [](const QString& directory) { return directory == u"LfgDat_E"; };
    const auto never = [](const QString&) { return false; };
    const auto always = [](const QString&) { return true; };

    EXPECT_EQ(WithoutExports(With({unlisted, noMap, torn}), isE, never).Findings, (std::vector{noMap, torn}));
    EXPECT_EQ(WithoutExports(With({unlisted, noMap, torn}), isE, always).Findings, std::vector{torn});
    EXPECT_EQ(WithoutExports(With({unlisted, noMap, torn}), never, always).Findings.size(), 3U);
}

TEST(VerdictTest, JournalTellsWhereAnExportWasToGo)
{
    const TemporaryHome home;
    {
        Journal journal(home.Path(u"journal"), {{u"/tmp/x"_s, u"~"_s}});
        journal.Note(u"\"Export Directory and Files\": Database and files will be placed in\n/tmp/x/home/LfgDat_E\n"
                     u"directory. "_s);
        journal.Note(u"\"Export Directory and Files\": Database and files will be placed in\n/tmp/x/home//LfgDat_G\n"
                     u"directory. "_s);
    }
    const Story story(home.Path(u"journal"));
    EXPECT_TRUE(story.TellsOfExportTo(u"~/home/LfgDat_E"_s));
    EXPECT_TRUE(story.TellsOfExportTo(u"~/home/LfgDat_G"_s));
    EXPECT_FALSE(story.TellsOfExportTo(u"~/home/LfgDat_F"_s));
    EXPECT_FALSE(story.TellsOfExportTo(u"~/home/LfgDat_"_s));
}

TEST(VerdictTest, AKillMayLeaveAJournal_ButNoOtherLeftover)
{
    const check::Finding journal{Kind::Leftover, u"LfgDat_A/LfgDat_A.mdb-journal"_s, {}, u"left by a change"_s};
    const check::Finding copy{Kind::Leftover, u"LfgDat_A/.lineforge-abc"_s, {}, u"left by a copy"_s};
    EXPECT_EQ(WithoutUnfinished(With({journal, copy}), none).Findings, std::vector{copy});
    EXPECT_EQ(NewFindings({}, With({journal})).size(), 1);
}

TEST(VerdictTest, AKillMayCutASwapOfTilesOff_ButLoseNoFile)
{
    const check::Finding swap{Kind::GalleryFile, u"LfgDat_A/LfgGal_A/A001_01Temp.jpg"_s, u"A001"_s,
                              u"left by a swap of two tiles that was cut off; tile 01 was its own before"_s};
    const check::Finding hidden{Kind::GalleryFile, u"LfgDat_A/LfgGal_A/A001_01.jpg"_s, u"A001"_s, u"hidden by"_s};
    EXPECT_EQ(WithoutUnfinished(With({swap, hidden}), none).Findings, std::vector{hidden});
    EXPECT_EQ(NewFindings({}, With({swap})).size(), 1);
}

TEST(VerdictTest, NotesAreNoFindings)
{
    EXPECT_TRUE(
        NewFindings({}, With({{Kind::WithoutBox, u"LfgDat_A/LfgDat_A.mdb"_s, u"A001"_s, u"no box"_s}})).empty());
}

} // namespace
} // namespace lineforge::monkey
