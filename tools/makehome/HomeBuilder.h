#pragma once

#include <QString>

namespace lineforge::makehome
{

// Builds a home that can be opened as it stands. The plain fixed files are taken from beside the schema. A branch that
// is already in the target directory is never touched: somebody may have begun to work in it.
void BuildHome(const QString& examplesDirectory, const QString& schemaPath, const QString& targetDirectory);

} // namespace lineforge::makehome
