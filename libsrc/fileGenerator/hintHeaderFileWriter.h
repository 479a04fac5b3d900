#ifndef FILE_GENERATOR_HINT_HEADER_FILE_WRITER_H
#define FILE_GENERATOR_HINT_HEADER_FILE_WRITER_H

#include "fileGenerator/rowFileWriter.h"

// Header of an interaction under HLA.
inline constexpr DtWriterRow theHlaInteractionHeaderRow = {
    DtClassTree::Interaction,
    "Dt%P%N",
    "DtInteractionWithEncDec",
    "<qx/interactionWithEncDec.h>",
    "Dt%P%Q",
    "\"%C%qHLA.h\"",
    DtFullName::WithoutRoot,
    {{{"<!CbName!>", "%KCb"}, {"<!FullClassName!>", "%U"}}},
};
using DtHlaInteractionHeaderFileWriter = DtRowFileWriter<theHlaInteractionHeaderRow>;

#endif
