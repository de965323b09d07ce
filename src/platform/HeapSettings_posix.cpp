#include "platform/HeapSettings.h"

#include <malloc.h>

void KeepHeapSmall()
{
    constexpr int returnAbove = 64 * 1024; // bytes free at the heap's end
    mallopt(M_TRIM_THRESHOLD, returnAbove);
    mallopt(M_ARENA_MAX, 1);
}
