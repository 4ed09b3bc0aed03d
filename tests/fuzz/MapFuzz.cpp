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

// As it is read and drawn when its branch is opened; what the three arrays then hold.
Lists Enter(Program& p)
{
    ForgetMap(p);
    DrawBranchMap(p);
    return {ListOfBoxes(p.Map), ListOfLines(p.Map), ListOfTexts(p.Map)};
}

} // namespace
} // namespace lineforge::fuzz

// Whatever the map file: it is drawn as far as it goes, and what is saved of it is read back the same.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    using namespace lineforge;
    using namespace lineforge::fuzz;

    static FuzzHome home;
    Program& p = home.P;
    home.Write(QStringLiteral("LfgDat_A/LfgDat_A.cfg"), BytesOf(data, size));
    const Lists saved = Enter(p);
    p.Map.sBoxesText = saved[0];
    p.Map.sLinesText = saved[1];
    p.Map.sTextsText = saved[2];
    WriteMapFile(p);
    const Lists read = Enter(p);
    for (std::size_t list = 0; list < saved.size(); ++list)
        Require(CountsAsEmpty(saved[list]) || read[list] == saved[list]);
    return 0;
}
