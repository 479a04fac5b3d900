#include "omtReader/xmlModelReader.h"

#include "foundation/outputStream.h"

#include <charconv>
#include <cstdlib>

void DtXMLModelReader::warnOfMissing(const char* element, const char* what)
{
    DtWarn("Warning: %s definition was missing a %s\n", element, what);
}

void DtXMLModelReader::warnOfFurtherClass(const Hierarchy& words)
{
    DtWarn("Warning: Additional %s node found at the root level when parsing %s file has been ignored.\n", words.kind,
           words.formatWords);
}

void DtXMLModelReader::warnOfMissingRoot(const Hierarchy& words)
{
    DtWarn("Warning: %s is missing from %s file\n", words.root, words.formatWords);
}

void DtXMLModelReader::warnOfWrongRoot(const Hierarchy& words)
{
    DtWarn("Warning: %s root is not \"%s\" in %s file\n", words.wrongKind, words.wrongRoot, words.formatWords);
}

int DtXmlToNumber(const DtString& text)
{
    return static_cast<int>(std::strtol(text.c_str(), nullptr, 10)); // the low bits count: 4294967295 is -1
}

double DtXmlToRate(const DtString& text)
{
    DtString number(text);
    number.chompFront();
    const char* start = number.c_str() + (number.startsWith("+") ? 1 : 0);
    double rate = 0.0;
    std::from_chars(start, number.c_str() + number.length(), rate); // the same in every locale
    return rate;
}
