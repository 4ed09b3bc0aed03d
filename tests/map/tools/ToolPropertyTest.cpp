#include "map/items/MapFile.h"
#include "map/tools/ToolsTest.h"
#include "shell/handlers/InstallHandlers.h"

#include <random>

namespace lineforge
{
namespace
{
using namespace Qt::StringLiterals;
using forms::Form1;

// Answers whatever is asked, and counts what was told.
class AnsweringPrompts : public lineforge::Prompts
{
public:
    explicit AnsweringPrompts(std::mt19937& random) : random_(random) {}

    Answer MsgBox(const QString& title, const QString&, Buttons) override
    {
        if (title == u"Closing Graphics Tools")
            return SaveAnswer;
        if (title != u"Tree Box deletion" && title != u"Box Config File record corrupt")
            ADD_FAILURE() << "told: " << qUtf8Printable(title);
        return Answer::Ok;
    }
    QString InputBox(const QString&, const QString&) override
    {
        static const QStringList texts{u""_s, u"The Smiths"_s, u"x"_s, u"1801 - 1870"_s, u"[Lines]"_s};
        return texts[static_cast<int>(random_() % 5)];
    }
    std::optional<Colour> PickColour(Colour) override
    {
        static const std::optional<Colour> colours[] = {{}, Black, Rgb(255, 0, 0), Rgb(0, 128, 255), White};
        return colours[random_() % 5];
    }
    std::optional<TextFont> PickFont(const TextFont&) override
    {
        static const std::optional<TextFont> fonts[] = {
            {}, TextFont{u"Arial"_s, 8}, TextFont{u"Arial"_s, 14.25}, TextFont{u"Courier"_s, 10, true}};
        return fonts[random_() % 4];
    }
    std::optional<QString> OpenFile(const FileQuestion&) override { return {}; }
    std::optional<QString> SaveFile(const FileQuestion&) override { return {}; }
    void PickPrinter() override { ADD_FAILURE() << "no printer is to be chosen"; }
    void ShowHelp(const QString&) override {}

    Answer SaveAnswer = Answer::No;

private:
    std::mt19937& random_;
};

// The three arrays as texts, row by row.
struct Arrays {
    explicit Arrays(const MapState& map)
    {
        for (int row = 0; row <= LastMapRow; ++row) {
            Boxes.push_back(Row(map.BoxArr[row], BoxColumn::Count));
            Texts.push_back(Row(map.TextArr[row], TextColumn::Count));
            QStringList line;
            for (int column = 0; column < LineColumn::Count; ++column)
                line.push_back(QString::number(map.LineArr[row][column]));
            Lines.push_back(line);
        }
    }
    friend bool operator==(const Arrays&, const Arrays&) = default;

    // What a save and a reading leave of them: the rows that are filed, without the free ones among them.
    Arrays Saved(int texts) const
    {
        Arrays saved = *this;
        saved.Boxes = Filed(Boxes, LastFiledBox, QStringList(BoxColumn::Count, QString()));
        saved.Lines = Filed(Lines, LastFiledLine, QStringList(LineColumn::Count, u"0"_s));
        saved.Texts = Filed(Texts, texts, QStringList(TextColumn::Count, QString()));
        return saved;
    }
    static int Count(const std::vector<QStringList>& rows)
    {
        return static_cast<int>(
            std::count_if(rows.begin(), rows.end(), [](const QStringList& row) { return IsInUse(row); }));
    }

    std::vector<QStringList> Boxes;
    std::vector<QStringList> Lines;
    std::vector<QStringList> Texts;

private:
    static bool IsInUse(const QStringList& row) { return !row[0].isEmpty() && row[0] != u"0"; }

    template <class Cells>
    static QStringList Row(const Cells& cells, int columns)
    {
        QStringList row;
        for (int column = 0; column < columns; ++column)
            row.push_back(cells[column].Text());
        return row;
    }
    static std::vector<QStringList> Filed(const std::vector<QStringList>& rows, int last, const QStringList& free)
    {
        std::vector<QStringList> filed;
        for (int row = 0; row <= last; ++row)
            if (IsInUse(rows[static_cast<std::size_t>(row)]))
                filed.push_back(rows[static_cast<std::size_t>(row)]);
        filed.resize(LastMapRow + 1, free);
        return filed;
    }
};

// A machine and a program on it whose user does anything at all.
class ToolPropertyTest : public testing::TestWithParam<unsigned>
{
protected:
    ToolPropertyTest()
    {
        branch_.Row({{u"File", u"A001"}, {u"Forename", u"Christopher"}, {u"Gender", u"Male"}})
            .Row({{u"File", u"A002"}, {u"Forename", u"Jane"}, {u"Gender", u"Female"}});
        workDir_ = branch_.Build();
        WriteAliasList(home_, {});
        for (Program* program : {&P, &Reader}) {
            InstallHandlers(*program);
            program->Branch.HomeDir = program->ExecutableDirectory;
            // A smaller picture, for speed; the arrays know nothing of its size.
            program->Form1->Picture1.Width = side;
            program->Form1->Picture1.Height = side;
        }
    }

