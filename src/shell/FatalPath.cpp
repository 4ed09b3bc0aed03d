#include "shell/FatalPath.h"

#include "gedcom/GedcomConversion.h"
#include "shell/ErrorInWords.h"

namespace lineforge
{

using namespace Qt::StringLiterals;

namespace
{
void EndWithError(Program& p, const RuntimeError& error)
{
    p.Errors.Last = error;
    // What was written to them stays.
    p.Lineage.GedcomFile.reset();
    CloseConversionFiles(p);
    p.Prompts.MsgBox(u"Lineforge"_s, FatalText(error), Buttons::Error);
    p.Loop.End(1);
}
} // namespace

void RunHandler(Program& p, const Event& handler)
{
    try {
        try {
            Fire(handler);
        } catch (const RuntimeError& error) {
            EndWithError(p, error);
        }
    } catch (const ProgramEnded&) {
        // The handlers further out learn of the end when their own waiting returns.
    }
}

} // namespace lineforge
