#include "editor/EditorWindow.h"
#include "gui/ProgramWindowTest.h"
#include "qt/Dialogs.h"
#include "shell/handlers/InstallHandlers.h"

#include <QAction>
#include <QCheckBox>
#include <QComboBox>
#include <QLineEdit>
#include <QPrintDialog>
#include <QPrinterInfo>
#include <QProcess>
#include <QPushButton>
#include <QRadioButton>
#include <QRegularExpression>
#include <QScrollArea>
#include <QSpinBox>
#include <QTest>

#include <cups/cups.h>

namespace lineforge
{
namespace
{
using namespace Qt::StringLiterals;

QByteArray OutputOf(const QString& program, const QStringList& arguments)
{
    QProcess process;
    process.start(program, arguments);
    if (!process.waitForFinished() || process.exitStatus() != QProcess::NormalExit || process.exitCode() != 0)
        throw std::runtime_error(program.toStdString() + ": " + process.readAllStandardError().toStdString());
    return process.readAllStandardOutput();
}

// What the server was told of it; empty when nothing.
QByteArray OptionOfLastJob(const char* queue, const char* option)
{
    cups_job_t* jobs = nullptr;
    const int count = cupsGetJobs2(CUPS_HTTP_DEFAULT, &jobs, queue, 0, CUPS_WHICHJOBS_ALL);
    if (count < 1)
        throw std::runtime_error("the server knows of no job");
    const QByteArray job = "ipp://localhost/jobs/" + QByteArray::number(jobs[count - 1].id);
    cupsFreeJobs(count, jobs);
    ipp_t* const request = ippNewRequest(IPP_OP_GET_JOB_ATTRIBUTES);
    ippAddString(request, IPP_TAG_OPERATION, IPP_TAG_URI, "job-uri", nullptr, job.constData());
    ipp_t* const answer = cupsDoRequest(CUPS_HTTP_DEFAULT, request, "/jobs");
    char value[80] = "";
    if (ipp_attribute_t* found = ippFindAttribute(answer, option, IPP_TAG_ZERO))
        ippAttributeString(found, value, sizeof value);
    ippDelete(answer);
    return value;
}

// The whole program, and a real print server with queues whose paper are files.
class QueueTest : public WindowTest
{
protected:
    QueueTest()
    {
        BranchBuilder(Home, u'A')
            .Row({{u"File", u"A001"}, {u"Forename", u"John"}, {u"Surname", u"Smith"}, {u"BirthDate", u"3 May 1871"}})
            .Row({{u"File", u"A002"}, {u"Forename", u"Mary"}, {u"Surname", u"Smith"}})
            .Row({{u"File", u"A003"}, {u"Forename", u"Anne"}, {u"Surname", u"Smith"}})
            .Row({{u"File", u"A004"}, {u"Forename", u"Rose"}, {u"Surname", u"Smith"}})
            .Row({{u"File", u"A005"}, {u"Forename", u"Hugh"}, {u"Surname", u"Smith"}})
            .Boxes(u"1200,600,255,A001,John,2400,600,255,A002,Mary,")
            .Picture(u"A001", Qt::red)
            .Build();
        WriteAliasList(Home, {{u"Smiths", u"LfgDat_A"}});
        for (const QStringView queue : {u"study", u"attic"})
            OutputOf(u"lpadmin"_s,
                     {u"-p"_s, queue.toString(), u"-E"_s, u"-v"_s, u"file:"_s + Paper(queue), u"-P"_s, driver});
        InstallHandlers(P);
        StartProgram(P);
        P.Form1->Open.Click();
        P.Form8->List1.SetText(u"Smiths"_s);
        P.Form8->Command1.Click();
        PassEventLoop(); // which the list of branches goes with, before a dialog could stand above it
        Activate(*P.Form1);
    }
    ~QueueTest() override
    {
        System().CloseAll();
        for (const QStringView queue : {u"study", u"attic"})
            QProcess::execute(u"lpadmin"_s, {u"-x"_s, queue.toString()});
    }

