#ifndef FILE_GENERATOR_DPUB_WRITER_H
#define FILE_GENERATOR_DPUB_WRITER_H

#include "fileGenerator/rowFileWriter.h"

// Header and source of the class that publishes an object class under DIS.
inline constexpr DtWriterRow theDisPublisherRow = {DtClassTree::Object,    "Dt%P%NPublisher", "", "", "", "",
                                                   DtFullName::WithoutRoot};
using DtDisPublisherFileWriter = DtRowFileWriter<theDisPublisherRow>;

#endif
