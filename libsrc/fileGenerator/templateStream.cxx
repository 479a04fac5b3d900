#include "fileGenerator/templateStream.h"

#include <algorithm>
#include <cstring>
#include <typeinfo>

DtTemplateBuffer* DtTemplateBuffer::of(std::istream& in)
{
    std::streambuf* buffer = in.rdbuf();
    const bool isOwn = buffer != nullptr && typeid(*buffer) == typeid(DtTemplateBuffer);
    return isOwn ? static_cast<DtTemplateBuffer*>(buffer) : nullptr;
}

void DtTemplateBuffer::open(const DtTemplateText& text)
{
    // The interface of a stream buffer takes pointers to variable text, but an input buffer only reads.
    char* start = const_cast<char*>(text.text().data());
    setg(start, start, start + text.text().size());
    myText = &text;
    myBlock = nullptr;
}

void DtTemplateBuffer::close()
{
    setg(nullptr, nullptr, nullptr);
    myText = nullptr;
    myBlock = nullptr;
}

void DtTemplateBuffer::moveToBlock(const DtTemplateBlockPart& block, std::streamoff position)
{
    moveTo(position);
    myBlock = &block;
    myBlockPosition = position;
}

const DtTemplateBlockPart* DtTemplateBuffer::takeBlock(char delimiter)
{
    const DtTemplateBlockPart* const block = myBlock;
    myBlock = nullptr;
    const bool isHere = block != nullptr && block->delimiter == delimiter && position() == myBlockPosition;
    return isHere ? block : nullptr;
}

bool DtTemplateBuffer::moveTo(std::streamoff position)
{
    if (myText == nullptr || position < 0 || position > egptr() - eback())
        return false;
    setg(eback(), eback() + position, egptr());
    return true;
}

DtTemplateBuffer::pos_type DtTemplateBuffer::seekoff(off_type offset, std::ios_base::seekdir from,
                                                     std::ios_base::openmode which)
{
    off_type base = 0;
    if (from == std::ios_base::cur)
        base = gptr() - eback();
    else if (from == std::ios_base::end)
        base = egptr() - eback();
    return seekpos(base + offset, which);
}

DtTemplateBuffer::pos_type DtTemplateBuffer::seekpos(pos_type position, std::ios_base::openmode which)
{
    const bool hasMoved = (which & std::ios_base::in) != 0 && moveTo(position);
    return hasMoved ? position : pos_type(off_type(-1));
}

DtTemplateStream::DtTemplateStream() : std::istream(nullptr)
{
    rdbuf(&myBuffer);
}

void DtTemplateStream::open(std::string text)
{
    open(std::make_shared<const DtTemplateText>(std::move(text)));
}

void DtTemplateStream::open(std::shared_ptr<const DtTemplateText> text)
{
    close();
    mySharedText = std::move(text);
    if (mySharedText != nullptr)
        myBuffer.open(*mySharedText);
}

void DtTemplateStream::open(const DtTemplateText& text)
{
    close();
    myBuffer.open(text);
}

void DtTemplateStream::close()
{
    if (!good())
        clear();
    myBuffer.close();
    mySharedText.reset();
    myFileName.clear();
}

DtTemplateCursor::DtTemplateCursor(std::istream& in, std::size_t limit)
    : myStream(in), myBuffer(DtTemplateBuffer::of(in)), myLimit(limit)
{
}

void DtTemplateCursor::clearState()
{
    if (!isGood())
        myStream.clear();
}

bool DtTemplateCursor::peekIs(char character)
{
    if (myBuffer != nullptr && isGood() && myBuffer->current() != myBuffer->end())
        return *myBuffer->current() == character;
    return myStream.peek() == std::istream::traits_type::to_int_type(character);
}

void DtTemplateCursor::skip()
{
    if (myBuffer != nullptr)
        myBuffer->skip(1);
    else
        myStream.get();
}

std::size_t DtTemplateCursor::skipLineFeeds()
{
    std::size_t count = 0;
    for (; peekIs('\n'); ++count)
        skip();
    return count;
}

std::string_view DtTemplateCursor::readPiece()
{
    if (myBuffer == nullptr || !isGood())
        return readPieceFromStream();
    const char* start = myBuffer->current();
    const std::size_t available = static_cast<std::size_t>(myBuffer->end() - start);
    const std::size_t length = std::min(available, myLimit);
    const void* lineFeed = length > 0 ? std::memchr(start, '\n', length) : nullptr;
    const std::string_view piece(
        start, lineFeed != nullptr ? static_cast<std::size_t>(static_cast<const char*>(lineFeed) - start) : length);
    myBuffer->skip(static_cast<std::ptrdiff_t>(piece.size()));
    if (piece.empty())
        myStream.setstate(available == 0 ? std::ios_base::eofbit | std::ios_base::failbit : std::ios_base::failbit);
    else if (piece.size() == available) // also when the limit is reached there
        myStream.setstate(std::ios_base::eofbit);
    return piece;
}

std::string_view DtTemplateCursor::readPieceFromStream()
{
    myPiece.resize(myLimit + 1);
    myStream.get(myPiece.data(), static_cast<std::streamsize>(myPiece.size()));
    return std::string_view(myPiece).substr(0, static_cast<std::size_t>(myStream.gcount()));
}

void DtTemplateCursor::skipCharacters(std::size_t count)
{
    if (myBuffer != nullptr && isGood() && count <= static_cast<std::size_t>(myBuffer->end() - myBuffer->current()))
    {
        myBuffer->skip(static_cast<std::ptrdiff_t>(count));
        return;
    }
    std::string skipped(count, '\0');
    myStream.read(skipped.data(), static_cast<std::streamsize>(count));
}

std::streampos DtTemplateCursor::position()
{
    if (myBuffer != nullptr && isGood())
        return myBuffer->position();
    return myStream.tellg();
}

void DtTemplateCursor::moveTo(std::streampos position)
{
    if (myBuffer == nullptr || !isGood() || !myBuffer->moveTo(position))
        myStream.seekg(position);
}
