#ifndef FILE_GENERATOR_HOBJ_DECODER_SOURCE_WRITER_H
#define FILE_GENERATOR_HOBJ_DECODER_SOURCE_WRITER_H

#include "fileGenerator/customGenerationWriter.h"

// Source of the class that reads an object class's attributes for HLA. An attribute's decoder text in the
// project takes the place of the generated one.
inline constexpr DtWriterRow theHlaObjectDecoderSourceRow = {
    DtClassTree::Object, "Dt%P%NDecoder", "DtHlaStateDecoder", "", "Dt%P%QDecoder", ""};
using DtHlaObjectDecoderSourceWriter =
    DtCustomGenerationWriter<theHlaObjectDecoderSourceRow, DtObjectHolder, &DtOmtProject::DtCodingPair::second>;

#endif
