#ifndef FILE_GENERATOR_DINT_HEADER_FILE_WRITER_H
#define FILE_GENERATOR_DINT_HEADER_FILE_WRITER_H

#include "fileGenerator/rowFileWriter.h"

// Header of an interaction under DIS. Below a generated parent the base class lacks the "Inter" that the parent's own
// class name has: the output depends on it.
inline constexpr DtWriterRow theDisInteractionHeaderRow = {
    DtClassTree::Interaction,
    "Dt%P%NInter",
    "DtInteraction",
    "<qx/interaction.h>",
    "Dt%P%Q",
    "\"%C%q.h\"",
    DtFullName::WithoutRoot,
    {{{"<!CbName!>", "%KCb"}, {"<!PduBaseClass!>", "Dt%P%QPdu", "DtNetPduHeader"}}},
};
using DtDisInteractionHeaderFileWriter = DtRowFileWriter<theDisInteractionHeaderRow>;

#endif
