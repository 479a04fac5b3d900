#ifndef FILE_GENERATOR_TEMPLATE_BLOCK_H
#define FILE_GENERATOR_TEMPLATE_BLOCK_H

#include "fileGenerator/templateStream.h"
#include "foundation/string.h"

#include <cstddef>
#include <string>
#include <string_view>

// Position of the first block opening, "<#" or "<?", in a piece of a template; npos when there is none.
std::size_t DtFindBlock(std::string_view piece);

// What came of reading a header.
enum class DtHeaderOutcome
{
    Read,
    NoOpening, // nothing to expand: a warning has told so
    NoEnd      // the text ends ahead of the header, and nobody has told so
};

// The opening of a block up to the end of its header, and the working memory of the block.
//
// Blocks are used again for others at the same depth, through DtBlockLease.
struct DtTemplateBlock
{
    // Reads the line at the cursor, which should stand on "<" and the delimiter, and the header, which may run over
    // several lines.
    DtHeaderOutcome readHeader(DtTemplateCursor& cursor, char blockDelimiter);
    bool isInline() const { return line[headerEnd] == '>'; }

    char delimiter = '#';
    std::string line;            // the one in which the header ends
    std::streampos linePosition; // of that line in the stream
    std::size_t headerEnd = 0;   // where in that line
    DtString header;             // raw, without the opening
    DtTemplateStream body;

private:
    bool acceptOpening() const;
    bool findHeaderEnd(std::size_t from, int& depth);
    void readOn(DtTemplateCursor& cursor);

    std::string headerText; // on its way into header
};

// Appends the body of an inline block to the text, from index start of the line on, and leaves the cursor behind the
// terminator. linePosition is where the line starts in the stream; line and position follow the reading.
void DtTakeBlockBody(std::string& line, std::size_t start, DtTemplateCursor& cursor, std::streampos& linePosition,
                     char delimiter, std::string& text);
// The same for the path of a file block. False, with the cursor at the end of the stream, for a path without an end.
bool DtTakeBlockPath(std::string& line, std::size_t start, DtTemplateCursor& cursor, std::streampos& linePosition,
                     char delimiter, std::string& path);

// Lends the block of the next depth for as long as it lives.
class DtBlockLease
{
public:
    DtBlockLease();
    ~DtBlockLease();
    DtBlockLease(const DtBlockLease&) = delete;
    DtBlockLease& operator=(const DtBlockLease&) = delete;
    DtTemplateBlock& operator*() const { return *myBlock; }

private:
    DtTemplateBlock* myBlock;
};

// Warns with "Problem Handling For Loop in line: " and the line, with no line end. It stands for both kinds of block.
void DtWarnOfBlock(std::string_view line);

#endif
