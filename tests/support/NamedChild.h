#pragma once

#include <QObject>

namespace lineforge
{

// The child of that name, at any depth, that is of that class, be it one that the toolkit's own search doesn't know.
// Null when there is none.
template <class Child>
Child* NamedChild(const QObject& parent, const QString& name)
{
    for (QObject* child : parent.findChildren<QObject*>(name))
        if (auto* found = dynamic_cast<Child*>(child))
            return found;
    return nullptr;
}

} // namespace lineforge
