#include "program/branch/AliasList.h"

#include "support/ProgramTest.h"

#include <QFile>

namespace lineforge
{
namespace
{
using namespace Qt::StringLiterals;

const QByteArray header = "This File Contains Graphic Data crucial to your program. Warning: DO NOT MODIFY.\r\n";

QByteArray Registry(const QByteArray& list, const QByteArray& setting = "1,")
{
    return header + "[Alias]\r\n[" + list + "]\r\n[CFG]\r\n[" + setting + "]\r\n";
}

class AliasListTest : public ProgramTest
{
protected:
    void GivenFile(const QByteArray& bytes) { Home.WriteFile(u"AliasList.cfg", bytes); }

    void GivenEntriesRead(int count)
    {
        QByteArray list;
        for (int index = 0; index < count; ++index)
            list += "Name " + QByteArray::number(index) + "=LfgDat_A,";
        GivenFile(Registry(list));
    }

    void GivenSplashStands()
    {
        GivenFile(Registry({}));
        P.form9.Load();
    }

    void ExpectMissingBox()
    {
        Prompts.Expect(u"File not Found.", u"Can't find AliasList.cfg in Home Directory", Buttons::Information);
    }

    void ExpectReadOnlyBox()
    {
        Prompts.Expect(u"File Attribute set for Read Only.",
                       u"Cannot access a Read Only File. Use 'Import File' to read this File.", Buttons::Information);
    }

    QStringList Entries() const
    {
        QStringList entries;
        for (int index = 0; index <= 99 && !P.Alias.AliasTable[index].isEmpty(); ++index)
            entries += P.Alias.AliasTable[index];
        return entries;
    }