    QString Paper(QStringView queue) const { return Home.Path() + u'/' + queue + u".pdf"; }
    QString TextOn(QStringView queue) const
    {
        return QString::fromUtf8(OutputOf(u"pdftotext"_s, {u"-layout"_s, Paper(queue), u"-"_s}));
    }
    // "595 x 842", rounded, of each page.
    QStringList SizesOn(QStringView queue) const
    {
        const QString told = QString::fromUtf8(OutputOf(u"pdfinfo"_s, {u"-l"_s, u"-1"_s, Paper(queue)}));
        static const QRegularExpression size(u"size: +([0-9.]+) x ([0-9.]+)"_s);
        QStringList sizes;
        for (const auto& match : size.globalMatch(told))
            sizes += u"%1 x %2"_s.arg(qRound(match.captured(1).toDouble())).arg(qRound(match.captured(2).toDouble()));
        return sizes;
    }
    // Until the server has put the job on its paper.
    static bool IsPrinted(QStringView queue)
    {
        return QTest::qWaitFor(
            [queue] {
                return OutputOf(u"lpstat"_s, {u"-W"_s, u"not-completed"_s, u"-o"_s, queue.toString()}).isEmpty();
            },
            patience);
    }

    void Choose(QStringView queue, QPageSize::PageSizeId size)
    {
        auto printer = std::make_unique<QPrinter>(QPrinter::HighResolution);
        printer->setPrinterName(queue.toString());
        printer->setPageSize(QPageSize(size));
        Machine().Printers().SetChosen(std::move(printer));
    }

    // Sets the printer up in its dialog; `set` leaves it to be accepted.
    void SetUpPrinter(const std::function<void(QPrintDialog& dialog)>& set)
    {
        const NextDialog next([&set](QDialog& dialog) {
            set(dynamic_cast<QPrintDialog&>(dialog));
            dialog.accept();
        });
        Machine().Bundle().Prompts.PickPrinter();
    }

    TemporaryHome Home;
    ScriptedPrompts Prompts;
    const Platform Real = Machine().Bundle();
    const Platform Bundle{Real.Windows,   Prompts,          Real.Loop,      Real.Screen,
                          Real.Clipboard, Real.PrintSystem, Real.Processes, Home.Path() + PathSeparator};
    Program P{Bundle};

    // The text of what all records make up.
    QString PrintDatabaseOn(QStringView queue)
    {
        Prompts.Expect(u"DataBase Print"_s, u"Ready to Print Complete DataBase ?"_s, Buttons::QuestionOkCancel,
                       Answer::Ok);
        P.Form3->mnuPrinDatabase.Click();
        return IsPrinted(queue) ? TextOn(queue) : QString();
    }

    static constexpr int patience = 40000;
    const QString driver = QStringLiteral(LINEFORGE_PRINTER_DRIVER);
};

class PaperTest : public QueueTest, public testing::WithParamInterface<QPageSize::PageSizeId>
{
protected:
    // As it comes out of the printer, whichever way is up on it.
    static QString Size()
    {
        const QSize points = QPageSize::sizePoints(GetParam());
        return u"%1 x %2"_s.arg(points.width()).arg(points.height());
    }
    // The room that a word takes on the paper.
    static QSizeF RoomOf(const QString& word, const QString& paper)
    {
        const QString told = QString::fromUtf8(OutputOf(u"pdftotext"_s, {u"-bbox"_s, paper, u"-"_s}));
        static const QString number = u"=\"([0-9.]+)\" ?"_s;
        const QRegularExpression room(u"xMin%1yMin%1xMax%1yMax%1>%2<"_s.arg(number, word));
        const QRegularExpressionMatch found = room.match(told);
        const auto edge = [&found](int index) { return found.captured(index).toDouble(); };
        return {edge(3) - edge(1), edge(4) - edge(2)};
    }
};
INSTANTIATE_TEST_SUITE_P(Sizes, PaperTest, testing::Values(QPageSize::A4, QPageSize::Letter),
                         [](const auto& size) { return QPageSize::key(size.param).toStdString(); });

TEST_P(PaperTest, TheMap_LiesAcross)
{
    Choose(u"study", GetParam());
    P.Form1->mnuPrint.Click();
    ASSERT_TRUE(IsPrinted(u"study"));
    EXPECT_EQ(SizesOn(u"study"), QStringList{Size()});
    const QSizeF room = RoomOf(u"A001"_s, Paper(u"study"));
    EXPECT_GT(room.height(), room.width());
    for (const QString& words : {u"A001"_s, u"John"_s, u"B :1871"_s, u"A002"_s, u"Mary"_s})
        EXPECT_TRUE(TextOn(u"study").contains(words)) << words.toStdString();
}

TEST_P(PaperTest, ARecord_StandsUpright)
{
    Choose(u"study", GetParam());
    P.Form1->mnuPrintRecord.Click();
    ASSERT_TRUE(IsPrinted(u"study"));
    EXPECT_EQ(SizesOn(u"study"), QStringList{Size()});
    const QSizeF room = RoomOf(u"1871"_s, Paper(u"study"));
    EXPECT_GT(room.width(), room.height());
    EXPECT_TRUE(TextOn(u"study").contains(u"3 May 1871"));
}

TEST_F(QueueTest, PageSetAndQueueOfTheDialog_AreThoseOfTheJob)
{
    SetUpPrinter([](QPrintDialog& dialog) {
        auto& queues = In<QComboBox>(dialog, u"printers"_s);
        queues.setCurrentIndex(queues.findText(u"attic"_s));
        auto& pages = In<QComboBox>(dialog, u"pageSetCombo"_s);
        pages.setCurrentIndex(pages.findText(u"Odd Pages"_s));
    });
    const QString text = PrintDatabaseOn(u"attic");
    EXPECT_EQ(text.count(u'\f'), 2);
    EXPECT_FALSE(text.contains(u"Anne"));
    EXPECT_TRUE(text.contains(u"John"));
}

TEST_F(QueueTest, PagesNamedInTheDialog_AreThoseOfTheJob)
{
    Choose(u"study", QPageSize::A4);
    SetUpPrinter([](QPrintDialog& dialog) {
        In<QRadioButton>(dialog, u"printRange"_s).setChecked(true);
        In<QSpinBox>(dialog, u"from"_s).setValue(2);
        In<QSpinBox>(dialog, u"to"_s).setValue(3);
    });
    const QString text = PrintDatabaseOn(u"study");
    EXPECT_EQ(text.count(u'\f'), 2);
    EXPECT_FALSE(text.contains(u"John"));
    for (const QStringView wanted : {u"Anne", u"Hugh"})
        EXPECT_TRUE(text.contains(wanted)) << wanted.toUtf8().toStdString();
}

class PageListTest : public QueueTest
{
protected:
    PageListTest() { Choose(u"study", QPageSize::A4); }

