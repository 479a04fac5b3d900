#ifndef FILE_GENERATOR_HINT_DEC_SOURCE_WRITER_H
#define FILE_GENERATOR_HINT_DEC_SOURCE_WRITER_H

#include "fileGenerator/customGenerationWriter.h"

// Source of the class that reads an interaction's parameters for HLA. A parameter's decoder text in the
// project takes the place of the generated one.
inline constexpr DtWriterRow theHlaInteractionDecoderSourceRow = {
    DtClassTree::Interaction, "Dt%P%NDecoder",
    "DtInteractionDecoder",   "",
    "Dt%P%QDecoder",          "",
    DtFullName::AsGiven,      {{{"<!InteractionName!>", "Dt%P%N"}, {"<!InteractionHeader!>", "%C%nHLA"}}}};
using DtHlaInteractionDecoderSourceWriter =
    DtCustomGenerationWriter<theHlaInteractionDecoderSourceRow, DtInteractionHolder,
                             &DtOmtProject::DtCodingPair::second>;

#endif
