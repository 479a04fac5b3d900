#ifndef FILE_GENERATOR_SR_HEADER_FILE_WRITER_H
#define FILE_GENERATOR_SR_HEADER_FILE_WRITER_H

#include "fileGenerator/rowFileWriter.h"

// Header and source of the class that holds the state of an object.
inline constexpr DtWriterRow theStateRepositoryRow = {
    DtClassTree::Object,     "Dt%P%NStateRepository",     "DtStateRepository",     "<qx/stateRepository.h>",
    "Dt%P%QStateRepository", "\"%C%qStateRepository.h\"", DtFullName::WithoutRoot,
};
using DtStateRepositoryFileWriter = DtRowFileWriter<theStateRepositoryRow>;

#endif
