#pragma once

#include "platform/machine/Processes.h"
#include "qt/machine/HomeClaim.h"

#include <memory>

namespace lineforge
{

class QtProcesses : public Processes
{
public:
    qint64 Shell(const QString& program, const QString& file) override;
    HomeOwner ClaimHome(const QString& home) override;

private:
    std::unique_ptr<HomeClaim> claim_;
};

} // namespace lineforge
