#include "modelTools/leftoverTokens.h"

#include "foundation/fileUtils.h"

#include <cctype>

namespace
{
bool isNameCharacter(char character)
{
    return std::isalnum(static_cast<unsigned char>(character)) != 0 || character == '_';
}
} // namespace

std::string DtLeftoverTokens::find(const std::string& text)
{
    for (std::size_t at = text.find("<!"); at != std::string::npos; at = text.find("<!", at + 1))
    {
        std::size_t end = at + 2;
        while (end < text.size() && isNameCharacter(text[end]))
            ++end;
        if (end == at + 2 || text.compare(end, 2, "!>") != 0)
            continue;
        const std::string token = text.substr(at, end + 2 - at);
        if (!isOfModel(token))
            return token;
    }
    return std::string();
}

// A model writes "<" as an entity.
bool DtLeftoverTokens::isOfModel(const std::string& token)
{
    for (std::size_t index = 0; !myIsRead && index < myModelFiles.size(); ++index)
    {
        std::string text;
        if (DtReadFile(DtString(myModelFiles[index]), text))
            myModelText += text + '\n';
    }
    myIsRead = true;
    return myModelText.find(token.substr(1, token.size() - 2)) != std::string::npos;
}
