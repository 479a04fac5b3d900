#ifndef MODEL_TOOLS_OUTPUT_EXCEPTION_H
#define MODEL_TOOLS_OUTPUT_EXCEPTION_H

#include "foundation/exception.h"

#include <cerrno>
#include <filesystem>
#include <string>

// Thrown when output cannot be written: names the file or folder at fault and the reason.
class DtOutputException : public DtException
{
public:
    DtOutputException(const std::filesystem::path& path, const std::string& reason);
    // The reason is what failed ("cannot be removed") followed by the system's text for the error number; a number of 0
    // adds nothing.
    static DtOutputException ofSystem(const std::filesystem::path& path, const std::string& failure, int error = errno);

    const std::filesystem::path& path() const { return myPath; }
    const std::string& reason() const { return myReason; }

private:
    std::filesystem::path myPath;
    std::string myReason;
};

#endif
