#ifndef FOUNDATION_TEXT_ENDS_H
#define FOUNDATION_TEXT_ENDS_H

#include <string_view>

// Every text starts and ends with itself and with the empty one.
inline bool DtStartsWith(std::string_view text, std::string_view start)
{
    return text.substr(0, start.size()) == start;
}

inline bool DtEndsWith(std::string_view text, std::string_view end)
{
    return text.size() >= end.size() && text.substr(text.size() - end.size()) == end;
}

#endif
