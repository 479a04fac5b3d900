#include "modelTools/inputPath.h"

#include "modelTools/toolFailure.h"

#include <filesystem>
#include <system_error>

bool DtIsFile(const std::string& path)
{
    std::error_code ignored;
    return std::filesystem::is_regular_file(path, ignored);
}

std::string DtAbsolutePath(const std::string& path)
{
    if (path.empty())
        return path;
    std::error_code error;
    const std::filesystem::path absolute = std::filesystem::absolute(path, error);
    if (error) // of the working directory
        throw DtToolFailure(DtExitCode::Unreadable, "the working directory cannot be found: " + error.message() + ".");
    return absolute.lexically_normal().string();
}
