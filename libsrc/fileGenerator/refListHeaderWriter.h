#ifndef FILE_GENERATOR_REF_LIST_HEADER_WRITER_H
#define FILE_GENERATOR_REF_LIST_HEADER_WRITER_H

#include "fileGenerator/rowFileWriter.h"

// Front header over the HLA and DIS forms of the list of reflected objects. Its class name is that of the publisher:
// the output depends on it.
inline constexpr DtWriterRow theReflectedListHeaderRow = {DtClassTree::Object,
                                                          "Dt%P%NPublisher",
                                                          "",
                                                          "",
                                                          "",
                                                          "",
                                                          DtFullName::WithoutRoot,
                                                          {{{"<!HlaRefList!>", "%FHLA"}, {"<!DisRefList!>", "%FDIS"}}}};
using DtReflectedListHeaderFileWriter = DtRowFileWriter<theReflectedListHeaderRow>;

#endif
