// Case of the letters A to Z only, so that no locale has to be set up and no other byte is touched.
#pragma once

#include <algorithm>
#include <string_view>

inline char asciiUpper(char c)
{
    return c >= 'a' && c <= 'z' ? static_cast<char>(c - 'a' + 'A') : c;
}

inline bool isAsciiDigit(char c)
{
    return c >= '0' && c <= '9';
}

inline bool equalIgnoringCase(std::string_view a, std::string_view b)
{
    return std::ranges::equal(a, b, {}, asciiUpper, asciiUpper);
}
