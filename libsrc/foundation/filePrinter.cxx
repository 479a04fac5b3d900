#include "foundation/filePrinter.h"

#include "foundation/fileUtils.h"
#include "foundation/warningRules.h"

#include <algorithm>
#include <cerrno>
#include <cstring>
#include <fcntl.h>
#include <string_view>
#include <sys/stat.h>
#include <unistd.h>
#include <unordered_map>
#include <utility>
#include <vector>

namespace
{
// A text is kept in pieces of this size at most.
constexpr std::size_t theLargestPiece = 1u << 18;

// Of this many printers that collect, the files stay open; a process may have 1024.
constexpr int theMostOpenFiles = 128;
int theOpenFiles = 0;

// The printers that collect, by the names of their files, so that one that writes finds the others of its file. Never
// destroyed: the last printers may go with the process.
std::unordered_multimap<std::string_view, DtFilePrinter*>& collectingPrinters()
{
    static auto* const thePrinters = new std::unordered_multimap<std::string_view, DtFilePrinter*>;
    return *thePrinters;
}

std::string_view viewOf(const DtString& name)
{
    return {name.c_str(), static_cast<std::size_t>(name.length())};
}

// Memory of texts that are written, for the next ones. Never destroyed: the last printers may go with the process.
std::vector<std::string>& spareTexts()
{
    static auto* const theSpareTexts = new std::vector<std::string>;
    return *theSpareTexts;
}

std::string takeSpareText()
{
    if (spareTexts().empty())
        return std::string();
    std::string text = std::move(spareTexts().back());
    spareTexts().pop_back();
    return text;
}

void keepSpareText(std::string text)
{
    constexpr std::size_t theMostSpareTexts = 64;
    constexpr std::size_t theLargestSpareText = 1u << 18;
    if (spareTexts().size() >= theMostSpareTexts || text.capacity() > theLargestSpareText)
        return;
    text.clear();
    spareTexts().push_back(std::move(text));
}

int openForWriting(const DtString& name, int flags)
{
    const int descriptor = ::open(name.c_str(), O_RDWR | O_CREAT | O_CLOEXEC | flags, 0666);
    if (descriptor >= 0 || errno != ENOENT)
        return descriptor;
    DtFilename directory(name);
    directory.stripFilename();
    if (!DtMakeDirectory(directory))
        return -1;
    return ::open(name.c_str(), O_RDWR | O_CREAT | O_CLOEXEC | flags, 0666);
}

// Compares bit by bit, so that a difference ends the reading.
bool holdsText(int descriptor, off_t offset, std::string_view text)
{
    char piece[32768];
    std::size_t compared = 0;
    while (compared < text.size())
    {
        const std::size_t size = std::min(sizeof piece, text.size() - compared);
        const ssize_t count = pread(descriptor, piece, size, offset + static_cast<off_t>(compared));
        if (count != static_cast<ssize_t>(size) || text.compare(compared, size, piece, size) != 0)
            return false;
        compared += size;
    }
    return true;
}

bool writeWhole(int descriptor, const char* text, std::size_t length)
{
    while (length > 0)
    {
        const ssize_t count = ::write(descriptor, text, length);
        if (count < 0 && errno != EINTR)
            return false;
        text += count > 0 ? count : 0;
        length -= count > 0 ? static_cast<std::size_t>(count) : 0;
    }
    return true;
}
} // namespace

DtFilePrinter::DtFilePrinter(const char* name, Mode mode) : myName(name), myMode(mode), myText(takeSpareText())
{
    if (myMode == Mode::Collect)
        collectingPrinters().emplace(viewOf(myName), this);
    if (myMode == Mode::Collect)
        openFile();
    else
        myDescriptor = openForWriting(myName, O_TRUNC | O_APPEND);
    myIsUsable = myDescriptor >= 0;
    if (!myIsUsable)
        reportFailure("open");
    if (myMode == Mode::Collect && myIsUsable && ++theOpenFiles > theMostOpenFiles)
        closeFile();
}

// Files tend to be new when the one before was, and a file that has just been made need not be asked for its size.
void DtFilePrinter::openFile()
{
    static bool isNextOneNew = false;
    myDescriptor = isNextOneNew ? openForWriting(myName, O_EXCL) : -1;
    myIsFresh = myDescriptor >= 0;
    if (!myIsFresh)
    {
        myDescriptor = openForWriting(myName, 0);
        struct stat status = {};
        myIsFresh = myDescriptor >= 0 && fstat(myDescriptor, &status) == 0 && status.st_size == 0;
    }
    isNextOneNew = myIsFresh;
}

