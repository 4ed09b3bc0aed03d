#pragma once

#include "platform/files/MemoryFile.h"
#include "platform/machine/Printer.h"
#include "qt/machine/QueueDialog.h"

#include <QPageLayout>
#include <QPrinter>

#include <functional>
#include <memory>

class QWidget;

namespace lineforge
{

// The desktop's printers. Until the user has chosen one jobs go to the default printer.
class QtPrintSystem : public PrintSystem
{
public:
    // What tells the name of the printer that is used until one is chosen; error 482 when there is none.
    using UsualPrinter = std::function<QString()>;
    explicit QtPrintSystem(UsualPrinter usual = UsualPrinterOfDesktop);

    // The default printer, or where none is named so the first.
    static QString UsualPrinterOfDesktop();

    // One job at a time: the printer that the user has chosen is that of all his jobs, with all that he has chosen for
    // it.
    std::shared_ptr<QPagedPaintDevice> NewJob(bool landscape) override;
    void HandOver() override;

    // Asks for a printer, or for a file to print to, for its paper and for the pages that are wanted; shows the present
    // choice. A cancelled question leaves the one before.
    void Choose(QWidget* parent);

    // What the user has chosen; null for the default printer.
    void SetChosen(std::unique_ptr<QPrinter> printer);

private:
    std::shared_ptr<QPrinter> Usual() const;
    QString NextFile();

    UsualPrinter usual_;
    std::shared_ptr<QPrinter> chosen_;
    QPageLayout::Orientation chosenOrientation_ = QPageLayout::Portrait;
    QString chosenFile_;
    QueueSetup setup_; // as the dialog has been left; nothing where the printer has been chosen without it
    int jobsToFile_ = 0;

    // Of the last job; no file when it went to a queue.
    QString file_;
    std::unique_ptr<MemoryFile> paper_;
};

} // namespace lineforge