    QByteArray Written() const { return Home.ReadFile(u"AliasList.cfg"); }
};

struct Reading {
    const char* What;
    QByteArray Bytes;
    QStringView List;
    QStringList Entries;
};

void PrintTo(const Reading& reading, std::ostream* out)
{
    *out << reading.What;
}

class AliasListReadingTest : public AliasListTest, public testing::WithParamInterface<Reading>
{
};

TEST_P(AliasListReadingTest, List_IsReadIntoTextAndTable)
{
    GivenFile(GetParam().Bytes);

    ReadAliasList(P);

    EXPECT_EQ(P.Alias.sAliasList, GetParam().List);
    EXPECT_EQ(Entries(), GetParam().Entries);
}

INSTANTIATE_TEST_SUITE_P(
    Lists, AliasListReadingTest,
    testing::Values(
        Reading{"two branches",
                Registry("Smiths=LfgDat_A,Jones family=LfgDat_B,"),
                u"Smiths=LfgDat_A,Jones family=LfgDat_B,",
                {u"Smiths=LfgDat_A"_s, u"Jones family=LfgDat_B"_s}},
        Reading{"none", Registry({}), u"", {}},
        Reading{"line feeds alone", "[Alias]\n[Smiths=LfgDat_A,]\n", u"Smiths=LfgDat_A,", {u"Smiths=LfgDat_A"_s}},
        Reading{"no line ends at all", "[Alias][Smiths=LfgDat_A,]", u"Smiths=LfgDat_A,", {u"Smiths=LfgDat_A"_s}},
        Reading{"line ends within the list",
                "[Alias]\r\n[Smi\r\nths=Lfg\nDat_A,]",
                u"Smiths=LfgDat_A,",
                {u"Smiths=LfgDat_A"_s}},
        Reading{"no opening bracket", "[Alias]\r\nSmiths=LfgDat_A,]", u"Smiths=LfgDat_A,", {u"Smiths=LfgDat_A"_s}},
        Reading{"text behind the last comma",
                Registry("Smiths=LfgDat_A,Jones"),
                u"Smiths=LfgDat_A,",
                {u"Smiths=LfgDat_A"_s}},
        Reading{"an empty entry",
                Registry("Smiths=LfgDat_A,,Jones=LfgDat_B,"),
                u"Smiths=LfgDat_A,,Jones=LfgDat_B,",
                {u"Smiths=LfgDat_A"_s}},
        Reading{"accents", Registry("M\xC3\xBCller=LfgDat_A,"), u"M\u00FCller=LfgDat_A,", {u"M\u00FCller=LfgDat_A"_s}},
        Reading{"accents of older installations",
                Registry("M\xFCller=LfgDat_A,"),
                u"M\u00FCller=LfgDat_A,",
                {u"M\u00FCller=LfgDat_A"_s}},
        Reading{"no section", "Smiths=LfgDat_A,\r\n", u"", {}}, Reading{"an empty file", {}, u"", {}},
        Reading{"a name that has failed isn't looked at twice", "[[Alias]\r\n[Smiths=LfgDat_A,]\r\n", u"", {}},
        Reading{"the second of two sections when the first is misspelt",
                "[Alia]\r\n[Alias]\r\n[Smiths=LfgDat_A,]",
                u"Smiths=LfgDat_A,",
                {u"Smiths=LfgDat_A"_s}}));

TEST_F(AliasListTest, FriendlyNameWithComma_SplitsIntoTwoEntries_AndHidesAllLaterBranches)
{
    GivenFile(Registry("Jones=LfgDat_A,Smiths, of Leeds=LfgDat_B,Brown=LfgDat_C,"));

    ReadAliasList(P);
    FillBranchList(P);

    EXPECT_EQ(Entries(), (QStringList{u"Jones=LfgDat_A"_s, u"Smiths"_s, u" of Leeds=LfgDat_B"_s, u"Brown=LfgDat_C"_s}));
    EXPECT_EQ(P.Form8->List1.Items.value(), QStringList{u"Jones"_s});
}

TEST_F(AliasListTest, FriendlyNameWithClosingBracket_EndsTheList_AndLosesAllLaterBranchesAtTheNextWrite)
{
    GivenFile(Registry("Jones=LfgDat_A,Sm]iths=LfgDat_B,Brown=LfgDat_C,"));

    ReadAliasList(P);
    EXPECT_EQ(P.Alias.sAliasList, u"Jones=LfgDat_A,"_s);

    P.Alias.NoSplash = 1;
    WriteAliasList(P);
    EXPECT_EQ(Written(), Registry("Jones=LfgDat_A,"));
}

TEST_F(AliasListTest, OpeningBracketInFriendlyName_Vanishes)
{
    GivenFile(Registry("Sm[iths=LfgDat_A,"));

    ReadAliasList(P);

    EXPECT_EQ(Entries(), QStringList{u"Smiths=LfgDat_A"_s});
}

TEST_F(AliasListTest, EmptyList_IsWrittenAsTwoBrackets_AndLeavesTheBranchListAsItWas)
{
    GivenFile(Registry("Smiths=LfgDat_A,"));
    P.Form8.Load();
    P.Form8->List1.ListIndex = 0;
    P.Alias.sAliasList.clear();
    P.Alias.NoSplash = 1;

    WriteAliasList(P);
    ReadAliasList(P);
    FillBranchList(P);

    EXPECT_EQ(Written(), Registry({}));
    EXPECT_EQ(P.Form8->List1.Items.value(), QStringList{u"Smiths"_s});
    EXPECT_EQ(P.Form8->List1.ListIndex.value(), 0);
}

TEST_F(AliasListTest, SectionNames_AreFoundInAnyCase)
{
    GivenFile("[ALIAS]\r\n[Smiths=LfgDat_A,]\r\n[cfg]\r\n[1,]\r\n");

    ReadAliasList(P);
    ReadAliasConfig(P);

    EXPECT_EQ(Entries(), QStringList{u"Smiths=LfgDat_A"_s});
    EXPECT_EQ(P.Alias.NoSplash, 1);
}

TEST_F(AliasListTest, TextBeforeTheSection_IsSkipped_WhateverItIs)
{
    GivenFile("[Alia] some, [other] header=\r\n\r\nAlias]" + Registry("Smiths=LfgDat_A,"));

    ReadAliasList(P);

    EXPECT_EQ(Entries(), QStringList{u"Smiths=LfgDat_A"_s});
}

TEST_F(AliasListTest, FileThatEndsInsideASection_IsInputPastTheEnd_OneThatEndsBeforeItIsNot)
{
    GivenFile("[Alias]\r\n[Smiths=LfgDat_A,\r\n[CFG\r\n");

    EXPECT_EQ(RefusalOf([&] { ReadAliasList(P); }), ErrorNumber::InputPastEnd);
    EXPECT_EQ(RefusalOf([&] { ReadAliasConfig(P); }), 0);

    GivenFile("[Alias]\r\n[]\r\n[CFG]\r\n[1,");
    EXPECT_EQ(RefusalOf([&] { ReadAliasConfig(P); }), ErrorNumber::InputPastEnd);
    EXPECT_EQ(RefusalOf([&] { ReadAliasList(P); }), 0);
}

TEST_F(AliasListTest, AnotherReading_ReplacesWhatWasRead)
{
    GivenFile(Registry("Smiths=LfgDat_A,Jones=LfgDat_B,"));
    ReadAliasList(P);
    GivenFile(Registry("Brown=LfgDat_C,"));

    ReadAliasList(P);

    EXPECT_EQ(P.Alias.sAliasList, u"Brown=LfgDat_C,"_s);
    EXPECT_EQ(Entries(), QStringList{u"Brown=LfgDat_C"_s});
}

TEST_F(AliasListTest, HundredEntries_Fit)
{
    GivenEntriesRead(100);

    ReadAliasList(P);

    EXPECT_EQ(P.Alias.AliasTable[99], u"Name 99=LfgDat_A"_s);
}

TEST_F(AliasListTest, HundredAndFirstEntry_IsSubscriptOutOfRange)
{
    GivenEntriesRead(101);

    EXPECT_EQ(RefusalOf([&] { ReadAliasList(P); }), ErrorNumber::Subscript);
}

struct Setting {
    QByteArray Section;
    int NoSplash;
    int Refusal = 0;
};

void PrintTo(const Setting& setting, std::ostream* out)
{
    *out << setting.Section.toPercentEncoding("[],- .").constData();
}

class AliasConfigTest : public AliasListTest, public testing::WithParamInterface<Setting>
{
};

TEST_P(AliasConfigTest, Setting_IsTheLastNumberThatACommaEnds)
{
    GivenFile(header + "[Alias]\r\n[Smiths=LfgDat_A,]\r\n" + GetParam().Section);
    P.Alias.NoSplash = 4;

    EXPECT_EQ(RefusalOf([&] { ReadAliasConfig(P); }), GetParam().Refusal);
    EXPECT_EQ(P.Alias.NoSplash, GetParam().NoSplash);
}

INSTANTIATE_TEST_SUITE_P(Settings, AliasConfigTest,
                         testing::Values(Setting{"[CFG]\r\n[1,]\r\n", 1}, Setting{"[CFG]\r\n[0,]\r\n", 0},
                                         Setting{"[CFG]\r\n[1,0,1,0,]\r\n", 0}, Setting{"[CFG][ 1 ,]", 1},
                                         Setting{"[CFG]\r\n[]\r\n", 4}, Setting{"[CFG]\r\n[1]\r\n", 4},
                                         Setting{"[CFG]1,]", 1}, Setting{"", 4}, Setting{"[CFX]\r\n[1,]", 4},
                                         Setting{"[CFG]\r\n[,]\r\n", 4, ErrorNumber::TypeMismatch},
                                         Setting{"[CFG]\r\n[yes,]\r\n", 4, ErrorNumber::TypeMismatch},
                                         Setting{"[CFG]\r\n[40000,]\r\n", 4, ErrorNumber::Overflow},
                                         Setting{"[CFG]", 4, ErrorNumber::InputPastEnd},
                                         Setting{"[CFG]\r\n[1,", 1, ErrorNumber::InputPastEnd}));

using Reader = void (*)(const BranchRegistry&);

class AliasReadersTest : public AliasListTest, public testing::WithParamInterface<Reader>
{
protected:
    void GivenSomethingRead()
    {
        GivenFile(Registry("Smiths=LfgDat_A,"));
        ReadAliasList(P);
        ReadAliasConfig(P);
    }

