#include "modelTools/dataDirectory.h"

#include "modelTools/toolFailure.h"

#include <cstdlib>
#include <filesystem>
#include <system_error>
#include <vector>

namespace fs = std::filesystem;

namespace
{
// A file that every data directory has.
constexpr const char* theLandmark = "config/codeGenConfig.xml";

bool isDataDirectory(const fs::path& directory)
{
    std::error_code ignored;
    return fs::is_regular_file(directory / theLandmark, ignored);
}

fs::path programDirectory()
{
    std::error_code ignored;
    return fs::read_symlink("/proc/self/exe", ignored).parent_path();
}

std::string checked(const std::string& directory, const char* source)
{
    if (!isDataDirectory(directory))
        throw DtToolFailure(DtExitCode::Unreadable, std::string(source) + " names " + directory +
                                                        ", which is no data directory: it has no " + theLandmark + ".");
    return (fs::absolute(directory) / "").lexically_normal().string();
}
} // namespace

std::string DtFindDataDirectory(const std::string& given)
{
    if (!given.empty())
        return checked(given, "--data-dir");
    const char* const variable = std::getenv("QX_DATA_DIR");
    if (variable != nullptr && *variable != '\0')
        return checked(variable, "QX_DATA_DIR");
    const fs::path program = programDirectory();
    for (const char* place : {"../data", QX_DATA_FROM_BIN, "../../../../data"})
        if (isDataDirectory(program / place))
            return (program / place).lexically_normal().string() + "/";
    throw DtToolFailure(DtExitCode::Unreadable, "there is no data directory beside the program in " + program.string() +
                                                    "; name it with --data-dir or QX_DATA_DIR.");
}
