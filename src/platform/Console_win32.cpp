#include "platform/Console.h"

#include <windows.h>

Utf8Console::Utf8Console() : m_before(GetConsoleOutputCP())
{
    SetConsoleOutputCP(CP_UTF8);
}

Utf8Console::~Utf8Console()
{
    SetConsoleOutputCP(m_before);
}
