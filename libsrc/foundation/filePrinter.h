#ifndef FOUNDATION_FILE_PRINTER_H
#define FOUNDATION_FILE_PRINTER_H

#include "foundation/printer.h"
#include "foundation/string.h"

#include <string>

// A printer that writes a file. Missing parent directories are made.
//
// The file exists, at least empty, from construction. The text is collected and written in one call when the printer
// is destroyed: a file that already holds exactly this text keeps its time stamp. A printer that received no text
// leaves the file alone when another printer of this process has written it since, and empties it otherwise. A failed
// open or write is named once on DtWarn; nothing is thrown.
//
// The file stays open in between, so that it is opened once, unless many are: a generator holds dozens of printers.
class DtFilePrinter : public DtPrinter
{
public:
    enum class Mode
    {
        Collect,     // write when destroyed
        WriteThrough // every piece at once, for a log file
    };

    explicit DtFilePrinter(const char* name, Mode mode = Mode::Collect);
    ~DtFilePrinter() override;
    DtFilePrinter(const DtFilePrinter&) = delete;
    DtFilePrinter& operator=(const DtFilePrinter&) = delete;

    void print(const char* text, std::size_t length) override;
    void flush() override;
    // The text collected so far, for a writer that builds it in place.
    std::string& text() { return myText; }
    bool isOpen() const { return myIsUsable; }

private:
    void writeIfChanged();
    bool write();
    bool closeFile();
    void reportFailure(const char* what);

    DtString myName;
    Mode myMode;
    std::string myText;
    int myDescriptor = -1; // of the open file
    bool myIsUsable = false;
    bool myIsFresh = false;     // made, or found empty, by this printer
    unsigned long mySerial = 0; // count of files written by this process when this printer was made
};

#endif
