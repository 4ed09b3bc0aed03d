#include "platform/machine/Printer.h"

#include "support/PdfPrinter.h"
#include "support/Refusal.h"

#include <QBuffer>
#include <QPaintEngine>
#include <QPainter>
#include <QPdfWriter>

#include <gtest/gtest.h>

namespace lineforge
{
namespace
{
using namespace Qt::StringLiterals;

constexpr Size a4{11900, 16839};

// What a job has put on its pages. Places in twips from the top left of the page, a text's at its base line.
struct Mark {
    int Page;
    QString Text; // empty for lines and pictures
    QRectF Place;
    double PenWidth;
};

class MarkingEngine : public QPaintEngine
{
public:
    MarkingEngine(std::vector<Mark>& marks, const int& page) : QPaintEngine(AllFeatures), marks_(marks), page_(page) {}

    bool begin(QPaintDevice*) override { return true; }
    bool end() override { return true; }
    Type type() const override { return User; }
    void updateState(const QPaintEngineState&) override {}
    void drawPixmap(const QRectF& place, const QPixmap&, const QRectF&) override { Put({}, place); }
    void drawImage(const QRectF& place, const QImage&, const QRectF&, Qt::ImageConversionFlags) override
    {
        Put({}, place);
    }
    void drawTextItem(const QPointF& place, const QTextItem& item) override
    {
        Put(item.text(), QRectF(place, QSizeF(item.width(), 0)));
    }
    void drawLines(const QLine* lines, int count) override
    {
        for (int i = 0; i < count; ++i)
            Put({}, QRectF(lines[i].p1(), lines[i].p2()));
    }
    void drawRects(const QRect* places, int count) override
    {
        for (int i = 0; i < count; ++i)
            Put({}, places[i]);
    }

private:
    void Put(const QString& text, const QRectF& place)
    {
        const double twipsADot = 1440.0 / painter()->device()->logicalDpiX();
        const QRectF onPaper = painter()->combinedTransform().mapRect(place);
        marks_.push_back({page_, text, QRectF(onPaper.topLeft() * twipsADot, onPaper.size() * twipsADot),
                          painter()->pen().widthF()});
    }

    std::vector<Mark>& marks_;
    const int& page_;
};

// Paper that remembers what is put on it.
class MarkedPaper : public QPdfWriter
{
public:
    explicit MarkedPaper(std::vector<Mark>& marks) : QPdfWriter(&nowhere_), engine_(marks, page_)
    {
        setPageSize(QPageSize(QPageSize::A4));
        setPageMargins(QMarginsF());
    }
    bool newPage() override
    {
        ++page_;
        return true;
    }

protected:
    QPaintEngine* paintEngine() const override { return &engine_; }

private:
    QBuffer nowhere_;
    int page_ = 1;
    mutable MarkingEngine engine_;
};

class MarkingSystem : public PrintSystem
{
public:
    std::shared_ptr<QPagedPaintDevice> NewJob(bool) override
    {
        ++Jobs;
        auto paper = std::make_shared<MarkedPaper>(Marks);
        paper->setPageRanges(Wanted);
        return paper;
    }
    void HandOver() override
    {
        if (!Takes)
            throw RuntimeError(ErrorNumber::PrinterError);
    }

    std::vector<Mark> Marks;
    QPageRanges Wanted;
    bool Takes = true;
    int Jobs = 0;
};

class PrinterTest : public testing::Test
{
protected:
    int PagesOf(int job) { return static_cast<int>(Bytes(job).count("/Type /Page\n")); }
    QByteArray Bytes(int job) { return System.Paper.ReadFile(u"job-%1.pdf"_s.arg(job)); }

