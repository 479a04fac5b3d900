#include "fileGenerator/templateBlock.h"

#include "fileGenerator/tokenPass.h"
#include "foundation/outputStream.h"

#include <algorithm>
#include <memory>
#include <vector>

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

bool DtTemplateBlock::readHeader(DtTemplateCursor& cursor, char blockDelimiter)
{
    delimiter = blockDelimiter;
    linePosition = cursor.position();
    line = cursor.readPiece();
    if (!acceptOpening())
        return false;
    int depth = 0;
    std::size_t start = std::min<std::size_t>(2, line.size());
    headerText.clear();
    while (!findHeaderEnd(start, depth))
    {
        headerText.append(line, start, std::string::npos);
        if (!readOn(cursor))
            return false;
        start = 0;
    }
    DtAssignText(header, headerText.append(line, start, headerEnd - start));
    return true;
}

// Only a direct call can come with something else than an opening. A loop goes on all the same unless there is nothing
// at all, a conditional does not.
bool DtTemplateBlock::acceptOpening() const
{
    const bool isLoop = delimiter == '#';
    if (isLoop && line.empty())
    {
        DtWarn << "Problem Handling For Loop empty string." << std::endl;
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

bool DtTemplateBlock::readOn(DtTemplateCursor& cursor)
{
    if (!cursor.isGood())
    {
        DtWarnOfBlock(line);
        return false;
    }
    cursor.skipLineFeeds();
    linePosition = cursor.position();
    line = cursor.readPiece();
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
    DtWarn << "Problem Handling For Loop in line: " << line;
}
