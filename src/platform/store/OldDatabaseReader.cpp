#include "platform/store/OldDatabaseReader.h"

#include <QElapsedTimer>
#include <QProcess>
#include <QScopeGuard>

namespace lineforge
{

using namespace Qt::StringLiterals;

namespace
{
constexpr int painterMilliseconds = 50;
constexpr int killMilliseconds = 1000;

// Whether it came to its end in time, and told no more than a stream may hold.
bool RunToEnd(QProcess& process, QByteArray& told, std::chrono::milliseconds patience,
              const std::function<void()>& meanwhile)
{
    QElapsedTimer running;
    running.start();
    while (process.state() != QProcess::NotRunning) {
        if (running.hasExpired(patience.count()) || told.size() > static_cast<qsizetype>(jetstream::mostBytes))
            return false;
        process.waitForReadyRead(painterMilliseconds);
        told += process.readAllStandardOutput();
        meanwhile();
    }
    return process.exitStatus() == QProcess::NormalExit &&
           process.exitCode() == static_cast<int>(jetstream::Outcome::Whole);
}
} // namespace

QString OldDatabaseReader(const QString& executableDirectory)
{
    return executableDirectory + u"lineforge-jet"_s;
}

std::optional<JetRows> ReadOldDatabase(const QString& reader, const QString& file, std::chrono::milliseconds patience,
                                       const std::function<void()>& meanwhile)
{
    QProcess process;
    const auto ended = qScopeGuard([&] {
        process.kill();
        process.waitForFinished(killMilliseconds);
    });
    process.setStandardInputFile(QProcess::nullDevice());
    process.setStandardErrorFile(QProcess::nullDevice());
    process.start(reader, {file}, QProcess::ReadOnly);
    QByteArray told;
    if (!RunToEnd(process, told, patience, meanwhile))
        return {};
    return JetRows::Parse(told);
}

} // namespace lineforge
