#include "qt/views/Readers.h"

#include <utility>

namespace lineforge::Readers
{

namespace
{
Listener& Present()
{
    static Listener present;
    return present;
}
} // namespace

bool AreListening()
{
    return Present() || QAccessible::isActive();
}

void Tell(QAccessibleInterface& of, QAccessible::Event what)
{
    if (Present())
        return Present()(of, what);
    QAccessibleEvent event(&of, what);
    QAccessible::updateAccessibility(&event);
}

void ListenInstead(Listener listener)
{
    Present() = std::move(listener);
}

} // namespace lineforge::Readers
