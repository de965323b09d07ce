#include "platform/SystemTrash.h"

bool HasTrash()
{
    return true;
}