    void OpenAnew()
    {
        home_.WriteFile(
            branch_.MapFile(),
            MapFileBytes(u"LfgDat_A",
                         u"300,300,0,A001,Chris,1300,300,255,A002,Jane,2100,1500,0,0,,300,2500,0,A009,Gone,",
                         u"500,1000,1500,1000,0,1500,1000,1500,2000,255,1500,2000,2500,2000,0,100,100,2800,2900,65280,",
                         u"300,1300,One,Arial,8,0,1800,400,Two,Courier,10,255,1000,2600,Three,Arial,8,0,"));
        P.Branch.WorkDir = workDir_;
        OpenWorkDatabase(P);
        ForgetMap(P.Map, P.Mouse, P.Tools);
        ReadMap(P);
    }

    static void ReadMap(Program& p)
    {
        ReadMapFile(p.Map, p.Branch, p.Files, p.Prompts);
        ParseBoxes(p);
        ParseLines(p);
        ParseTexts(p);
    }

    int Any(int from, int to) { return std::uniform_int_distribution(from, to)(random_); }
    bool OneIn(int n) { return Any(1, n) == 1; }
    Point AnyPoint() { return {Any(-200, side + 200), Any(-200, side + 200)}; }

    // More often than not a place where something can be hit.
    Point AnyGrip()
    {
        const int row = Any(0, 5);
        switch (Any(0, 5)) {
        case 0:
            return {P.Map.BoxArr[row][BoxColumn::X].Number() + Any(-2, 620),
                    P.Map.BoxArr[row][BoxColumn::Y].Number() + Any(-2, 220)};
        case 1:
            return {P.Map.TextArr[row][TextColumn::X].Number() + Any(-2, 610),
                    P.Map.TextArr[row][TextColumn::Y].Number() + Any(-2, 110)};
        case 2:
        case 3: {
            const auto& line = P.Map.LineArr[row];
            return {(line[LineColumn::X1] + line[LineColumn::X2]) / 2 + Any(-25, 25),
                    (line[LineColumn::Y1] + line[LineColumn::Y2]) / 2 + Any(-25, 25)};
        }
        default:
            return AnyPoint();
        }
    }
    Point AnyPress()
    {
        const Point grip = AnyGrip();
        return {std::clamp(grip.X, 0, side), std::clamp(grip.Y, 0, side)};
    }
    int AnyShift() { return (OneIn(4) ? ShiftMask::Ctrl : 0) + (OneIn(4) ? ShiftMask::Shift : 0); }

    void PressAnyButton()
    {
        constexpr Image Form1::*buttons[] = {&Form1::Image2, &Form1::Image3, &Form1::Image4, &Form1::Image5,
                                             &Form1::Image6, &Form1::Image7, &Form1::Image9, &Form1::Image2};
        ((*P.Form1).*buttons[Any(0, 7)]).Click();
    }

    void MakeAnyGesture()
    {
        PictureBox& picture = P.Form1->Picture1;
        Point at = AnyPress();
        if (!OneIn(15))
            picture.MouseDown(Any(1, 2), AnyShift(), at.X, at.Y);
        for (int moves = Any(0, 5); moves > 0; --moves) {
            at = AnyPoint();
            picture.MouseMove(1, AnyShift(), at.X + 0.5, at.Y + 0.5);
        }
        picture.MouseUp(1, 0, at.X, at.Y);
        if (OneIn(15)) {
            picture.DblClick();
            picture.MouseUp(1, 0, at.X, at.Y);
        }
    }

    void ExpectInvariants()
    {
        const MapState& map = P.Map;
        for (const int count : {map.SBoxes, map.SLines, map.STexts}) {
            EXPECT_GE(count, -1);
            EXPECT_LE(count, LastMapRow);
        }
        EXPECT_EQ(P.Form1->Picture1.Mode, DrawMode::Copy);
        EXPECT_EQ(P.Tools.ToolMode, 3);
        EXPECT_EQ(P.Tools.ToolStep, 0);
        EXPECT_EQ(P.Tools.MapCursorMode, 0);
        EXPECT_EQ(P.Branch.UsingAlternate, 0);

        const int sel = P.Tools.ToolSel;
        constexpr int selections[] = {0, 1, 3, 4, 7, 8, 9, 17, 18, 19, 27, 28, 29};
        EXPECT_NE(std::find(std::begin(selections), std::end(selections), sel), std::end(selections)) << sel;
        EXPECT_NE(sel, 4);
        EXPECT_EQ(P.Form1->Shape3.Visible, sel == 3);
        ExpectFaces(sel);
    }

