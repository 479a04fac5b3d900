#ifndef FILE_GENERATOR_HPUB_WRITER_H
#define FILE_GENERATOR_HPUB_WRITER_H

#include "fileGenerator/rowFileWriter.h"

// Header and source of the class that publishes an object class under HLA.
inline constexpr DtWriterRow theHlaPublisherRow = {DtClassTree::Object,    "Dt%P%NPublisher", "", "", "", "",
                                                   DtFullName::WithoutRoot};
using DtHlaPublisherFileWriter = DtRowFileWriter<theHlaPublisherRow>;

#endif
