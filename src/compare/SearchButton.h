#pragma once

#include "program/state/Windows.h"

namespace lineforge
{

// What the colour of the Search button says.
enum class SearchState {
    Busy,   // it runs, or has come to the end
    Ready,  // for the next press
    Found,  // a field is shown, or the end of a pair's fields
    ByHand, // the user steps by himself
};

void ShowSearchState(forms::Form6& form, SearchState state);

} // namespace lineforge
