#pragma once

#include "platform/Printer.h"

#include <QPrinter>

#include <memory>

class QWidget;

namespace lineforge
{

// The desktop's printers. Until the user has chosen one jobs go to the default printer.
class QtPrintSystem : public PrintSystem
{
public:
    std::unique_ptr<QPagedPaintDevice> NewJob(bool landscape) override;

    // Asks for a printer, or for a file to print to; a cancelled question leaves the one before.
    void Choose(QWidget* parent);

    // What the user has chosen; null for the default printer.
    void SetChosen(std::unique_ptr<QPrinter> printer);

private:
    QString NextFile();

    std::unique_ptr<QPrinter> chosen_;
    int jobsToFile_ = 0;
};

} // namespace lineforge
