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
void ShowAsItIsNow(Program& p, const Side& side)
{
    if (!IsOnShow(p, side))
        return;
    const PersonTexts person = ReadPerson(p, side, NullForename::Empty);
    const QStringView field = FieldNamedBy(((*p.Form6).*side.FieldFrame).Caption);
    const FieldValue text = field.isEmpty() ? FieldValue() : side.Records(p).Text(field);
    ShowPerson(p, side, person);
    if (text)
        ShowField(p, side, *text);
}

void ChangeRecord(Program& p, const Side& side, const std::function<void(Recordset& record)>& change)
{
    const bool isOne = IsOneRecord(p);
    if (isOne)
        StoreTyped(p.Form3);
    Recordset& record = side.Records(p);
    record.Edit();
    change(record);
    record.Update();
    if (isOne)
        p.Form3->Data1.GiveUpEdits();
}
} // namespace

void ChangeOrShowAgain(Program& p, const Side& side, const std::function<void(Recordset& record)>& change)
{
    forms::Form6& form = *p.Form6;
    const QString surname = (form.*side.Surname).Text;
    const QString field = (form.*side.Field).Text;
    try {
        ChangeRecord(p, side, change);
    } catch (const RuntimeError& refusal) {
        if (DataControl& data = side.Data(p); data.IsOpen())
            data.Records().CancelUpdate();
        (form.*side.Surname).Text = surname;
        ShowField(p, side, field);
        if (refusal.IsTold)
            p.Errors.Ignoring([&] { ShowAsItIsNow(p, side); });
        throw;
    }
}

} // namespace lineforge
