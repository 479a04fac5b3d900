#include "foundation/xmlText.h"

#include "foundation/warningRules.h"

#include <libxml/chvalid.h>

#include <algorithm>
#include <string_view>

namespace
{
struct DtCharacter
{
    unsigned int code = 0;
    std::size_t length = 0; // bytes; 0 when they are no character
};

// The character at the start of the text, which holds at least one byte.
DtCharacter decode(std::string_view text)
{
    const auto byte = [&text](std::size_t index) { return static_cast<unsigned char>(text[index]); };
    const unsigned int lead = byte(0);
    if (lead < 0x80)
        return {lead, 1};
    const std::size_t length = lead >= 0xf0 ? 4 : lead >= 0xe0 ? 3 : 2;
    if (lead < 0xc2 || lead > 0xf4 || length > text.size())
        return {};
    unsigned int code = lead & (0x7fu >> length);
    for (std::size_t index = 1; index < length; ++index)
    {
        if ((byte(index) & 0xc0) != 0x80)
            return {};
        code = (code << 6) | (byte(index) & 0x3f);
    }
    const bool isOverlong = (length == 3 && code < 0x800) || (length == 4 && code < 0x10000);
    const bool isSurrogate = code >= 0xd800 && code <= 0xdfff;
    return isOverlong || isSurrogate || code > 0x10ffff ? DtCharacter{} : DtCharacter{code, length};
}

// Of characters that every XML file holds as they are, which is most of what is written.
bool isPlain(std::string_view text)
{
    return std::all_of(text.begin(), text.end(), [](char each) { return each >= ' ' && each < '\x7f'; });
}

bool isUtf8(std::string_view text)
{
    while (!text.empty())
    {
        const std::size_t length = decode(text).length;
        if (length == 0)
            return false;
        text.remove_prefix(length);
    }
    return true;
}

std::string latin1ToUtf8(const std::string& text)
{
    std::string result;
    for (const char character : text)
    {
        const auto byte = static_cast<unsigned char>(character);
        if (byte < 0x80)
            result += character;
        else
        {
            result += static_cast<char>(0xc0 | (byte >> 6));
            result += static_cast<char>(0x80 | (byte & 0x3f));
        }
    }
    return result;
}
} // namespace

DtString DtUtf8Text(const DtString& text)
{
    return isUtf8(text.stdString()) ? text : DtString(latin1ToUtf8(text.stdString()));
}

DtString DtLatin1Text(const DtString& text)
{
    const std::string& source = text.stdString();
    std::string result;
    for (std::string_view rest = source; !rest.empty();)
    {
        const DtCharacter character = decode(rest);
        if (character.length == 0 || character.code > 0xff)
            return text;
        result += static_cast<char>(character.code);
        rest.remove_prefix(character.length);
    }
    return DtString(result);
}

DtString DtXmlText(const DtString& text)
{
    if (isPlain(text.stdString()))
        return text;
    const DtString converted = DtUtf8Text(text);
    const std::string& source = converted.stdString();
    std::string result;
    for (std::string_view rest = source; !rest.empty();)
    {
        const DtCharacter character = decode(rest);
        if (xmlIsCharQ(character.code))
            result.append(rest.substr(0, character.length));
        rest.remove_prefix(character.length);
    }
    if (result.size() != source.size())
        DtTellWarning(DtRules::charactersLeftOut, DtSubject::none(),
                      "Characters that XML cannot hold are left out of: " + DtString(result) + "\n");
    return DtString(result);
}
