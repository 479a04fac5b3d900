#include "modelTools/windowStart.h"

#include "modelTools/dataDirectory.h"
#include "modelTools/inputPath.h"
#include "modelTools/toolFailure.h"
#include "omtReader/fedReader.h"

#include <algorithm>
#include <cerrno>
#include <csignal>
#include <cstdlib>
#include <cstring>
#include <filesystem>
#include <system_error>
#include <unistd.h>

namespace fs = std::filesystem;

namespace
{
[[noreturn]] void fail(DtExitCode code, const std::string& text)
{
    throw DtToolFailure(code, text);
}

bool isProject(const std::string& path)
{
    return fs::path(path).extension() == ".qxproj";
}

// The program itself ends in silence where its window cannot be seen.
void checkDisplay()
{
    for (const char* name : {"DISPLAY", "WAYLAND_DISPLAY", "QT_QPA_PLATFORM"})
    {
        const char* const value = std::getenv(name);
        if (value != nullptr && *value != '\0')
            return;
    }
    fail(DtExitCode::Usage, "there is no display for the window: neither DISPLAY nor WAYLAND_DISPLAY is set. "
                            "qxgen generate needs none.");
}

// Beside this program where both are installed, in a folder beside its own in the build tree.
std::string findProgram()
{
    std::error_code ignored;
    const fs::path here = fs::read_symlink("/proc/self/exe", ignored).parent_path();
    for (const char* place : {"codeGen", "../codeGen/codeGen"})
    {
        const std::string path = (here / place).lexically_normal().string();
        if (DtIsFile(path) && access(path.c_str(), X_OK) == 0)
            return path;
    }
    fail(DtExitCode::Unreadable, "there is no codeGen, the program with the window, beside qxgen in " + here.string() +
                                     "; build or install it.");
}

// The folder of programs where there is one, else the data directory itself: ".." leads to the same place from both.
std::string directoryBeside(const std::string& dataDirectory)
{
    const fs::path data = fs::path(dataDirectory).parent_path(); // without the separator at the end
    if (data.filename() != "data")
        fail(DtExitCode::Unreadable,
             "the window needs a data directory that is called \"data\", which " + data.string() + " is not.");
    std::error_code ignored;
    const fs::path programs = data.parent_path() / "bin";
    return (fs::is_directory(programs, ignored) ? programs : data).string();
}

std::string findModel(const std::string& name)
{
    if (DtIsFile(name))
        return DtAbsolutePath(name);
    const DtString below = DtFedReader::pathBelowRtiConfig(name.c_str());
    if (!below.isEmpty() && DtIsFile(below.stdString()))
        return DtAbsolutePath(below.stdString());
    fail(DtExitCode::Unreadable, "there is no model " + name + " in the working directory or below RTI_CONFIG.");
}

std::vector<std::string> argumentsFor(const std::vector<std::string>& files)
{
    if (std::any_of(files.begin(), files.end(), isProject) && files.size() > 1)
        fail(DtExitCode::Usage, "a project stands alone: it names its models itself.");
    std::vector<std::string> arguments;
    for (const std::string& file : files)
    {
        if (isProject(file) && !DtIsFile(file))
            fail(DtExitCode::Unreadable, "there is no project file " + file + ".");
        arguments.emplace_back(isProject(file) ? "-P" : "-F");
        arguments.push_back(isProject(file) ? DtAbsolutePath(file) : findModel(file));
    }
    return arguments;
}
} // namespace

DtWindowStart DtWindowStart::of(const std::vector<std::string>& files, const std::string& dataDirectory)
{
    DtWindowStart start;
    start.arguments = argumentsFor(files);
    checkDisplay();
    start.program = findProgram();
    start.dataDirectory = DtFindDataDirectory(dataDirectory);
    start.workingDirectory = directoryBeside(start.dataDirectory);
    return start;
}

void DtWindowStart::replaceProcess() const
{
    if (chdir(workingDirectory.c_str()) != 0)
        fail(DtExitCode::Unreadable, workingDirectory + " cannot be entered: " + std::strerror(errno) + ".");
    setenv("QX_DATA_DIR", dataDirectory.c_str(), 1);
    std::vector<char*> pointers = {const_cast<char*>(program.c_str())};
    for (const std::string& argument : arguments)
        pointers.push_back(const_cast<char*>(argument.c_str()));
    pointers.push_back(nullptr);
    for (const int signal : {SIGPIPE, SIGXFSZ}) // an ignored signal would stay ignored
        std::signal(signal, SIG_DFL);
    execv(program.c_str(), pointers.data());
    fail(DtExitCode::Unreadable, program + " cannot be started: " + std::strerror(errno) + ".");
}
