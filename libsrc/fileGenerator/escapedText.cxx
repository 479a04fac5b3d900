#include "fileGenerator/escapedText.h"

#include "foundation/xmlText.h"

#include <algorithm>
#include <string>

namespace
{
struct DtEscape
{
    char character;
    const char* text;
};

// Line ends and tabs too: as such they would come out of an attribute as blanks.
const DtEscape theHtmlEscapes[] = {
    {'&',  "&amp;" },
    {'<',  "&lt;"  },
    {'>',  "&gt;"  },
    {'"',  "&quot;"},
    {'\'', "&#39;" },
    {'\t', "&#9;"  },
    {'\n', "&#10;" },
    {'\r', "&#13;" },
};

// The escapes that C, Python and JSON share.
const DtEscape theQuotedEscapes[] = {
    {'"',  "\\\""},
    {'\\', "\\\\"},
    {'\t', "\\t" },
    {'\n', "\\n" },
    {'\r', "\\r" },
};

template <std::size_t N>
DtString escaped(const DtString& text, const DtEscape (&escapes)[N])
{
    std::string result;
    for (const char character : text.stdString())
    {
        const DtEscape* escape = std::find_if(std::begin(escapes), std::end(escapes),
                                              [&](const DtEscape& row) { return row.character == character; });
        if (escape != std::end(escapes))
            result += escape->text;
        else
            result += character;
    }
    return result;
}

// The text with no "<!" in it, nor the first half of one at its end: a template would take that for a token.
DtString withoutTokens(const DtString& text)
{
    const std::string& source = text.stdString();
    std::string result;
    for (std::size_t at = 0; at < source.size(); ++at)
    {
        const bool isOpening = source[at] == '<' && (at + 1 == source.size() || source[at + 1] == '!');
        result += isOpening ? "\\u003c" : source.substr(at, 1);
    }
    return result;
}

// Such a text is the same in every form: most texts are.
bool isPlain(const DtString& text)
{
    return std::all_of(text.stdString().begin(), text.stdString().end(),
                       [](char character)
                       {
                           return character >= ' ' && character <= '~' && character != '&' && character != '<' &&
                                  character != '>' && character != '"' && character != '\'' && character != '\\';
                       });
}
} // namespace

DtSafeForms::DtSafeForms(const DtString& text)
{
    if (isPlain(text))
    {
        html = quoted = text;
        return;
    }
    const DtString clean = DtXmlText(text);
    html = escaped(clean, theHtmlEscapes);
    quoted = withoutTokens(escaped(clean, theQuotedEscapes));
}
