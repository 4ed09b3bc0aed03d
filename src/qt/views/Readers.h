#pragma once

#include <QAccessible>

#include <functional>

// Those who have the screen read aloud, as far as the program tells them something on its own.
namespace lineforge::Readers
{

bool AreListening();
void Tell(QAccessibleInterface& of, QAccessible::Event what);

// Listens in the place of the desktop's readers; null for those.
using Listener = std::function<void(const QAccessibleInterface& of, QAccessible::Event what)>;
void ListenInstead(Listener listener);

} // namespace lineforge::Readers
