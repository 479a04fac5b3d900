#ifndef CODE_GEN_APP_KEEP_FILE_H
#define CODE_GEN_APP_KEEP_FILE_H

#include "foundation/filename.h"

// Keeps a copy of a file that is about to be replaced, beside it under the first free of the names "a.qxproj~",
// "a.qxproj~2~", "a.qxproj~3~" and so on. Nothing is kept when the file does not exist or equals the newest copy. A
// file that cannot be read is renamed to that name. False when a copy was needed and could not be written.
bool DtKeepFile(const DtFilename& file);

#endif
