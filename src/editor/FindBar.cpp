#include "editor/FindBar.h"

#include "editor/TextArea.h"

#include <QCheckBox>
#include <QGridLayout>
#include <QHBoxLayout>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QTextBlock>

namespace lineforge
{

using namespace Qt::StringLiterals;

namespace
{
// The toolkit's search takes both blanks for one.
QString WithPlainBlanks(QString text)
{
    return text.replace(QChar::Nbsp, u' ');
}

QWidget* Row(std::initializer_list<QWidget*> widgets)
{
    auto* row = new QWidget;
    auto* layout = new QHBoxLayout(row);
    layout->setContentsMargins({});
    for (QWidget* widget : widgets)
        layout->addWidget(widget);
    layout->addStretch();
    return row;
}
} // namespace

FindBar::FindBar(TextArea& area, QWidget* parent) : QWidget(parent), area_(area)
{
    setObjectName(u"FindBar"_s);
    setAccessibleName(u"Find and replace"_s);
    auto* grid = new QGridLayout(this);
    grid->setColumnStretch(1, 2);
    grid->setColumnStretch(2, 3);
    BuildFindRow(*grid);
    BuildReplaceRow(*grid);
    message_ = new QLabel;
    message_->setObjectName(u"FindMessage"_s);
    message_->setTextFormat(Qt::PlainText);
    QFont bold = message_->font();
    bold.setBold(true);
    message_->setFont(bold);
    // What is told may be long; it never makes the window wider.
    message_->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Preferred);
    grid->addWidget(message_, 2, 1, 1, 2);
    SetTabOrder();
    hide();
}

void FindBar::BuildFindRow(QGridLayout& grid)
{
    sought_ = AddField(grid, 0, u"Sought"_s, *new QLabel(u"Fi&nd what:"_s));
    matchCase_ = new QCheckBox(u"Match &case"_s);
    matchCase_->setObjectName(u"MatchCase"_s);
    QPushButton* close = AddButton(u"CloseFindBar"_s, u"Close"_s, &FindBar::CloseBar);
    grid.addWidget(Row({AddButton(u"NextButton"_s, u"Ne&xt"_s, &FindBar::FindNext),
                        AddButton(u"PreviousButton"_s, u"&Previous"_s, &FindBar::FindPrevious), matchCase_}),
                   0, 2);
    grid.addWidget(close, 0, 3);
    connect(sought_, &QLineEdit::textChanged, this, [this] { Tell({}); });
    connect(matchCase_, &QCheckBox::toggled, this, [this] { Tell({}); });
}

void FindBar::BuildReplaceRow(QGridLayout& grid)
{
    replacementLabel_ = new QLabel(u"Replace &with:"_s);
    replacement_ = AddField(grid, 1, u"Replacement"_s, *replacementLabel_);
    replaceRow_ = Row({AddButton(u"ReplaceButton"_s, u"&Replace"_s, &FindBar::Replace),
                       AddButton(u"ReplaceAllButton"_s, u"Replace &All"_s, &FindBar::ReplaceAll)});
    grid.addWidget(replaceRow_, 1, 2);
}

void FindBar::SetTabOrder()
{
    QWidget* before = sought_;
    for (const QString& name : {u"Replacement"_s, u"NextButton"_s, u"PreviousButton"_s, u"MatchCase"_s,
                                u"ReplaceButton"_s, u"ReplaceAllButton"_s, u"CloseFindBar"_s}) {
        auto* next = findChild<QWidget*>(name);
        setTabOrder(before, next);
        before = next;
    }
}

QLineEdit* FindBar::AddField(QGridLayout& grid, int row, const QString& name, QLabel& label)
{
    auto* field = new QLineEdit;
    field->setObjectName(name);
    field->setAccessibleName(label.text().remove(u'&').remove(u':'));
    label.setBuddy(field);
    grid.addWidget(&label, row, 0);
    grid.addWidget(field, row, 1);
    return field;
}

