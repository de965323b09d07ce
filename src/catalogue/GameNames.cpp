#include "catalogue/GameNames.h"

#include "catalogue/GameStaging.h"
#include "platform/FileNames.h"

std::optional<QString> AskGameName(Launcher& launcher, const NameQuestion& question,
                                   const IllegalName& illegal)
{
    const std::optional<QString> AskedName = launcher.prompts.askName(question);
    if (!AskedName || AskedName->isEmpty())
        return std::nullopt;
    const QString name = AskedName->trimmed();
    if (IsUsableName(name) && !IsReservedGameName(name))
        return name;
    ReportIllegalName(launcher, illegal);
    return std::nullopt;
}

void ReportIllegalName(Launcher& launcher, const IllegalName& illegal)
{
    launcher.prompts.MsgboxPos(illegal.text, Msg::Ok + Msg::Exclamation, illegal.title);
}
