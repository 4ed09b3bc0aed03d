#include "program/state/OtherProgramsTold.h"

#include "platform/machine/Prompts.h"
#include "platform/store/OtherPrograms.h"

namespace lineforge
{

using namespace Qt::StringLiterals;

void TellOfOtherPrograms(OtherPrograms& others, Prompts& prompts)
{
    others.AskRetry = [&prompts](const QString&) {
        return prompts.MsgBox(u"Database in use"_s, u"The Database is in use by another program."_s,
                              Buttons::InformationRetryCancel) == Answer::Retry;
    };
    others.TellChanged = [&prompts](const QString& record) {
        prompts.MsgBox(u"Record changed"_s,
                       record + u" has been changed by another program.\n"
                                u"Nothing was stored. The Record is shown as it is now.",
                       Buttons::Information);
    };
    others.TellReplaced = [&prompts](const QString& path) {
        prompts.MsgBox(u"Database replaced"_s,
                       u"Another program has put another file in the place of this Database:\n"_s + path +
                           u"\nIts Records are shown from now on.",
                       Buttons::Information);
    };
    others.TellGone = [&prompts](const QString& record) {
        prompts.MsgBox(u"Record removed"_s, record + u" has been removed by another program.\nNothing was stored.",
                       Buttons::Information);
    };
}

} // namespace lineforge
