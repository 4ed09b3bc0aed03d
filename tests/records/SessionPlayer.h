#pragma once

#include "program/state/Program.h"
#include "records/LiteralSession.h"
#include "support/BranchBuilder.h"
#include "support/SqliteFile.h"
#include "support/TestPlatform.h"
#include "support/Windows.h"

#include <functional>
#include <memory>
#include <random>

namespace lineforge
{

// What the user does next, in the model and in the program.
struct SessionMove {
    QString Words; // beside the name of its kind
    std::function<void(LiteralSession& session)> InModel;
    std::function<void(Program& p)> InProgram;
};

// A kind of move: how often it is chosen, when it can be, and how it is made up. Whatever the user does elsewhere costs
// a box of the record form its selection.
struct MoveKind {
    QString Name;
    int Weight;
    bool (*IsPossible)(const LiteralSession& session);
    std::function<SessionMove(LiteralSession& session)> Make;
    bool KeepsSelection = false;
};
const std::vector<MoveKind>& MoveKinds();
// Those that end a session.
const std::vector<MoveKind>& LastMoveKinds();

// One session: a home made up by chance, a program that is started in it, and the model of it. Each move is made in the
// model first, which tells what will be asked, and then in the program; what can be seen of both must be the same.
class SessionPlayer
{
public:
    explicit SessionPlayer(unsigned seed);

    // Differences, with the moves that led to them; empty when all went alike.
    QString Play(int moves);

private:
    void MakeHome();
    void MakeBranch(QChar letter, int records);
    LiteralFields MakeRecord(QChar letter, int number);
    QString MakeBoxes();
    int Dice(int sides) { return static_cast<int>(random_() % static_cast<unsigned>(sides)); }

    bool MakeMove(const std::vector<MoveKind>& kinds);
    void PutOnScript(const std::vector<LiteralQuestion>& questions);
    void Perform(const MoveKind& kind, const SessionMove& move);
    void LoseSelection();
    void CompareTables();
    void CompareDisk();

    std::mt19937 random_;
    TestPlatform machine_;
    Program p_{machine_.Platform};
    LiteralSession model_;
    std::map<QChar, std::unique_ptr<SqliteFile>> files_;
    QStringList moves_;
    QStringList differences_;
    bool hasEnded_ = false;
};

} // namespace lineforge
