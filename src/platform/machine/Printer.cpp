#include "platform/machine/Printer.h"

#include "platform/base/RuntimeError.h"
#include "platform/canvas/PictureBox.h"
#include "platform/drawing/Fonts.h"

#include <QFontMetrics>
#include <QPagedPaintDevice>
#include <QPainter>
#include <QScopeGuard>
#include <QTextLayout>

namespace lineforge
{

using namespace Qt::StringLiterals;

namespace
{
constexpr double twipsAnInch = 1440;
// A step of the pen's width on paper, where a line of 15 twips would look coarse.
constexpr int penTwips = 7;

RuntimeError NoPageIsWanted(const QString& wanted)
{
    RuntimeError error(ErrorNumber::PrinterError);
    error.Text += u"\nNo page of this print is in the page range of Printer Setup: "_s + wanted;
    return error;
}
} // namespace

// One document on its way to the printer.
class Printer::Job
{
public:
    explicit Job(std::shared_ptr<QPagedPaintDevice> device) : device_(std::move(device)), nowhere_(&scrap_)
    {
        BeginPage();
    }

    // On the page at hand; on nothing when nobody wants that page.
    QPainter& Painter() { return IsWanted() ? paper_ : nowhere_; }
    int Width() const { return static_cast<int>(device_->width() * twipsAnInch / device_->logicalDpiX()); }
    int Height() const { return static_cast<int>(device_->height() * twipsAnInch / device_->logicalDpiY()); }

    void NewPage()
    {
        ++page_;
        BeginPage();
    }

    // False while nobody wants any of the pages.
    bool HasPages() const { return paper_.isActive(); }
    QString WantedPages() const { return device_->pageRanges().toString(); }
    bool Send() { return paper_.end(); }

private:
    bool IsWanted() const { return device_->pageRanges().isEmpty() || device_->pageRanges().contains(page_); }

    void BeginPage()
    {
        if (!IsWanted())
            return;
        const bool isFirst = !paper_.isActive();
        if (isFirst ? !paper_.begin(device_.get()) : !device_->newPage())
            throw RuntimeError(ErrorNumber::PrinterError);
        if (isFirst)
            paper_.scale(device_->logicalDpiX() / twipsAnInch, device_->logicalDpiY() / twipsAnInch);
    }

    std::shared_ptr<QPagedPaintDevice> device_;
    int page_ = 1;
    QImage scrap_{1, 1, QImage::Format_RGB32};
    QPainter nowhere_;
    QPainter paper_; // ends itself, while the device is still there
};

Printer::Printer(PrintSystem& system) : system_(system) {}

Printer::~Printer() = default;

// Null once the job has been refused.
Printer::Job* Printer::Begun()
{
    if (job_ || isRefused_)
        return job_.get();
    try {
        job_ = std::make_unique<Job>(system_.NewJob(Landscape));
    } catch (const RuntimeError&) {
        isRefused_ = true;
        throw;
    }
    return job_.get();
}

void Printer::Line(Point from, Point to)
{
    Job* job = Begun();
    if (!job)
        return;
    job->Painter().setPen(QPen(ToQColor(ForeColor), DrawWidth * penTwips, Qt::SolidLine, Qt::SquareCap));
    job->Painter().drawLine(from.X, from.Y, to.X, to.Y);
}

void Printer::Box(Rectangle place)
{
    Job* job = Begun();
    if (!job)
        return;
    job->Painter().setPen(QPen(ToQColor(ForeColor), DrawWidth * penTwips, Qt::SolidLine, Qt::SquareCap, Qt::MiterJoin));
    job->Painter().setBrush(Qt::NoBrush);
    job->Painter().drawRect(place.Left, place.Top, place.Width, place.Height);
}

void Printer::Print(const QString& text)
{
    Job* job = Begun();
    if (!job)
        return;
    const QFont font = FontInTwips(Font);
    job->Painter().setFont(font);
    job->Painter().setPen(ToQColor(ForeColor));
    job->Painter().drawText(CurrentX, CurrentY + QFontMetrics(font).ascent(), text);
    CurrentX = 0;
    CurrentY += TextHeight(text);
}

int Printer::TextWidth(const QString& text) const
{
    return QFontMetrics(FontInTwips(Font)).horizontalAdvance(text);
}

int Printer::TextHeight(const QString&) const
{
    return QFontMetrics(FontInTwips(Font)).height();
}

void Printer::PrintLine(const QString& text)
{
    Job* job = Begun();
    if (!job)
        return;
    for (const QString& line : LinesOfWidth(text, FontInTwips(Font), job->Width())) {
        if (CurrentY + TextHeight(line) > job->Height())
            NewPage();
        CurrentX = 0;
        Print(line);
    }
}

void Printer::PrintPicture(const QImage& picture, int width)
{
    Job* job = Begun();
    if (!job || picture.isNull())
        return;
    const QSizeF wanted(width, 1.0 * width * picture.height() / picture.width());
    const QSizeF page(job->Width(), job->Height());
    const bool fits = wanted.width() <= page.width() && wanted.height() <= page.height();
    job->Painter().drawImage(QRectF(QPointF(), fits ? wanted : wanted.scaled(page, Qt::KeepAspectRatio)), picture);
}

void Printer::NewPage()
{
    if (Job* job = Begun())
        job->NewPage();
    CurrentX = 0;
    CurrentY = 0;
}

void Printer::EndDoc()
{
    const auto aborted = qScopeGuard([this] { Abort(); });
    if (!job_)
        return;
    if (!job_->HasPages())
        throw NoPageIsWanted(job_->WantedPages());
    if (!job_->Send())
        throw RuntimeError(ErrorNumber::PrinterError);
    system_.HandOver();
}

void Printer::Abort()
{
    job_.reset();
    isRefused_ = false;
    CurrentX = 0;
    CurrentY = 0;
}

} // namespace lineforge
