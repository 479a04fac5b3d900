#ifndef FILE_GENERATOR_TEMPLATE_SCAN_H
#define FILE_GENERATOR_TEMPLATE_SCAN_H

#include "fileGenerator/templateBlock.h"
#include "fileGenerator/templateStream.h"

#include <algorithm>

// Scans a template line by line to the end of the stream and tells the taker what stands there:
//
//   lineFeed()                   one that comes out
//   piece(text)                  a line or a part of one, without blocks; may be empty
//   block(delimiter)             one begins at the position of the stream; the taker leaves the stream behind it and
//                                returns true, or returns false, which ends the scan
//
// A bar joins its line to the one above. It is tested only behind a line feed read here, so a bar at the very start is
// plain text.
template <typename Taker>
void DtScanTemplate(std::istream& in, std::size_t pieceLimit, Taker& taker)
{
    DtTemplateCursor cursor(in, pieceLimit);
    while (cursor.isGood())
    {
        while (cursor.peekIs('\n'))
        {
            cursor.skip();
            if (cursor.peekIs('|'))
                cursor.skip();
            else
                taker.lineFeed();
        }
        cursor.clearState();
        const std::streampos start = std::max<std::streamoff>(0, cursor.position());
        const std::string_view piece = cursor.readPiece();
        const std::size_t block = DtFindBlock(piece);
        if (block == std::string_view::npos)
        {
            taker.piece(piece);
            continue;
        }
        const char delimiter = piece[block + 1];
        cursor.clearState();
        cursor.moveTo(start);
        cursor.skipCharacters(block);
        if (block > 0)
            taker.piece(piece.substr(0, block));
        if (!taker.block(delimiter))
            return;
    }
}

#endif
