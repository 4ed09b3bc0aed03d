#pragma once

#include "map/MapModel.h"
#include "map/SecondProgram.h"
#include "support/TestPlatform.h"

#include <random>
#include <utility>

namespace lineforge
{

// Answers whatever is asked as it was decided beforehand, and keeps what was told.
class DecidedPrompts : public Prompts
{
public:
    explicit DecidedPrompts(QString home) : home_(std::move(home)) {}

    Answer MsgBox(const QString& title, const QString& text, Buttons buttons) override;
    QString InputBox(const QString& prompt, const QString& title) override;
    std::optional<Colour> PickColour(Colour current) override;
    std::optional<TextFont> PickFont(const TextFont& current) override;
    std::optional<QString> OpenFile(const FileQuestion& question) override;
    std::optional<QString> SaveFile(const FileQuestion& question) override;
    void PickPrinter() override;
    void ShowHelp(const QString& file) override;

    MapModel::Answers Next;
    QStringList Told;

private:
    QString home_;
};

// A user who does anything at all on the map, with a program and the model side by side.
class MapPlayer
{
public:
    // The second program paints what the map should look like.
    MapPlayer(unsigned seed, SecondProgram& painter);

    // False when model and program differ; `Log` tells the way there.
    bool Step();
    QString Difference() const { return difference_; }
    QStringList Log;

private:
    using RecordList = std::vector<MapModel::Record>;
    static constexpr int side = 3000; // of the picture

    int Any(int from, int to) { return std::uniform_int_distribution(from, to)(random_); }
    bool OneIn(int n) { return Any(1, n) == 1; }
    template <class List>
    const auto& AnyOf(const List& list)
    {
        return *std::next(std::begin(list), Any(0, static_cast<int>(std::size(list)) - 1));
    }
    // The same to both.
    template <class Mine, class Models>
    void Do(const QString& what, Mine&& mine, Models&& models)
    {
        Log.push_back(what);
        std::forward<Mine>(mine)();
        std::forward<Models>(models)();
    }

    RecordList Some(const RecordList& records);
    void BuildBranch(QChar letter, const RecordList& records);
    void Open();
    void Decide();
    void Act();
    void ActWithTools();
    void ActOnTheMap();
    void MapSubjectOnBox();
    void Remap();
    void MoveSubject();
    void MoveCursor();
    void OpenTools();
    void Exit();
    void View();
    void Clear();
    void PressButton();
    void MapSubject();
    void AnswerForm7(const MapModel::Mapping& mapping);
    void GoToRecordsAndBack();

    Point AnyPoint();
    Point AnyGripOfBox();
    Point AnyGripOfText();
    Point AnyGripOfLine();
    Point AnyPress();
    int AnyShift();
    void Press(Point at, int shift);
    void Move(Point at, int shift, bool isButtonDown);
    void Release(Point at);
    void DoubleClick(Point at);
    void MakeGesture();

    void Compare();
    void CompareItems();
    void CompareTools();
    void CompareWindow();
    void CompareRecords();
    void ComparePicture();
    template <class Row>
    void ExpectCells(const char* kind, int row, const Row& actual, const MapModel::Cells& expected, int columns);
    template <class Actual, class Expected>
    void Expect(const QString& what, const Actual& actual, const Expected& expected)
    {
        if (difference_.isEmpty() && !(actual == expected))
            difference_ = QStringLiteral("%1 is %2 instead of %3").arg(what).arg(actual).arg(expected);
    }

    std::mt19937 random_;
    TestPlatform machine_;
    TemporaryHome& Home = machine_.Home;
    DecidedPrompts prompts_{Home.Path() + PathSeparator};
    Platform platform_{machine_.Windows,   prompts_,         machine_.Loop,      machine_.Screen,
                       machine_.Clipboard, machine_.Printer, machine_.Processes, Home.Path() + PathSeparator};
    Program P{platform_};
    SecondProgram& painter_;
    RecordList ofA_;
    RecordList ofB_;
    MapModel model_;
    QString boxes_;
    QString lines_;
    QString texts_;
    int sounds_ = 0;
    QString difference_;
};

} // namespace lineforge
