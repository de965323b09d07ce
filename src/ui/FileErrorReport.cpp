#include "ui/FileErrorReport.h"

using namespace Qt::StringLiterals;

bool ReportCause(Prompts& prompts, const FileError& error)
{
    if (error.isHeld())
        prompts.MsgboxPos(u" Another game is being installed, try again when that has ended.    \r\n "_s +
                              error.detail(),
                          Msg::Ok + Msg::Information, u" Installation error"_s);
    else if (error.kind() == FileError::Kind::DiskFull)
        prompts.MsgboxPos(
            u" The disk is full, nothing has been changed.    \r\n Make some room and try again.    "_s,
            Msg::Ok + Msg::Exclamation, u" Disk full"_s);
    return error.isHeld() || error.kind() == FileError::Kind::DiskFull;
}
