#include "compare/CompareClipboard.h"

#include "compare/CompareSearch.h"
#include "compare/FieldDifference.h"
#include "compare/RefusedChange.h"
#include "compare/Sides.h"
#include "forms/Form6.h"
#include "platform/store/Fields.h"

namespace lineforge
{

using namespace Qt::StringLiterals;

namespace
{
// The boxes by their numbers, from 1 on. A field that isn't told is the one on show.
struct EditedBox {
    TextBox forms::Form6::*Box;
    const Side& Owner;
    QStringView Field;
};
const EditedBox editedBoxes[] = {
    {&forms::Form6::Text1, CurrentSide, Field::Surname},
    {&forms::Form6::Text2, CurrentSide, u""},
    {&forms::Form6::Text3, CompareSide, Field::Surname},
    {&forms::Form6::Text4, CompareSide, u""},
};

bool HasBox(const Program& p)
{
    return p.Compare.SelBox >= 1 && p.Compare.SelBox <= static_cast<int>(std::size(editedBoxes));
}

const EditedBox& BoxOf(int number)
{
    return editedBoxes[number - 1];
}

void Store(Program& p, const QString& text)
{
    const EditedBox& box = BoxOf(p.Compare.SelBox);
    const bool isField = box.Field.isEmpty();
    // Without a record there is nothing to be written to, whatever is on show.
    if (HasRecord(p, box.Owner)) {
        if (!IsSeen(p))
            return;
        if (isField && !IsFieldOnShow(p, box.Owner))
            return ShowField(p, box.Owner, text);
    }
    ChangeOrShowAgain(p, box.Owner, [&](Recordset& record) {
        if (isField)
            ShowField(p, box.Owner, text);
        else
            ((*p.Form6).*box.Box).Text = text;
        record.Put(isField ? QStringView(p.Compare.sCompField) : box.Field, text);
    });
}
} // namespace

void RememberCompareSelection(Program& p, int number)
{
    p.Compare.sSelText = ((*p.Form6).*BoxOf(number).Box).SelText;
    p.Compare.SelBox = number;
}

void CopyCompareSelection(Program& p)
{
    p.Clipboard.Clear();
    p.Clipboard.SetText(p.Compare.sSelText);
}

void CutCompareField(Program& p)
{
    CopyCompareSelection(p);
    if (HasBox(p))
        Store(p, {});
}

void PasteCompareField(Program& p)
{
    if (p.Clipboard.HasText() && HasBox(p))
        Store(p, p.Clipboard.GetText());
}

} // namespace lineforge
