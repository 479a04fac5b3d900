#include "fileGenerator/templateBlock.h"

#include "fileGenerator/tokenPass.h"
#include "foundation/warningRules.h"

#include <algorithm>
#include <memory>
#include <vector>

// How a block is read.
//
// The idea: the cursor stands on the "<" of an opening. Its header is read line by line until it ends, then the writer
// takes the body, from the character behind the header, out of the same line and the lines that follow. The line in
// which the header ends and the place where that line begins are kept for it: lines are views that the next read ends,
// so the line is a copy, and the way back to any character of it is to move to the start of the line and skip.
//
// What always holds: while a line is looked at, linePosition is where it begins in the stream. It is taken ahead of the
// read, for a read that reaches the end of the text sets a flag under which no position is told any more. Line feeds
// between the lines of a header go; those of a body are part of it.
//
// The trap is what ends a header. The first delimiter does, and so does a ">", but tokens in a header have brackets of
// their own: "<?exists <!Name!>>" ends at its last ">". So the "<" that are open are counted, through all lines, and a
// ">" ends the header only when none is. A delimiter ends it whatever is open: no token of a header may hold it.
//
// Bodies hold blocks, which are read in the same way while the outer ones are still in use, so there is one working
// memory for each depth.

namespace
{
// Working memory by depth, for all writers of the process.
struct DtBlockPool
{
    std::vector<std::unique_ptr<DtTemplateBlock>> blocks;
    std::size_t depth = 0;
};

DtBlockPool& blockPool()
{
    static DtBlockPool thePool;
    return thePool;
}
} // namespace

std::size_t DtFindBlock(std::string_view piece)
{
    for (std::size_t at = piece.find('<'); at != std::string_view::npos; at = piece.find('<', at + 1))
        if (at + 1 < piece.size() && (piece[at + 1] == '#' || piece[at + 1] == '?'))
            return at;
    return std::string_view::npos;
}

DtHeaderOutcome DtTemplateBlock::readHeader(DtTemplateCursor& cursor, char blockDelimiter)
{
    delimiter = blockDelimiter;
    linePosition = cursor.position();
    line = cursor.readPiece();
    if (!acceptOpening())
        return DtHeaderOutcome::NoOpening;
    int depth = 0;
    std::size_t start = std::min<std::size_t>(2, line.size());
    headerText.clear();
    while (!findHeaderEnd(start, depth))
    {
        headerText.append(line, start, std::string::npos);
        if (!cursor.isGood())
            return DtHeaderOutcome::NoEnd;
        readOn(cursor);
        start = 0;
    }
    DtAssignText(header, headerText.append(line, start, headerEnd - start));
    return DtHeaderOutcome::Read;
}

// Only a direct call can come with something else than an opening. A loop goes on all the same unless there is nothing
// at all, a conditional does not.
bool DtTemplateBlock::acceptOpening() const
{
    const bool isLoop = delimiter == '#';
    if (isLoop && line.empty())
    {
        DtTellWarning(DtRules::templateBlock, DtSubject::none(), "Problem Handling For Loop empty string.\n");
        return false;
    }
    const bool isOpening = line.size() >= 2 && line[0] == '<' && line[1] == delimiter;
    if (!isOpening)
        DtWarnOfBlock(line);
    return isOpening || isLoop;
}

// The header ends at the first delimiter of the line, or ahead of it at the first ">" that pairs with no "<" of the
// header. The depth counts the open "<" through all lines of the header.
bool DtTemplateBlock::findHeaderEnd(std::size_t from, int& depth)
{
    std::size_t open = line.find('<', from);
    std::size_t close = line.find('>', from);
    headerEnd = line.find(delimiter, from);
    while (open != std::string::npos || close != std::string::npos)
    {
        if (open < close)
        {
            ++depth;
            open = line.find('<', open + 1);
        }
        else if (depth == 0)
            break;
        else
        {
            --depth;
            close = line.find('>', close + 1);
        }
    }
    if (depth == 0)
        headerEnd = std::min(headerEnd, close);
    return headerEnd != std::string::npos;
}

void DtTemplateBlock::readOn(DtTemplateCursor& cursor)
{
    cursor.skipLineFeeds();
    linePosition = cursor.position();
    line = cursor.readPiece();
}

void DtTakeBlockBody(std::string& line, std::size_t start, DtTemplateCursor& cursor, std::streampos& linePosition,
                     char delimiter, std::string& text)
{
    const std::string opening = {'<', delimiter};
    const std::string closing = {delimiter, '>'};
    std::size_t from = std::min<std::size_t>(start, line.size());
    std::size_t open = line.find(opening, from);
    std::size_t close = line.find(closing, from);
    int depth = 0; // goes below 0 on a stray closing pair
    while (open == std::string::npos || close != open + 1 || depth > 0)
    {
        if (open == std::string::npos && close == std::string::npos)
        {
            if (!cursor.isGood())
                break;
            text.append(line, from, std::string::npos);
            text.append(cursor.skipLineFeeds(), '\n');
            linePosition = cursor.position();
            line = cursor.readPiece();
            from = 0;
            open = line.find(opening);
            close = line.find(closing);
        }
        else if (open != std::string::npos && close > open + 1)
        {
            ++depth;
            open = line.find(opening, open + 2);
        }
        else
        {
            --depth;
            if (open != std::string::npos)
                open = line.find(opening, close + 2);
            close = line.find(closing, close + 2);
        }
    }
    text.append(line, from, open == std::string::npos ? std::string::npos : open - from);
    cursor.clearState();
    cursor.moveTo(linePosition);
    // Without a terminator the scan goes on behind the first character of the last line, which it so meets again.
    cursor.skipCharacters(close == std::string::npos ? 1 : close + 2);
}

bool DtTakeBlockPath(std::string& line, std::size_t start, DtTemplateCursor& cursor, std::streampos& linePosition,
                     char delimiter, std::string& path)
{
    const std::size_t from = std::min<std::size_t>(start, line.size());
    std::size_t end = line.find(delimiter, from);
    path = line.substr(from, end == std::string::npos ? std::string::npos : end - from);
    while (end == std::string::npos)
    {
        if (!cursor.isGood())
            return false;
        cursor.skipLineFeeds();
        linePosition = cursor.position();
        line = cursor.readPiece();
        end = line.find(delimiter);
        path.append(line, 0, end);
    }
    path.resize(path.find_last_not_of(' ') + 1);
    cursor.clearState();
    cursor.moveTo(linePosition);
    cursor.skipCharacters(end + 2); // the character behind the delimiter, taken to be ">", goes in any case
    return true;
}

DtBlockLease::DtBlockLease()
{
    DtBlockPool& pool = blockPool();
    if (pool.depth == pool.blocks.size())
        pool.blocks.push_back(std::make_unique<DtTemplateBlock>());
    myBlock = pool.blocks[pool.depth++].get();
}

DtBlockLease::~DtBlockLease()
{
    --blockPool().depth;
}

void DtWarnOfBlock(std::string_view line)
{
    DtTellWarning(DtRules::templateBlock, DtSubject::none(),
                  "Problem Handling For Loop in line: " + DtString(std::string(line)));
}
