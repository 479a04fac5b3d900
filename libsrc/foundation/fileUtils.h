#ifndef FOUNDATION_FILE_UTILS_H
#define FOUNDATION_FILE_UTILS_H

#include "foundation/filename.h"

#include <cstdio>
#include <string>

// Helpers for files, directories and the machine.

// Opens the file as fopen does; null on a failure. The letter "t" of a mode has no effect on this platform.
FILE* DtFileOpen(const char* name, const char* mode);
void DtFileClose(FILE* file); // null is allowed

// Puts the whole content of a regular file into `text`; false when it is none or cannot be read.
bool DtReadFile(const DtString& name, std::string& text);

// Makes the directory and its missing parents. True when it is there afterwards.
bool DtMakeDirectory(const DtFilename& directory);

// Writes the file beside its old version, flushed and checked, and then renames it over that: a reader sees the old or
// the new content, never a part. Links are followed and the mode of an existing file is kept. False on any failure, the
// old file being untouched and errno telling the cause.
bool DtReplaceFile(const DtString& name, const std::string& text);

// Blocks the calling thread for that many seconds.
void DtSleep(double seconds);
// True once a key has been pressed on the console, or when its input has ended.
bool DtPollBlockingInputChar();

DtString DtOperatingSystem(); // "Linux", say
DtString DtCompiler();        // name and version

// Called once at start-up; returns 0.
int diagonalizable();

#endif
