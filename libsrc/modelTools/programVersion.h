#ifndef MODEL_TOOLS_PROGRAM_VERSION_H
#define MODEL_TOOLS_PROGRAM_VERSION_H

// The version of the program, such as "5.10".
const char* DtProgramVersion();

#endif
