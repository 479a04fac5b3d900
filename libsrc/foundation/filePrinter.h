#ifndef FOUNDATION_FILE_PRINTER_H
#define FOUNDATION_FILE_PRINTER_H

#include "foundation/printer.h"
#include "foundation/spilledText.h"
#include "foundation/string.h"

#include <functional>
#include <string>
#include <vector>

// A printer that writes a file. Missing parent directories are made.
//
// The file exists, at least empty, from construction. The text is collected and written when the printer is destroyed,
// in one call unless it is large: a file that already holds exactly this text keeps its time stamp. Of a large text,
// only the end is in memory, and the rest in an unnamed file beside the printer's where there can be one. A printer
// that received no text leaves the file alone when another printer of this process has written it since, and empties it
// otherwise. A failed open or write is named once on DtWarn; nothing is thrown.
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
    // The text collected so far, but for the head of a large one, for a writer that builds it in place and does not
    // print to it.
    std::string& text() { return myText; }
    bool isOpen() const { return myIsUsable; }

    // Called with the name of each file that has held another text until now; empty when nobody wants to know.
    static std::function<void(const DtString& name)>& replacementListener();

private:
    void tellOthers();
    void leaveOthers();
    void writeIfChanged();
    template <typename Function>
    bool eachPiece(Function&& function) const;
    bool holdsAllText() const;
    bool update(std::size_t oldSize);
    bool write();
    void openFile();
    bool closeFile();
    void reportFailure(const char* what);
    void setPieceAside();

    DtString myName;
    Mode myMode;
    DtSpilledText mySpilledText;       // the head of a large text ...
    std::vector<std::string> myPieces; // ... and what comes ahead of the rest where the file did not take it
    std::string myText;
    int myDescriptor = -1; // of the open file
    bool myIsUsable = false;
    bool myIsFresh = false;            // made, or found empty, by this printer
    bool myIsWrittenByAnother = false; // by a printer that has written the file while this one was there
};

#endif
