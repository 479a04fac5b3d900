#include "modelTools/inputPath.h"

#include <filesystem>
#include <system_error>

bool DtIsFile(const std::string& path)
{
    std::error_code ignored;
    return std::filesystem::is_regular_file(path, ignored);
}

std::string DtAbsolutePath(const std::string& path)
{
    return path.empty() ? path : std::filesystem::absolute(path).lexically_normal().string();
}
