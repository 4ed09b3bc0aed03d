#pragma once

#include "platform/Printer.h"

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

    std::unique_ptr<QPagedPaintDevice> NewJob(bool landscape) override;

    // Asks for a printer, or for a file to print to; a cancelled question leaves the one before.
    void Choose(QWidget* parent);

    // What the user has chosen; null for the default printer.
    void SetChosen(std::unique_ptr<QPrinter> printer);

private:
    QString NextFile();

    UsualPrinter usual_;
    std::unique_ptr<QPrinter> chosen_;
    int jobsToFile_ = 0;
};

} // namespace lineforge
