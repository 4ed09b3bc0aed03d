#include "output/OutputTest.h"
#include "support/Pixels.h"

#include <QPainter>

namespace lineforge
{
namespace
{

// A window as it looks: red on the left, blue on the right.
QImage RedAndBlue(QSize pixels)
{
    QImage image(pixels, QImage::Format_RGB32);
    image.fill(Qt::red);
    QPainter painter(&image);
    painter.fillRect(pixels.width() / 2, 0, pixels.width(), pixels.height(), Qt::blue);
    return image;
}

// The paper may hold the picture with less than all of its colours.
QString ColourNear(const QImage& paper, Point place)
{
    const QColor colour = ToQColor(ColourAt(paper, place));
    const auto isNear = [&](QColor other) {
        return std::abs(colour.red() - other.red()) + std::abs(colour.green() - other.green()) +
                   std::abs(colour.blue() - other.blue()) <
               30;
    };
    if (isNear(Qt::red))
        return u"red"_s;
    if (isNear(Qt::blue))
        return u"blue"_s;
    return isNear(Qt::white) ? u"white"_s : colour.name();
}

class PrintWindowTest : public OutputTest
{
protected:
    // The window on the screen, smaller than the page.
    static void Show(Form& form)
    {
        form.Grab = [] { return RedAndBlue({400, 300}); };
        form.Measure = [] { return Size{8000, 6000}; };
    }

    void ExpectWindowOnPaper()
    {
        ExpectPictureOnPaper(8000, 6000);
        EXPECT_EQ(ColourNear(PictureOf(Jobs().first()), {8030, 3000}), u"white"_s);
    }

