#include "foundation/outputStream.h"

#include "foundation/warningRules.h"

#include <algorithm>
#include <cerrno>
#include <cstdarg>
#include <cstdio>
#include <cstring>
#include <string>

int DtNotifyLevel = 2;

void DtOutputStreamBuffer::attachPrinter(DtPrinter* printer)
{
    if (printer != nullptr)
        myPrinters.push_back(printer);
}

void DtOutputStreamBuffer::detachPrinter(DtPrinter* printer)
{
    myPrinters.erase(std::remove(myPrinters.begin(), myPrinters.end(), printer), myPrinters.end());
}

void DtOutputStreamBuffer::setLevel(const int* level, int threshold)
{
    myLevel = level;
    myThreshold = threshold;
}

void DtOutputStreamBuffer::print(const char* text, std::size_t length)
{
    if (length == 0 || !isOpen())
        return;
    for (DtPrinter* printer : myPrinters)
        printer->print(text, length);
}

DtOutputStreamBuffer::int_type DtOutputStreamBuffer::overflow(int_type character)
{
    if (!traits_type::eq_int_type(character, traits_type::eof()))
    {
        const char byte = traits_type::to_char_type(character);
        print(&byte, 1);
    }
    return traits_type::not_eof(character);
}

std::streamsize DtOutputStreamBuffer::xsputn(const char* text, std::streamsize length)
{
    print(text, static_cast<std::size_t>(length));
    return length;
}

int DtOutputStreamBuffer::sync()
{
    for (DtPrinter* printer : myPrinters)
        printer->flush();
    return 0;
}

DtOutputStream::DtOutputStream(DtOutputStreamBuffer* buffer, int& level, int threshold, DtPrinter* printer)
    : std::ostream(buffer), myBuffer(buffer)
{
    myBuffer->setLevel(&level, threshold);
    myBuffer->attachPrinter(printer);
}

DtOutputStream& DtOutputStream::operator()(const char* format, ...)
{
    if (!myBuffer->isOpen())
        return *this;
    va_list arguments;
    va_start(arguments, format);
    va_list again;
    va_copy(again, arguments);
    const int length = std::vsnprintf(nullptr, 0, format, arguments);
    va_end(arguments);
    if (length > 0)
    {
        std::string text(static_cast<std::size_t>(length), '\0');
        std::vsnprintf(text.data(), text.size() + 1, format, again);
        *this << text;
    }
    va_end(again);
    return *this;
}

namespace
{
class DtConsolePrinter : public DtPrinter
{
public:
    DtConsolePrinter(FILE* file, const char* name) : myFile(file), myName(name) {}
    void print(const char* text, std::size_t length) override { check(std::fwrite(text, 1, length, myFile) == length); }
    void flush() override { check(std::fflush(myFile) == 0); }

private:
    // Tells of the first failed write. That reaches whoever still listens, the log file or the other console stream.
    void check(bool isWritten)
    {
        if (isWritten || myHasFailed)
            return;
        myHasFailed = true; // first: the text may come back through this very printer
        DtTellWarning(DtRules::streamNotWritten, DtSubject::none(),
                      DtString("Cannot write to the standard ") + myName + " stream: " + std::strerror(errno) + "\n");
    }

    FILE* myFile;
    const char* myName;
    bool myHasFailed = false;
};

// A stream with its buffer and console printer. Never destroyed, so that destructors of static objects can still
// report.
DtOutputStream& makeGlobalStream(int threshold, FILE* file)
{
    const char* const name = file == stdout ? "output" : "error";
    return *new DtOutputStream(new DtOutputStreamBuffer, DtNotifyLevel, threshold, new DtConsolePrinter(file, name));
}
} // namespace

DtOutputStream& DtFatal = makeGlobalStream(0, stderr);
DtOutputStream& DtWarn = makeGlobalStream(1, stderr);
DtOutputStream& DtInfo = makeGlobalStream(3, stdout);
DtOutputStream& DtVerbose = makeGlobalStream(4, stderr);
DtOutputStream& DtDebug = makeGlobalStream(5, stderr);
