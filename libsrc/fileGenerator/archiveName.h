#ifndef FILE_GENERATOR_ARCHIVE_NAME_H
#define FILE_GENERATOR_ARCHIVE_NAME_H

#include "foundation/string.h"

// What the archives of the run are named after: the whole base name of the run, without a directory and without the
// ending of a model file. Other points belong to the name.
DtString DtArchiveName();

#endif
