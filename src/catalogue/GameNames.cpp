#include "catalogue/GameNames.h"

#include "catalogue/GameStaging.h"
#include "platform/FileNames.h"

std::optional<QString> AskGameName(Prompts& prompts, const NameQuestion& question, const IllegalName& illegal)
{
    const std::optional<QString> AskedName = prompts.askName(question);
    if (!AskedName || AskedName->isEmpty())
        return std::nullopt;
    const QString name = AskedName->trimmed();
    if (IsUsableName(name) && !IsReservedGameName(name))
        return name;
    ReportIllegalName(prompts, illegal);
    return std::nullopt;
}

void ReportIllegalName(Prompts& prompts, const IllegalName& illegal)
{
    prompts.MsgboxPos(illegal.text, Msg::Ok + Msg::Exclamation, illegal.title);
}
