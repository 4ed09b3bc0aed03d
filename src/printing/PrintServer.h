#pragma once

#include <QStringList>

class QPrinter;

namespace lineforge
{

// What the server is told with a job on this printer, names and values in turn.
QStringList ServerOptions(const QPrinter& printer);
void SetServerOptions(QPrinter& printer, const QStringList& options);

// Has the server told what the user has chosen in the toolkit's dialog. Of itself that tells too little, nothing of the
// order of the pages, and too much: the pages that are listed, which whoever prints has chosen by then, so that the
// server would count those anew.
void CorrectServerOptions(QPrinter& printer);

// Whether the server has taken the job that has just ended, at which the toolkit doesn't look.
bool HasServerTakenJob();

} // namespace lineforge
