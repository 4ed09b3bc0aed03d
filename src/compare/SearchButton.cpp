#include "compare/SearchButton.h"

namespace lineforge
{

void ShowSearchState(Program& p, SearchState state)
{
    const auto colour = [state] {
        switch (state) {
        case SearchState::Busy:
            return Rgb(220, 0, 0);
        case SearchState::Ready:
            return Rgb(0, 220, 0);
        case SearchState::Found:
            return Rgb(0, 200, 0);
        case SearchState::ByHand:
            break;
        }
        return Rgb(200, 0, 0);
    };
    p.Form6->Command1.BackColor = colour();
}

} // namespace lineforge
