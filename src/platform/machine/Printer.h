#pragma once

#include "platform/drawing/Surface.h"

#include <QImage>

#include <memory>

class QPagedPaintDevice;
class QPainter;

namespace lineforge
{

// Where print jobs go: the default printer, or the one that the user has chosen.
class PrintSystem
{
public:
    virtual ~PrintSystem() = default;
    // A new job, its first page still blank; error 482 when there is no printer. Its `pageRanges` are the pages that
    // the user wants, which whoever draws sees to; empty for all.
    virtual std::shared_ptr<QPagedPaintDevice> NewJob(bool landscape) = 0;
    // Sees the job that has just been ended on its way. Error 482 when it isn't taken; those of the disk when it goes
    // to a file that can't be written.
    virtual void HandOver() {}
};

// The printer as a surface. The first thing that is put on it begins a job, `EndDoc` sends it off. Twips from the top
// left of the area that can be printed on; what lies outside is cut off.
//
// Pages that the user doesn't want are left out.
//
// Error 482 when a job can't be begun. The rest of that job is then dropped without another word, so that whoever goes
// on regardless hears of it once.
class Printer : public Surface
{
public:
    explicit Printer(PrintSystem& system);
    ~Printer() override;

    bool Landscape = false; // of the next job

    void Line(Point from, Point to) override;
    void Box(Rectangle place) override;
    void Print(const QString& text) override;
    int TextWidth(const QString& text) const override;
    int TextHeight(const QString& text) const override;

    // The text at the left edge as the next line of the page; a text that is too wide, or holds line breaks, goes on in
    // the lines below, and a page that is full is followed by another.
    void PrintLine(const QString& text);

    // A picture in the top left corner, so many twips wide; made smaller when the page is.
    void PrintPicture(const QImage& picture, int width);

    // Begins a job before anything is put on it.
    void Begin() { Begun(); }
    void NewPage();
    // Nothing when no job is under way. Error 482 when it can't be sent off, or has none of the pages that are wanted;
    // those of the disk when it goes to a file that can't be written.
    void EndDoc();
    // Forgets the job that is under way, or refused.
    void Abort();

private:
    class Job;
    Job* Begun();

    PrintSystem& system_;
    std::unique_ptr<Job> job_;
    bool isRefused_ = false;
};

} // namespace lineforge
