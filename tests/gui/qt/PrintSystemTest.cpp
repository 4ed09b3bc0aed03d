#include "gui/qt/Dialogs.h"
#include "gui/qt/WindowTest.h"
#include "platform/RuntimeError.h"
#include "support/Refusal.h"
#include "support/TemporaryHome.h"

#include <QLineEdit>
#include <QPrintDialog>
#include <QPrinterInfo>
#include <QTest>
#include <QTimer>

namespace lineforge
{

using namespace Qt::StringLiterals;

namespace
{
struct PrintSystemTest : WindowTest {
    QtPrintSystem& Printers() { return Machine().Printers(); }

    static std::unique_ptr<QPrinter> PrinterToFile(const QString& file)
    {
        auto printer = std::make_unique<QPrinter>();
        printer->setOutputFormat(QPrinter::PdfFormat);
        printer->setOutputFileName(file);
        printer->setPageSize(QPageSize(QPageSize::A4));
        return printer;
    }

    // A desktop that knows no printer.
    static QString NoPrinter() { throw RuntimeError(ErrorNumber::PrinterError); }

    void PrintPage(bool landscape = false) { PrintPageOn(Printers(), landscape); }

    static void PrintPageOn(PrintSystem& printers, bool landscape = false)
    {
        Printer paper(printers);
        paper.Landscape = landscape;
        paper.Print(u"text"_s);
        paper.EndDoc();
    }

    QStringList Files() { return Home.Snapshot().keys(); }
    QByteArray PaperOf(QStringView file)
    {
        const QByteArray bytes = Home.ReadFile(file);
        const qsizetype start = bytes.indexOf("/MediaBox [");
        return bytes.mid(start, bytes.indexOf(']', start) - start);
    }

    // Sets the printer up as a user does who prints to that file.
    void ChooseFile(const QString& file)
    {
        const NextDialog next([&file](QDialog& dialog) {
            auto* name = dialog.findChild<QLineEdit*>(u"filename"_s);
            ASSERT_NE(name, nullptr);
            name->setText(file);
            dialog.accept();
        });
        Machine().Bundle().Prompts.PickPrinter();
    }

    void Cancel()
    {
        const NextDialog next([](QDialog& dialog) { PressKey(dialog, Qt::Key_Escape); });
        Machine().Bundle().Prompts.PickPrinter();
    }

