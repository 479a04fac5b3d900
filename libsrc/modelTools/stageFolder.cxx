#include "modelTools/stageFolder.h"

#include "modelTools/outputException.h"
#include "modelTools/outputPath.h"

#include <algorithm>
#include <cstdlib>
#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

namespace
{
bool isOfMkdtemp(char letter)
{
    return (letter >= '0' && letter <= '9') || (letter >= 'A' && letter <= 'Z') || (letter >= 'a' && letter <= 'z');
}

bool hasMark(const std::filesystem::path& stage)
{
    std::error_code ignored;
    return std::filesystem::is_regular_file(std::filesystem::symlink_status(stage / DtStageFolder::theMark, ignored));
}

void fillStage(const std::filesystem::path& stage)
{
    const std::filesystem::path mark = stage / DtStageFolder::theMark;
    const int file = ::open(mark.c_str(), O_WRONLY | O_CREAT | O_EXCL | O_CLOEXEC, 0666);
    if (file < 0)
        throw DtOutputException::ofSystem(mark, "cannot be made");
    ::close(file);
    const std::filesystem::path files = stage / DtStageFolder::theFiles;
    if (mkdir(files.c_str(), 0777) != 0)
        throw DtOutputException::ofSystem(files, "the folder cannot be made");
}
} // namespace

DtStageFolder::DtStageFolder(const std::filesystem::path& parent)
{
    std::string name = (parent / (std::string(theReservedPrefix) + "XXXXXX")).native();
    if (mkdtemp(name.data()) == nullptr) // QTemporaryDir takes names as text, which a folder's name need not be
        throw DtOutputException::ofSystem(parent, "a folder cannot be made here");
    myPath = name;
    try
    {
        fillStage(myPath);
    }
    catch (...)
    {
        remove(myPath);
        throw;
    }
}

DtStageFolder::~DtStageFolder()
{
    if (!myIsReleased)
        remove(myPath);
}

bool DtStageFolder::isName(const std::string& name)
{
    constexpr std::size_t theRandomLetters = 6;
    const std::size_t start = std::string(theReservedPrefix).size();
    return DtIsReservedPath(name) && name.size() == start + theRandomLetters &&
           std::all_of(name.begin() + static_cast<std::ptrdiff_t>(start), name.end(), isOfMkdtemp);
}

bool DtStageFolder::isOne(const std::filesystem::path& path)
{
    std::error_code ignored;
    if (!isName(path.filename().native()) ||
        !std::filesystem::is_directory(std::filesystem::symlink_status(path, ignored)))
        return false;
    return hasMark(path) || std::filesystem::is_empty(path, ignored);
}

bool DtStageFolder::remove(const std::filesystem::path& stage)
{
    std::error_code error;
    std::filesystem::remove_all(stage / theFiles, error);
    for (std::filesystem::directory_iterator each(stage, error), end; !error && each != end; each.increment(error))
        if (each->path().filename() != theMark)
            std::filesystem::remove_all(each->path(), error);
    if (error)
        return false;
    std::filesystem::remove(stage / theMark, error);
    return std::filesystem::remove(stage, error);
}
