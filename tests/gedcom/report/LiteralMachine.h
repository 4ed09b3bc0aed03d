#pragma once

#include "platform/base/RuntimeError.h"

#include <QByteArray>

#include <array>
#include <optional>

namespace lineforge
{

// The conversion read over character by character for every single seek, with nothing remembered between them: slow,
// and by that the measure of what the program does. It shares no code with it.
class LiteralMachine
{
public:
    static constexpr int AllChildren = 0;

    explicit LiteralMachine(QByteArray source) : source_(std::move(source)) {}

    void Open() { at_ = 0; }
    void ParseLine();
    void Seek();
    // False: refused.
    bool IndexFile();
    // Everything from the opening of the source on; true when it came to its end by an error or without one, false
    // when it was given up behind that child of a family.
    bool Convert(int children = AllChildren);

    QByteArray Report; // without the heading
    QByteArray Line, Level, Tag, Value, Rest, SeekFor, Stage, Indi;
    int ScanState = 0;
    int HeadState = 0;
    int IndiNext = 1;
    int FamNext = 1;
    std::array<QByteArray, 101> IndiList;
    std::array<QByteArray, 21> FamList;
    std::optional<int> Error; // what ended the run

private:
    struct GivenUp {
    };
    enum class Stretch { Complete, GivenUp, CutOff };

    bool AtEnd() const { return at_ >= source_.size(); }
    char Next();
    void Put(const QByteArray& line) { Report += line + "\r\n"; }
    void SeekTag(const char* tag);
    Stretch ReadStretch();
    void Family(int family, int children);
    bool Pass(int family, int& occurrence, int children);
    void PutHead(int family);
    void PutMarriage();
    bool FindStage(int family, int occurrence);
    void Individual();
    template <std::size_t Size>
    void Store(std::array<QByteArray, Size>& list, int& next);

    QByteArray source_;
    qsizetype at_ = 0;
};

} // namespace lineforge
