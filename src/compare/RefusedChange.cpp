#include "compare/RefusedChange.h"

#include "compare/FieldDifference.h"
#include "forms/Form3.h"
#include "forms/Form6.h"
#include "program/branch/WorkDatabase.h"

namespace lineforge
{

namespace
{
// Another program has it in use or has changed it: what is written over the next time has been seen.
void ShowAsItIsNow(const ComparedSides& sides, const Side& side)
{
    if (!IsOnShow(sides, side))
        return;
    const PersonTexts person = ReadPerson(sides, side, NullForename::Empty);
    const QStringView field = FieldNamedBy(((*sides.Form6).*side.FieldFrame).Caption);
    const FieldValue text = field.isEmpty() ? FieldValue() : side.Records(sides).Text(field);
    ShowPerson(sides, side, person);
    if (text)
        ShowField(*sides.Form6, side, *text);
}

void ChangeRecord(const ComparedSides& sides, const Side& side, const std::function<void(Recordset& record)>& change)
{
    const bool isOne = IsOneRecord(sides);
    if (isOne)
        StoreTyped(sides.Form3);
    Recordset& record = side.Records(sides);
    record.Edit();
    change(record);
    record.Update();
    if (isOne)
        sides.Form3->Data1.GiveUpEdits();
}
} // namespace

void ChangeOrShowAgain(const ComparedSides& sides, const Side& side,
                       const std::function<void(Recordset& record)>& change)
{
    forms::Form6& form = *sides.Form6;
    const QString surname = (form.*side.Surname).Text;
    const QString field = (form.*side.Field).Text;
    try {
        ChangeRecord(sides, side, change);
    } catch (const RuntimeError& refusal) {
        if (DataControl& data = side.Data(sides); data.IsOpen())
            data.Records().CancelUpdate();
        (form.*side.Surname).Text = surname;
        ShowField(*sides.Form6, side, field);
        if (refusal.IsTold)
            sides.Errors.Ignoring([&] { ShowAsItIsNow(sides, side); });
        throw;
    }
}

} // namespace lineforge
