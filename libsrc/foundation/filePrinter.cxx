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
unsigned long theWriteCount = 0;

// Of this many printers that collect, the files stay open; a process may have 1024.
constexpr int theMostOpenFiles = 128;
int theOpenFiles = 0;

// Names written while printers that collect are there, and the count at which each was written last. A printer asks for
// what has been written since it was made, so nothing is kept when the last one has gone.
int theCollectingPrinters = 0;
std::unordered_map<std::string, unsigned long>& writeCounts()
{
    static std::unordered_map<std::string, unsigned long> theWriteCounts;
    return theWriteCounts;
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

// Compares piece by piece, so that a difference ends the reading.
bool holdsText(int descriptor, std::string_view text)
{
    char piece[32768];
    std::size_t compared = 0;
    while (compared < text.size())
    {
        const std::size_t size = std::min(sizeof piece, text.size() - compared);
        const ssize_t count = pread(descriptor, piece, size, static_cast<off_t>(compared));
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

// Leaves a file alone that holds the text already, so that its time stamp stays.
bool updateFile(int descriptor, std::size_t size, const std::string& text)
{
    if (size == text.size() && holdsText(descriptor, text))
        return true;
    return (size == 0 || ftruncate(descriptor, 0) == 0) && writeWhole(descriptor, text.data(), text.size());
}
} // namespace

DtFilePrinter::DtFilePrinter(const char* name, Mode mode)
    : myName(name), myMode(mode), myText(takeSpareText()), mySerial(theWriteCount)
{
    if (myMode == Mode::Collect)
        ++theCollectingPrinters;
    myDescriptor = openForWriting(myName, mode == Mode::WriteThrough ? O_TRUNC | O_APPEND : 0);
    myIsUsable = myDescriptor >= 0;
    if (!myIsUsable)
        reportFailure("open");
    if (myMode == Mode::WriteThrough || !myIsUsable)
        return;
    struct stat status = {};
    myIsFresh = fstat(myDescriptor, &status) == 0 && status.st_size == 0;
    ++theOpenFiles;
    if (theOpenFiles > theMostOpenFiles)
        closeFile();
}

DtFilePrinter::~DtFilePrinter()
{
    if (myMode == Mode::Collect && myIsUsable)
        writeIfChanged();
    if (myDescriptor >= 0)
        closeFile();
    keepSpareText(std::move(myText));
    if (myMode == Mode::Collect && --theCollectingPrinters == 0)
        writeCounts().clear();
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
        myText.append(text, length);
    else if (myIsUsable && !writeWhole(myDescriptor, text, length))
    {
        myIsUsable = false; // first: the report may come back through this very printer
        reportFailure("write");
    }
}

void DtFilePrinter::flush()
{
}

void DtFilePrinter::writeIfChanged()
{
    unsigned long& lastWrite = writeCounts()[myName.stdString()];
    const bool wasWrittenSince = lastWrite > mySerial;
    if (myText.empty() && (wasWrittenSince || myIsFresh))
        return;
    lastWrite = ++theWriteCount;
    if (!write())
        reportFailure("write");
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
    const bool isWritten = updateFile(myDescriptor, static_cast<std::size_t>(status.st_size), myText);
    return closeFile() && isWritten;
}

void DtFilePrinter::reportFailure(const char* what)
{
    DtTellWarning(DtRules::outputNotWritten, DtSubject::file(myName),
                  DtString("Cannot ") + what + " file " + myName + ": " + std::strerror(errno) + "\n");
}
