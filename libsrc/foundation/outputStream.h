#ifndef FOUNDATION_OUTPUT_STREAM_H
#define FOUNDATION_OUTPUT_STREAM_H

#include "foundation/printer.h"

#include <ostream>
#include <streambuf>
#include <vector>

// The buffer behind one DtOutputStream: hands every piece of text to all printers, or drops it.
class DtOutputStreamBuffer : public std::streambuf
{
public:
    DtOutputStreamBuffer() = default;
    void attachPrinter(DtPrinter* printer);
    void detachPrinter(DtPrinter* printer);
    void setLevel(const int* level, int threshold);
    bool isOpen() const { return myLevel == nullptr || *myLevel >= myThreshold; }
    // Straight to the printers, past the formatting of a std::ostream.
    void print(const char* text, std::size_t length);

protected:
    int_type overflow(int_type character) override;
    std::streamsize xsputn(const char* text, std::streamsize length) override;
    int sync() override;

private:
    const int* myLevel = nullptr;
    int myThreshold = 0;
    std::vector<DtPrinter*> myPrinters;
};

// A std::ostream that prints while the variable `level` is at or above `threshold` and drops text otherwise.
//
// The level is held by reference: a change takes effect at the next write. Neither buffer nor printers are owned.
class DtOutputStream : public std::ostream
{
public:
    DtOutputStream(DtOutputStreamBuffer* buffer, int& level, int threshold, DtPrinter* printer);

    // printf-style output. Names from a model or a file are arguments, never the format.
    DtOutputStream& operator()(const char* format, ...) __attribute__((format(printf, 2, 3)));

    void attachPrinter(DtPrinter* printer) { myBuffer->attachPrinter(printer); }
    void detachPrinter(DtPrinter* printer) { myBuffer->detachPrinter(printer); }

private:
    DtOutputStreamBuffer* myBuffer;
};

// The level all five share; 2 at start.
extern int DtNotifyLevel;

// Lowest level at which each prints: Fatal 0, Warn 1, Info 3, Verbose 4, Debug 5. Info goes to the standard output
// stream, the others to the standard error stream.
extern DtOutputStream& DtFatal;
extern DtOutputStream& DtWarn;
extern DtOutputStream& DtInfo;
extern DtOutputStream& DtVerbose;
extern DtOutputStream& DtDebug;

#endif
