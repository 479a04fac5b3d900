#ifndef FILE_GENERATOR_HINT_DEC_HEADER_WRITER_H
#define FILE_GENERATOR_HINT_DEC_HEADER_WRITER_H

#include "fileGenerator/recordWriter.h"

// Header of the class that reads an interaction's parameters for HLA.
inline constexpr DtWriterRow theHlaInteractionDecoderHeaderRow = {
    DtClassTree::Interaction, "Dt%P%NDecoder",        "DtInteractionDecoder", "<qx/interactionDecoder.h>",
    "Dt%P%QDecoder",          "\"%C%qDecoderHLA.h\"", DtFullName::AsGiven,    {{{"<!InteractionName!>", "Dt%P%N"}}},
};
using DtHlaInteractionDecoderHeaderWriter = DtRecordWriter<theHlaInteractionDecoderHeaderRow, DtInteractionHolder>;

#endif
