#include "printing/PrintServer.h"

#include <QLibrary>
#include <QPrintEngine>
#include <QPrinter>

#include <cups/cups.h>

namespace lineforge
{

using namespace Qt::StringLiterals;

namespace
{
// Where the toolkit's dialog leaves what it has to tell the server.
constexpr auto serverOptions = static_cast<QPrintEngine::PrintEnginePropertyKey>(0xFE00);
} // namespace

QStringList ServerOptions(const QPrinter& printer)
{
    return printer.printEngine()->property(serverOptions).toStringList();
}

void SetServerOptions(QPrinter& printer, const QStringList& options)
{
    printer.printEngine()->setProperty(serverOptions, options);
}

void CorrectServerOptions(QPrinter& printer)
{
    if (printer.outputFormat() != QPrinter::NativeFormat)
        return;
    QStringList options = ServerOptions(printer);
    const qsizetype pages = options.indexOf(u"page-ranges"_s);
    if (pages >= 0)
        options.remove(pages, 2);
    if (printer.pageOrder() == QPrinter::LastPageFirst)
        options += {u"outputorder"_s, u"reverse"_s};
    SetServerOptions(printer, options);
}

// The server's library isn't linked, for it brings some twenty others, which nobody needs who starts the program and
// doesn't print. The toolkit loads it with its first printer.
bool HasServerTakenJob()
{
    constexpr int libraryVersion = 2;
    static const auto lastAnswer =
        reinterpret_cast<decltype(&cupsLastError)>(QLibrary::resolve(u"cups"_s, libraryVersion, "cupsLastError"));
    return lastAnswer && lastAnswer() <= IPP_STATUS_OK_EVENTS_COMPLETE;
}

} // namespace lineforge
