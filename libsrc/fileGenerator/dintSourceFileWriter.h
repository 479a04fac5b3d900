#ifndef FILE_GENERATOR_DINT_SOURCE_FILE_WRITER_H
#define FILE_GENERATOR_DINT_SOURCE_FILE_WRITER_H

#include "fileGenerator/rowFileWriter.h"

// Source of an interaction under DIS.
inline constexpr DtWriterRow theDisInteractionSourceRow = {DtClassTree::Interaction,
                                                           "Dt%P%NInter",
                                                           "DtInteraction",
                                                           "",
                                                           "Dt%P%Q",
                                                           "",
                                                           DtFullName::WithoutRoot,
                                                           {{{"<!CbName!>", "%KCb"}, {"<!FullClassName!>", "%U"}}}};
using DtDisInteractionSourceFileWriter = DtRowFileWriter<theDisInteractionSourceRow>;

#endif