    PdfPrinter System;
    Printer Paper{System};
};

TEST_F(PrinterTest, FirstThingPutOnIt_BeginsAJob_AndEndDocSendsItOff)
{
    EXPECT_EQ(System.Asked, 0);

    Paper.Line({0, 0}, {100, 100});
    Paper.Box({0, 0, 100, 100});
    Paper.Print(u"text"_s);
    EXPECT_EQ(System.Asked, 1);

    Paper.EndDoc();
    EXPECT_TRUE(Bytes(1).startsWith("%PDF-"));
    EXPECT_TRUE(Bytes(1).trimmed().endsWith("%%EOF"));
    EXPECT_EQ(PagesOf(1), 1);
}

TEST_F(PrinterTest, MeasuringText_BeginsNoJob)
{
    EXPECT_GT(Paper.TextWidth(u"John"_s), 0);
    EXPECT_GT(Paper.TextHeight(u"John"_s), 0);
    EXPECT_EQ(System.Asked, 0);
}

TEST_F(PrinterTest, EndDocWithoutAJob_IsNothing)
{
    Paper.EndDoc();
    EXPECT_EQ(System.Asked, 0);

    Paper.Print(u"text"_s);
    Paper.EndDoc();
    Paper.EndDoc();
    EXPECT_EQ(System.Jobs.size(), 1);
}

TEST_F(PrinterTest, WhatIsPrintedAfterEndDoc_IsAnotherJob)
{
    Paper.Print(u"one"_s);
    Paper.EndDoc();
    Paper.Print(u"two"_s);
    Paper.NewPage();
    Paper.Print(u"three"_s);
    Paper.EndDoc();

    ASSERT_EQ(System.Jobs.size(), 2);
    EXPECT_EQ(PagesOf(1), 1);
    EXPECT_EQ(PagesOf(2), 2);
}

TEST_F(PrinterTest, JobStillOpenWhenThePrinterGoes_IsSentOff)
{
    {
        Printer shortLived(System);
        shortLived.Print(u"text"_s);
    }
    EXPECT_EQ(PagesOf(1), 1);
}

TEST_F(PrinterTest, Landscape_IsThatOfTheNextJob)
{
    Paper.Print(u"upright"_s);
    Paper.Landscape = true;
    Paper.NewPage();
    Paper.EndDoc();
    Paper.Print(u"on its side"_s);
    Paper.EndDoc();

    EXPECT_EQ(Bytes(1).count("/MediaBox [0 0 595 842]") + Bytes(1).count("/MediaBox [0 0 595.000000 842.000000]"), 2)
        << "on both pages";
    EXPECT_EQ(Bytes(2).count("/MediaBox [0 0 842 595]") + Bytes(2).count("/MediaBox [0 0 842.000000 595.000000]"), 1);
}

TEST_F(PrinterTest, NoPrinter_IsToldOnce_AndThenThereIsSilenceUntilEndDoc)
{
    System.IsThere = false;

    EXPECT_EQ(RefusalOf([&] { Paper.Line({0, 0}, {1, 1}); }), ErrorNumber::PrinterError);
    EXPECT_EQ(RefusalOf([&] {
                  Paper.Line({0, 0}, {1, 1});
                  Paper.Box({0, 0, 1, 1});
                  Paper.Print(u"text"_s);
                  Paper.PrintLine(u"text"_s);
                  Paper.PrintPicture(QImage(10, 10, QImage::Format_RGB32), 100);
                  Paper.NewPage();
                  Paper.EndDoc();
              }),
              0);
    EXPECT_EQ(System.Asked, 1);

    EXPECT_EQ(RefusalOf([&] { Paper.PrintLine(u"text"_s); }), ErrorNumber::PrinterError);
    EXPECT_EQ(System.Asked, 2);
}

TEST_F(PrinterTest, PrinterThatComesBackInsideARefusedJob_IsHeardOfWithTheNextOne)
{
    System.IsThere = false;
    EXPECT_EQ(RefusalOf([&] { Paper.NewPage(); }), ErrorNumber::PrinterError);
    System.IsThere = true;
    Paper.Print(u"dropped"_s);
    Paper.EndDoc();
    EXPECT_TRUE(System.Jobs.isEmpty());

    Paper.Print(u"printed"_s);
    Paper.EndDoc();
    EXPECT_EQ(System.Jobs.size(), 1);
}

TEST_F(PrinterTest, Abort_ForgetsTheRefusedJob_AndGoesToTheTopLeft)
{
    System.IsThere = false;
    EXPECT_EQ(RefusalOf([&] { Paper.PrintAt({100, 200}, u"text"_s); }), ErrorNumber::PrinterError);

    Paper.Abort();

    EXPECT_EQ(Paper.CurrentX, 0);
    EXPECT_EQ(Paper.CurrentY, 0);
    EXPECT_EQ(RefusalOf([&] { Paper.Print(u"text"_s); }), ErrorNumber::PrinterError);
}

TEST_F(PrinterTest, JobThatCannotBeWritten_IsPrinterError)
{
    struct Unwritable : PrintSystem {
        std::shared_ptr<QPagedPaintDevice> NewJob(bool) override { return std::make_shared<QPdfWriter>(File); }
        QString File;
    } system;
    system.File = System.Paper.Path(u"missing/job.pdf");
    Printer paper(system);

    EXPECT_EQ(RefusalOf([&] { paper.Print(u"text"_s); }), ErrorNumber::PrinterError);
    EXPECT_EQ(RefusalOf([&] { paper.Print(u"text"_s); }), 0);
}

class PrintedPageTest : public testing::Test
{
protected:
    // The texts of a page, one a line: pieces that stand side by side are one.
    QStringList Lines(int page) const
    {
        QStringList lines;
        double y = -1;
        for (const Mark& mark : System.Marks) {
            if (mark.Page != page || mark.Text.isEmpty())
                continue;
            if (mark.Place.y() == y)
                lines.last() += mark.Text;
            else
                lines.push_back(mark.Text);
            y = mark.Place.y();
        }
        return lines;
    }
    QString AllText() const
    {
        QString text;
        for (const Mark& mark : System.Marks)
            text += mark.Text;
        return text;
    }
    int LastPage() const { return System.Marks.empty() ? 0 : System.Marks.back().Page; }
    int LineHeight() const { return Paper.TextHeight(u"x"_s); }

