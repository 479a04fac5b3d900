#include "foundation/spilledText.h"

#include <algorithm>
#include <cerrno>
#include <fcntl.h>
#include <string>
#include <unistd.h>

namespace
{
constexpr std::size_t theLargestPart = 1u << 16;

bool writeAt(int descriptor, std::size_t offset, std::string_view text)
{
    while (!text.empty())
    {
        const ssize_t count = pwrite(descriptor, text.data(), text.size(), static_cast<off_t>(offset));
        if (count < 0 && errno != EINTR)
            return false;
        const std::size_t written = count > 0 ? static_cast<std::size_t>(count) : 0;
        text.remove_prefix(written);
        offset += written;
    }
    return true;
}
} // namespace

DtSpilledText::~DtSpilledText()
{
    if (myDescriptor >= 0)
        close(myDescriptor);
}

bool DtSpilledText::append(const DtFilename& directory, std::string_view text)
{
    if (myDescriptor < 0)
        myDescriptor = open(directory.isEmpty() ? "." : directory.c_str(), O_TMPFILE | O_RDWR | O_CLOEXEC, 0600);
    if (myDescriptor < 0 || !writeAt(myDescriptor, mySize, text))
        return false;
    mySize += text.size();
    return true;
}

bool DtSpilledText::eachPart(const std::function<bool(std::string_view part)>& function) const
{
    std::string part(std::min(theLargestPart, mySize), '\0');
    for (std::size_t offset = 0; offset < mySize; offset += part.size())
    {
        part.resize(std::min(theLargestPart, mySize - offset));
        const ssize_t count = pread(myDescriptor, part.data(), part.size(), static_cast<off_t>(offset));
        if (count != static_cast<ssize_t>(part.size()) || !function(part))
            return false;
    }
    return true;
}