    TemporaryHome Home;
};

TEST_F(PrintSystemTest, WithoutAnyPrinter_AJobIsRefused)
{
    QtPrintSystem printers(NoPrinter);
    EXPECT_EQ(RefusalOf([&] { printers.NewJob(false); }), ErrorNumber::PrinterError);
    EXPECT_EQ(RefusalOf([&] { PrintPageOn(printers); }), ErrorNumber::PrinterError);
}

TEST_F(PrintSystemTest, TheDesktopsPrinter_IsItsDefault_OrNone)
{
    if (QPrinterInfo::availablePrinterNames().isEmpty())
        EXPECT_EQ(RefusalOf([] { QtPrintSystem::UsualPrinterOfDesktop(); }), ErrorNumber::PrinterError);
    else
        EXPECT_TRUE(QPrinterInfo::availablePrinterNames().contains(QtPrintSystem::UsualPrinterOfDesktop()));
}

TEST_F(PrintSystemTest, ChosenFile_TakesTheFirstJob_AndTheNextOnesStandBesideIt)
{
    Printers().SetChosen(PrinterToFile(Home.Path(u"Map of 1901.v2.pdf")));
    PrintPage();
    EXPECT_EQ(Files(), QStringList{u"Map of 1901.v2.pdf"_s});
    const QByteArray first = Home.ReadFile(u"Map of 1901.v2.pdf");
    EXPECT_TRUE(first.startsWith("%PDF-"));

    PrintPage();
    PrintPage();

    EXPECT_EQ(Files(), QStringList({u"Map of 1901.v2-2.pdf"_s, u"Map of 1901.v2-3.pdf"_s, u"Map of 1901.v2.pdf"_s}));
    EXPECT_EQ(Home.ReadFile(u"Map of 1901.v2.pdf"), first);
}

TEST_F(PrintSystemTest, FileWithoutASuffix_StaysWithoutOne)
{
    Printers().SetChosen(PrinterToFile(Home.Path(u"map")));
    PrintPage();
    PrintPage();
    EXPECT_EQ(Files(), QStringList({u"map"_s, u"map-2"_s}));
}

TEST_F(PrintSystemTest, AnotherFileChosen_BeginsWithItsOwnName)
{
    Printers().SetChosen(PrinterToFile(Home.Path(u"one.pdf")));
    PrintPage();
    Printers().SetChosen(PrinterToFile(Home.Path(u"two.pdf")));
    PrintPage();
    EXPECT_EQ(Files(), QStringList({u"one.pdf"_s, u"two.pdf"_s}));
}

TEST_F(PrintSystemTest, LandscapeJob_LiesOnItsSide_AndTheNextStandsUpright)
{
    Printers().SetChosen(PrinterToFile(Home.Path(u"map.pdf")));
    PrintPage(true);
    PrintPage(false);
    const QByteArray onItsSide = PaperOf(u"map.pdf");
    const QByteArray upright = PaperOf(u"map-2.pdf");
    EXPECT_TRUE(onItsSide.startsWith("/MediaBox [0 0 842")) << onItsSide.toStdString();
    EXPECT_TRUE(upright.startsWith("/MediaBox [0 0 595")) << upright.toStdString();
}

TEST_F(PrintSystemTest, PaperChosen_IsThatOfTheJob)
{
    auto printer = PrinterToFile(Home.Path(u"map.pdf"));
    printer->setPageSize(QPageSize(QPageSize::A5));
    printer->setPageOrientation(QPageLayout::Landscape);
    Printers().SetChosen(std::move(printer));
    PrintPage();
    EXPECT_TRUE(PaperOf(u"map.pdf").startsWith("/MediaBox [0 0 595")) << PaperOf(u"map.pdf").toStdString();
}

TEST_F(PrintSystemTest, JobsAreAsFineAsThePrinterCan)
{
    Printers().SetChosen(PrinterToFile(Home.Path(u"map.pdf")));
    EXPECT_GE(Printers().NewJob(false)->logicalDpiX(), 600);
}

TEST_F(PrintSystemTest, FileNamedInTheDialog_TakesTheJobs)
{
    ChooseFile(Home.Path(u"chosen.pdf"));
    PrintPage();
    EXPECT_EQ(Files(), QStringList{u"chosen.pdf"_s});
}

TEST_F(PrintSystemTest, DialogCancelled_LeavesWhatWasChosenBefore)
{
    ChooseFile(Home.Path(u"chosen.pdf"));
    PrintPage();
    Cancel();
    PrintPage();
    EXPECT_EQ(Files(), QStringList({u"chosen-2.pdf"_s, u"chosen.pdf"_s}));
}

TEST_F(PrintSystemTest, DialogCancelledAtFirst_ChoosesNothing)
{
    QtPrintSystem printers(NoPrinter);
    const NextDialog next([](QDialog& dialog) { PressKey(dialog, Qt::Key_Escape); });
    printers.Choose(nullptr);
    EXPECT_EQ(RefusalOf([&] { PrintPageOn(printers); }), ErrorNumber::PrinterError);
}

TEST_F(PrintSystemTest, TheDialogStandsAboveTheActiveWindow)
{
    struct Behind : Form {
        Behind() : Form(u"Behind", u"Behind", {6000, 3000}) {}
    };
    Window<Behind> behind(System());
    behind->Show();
    Activate(*behind);
    const QWidget* parent = nullptr;
    const NextDialog next([&parent](QDialog& dialog) {
        EXPECT_NE(qobject_cast<QPrintDialog*>(&dialog), nullptr);
        parent = dialog.parentWidget();
        dialog.reject();
    });
    Machine().Bundle().Prompts.PickPrinter();
    EXPECT_EQ(parent, &ViewOf(*behind));
}

TEST_F(PrintSystemTest, AfterTheEndNoPrinterIsAskedFor)
{
    // Within the program's loop, since an end outside of it would end the next one.
    QTimer::singleShot(0, qApp, [this] { System().Run([this] { Machine().Loop().End(0); }); });
    QApplication::exec();
    EXPECT_THROW(Machine().Bundle().Prompts.PickPrinter(), ProgramEnded);
}
} // namespace

} // namespace lineforge
