#ifndef FILE_GENERATOR_COMMENT_TEXT_H
#define FILE_GENERATOR_COMMENT_TEXT_H

#include "foundation/string.h"

// A text of the model as comment lines of C++, each with its line feed; empty when the text is blank.
//
// The lines begin with the indent and "/// ", and are wrapped at 100 columns. An empty line of the text and one that
// begins an item of a list begin a line of the comment, other ends of lines count as blanks. Nothing in the text can
// end the comment or continue it on the next line, is taken for a part of the template language, or changes the
// direction of what an editor shows; what is no UTF-8 becomes a question mark.
DtString DtCommentText(const DtString& text, int indent);
// The same of a short text that stands within a comment line, without a line feed.
DtString DtCommentWords(const DtString& text);

#endif
