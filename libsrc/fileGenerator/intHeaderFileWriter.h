#ifndef FILE_GENERATOR_INT_HEADER_FILE_WRITER_H
#define FILE_GENERATOR_INT_HEADER_FILE_WRITER_H

#include "fileGenerator/rowFileWriter.h"

// Front header over the HLA and DIS forms of an interaction.
inline constexpr DtWriterRow theInteractionHeaderRow = {DtClassTree::Interaction,
                                                        "Dt%P%NInter",
                                                        "",
                                                        "",
                                                        "",
                                                        "",
                                                        DtFullName::WithoutRoot,
                                                        {{{"<!HlaInter!>", "%FHLA"}, {"<!DisInter!>", "%FDIS"}}}};
using DtInteractionHeaderFileWriter = DtRowFileWriter<theInteractionHeaderRow>;

#endif
