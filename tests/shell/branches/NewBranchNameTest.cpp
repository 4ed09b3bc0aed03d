#include "shell/branches/NewBranchTest.h"

namespace lineforge
{
namespace
{

class DuplicateNameTest : public MadeBranchTest, public testing::WithParamInterface<const char16_t*>
{
};

TEST_P(DuplicateNameTest, NameThatABranchHasInAnyCase_IsRefused_AndAskedForAgain)
{
    AnswerName(GetParam());
    ExpectDuplicateBox();
    AnswerName(GetParam());
    ExpectDuplicateBox();

    Make(u"Browns", u"LfgDat_C");

    EXPECT_EQ(Registry(), RegistryWith("Browns=LfgDat_C"));
}

INSTANTIATE_TEST_SUITE_P(Names, DuplicateNameTest, testing::Values(u"Smiths", u"smiths", u"SMITHS", u"jONES"),
                         [](const auto& name) {
                             return QString(QChar(name.param[0]) + QString::number(name.index)).toStdString();
                         });

TEST_F(MadeBranchTest, NameThatOnlyBeginsOrEndsLikeAnother_IsTaken)
{
    Make(u"Smith", u"LfgDat_C");
    Make(u"ones", u"LfgDat_D");

    EXPECT_EQ(P.Alias.AliasTable[3], u"ones=LfgDat_D"_s);
}

TEST_F(MadeBranchTest, CancelAfterADuplicateName_EndsTheCommand)
{
    AnswerName(u"smiths");
    ExpectDuplicateBox();
    AnswerName({});

    P.Form1->New.Click();

    EXPECT_EQ(Registry(), registryOfTwo);
}

// Names that the branch list couldn't give back as they were typed.
class LostNameTest : public MadeBranchTest, public testing::WithParamInterface<QStringView>
{
};

TEST_P(LostNameTest, IsRefusedAsOneThatExists_AndAskedForAgain)
{
    AnswerName(GetParam());
    ExpectDuplicateBox();

    Make(u"Browns", u"LfgDat_C");

    EXPECT_EQ(Registry(), RegistryWith("Browns=LfgDat_C"));
}

INSTANTIATE_TEST_SUITE_P(Names, LostNameTest,
                         testing::Values(u"=", u"Browns=", u"=Browns", u"Browns=Greens", u"Browns, of Leeds=", u" ",
                                         u"   ", u"\t", u"[", u"]", u",", u"[]", u"[,]", u"[ ]", u" , ", u"[Smiths",
                                         u"smi[ths", u"Jones[[", u"Bro[wns", u"[Browns", u"Browns[",
                                         u"Browns, of [Leeds]", u"Bro\nwns", u"Browns\r"));

// Of which a list shows nothing: ignorable characters, blanks of all kinds, marks that have no letter to stand on.
INSTANTIATE_TEST_SUITE_P(NamesOfWhichNothingIsSeen, LostNameTest,
                         testing::Values(u"\u200B", u"\u2060", u"\uFEFF", u"\u00AD", u"\u3164", u"\u115F", u"\uFFA0",
                                         u"\u2800", u"\u00A0", u"\u3000", u"\u0001", u"\u0301", u"\uFE0F",
                                         u"\U000E0001", u"\U000E0FFF", u" \u200B\u0301 ", u",\u200D]", u"]\u0301"));

// And names that it gives back.
class KeptNameTest : public MadeBranchTest, public testing::WithParamInterface<QStringView>
{
};

TEST_P(KeptNameTest, ReadsBackAsItWasTyped_OpensAndGoesByIt)
{
    const QString name = GetParam().toString();
    Make(name, u"LfgDat_C");
    EXPECT_EQ(P.Form8->List1.Items.value(), (QStringList{u"Smiths"_s, u"Jones"_s, name}));

    Choose(u"Jones");
    Prompts.Expect(u"Box Config File record corrupt", u"Config Box Record empty", Buttons::Information);
    ExpectEmptyBox();
    Choose(name);
    EXPECT_EQ(P.Branch.WorkDir, Home.Path(u"LfgDat_C"));
    EXPECT_EQ(P.Branch.sBranchName, name);
}

INSTANTIATE_TEST_SUITE_P(Names, KeptNameTest,
                         testing::Values(u" Browns", u"Browns ", u"Browns of Leeds", u"-", u"...", u"***", u"\"'", u"1",
                                         u"LfgDat_C", u"Gr\u00FC\u00DFe", u"e\u0301", u"\u200BBrowns",
                                         u"\U0001F600\uFE0F"));

TEST_F(MadeBranchTest, NameWithComma_HidesItselfAndLaterBranchesFromTheList)
{
    AnswerName(u"Browns, of Leeds");
    Confirm(u"Browns, of Leeds", u"LfgDat_C");
    ExpectEmptyBox();
    P.Form1->New.Click();

    EXPECT_EQ(Registry(), RegistryWith("Browns, of Leeds=LfgDat_C"));
    EXPECT_EQ(P.Alias.AliasTable[2], u"Browns"_s);
    EXPECT_EQ(P.Alias.AliasTable[3], u" of Leeds=LfgDat_C"_s);
    EXPECT_EQ(P.Form8->List1.Items.value(), (QStringList{u"Smiths"_s, u"Jones"_s}));

    Make(u"Greens", u"LfgDat_D");
    EXPECT_EQ(P.Form8->List1.Items.value(), (QStringList{u"Smiths"_s, u"Jones"_s}));
}

TEST_F(MadeBranchTest, NameWithClosingBracket_IsLostFromMemory_AndFromTheFileAtTheNextWrite)
{
    AnswerName(u"Bro]wns");
    Confirm(u"Bro]wns", u"LfgDat_C");
    ExpectEmptyBox();
    P.Form1->New.Click();

    EXPECT_EQ(Registry(), RegistryWith("Bro]wns=LfgDat_C"));
    EXPECT_EQ(P.Alias.sAliasList, u"Smiths=LfgDat_A,Jones=LfgDat_B,"_s);

    Make(u"Greens", u"LfgDat_D");
    EXPECT_EQ(Registry(), RegistryWith("Greens=LfgDat_D"));
}

} // namespace
} // namespace lineforge
