#pragma once

#include "platform/base/RuntimeError.h"
#include "platform/machine/Printer.h"
#include "support/TemporaryHome.h"

#include <QPdfWriter>
#include <QStringList>

namespace lineforge
{

// A printer whose jobs are PDF files of A4 pages, one a job: "job-1.pdf" in a directory of its own.
class PdfPrinter : public PrintSystem
{
public:
    std::shared_ptr<QPagedPaintDevice> NewJob(bool landscape) override
    {
        ++Asked;
        if (!IsThere)
            throw RuntimeError(ErrorNumber::PrinterError);
        const QString file = Paper.Path(QString(u"job-" + QString::number(Jobs.size() + 1) + u".pdf"));
        auto job = std::make_shared<QPdfWriter>(file);
        job->setPageSize(QPageSize(QPageSize::A4));
        job->setPageMargins(QMarginsF());
        if (landscape)
            job->setPageOrientation(QPageLayout::Landscape);
        Jobs.push_back(file);
        return job;
    }

    bool IsThere = true;
    int Asked = 0;
    QStringList Jobs; // the files, in the order of their beginning
    TemporaryHome Paper;
};

} // namespace lineforge
