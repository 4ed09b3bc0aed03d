#pragma once

#include <QProcessEnvironment>
#include <QString>
#include <QStringList>

namespace lineforge::packaging
{

struct Outcome {
    int ExitCode = -1; // -1 when it couldn't be started or was killed
    QString Output;    // what it has said on both outputs
};

// Runs a program to its end.
Outcome RunCommand(const QString& program, const QStringList& arguments,
                   const QProcessEnvironment& environment = QProcessEnvironment::systemEnvironment(),
                   const QString& directory = {});

} // namespace lineforge::packaging
