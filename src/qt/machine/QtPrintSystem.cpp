#include "qt/machine/QtPrintSystem.h"

#include "platform/base/RuntimeError.h"
#include "platform/files/WholeFile.h"
#include "printing/PrintServer.h"

#include <QFileInfo>
#include <QLineEdit>
#include <QPrintDialog>
#include <QPrinterInfo>

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
    else if (!HasServerTakenJob())
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
    setup_ = {};
    if (chosen_)
        CorrectServerOptions(*chosen_);
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
    const QueueDialog queue(dialog, setup_);
    if (dialog.exec() != QDialog::Accepted)
        return;
    QueueSetup setup = queue.Taken(*printer);
    SetChosen(std::move(printer));
    setup_ = std::move(setup);
}

} // namespace lineforge
