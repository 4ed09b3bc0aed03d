#include "platform/qt/QtPrintSystem.h"

#include "platform/RuntimeError.h"

#include <QFileInfo>
#include <QPrintDialog>
#include <QPrinterInfo>

namespace lineforge
{

using namespace Qt::StringLiterals;

namespace
{
void CopySettings(const QPrinter& from, QPrinter& to)
{
    to.setOutputFormat(from.outputFormat());
    if (from.outputFormat() == QPrinter::NativeFormat) {
        if (QPrinterInfo::printerInfo(from.printerName()).isNull())
            throw RuntimeError(ErrorNumber::PrinterError);
        to.setPrinterName(from.printerName());
    }
    to.setPageLayout(from.pageLayout());
    to.setCopyCount(from.copyCount());
    to.setColorMode(from.colorMode());
    to.setDuplex(from.duplex());
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

std::unique_ptr<QPagedPaintDevice> QtPrintSystem::NewJob(bool landscape)
{
    auto printer = std::make_unique<QPrinter>(QPrinter::HighResolution);
    if (chosen_)
        CopySettings(*chosen_, *printer);
    else
        printer->setPrinterName(usual_());
    if (printer->outputFormat() == QPrinter::PdfFormat)
        printer->setOutputFileName(NextFile());
    printer->setDocName(u"Lineforge"_s);
    if (landscape)
        printer->setPageOrientation(QPageLayout::Landscape);
    return printer;
}

// The dialog has asked about the file itself; the jobs behind the first may take no other file's place, least of all
// the one's before: "Map.pdf" is followed by "Map-2.pdf".
QString QtPrintSystem::NextFile()
{
    const QFileInfo file(chosen_->outputFileName());
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
    jobsToFile_ = 0;
}

void QtPrintSystem::Choose(QWidget* parent)
{
    auto printer = std::make_unique<QPrinter>(QPrinter::HighResolution);
    if (chosen_ && chosen_->outputFormat() == QPrinter::PdfFormat)
        CopySettings(*chosen_, *printer);
    QPrintDialog dialog(printer.get(), parent);
    dialog.setOptions(QAbstractPrintDialog::PrintToFile);
    if (dialog.exec() == QDialog::Accepted)
        SetChosen(std::move(printer));
}

} // namespace lineforge
