#pragma once

#include <QPoint>
#include <QString>
#include <QWidget>

namespace lineforge::monkey
{

// Mouse and keyboard of the screen. All of it goes to a window as the screen would send it, so that the toolkit decides
// what a box, an open menu or a held button makes of it. Any of it may do anything before it returns: the widget may be
// gone by then.

// The windows that are to be seen, in the order in which they were made.
QList<QWidget*> WindowsOnScreen();

// The part of a widget that can be pointed at; empty for none.
QRect Seen(const QWidget& widget);

void Click(QWidget& widget, QPoint place, Qt::MouseButton button = Qt::LeftButton, Qt::KeyboardModifiers keys = {});
void DoubleClick(QWidget& widget, QPoint place);
void Press(QWidget& widget, QPoint place, Qt::KeyboardModifiers keys = {});
void MoveTo(QWidget& widget, QPoint place);
void Release(QWidget& widget, QPoint place);
void Wheel(QWidget& widget, QPoint place, int steps);

// To the window that has the keyboard.
void PressKey(int key, Qt::KeyboardModifiers keys = {});
void Type(const QString& text);

// "Form3.Text2" for a widget of that name in that window.
QString NameOf(const QWidget& widget);

} // namespace lineforge::monkey
