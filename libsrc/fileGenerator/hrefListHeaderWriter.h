#ifndef FILE_GENERATOR_HREF_LIST_HEADER_WRITER_H
#define FILE_GENERATOR_HREF_LIST_HEADER_WRITER_H

#include "fileGenerator/rowFileWriter.h"

// Header of the list of reflected objects under HLA.
inline constexpr DtWriterRow theHlaReflectedListHeaderRow = {DtClassTree::Object,
                                                             "DtReflected%P%NList",
                                                             "",
                                                             "",
                                                             "",
                                                             "",
                                                             DtFullName::AsGiven,
                                                             {{{"<!CbName!>", "Dt%P%NCallbackFunction"},
                                                               {"<!ObjName!>", "%N"},
                                                               {"<!RefObjName!>", "DtReflected%P%N"},
                                                               {"<!RefObjHeader!>", "%Creflected%NHLA.h"}}}};
using DtHlaReflectedListHeaderFileWriter = DtRowFileWriter<theHlaReflectedListHeaderRow>;

#endif
