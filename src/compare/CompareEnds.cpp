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

// One of the two captions ends in a blank, here as below; so it is meant to be.
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
