#include "platform/Console.h"

// Terminals here take UTF-8.
Utf8Console::Utf8Console() : m_before(0) {}
Utf8Console::~Utf8Console() = default;