    // A window's picture on the one page that has been printed, that wide and high.
    void ExpectPictureOnPaper(int width, int height)
    {
        ASSERT_EQ(Jobs().size(), 1);
        EXPECT_EQ(PagesOf(Jobs().first()), 1);
        EXPECT_EQ(PaperOf(Jobs().first()), QSize(595, 842));
        const QImage paper = PictureOf(Jobs().first());
        constexpr int near = 30;
        EXPECT_EQ(ColourNear(paper, {near, near}), u"red"_s);
        EXPECT_EQ(ColourNear(paper, {width / 2 - near, height - near}), u"red"_s);
        EXPECT_EQ(ColourNear(paper, {width / 2 + near, near}), u"blue"_s);
        EXPECT_EQ(ColourNear(paper, {width - near, height - near}), u"blue"_s);
        EXPECT_EQ(ColourNear(paper, {near, height + near}), u"white"_s);
        EXPECT_EQ(ColourNear(paper, {width - near, height + near}), u"white"_s);
    }
};

TEST_F(PrintWindowTest, MainWindow_IsPrinted_WithoutABranchToo)
{
    Show(*P.Form1);

    P.Form1->mnuPrintPage.Click();

    ExpectWindowOnPaper();
}

// Each of the windows, and how it is printed.
struct PrintedWindow {
    const char* Name;
    Form& (*Of)(Program& p);
    void (*Print)(Program& p);
};
std::ostream& operator<<(std::ostream& out, const PrintedWindow& window)
{
    return out << window.Name;
}

constexpr PrintedWindow printedWindows[] = {
    {"Map", [](Program& p) -> Form& { return *p.Form1; }, [](Program& p) { p.Form1->mnuPrintPage.Click(); }},
    {"Records", [](Program& p) -> Form& { return *p.Form3; }, [](Program& p) { p.Form3->mnuPrinForm.Click(); }},
    {"Gallery", [](Program& p) -> Form& { return *p.Form5; }, [](Program& p) { p.Form5->mnuPrintpic.Click(); }},
    {"Comparison", [](Program& p) -> Form& { return *p.Form6; }, [](Program& p) { p.Form6->mnuPrintScreen.Click(); }},
    {"MapFromThePictureWindow", [](Program& p) -> Form& { return *p.Form1; },
     [](Program& p) { p.Form2->mnuPrint.Click(); }},
};

class PrintedSizeTest : public PrintWindowTest, public testing::WithParamInterface<PrintedWindow>
{
protected:
    PrintedSizeTest() { GivenPeople(1); }
    Form& Window() { return GetParam().Of(P); }
};

INSTANTIATE_TEST_SUITE_P(Windows, PrintedSizeTest, testing::ValuesIn(printedWindows),
                         [](const auto& turn) { return testing::PrintToString(turn.param); });

TEST_P(PrintedSizeTest, SmallerThanThePage_ItKeepsItsSize)
{
    Show(Window());

    GetParam().Print(P);

    ExpectWindowOnPaper();
    EXPECT_EQ(Current(), u"A001"_s);
}

// Where the screen hasn't the room that the program asked for, what is seen is what counts.
TEST_P(PrintedSizeTest, OnAScreenWithLessRoom_ItIsAsLargeAsItCouldBe)
{
    Window().Width = 9000;
    Window().Height = 9000;
    Window().Measure = [] { return Size{7500, 6000}; };
    Window().Grab = [] { return RedAndBlue({500, 400}); };

    GetParam().Print(P);

    ExpectPictureOnPaper(7500, 6000);
}

TEST_P(PrintedSizeTest, LargerThanThePage_ItIsMadeSmaller)
{
    Window().Measure = [] { return Size{20'000, 10'000}; };
    Window().Grab = [] { return RedAndBlue({1000, 500}); };

    GetParam().Print(P);

    ExpectPictureOnPaper(11'906, 5953);
}

TEST_F(PrintWindowTest, EachPrint_IsAJobOfItsOwn)
{
    Show(*P.Form1);

    P.Form1->mnuPrintPage.Click();
    P.Form1->mnuPrintPage.Click();

    EXPECT_EQ(Jobs().size(), 2);
}

TEST_F(PrintWindowTest, WindowPrintedAfterTheMap_IsUpright)
{
    GivenPeople(1);
    P.Form1->mnuPrint.Click();
    Machine.Printer.Jobs.clear();
    Show(*P.Form1);

    P.Form1->mnuPrintPage.Click();

    ExpectWindowOnPaper();
}

TEST_F(PrintWindowTest, NoPrinter_MainWindow_ReportsTheError_AndTheNextPrintWorks)
{
    Show(*P.Form1);
    Machine.Printer.IsThere = false;
    ExpectPrinterErrorBox();
    P.Form1->mnuPrintPage.Click();

    Machine.Printer.IsThere = true;
    P.Form1->mnuPrintPage.Click();

    ExpectWindowOnPaper();
}

TEST_F(PrintWindowTest, NoPrinter_RecordForm_TellsItInWords_AndTheNextPrintWorks)
{
    GivenPeople(1);
    Show(*P.Form3);
    Machine.Printer.IsThere = false;
    Prompts.Expect(u"Lineforge", u"The form could not be printed.", Buttons::Plain);
    P.Form3->mnuPrinForm.Click();

    Machine.Printer.IsThere = true;
    P.Form3->mnuPrinForm.Click();

    ExpectWindowOnPaper();
}

TEST_F(PrintWindowTest, Comparison_IsPrintedAsItStands_AndARefusalReported)
{
    Show(*P.Form6);
    Machine.Printer.IsThere = false;
    ExpectPrinterErrorBox();
    P.Form6->mnuPrintScreen.Click();

    Machine.Printer.IsThere = true;
    P.Form6->mnuPrintScreen.Click();

    ExpectWindowOnPaper();
}

TEST_F(PrintWindowTest, Gallery_IsPrintedAsItStands)
{
    Show(*P.Form5);

    P.Form5->mnuPrintpic.Click();

    ExpectWindowOnPaper();
}

TEST_F(PrintWindowTest, NoPrinter_Gallery_SaysNothing_AndTheNextPrintWorks)
{
    Show(*P.Form5);
    Machine.Printer.IsThere = false;
    P.Form5->mnuPrintpic.Click();

    Machine.Printer.IsThere = true;
    P.Form5->mnuPrintpic.Click();

    ExpectWindowOnPaper();
}

TEST_F(PrintWindowTest, PictureWindow_PrintsTheMainWindow)
{
    Show(*P.Form1);
    P.Form2->Grab = [] { return QImage(); };

    P.Form2->mnuPrint.Click();

    ExpectWindowOnPaper();
}

TEST_F(PrintWindowTest, NoPrinter_PictureWindow_TellsItInWords_AndTheNextPrintWorks)
{
    Show(*P.Form1);
    Machine.Printer.IsThere = false;
    Prompts.Expect(u"Lineforge", u"The form could not be printed.", Buttons::Plain);
    P.Form2->mnuPrint.Click();

    Machine.Printer.IsThere = true;
    P.Form2->mnuPrint.Click();

    ExpectWindowOnPaper();
}

} // namespace
} // namespace lineforge
