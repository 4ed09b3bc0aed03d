#include "program/state/OtherProgramsTold.h"

#include "platform/store/OtherPrograms.h"

namespace lineforge
{

using namespace Qt::StringLiterals;

void TellOfOtherPrograms(Program& p)
{
    OtherPrograms& others = p.Databases.Others();
    others.AskRetry = [&p](const QString&) {
        return p.Prompts.MsgBox(u"Database in use"_s, u"The Database is in use by another program."_s,
                                Buttons::InformationRetryCancel) == Answer::Retry;
    };
    others.TellChanged = [&p](const QString& record) {
        p.Prompts.MsgBox(u"Record changed"_s,
                         record + u" has been changed by another program.\n"
                                  u"Nothing was stored. The Record is shown as it is now.",
                         Buttons::Information);
    };
    others.TellReplaced = [&p](const QString& path) {
        p.Prompts.MsgBox(u"Database replaced"_s,
                         u"Another program has put another file in the place of this Database:\n"_s + path +
                             u"\nIts Records are shown from now on.",
                         Buttons::Information);
    };
    others.TellGone = [&p](const QString& record) {
        p.Prompts.MsgBox(u"Record removed"_s, record + u" has been removed by another program.\nNothing was stored.",
                         Buttons::Information);
    };
}

} // namespace lineforge