    static void List(QPrintDialog& dialog, const QString& pages)
    {
        In<QRadioButton>(dialog, u"pagesRadioButton"_s).setChecked(true);
        In<QLineEdit>(dialog, u"pagesLineEdit"_s).setText(pages);
    }
    // What the dialog lists when it is opened again; it is then accepted as it stands.
    QString ListedAgain()
    {
        QString pages;
        SetUpPrinter([&pages](QPrintDialog& dialog) {
            EXPECT_TRUE(In<QRadioButton>(dialog, u"pagesRadioButton"_s).isChecked());
            EXPECT_TRUE(In<QLineEdit>(dialog, u"pagesLineEdit"_s).isEnabled());
            pages = In<QLineEdit>(dialog, u"pagesLineEdit"_s).text();
        });
        return pages;
    }
    // The first record of each page that the server has put on its paper.
    QStringList RecordsOnPaper()
    {
        QStringList records;
        for (const QString& page : PrintDatabaseOn(u"study").split(u'\f', Qt::SkipEmptyParts))
            for (const QString& name : {u"John"_s, u"Anne"_s, u"Hugh"_s})
                if (page.contains(name))
                    records += name;
        return records;
    }
};

TEST_F(PageListTest, PagesListed_AreThoseOfTheJob)
{
    const std::pair<QString, QStringList> lists[]{
        {u"2-3"_s, {u"Anne"_s, u"Hugh"_s}},
        {u"1,3"_s, {u"John"_s, u"Hugh"_s}},
        {u"3,1-2"_s, {u"John"_s, u"Anne"_s, u"Hugh"_s}},
        {u"2"_s, {u"Anne"_s}},
    };
    for (const auto& [pages, records] : lists) {
        SetUpPrinter([&pages](QPrintDialog& dialog) { List(dialog, pages); });
        EXPECT_EQ(RecordsOnPaper(), records) << pages.toStdString();
    }
}

TEST_F(PageListTest, ShownAgainAsItWas_AndHoldsOn)
{
    for (const QString& pages : {u"1, 3"_s, u"2-3"_s, u"2"_s}) {
        SetUpPrinter([&pages](QPrintDialog& dialog) { List(dialog, pages); });
        EXPECT_EQ(ListedAgain(), pages);
        EXPECT_EQ(ListedAgain(), pages);
    }
    EXPECT_EQ(RecordsOnPaper(), QStringList{u"Anne"_s});
}

TEST_F(PageListTest, EndsWithAllPages)
{
    SetUpPrinter([](QPrintDialog& dialog) { List(dialog, u"1,3"_s); });
    SetUpPrinter([](QPrintDialog& dialog) { In<QRadioButton>(dialog, u"printAll"_s).setChecked(true); });
    SetUpPrinter([](QPrintDialog& dialog) { EXPECT_TRUE(In<QRadioButton>(dialog, u"printAll"_s).isChecked()); });
    EXPECT_EQ(RecordsOnPaper(), QStringList({u"John"_s, u"Anne"_s, u"Hugh"_s}));
}

TEST_F(PageListTest, EndsWithPagesFromOneToAnother)
{
    SetUpPrinter([](QPrintDialog& dialog) { List(dialog, u"1,3"_s); });
    SetUpPrinter([](QPrintDialog& dialog) {
        In<QRadioButton>(dialog, u"printRange"_s).setChecked(true);
        In<QSpinBox>(dialog, u"from"_s).setValue(1);
        In<QSpinBox>(dialog, u"to"_s).setValue(2);
    });
    SetUpPrinter([](QPrintDialog& dialog) {
        EXPECT_TRUE(In<QRadioButton>(dialog, u"printRange"_s).isChecked());
        EXPECT_EQ(In<QSpinBox>(dialog, u"to"_s).value(), 2);
    });
    EXPECT_EQ(RecordsOnPaper(), QStringList({u"John"_s, u"Anne"_s}));
}

// The server would count what is left of a job anew.
TEST_F(PageListTest, IsNoMatterOfTheServers)
{
    SetUpPrinter([](QPrintDialog& dialog) {
        List(dialog, u"2-3"_s);
        const NextDialog next([](QDialog& properties) { properties.accept(); });
        In<QPushButton>(dialog, u"properties"_s).click();
    });
    EXPECT_EQ(RecordsOnPaper(), QStringList({u"Anne"_s, u"Hugh"_s}));
    EXPECT_EQ(OptionOfLastJob("study", "page-ranges"), "");
}

TEST_F(PageListTest, WithNoPageOfTheJob_IsTold)
{
    SetUpPrinter([](QPrintDialog& dialog) { List(dialog, u"2,4-5"_s); });
    Prompts.Expect(u"Error"_s,
                   u"Error # 482 was generated by Lineforge\rPrinter error\n"
                   "No page of this print is in the page range of Printer Setup: 2,4-5"_s,
                   Buttons::Plain, Answer::Ok);
    P.Form1->mnuPrintRecord.Click();
}

TEST_F(QueueTest, ReverseOrderOfTheDialog_IsThatOfTheJob)
{
    Choose(u"study", QPageSize::A4);
    SetUpPrinter([](QPrintDialog& dialog) { In<QCheckBox>(dialog, u"reverse"_s).setChecked(true); });
    const QString text = PrintDatabaseOn(u"study");
    EXPECT_EQ(text.count(u'\f'), 3);
    EXPECT_LT(text.indexOf(u"Hugh"), text.indexOf(u"Anne"));
    EXPECT_LT(text.indexOf(u"Anne"), text.indexOf(u"John"));
}

TEST_F(QueueTest, ReverseOrder_IsShownWhenTheDialogIsOpenedAgain_AndEndsThere)
{
    Choose(u"study", QPageSize::A4);
    SetUpPrinter([](QPrintDialog& dialog) { In<QCheckBox>(dialog, u"reverse"_s).setChecked(true); });
    SetUpPrinter([](QPrintDialog& dialog) {
        EXPECT_TRUE(In<QCheckBox>(dialog, u"reverse"_s).isChecked());
        In<QCheckBox>(dialog, u"reverse"_s).setChecked(false);
    });
    const QString text = PrintDatabaseOn(u"study");
    EXPECT_LT(text.indexOf(u"John"), text.indexOf(u"Hugh"));
}

TEST_F(QueueTest, ReverseOrderOfOddPages_IsTheirOrder)
{
    Choose(u"study", QPageSize::A4);
    SetUpPrinter([](QPrintDialog& dialog) {
        In<QCheckBox>(dialog, u"reverse"_s).setChecked(true);
        auto& pages = In<QComboBox>(dialog, u"pageSetCombo"_s);
        pages.setCurrentIndex(pages.findText(u"Odd Pages"_s));
    });
    const QString text = PrintDatabaseOn(u"study");
    EXPECT_EQ(text.count(u'\f'), 2);
    EXPECT_FALSE(text.contains(u"Anne"));
    EXPECT_LT(text.indexOf(u"Hugh"), text.indexOf(u"John"));
}

TEST_F(QueueTest, PropertiesOfTheQueue_AreThoseOfTheJob)
{
    Choose(u"study", QPageSize::A4);
    SetUpPrinter([](QPrintDialog& dialog) {
        const NextDialog next([](QDialog& properties) {
            auto& pages = In<QComboBox>(properties, u"pagesPerSheetCombo"_s);
            pages.setCurrentIndex(pages.findText(u"2"_s, Qt::MatchStartsWith));
            auto& kind = *In<QScrollArea>(properties, u"scrollArea"_s).findChild<QComboBox*>();
            kind.setCurrentIndex(kind.findText(u"Photographic"_s));
            properties.accept();
        });
        In<QPushButton>(dialog, u"properties"_s).click();
    });
    EXPECT_EQ(PrintDatabaseOn(u"study").count(u'\f'), 2);
    EXPECT_EQ(OptionOfLastJob("study", "MediaType"), "Photo");
}

// What a dialog that is opened again is left as.
class QueueAgainTest : public QueueTest
{
protected:
    QueueAgainTest() { Choose(u"study", QPageSize::A4); }

