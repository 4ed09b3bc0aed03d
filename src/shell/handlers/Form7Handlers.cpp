#include "forms/Form7.h"
#include "map/subjects/SubjectMapping.h"
#include "shell/handlers/InstallHandlers.h"

namespace lineforge
{

void InstallForm7(Program& p, forms::Form7& form)
{
    form.Load = [&form] { ChooseBlankRecord(form); };
    form.Option1.Click = [&form] { ChooseBlankRecord(form); };
    form.Option2.Click = [&form] { ChooseUnmappedRecord(form); };
    form.Option3.Click = [&form] { ChooseAlternateRecord(form); };
    form.Command1.Click = [&p, &form] { TakeMappingOptions(p.Mapping, p.Tools, p.Screen, form); };
    form.Command2.Click = [&form] { form.Hide(); };
}

} // namespace lineforge
