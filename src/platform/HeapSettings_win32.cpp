#include "platform/HeapSettings.h"

void KeepHeapSmall()
{
    // The heap of Windows gives back by itself.
}
