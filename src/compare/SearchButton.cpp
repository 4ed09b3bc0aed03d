#include "compare/SearchButton.h"

#include "forms/Form6.h"

namespace lineforge
{

namespace
{
Colour ColourOf(SearchState state)
{
    switch (state) {
    case SearchState::Busy:
        return Rgb(220, 0, 0);
    case SearchState::Ready:
        return Rgb(0, 220, 0);
    case SearchState::Found:
        return Rgb(0, 200, 0);
    case SearchState::ByHand:
        return Rgb(200, 0, 0);
    }
    return {};
}
} // namespace

void ShowSearchState(forms::Form6& form, SearchState state)
{
    form.Command1.BackColor = ColourOf(state);
}

} // namespace lineforge
