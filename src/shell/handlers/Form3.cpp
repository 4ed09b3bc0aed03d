#include "map/SubjectPanel.h"
#include "shell/handlers/Handlers.h"

namespace lineforge
{

void InstallForm3(Program& p, forms::Form3& form)
{
    BindSubjectLabels(p, form);
}

} // namespace lineforge
