#ifndef FILE_GENERATOR_TEMPLATE_FILES_H
#define FILE_GENERATOR_TEMPLATE_FILES_H

#include "fileGenerator/templateText.h"
#include "foundation/string.h"

#include <cstdio>
#include <memory>

// Text of template files with their parts. Each is read and taken apart once for all writers, and again only after its
// time stamps or size have changed.

// While one of these lives, a template file that has been opened is taken to stay as it is: it is looked for, opened
// and asked for its time stamps once. Those inside another one join it.
class DtTemplateRun
{
public:
    DtTemplateRun();
    ~DtTemplateRun();
    DtTemplateRun(const DtTemplateRun&) = delete;
    DtTemplateRun& operator=(const DtTemplateRun&) = delete;

private:
    bool myIsOutermost;
};

// The open template of that name below "../data/", or of any other path; null when there is none. It is shared during a
// run, so its position tells nothing.
std::shared_ptr<FILE> DtOpenTemplate(const DtString& name);

// The text of an open template, in pieces that end behind a line feed or after pieceLimit bytes; a piece that is a line
// feed alone becomes a blank and a line feed.
std::shared_ptr<const DtTemplateText> DtPreparedTemplateText(const std::shared_ptr<FILE>& file, std::size_t pieceLimit);

// The text of an included file; null when the name is no regular file that can be read.
std::shared_ptr<const DtTemplateText> DtIncludedTemplateText(const DtString& name);

#endif
