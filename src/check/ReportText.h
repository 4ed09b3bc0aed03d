#pragma once

#include "check/Findings.h"

#include <QByteArray>

namespace lineforge::check
{

// A line a finding, file and record first, and a summary in words behind them; UTF-8.
QByteArray ReportText(const Report& report, const QString& home);

// The same for scripts: one JSON object.
QByteArray ReportJson(const Report& report, const QString& home);

} // namespace lineforge::check