QPushButton* FindBar::AddButton(const QString& name, const QString& text, void (FindBar::*action)())
{
    auto* button = new QPushButton(text);
    button->setObjectName(name);
    button->setAutoDefault(true); // Enter presses the button that has the keyboard.
    connect(button, &QPushButton::clicked, this, action);
    return button;
}

void FindBar::ShowFind()
{
    ShowReplaceRow(false);
    Open();
}

void FindBar::ShowReplace()
{
    ShowReplaceRow(true);
    Open();
}

void FindBar::ShowReplaceRow(bool isShown)
{
    replacement_->setVisible(isShown);
    replacementLabel_->setVisible(isShown);
    replaceRow_->setVisible(isShown);
}

void FindBar::Open()
{
    const QString marked = area_.MarkedText();
    if (!marked.isEmpty() && !marked.contains(u'\n'))
        sought_->setText(marked);
    Tell({});
    show();
    sought_->setFocus();
    sought_->selectAll();
}

void FindBar::CloseBar()
{
    hide();
    area_.setFocus();
}

void FindBar::keyPressEvent(QKeyEvent* event)
{
    const bool isEnter = event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter;
    if (event->key() == Qt::Key_Escape)
        CloseBar();
    else if (isEnter && replacement_->hasFocus())
        Replace();
    else if (isEnter && event->modifiers().testFlag(Qt::ShiftModifier))
        FindPrevious();
    else if (isEnter)
        FindNext();
    else
        QWidget::keyPressEvent(event);
}

QString FindBar::Sought() const
{
    return WithPlainBlanks(sought_->text());
}

QTextDocument::FindFlags FindBar::Flags() const
{
    return matchCase_->isChecked() ? QTextDocument::FindCaseSensitively : QTextDocument::FindFlags();
}

void FindBar::FindNext()
{
    Find({});
}

void FindBar::FindPrevious()
{
    Find(QTextDocument::FindBackward);
}

void FindBar::Find(QTextDocument::FindFlags direction)
{
    if (sought_->text().isEmpty()) {
        ShowFind();
        return;
    }
    QTextCursor found = area_.document()->find(Sought(), area_.textCursor(), Flags() | direction);
    QString message;
    if (found.isNull()) {
        const bool isBackward = direction.testFlag(QTextDocument::FindBackward);
        QTextCursor otherEnd(area_.document());
        otherEnd.movePosition(isBackward ? QTextCursor::End : QTextCursor::Start);
        found = area_.document()->find(Sought(), otherEnd, Flags() | direction);
        message = isBackward ? u"The search went on from the end of the text."_s
                             : u"The search went on from the beginning of the text."_s;
    }
    if (found.isNull()) {
        // A strip that is closed could tell nothing.
        show();
        message = NotFound();
    } else {
        area_.setTextCursor(found);
    }
    Tell(message);
}

QString FindBar::NotFound() const
{
    return u"Not found: \u201C"_s + sought_->text() + u'\u201D';
}

bool FindBar::HasFoundMarked() const
{
    const auto sensitivity = matchCase_->isChecked() ? Qt::CaseSensitive : Qt::CaseInsensitive;
    return !sought_->text().isEmpty() && WithPlainBlanks(area_.MarkedText()).compare(Sought(), sensitivity) == 0;
}

void FindBar::Replace()
{
    if (HasFoundMarked())
        area_.textCursor().insertText(replacement_->text());
    Find({});
}

void FindBar::ReplaceAll()
{
    if (sought_->text().isEmpty())
        return;
    QTextCursor step(area_.document());
    int count = 0;
    step.beginEditBlock();
    for (QTextCursor found = area_.document()->find(Sought(), 0, Flags()); !found.isNull();
         found = area_.document()->find(Sought(), found, Flags())) {
        found.insertText(replacement_->text());
        ++count;
    }
    step.endEditBlock();
    if (count == 0)
        Tell(NotFound());
    else
        Tell(QString::number(count) + u" replaced."_s);
}

void FindBar::Tell(const QString& message)
{
    // Never hidden: a strip that grew would cover what has just been found.
    message_->setText(message);
    message_->setAccessibleName(message);
}

} // namespace lineforge
