#ifndef FILE_GENERATOR_HINT_SOURCE_FILE_WRITER_H
#define FILE_GENERATOR_HINT_SOURCE_FILE_WRITER_H

#include "fileGenerator/rowFileWriter.h"

// Source of an interaction under HLA.
inline constexpr DtWriterRow theHlaInteractionSourceRow = {DtClassTree::Interaction,
                                                           "Dt%P%N",
                                                           "DtInteractionWithEncDec",
                                                           "",
                                                           "Dt%P%Q",
                                                           "",
                                                           DtFullName::WithoutRoot,
                                                           {{{"<!CbName!>", "%KCb"}, {"<!FullClassName!>", "%U"}}}};
using DtHlaInteractionSourceFileWriter = DtRowFileWriter<theHlaInteractionSourceRow>;

#endif
