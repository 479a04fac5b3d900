#ifndef FILE_GENERATOR_INT_SOURCE_FILE_WRITER_H
#define FILE_GENERATOR_INT_SOURCE_FILE_WRITER_H

#include "fileGenerator/rowFileWriter.h"

// Source beside the front header of an interaction; its class name is the interaction's own.
inline constexpr DtWriterRow theInteractionSourceRow = {DtClassTree::Interaction, "%N", "", "", "", "",
                                                        DtFullName::WithoutRoot};
using DtInteractionSourceFileWriter = DtRowFileWriter<theInteractionSourceRow>;

#endif
