#pragma once

#include <QStringList>

class QPrinter;

namespace lineforge
{

// What the server is told with a job on this printer, names and values in turn.
QStringList ServerOptions(const QPrinter& printer);
void SetServerOptions(QPrinter& printer, const QStringList& options);

// The toolkit's dialog asks for the order of the pages, but its jobs don't tell the server of it.
void TellOrderOfPages(QPrinter& printer);

// Whether the server has taken the job that has just ended, at which the toolkit doesn't look.
bool HasServerTakenJob();

} // namespace lineforge
