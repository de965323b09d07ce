#include "shell/ShellOpen.h"

using namespace Qt::StringLiterals;

bool ShellOpen(Prompts& prompts, const QString& target)
{
    if (prompts.openWithShell(target))
        return true;
    prompts.MsgboxPos(u"Unable to find associated file.   "_s, Msg::Ok + Msg::Critical, u" Shell error"_s);
    return false;
}
