#ifndef FILE_GENERATOR_HOBJ_ENCODER_HEADER_WRITER_H
#define FILE_GENERATOR_HOBJ_ENCODER_HEADER_WRITER_H

#include "fileGenerator/recordWriter.h"

// Header of the class that writes an object class's attributes for HLA.
inline constexpr DtWriterRow theHlaObjectEncoderHeaderRow = {
    DtClassTree::Object,      "Dt%P%NEncoder", "DtHlaStateEncoder",
    "<qx/hlaStateEncoder.h>", "Dt%P%QEncoder", "\"%C%qEncoderHLA.h\"",
};
using DtHlaObjectEncoderHeaderWriter = DtRecordWriter<theHlaObjectEncoderHeaderRow, DtObjectHolder>;

#endif
