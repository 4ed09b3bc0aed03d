#include "forms/Form7.h"
#include "map/subjects/SubjectMapping.h"
#include "shell/handlers/InstallHandlers.h"

namespace lineforge
{

void InstallForm7(Program& p, forms::Form7& form)
{
    form.Load = [&p] { ChooseBlankRecord(p); };
    form.Option1.Click = [&p] { ChooseBlankRecord(p); };
    form.Option2.Click = [&p] { ChooseUnmappedRecord(p); };
    form.Option3.Click = [&p] { ChooseAlternateRecord(p); };
    form.Command1.Click = [&p] { TakeMappingOptions(p); };
    form.Command2.Click = [&form] { form.Hide(); };
}

} // namespace lineforge
