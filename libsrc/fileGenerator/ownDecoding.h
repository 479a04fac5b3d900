#ifndef FILE_GENERATOR_OWN_DECODING_H
#define FILE_GENERATOR_OWN_DECODING_H

#include "fileGenerator/classFileWriter.h"

#include <type_traits>

// Whether decodeFileLine() of a Writer is one that DtFileWriter::setHasOwnDecoding() speaks of. The type of a pointer
// to an operation names the class that states it last.
template <typename Writer>
constexpr bool hasOwnDecoding =
    std::is_same_v<decltype(&Writer::decodeFileLine), void (DtFileWriter::*)(DtString&)> ||
    std::is_same_v<decltype(&Writer::decodeFileLine), void (DtClassFileWriter::*)(DtString&)>;

// To be called where a writer is made, by the type it is made of.
template <typename Writer>
void tellOwnDecoding(Writer& writer)
{
    writer.setHasOwnDecoding(hasOwnDecoding<Writer>);
}

#endif
