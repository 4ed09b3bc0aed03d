#include "gui/EveryWindow.h"
#include "qt/dialogs/HelpWindow.h"

#include <QAccessible>
#include <QGroupBox>
#include <QLabel>
#include <QRadioButton>
#include <QTest>

#include <algorithm>
#include <functional>

namespace lineforge
{
namespace
{
using namespace Qt::StringLiterals;

// A frame without a caption only orders what is in it.
bool SaysNothing(const QWidget& widget)
{
    const auto* label = qobject_cast<const QLabel*>(&widget);
    const auto* frame = qobject_cast<const QGroupBox*>(&widget);
    return (label && label->text().isEmpty()) || (frame && frame->title().isEmpty());
}

bool IsOperable(QAccessible::Role role)
{
    switch (role) {
    case QAccessible::Button:
    case QAccessible::CheckBox:
    case QAccessible::ComboBox:
    case QAccessible::EditableText:
    case QAccessible::List:
    case QAccessible::RadioButton:
    case QAccessible::ScrollBar:
    case QAccessible::Tree:
        return true;
    default:
        return false;
    }
}

std::string Described(const QWidget& widget)
{
    return widget.objectName().toStdString() + " (" + widget.metaObject()->className() + ")";
}

// Every widget that readers meet on their way down from there. What isn't seen isn't read either.
void Walk(QAccessibleInterface& from, const std::function<void(QAccessibleInterface&, const QWidget&)>& visit)
{
    for (int index = 0; index < from.childCount(); ++index) {
        QAccessibleInterface* child = from.child(index);
        const auto* widget = child ? qobject_cast<const QWidget*>(child->object()) : nullptr;
        if (!widget || !widget->isVisible())
            continue;
        visit(*child, *widget);
        Walk(*child, visit);
    }
}

void ExpectAllTold(QWidget& window)
{
    QAccessibleInterface* top = QAccessible::queryAccessibleInterface(&window);
    ASSERT_TRUE(top);
    EXPECT_EQ(top->role(), QAccessible::Window);
    EXPECT_FALSE(top->text(QAccessible::Name).trimmed().isEmpty());
    int met = 0;
    Walk(*top, [&met](QAccessibleInterface& told, const QWidget& widget) {
        if (!IsOurs(widget) || SaysNothing(widget))
            return;
        ++met;
        const QString name = told.text(QAccessible::Name).trimmed();
        EXPECT_FALSE(name.isEmpty()) << Described(widget);
        EXPECT_NE(name, widget.objectName()) << Described(widget);
        EXPECT_NE(told.role(), QAccessible::NoRole) << Described(widget);
        EXPECT_NE(told.role(), QAccessible::Client) << Described(widget);
        if (IsOperable(told.role()) && widget.isEnabled()) {
            EXPECT_TRUE(told.state().focusable) << Described(widget);
        }
    });
    EXPECT_GT(met, 0);
}

// Goes on by Tab until it is back where it began, or for longer than any way round is. Within a page of links Tab goes
// from one to the next.
QList<QWidget*> TabRound(QWidget& window)
{
    constexpr int endless = 500;
    QList<QWidget*> round;
    QTest::keyClick(&window, Qt::Key_Tab);
    for (int steps = 0; steps < endless && window.focusWidget(); ++steps) {
        if (!round.contains(window.focusWidget()))
            round += window.focusWidget();
        QTest::keyClick(window.focusWidget(), Qt::Key_Tab);
        if (round.size() > 1 && window.focusWidget() == round.first())
            break;
    }
    return round;
}

// Tab stops at one of a set of options; the arrows reach the others.
bool IsReached(const QWidget& widget, const QList<QWidget*>& round)
{
    if (!qobject_cast<const QRadioButton*>(&widget))
        return round.contains(&widget);
    const auto options = widget.parentWidget()->findChildren<QRadioButton*>(Qt::FindDirectChildrenOnly);
    return std::ranges::any_of(options, [&round](QRadioButton* option) { return round.contains(option); });
}

void ExpectAllReachedByKeyboard(QWidget& window)
{
    const QList<QWidget*> round = TabRound(window);
    EXPECT_TRUE(round.isEmpty() || window.focusWidget() == round.first());
    Walk(*QAccessible::queryAccessibleInterface(&window), [&round](QAccessibleInterface& told, const QWidget& widget) {
        if (IsOurs(widget) && widget.isEnabled() && IsOperable(told.role())) {
            EXPECT_TRUE(IsReached(widget, round)) << Described(widget);
        }
    });
}

// What the window shows where that widget is.
QImage Shot(QWidget& window, const QWidget& widget)
{
    return window.grab(QRect(widget.mapTo(&window, QPoint()), widget.size())).toImage();
}

// A scroll bar that has just been moved isn't painted before the next frame.
bool AllIsPainted(const QWidget& window)
{
    return std::ranges::all_of(window.findChildren<QWidget*>(), &QWidget::updatesEnabled);
}

void ExpectFocusToBeSeen(QWidget& window)
{
    ASSERT_TRUE(QTest::qWaitFor([&window] { return AllIsPainted(window); }));
    for (QWidget* widget : TabRound(window)) {
        widget->setFocus(Qt::TabFocusReason);
        const QImage with = Shot(window, *widget);
        widget->clearFocus();
        EXPECT_NE(with, Shot(window, *widget)) << Described(*widget);
    }
}

using AccessibilityTest = EveryWindowTest;

INSTANTIATE_TEST_SUITE_P(Windows, AccessibilityTest, testing::ValuesIn(every_window::all), NameOf);

TEST_P(AccessibilityTest, EverythingHasANameAndARole)
{
    ExpectAllTold(Open());
}

TEST_P(AccessibilityTest, TabReachesEverythingAndComesBack)
{
    ExpectAllReachedByKeyboard(Open());
}

TEST_P(AccessibilityTest, TheFocusIsSeen)
{
    ExpectFocusToBeSeen(Open());
}

class HelpAccessibilityTest : public testing::Test
{
protected:
    HelpAccessibilityTest()
    {
        EXPECT_TRUE(Help.Open(QStringLiteral(LINEFORGE_MANUAL)));
        Help.show();
        Help.activateWindow();
        EXPECT_TRUE(QTest::qWaitForWindowActive(&Help));
    }

    HelpWindow Help;
};

TEST_F(HelpAccessibilityTest, EverythingHasANameAndARole)
{
    ExpectAllTold(Help);
}

TEST_F(HelpAccessibilityTest, TabReachesEverythingAndComesBack)
{
    ExpectAllReachedByKeyboard(Help);
}

} // namespace
} // namespace lineforge