    void ExpectFaces(int sel)
    {
        const int kind = sel >= 7 ? sel % 10 : 0;
        const int deed = sel >= 7 ? sel / 10 : -1;
        EXPECT_EQ(IsSunken(&Form1::Image6), kind == 7) << sel;
        EXPECT_EQ(IsSunken(&Form1::Image7), kind == 8) << sel;
        EXPECT_EQ(IsSunken(&Form1::Image9), kind == 9) << sel;
        EXPECT_EQ(IsSunken(&Form1::Image2), sel == 1 || sel == 3 || deed == 1) << sel;
        // With nothing to be deleted the button stays down until another tool is taken.
        if (deed >= 0) {
            EXPECT_EQ(IsSunken(&Form1::Image5), deed == 2) << sel;
        }
        for (const auto image : {&Form1::Image3, &Form1::Image4, &Form1::Image8})
            EXPECT_FALSE(IsSunken(image)) << sel;
    }
    bool IsSunken(Image Form1::*button)
    {
        for (const Form1::ToolImage& tool : Form1::Tools)
            if (tool.Button == button)
                return ((*P.Form1).*button).Picture.value() == ((*P.Form1).*tool.Sunken).Picture.value();
        return false;
    }

    void Leave(Answer answer)
    {
        prompts_.SaveAnswer = answer;
        P.Form1->Image8.Click();
        EXPECT_EQ(P.Tools.ToolMode, 0);
        EXPECT_EQ(P.Tools.ToolSel, ToolSelection::None);
        EXPECT_EQ(P.Form1->Picture1.Font, TextFont());
        EXPECT_EQ(P.Form1->Picture1.Mode, DrawMode::Copy);
    }

    // The map that another program finds on disk.
    Arrays OnDisk()
    {
        ForgetMap(Reader.Map, Reader.Mouse, Reader.Tools);
        Reader.Branch.WorkDir = workDir_;
        ReadMap(Reader);
        return Arrays(Reader.Map);
    }

    static constexpr int side = 3000;

    std::mt19937 random_{GetParam()};
    TemporaryHome home_;
    BranchBuilder branch_{home_, u'A'};
    FakeWindows windows_;
    FakeEventLoop loop_;
    lineforge::Screen screen_{12000, 9000};
    AnsweringPrompts prompts_{random_};
    FakeClipboard clipboard_;
    PdfPrinter printer_;
    FakeProcesses processes_;
    Platform platform_{windows_,   prompts_, loop_,      screen_,
                       clipboard_, printer_, processes_, home_.Path() + PathSeparator};
    Program P{platform_};
    Program Reader{platform_};
    QString workDir_;
};

TEST_P(ToolPropertyTest, WhateverIsDone_TheArraysAreSound_AndWhatIsSavedIsReadBack)
{
    constexpr int sequences = 90;
    for (int sequence = 0; sequence < sequences && !HasFailure(); ++sequence) {
        SCOPED_TRACE(testing::Message() << "sequence " << sequence);
        // Now and then from the start, so that the map doesn't fill up.
        if (sequence % 10 == 0)
            OpenAnew();
        Records(P.Form3).MoveFirst();
        if (OneIn(2))
            Records(P.Form3).MoveNext();
        const QString current = Records(P.Form3).Text(u"File");
        const Arrays before(P.Map);
        P.Form1->mnuTreeTools.Click();
        for (int step = Any(3, 25); step > 0 && !HasFailure(); --step) {
            if (OneIn(3))
                PressAnyButton();
            else
                MakeAnyGesture();
            ExpectInvariants();
        }

        const Arrays drawn(P.Map);
        const Arrays saved = drawn.Saved(P.Map.STexts);
        const bool isSaved = OneIn(2);
        Leave(isSaved ? Answer::Yes : Answer::No);

        const Arrays after(P.Map);
        EXPECT_EQ(after, isSaved ? saved : before);
        EXPECT_EQ(OnDisk(), after);
        EXPECT_EQ(P.Map.STexts, Arrays::Count(after.Texts) - 1);
        // The other two counts stay where they were when nothing of the kind is left.
        if (const int boxes = Arrays::Count(after.Boxes); boxes > 0) {
            EXPECT_EQ(P.Map.SBoxes, boxes - 1);
        }
        if (const int lines = Arrays::Count(after.Lines); lines > 0) {
            EXPECT_EQ(P.Map.SLines, lines - 1);
        }
        EXPECT_EQ(Records(P.Form3).Text(u"File"), current);
    }
}

INSTANTIATE_TEST_SUITE_P(Seeds, ToolPropertyTest, testing::Range(1U, 11U));

} // namespace
} // namespace lineforge
