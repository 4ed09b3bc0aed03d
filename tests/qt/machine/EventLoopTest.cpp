#include "qt/Dialogs.h"
#include "qt/WindowTest.h"
#include "qt/machine/QtEventLoop.h"

#include <QApplication>
#include <QTimer>

namespace lineforge
{

using namespace Qt::StringLiterals;

namespace
{
struct EventLoopTest : WindowTest {
    QStringList Story;

    // Runs the program's loop with `handler` as the first event, and gives back the exit code.
    int RunProgram(const Event& handler)
    {
        QTimer::singleShot(0, &guard_, [this, handler] { System().Run(handler); });
        QTimer::singleShot(10000, &guard_, [] {
            ADD_FAILURE() << "the program doesn't end";
            QCoreApplication::exit(-1);
        });
        return QApplication::exec();
    }
    Prompts& Ask() { return Machine().Bundle().Prompts; }
    QtEventLoop& Loop() { return Machine().Loop(); }

private:
    QObject guard_;
};

TEST_F(EventLoopTest, DoEventsServesWhatWaits)
{
    bool served = false;
    QTimer::singleShot(0, qApp, [&served] { served = true; });
    Loop().DoEvents();
    EXPECT_TRUE(served);
    EXPECT_FALSE(Loop().HasEnded());
}

TEST_F(EventLoopTest, EndUnwindsTheHandlerAndGivesTheExitCode)
{
    const int code = RunProgram([this] {
        Story += u"before"_s;
        Loop().End(3);
        Story += u"after"_s;
    });
    EXPECT_EQ(code, 3);
    EXPECT_EQ(Loop().ExitCode(), 3);
    EXPECT_TRUE(Loop().HasEnded());
    EXPECT_EQ(Story, QStringList{u"before"_s});
}

TEST_F(EventLoopTest, DoEventsThrowsWhenAnEventEndedTheProgram)
{
    const int code = RunProgram([this] {
        QTimer::singleShot(0, qApp, [this] { System().Run([this] { Loop().End(4); }); });
        Story += u"walking"_s;
        Loop().DoEvents();
        Story += u"still walking"_s;
    });
    EXPECT_EQ(code, 4);
    EXPECT_EQ(Story, QStringList{u"walking"_s});
}

TEST_F(EventLoopTest, EndInsideABoxThatWaits_TakesItDown_AndUnwindsWhoAsked)
{
    const int code = RunProgram([this] {
        const NextDialog dialog([this](QDialog& box) {
            AsMessageBox(box);
            System().Run([this] { Loop().End(5); });
            EXPECT_FALSE(box.isVisible());
        });
        Story += u"asking"_s;
        Ask().MsgBox(u"t"_s, u"x"_s, Buttons::QuestionYesNo);
        Story += u"answered"_s;
    });
    EXPECT_EQ(code, 5);
    EXPECT_EQ(Story, QStringList{u"asking"_s});
}

TEST_F(EventLoopTest, EndInsideABoxAboveABox_UnwindsBoth)
{
    const int code = RunProgram([this] {
        const NextDialog outer([this](QDialog&) {
            System().Run([this] {
                const NextDialog inner([this](QDialog&) { System().Run([this] { Loop().End(6); }); });
                Ask().InputBox(u"inner"_s, u"x"_s);
                Story += u"inner answered"_s;
            });
        });
        Ask().MsgBox(u"outer"_s, u"x"_s, Buttons::Information);
        Story += u"outer answered"_s;
    });
    EXPECT_EQ(code, 6);
    EXPECT_EQ(Story, QStringList());
}

TEST_F(EventLoopTest, AfterTheEndNothingIsAskedAnyMore)
{
    RunProgram([this] { Loop().End(0); });
    EXPECT_THROW(Ask().MsgBox(u"t"_s, u"x"_s, Buttons::Plain), ProgramEnded);
    EXPECT_THROW(Ask().InputBox(u"t"_s, u"x"_s), ProgramEnded);
    EXPECT_THROW(Ask().OpenFile({}), ProgramEnded);
    EXPECT_THROW(Ask().ShowHelp({}), ProgramEnded);
    EXPECT_THROW(Loop().DoEvents(), ProgramEnded);
}
} // namespace

} // namespace lineforge
