#include "fileGenerator/commentText.h"

#include <algorithm>
#include <string_view>
#include <vector>

namespace
{
constexpr std::size_t theWidth = 100;

// The code point at the start of the bytes, and its length; the length is 0 when there is none in UTF-8.
std::pair<char32_t, std::size_t> firstCodePoint(std::string_view bytes)
{
    const auto byte = [&](std::size_t i) { return static_cast<unsigned char>(bytes[i]); };
    if (byte(0) < 0x80)
        return {byte(0), 1};
    const std::size_t length = byte(0) >= 0xf0 ? 4 : byte(0) >= 0xe0 ? 3 : 2;
    if (byte(0) < 0xc2 || byte(0) > 0xf4 || bytes.size() < length)
        return {0, 0};
    char32_t point = byte(0) & (0xffU >> (length + 1));
    for (std::size_t i = 1; i < length; ++i)
    {
        if ((byte(i) & 0xc0U) != 0x80)
            return {0, 0};
        point = (point << 6U) | (byte(i) & 0x3fU);
    }
    const bool isOverlong = (length == 3 && point < 0x800) || (length == 4 && point < 0x10000);
    const bool isSurrogate = point >= 0xd800 && point <= 0xdfff;
    return isOverlong || isSurrogate || point > 0x10ffff ? std::pair<char32_t, std::size_t>{0, 0}
                                                         : std::pair<char32_t, std::size_t>{point, length};
}

struct DtRange
{
    char32_t first, last;
};

template <std::size_t N>
bool isIn(char32_t point, const DtRange (&ranges)[N])
{
    return std::any_of(std::begin(ranges), std::end(ranges),
                       [point](const DtRange& range) { return range.first <= point && point <= range.last; });
}

// Blanks of all kinds, the ends of lines but for the line feed among them.
const DtRange theBlanks[] = {
    {0x09,   0x09  },
    {0x0b,   0x0d  },
    {0x20,   0x20  },
    {0x85,   0x85  },
    {0xa0,   0xa0  },
    {0x2028, 0x2029},
};

// Controls, marks of direction, and what has no width.
const DtRange theUnseen[] = {
    {0x00,   0x1f  },
    {0x7f,   0x9f  },
    {0x61c,  0x61c },
    {0x200b, 0x200f},
    {0x202a, 0x202e},
    {0x2060, 0x206f},
    {0xfeff, 0xfeff},
    {0xfff9, 0xfffb},
};

// The text in UTF-8, with plain blanks, line feeds and what can be seen.
std::string cleaned(const std::string& text)
{
    std::string result;
    for (std::size_t i = 0; i < text.size();)
    {
        const auto [point, length] = firstCodePoint(std::string_view(text).substr(i));
        if (length == 0)
            result += '?';
        else if (point == '\n')
            result += '\n';
        else if (isIn(point, theBlanks))
            result += ' ';
        else if (!isIn(point, theUnseen))
            result += text.substr(i, length);
        i += std::max<std::size_t>(length, 1);
    }
    return result;
}

// Two characters that mean something to a compiler or in a template get a blank in between.
std::string harmless(const std::string& text)
{
    static const std::string_view thePairs[] = {"<!", "<#", "<?", "*/", "/*", "??"};
    std::string result;
    for (const char character : text)
    {
        const std::string pair = result.empty() ? std::string() : std::string{result.back(), character};
        if (std::find(std::begin(thePairs), std::end(thePairs), pair) != std::end(thePairs))
            result += ' ';
        result += character;
    }
    return result;
}

std::vector<std::string> wordsOf(const std::string& line)
{
    std::vector<std::string> words;
    for (std::size_t begin = line.find_first_not_of(' '); begin != std::string::npos;)
    {
        const std::size_t end = std::min(line.find(' ', begin), line.size());
        words.push_back(line.substr(begin, end - begin));
        begin = line.find_first_not_of(' ', end);
    }
    return words;
}

bool beginsItem(const std::vector<std::string>& words)
{
    return words.size() > 1 && (words[0] == "*" || words[0] == "-");
}

std::size_t columnsOf(const std::string& text)
{
    return static_cast<std::size_t>(std::count_if(
        text.begin(), text.end(), [](char byte) { return (static_cast<unsigned char>(byte) & 0xc0U) != 0x80; }));
}

// The words of the paragraphs of a text.
std::vector<std::vector<std::string>> paragraphsOf(const std::string& text)
{
    std::vector<std::vector<std::string>> paragraphs(1);
    for (std::size_t begin = 0; begin <= text.size();)
    {
        const std::size_t end = std::min(text.find('\n', begin), text.size());
        const std::vector<std::string> words = wordsOf(text.substr(begin, end - begin));
        if (words.empty() || beginsItem(words))
            paragraphs.emplace_back();
        paragraphs.back().insert(paragraphs.back().end(), words.begin(), words.end());
        begin = end + 1;
    }
    return paragraphs;
}

// Takes words and gives them out as the lines of a comment.
class DtCommentLines
{
public:
    explicit DtCommentLines(int indent) : myStart(std::string(static_cast<std::size_t>(indent), ' ') + "///") {}

    void add(std::string word)
    {
        const std::size_t room = theWidth - myStart.size() - 1;
        while (columnsOf(word) > room) // a word that no line holds is cut
        {
            endLine();
            const std::size_t size = sizeOfColumns(word, room);
            myLine = " " + word.substr(0, size);
            word.erase(0, size);
        }
        if (columnsOf(myStart) + columnsOf(myLine) + 1 + columnsOf(word) > theWidth)
            endLine();
        myLine += " " + word;
    }
    // A line that ends in a backslash would go on in the next one.
    void endLine()
    {
        if (myLine.empty())
            return;
        myText += myStart + myLine + (myLine.back() == '\\' ? "." : "") + "\n";
        myLine.clear();
    }
    const std::string& text() const { return myText; }

private:
    // The bytes that the first columns of the word take.
    static std::size_t sizeOfColumns(const std::string& word, std::size_t columns)
    {
        std::size_t size = 0;
        for (std::size_t i = 0; i < columns && size < word.size(); ++i)
            size += firstCodePoint(std::string_view(word).substr(size)).second;
        return size;
    }

    std::string myStart;
    std::string myLine;
    std::string myText;
};
} // namespace

DtString DtCommentText(const DtString& text, int indent)
{
    DtCommentLines lines(indent);
    for (const std::vector<std::string>& words : paragraphsOf(harmless(cleaned(text.stdString()))))
    {
        for (const std::string& word : words)
            lines.add(word);
        lines.endLine();
    }
    return DtString(lines.text());
}

DtString DtCommentWords(const DtString& text)
{
    std::string words = harmless(cleaned(text.stdString()));
    std::replace(words.begin(), words.end(), '\n', ' ');
    return DtString(words);
}
