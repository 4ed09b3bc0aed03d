#pragma once

#include "platform/base/RuntimeError.h"

#include <QString>
#include <QStringList>

#include <functional>

namespace lineforge
{

// How the program gets along with others that work on the same databases: what the user is told and asked. Without a
// routine nobody is told, and what is locked is refused.
class OtherPrograms
{
public:
    OtherPrograms() = default;
    OtherPrograms(const OtherPrograms&) = delete;
    OtherPrograms& operator=(const OtherPrograms&) = delete;

    // The record was to be written, but has been changed meanwhile, or is gone: nothing has been written.
    std::function<void(const QString& record)> TellChanged;
    std::function<void(const QString& record)> TellGone;
    // Another file stands in the place of the one that was open.
    std::function<void(const QString& path)> TellReplaced;
    // Whether to try again to get at a database that another program has locked.
    std::function<bool(const QString& path)> AskRetry;

    // How long a lock is waited for before the user is asked.
    int Milliseconds = 2000;

    // Files that have been replaced are told of at the end of the command that came upon it.
    void NoteReplaced(const QString& path) { replaced_.push_back(path); }
    void TellOfReplaced();

    // Does something that another program's lock can refuse, handing over how long to wait for it, and again as long as
    // the user wants to. 3260, told, when he gives up; from then on he isn't asked any more in this command.
    template <class Work>
    auto Patiently(const QString& path, const Work& work)
    {
        RequireNoQuestion(path);
        for (;;) {
            try {
                return work(Patience());
            } catch (const RuntimeError& refusal) {
                AskAfter(refusal, path);
            }
        }
    }

    // While the user is being asked nothing may move under the question: 3260, told.
    void RequireNoQuestion(const QString& path) const;
    bool IsAsking() const { return isAsking_; }

    // A command of the user's, or what is done within it while it waits for him.
    class Command
    {
    public:
        explicit Command(OtherPrograms& others);
        ~Command();
        Command(const Command&) = delete;
        Command& operator=(const Command&) = delete;

        // Whether another one waits for this one's end.
        bool IsWithinAnother() const { return others_.depth_ > 1; }

    private:
        OtherPrograms& others_;
    };

    // A stretch in which nobody is asked: what is locked is refused, untold.
    class [[nodiscard]] Quiet
    {
    public:
        explicit Quiet(OtherPrograms& others);
        ~Quiet();
        Quiet(const Quiet&) = delete;
        Quiet& operator=(const Quiet&) = delete;

    private:
        OtherPrograms& others_;
    };

private:
    int Patience() const;
    bool HasGivenUp() const { return depth_ > 0 && depth_ == gaveUpAt_; }
    void AskAfter(const RuntimeError& refusal, const QString& path);

    QStringList replaced_;
    bool isAsking_ = false;
    int depth_ = 0;    // of commands within commands
    int gaveUpAt_ = 0; // 0: nowhere
    int quiet_ = 0;
};

} // namespace lineforge
