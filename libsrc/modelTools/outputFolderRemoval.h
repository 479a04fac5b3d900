#ifndef MODEL_TOOLS_OUTPUT_FOLDER_REMOVAL_H
#define MODEL_TOOLS_OUTPUT_FOLDER_REMOVAL_H

// Removes all that is in the open folder but its entry of one name; follows no links. False when something else stays.
// Takes no memory and uses system calls only, so that the handler of a signal may call it.
bool DtEmptyFolder(int folder, const char* keptName);

#endif
