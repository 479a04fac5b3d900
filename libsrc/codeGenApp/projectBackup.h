#ifndef CODE_GEN_APP_PROJECT_BACKUP_H
#define CODE_GEN_APP_PROJECT_BACKUP_H

#include "foundation/filename.h"

// Keeps a copy of a project file that is about to be replaced, beside it under the first free of the names "a.qxproj~",
// "a.qxproj~2~", "a.qxproj~3~" and so on. Nothing is kept when the file does not exist or equals the newest copy.
// False when a copy was needed and could not be written.
bool DtKeepProjectFile(const DtFilename& projectFile);

#endif
