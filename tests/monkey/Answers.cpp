#include "monkey/Answers.h"

#include "monkey/ChosenFiles.h"
#include "monkey/Hands.h"
#include "monkey/Journal.h"
#include "monkey/Ledger.h"
#include "monkey/Scratch.h"
#include "program/branch/BranchPaths.h"
#include "program/branch/WorkDatabase.h"
#include "program/state/Program.h"
#include "support/Clocks.h"
#include "support/Windows.h"

#include <QColorDialog>
#include <QDialogButtonBox>
#include <QFileDialog>
#include <QFontDialog>
#include <QInputDialog>
#include <QLineEdit>
#include <QMessageBox>
#include <QPushButton>

namespace lineforge::monkey
{

using namespace Qt::StringLiterals;

namespace
{
bool IsFatal(const QMessageBox& box)
{
    return box.windowTitle() == u"Lineforge" && box.text().startsWith(u"Run-time error '");
}

// The button that goes on with what the box is about; the toolkit's own boxes may have none.
QPushButton* FirstButton(const QDialogButtonBox& buttons)
{
    using Set = QDialogButtonBox;
    for (const auto button : {Set::Ok, Set::Yes, Set::Open, Set::Save})
        if (QPushButton* first = buttons.button(button))
            return first;
    return nullptr;
}

QPushButton* LastButton(const QDialogButtonBox& buttons)
{
    for (const auto button : {QDialogButtonBox::Cancel, QDialogButtonBox::No})
        if (QPushButton* last = buttons.button(button))
            return last;
    return FirstButton(buttons);
}

QDialogButtonBox* ButtonsOf(const QDialog& box)
{
    return box.findChild<QDialogButtonBox*>();
}

// ".mdb" of a filter "DataBase *.mdb (*.mdb)", nothing of one for all files.
QString EndingOf(const QFileDialog& box)
{
    const QString pattern = box.nameFilters().value(0).section(u'(', -1).section(u')', 0, 0);
    return pattern.startsWith(u"*.") ? pattern.sliced(1) : pattern == u"*" ? QString() : pattern;
}
} // namespace

Answers::Answers(Program& p, Chance& chance, const Scratch& scratch, Journal& journal, Ledger& ledger)
    : program_(p), chance_(chance), scratch_(scratch), journal_(journal), ledger_(ledger)
{
}

// What a user does with an open box, and how likely it is.
struct Answers::Habit {
    int Weight;
    void (Answers::*Do)(QDialog& box);
};

void Answers::Meet(QDialog& box)
{
    static constexpr Habit habits[] = {{4, &Answers::Hesitate},       {4, &Answers::PressElsewhere},
                                       {6, &Answers::PressEscape},    {4, &Answers::PressEnter},
                                       {7, &Answers::PressAnyButton}, {75, &Answers::Answer}};
    if (auto* message = qobject_cast<QMessageBox*>(&box)) {
        Read(*message);
        if (IsUnwanted(*message))
            return PutAway(box);
    }
    (this->*chance_.OneByWeight(habits).Do)(box);
}

void Answers::PutAway(QDialog& box)
{
    if (auto* message = qobject_cast<QMessageBox*>(&box))
        Read(*message);
    journal_.Step(u"put away \""_s + box.windowTitle() + u'"');
    const QDialogButtonBox* buttons = ButtonsOf(box);
    if (QPushButton* button = buttons ? LastButton(*buttons) : nullptr; button && chance_.OneIn(2))
        Click(*button, button->rect().center());
    else
        box.reject();
}

// A branch that is exported into the home stands there unknown to the list, as one does that the list has lost.
bool Answers::IsUnwanted(const QMessageBox& box) const
{
    return box.windowTitle() == u"Export Directory and Files" && box.text().contains(scratch_.Home());
}

// While a box waits the program's timers go on.
void Answers::Hesitate(QDialog& box)
{
    journal_.Step(u"look at \""_s + box.windowTitle() + u"\" for a while");
    LetTimePass(std::chrono::milliseconds(chance_.Between(50, 1500)));
}

void Answers::PressElsewhere(QDialog& box)
{
    QList<QWidget*> windows = WindowsOnScreen();
    windows.removeAll(&box);
    if (windows.isEmpty())
        return Hesitate(box);
    QWidget& other = *chance_.OneOf(windows);
    const QPoint place{chance_.Below(other.width()), chance_.Below(other.height())};
    journal_.Step(
        u"press beside \"%1\", on %2 at %3,%4"_s.arg(box.windowTitle(), NameOf(other)).arg(place.x()).arg(place.y()));
    Click(other, place);
}

void Answers::PressEscape(QDialog& box)
{
    journal_.Step(u"Escape in \""_s + box.windowTitle() + u'"');
    PressKey(Qt::Key_Escape);
}

void Answers::PressEnter(QDialog& box)
{
    journal_.Step(u"Enter in \""_s + box.windowTitle() + u'"');
    if (const auto* message = qobject_cast<QMessageBox*>(&box); message && message->defaultButton())
        NotePress(*message, message->standardButton(message->defaultButton()));
    PressKey(Qt::Key_Return);
}

void Answers::PressAnyButton(QDialog& box)
{
    const QDialogButtonBox* buttons = ButtonsOf(box);
    if (!buttons || buttons->buttons().isEmpty())
        return PressEscape(box);
    Press(box, chance_.OneOf(buttons->buttons()));
}

void Answers::Answer(QDialog& box)
{
    if (auto* file = qobject_cast<QFileDialog*>(&box))
        ChooseFile(*file);
    else if (auto* input = qobject_cast<QInputDialog*>(&box))
        input->setTextValue(Typed(*input));
    else if (auto* colour = qobject_cast<QColorDialog*>(&box))
        colour->setCurrentColor(QColor::fromRgb(static_cast<QRgb>(chance_.Below(0x1000000))));
    else if (auto* paper = box.findChild<QLineEdit*>(u"filename"_s)) // of the box for printers
        paper->setText(scratch_.Elsewhere() + u"/new-files/paper%1.pdf"_s.arg(chance_.Below(3)));
    else if (auto* font = qobject_cast<QFontDialog*>(&box)) {
        QFont chosen = font->currentFont();
        chosen.setPointSize(chance_.Between(4, 72));
        chosen.setBold(chance_.OneIn(3));
        font->setCurrentFont(chosen);
    }
    const QDialogButtonBox* buttons = ButtonsOf(box);
    Press(box, buttons ? chance_.Percent(80) ? FirstButton(*buttons) : LastButton(*buttons) : nullptr);
}

// A name with either of these cuts the list of branches short, and a comma in a text on the map shifts the texts behind
// it, which is meant to be.
QString Answers::Typed(const QInputDialog& box)
{
    QString text = TypedText(chance_);
    const bool isListed = box.windowTitle().contains(u"Branch") || box.windowTitle() == u"New Text Input";
    return isListed ? text.remove(u',').remove(u']') : text;
}

void Answers::Press(QDialog& box, QWidget* button)
{
    if (!button) {
        journal_.Step(u"leave \""_s + box.windowTitle() + u'"');
        return box.reject();
    }
    const auto* input = qobject_cast<QInputDialog*>(&box);
    journal_.Step(u"press %1 in \"%2\"%3"_s.arg(static_cast<QAbstractButton*>(button)->text(), box.windowTitle(),
                                                input ? QString(u" with " + input->textValue()) : QString()));
    if (const auto* message = qobject_cast<QMessageBox*>(&box))
        NotePress(*message, message->standardButton(static_cast<QAbstractButton*>(button)));
    Click(*button, button->rect().center());
}

// Once a box.
void Answers::Read(QMessageBox& box)
{
    constexpr auto mark = "wasRead";
    if (box.property(mark).toBool())
        return;
    box.setProperty(mark, true);
    journal_.Note(u"\"%1\": %2"_s.arg(box.windowTitle(), box.text()));
    if (IsFatal(box))
        fatal_ = box.text();
    if (box.windowTitle() == u"Delete Record")
        askedAbout_ = Records(program_.Form3).Text(u"File");
}

// A branch, or a record, is given up by its second question; that of a branch tells where it stands.
void Answers::NotePress(const QMessageBox& box, int button)
{
    if (button != QMessageBox::Yes)
        return;
    const QString text = box.text();
    const QString allFilesIn = u"All files in "_s;
    if (text.startsWith(allFilesIn))
        ledger_.ConfirmBranch(text.section(u'\n', 0, 0).sliced(allFilesIn.size()));
    else if (text.startsWith(u"All information in this record will be deleted"))
        ledger_.ConfirmRecord(DatabasePath(program_.Branch.WorkDir), askedAbout_);
}

// The name is typed: what a list of files shows at a moment isn't for a seed to decide.
void Answers::ChooseFile(QFileDialog& box)
{
    const QString ending = EndingOf(box);
    const QString path = box.acceptMode() == QFileDialog::AcceptSave ? FileToSave(ending) : FileToOpen(ending);
    journal_.Note(u"the file is "_s + path);
    ChosenFiles(scratch_.ChosenFile()).Note(path);
    box.findChild<QLineEdit*>(u"fileNameEdit"_s)->setText(path);
}

QString Answers::FileToOpen(const QString& ending)
{
    const QStringList fitting = scratch_.Files(ending);
    if (fitting.isEmpty() || chance_.OneIn(8))
        return scratch_.Elsewhere() + chance_.OneOf(QStringList{u"/things"_s, u"/things/not-there"_s + ending});
    return chance_.OneIn(8) ? chance_.OneOf(scratch_.Files({})) : chance_.OneOf(fitting);
}

QString Answers::FileToSave(const QString& ending)
{
    const QStringList there = scratch_.Files(ending);
    if (!there.isEmpty() && chance_.OneIn(5))
        return chance_.OneOf(there);
    if (chance_.OneIn(8))
        return scratch_.Elsewhere() + u"/no-such-directory/file" + ending;
    const QString name = u"/new-files/file%1"_s.arg(chance_.Below(5));
    return scratch_.Elsewhere() + name + (chance_.OneIn(2) ? ending : QString());
}

} // namespace lineforge::monkey
