#include "support/FakeWindows.h"

#include <utility>

namespace lineforge
{

void FakeWindows::Made(Form& form)
{
    MadeNames.push_back(form.Name);
}

void FakeWindows::Retire(std::unique_ptr<Form> form)
{
    RetiredNames.push_back(form->Name);
    Retired.push_back(std::move(form));
}

} // namespace lineforge
