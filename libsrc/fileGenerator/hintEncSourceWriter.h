#ifndef FILE_GENERATOR_HINT_ENC_SOURCE_WRITER_H
#define FILE_GENERATOR_HINT_ENC_SOURCE_WRITER_H

#include "fileGenerator/customGenerationWriter.h"

// Source of the class that writes an interaction's parameters for HLA. A parameter's encoder text in the
// project takes the place of the generated one.
inline constexpr DtWriterRow theHlaInteractionEncoderSourceRow = {
    DtClassTree::Interaction, "Dt%P%NEncoder",
    "DtInteractionEncoder",   "",
    "Dt%P%QEncoder",          "",
    DtFullName::AsGiven,      {{{"<!InteractionName!>", "Dt%P%N"}, {"<!InteractionHeader!>", "%C%nHLA"}}}};
using DtHlaInteractionEncoderSourceWriter =
    DtCustomGenerationWriter<theHlaInteractionEncoderSourceRow, DtInteractionHolder,
                             &DtOmtProject::DtCodingPair::first>;

#endif