    // The window of the queue's properties, with two pages a sheet and photographic paper where `sets`, else as shown.
    static void MeetProperties(QPrintDialog& dialog, bool sets)
    {
        const NextDialog next([sets](QDialog& properties) {
            auto& pages = In<QComboBox>(properties, u"pagesPerSheetCombo"_s);
            auto& kind = *In<QScrollArea>(properties, u"scrollArea"_s).findChild<QComboBox*>();
            if (sets) {
                pages.setCurrentIndex(pages.findText(u"2"_s, Qt::MatchStartsWith));
                kind.setCurrentIndex(kind.findText(u"Photographic"_s));
            }
            EXPECT_TRUE(pages.currentText().startsWith(u'2')) << pages.currentText().toStdString();
            EXPECT_EQ(kind.currentText(), u"Photographic"_s);
            properties.accept();
        });
        In<QPushButton>(dialog, u"properties"_s).click();
    }
    void ExpectPropertiesOnPaper()
    {
        EXPECT_EQ(PrintDatabaseOn(u"study").count(u'\f'), 2);
        EXPECT_EQ(OptionOfLastJob("study", "MediaType"), "Photo");
    }
};

TEST_F(QueueAgainTest, PropertiesThatAreNotOpened_StayWhatTheyWere)
{
    SetUpPrinter([](QPrintDialog& dialog) { MeetProperties(dialog, true); });
    SetUpPrinter([](QPrintDialog&) {});
    SetUpPrinter([](QPrintDialog&) {});
    ExpectPropertiesOnPaper();
}

TEST_F(QueueAgainTest, PropertiesAreShownAgain)
{
    SetUpPrinter([](QPrintDialog& dialog) { MeetProperties(dialog, true); });
    SetUpPrinter([](QPrintDialog&) {});
    SetUpPrinter([](QPrintDialog& dialog) { MeetProperties(dialog, false); });
    ExpectPropertiesOnPaper();
}

TEST_F(QueueAgainTest, PropertiesOfAnotherQueue_AreItsOwn)
{
    SetUpPrinter([](QPrintDialog& dialog) { MeetProperties(dialog, true); });
    SetUpPrinter([](QPrintDialog& dialog) {
        auto& queues = In<QComboBox>(dialog, u"printers"_s);
        queues.setCurrentIndex(queues.findText(u"attic"_s));
    });
    EXPECT_EQ(PrintDatabaseOn(u"attic").count(u'\f'), 3);
    EXPECT_NE(OptionOfLastJob("attic", "MediaType"), "Photo");
}

TEST_F(QueueAgainTest, PageSetIsShownAgain_AndCanBeGivenUp)
{
    SetUpPrinter([](QPrintDialog& dialog) {
        auto& pages = In<QComboBox>(dialog, u"pageSetCombo"_s);
        pages.setCurrentIndex(pages.findText(u"Odd Pages"_s));
    });
    SetUpPrinter([](QPrintDialog& dialog) {
        EXPECT_EQ(In<QComboBox>(dialog, u"pageSetCombo"_s).currentText(), u"Odd Pages"_s);
    });
    EXPECT_EQ(PrintDatabaseOn(u"study").count(u'\f'), 2);
    SetUpPrinter([](QPrintDialog& dialog) {
        auto& pages = In<QComboBox>(dialog, u"pageSetCombo"_s);
        pages.setCurrentIndex(pages.findText(u"All Pages"_s));
    });
    EXPECT_EQ(PrintDatabaseOn(u"study").count(u'\f'), 3);
}

TEST_F(QueueTest, OpenedAgain_TheDialogShowsTheChosenQueue_AndItsPaper)
{
    for (const QStringView queue : {u"attic", u"study"}) {
        Choose(queue, QPageSize::A5);
        SetUpPrinter([queue](QPrintDialog& dialog) {
            EXPECT_EQ(In<QComboBox>(dialog, u"printers"_s).currentText(), queue.toString());
            EXPECT_EQ(dialog.printer()->pageLayout().pageSize().id(), QPageSize::A5);
        });
    }
}

TEST_F(QueueTest, AQueueThatRejects_IsTold)
{
    Choose(u"study", QPageSize::A4);
    OutputOf(u"cupsreject"_s, {u"study"_s});
    Prompts.Expect(u"Error"_s, u"Error # 482 was generated by Lineforge\rPrinter error"_s, Buttons::Plain, Answer::Ok);
    P.Form1->mnuPrintRecord.Click();
}

TEST_F(QueueTest, AQueueThatIsGone_IsTold)
{
    Choose(u"study", QPageSize::A4);
    OutputOf(u"lpadmin"_s, {u"-x"_s, u"study"_s});
    Prompts.Expect(u"Error"_s, u"Error # 482 was generated by Lineforge\rPrinter error"_s, Buttons::Plain, Answer::Ok);
    P.Form1->mnuPrintRecord.Click();
}

// The text editor, which prints by itself.
class EditorQueueTest : public QueueTest
{
protected:
    void Print(const std::function<void(QPrintDialog& dialog)>& set)
    {
        Home.WriteFile(u"a.txt", "first\n" + QByteArray("\n").repeated(200) + "last\n");
        EditorWindow editor;
        editor.Open(Home.Path(u"a.txt"));
        const NextDialog next([&set](QDialog& dialog) {
            auto& queues = In<QComboBox>(dialog, u"printers"_s);
            queues.setCurrentIndex(queues.findText(u"study"_s));
            set(dynamic_cast<QPrintDialog&>(dialog));
            dialog.accept();
        });
        for (QAction* action : editor.findChildren<QAction*>())
            if (action->objectName() == u"Print")
                action->trigger();
    }
};

TEST_F(EditorQueueTest, ReverseOrderOfTheDialog_IsThatOfTheJob)
{
    Print([](QPrintDialog& dialog) { In<QCheckBox>(dialog, u"reverse"_s).setChecked(true); });
    ASSERT_TRUE(IsPrinted(u"study"));
    EXPECT_EQ(TextOn(u"study").count(u'\f'), 4);
    EXPECT_LT(TextOn(u"study").indexOf(u"last"), TextOn(u"study").indexOf(u"first"));
}

TEST_F(EditorQueueTest, PagesFromOneToAnother_AreThoseOfTheJob)
{
    Print([](QPrintDialog& dialog) {
        In<QRadioButton>(dialog, u"printRange"_s).setChecked(true);
        In<QSpinBox>(dialog, u"from"_s).setValue(2);
        In<QSpinBox>(dialog, u"to"_s).setValue(3);
    });
    ASSERT_TRUE(IsPrinted(u"study"));
    EXPECT_EQ(TextOn(u"study").count(u'\f'), 2);
    EXPECT_FALSE(TextOn(u"study").contains(u"first"));
}

TEST_F(EditorQueueTest, PagesCantBeListed)
{
    Print([](QPrintDialog& dialog) {
        EXPECT_FALSE(In<QRadioButton>(dialog, u"printRange"_s).isHidden());
        EXPECT_TRUE(In<QRadioButton>(dialog, u"pagesRadioButton"_s).isHidden());
        EXPECT_TRUE(In<QLineEdit>(dialog, u"pagesLineEdit"_s).isHidden());
    });
}

TEST_F(EditorQueueTest, AQueueThatRejects_IsTold)
{
    OutputOf(u"cupsreject"_s, {u"study"_s});
    std::optional<AnsweringUser> user; // who comes when the dialog goes
    Print([&user](QPrintDialog&) { user.emplace(); });
    EXPECT_EQ(user->Told(), QStringList{u"Lineforge Editor: The text couldn't be printed."_s});
}

} // namespace
} // namespace lineforge