    static void ExpectNear(const QRectF& place, const QRectF& expected)
    {
        EXPECT_NEAR(place.x(), expected.x(), 1);
        EXPECT_NEAR(place.y(), expected.y(), 1);
        EXPECT_NEAR(place.width(), expected.width(), 1);
        EXPECT_NEAR(place.height(), expected.height(), 1);
    }

    MarkingSystem System;
    Printer Paper{System};
};

TEST_F(PrintedPageTest, PagesThatAreNotWanted_AreLeftOut)
{
    System.Wanted = QPageRanges::fromString(u"2-3"_s);
    for (const QStringView text : {u"one", u"two", u"three", u"four"}) {
        Paper.Print(text.toString());
        Paper.Line({0, 0}, {100, 100});
        Paper.NewPage();
    }
    Paper.EndDoc();
    EXPECT_EQ(Lines(1), QStringList{u"two"_s});
    EXPECT_EQ(Lines(2), QStringList{u"three"_s});
    EXPECT_EQ(LastPage(), 2);
    EXPECT_EQ(System.Marks.size(), 4u);
}

TEST_F(PrintedPageTest, JobWithoutAnyPageThatIsWanted_IsPrinterError_AndTellsWhichAre)
{
    System.Wanted = QPageRanges::fromString(u"2-3"_s);
    Paper.Print(u"one"_s);
    try {
        Paper.EndDoc();
        ADD_FAILURE() << "nothing was refused";
    } catch (const RuntimeError& error) {
        EXPECT_EQ(error.Number, ErrorNumber::PrinterError);
        EXPECT_EQ(error.Text, u"Printer error\nNo page of this print is in the page range of Printer Setup: 2-3"_s);
    }
    EXPECT_TRUE(System.Marks.empty());
    EXPECT_EQ(RefusalOf([this] { Paper.EndDoc(); }), 0);
}

TEST_F(PrintedPageTest, JobThatIsNotTaken_IsPrinterError_AndTheNextOneIsAnother)
{
    System.Takes = false;
    Paper.Print(u"one"_s);
    EXPECT_EQ(RefusalOf([this] { Paper.EndDoc(); }), ErrorNumber::PrinterError);
    System.Takes = true;
    Paper.Print(u"two"_s);
    EXPECT_EQ(RefusalOf([this] { Paper.EndDoc(); }), 0);
    EXPECT_EQ(System.Jobs, 2);
}

TEST_F(PrintedPageTest, LinesAndBoxes_StandWhereTheyWerePut)
{
    Paper.Line({1440, 720}, {2880, 2160});
    Paper.DrawWidth = 3;
    Paper.Box({500, 600, 700, 800});

    ASSERT_EQ(System.Marks.size(), 2u);
    ExpectNear(System.Marks[0].Place, {1440, 720, 1440, 1440});
    ExpectNear(System.Marks[1].Place, {500, 600, 700, 800});
    EXPECT_EQ(System.Marks[1].PenWidth, 3 * System.Marks[0].PenWidth);
}

TEST_F(PrintedPageTest, TextThatBeginsTheJob_StandsWhereItWasPut)
{
    Paper.PrintAt({1440, 2880}, u"John"_s);

    ASSERT_EQ(System.Marks.size(), 1u);
    EXPECT_NEAR(System.Marks[0].Place.x(), 1440, 1);
    EXPECT_GT(System.Marks[0].Place.y(), 2880);
    EXPECT_LT(System.Marks[0].Place.y(), 2880 + LineHeight());
}

TEST_F(PrintedPageTest, Print_MovesToTheStartOfTheNextLine)
{
    Paper.Print(u"first"_s);
    EXPECT_EQ(Paper.CurrentX, 0);
    EXPECT_EQ(Paper.CurrentY, LineHeight());
    Paper.CurrentX = 720;
    Paper.Print(u"second"_s);

    EXPECT_EQ(Paper.CurrentX, 0);
    EXPECT_EQ(Paper.CurrentY, 2 * LineHeight());
    EXPECT_NEAR(System.Marks[1].Place.y() - System.Marks[0].Place.y(), LineHeight(), 1);
    EXPECT_NEAR(System.Marks[1].Place.x(), 720, 1);
}

TEST_F(PrintedPageTest, NewPageAndEndDoc_GoToTheTopLeft)
{
    Paper.PrintAt({100, 200}, u"text"_s);
    Paper.CurrentX = 50;
    Paper.NewPage();
    EXPECT_EQ(Paper.CurrentX, 0);
    EXPECT_EQ(Paper.CurrentY, 0);
    Paper.Print(u"text"_s);
    Paper.CurrentX = 50;
    Paper.EndDoc();
    EXPECT_EQ(Paper.CurrentX, 0);
    EXPECT_EQ(Paper.CurrentY, 0);
    EXPECT_EQ(LastPage(), 2);
}

TEST_F(PrintedPageTest, Measures_AreThoseOfTheFontOnPaper)
{
    const int width = Paper.TextWidth(u"John"_s);
    EXPECT_EQ(Paper.TextWidth(QString()), 0);
    EXPECT_GE(LineHeight(), 8 * 20);
    Paper.Print(u"John"_s);
    EXPECT_NEAR(System.Marks[0].Place.width(), width, 2);

    Paper.Font.Size = 16;
    EXPECT_NEAR(Paper.TextWidth(u"John"_s), 2 * width, 4);
    Paper.Font.Bold = true;
    EXPECT_GT(Paper.TextWidth(u"John"_s), 2 * width);
}

TEST_F(PrintedPageTest, PrintLine_CutsAtLineBreaks_AndKeepsEmptyLines)
{
    Paper.PrintLine(u"one\r\ntwo\n\nthree"_s);

    EXPECT_EQ(Lines(1), QStringList({u"one"_s, u"two"_s, u"three"_s}));
    EXPECT_EQ(Paper.CurrentY, 4 * LineHeight());
    Paper.PrintLine(QString());
    EXPECT_EQ(Paper.CurrentY, 5 * LineHeight());
}

TEST_F(PrintedPageTest, PrintLine_BeginsAtTheLeftEdge)
{
    Paper.Print(u"first"_s);
    Paper.CurrentX = 3000;
    Paper.PrintLine(u"second"_s);

    EXPECT_NEAR(System.Marks[1].Place.x(), 0, 1);
}

TEST_F(PrintedPageTest, WideLine_IsCutBehindBlanks_AndNothingIsLeftOut)
{
    const QString text = u"Lorem ipsum  dolor sit, "_s.repeated(40).trimmed();
    Paper.PrintLine(text);

    EXPECT_EQ(AllText(), text);
    const QStringList lines = Lines(1);
    EXPECT_GT(lines.size(), 3);
    for (const QString& line : lines)
        EXPECT_LE(Paper.TextWidth(line.trimmed()), a4.Width) << line.toStdString();
    for (const QString& line : lines.first(lines.size() - 1))
        EXPECT_TRUE(line.endsWith(u' ')) << line.toStdString();
    EXPECT_EQ(Paper.CurrentY, lines.size() * LineHeight());
}

TEST_F(PrintedPageTest, WideWord_IsCutAnywhere)
{
    const QString word = u"Llanfair"_s.repeated(60);
    Paper.PrintLine(word);

    EXPECT_EQ(AllText(), word);
    EXPECT_GT(Lines(1).size(), 2);
    for (const QString& line : Lines(1))
        EXPECT_LE(Paper.TextWidth(line), a4.Width);
}

TEST_F(PrintedPageTest, FullPage_IsFollowedByAnother)
{
    const int linesAPage = a4.Height / LineHeight();
    for (int line = 0; line < 2 * linesAPage + 1; ++line)
        Paper.PrintLine(QString::number(line));

    EXPECT_EQ(Lines(1).size(), linesAPage);
    EXPECT_EQ(Lines(2).size(), linesAPage);
    EXPECT_EQ(Lines(2).first(), QString::number(linesAPage));
    EXPECT_EQ(Lines(3), QStringList{QString::number(2 * linesAPage)});
    EXPECT_EQ(Paper.CurrentY, LineHeight());
    for (const Mark& mark : System.Marks)
        EXPECT_LE(mark.Place.y(), a4.Height);
}

TEST_F(PrintedPageTest, LongText_GoesOnOverThePages)
{
    const int linesAPage = a4.Height / LineHeight();
    Paper.CurrentY = 0;
    Paper.PrintLine(u"x\n"_s.repeated(linesAPage + 4) + u'y');

    EXPECT_EQ(Lines(1).size(), linesAPage);
    EXPECT_EQ(Lines(2), QStringList({u"x"_s, u"x"_s, u"x"_s, u"x"_s, u"y"_s}));
    EXPECT_EQ(System.Jobs, 1);
}

TEST_F(PrintedPageTest, Picture_StandsInTheTopLeft_SoManyTwipsWide)
{
    Paper.Print(u"above"_s);
    Paper.PrintPicture(QImage(400, 300, QImage::Format_RGB32), 8000);

    ExpectNear(System.Marks.back().Place, {0, 0, 8000, 6000});
}

TEST_F(PrintedPageTest, PictureLargerThanThePage_IsMadeSmaller_InItsShape)
{
    Paper.PrintPicture(QImage(400, 300, QImage::Format_RGB32), 20000);
    ExpectNear(System.Marks.back().Place, {0, 0, a4.Width * 1.0, a4.Width * 0.75});

    Paper.PrintPicture(QImage(300, 3000, QImage::Format_RGB32), 6000);
    ExpectNear(System.Marks.back().Place, {0, 0, a4.Height * 0.1, a4.Height * 1.0});
}

TEST_F(PrintedPageTest, PictureOfNothing_IsPassedOver)
{
    Paper.PrintPicture(QImage(), 1000);
    EXPECT_TRUE(System.Marks.empty());
}

} // namespace
} // namespace lineforge
