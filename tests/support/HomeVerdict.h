#pragma once

#include "support/TemporaryHome.h"

#include <QStringList>

namespace lineforge
{

// Whether what work that was cut off leaves behind counts as a fault.
enum class Leftovers { Count, Pass };

// What is wrong in a home, a line a finding, by the check that users have; what it merely notes is left out.
//     EXPECT_EQ(FaultsOf(Home.Path()), QStringList());
QStringList FaultsOf(const QString& home, Leftovers leftovers = Leftovers::Count);

} // namespace lineforge