    void ExpectAllAsItWas()
    {
        EXPECT_EQ(P.Alias.sAliasList, u"Smiths=LfgDat_A,"_s);
        EXPECT_EQ(Entries(), QStringList{u"Smiths=LfgDat_A"_s});
        EXPECT_EQ(P.Alias.NoSplash, 1);
    }
};

TEST_P(AliasReadersTest, MissingFile_UnloadsTheSplash_ThenSaysSo_AndKeepsWhatWasRead)
{
    GivenSplashStands();
    GivenSomethingRead();
    QFile::remove(Home.Path(u"AliasList.cfg"));
    Prompts.Expect(u"File not Found.", u"Can't find AliasList.cfg in Home Directory", Buttons::Information, Answer::Ok,
                   [&] { EXPECT_FALSE(P.form9.IsLoaded()); });

    GetParam()(P);

    ExpectAllAsItWas();
}

TEST_P(AliasReadersTest, DirectoryOfThatName_CountsAsMissing)
{
    GivenSomethingRead();
    QFile::remove(Home.Path(u"AliasList.cfg"));
    Home.MakeDirectory(u"AliasList.cfg");
    ExpectMissingBox();

    GetParam()(P);

    ExpectAllAsItWas();
}

TEST_P(AliasReadersTest, ReadOnlyFile_IsRefused_LeavesItsAttribute_AndKeepsWhatWasRead)
{
    GivenSplashStands();
    GivenSomethingRead();
    GivenFile(Registry("Jones=LfgDat_B,", "0,"));
    Home.MakeReadOnly(u"AliasList.cfg");
    ExpectReadOnlyBox();

    GetParam()(P);

    ExpectAllAsItWas();
    EXPECT_EQ(P.Alias.AliasAttr, 1);
    EXPECT_TRUE(P.form9.IsLoaded());
}

TEST_P(AliasReadersTest, WritableFile_LeavesAttributeZero)
{
    GivenFile(Registry({}));
    P.Alias.AliasAttr = 1;

    GetParam()(P);

    EXPECT_EQ(P.Alias.AliasAttr, 0);
}

TEST_P(AliasReadersTest, FileName_IsFoundInAnyCase)
{
    Home.WriteFile(u"ALIASLIST.CFG", Registry("Smiths=LfgDat_A,"));

    GetParam()(P);

    if (GetParam() == &ReadAliasList)
        EXPECT_EQ(P.Alias.sAliasList, u"Smiths=LfgDat_A,"_s);
    else
        EXPECT_EQ(P.Alias.NoSplash, 1);
}

INSTANTIATE_TEST_SUITE_P(Both, AliasReadersTest, testing::Values(&ReadAliasList, &ReadAliasConfig),
                         [](const auto& reader) { return reader.param == &ReadAliasList ? "List" : "Setting"; });

TEST_F(AliasListTest, Writing_GivesTheFiveLines_ByteForByte)
{
    P.Alias.sAliasList = u"Smiths=LfgDat_A,Jones family=LfgDat_B,"_s;
    P.Alias.NoSplash = 1;

    WriteAliasList(P);

    EXPECT_EQ(Written(), QByteArray("This File Contains Graphic Data crucial to your program. "
                                    "Warning: DO NOT MODIFY.\r\n"
                                    "[Alias]\r\n"
                                    "[Smiths=LfgDat_A,Jones family=LfgDat_B,]\r\n"
                                    "[CFG]\r\n"
                                    "[1,]\r\n"));
}

struct Writing {
    QStringView List;
    int NoSplash;
    QByteArray Bytes;
};

void PrintTo(const Writing& writing, std::ostream* out)
{
    PrintTo(writing.List, out);
}

class AliasListWritingTest : public AliasListTest, public testing::WithParamInterface<Writing>
{
};

TEST_P(AliasListWritingTest, ListAndSetting_AreWritten_AndReadBack)
{
    P.Alias.sAliasList = GetParam().List.toString();
    P.Alias.NoSplash = GetParam().NoSplash;

    WriteAliasList(P);
    EXPECT_EQ(Written(), GetParam().Bytes);

    P.Alias = {};
    ReadAliasList(P);
    ReadAliasConfig(P);
    EXPECT_EQ(P.Alias.sAliasList, GetParam().List);
    EXPECT_EQ(P.Alias.NoSplash, GetParam().NoSplash);
}

INSTANTIATE_TEST_SUITE_P(Lists, AliasListWritingTest,
                         testing::Values(Writing{u"", 0, Registry({}, "0,")}, Writing{u"", 1, Registry({}, "1,")},
                                         Writing{u"Smiths=LfgDat_A,", 0, Registry("Smiths=LfgDat_A,", "0,")},
                                         Writing{u"M\u00FCller=LfgDat_A,", 1, Registry("M\xC3\xBCller=LfgDat_A,")},
                                         Writing{u"Cousins=Import_A,Smiths=LfgDat_A,", 1,
                                                 Registry("Cousins=Import_A,Smiths=LfgDat_A,")}));

TEST_F(AliasListTest, Writing_KeepsThePreviousGeneration_InPlaceOfAnOlderOne)
{
    Home.WriteFile(u"AliasList.bak", "older");
    GivenFile("old");
    P.Alias.sAliasList = u"Smiths=LfgDat_A,"_s;

    WriteAliasList(P);

    EXPECT_EQ(Home.ReadFile(u"AliasList.bak"), "old");
    EXPECT_EQ(Written(), Registry("Smiths=LfgDat_A,", "0,"));
}

TEST_F(AliasListTest, Writing_WithNoFileThere_LeavesThePreviousGenerationAlone)
{
    Home.WriteFile(u"AliasList.bak", "older");

    WriteAliasList(P);

    EXPECT_EQ(Home.ReadFile(u"AliasList.bak"), "older");
    EXPECT_EQ(Written(), Registry({}, "0,"));
}

TEST_F(AliasListTest, Writing_LeavesBothPathsBehind)
{
    WriteAliasList(P);

    EXPECT_EQ(P.Scratch.sFileA, Home.Path(u"AliasList.cfg"));
    EXPECT_EQ(P.Scratch.sFileB, Home.Path(u"AliasList.bak"));
}

TEST_F(AliasListTest, WritingAReadOnlyFile_IsRefused_AndChangesNoByteOfIt)
{
    GivenFile("old");
    Home.MakeReadOnly(u"AliasList.cfg");

    EXPECT_EQ(RefusalOf([&] { WriteAliasList(P); }), ErrorNumber::PathFileAccess);

    EXPECT_EQ(Written(), "old");
}

} // namespace
} // namespace lineforge
