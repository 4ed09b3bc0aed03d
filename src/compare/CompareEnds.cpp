#include "compare/CompareEnds.h"

#include "compare/SearchButton.h"
#include "compare/Sides.h"

namespace lineforge
{

using namespace Qt::StringLiterals;

namespace
{
void Tell(Program& p, const QString& title, const QString& text)
{
    p.Prompts.MsgBox(title, text, Buttons::Information);
}
} // namespace

void EndAtCurrent(Program& p)
{
    Tell(p, u"Current Database End of File"_s, u"End of Current Database Records"_s);
    EmptyFields(p);
    p.Compare.SearchEnded = 1;
}

void EndAtCompare(Program& p)
{
    Tell(p, u"Compare Database End of File"_s, u"End of Compare Database Records"_s);
    EmptyFields(p);
    p.Compare.SearchEnded = 1;
}

// KEPT(WhereSameTest.AfterTheEnd_APressOnlySetsTheButton_UntilReset): one of the two captions ends in a blank.
// Mended, that caption would be a blank narrower.
// KEPT(FieldDifferenceTest.CursorBehindTheLastRecord_IsTold): so does one of those at the end of a search through the
// fields.
// Mended, that one would be a blank narrower, too.
void EndOfRecords(Program& p)
{
    Tell(p, u"Database End of File"_s, u"End of Database Records"_s);
    SetFieldCaptions(p, u"End of Records search "_s, u"End of Records search"_s);
    EmptyFields(p);
}

void EndOfFieldSearch(Program& p)
{
    Tell(p, u"Database End of File"_s, u"End of Database Records"_s);
    ShowSearchState(p, SearchState::Ready);
    CaptionEndOfFieldSearch(p);
    EmptyFields(p);
    p.Compare.SearchEnded = 1;
}

void CaptionEndOfFieldSearch(Program& p)
{
    SetFieldCaptions(p, u"End of Records Field search "_s, u"End of Records Field search"_s);
}

} // namespace lineforge
