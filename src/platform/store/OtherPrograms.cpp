#include "platform/store/OtherPrograms.h"

#include <QScopedValueRollback>

#include <utility>

namespace lineforge
{

namespace
{
[[noreturn]] void FailTold(const QString& path)
{
    RuntimeError refusal(ErrorNumber::DatabaseBusy, path);
    refusal.IsTold = true;
    throw refusal;
}
} // namespace

void OtherPrograms::TellOfReplaced()
{
    for (const QString& path : std::exchange(replaced_, {}))
        if (TellReplaced)
            TellReplaced(path);
}

int OtherPrograms::Patience() const
{
    return HasGivenUp() ? 0 : Milliseconds;
}

void OtherPrograms::RequireNoQuestion(const QString& path) const
{
    if (isAsking_)
        FailTold(path);
}

void OtherPrograms::AskAfter(const RuntimeError& refusal, const QString& path)
{
    if (refusal.Number != ErrorNumber::DatabaseBusy || refusal.IsTold || quiet_ > 0 || !AskRetry)
        throw RuntimeError(refusal);
    bool goesOn = false;
    if (!HasGivenUp()) {
        const QScopedValueRollback asking(isAsking_, true);
        goesOn = AskRetry(path);
    }
    if (goesOn)
        return;
    gaveUpAt_ = depth_;
    FailTold(path);
}

OtherPrograms::Command::Command(OtherPrograms& others) : others_(others)
{
    ++others_.depth_;
}

OtherPrograms::Command::~Command()
{
    if (others_.HasGivenUp())
        others_.gaveUpAt_ = 0;
    --others_.depth_;
}

OtherPrograms::Quiet::Quiet(OtherPrograms& others) : others_(others)
{
    ++others_.quiet_;
}

OtherPrograms::Quiet::~Quiet()
{
    --others_.quiet_;
}

} // namespace lineforge
