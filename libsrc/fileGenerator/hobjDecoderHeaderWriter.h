#ifndef FILE_GENERATOR_HOBJ_DECODER_HEADER_WRITER_H
#define FILE_GENERATOR_HOBJ_DECODER_HEADER_WRITER_H

#include "fileGenerator/recordWriter.h"

// Header of the class that reads an object class's attributes for HLA.
inline constexpr DtWriterRow theHlaObjectDecoderHeaderRow = {
    DtClassTree::Object,      "Dt%P%NDecoder", "DtHlaStateDecoder",
    "<qx/hlaStateDecoder.h>", "Dt%P%QDecoder", "\"%C%qDecoderHLA.h\"",
};
using DtHlaObjectDecoderHeaderWriter = DtRecordWriter<theHlaObjectDecoderHeaderRow, DtObjectHolder>;

#endif
