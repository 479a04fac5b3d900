#ifndef FILE_GENERATOR_TEMPLATE_STREAM_H
#define FILE_GENERATOR_TEMPLATE_STREAM_H

#include "fileGenerator/templateText.h"

#include <istream>
#include <memory>
#include <streambuf>
#include <string>
#include <string_view>

// Template text in memory as a standard input stream, and quick reading from it.
//
// The idea: templates are read whole and expanded in memory, but the loops and conditions of the writers take any
// standard stream, and they go back to positions in it. So the text lies in a stream buffer of its own, and the scanner
// reads through a cursor, which looks at the characters of that buffer in place, without a copy and without a call for
// each. On a stream of another kind the cursor uses the stream's own operations.
//
// What always holds: on both ways the cursor leaves the position and the state flags as the operations of the stream
// would have left them. It reads in place only while the flags are good, so the two ways differ in speed alone.
//
// The traps: a piece is valid until the next reading operation. One that reaches the end of the text sets the end flag
// although it has been read, and an empty one sets the fail flag, as std::istream::get does. A position asked for while
// a flag is set is -1, so positions are taken ahead of the read, and the state is cleared ahead of a move.

// Input buffer over a text that somebody else holds. Closed, it behaves like a file that could not be opened: nothing
// to read, and every seek fails.
class DtTemplateBuffer final : public std::streambuf
{
public:
    DtTemplateBuffer() = default;
    // The stream's own; null for a stream of another kind.
    static DtTemplateBuffer* of(std::istream& in);
    void open(const DtTemplateText& text);
    void close();

    // The text with its parts; null while closed.
    const DtTemplateText* text() const { return myText; }
    // Moves to the block, for the operation that expands it: that finds it here, and need not read it again.
    void moveToBlock(const DtTemplateBlockPart& block, std::streamoff position);
    // The block of that kind that begins here; null where there is none, or none is known. To be asked once.
    const DtTemplateBlockPart* takeBlock(char delimiter);

    const char* current() const { return gptr(); }
    const char* end() const { return egptr(); }
    std::streamoff position() const { return myText != nullptr ? gptr() - eback() : -1; }
    // False, with nothing changed, when there is no such position.
    bool moveTo(std::streamoff position);
    // The caller does not skip beyond the end of the text.
    void skip(std::ptrdiff_t count) { setg(eback(), gptr() + count, egptr()); }

protected:
    pos_type seekoff(off_type offset, std::ios_base::seekdir from, std::ios_base::openmode which) override;
    pos_type seekpos(pos_type position, std::ios_base::openmode which) override;

private:
    const DtTemplateText* myText = nullptr;
    const DtTemplateBlockPart* myBlock = nullptr; // the one that stands at myBlockPosition
    std::streamoff myBlockPosition = 0;
};

// A stream with such a buffer, used again for one body after the other. Starts closed.
class DtTemplateStream : public std::istream
{
public:
    DtTemplateStream();
    DtTemplateStream(const DtTemplateStream&) = delete;
    DtTemplateStream& operator=(const DtTemplateStream&) = delete;

    // These start at the front of the text, with no state flag set.
    void open(std::string text);
    // The text is shared with others; a null pointer leaves the stream closed.
    void open(std::shared_ptr<const DtTemplateText> text);
    // The text outlives its use here.
    void open(const DtTemplateText& text);
    // Every read and seek fails from here on.
    void close();

    // Name of the file whose text this is, empty for other text and after close().
    const std::string& fileName() const { return myFileName; }
    void setFileName(std::string name) { myFileName = std::move(name); }

private:
    DtTemplateBuffer myBuffer;
    std::shared_ptr<const DtTemplateText> mySharedText; // null for a text that somebody else holds
    std::string myFileName;
};

// The reading steps of the template scanner on any standard stream: state flags change as the stream's own operations
// would change them, and text in a DtTemplateBuffer is read in place.
class DtTemplateCursor
{
public:
    // limit: bytes that one piece holds at most.
    DtTemplateCursor(std::istream& in, std::size_t limit);

    bool isGood() const { return myStream.good(); }
    void clearState();
    bool peekIs(char character);
    void skip(); // one character, which has been peeked at
    // Passes every line feed at the current position; their number.
    std::size_t skipLineFeeds();
    // Characters up to a line feed, which stays, or up to the limit. Valid until the next reading operation.
    std::string_view readPiece();
    void skipCharacters(std::size_t count);
    std::streampos position();
    void moveTo(std::streampos position);

private:
    std::string_view readPieceFromStream();

    std::istream& myStream;
    DtTemplateBuffer* myBuffer; // the stream's own, null for a stream of another kind
    std::size_t myLimit;
    std::string myPiece; // of a stream of another kind
};

#endif
