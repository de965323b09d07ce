#include "platform/DateOrder.h"

bool IsDayBeforeMonth()
{
    return true; // a locale tells how dates are shown, not how a short one is meant
}
