#ifndef FILE_GENERATOR_DATA_FILE_H
#define FILE_GENERATOR_DATA_FILE_H

#include "foundation/string.h"

#include <set>
#include <string>

// Where the file is that templates, command files and writers name by a path that begins with "../data/": in the first
// of the template directories that has it, else in the data directory. Any other path stays as it is.
DtString DtDataFile(const DtString& name);

// The files that DtDataFile() has led to in this run, whether they are there or not.
const std::set<std::string>& DtReadDataFiles();

#endif
