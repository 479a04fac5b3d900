#include "modelTools/outputException.h"

#include <system_error>

DtOutputException::DtOutputException(const std::filesystem::path& path, const std::string& reason)
    : DtException((path.native() + ": " + reason).c_str()), myPath(path), myReason(reason)
{
}

DtOutputException DtOutputException::ofSystem(const std::filesystem::path& path, const std::string& failure, int error)
{
    return DtOutputException(path, error == 0 ? failure : failure + ": " + std::generic_category().message(error));
}
