#include "FuzzHome.h"
#include "gedcom/report/GedcomConversion.h"
#include "gedcom/report/LiteralMachine.h"

#include <QFile>
#include <QTemporaryDir>

namespace lineforge::fuzz
{
namespace
{

using namespace Qt::StringLiterals;

// Every run comes to the children that the literal machine is given before it has yielded so often.
constexpr int manyChildren = 10;
constexpr int manyYields = 5000;

// Ends the program in the middle of a run that takes too long.
class ImpatientLoop : public EventLoop
{
public:
    void DoEvents() override
    {
        if (++Yields > manyYields)
            throw ProgramEnded();
    }
    void PaintWindows() override {}
    [[noreturn]] void End(int) override { throw ProgramEnded(); }

    int Yields = 0;
};

class Converter
{
public:
    Converter() { user_.Picked = path_; }

    void Run(const QByteArray& source)
    {
        Write(source);
        loop_.Yields = 0;
        p_.Gedcom = GedcomState();
        p_.Scratch.ScanState = 0;
        bool isEnded = true;
        try {
            ConvertGedcom(p_);
        } catch (const ProgramEnded&) {
            isEnded = false;
        }
        Require(!p_.Gedcom.Report && !p_.Gedcom.Source);
        Compare(source, isEnded);
    }

private:
    void Write(const QByteArray& source)
    {
        QFile file(path_);
        Require(file.open(QFile::WriteOnly));
        file.write(source);
    }

    void Compare(const QByteArray& source, bool isEnded)
    {
        LiteralMachine literal(source);
        const bool isWhole = literal.Convert(manyChildren);
        QByteArray report = p_.Files.Read(directory_.filePath(u"fuzz.txt"_s));
        const QByteArray heading = "   Data extracted from File " + path_.toUtf8() + "\r\n\r\r\n";
        Require(report.startsWith(heading));
        report.remove(0, heading.size());
        Require(report.startsWith(literal.Report));
        if (isWhole)
            Require(isEnded && report == literal.Report && p_.Scratch.ScanState == literal.ScanState &&
                    p_.Gedcom.sGedValue == literal.Value && p_.Gedcom.sGedTag == literal.Tag);
    }

    QTemporaryDir directory_;
    QString path_ = directory_.filePath(u"fuzz.ged"_s);
    Windows windows_;
    User user_;
    ImpatientLoop loop_;
    Screen screen_{12000, 9000};
    bench::NoClipboard clipboard_;
    bench::NoPrinter printer_;
    bench::NoProcesses processes_;
    Program p_{Platform{windows_, user_, loop_, screen_, clipboard_, printer_, processes_, directory_.path() + u'/'}};
};

} // namespace
} // namespace lineforge::fuzz

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    using namespace lineforge::fuzz;

    static Converter converter;
    converter.Run(BytesOf(data, size));
    return 0;
}
