#pragma once

#include "platform/store/JetStreamFormat.h"
#include "support/Printing.h"

#include <QString>
#include <QStringList>

#include <gtest/gtest.h>
#include <optional>
#include <vector>

namespace lineforge
{

// The records of a database, field by field in the order of the table; nothing for Null.
using Records25 = std::vector<std::vector<std::optional<QString>>>;

// The path of a fixture: "jet3/royals12.mdb".
QString FixturePath(const QString& name);

QByteArray FixtureBytes(const QString& name);

// The fixtures that have expected records, without their ending: "jet3/royals12".
std::vector<std::string> ReadableFixtures();

// What must be read of one of them.
Records25 ExpectedRecords(const std::string& fixture);

// The name of a test with such a parameter.
std::string TestNameOf(const testing::TestParamInfo<std::string>& fixture);

} // namespace lineforge
