#ifndef FILE_GENERATOR_TEMPLATE_FILES_H
#define FILE_GENERATOR_TEMPLATE_FILES_H

#include "fileGenerator/templateText.h"
#include "foundation/string.h"

#include <cstdio>
#include <memory>

// Text of template files with their parts. Each is read and taken apart once for all writers, and again only after its
// time stamps or size have changed.

// Null when the name is no regular file that can be read.
std::shared_ptr<const DtTemplateText> DtTemplateFileText(const DtString& name);

// The rest of an open template, which is left at its end. The text is taken in pieces that end behind a line feed or
// after pieceLimit bytes; a piece that is a line feed alone becomes a blank and a line feed.
std::shared_ptr<const DtTemplateText> DtPreparedTemplateText(FILE* file, std::size_t pieceLimit);

#endif
