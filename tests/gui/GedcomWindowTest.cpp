#include "forms/Form11.h"
#include "forms/Form12.h"
#include "gui/ProgramWindowTest.h"
#include "qt/text/TextPanelView.h"
#include "qt/windows/WindowView.h"

#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QRadioButton>
#include <QScrollBar>
#include <QTest>
#include <QTimer>

#include <functional>

namespace lineforge
{
namespace
{
using namespace Qt::StringLiterals;

// A file made by the mouse on the real window.
class GedcomWindowTest : public ProgramWindowTest
{
protected:
    GedcomWindowTest()
    {
        BranchBuilder(Home, u'A')
            .Row({{u"File", u"A001"}, {u"FatherRec", u"A002"}, {u"MotherRec", u"A003"}})
            .Row({{u"File", u"A002"}})
            .Row({{u"File", u"A003"}})
            .Row({{u"File", u"A004"}, {u"FatherRec", u"A001"}, {u"MotherRec", u"A005"}})
            .Row({{u"File", u"A005"}})
            .Boxes(u"1200,600,255,A001,John,")
            .Picture(u"A001", Qt::red)
            .Build();
        WriteAliasList(Home, {{u"Smiths", u"LfgDat_A"}});
        OpenBranch(u"Smiths"_s);
        P.Form1->mnuExpGedcom.Click();
        ServeEvents();
        Activate(*P.Form12);
    }

    void Press(const QString& name)
    {
        QTest::mouseClick(&Find<QPushButton>(*P.Form12, name), Qt::LeftButton);
        ServeEvents();
    }
    TextPanelView& Panel() { return Find<TextPanelView>(*P.Form12, u"Picture1"_s); }
};

TEST_F(GedcomWindowTest, CreateFile_WritesIt_AndTheLastLineIsInView)
{
    QLineEdit& start = Find<QLineEdit>(*P.Form12, u"Text7"_s);
    start.selectAll();
    QTest::keyClicks(&start, u"A001"_s);

    Press(u"Command1"_s);

    EXPECT_TRUE(Home.ReadFile(u"LfgDat_A/Gedcom.tmp").endsWith("1 DESC 2\r\n1 ORDI N\r\n0 TRLR\r\n"));
    EXPECT_EQ(Panel().Lines().last(), u"0 TRLR");
    EXPECT_TRUE(Panel().rect().contains(Panel().PlaceOf({Panel().Lines().size() - 1, 0})));
    EXPECT_GT(P.Form12->VScroll1.Value.value(), 0);
}

TEST_F(GedcomWindowTest, ManyRuns_KeepTheLastLineInView)
{
    for (int run = 0; run < 3; ++run) {
        Press(u"Command1"_s);
        EXPECT_TRUE(Panel().rect().contains(Panel().PlaceOf({Panel().Lines().size() - 1, 0})));
    }
}

TEST_F(GedcomWindowTest, ResetAndCancel)
{
    Press(u"Command3"_s);
    EXPECT_EQ(Find<QLineEdit>(*P.Form12, u"Text7"_s).text(), QString());
    Press(u"Command2"_s);
    EXPECT_FALSE(ViewOf(*P.Form12).isVisible());
}

// A file converted on real windows, its report watched as it comes.
class ConversionWindowTest : public ProgramWindowTest
{
protected:
    ConversionWindowTest()
    {
        BranchBuilder(Home, u'A').Row({{u"File", u"A001"}}).Picture(u"A001", Qt::red).Build();
        WriteAliasList(Home, {{u"Smiths", u"LfgDat_A"}});
        OpenBranch(u"Smiths"_s);
    }

