#ifndef FOUNDATION_XML_TEXT_H
#define FOUNDATION_XML_TEXT_H

#include "foundation/string.h"

// Gives a text that an XML file can hold: one that is not valid UTF-8 is taken as Latin-1 and converted, and characters
// that XML cannot carry (most control characters, U+FFFE and U+FFFF) are left out with one warning on DtWarn.
DtString DtXmlText(const DtString& text);

// Gives the text in UTF-8: one that is not valid UTF-8 is taken as Latin-1 and converted.
DtString DtUtf8Text(const DtString& text);
// Gives the text in Latin-1, which takes that conversion back; one that is not UTF-8, or has characters beyond Latin-1,
// stays as it is.
DtString DtLatin1Text(const DtString& text);

#endif
