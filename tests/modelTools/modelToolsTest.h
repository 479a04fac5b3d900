#ifndef TESTS_MODEL_TOOLS_MODEL_TOOLS_TEST_H
#define TESTS_MODEL_TOOLS_MODEL_TOOLS_TEST_H

#include "foundation/foundationTest.h"
#include "modelTools/outputException.h"

#include <filesystem>
#include <fstream>
#include <iterator>
#include <set>
#include <sys/wait.h>

// std::string throughout, since names need not be UTF-8.
inline std::string readBytes(const std::filesystem::path& path)
{
    std::ifstream in(path, std::ios::binary);
    return std::string(std::istreambuf_iterator<char>(in), {});
}

inline void writeBytes(const std::filesystem::path& path, const std::string& content)
{
    std::error_code ignored;
    std::filesystem::create_directories(path.parent_path(), ignored);
    std::ofstream out(path, std::ios::binary);
    out << content << std::flush;
    if (!out)
        throw std::runtime_error("cannot write " + path.native());
}

// A folder that goes with the object. QTemporaryDir leaves files whose names are not UTF-8.
class DtTestFolder
{
public:
    explicit DtTestFolder(const std::filesystem::path& parent = std::filesystem::temp_directory_path())
    {
        std::string name = (parent / "modelToolsTests-XXXXXX").native();
        if (mkdtemp(name.data()) == nullptr)
            qFatal("no temporary folder");
        myPath = name;
    }
    ~DtTestFolder()
    {
        std::error_code ignored;
        std::filesystem::remove_all(myPath, ignored);
    }
    DtTestFolder(const DtTestFolder&) = delete;
    DtTestFolder& operator=(const DtTestFolder&) = delete;
    const std::filesystem::path& path() const { return myPath; }
    // A folder in memory where there is one, for what would wait for a disk most of the time.
    static std::filesystem::path memory()
    {
        return access("/dev/shm", W_OK) == 0 ? "/dev/shm" : std::filesystem::temp_directory_path();
    }

private:
    std::filesystem::path myPath;
};

// Sorted names of what the staging has in the folder, blanks between.
inline std::string ownNames(const std::filesystem::path& directory)
{
    std::set<std::string> names;
    for (const auto& each : std::filesystem::directory_iterator(directory))
        if (each.path().filename().native().rfind(".qxgen-", 0) == 0)
            names.insert(each.path().filename().native());
    std::string text;
    for (const std::string& name : names)
        text += (text.empty() ? "" : " ") + name;
    return text;
}

// The path below `directory` and the reason of the output error that the function throws; empty without one.
inline std::string errorOf(const std::filesystem::path& directory, const std::function<void()>& function)
{
    try
    {
        function();
    }
    catch (const DtOutputException& error)
    {
        return error.path().lexically_relative(directory).native() + ": " + error.reason();
    }
    return std::string();
}

// Takes off the handlers of Qt Test, which report every signal as a failure.
inline void useDefaultSignals()
{
    for (const int signal : {SIGINT, SIGTERM, SIGHUP})
        std::signal(signal, SIG_DFL);
}

// Runs the function in a copy of this process and goes on at once; its exit code is 1 after an exception.
inline pid_t startChild(const std::function<void()>& function)
{
    const pid_t child = fork();
    if (child != 0)
        return child;
    useDefaultSignals();
    try
    {
        function();
    }
    catch (const std::exception& error)
    {
        std::fprintf(stderr, "%s\n", error.what());
        _exit(1);
    }
    _exit(0);
}

// Exit code of the child, or 128 and the number of the signal that has ended it.
inline int endOf(pid_t child)
{
    int status = 0;
    if (child < 0 || waitpid(child, &status, 0) != child)
        qFatal("no child process");
    return WIFEXITED(status) ? WEXITSTATUS(status) : 128 + WTERMSIG(status);
}

// One process tells another that it may go on.
class DtTestGate
{
public:
    DtTestGate()
    {
        if (pipe(myEnds) != 0)
            qFatal("no pipe");
    }
    ~DtTestGate()
    {
        close(myEnds[0]);
        close(myEnds[1]);
    }
    DtTestGate(const DtTestGate&) = delete;
    DtTestGate& operator=(const DtTestGate&) = delete;
    void open()
    {
        if (write(myEnds[1], "x", 1) != 1)
            qFatal("cannot write to a pipe");
    }
    void pass()
    {
        char byte = 0;
        if (read(myEnds[0], &byte, 1) != 1)
            qFatal("cannot read from a pipe");
    }

private:
    int myEnds[2] = {-1, -1};
};

#endif
