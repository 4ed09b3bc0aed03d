#include "FuzzHome.h"
#include "map/items/MapFile.h"
#include "map/items/MapValues.h"
#include "map/subjects/EnterBranch.h"

#include <array>

namespace lineforge::fuzz
{
namespace
{

using Lists = std::array<QString, 3>;

// As it is read and drawn when its branch is opened; what the three arrays then hold, as it would be saved.
Lists Enter(Program& p)
{
    ForgetMap(p.Map, p.Mouse, p.Tools);
    DrawBranchMap(p);
    return {ListOfBoxes(p.Map), ListOfLines(p.Map), ListOfTexts(p.Map)};
}

} // namespace
} // namespace lineforge::fuzz

// Whatever the map file: it is drawn as far as it goes, and what is saved of it is read back the same. What the first
// reading has made of a foreign file isn't compared with the file, which may tell it in other words, or tell more.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    using namespace lineforge;
    using namespace lineforge::fuzz;

    static FuzzHome home;
    Program& p = home.P;
    home.Write(QStringLiteral("LfgDat_A/LfgDat_A.cfg"), BytesOf(data, size));
    const Lists held = Enter(p);
    p.Map.sBoxesText = held[0];
    p.Map.sLinesText = held[1];
    p.Map.sTextsText = held[2];
    WriteMapFile(p.Map, p.Branch, p.Files);
    const Lists read = Enter(p);
    for (std::size_t list = 0; list < held.size(); ++list)
        Require(CountsAsEmpty(held[list]) ? read[list].isEmpty() : read[list] == held[list]);
    return 0;
}
