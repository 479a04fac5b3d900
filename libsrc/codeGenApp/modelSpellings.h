#ifndef CODE_GEN_APP_MODEL_SPELLINGS_H
#define CODE_GEN_APP_MODEL_SPELLINGS_H

#include "fileGenerator/omtProject.h"

#include <vector>

// Name and directory of a model as the project file has them, and as they were called when a part of that was no UTF-8:
// the project file, which can hold nothing else, has such a part converted from Latin-1.
std::vector<DtOmtProject::DtFilePair> DtModelSpellings(const DtOmtProject::DtFilePair& model);

#endif
