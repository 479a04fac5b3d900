#ifndef FILE_GENERATOR_REF_OBJ_HEADER_WRITER_H
#define FILE_GENERATOR_REF_OBJ_HEADER_WRITER_H

#include "fileGenerator/rowFileWriter.h"

// Front header over the HLA and DIS forms of a reflected object.
inline constexpr DtWriterRow theReflectedObjectHeaderRow = {DtClassTree::Object,
                                                            "Dt%P%NReflectedObject",
                                                            "",
                                                            "",
                                                            "",
                                                            "",
                                                            DtFullName::WithoutRoot,
                                                            {{{"<!HlaRefObj!>", "%FHLA"}, {"<!DisRefObj!>", "%FDIS"}}}};
using DtReflectedObjectHeaderFileWriter = DtRowFileWriter<theReflectedObjectHeaderRow>;

#endif