DtFilePrinter::~DtFilePrinter()
{
    if (myMode == Mode::Collect && myIsUsable)
        writeIfChanged();
    if (myDescriptor >= 0)
        closeFile();
    keepSpareText(std::move(myText));
    if (myMode == Mode::Collect)
        leaveOthers();
}

std::function<void(const DtString& name)>& DtFilePrinter::replacementListener()
{
    static std::function<void(const DtString& name)> theListener;
    return theListener;
}

void DtFilePrinter::tellOthers()
{
    const auto [first, end] = collectingPrinters().equal_range(viewOf(myName));
    for (auto entry = first; entry != end; ++entry)
        entry->second->myIsWrittenByAnother |= entry->second != this;
}

void DtFilePrinter::leaveOthers()
{
    const auto [first, end] = collectingPrinters().equal_range(viewOf(myName));
    collectingPrinters().erase(std::find_if(first, end, [this](const auto& entry) { return entry.second == this; }));
}

bool DtFilePrinter::closeFile()
{
    const int descriptor = myDescriptor;
    myDescriptor = -1;
    if (myMode == Mode::Collect)
        --theOpenFiles;
    return ::close(descriptor) == 0;
}

void DtFilePrinter::print(const char* text, std::size_t length)
{
    if (myMode == Mode::Collect)
    {
        if (myText.size() + length > theLargestPiece && !myText.empty())
            setPieceAside();
        myText.append(text, length);
    }
    else if (myIsUsable && !writeWhole(myDescriptor, text, length))
    {
        myIsUsable = false; // first: the report may come back through this very printer
        reportFailure("write");
    }
}

void DtFilePrinter::flush()
{
}

// Into the unnamed file, or to the pieces in memory from the first on that it does not take.
void DtFilePrinter::setPieceAside()
{
    DtFilename directory(myName);
    directory.stripFilename();
    if (myPieces.empty() && mySpilledText.append(directory, myText))
    {
        myText.clear();
        return;
    }
    myPieces.push_back(std::move(myText));
    myText = std::string();
    myText.reserve(theLargestPiece);
}

void DtFilePrinter::writeIfChanged()
{
    const bool isSilent = myText.empty() && mySpilledText.size() == 0 && myPieces.empty();
    if (isSilent && (myIsWrittenByAnother || myIsFresh))
        return;
    tellOthers();
    if (!write())
        reportFailure("write");
}

// The pieces in order, as long as the function is content.
template <typename Function>
bool DtFilePrinter::eachPiece(Function&& function) const
{
    return mySpilledText.eachPart(function) && std::all_of(myPieces.begin(), myPieces.end(), function) &&
           function(myText);
}

bool DtFilePrinter::holdsAllText() const
{
    off_t offset = 0;
    return eachPiece(
        [&](std::string_view piece)
        {
            const off_t start = offset;
            offset += static_cast<off_t>(piece.size());
            return holdsText(myDescriptor, start, piece);
        });
}

// Leaves a file alone that holds the text already, so that its time stamp stays. One of the same size keeps its room on
// the disk, as do project files, of which only identifiers change.
bool DtFilePrinter::update(std::size_t oldSize)
{
    std::size_t size = mySpilledText.size() + myText.size();
    for (const std::string& piece : myPieces)
        size += piece.size();
    if (oldSize == size && holdsAllText())
        return true;
    if (oldSize != 0 && replacementListener())
        replacementListener()(myName);
    return (oldSize == 0 || oldSize == size || ftruncate(myDescriptor, 0) == 0) &&
           eachPiece([this](std::string_view piece) { return writeWhole(myDescriptor, piece.data(), piece.size()); });
}

bool DtFilePrinter::write()
{
    struct stat status = {};
    if (myDescriptor >= 0 && fstat(myDescriptor, &status) == 0 && status.st_nlink == 0)
        closeFile(); // somebody has removed or replaced the file
    if (myDescriptor < 0)
    {
        myDescriptor = openForWriting(myName, 0);
        if (myDescriptor < 0 || fstat(myDescriptor, &status) != 0)
            return false;
        ++theOpenFiles;
    }
    const bool isWritten = update(static_cast<std::size_t>(status.st_size));
    return closeFile() && isWritten;
}

void DtFilePrinter::reportFailure(const char* what)
{
    DtTellWarning(DtRules::outputNotWritten, DtSubject::file(myName),
                  DtString("Cannot ") + what + " file " + myName + ": " + std::strerror(errno) + "\n");
}
