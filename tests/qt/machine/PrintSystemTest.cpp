#include "platform/base/RuntimeError.h"
#include "qt/Dialogs.h"
#include "qt/WindowTest.h"
#include "support/Refusal.h"
#include "support/TemporaryHome.h"

#include <QLineEdit>
#include <QPrintDialog>
#include <QPrinterInfo>
#include <QRadioButton>
#include <QSpinBox>
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

    // Meets the dialog of the printer's set-up; `meet` ends it.
    void SetUpPrinter(const std::function<void(QDialog& dialog)>& meet)
    {
        const NextDialog next(meet);
        Machine().Bundle().Prompts.PickPrinter();
    }

    // Sets the printer up as a user does who prints to that file.
    void ChooseFile(const QString& file)
    {
        SetUpPrinter([&file](QDialog& dialog) {
            In<QLineEdit>(dialog, u"filename"_s).setText(file);
            dialog.accept();
        });
    }

    void Cancel()
    {
        SetUpPrinter([](QDialog& dialog) { PressKey(dialog, Qt::Key_Escape); });
    }

    // A report of so many pages.
    void PrintPages(int pages)
    {
        Printer paper(Printers());
        for (int page = 1; page <= pages; ++page) {
            if (page > 1)
                paper.NewPage();
            paper.Print(u"page %1"_s.arg(page));
        }
        paper.EndDoc();
    }
    qsizetype PagesOf(QStringView file) { return Home.ReadFile(file).count("/Type /Page\n"); }

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
    ChooseFile(Home.Path(u"map.pdf"));
    EXPECT_GE(Printers().NewJob(false)->logicalDpiX(), 600);
}

TEST_F(PrintSystemTest, FileNamedInTheDialog_TakesTheJobs)
{
    ChooseFile(Home.Path(u"chosen.pdf"));
    PrintPage();
    EXPECT_EQ(Files(), QStringList{u"chosen.pdf"_s});
}

TEST_F(PrintSystemTest, TheDialog_AsksForPaperAndPages)
{
    SetUpPrinter([](QDialog& dialog) {
        const auto& asking = dynamic_cast<QPrintDialog&>(dialog);
        EXPECT_TRUE(asking.testOption(QAbstractPrintDialog::PrintShowPageSize));
        EXPECT_TRUE(asking.testOption(QAbstractPrintDialog::PrintPageRange));
        EXPECT_TRUE(asking.testOption(QAbstractPrintDialog::PrintCollateCopies));
        dialog.reject();
    });
}

TEST_F(PrintSystemTest, TheDialog_ProposesAFileOfTheProgramsName_OnAnyDesktop)
{
    SetUpPrinter([](QDialog& dialog) {
        EXPECT_TRUE(In<QLineEdit>(dialog, u"filename"_s).text().endsWith(u"/Lineforge.pdf"));
        dialog.reject();
    });
}

TEST_F(PrintSystemTest, PagesChosenInTheDialog_AreThoseThatArePrinted_UntilAllAreChosenAgain)
{
    SetUpPrinter([this](QDialog& dialog) {
        In<QLineEdit>(dialog, u"filename"_s).setText(Home.Path(u"pages.pdf"));
        In<QRadioButton>(dialog, u"printRange"_s).setChecked(true);
        In<QSpinBox>(dialog, u"from"_s).setValue(2);
        In<QSpinBox>(dialog, u"to"_s).setValue(3);
        dialog.accept();
    });
    PrintPages(4);
    EXPECT_EQ(PagesOf(u"pages.pdf"), 2);

    SetUpPrinter([this](QDialog& dialog) {
        EXPECT_TRUE(In<QRadioButton>(dialog, u"printRange"_s).isChecked());
        EXPECT_EQ(In<QSpinBox>(dialog, u"from"_s).value(), 2);
        In<QLineEdit>(dialog, u"filename"_s).setText(Home.Path(u"all.pdf"));
        In<QRadioButton>(dialog, u"printAll"_s).setChecked(true);
        dialog.accept();
    });
    PrintPages(4);
    EXPECT_EQ(PagesOf(u"all.pdf"), 4);
}

TEST_F(PrintSystemTest, OpenedAgain_TheDialogShowsWhatWasChosen)
{
    auto printer = PrinterToFile(Home.Path(u"map.pdf"));
    printer->setPageSize(QPageSize(QPageSize::Letter));
    Printers().SetChosen(std::move(printer));
    PrintPage();
    SetUpPrinter([this](QDialog& dialog) {
        EXPECT_EQ(In<QLineEdit>(dialog, u"filename"_s).text(), Home.Path(u"map.pdf"));
        EXPECT_EQ(dynamic_cast<QPrintDialog&>(dialog).printer()->pageLayout().pageSize().id(), QPageSize::Letter);
        dialog.reject();
    });
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
