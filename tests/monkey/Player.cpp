#include "monkey/Player.h"

#include "monkey/Journal.h"
#include "monkey/Scratch.h"
#include "program/state/Program.h"
#include "qt/QtPlatform.h"
#include "support/Clocks.h"
#include "support/Windows.h"

#include <QAbstractEventDispatcher>
#include <QApplication>
#include <QDialog>
#include <QMenu>
#include <QScopeGuard>
#include <QThread>

#include <unistd.h>

namespace lineforge::monkey
{

using namespace Qt::StringLiterals;
using std::chrono::milliseconds;

namespace
{
constexpr milliseconds yieldTime{1};
constexpr int yieldsATurn = 20;
constexpr int deepest = 5;        // turns within turns that do more than answer
constexpr int mostAttempts = 400; // to leave
} // namespace

Player::Player(Program& p, QtPlatform& machine, Chance& chance, const Scratch& scratch, Journal& journal,
               Ledger& ledger, int steps)
    : program_(p), machine_(machine), chance_(chance), scratch_(scratch), journal_(journal),
      answers_(p, chance, scratch, journal, ledger), moves_(p, machine, chance, journal), steps_(steps)
{
    connect(QAbstractEventDispatcher::instance(), &QAbstractEventDispatcher::aboutToBlock, this, &Player::TakeTurnSoon);
}

// All that waits has been served by then. The test library's hands let the toolkit serve events, which forgets that
// its loop has been told to end.
void Player::TakeTurnSoon()
{
    if (machine_.Loop().HasEnded())
        return QAbstractEventDispatcher::instance()->wakeUp();
    if (std::exchange(isComing_, true))
        return;
    comingIn_ = QThread::currentThread()->loopLevel();
    QCoreApplication::postEvent(this, new QEvent(QEvent::User));
}

void Player::Yield(const std::function<void()>& serve)
{
    LetTimePass(yieldTime);
    const bool isLeaving = journal_.Steps() >= steps_;
    if (depth_ >= deepest || !(isLeaving || chance_.OneIn(yieldsATurn)))
        return WhileShut(serve);
    TakeTurnSoon();
    serve();
}

void Player::WhileShut(const std::function<void()>& work)
{
    const int before = std::exchange(shutIn_, QThread::currentThread()->loopLevel());
    const auto open = qScopeGuard([&] { shutIn_ = before; });
    work();
}

// A turn that was on its way when its box closed, or that work goes on before, is none.
void Player::customEvent(QEvent*)
{
    isComing_ = false;
    const int level = QThread::currentThread()->loopLevel();
    if (level == shutIn_ || level != comingIn_)
        return;
    Settle();
    if (!machine_.Loop().HasEnded())
        Play();
}

// The threads of the toolkit's file box wake the loop when they like. What a user sees doesn't depend on that.
void Player::Settle()
{
    constexpr int most = 100;
    for (int round = 0; round < most; ++round)
        if (!QAbstractEventDispatcher::instance()->processEvents(QEventLoop::AllEvents))
            return;
}

void Player::Play()
{
    ++depth_;
    const int before = std::exchange(shutIn_, nowhere);
    // What a timer has to say then is heard before the next turn.
    const auto done = qScopeGuard([&] {
        --depth_;
        shutIn_ = before;
        LetTimePass(milliseconds(chance_.Between(10, 120)));
    });
    StayInside();
    if (journal_.Steps() >= steps_)
        return Leave();
    if (auto* box = qobject_cast<QDialog*>(QApplication::activeModalWidget()))
        answers_.Meet(*box);
    else if (auto* menu = qobject_cast<QMenu*>(QApplication::activePopupWidget()))
        moves_.InMenu(*menu);
    else if (QWidget* list = QApplication::activePopupWidget())
        moves_.InList(*list);
    else if (depth_ <= deepest)
        moves_.Any();
    else
        moves_.Wait();
}

// The list of directories leads up to the root, and from there an export anywhere.
void Player::StayInside()
{
    if (program_.Form4.IsLoaded() && !scratch_.Contains(program_.Form4->Dir1.Path))
        program_.Form4->Dir1.GoTo(scratch_.Elsewhere());
    if (!scratch_.Contains(program_.Scratch.sPath))
        program_.Scratch.sPath = scratch_.Elsewhere();
}

void Player::Leave()
{
    if (++attempts_ > mostAttempts) {
        journal_.Finding(u"there is no way out of the program"_s);
        ::_exit(EXIT_FAILURE);
    }
    if (auto* box = qobject_cast<QDialog*>(QApplication::activeModalWidget()))
        answers_.PutAway(*box);
    else
        moves_.ToLeave();
}

QString Player::End() const
{
    const QString& fatal = answers_.FatalText();
    if (!fatal.isEmpty())
        return u"fatal "_s + fatal.section(u'\'', 1, 1) + u": " + fatal.section(u"\n\n"_s, 1);
    return moves_.IsClosingMainWindow() ? u"frame"_s : u"Exit"_s;
}

} // namespace lineforge::monkey
