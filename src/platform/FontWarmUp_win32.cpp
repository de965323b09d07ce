#include "platform/FontWarmUp.h"

std::jthread WarmUpFonts()
{
    return {}; // Windows has its list of fonts at hand
}
