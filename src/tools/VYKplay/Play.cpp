#include "tools/VYKplay/Play.h"
