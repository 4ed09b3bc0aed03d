#include "platform/qt/QtProcesses.h"

#include "platform/RuntimeError.h"

#include <QFileInfo>
#include <QProcess>

namespace lineforge
{

qint64 QtProcesses::Shell(const QString& program, const QString& file)
{
    if (!QFileInfo(program).isFile())
        throw RuntimeError(ErrorNumber::FileNotFound, program);
    qint64 task = 0;
    if (!QProcess::startDetached(program, {file}, QFileInfo(program).path(), &task))
        throw RuntimeError(ErrorNumber::InvalidCall, program);
    return task;
}

} // namespace lineforge
