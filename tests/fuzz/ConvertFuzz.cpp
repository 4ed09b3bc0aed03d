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

// What a family whose children never end is followed to.
constexpr int manyChildren = 2;

// A run has put these lines before it has yielded so often: it yields once or twice after each, and after a birth that
// puts none.
int YieldsUpTo(const QByteArray& report)
{
    constexpr int yieldsALine = 3;
    constexpr int yieldsAround = 10;
    return yieldsALine * static_cast<int>(report.count("\r\n")) + yieldsAround;
}

// Ends the program in the middle of a run that takes too long.
class ImpatientLoop : public EventLoop
{
public:
    void DoEvents() override
    {
        if (--Patience < 0)
            throw ProgramEnded();
    }
    void PaintWindows() override {}
    [[noreturn]] void End(int) override { throw ProgramEnded(); }

    int Patience = 0; // yields that are left
};

class Converter
{
public:
    Converter() { user_.Picked = path_; }

    void Run(const QByteArray& source)
    {
        LiteralMachine literal(source);
        const bool isWhole = literal.Convert(manyChildren);
        Write(source);
        loop_.Patience = YieldsUpTo(literal.Report);
        p_.Gedcom = GedcomState();
        p_.Scratch.ScanState = 0;
        bool isEnded = true;
        try {
            ConvertGedcom(p_);
        } catch (const ProgramEnded&) {
            isEnded = false;
        }
        Require(!p_.Gedcom.Report && !p_.Gedcom.Source);
        Require(StartsAs(literal));
        if (isWhole)
            Require(isEnded && EndsAs(literal));
    }

private:
    void Write(const QByteArray& source)
    {
        QFile file(path_);
        Require(file.open(QFile::WriteOnly));
        file.write(source);
    }

    QByteArray Report() const
    {
        const QByteArray report = p_.Files.Read(directory_.filePath(u"fuzz.txt"_s));
        const QByteArray heading = "   Data extracted from File " + path_.toUtf8() + "\r\n\r\r\n";
        Require(report.startsWith(heading));
        return report.sliced(heading.size());
    }

    bool StartsAs(const LiteralMachine& literal) const { return Report().startsWith(literal.Report); }

    bool EndsAs(const LiteralMachine& literal) const
    {
        return Report() == literal.Report && p_.Scratch.ScanState == literal.ScanState &&
               p_.Gedcom.sGedValue == literal.Value && p_.Gedcom.sGedTag == literal.Tag;
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