    // A couple, then notes, each line with that end. Where it is one character, the run ends by the overflow.
    QByteArray Source(int notes, const QByteArray& lineEnd)
    {
        QByteArray lines = "0 HEAD\n0 @I1@ INDI\n1 NAME John /Smith/\n2 GIVN John\n2 SURN Smith\n1 SEX M\n"
                           "0 @I2@ INDI\n1 NAME Mary /Jones/\n2 GIVN Mary\n2 SURN Jones\n1 SEX F\n"
                           "0 @F1@ FAM\n1 HUSB @I1@\n1 WIFE @I2@\n1 NOTE x\n";
        for (int note = 0; note < notes; ++note)
            lines += "2 CONT and so it went on, as he told it, for many a year\n";
        return QByteArray(lines + "0 TRLR\n").replace("\n", lineEnd);
    }

    void Convert(const QByteArray& source)
    {
        const QString path = Home.WriteFile(u"family.ged", source);
        Prompts.ExpectOpenFile(u"Select Import GedCom File", u"GedCom *.ged|*.ged|All Files|*.*|", path);
        Prompts.Expect(QString(path + u" Gedcom file selected."),
                       u"The selected Gedcom file will be re formatted and\nplaced in the above directory as a text "
                       u"file.",
                       Buttons::Information);
        P.Form1->mnuImpGedcom.Click();
        ServeEvents();
    }

    TextPanelView& Panel() { return Find<TextPanelView>(*P.Form11, u"Picture1"_s); }
    bool IsInView(qsizetype line) { return Panel().rect().contains(Panel().PlaceOf({line, 0})); }
};

TEST_F(ConversionWindowTest, ReportComesIntoAWindowOfItsOwn)
{
    Convert(Source(1, "\r\n"));

    EXPECT_TRUE(ViewOf(*P.Form11).isVisible());
    EXPECT_EQ(ViewOf(*P.Form11).windowTitle(), u"Ged File Conversion completed.");
    EXPECT_EQ(Panel().Lines().filter(u"HEAD OF FAMILY"_s).size(), 1);
    EXPECT_TRUE(IsInView(Panel().Lines().size() - 1));
    EXPECT_TRUE(Home.ReadFile(u"family.txt").contains("John"));
}

TEST_F(ConversionWindowTest, LongRunUntilTheOverflow_KeepsTheWindowAlive)
{
    constexpr int notes = 340; // 20 kB
    Convert(Source(notes, "\n"));

    EXPECT_EQ(P.Errors.Last->Number, ErrorNumber::Overflow);
    EXPECT_EQ(Panel().Lines().filter(u"HEAD OF FAMILY"_s).size(), 2);
    EXPECT_TRUE(IsInView(Panel().Lines().size() - 1));

    Activate(*P.Form11);
    QTest::keyClick(&Panel(), Qt::Key_Home, Qt::ControlModifier);
    EXPECT_TRUE(IsInView(0));
}

// A user who reads while the report comes.
class ReaderTest : public ConversionWindowTest
{
protected:
    static constexpr int Families = 12;

    // Couples alone: each fills a third of the window.
    static QByteArray Couples()
    {
        QByteArray people;
        QByteArray couples;
        for (int couple = 1; couple <= Families; ++couple) {
            const QByteArray number = QByteArray::number(couple);
            for (const char* sex : {"M", "F"})
                people += "0 @" + QByteArray(sex) + number + "@ INDI\r\n2 GIVN John\r\n2 SURN Smith\r\n1 SEX " + sex +
                          "\r\n1 NOTE 0\r\n";
            couples +=
                "0 @C" + number + "@ FAM\r\n1 HUSB @M" + number + "@\r\n1 WIFE @F" + number + "@\r\n1 NOTE 0\r\n";
        }
        return "0 HEAD\r\n" + people + couples + "0 TRLR\r\n";
    }

