#pragma once

#include "platform/machine/Processes.h"
#include "qt/machine/HomeClaim.h"

#include <memory>
#include <vector>

namespace lineforge
{

class QtProcesses : public Processes
{
public:
    qint64 Shell(const QString& program, const QString& file) override;
    HomeOwner ClaimHome(const QString& home) override;
    void LeaveHomesBut(const QStringList& homes) override;

private:
    std::vector<std::unique_ptr<HomeClaim>> claims_;
};

} // namespace lineforge
