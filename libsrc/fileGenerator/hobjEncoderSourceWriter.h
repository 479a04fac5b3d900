#ifndef FILE_GENERATOR_HOBJ_ENCODER_SOURCE_WRITER_H
#define FILE_GENERATOR_HOBJ_ENCODER_SOURCE_WRITER_H

#include "fileGenerator/customGenerationWriter.h"

// Source of the class that writes an object class's attributes for HLA. An attribute's encoder text in the
// project takes the place of the generated one.
inline constexpr DtWriterRow theHlaObjectEncoderSourceRow = {
    DtClassTree::Object, "Dt%P%NEncoder", "DtHlaStateEncoder", "", "Dt%P%QEncoder", ""};
using DtHlaObjectEncoderSourceWriter =
    DtCustomGenerationWriter<theHlaObjectEncoderSourceRow, DtObjectHolder, &DtOmtProject::DtCodingPair::first>;

#endif
