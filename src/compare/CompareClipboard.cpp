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

bool HasBox(const CompareState& state)
{
    return state.SelBox >= 1 && state.SelBox <= static_cast<int>(std::size(editedBoxes));
}

const EditedBox& BoxOf(int number)
{
    return editedBoxes[number - 1];
}

void Store(const Comparison& comparison, const QString& text)
{
    const EditedBox& box = BoxOf(comparison.State.SelBox);
    const bool isField = box.Field.isEmpty();
    // Without a record there is nothing to be written to, whatever is on show.
    if (HasRecord(comparison, box.Owner)) {
        if (!IsSeen(comparison))
            return;
        if (isField && !IsFieldOnShow(comparison.State, *comparison.Form6, box.Owner))
            return ShowField(*comparison.Form6, box.Owner, text);
    }
    ChangeOrShowAgain(comparison, box.Owner, [&](Recordset& record) {
        if (isField)
            ShowField(*comparison.Form6, box.Owner, text);
        else
            ((*comparison.Form6).*box.Box).Text = text;
        record.Put(isField ? QStringView(comparison.State.sCompField) : box.Field, text);
    });
}
} // namespace

void RememberCompareSelection(CompareState& state, const forms::Form6& form, int number)
{
    state.sSelText = (form.*BoxOf(number).Box).SelText;
    state.SelBox = number;
}

void CopyCompareSelection(const CompareState& state, Clipboard& clipboard)
{
    clipboard.Clear();
    clipboard.SetText(state.sSelText);
}

void CutCompareField(const Comparison& comparison, Clipboard& clipboard)
{
    CopyCompareSelection(comparison.State, clipboard);
    if (HasBox(comparison.State))
        Store(comparison, {});
}

void PasteCompareField(const Comparison& comparison, Clipboard& clipboard)
{
    if (clipboard.HasText() && HasBox(comparison.State))
        Store(comparison, clipboard.GetText());
}

} // namespace lineforge
