#pragma once

#include "monkey/Chance.h"

class QDialog;
class QDialogButtonBox;
class QFileDialog;
class QInputDialog;
class QMessageBox;

namespace lineforge
{
struct Program;
}

namespace lineforge::monkey
{

class Journal;
class Ledger;
class Scratch;

// What a user does with a box that waits for an answer: mostly something sensible, at times something odd, at times
// nothing. What has been confirmed in one goes into the ledger.
class Answers
{
public:
    Answers(Program& p, Chance& chance, const Scratch& scratch, Journal& journal, Ledger& ledger);

    // A step towards an answer. The box may still be there afterwards.
    void Meet(QDialog& box);
    // The way out of it.
    void PutAway(QDialog& box);

    // The box that has told an error which ends the program; empty for none.
    const QString& FatalText() const { return fatal_; }

private:
    struct Habit;
    void Hesitate(QDialog& box);
    void PressElsewhere(QDialog& box);
    void PressEscape(QDialog& box);
    void PressEnter(QDialog& box);
    void PressAnyButton(QDialog& box);
    void Answer(QDialog& box);
    QString Typed(const QInputDialog& box);

    void Read(QMessageBox& box);
    bool IsUnwanted(const QMessageBox& box) const;
    void NotePress(const QMessageBox& box, int button);
    void ChooseFile(QFileDialog& box);
    QString FileToOpen(const QString& ending);
    QString FileToSave(const QString& ending);
    void Press(QDialog& box, QWidget* button);

    Program& program_;
    Chance& chance_;
    const Scratch& scratch_;
    Journal& journal_;
    Ledger& ledger_;
    QString fatal_;
    QString askedAbout_; // the record that a deletion has asked about
};

} // namespace lineforge::monkey
