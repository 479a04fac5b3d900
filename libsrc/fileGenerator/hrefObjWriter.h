#ifndef FILE_GENERATOR_HREF_OBJ_WRITER_H
#define FILE_GENERATOR_HREF_OBJ_WRITER_H

#include "fileGenerator/rowFileWriter.h"

// Header and source of an object that reflects a remote one under HLA.
inline constexpr DtWriterRow theHlaReflectedObjectRow = {
    DtClassTree::Object,
    "DtReflected%P%N",
    "",
    "",
    "",
    "",
    DtFullName::AsGiven,
    {{{"<!ObjName!>", "%N"}, {"<!CbName!>", "Dt%P%NCallbackFunction"}}}};
using DtHlaReflectedObjectFileWriter = DtRowFileWriter<theHlaReflectedObjectRow>;

#endif
