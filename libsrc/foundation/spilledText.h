#ifndef FOUNDATION_SPILLED_TEXT_H
#define FOUNDATION_SPILLED_TEXT_H

#include "foundation/filename.h"

#include <cstddef>
#include <functional>
#include <string_view>

// Text that is kept out of memory: in a file without a name, so that nobody sees it and it goes with this object or
// with the process, however that ends. Not every file system has such files.
class DtSpilledText
{
public:
    DtSpilledText() = default;
    DtSpilledText(const DtSpilledText&) = delete;
    DtSpilledText& operator=(const DtSpilledText&) = delete;
    ~DtSpilledText();

    // Puts the text behind what is there. The file lies in that directory, which is looked at the first time only.
    // False, with nothing added, where there can be no such file or it is full.
    bool append(const DtFilename& directory, std::string_view text);
    std::size_t size() const { return mySize; }
    // Calls the function with one part after the other, as long as it is content. False when it was not, or when the
    // text cannot be read.
    bool eachPart(const std::function<bool(std::string_view part)>& function) const;

private:
    int myDescriptor = -1; // until there is text
    std::size_t mySize = 0;
};

#endif
