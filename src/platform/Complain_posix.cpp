#include "platform/Complain.h"

#include <cstdio>

void Complain(const QString& program, const QString& message)
{
    std::fprintf(stderr, "%s: %s\n", qPrintable(program), qPrintable(message));
}