    // Runs `act` at the first yield of the run at which so many lines have come.
    void ConvertAnd(qsizetype lines, const std::function<void()>& act)
    {
        bool hasActed = false;
        QTimer user;
        QObject::connect(&user, &QTimer::timeout, &user, [&] {
            if (hasActed || !P.Form11.IsLoaded() || P.Form11->Picture1.Lines.size() < lines)
                return;
            hasActed = true;
            act();
        });
        user.start(0);
        Convert(Couples());
        EXPECT_TRUE(hasActed);
        EXPECT_GT(Panel().Lines().size(), lines + 50) << "the run has gone on";
    }
    void Type(Qt::Key key) { QTest::keyClick(&Panel(), key, Qt::ControlModifier); }
};

TEST_F(ReaderTest, WhoScrollsBack_IsNotPulledDown_AndComesToTheEndByHand)
{
    int place = 0;
    ConvertAnd(60, [&] {
        P.Form11->VScroll1.Value = 2000;
        QTest::keyClick(&Panel(), Qt::Key_PageUp);
        place = P.Form11->VScroll1.Value;
        EXPECT_TRUE(place > 0 && place < 2000) << place;
    });
    EXPECT_EQ(P.Form11->VScroll1.Value.value(), place);
    EXPECT_FALSE(IsInView(Panel().Lines().size() - 1));

    Type(Qt::Key_End);
    EXPECT_TRUE(IsInView(Panel().Lines().size() - 1));
}

TEST_F(ReaderTest, WhoGoesToTheBeginning_StaysThere)
{
    ConvertAnd(60, [&] { Type(Qt::Key_Home); });
    EXPECT_TRUE(IsInView(0));
}

TEST_F(ReaderTest, WhoIsBackAtTheEnd_SeesTheReportCome)
{
    ConvertAnd(60, [&] {
        Type(Qt::Key_Home);
        Type(Qt::Key_End);
    });
    EXPECT_TRUE(IsInView(Panel().Lines().size() - 1));
}

// At every magnification that a screen may ask for.
class GedcomLayoutTest : public WindowTest, public testing::WithParamInterface<int>
{
protected:
    GedcomLayoutTest()
    {
        constexpr double usualPoints = 8;
        QFont font = QApplication::font();
        font.setPixelSize(scale.FontPixels(usualPoints));
        QApplication::setFont(font);
    }

    const Scale scale{GetParam()};
    Handlers handlers;
};

INSTANTIATE_TEST_SUITE_P(TwipsAPixel, GedcomLayoutTest, testing::Values(3, 4, 5, 6, 8, 10, 12, 15));

TEST_P(GedcomLayoutTest, EverythingFitsIntoItsPlace)
{
    forms::Form12 form;
    WindowView window(form, scale, std::make_shared<Gate>(handlers));
    window.resize(scale.ToPixels(form.Client));

    for (const QPushButton* button : window.findChildren<QPushButton*>())
        EXPECT_LE(button->fontMetrics().horizontalAdvance(button->text()) + 8, button->width())
            << button->text().toStdString();
    for (const QRadioButton* option : window.findChildren<QRadioButton*>())
        EXPECT_LE(option->sizeHint().width(), option->width()) << option->text().toStdString();
    for (const QLineEdit* line : window.findChildren<QLineEdit*>())
        EXPECT_LT(line->fontMetrics().height(), line->height());
    for (const QLabel* label : window.findChildren<QLabel*>()) {
        const QRect needed = label->fontMetrics().boundingRect(QRect(0, 0, label->width(), 10'000),
                                                               Qt::AlignLeft | Qt::TextWordWrap, label->text());
        EXPECT_LE(needed.height(), label->height()) << label->text().toStdString();
    }
    for (const QGroupBox* frame : window.findChildren<QGroupBox*>()) {
        EXPECT_TRUE(QRect({}, scale.ToPixels(form.Client)).contains(frame->geometry()));
        for (const QWidget* widget : frame->findChildren<QWidget*>(Qt::FindDirectChildrenOnly))
            EXPECT_TRUE(frame->rect().contains(widget->geometry())) << widget->objectName().toStdString();
    }
    EXPECT_LE(window.findChild<QWidget*>(u"Picture1"_s)->geometry().right(), window.findChild<QScrollBar*>()->x());
}

} // namespace
} // namespace lineforge
