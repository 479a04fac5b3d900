#include "codeGenApp/nameRules.h"

#include "fileGenerator/cCompatibleName.h"

#include <algorithm>
#include <cctype>
#include <string>

bool DtFitsPrefix(const DtString& text)
{
    const std::string& name = text.stdString();
    const auto isLetter = [](char each) { return std::isalnum(static_cast<unsigned char>(each)) != 0 || each == '_'; };
    return name.empty() || (std::isdigit(static_cast<unsigned char>(name.front())) == 0 &&
                            std::all_of(name.begin(), name.end(), isLetter));
}

bool DtFitsNamespace(const DtString& text)
{
    return DtFitsPrefix(text) && !isCPlusPlusKeyword(text);
}
