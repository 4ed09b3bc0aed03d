#include "support/ScriptedPrompts.h"

#include "support/Printing.h"

#include <gtest/gtest-spi.h>
#include <gtest/gtest.h>

namespace lineforge
{
namespace
{
using namespace Qt::StringLiterals;

class ScriptedPromptsTest : public testing::Test
{
protected:
    // Asks, and goes on as a test does whose routine was left.
    template <class Question>
    void AskInVain(Question&& question)
    {
        wasLeft = false;
        try {
            question();
        } catch (const UnscriptedPrompt&) {
            wasLeft = true;
        }
    }

    ScriptedPrompts prompts;
    bool wasLeft = false;
};

TEST_F(ScriptedPromptsTest, ScriptedQuestions_GetTheirAnswers_InOrder)
{
    prompts.Expect(u"Delete", u"Sure?", Buttons::QuestionYesNo, Answer::No);
    prompts.ExpectInput(u"Name", u"Enter a name", u"Smith");
    prompts.ExpectOpenFile(u"Select", u"Pictures|*.jpg|", u"/home/a.jpg"_s);
    prompts.ExpectOpenFile(u"Select", u"All|*.*|");
    prompts.ExpectColour(Black, Rgb(255, 128, 0));
    prompts.ExpectColour(White);
    prompts.ExpectFont({u"Arial"_s, 8}, TextFont{u"Courier"_s, 10.5, true, true});
    prompts.ExpectFont({u"Arial"_s, 8, true});
    prompts.ExpectPrinterSetup();
    prompts.ExpectHelp(u"LfgHelp.hlp");
    prompts.Expect(u"Done", u"", Buttons::Information);

    EXPECT_EQ(prompts.MsgBox(u"Delete"_s, u"Sure?"_s, Buttons::QuestionYesNo), Answer::No);
    EXPECT_EQ(prompts.InputBox(u"Name"_s, u"Enter a name"_s), u"Smith");
    EXPECT_EQ(prompts.OpenFile({u"Select"_s, u"Pictures|*.jpg|"_s}), u"/home/a.jpg"_s);
    EXPECT_EQ(prompts.OpenFile({u"Select"_s, u"All|*.*|"_s}), std::nullopt);
    EXPECT_EQ(prompts.PickColour(Black), Rgb(255, 128, 0));
    EXPECT_EQ(prompts.PickColour(White), std::nullopt);
    EXPECT_EQ(prompts.PickFont({u"Arial"_s, 8}), (TextFont{u"Courier"_s, 10.5, true, true}));
    EXPECT_EQ(prompts.PickFont({u"Arial"_s, 8, true}), std::nullopt);
    prompts.PickPrinter();
    prompts.ShowHelp(u"LfgHelp.hlp"_s);
    EXPECT_FALSE(prompts.IsUsedUp());
    EXPECT_EQ(prompts.MsgBox(u"Done"_s, QString(), Buttons::Information), Answer::Ok);
    EXPECT_TRUE(prompts.IsUsedUp());
}

TEST_F(ScriptedPromptsTest, QuestionWithoutScript_FailsTheTest_AndLeavesTheRoutine)
{
    EXPECT_NONFATAL_FAILURE(AskInVain([&] { prompts.MsgBox(u"Oh"_s, u"no"_s, Buttons::Plain); }), "\"Oh\"");
    EXPECT_TRUE(wasLeft);
    EXPECT_NONFATAL_FAILURE(AskInVain([&] { prompts.InputBox(u"Oh"_s, u"no"_s); }), "input box");
    EXPECT_TRUE(wasLeft);
    EXPECT_NONFATAL_FAILURE(AskInVain([&] { prompts.OpenFile({u"Oh"_s, u"no"_s}); }), "file to open");
    EXPECT_TRUE(wasLeft);
    EXPECT_NONFATAL_FAILURE(AskInVain([&] { prompts.PickColour(Rgb(0xab, 0, 0)); }), "colour, present 0000ab");
    EXPECT_TRUE(wasLeft);
    EXPECT_NONFATAL_FAILURE(AskInVain([&] { prompts.PickFont({u"Arial"_s, 8.5}); }), "font, present \"Arial\" 8.5");
    EXPECT_TRUE(wasLeft);
    EXPECT_NONFATAL_FAILURE(AskInVain([&] { prompts.PickPrinter(); }), "printer set-up");
    EXPECT_TRUE(wasLeft);
    EXPECT_NONFATAL_FAILURE(AskInVain([&] { prompts.ShowHelp(u"x.hlp"_s); }), "x.hlp");
    EXPECT_TRUE(wasLeft);
}

TEST_F(ScriptedPromptsTest, QuestionThatDiffers_FailsWithBothShown_AndLeavesTheRoutine)
{
    const auto expect = [&] { prompts.Expect(u"Title", u"Text", Buttons::QuestionYesNo, Answer::Yes); };

    expect();
    EXPECT_NONFATAL_FAILURE(AskInVain([&] { prompts.MsgBox(u"title"_s, u"Text"_s, Buttons::QuestionYesNo); }),
                            "\"title\"");
    EXPECT_TRUE(wasLeft);
    expect();
    EXPECT_NONFATAL_FAILURE(AskInVain([&] { prompts.MsgBox(u"Title"_s, u"Text."_s, Buttons::QuestionYesNo); }),
                            "scripted: message, title \"Title\", text \"Text\"");
    EXPECT_TRUE(wasLeft);
    expect();
    EXPECT_NONFATAL_FAILURE(AskInVain([&] { prompts.MsgBox(u"Title"_s, u"Text"_s, Buttons::InformationYesNo); }),
                            "buttons 68");
    EXPECT_TRUE(wasLeft);
    expect();
    EXPECT_NONFATAL_FAILURE(AskInVain([&] { prompts.InputBox(u"Title"_s, u"Text"_s); }), "input box");
    EXPECT_TRUE(wasLeft);
}

TEST_F(ScriptedPromptsTest, DialogThatOpensOnAnotherColourOrFont_Fails_AndLeavesTheRoutine)
{
    prompts.ExpectColour(White, Black);
    EXPECT_NONFATAL_FAILURE(AskInVain([&] { prompts.PickColour(Black); }), "scripted: colour, present ffffff");
    EXPECT_TRUE(wasLeft);
    const TextFont scripted{u"Arial"_s, 8, false, true};
    for (const TextFont& other : {TextFont{u"Ariel"_s, 8, false, true}, TextFont{u"Arial"_s, 9, false, true},
                                  TextFont{u"Arial"_s, 8, true, true}, TextFont{u"Arial"_s, 8}}) {
        prompts.ExpectFont(scripted, scripted);
        EXPECT_NONFATAL_FAILURE(AskInVain([&] { prompts.PickFont(other); }),
                                "scripted: font, present \"Arial\" 8 italic");
        EXPECT_TRUE(wasLeft);
    }
}

TEST_F(ScriptedPromptsTest, WhileAColourFontOrPrinterIsPicked_TheTestMayAct)
{
    int acts = 0;
    prompts.ExpectColour(Black, {}, [&acts] { ++acts; });
    prompts.ExpectFont({}, {}, [&acts] { ++acts; });
    prompts.ExpectPrinterSetup([&acts] { ++acts; });

    prompts.PickColour(Black);
    prompts.PickFont({});
    prompts.PickPrinter();

    EXPECT_EQ(acts, 3);
}

TEST_F(ScriptedPromptsTest, UnusedEntry_FailsTheTest_AtTheLatestInTheEnd)
{
    prompts.Expect(u"Never", u"asked", Buttons::Plain);
    EXPECT_NONFATAL_FAILURE(prompts.Verify(), "never asked: message, title \"Never\"");
    prompts.Verify();

    EXPECT_NONFATAL_FAILURE(
        {
            ScriptedPrompts shortLived;
            shortLived.ExpectHelp(u"unread.hlp");
        },
        "unread.hlp");
}

TEST_F(ScriptedPromptsTest, WhileAQuestionIsOpen_TheTestMayAct_AndTheProgramMayAskAgain)
{
    bool acted = false;
    prompts.Expect(u"Outer", u"", Buttons::Plain, Answer::Ok, [&] {
        acted = true;
        EXPECT_EQ(prompts.InputBox(u"Inner"_s, QString()), u"answer");
    });
    prompts.ExpectInput(u"Inner", u"", u"answer");

    prompts.MsgBox(u"Outer"_s, QString(), Buttons::Plain);

    EXPECT_TRUE(acted);
}

TEST_F(ScriptedPromptsTest, TextsWithPlaceMarkers_AreTakenAsTheyStand)
{
    prompts.Expect(u"%2 %1", u"100%3", Buttons::Plain);

    EXPECT_EQ(prompts.MsgBox(u"%2 %1"_s, u"100%3"_s, Buttons::Plain), Answer::Ok);
}

} // namespace
} // namespace lineforge
