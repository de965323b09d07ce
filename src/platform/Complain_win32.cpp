#include "platform/Complain.h"

#include <cstdio>
#include <windows.h>

void Complain(const QString& program, const QString& message)
{
    if (GetFileType(GetStdHandle(STD_ERROR_HANDLE)) != FILE_TYPE_UNKNOWN)
        std::fprintf(stderr, "%s: %s\n", qPrintable(program), qPrintable(message));
    else
        MessageBoxW(nullptr, message.toStdWString().c_str(), program.toStdWString().c_str(),
                    MB_OK | MB_ICONWARNING | MB_SETFOREGROUND);
}
