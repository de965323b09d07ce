#include "Record.h"

int main(int argc, char** argv)
{
    return record(argc, argv);
}
