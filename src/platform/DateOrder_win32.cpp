#include "platform/DateOrder.h"

#include <windows.h>

bool IsDayBeforeMonth()
{
    constexpr wchar_t monthFirst = L'0';
    wchar_t order[2] = {};
    GetLocaleInfoEx(LOCALE_NAME_USER_DEFAULT, LOCALE_IDATE, order, 2);
    return order[0] != monthFirst;
}
