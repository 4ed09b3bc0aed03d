#include "qt/machine/QtPrintSystem.h"

#include "platform/base/RuntimeError.h"
#include "platform/files/WholeFile.h"

#include <QFileInfo>
#include <QLibrary>
#include <QLineEdit>
#include <QPrintDialog>
#include <QPrintEngine>
#include <QPrinterInfo>

#include <cups/cups.h>
#include <utility>

namespace lineforge
{

using namespace Qt::StringLiterals;

namespace
{
const QString documentName = u"Lineforge"_s;

bool IsThere(const QString& queue)
{
    return !QPrinterInfo::printerInfo(queue).isNull();
}

void CopySettings(const QPrinter& from, QPrinter& to)
{
    to.setOutputFormat(from.outputFormat());
    if (from.outputFormat() == QPrinter::NativeFormat)
        to.setPrinterName(from.printerName());
    to.setPageLayout(from.pageLayout());
    to.setCopyCount(from.copyCount());
    to.setCollateCopies(from.collateCopies());
    to.setPageOrder(from.pageOrder());
    to.setColorMode(from.colorMode());
    to.setDuplex(from.duplex());
    to.setPrintRange(from.printRange());
    to.setPageRanges(from.pageRanges());
}

// What the print server answered last. Its library isn't linked, for it brings some twenty others, which nobody needs
// who starts the program and doesn't print. The toolkit loads it with its first printer.
ipp_status_t LastAnswer()
{
    constexpr int libraryVersion = 2;
    static const auto lastAnswer =
        reinterpret_cast<decltype(&cupsLastError)>(QLibrary::resolve(u"cups"_s, libraryVersion, "cupsLastError"));
    return lastAnswer ? lastAnswer() : IPP_STATUS_ERROR_INTERNAL;
}

// The toolkit's dialog asks for the order of the pages, but its jobs don't tell the server of it.
void TellOrderOfPages(const QPrinter& printer)
{
    if (printer.outputFormat() != QPrinter::NativeFormat || printer.pageOrder() == QPrinter::FirstPageFirst)
        return;
    // Where the dialog leaves what it has to tell the server, names and values in turn.
    constexpr auto serverOptions = static_cast<QPrintEngine::PrintEnginePropertyKey>(0xFE00);
    QPrintEngine& engine = *printer.printEngine();
    const QStringList inReverse{u"outputorder"_s, u"reverse"_s};
    engine.setProperty(serverOptions, engine.property(serverOptions).toStringList() + inReverse);
}

// The toolkit proposes a directory, and a name in it only under X11.
void ProposeFile(const QPrintDialog& dialog)
{
    auto* file = dialog.findChild<QLineEdit*>(u"filename"_s);
    if (file && file->text().endsWith(u'/'))
        file->setText(file->text() + documentName + u".pdf");
}
} // namespace

QtPrintSystem::QtPrintSystem(UsualPrinter usual) : usual_(std::move(usual)) {}

QString QtPrintSystem::UsualPrinterOfDesktop()
{
    const QString named = QPrinterInfo::defaultPrinterName();
    if (!named.isEmpty())
        return named;
    const QStringList all = QPrinterInfo::availablePrinterNames();
    if (all.isEmpty())
        throw RuntimeError(ErrorNumber::PrinterError);
    return all.first();
}

std::shared_ptr<QPrinter> QtPrintSystem::Usual() const
{
    auto printer = std::make_shared<QPrinter>(QPrinter::HighResolution);
    printer->setPrinterName(usual_());
    return printer;
}

std::shared_ptr<QPagedPaintDevice> QtPrintSystem::NewJob(bool landscape)
{
    std::shared_ptr<QPrinter> printer = chosen_ ? chosen_ : Usual();
    const bool isQueued = printer->outputFormat() == QPrinter::NativeFormat;
    if (isQueued && !IsThere(printer->printerName()))
        throw RuntimeError(ErrorNumber::PrinterError);
    file_ = isQueued ? QString() : NextFile();
    if (!isQueued) {
        paper_ = std::make_unique<MemoryFile>();
        printer->setOutputFileName(paper_->Path());
    }
    printer->setDocName(documentName);
    if (chosen_)
        printer->setPageOrientation(chosenOrientation_);
    if (landscape)
        printer->setPageOrientation(QPageLayout::Landscape);
    return printer;
}

// The toolkit hands a whole job over when it ends, in this thread, and looks neither at the server's answer nor at what
// the disk has taken of a file.
void QtPrintSystem::HandOver()
{
    if (!file_.isEmpty())
        WriteWholeFile(file_, std::exchange(paper_, nullptr)->Bytes());
    else if (LastAnswer() > IPP_STATUS_OK_EVENTS_COMPLETE)
        throw RuntimeError(ErrorNumber::PrinterError);
}

// The dialog has asked about the file itself; the jobs behind the first may take no other file's place, least of all
// the one's before: "Map.pdf" is followed by "Map-2.pdf".
QString QtPrintSystem::NextFile()
{
    const QFileInfo file(chosenFile_);
    if (++jobsToFile_ == 1)
        return file.filePath();
    const QString suffix = file.suffix().isEmpty() ? QString() : QString(u'.' + file.suffix());
    for (int number = 2;; ++number) {
        const QString name = file.path() + u'/' + file.completeBaseName() + u'-' + QString::number(number) + suffix;
        if (!QFileInfo::exists(name))
            return name;
    }
}

void QtPrintSystem::SetChosen(std::unique_ptr<QPrinter> printer)
{
    chosen_ = std::move(printer);
    chosenOrientation_ = chosen_ ? chosen_->pageLayout().orientation() : QPageLayout::Portrait;
    chosenFile_ = chosen_ ? chosen_->outputFileName() : QString();
    jobsToFile_ = 0;
    if (chosen_)
        TellOrderOfPages(*chosen_);
}

// On a printer of its own: the dialog changes it before it is accepted.
void QtPrintSystem::Choose(QWidget* parent)
{
    auto printer = std::make_unique<QPrinter>(QPrinter::HighResolution);
    printer->setDocName(documentName);
    if (chosen_ && (chosen_->outputFormat() != QPrinter::NativeFormat || IsThere(chosen_->printerName()))) {
        CopySettings(*chosen_, *printer);
        printer->setPageOrientation(chosenOrientation_);
        printer->setOutputFileName(chosenFile_);
    }
    QPrintDialog dialog(printer.get(), parent);
    dialog.setOptions(QAbstractPrintDialog::PrintToFile | QAbstractPrintDialog::PrintPageRange |
                      QAbstractPrintDialog::PrintShowPageSize | QAbstractPrintDialog::PrintCollateCopies);
    ProposeFile(dialog);
    if (dialog.exec() == QDialog::Accepted)
        SetChosen(std::move(printer));
}

} // namespace lineforge
