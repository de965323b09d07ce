#include "Record.h"

int wmain(int argc, wchar_t** argv)
{
    return record(argc, argv);
}
