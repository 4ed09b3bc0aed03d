#include "Command.h"

#include <QProcess>

namespace lineforge::packaging
{

Outcome RunCommand(const QString& program, const QStringList& arguments, const QProcessEnvironment& environment,
                   const QString& directory)
{
    QProcess process;
    process.setProcessEnvironment(environment);
    process.setWorkingDirectory(directory);
    process.setProcessChannelMode(QProcess::MergedChannels);
    process.start(program, arguments);
    if (!process.waitForStarted())
        return {-1, process.errorString()};
    process.waitForFinished();
    const bool ended = process.state() == QProcess::NotRunning && process.exitStatus() == QProcess::NormalExit;
    return {ended ? process.exitCode() : -1, QString::fromUtf8(process.readAll())};
}

} // namespace lineforge::packaging
