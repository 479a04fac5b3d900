#ifndef FILE_GENERATOR_HREF_LIST_SOURCE_WRITER_H
#define FILE_GENERATOR_HREF_LIST_SOURCE_WRITER_H

#include "fileGenerator/rowFileWriter.h"

// Source of the list of reflected objects under HLA.
inline constexpr DtWriterRow theHlaReflectedListSourceRow = {
    DtClassTree::Object,
    "DtReflected%P%NList",
    "",
    "",
    "",
    "",
    DtFullName::WithoutRoot,
    {{{"<!RefObjName!>", "DtReflected%P%N"}, {"<!CbName!>", "Dt%P%NCallbackFunction"}, {"<!ObjName!>", "%N"}}}};
using DtHlaReflectedListSourceFileWriter = DtRowFileWriter<theHlaReflectedListSourceRow>;

#endif
