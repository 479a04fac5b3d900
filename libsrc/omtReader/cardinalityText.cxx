#include "omtReader/cardinalityText.h"

#include "foundation/stringUtils.h"

#include <algorithm>

bool DtIsBlank(const DtString& text)
{
    const std::string& bytes = text.stdString();
    return std::all_of(bytes.begin(), bytes.end(), DtIsSpace);
}
