#include "compare/CompareEnds.h"

#include "compare/SearchButton.h"
#include "compare/Sides.h"

namespace lineforge
{

using namespace Qt::StringLiterals;

namespace
{
void Tell(Prompts& prompts, const QString& title, const QString& text)
{
    prompts.MsgBox(title, text, Buttons::Information);
}
} // namespace

void EndAtCurrent(const Comparison& comparison)
{
    Tell(comparison.Prompts, u"Current Database End of File"_s, u"End of Current Database Records"_s);
    EmptyFields(*comparison.Form6);
    comparison.State.SearchEnded = 1;
}

void EndAtCompare(const Comparison& comparison)
{
    Tell(comparison.Prompts, u"Compare Database End of File"_s, u"End of Compare Database Records"_s);
    EmptyFields(*comparison.Form6);
    comparison.State.SearchEnded = 1;
}

// KEPT(WhereSameTest.AfterTheEnd_APressOnlySetsTheButton_UntilReset): one of the two captions ends in a blank.
// Mended, that caption would be a blank narrower.
// KEPT(FieldDifferenceTest.CursorBehindTheLastRecord_IsTold): so does one of those at the end of a search through the
// fields.
// Mended, that one would be a blank narrower, too.
void EndOfRecords(const Comparison& comparison)
{
    Tell(comparison.Prompts, u"Database End of File"_s, u"End of Database Records"_s);
    SetFieldCaptions(*comparison.Form6, u"End of Records search "_s, u"End of Records search"_s);
    EmptyFields(*comparison.Form6);
}

void EndOfFieldSearch(const Comparison& comparison)
{
    Tell(comparison.Prompts, u"Database End of File"_s, u"End of Database Records"_s);
    ShowSearchState(*comparison.Form6, SearchState::Ready);
    CaptionEndOfFieldSearch(*comparison.Form6);
    EmptyFields(*comparison.Form6);
    comparison.State.SearchEnded = 1;
}

void CaptionEndOfFieldSearch(forms::Form6& form)
{
    SetFieldCaptions(form, u"End of Records Field search "_s, u"End of Records Field search"_s);
}

} // namespace lineforge
