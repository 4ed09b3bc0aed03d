#pragma once

#include "qt/views/Readers.h"

#include <QString>
#include <QStringList>

#include <utility>

namespace lineforge
{

// Somebody who has the screen read aloud, for as long as this lives: notes what the program tells on its own.
class Reader
{
public:
    Reader()
    {
        Readers::ListenInstead([this](const QAccessibleInterface& of, QAccessible::Event what) {
            heard_ += WordFor(what) + of.text(QAccessible::Name);
        });
    }
    ~Reader() { Readers::ListenInstead({}); }
    Reader(const Reader&) = delete;
    Reader& operator=(const Reader&) = delete;

    // "focus A001", "gone A001", "new A001", "named A001", in the order in which they came; forgets them.
    QStringList TakeHeard() { return std::exchange(heard_, {}); }

private:
    static QString WordFor(QAccessible::Event what)
    {
        switch (what) {
        case QAccessible::Focus:
            return QStringLiteral("focus ");
        case QAccessible::ObjectDestroyed:
            return QStringLiteral("gone ");
        case QAccessible::ObjectCreated:
            return QStringLiteral("new ");
        case QAccessible::NameChanged:
            return QStringLiteral("named ");
        default:
            return QStringLiteral("? ");
        }
    }

    QStringList heard_;
};

} // namespace lineforge
