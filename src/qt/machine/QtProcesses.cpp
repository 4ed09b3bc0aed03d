#include "qt/machine/QtProcesses.h"

#include "platform/base/RuntimeError.h"

#include <QFileInfo>
#include <QProcess>

#include <utility>

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

HomeOwner QtProcesses::ClaimHome(const QString& home)
{
    auto claim = std::make_unique<HomeClaim>(home);
    if (claim_ && claim_->IsOfSameHome(*claim))
        return HomeOwner::ThisRun;
    if (!claim->IsOurs())
        return claim->CallOwner() ? HomeOwner::OtherInFront : HomeOwner::OtherOutOfReach;
    claim->AnswerCalls();
    claim_ = std::move(claim);
    return HomeOwner::ThisRun;
}

} // namespace lineforge
