#pragma once

#include "platform/Processes.h"

namespace lineforge
{

class QtProcesses : public Processes
{
public:
    qint64 Shell(const QString& program, const QString& file) override;
};

} // namespace lineforge
