#include "gedcom/report/ReportLines.h"

#include "forms/Form11.h"
#include "platform/files/TextFile.h"
#include "program/ui/ProgressPanel.h"

#include <array>

namespace lineforge
{

namespace
{
// How a line reads in either place; a star is its content. Null: the line isn't there.
struct LineForms {
    const char* File;
    const char* Panel;
};

// In the order of `ReportLine`.
// KEPT(GedcomReportTest.AFamily_IsWrittenByteForByte): the place of a marriage is one blank further left than that of a
// birth.
// Mended, the line would differ from that of every report written so far.
constexpr std::array lineForms{
    LineForms{"", nullptr},
    LineForms{"   Data extracted from File *\r\n\r", nullptr},
    LineForms{nullptr, "   Data extracted from File *"},
    LineForms{nullptr, "   Data placed in directory *"},
    LineForms{"   ---------------------------------------------------\r\n\r",
              "   ------------------------------------------------------------"},
    LineForms{"   HEAD OF FAMILY (*)\r\r\n\r", "\r   HEAD OF FAMILY (*)"},
    LineForms{"             Name:     *", "             Name:     *"},
    LineForms{"          Gender:     Male\r", "          Gender:     Male"},
    LineForms{"          Gender:     Female\r", "          Gender:     Female"},
    LineForms{"     Birth Date:    *", "     Birth Date:    *"},
    LineForms{"            Place:    *", "            Place:    *"},
    LineForms{"   Christening:    *", "   Christening:    *"},
    LineForms{"            Place:    *", "            Place:    *"},
    LineForms{"\r", nullptr},
    LineForms{"    SPOUSE ", "\r    SPOUSE "},
    LineForms{"   MARRIAGE", "\r   MARRIAGE"},
    LineForms{"            Date:    *\r", "            Date:    *"},
    LineForms{"           Place:    *\r", "           Place:    *"},
    LineForms{"\r\n    CHILDREN", "\r    CHILDREN"},
    LineForms{nullptr, "\r-----------Conversion Complete-----------"},
};
static_assert(lineForms.size() == static_cast<std::size_t>(ReportLine::Complete) + 1);

QByteArray Filled(const char* form, QByteArrayView content)
{
    QByteArray line(form);
    if (const qsizetype star = line.indexOf('*'); star >= 0)
        line.replace(star, 1, content);
    return line;
}
} // namespace

void PutLine(const GedReport& report, ReportLine line, QByteArrayView content)
{
    const LineForms& forms = lineForms[static_cast<std::size_t>(line)];
    if (forms.File) {
        if (!report.State.Report)
            throw RuntimeError(ErrorNumber::BadFileNumber);
        report.State.Report->ByteLine(Filled(forms.File, content));
    }
    // A window that the user has closed meanwhile stays closed.
    if (forms.Panel && report.Form11.IsLoaded())
        report.Form11->Picture1.Print(DecodeText(Filled(forms.Panel, content)));
}

// What is done meanwhile uses the state word as well, on which the next seek decides where it stops.
void ConvertStep(const GedReport& report)
{
    const Integer16 scanState = report.Scratch.ScanState;
    if (report.Form11.IsLoaded())
        StepPanel(report.Loop, report.Form11->Picture1, report.Form11->VScroll1);
    else
        report.Loop.DoEvents();
    report.Scratch.ScanState = scanState;
}

} // namespace lineforge
