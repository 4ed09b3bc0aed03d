#include "qt/machine/QtProcesses.h"

#include "platform/base/RuntimeError.h"

#include <QFileInfo>
#include <QProcess>

#include <algorithm>
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
    if (std::ranges::any_of(claims_, [&home](const auto& held) { return held->IsOf(home); }))
        return HomeOwner::ThisRun;
    auto claim = std::make_unique<HomeClaim>(home);
    if (!claim->IsOurs())
        return claim->CallOwner() ? HomeOwner::OtherInFront : HomeOwner::OtherOutOfReach;
    claim->AnswerCalls();
    claims_.push_back(std::move(claim));
    return HomeOwner::ThisRun;
}

void QtProcesses::LeaveHomesBut(const QStringList& homes)
{
    std::erase_if(claims_, [&homes](const auto& held) {
        return std::ranges::none_of(homes, [&held](const QString& home) { return held->IsOf(home); });
    });
}

} // namespace lineforge
