#pragma once

class QWidget;

namespace lineforge
{

// Takes down all menus and lists that are popped up.
void ClosePopups();

// The same where they belong to that window.
void ClosePopupsOf(const QWidget& window);

} // namespace lineforge
