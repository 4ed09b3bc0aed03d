#pragma once

#include "monkey/Answers.h"
#include "monkey/Moves.h"

#include <QObject>

#include <functional>

namespace lineforge::monkey
{

// A user who does anything that the screen offers, in any order, led by nothing but a seed. It is his turn whenever the
// program waits for its user, in whatever box or menu that is, and now and then when a long work lets the user in.
class Player : public QObject
{
public:
    // Plays until the journal has that many steps, then leaves the program.
    Player(Program& p, QtPlatform& machine, Chance& chance, const Scratch& scratch, Journal& journal, Ledger& ledger,
           int steps);

    // Long work lets the user in: for as long as `serve` takes, and not every time.
    void Yield(const std::function<void()>& serve);
    // Work that lets nobody in, although it lets timers tick. What these ask the user is answered all the same.
    void WhileShut(const std::function<void()>& work);

    // How the program was ended, as far as the user can tell.
    QString End() const;

protected:
    void customEvent(QEvent* event) override;

private:
    void TakeTurnSoon();
    void Settle();
    void Play();
    void StayInside();
    void Leave();

    static constexpr int nowhere = -1; // no level of the event loop

    Program& program_;
    QtPlatform& machine_;
    Chance& chance_;
    const Scratch& scratch_;
    Journal& journal_;
    Answers answers_;
    Moves moves_;
    const int steps_;
    int depth_ = 0; // turns that are still going on
    bool isComing_ = false;
    int comingIn_ = 0;     // the level of the event loop that it was asked for in
    int shutIn_ = nowhere; // the level in which work goes on and nobody is let in
    int attempts_ = 0;     // to leave
};

} // namespace lineforge::monkey
