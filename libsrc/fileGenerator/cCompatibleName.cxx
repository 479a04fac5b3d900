#include "fileGenerator/cCompatibleName.h"

#include "foundation/stringUtils.h"

#include <algorithm>
#include <string_view>
#include <unordered_set>

namespace
{

const unsigned int theLongestName = 100; // characters; longer ones are shortened
const unsigned int theKeptPart = 50;

// The words that get an underscore. They are those of another language than the generated one; the names in the output
// depend on this list.
bool isTableWord(const DtString& text)
{
    static const std::unordered_set<std::string_view> theWords = {
        "abstract",   "as",        "base",     "break",    "case",         "catch",    "checked",  "class",
        "const",      "continue",  "decimal",  "default",  "delegate",     "do",       "else",     "enum",
        "event",      "explicit",  "extern",   "false",    "finally",      "fixed",    "for",      "foreach",
        "goto",       "if",        "implicit", "in",       "interface",    "internal", "is",       "lock",
        "namespace",  "new",       "null",     "object",   "operator",     "out",      "override", "params",
        "private",    "protected", "public",   "readonly", "ref",          "return",   "sealed",   "sizeof",
        "stackalloc", "static",    "struct",   "switch",   "this",         "throw",    "true",     "try",
        "typeof",     "unchecked", "unsafe",   "using",    "using static", "virtual",  "volatile", "while",
    };
    constexpr unsigned int theLongestWord = 12;
    return text.length() <= theLongestWord && theWords.count(text.c_str()) != 0;
}

DtString withoutTableWord(const DtString& name)
{
    return isTableWord(name) ? "_" + name : name;
}

const char* replacementFor(char character)
{
    switch (character)
    {
    case '/':
    case '#':
    case '&':
    case '-':
    case '.':
    case ' ':
        return "__";
    case '(':
    case ')':
    case '<':
    case '>':
        return "_";
    default:
        return nullptr;
    }
}

DtString withoutSpecialCharacters(const DtString& text)
{
    const std::string& source = text.stdString();
    if (std::none_of(source.begin(), source.end(), [](char each) { return replacementFor(each) != nullptr; }))
        return text;
    std::string result;
    result.reserve(text.length());
    for (const char character : source)
    {
        if (const char* replacement = replacementFor(character))
            result += replacement;
        else
            result += character;
    }
    return result;
}

DtString upperCase(DtString text)
{
    text.toUpper();
    return text;
}

} // namespace

bool isCPlusPlusKeyword(const DtString& text)
{
    static const std::unordered_set<std::string_view> theWords = {
        "alignas",       "alignof",      "and",       "and_eq",     "asm",
        "auto",          "bitand",       "bool",      "break",      "case",
        "catch",         "char",         "char16_t",  "char32_t",   "class",
        "compl",         "const",        "constexpr", "const_cast", "continue",
        "decltype",      "default",      "delete",    "do",         "double",
        "dynamic_cast",  "else",         "enum",      "explicit",   "export",
        "extern",        "false",        "float",     "for",        "friend",
        "goto",          "if",           "inline",    "int",        "long",
        "mutable",       "namespace",    "new",       "noexcept",   "not",
        "not_eq",        "nullptr",      "operator",  "or",         "or_eq",
        "private",       "protected",    "public",    "register",   "reinterpret_cast",
        "return",        "short",        "signed",    "sizeof",     "static",
        "static_assert", "static_cast",  "struct",    "switch",     "template",
        "this",          "thread_local", "throw",     "true",       "try",
        "typedef",       "typeid",       "typename",  "union",      "unsigned",
        "using",         "virtual",      "void",      "volatile",   "wchar_t",
        "while",         "xor",          "xor_eq",
    };
    return theWords.count(text.stdString()) != 0;
}

DtString DtCCompatibleNames::MakeCCompatibleString(const DtString& text)
{
    return withoutTableWord(shortened(withoutSpecialCharacters(text)));
}

DtString DtCCompatibleNames::wholeIdentifier(const DtString& text)
{
    return withoutTableWord(withoutSpecialCharacters(text));
}

DtString DtCCompatibleNames::shortened(const DtString& name)
{
    // The map has no shorter keys, also none for a name without its "Dt".
    if (name.length() <= theLongestName)
        return name;
    const DtString key = upperCase(name);
    const auto known = longNamesToShortNames->find(key);
    if (known != longNamesToShortNames->end())
        return known->second;
    if (name.startsWith("Dt"))
    {
        const auto bare = longNamesToShortNames->find(key.stdString().substr(2));
        if (bare != longNamesToShortNames->end())
            return "Dt" + DtFirstCharToUpper(bare->second);
    }
    DtString shortName = name.stdString().substr(0, theKeptPart) + std::to_string(myCurrentLargeFileNum++);
    ownShortNames().emplace(key, shortName);
    return shortName;
}

DtCCompatibleNames::ShortNames& DtCCompatibleNames::ownShortNames()
{
    if (longNamesToShortNames.use_count() > 1)
        longNamesToShortNames = std::make_shared<ShortNames>(*longNamesToShortNames);
    return *longNamesToShortNames;
}
