#include "shell/ShellTest.h"
#include "shell/handlers/InstallHandlers.h"

#include <QFile>

#include <ctime>

namespace lineforge
{
namespace
{

const QByteArray goodRegistry = "This File Contains Graphic Data crucial to your program. Warning: DO NOT MODIFY.\r\n"
                                "[Alias]\r\n[Smiths=LfgDat_A,Jones family=LfgDat_B,]\r\n[CFG]\r\n[1,]\r\n";

// One start of the program on a registry of these bytes.
class BadStart
{
public:
    explicit BadStart(const QByteArray& registry)
    {
        InstallHandlers(P);
        Machine.Home.WriteFile(u"AliasList.cfg", registry);
    }

    // What stands beneath the platform's text ends with the file.
    void ExpectFatalBox(QStringView text)
    {
        Machine.Prompts.Expect(u"Lineforge", QString(text + Machine.Home.Path(u"AliasList.cfg")), Buttons::Error);
    }

    void Run()
    {
        const Tree before = Machine.Home.Snapshot();
        RunHandler(P, [this] { StartProgram(P); });
        EXPECT_EQ(Differences(before, Machine.Home.Snapshot()), QStringList());
    }

    TestPlatform Machine;
    Program P{Machine.Platform};
};

const QString pastTable = u"Run-time error '9':\n\nSubscript out of range\n\n"_s
                          u"The list or table that is needed has no place of this number:\n100\n";
const QString pastEnd = u"Run-time error '62':\n\nInput past end of file\n\nThis file ends too early:\n"_s;

TEST(BadRegistry, CutOffAtAnyByte_EndsTheProgramInsideASection_AndIsAnEmptyListBeforeIt)
{
    const qsizetype listBegins = goodRegistry.indexOf("[Alias]") + 7;
    const qsizetype listEnds = goodRegistry.indexOf(",]") + 2;
    const qsizetype settingBegins = goodRegistry.indexOf("[CFG]") + 5;
    const qsizetype settingEnds = goodRegistry.lastIndexOf(']') + 1;

    for (qsizetype length = 0; length < goodRegistry.size(); ++length) {
        SCOPED_TRACE(length);
        const bool isInSection =
            (length >= listBegins && length < listEnds) || (length >= settingBegins && length < settingEnds);
        BadStart start(goodRegistry.first(length));
        if (isInSection)
            start.ExpectFatalBox(pastEnd);

        start.Run();

        if (isInSection) {
            EXPECT_EQ(start.Machine.Loop.ExitCode, 1);
        } else {
            EXPECT_EQ(start.Machine.Loop.ExitCode, std::nullopt);
            EXPECT_TRUE(start.P.Form1->Visible);
            EXPECT_EQ(start.P.Alias.AliasTable[1], length >= listEnds ? u"Jones family=LfgDat_B"_s : QString());
        }
    }
}

TEST(BadRegistry, Empty_StartsWithoutBranches_AndWithTheSplash)
{
    BadStart start({});

    start.Run();

    EXPECT_TRUE(start.P.form9->Visible);
    EXPECT_TRUE(start.P.Form1->Visible);
    EXPECT_EQ(start.P.Alias.sAliasList, QString());
}

TEST(BadRegistry, BinaryWithoutSections_StartsWithoutBranches)
{
    QByteArray bytes;
    for (int index = 0; index < 100'000; ++index)
        bytes += static_cast<char>((index * 7919 + index / 256) & 0xFF);
    ASSERT_FALSE(bytes.toLower().contains("[alias]"));
    BadStart start(bytes);

    start.Run();

    EXPECT_TRUE(start.P.Form1->Visible);
    EXPECT_EQ(start.P.Alias.sAliasList, QString());
}

TEST(BadRegistry, BinaryInsideTheSections_IsTakenForNamesOrRefused_NeverACrash)
{
    QByteArray list;
    for (int byte = 0; byte < 256; ++byte)
        if (byte != '[' && byte != ']' && byte != ',')
            list += static_cast<char>(byte);
    BadStart start("[Alias]\r\n[" + list + ",]\r\n[CFG]\r\n[" + list + ",]\r\n");
    start.ExpectFatalBox(u"Run-time error '13':\n\nType mismatch\n\nA number should stand where this stands:\n"
                         u"' !\"#$%&'()' ...\n");

    start.Run();

    EXPECT_EQ(start.Machine.Loop.ExitCode, 1);
}

TEST(BadRegistry, MoreEntriesThanTheTableHolds_EndTheProgram)
{
    QByteArray list;
    for (int entry = 0; entry < 101; ++entry)
        list += "Smiths=LfgDat_A,";
    BadStart start("[Alias]\r\n[" + list + "]\r\n[CFG]\r\n[1,]\r\n");
    start.ExpectFatalBox(pastTable);

    start.Run();

    EXPECT_EQ(start.Machine.Loop.ExitCode, 1);
}

// 100 MB each. The time is the processor's own, so that a busy machine doesn't count.
class HugeRegistryTest : public testing::Test
{
protected:
    static constexpr qsizetype huge = 100'000'000;
    static constexpr std::clock_t patienceSeconds = 60;

    ~HugeRegistryTest() override { EXPECT_LT((std::clock() - begin) / CLOCKS_PER_SEC, patienceSeconds); }

private:
    std::clock_t begin = std::clock();
};

TEST_F(HugeRegistryTest, Zeros_StartWithoutBranches)
{
    BadStart start({});
    ASSERT_TRUE(QFile::resize(start.Machine.Home.Path(u"AliasList.cfg"), huge));

    start.Run();

    EXPECT_TRUE(start.P.Form1->Visible);
    EXPECT_EQ(start.P.Alias.sAliasList, QString());
}

TEST_F(HugeRegistryTest, OneEndlessName_EndsTheProgram)
{
    BadStart start("[CFG]\r\n[1,]\r\n[Alias]\r\n[" + QByteArray(huge, 'x'));
    start.ExpectFatalBox(pastEnd);

    start.Run();

    EXPECT_EQ(start.Machine.Loop.ExitCode, 1);
}

TEST_F(HugeRegistryTest, CommasWithoutEnd_EndTheProgram)
{
    BadStart start("[CFG]\r\n[1,]\r\n[Alias]\r\n[" + QByteArray(huge, ','));
    start.ExpectFatalBox(pastTable);

    start.Run();

    EXPECT_EQ(start.Machine.Loop.ExitCode, 1);
}

} // namespace
} // namespace lineforge
