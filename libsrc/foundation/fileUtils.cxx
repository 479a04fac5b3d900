#include "foundation/fileUtils.h"

#include "foundation/stringUtils.h"

#include <cerrno>
#include <chrono>
#include <climits>
#include <cstdlib>
#include <fcntl.h>
#include <poll.h>
#include <sys/stat.h>
#include <sys/utsname.h>
#include <thread>
#include <unistd.h>

FILE* DtFileOpen(const char* name, const char* mode)
{
    std::string plainMode;
    for (const char* letter = mode; *letter != '\0'; ++letter)
        if (*letter != 't')
            plainMode += *letter;
    return std::fopen(name, plainMode.c_str());
}

void DtFileClose(FILE* file)
{
    if (file != nullptr)
        std::fclose(file);
}

namespace
{
class DtDescriptor // closes what it holds
{
public:
    explicit DtDescriptor(int descriptor) : myDescriptor(descriptor) {}
    ~DtDescriptor() { close(); }
    DtDescriptor(const DtDescriptor&) = delete;
    DtDescriptor& operator=(const DtDescriptor&) = delete;
    int get() const { return myDescriptor; }
    bool close()
    {
        const int descriptor = myDescriptor;
        myDescriptor = -1;
        return descriptor >= 0 && ::close(descriptor) == 0;
    }

private:
    int myDescriptor;
};

bool readAll(int descriptor, std::size_t sizeHint, std::string& text)
{
    text.resize(sizeHint + 1); // one more than the file should hold, so that one read sees its end
    std::size_t length = 0;
    while (true)
    {
        if (length == text.size())
            text.resize(text.size() * 2);
        const ssize_t count = ::read(descriptor, &text[length], text.size() - length);
        if (count < 0 && errno == EINTR)
            continue;
        if (count <= 0)
        {
            text.resize(length);
            return count == 0;
        }
        length += static_cast<std::size_t>(count);
    }
}

bool writeAll(int descriptor, const std::string& text)
{
    std::size_t written = 0;
    while (written < text.size())
    {
        const ssize_t count = ::write(descriptor, text.data() + written, text.size() - written);
        if (count < 0 && errno != EINTR)
            return false;
        written += count > 0 ? static_cast<std::size_t>(count) : 0;
    }
    return true;
}

// Where the name leads to when it is a link, so that a rename replaces the target and not the link. The target need
// not exist. Links in a circle end the walk and fail later.
std::string linkTarget(const DtString& name)
{
    constexpr int theLinkLimit = 40;
    std::string target = name.stdString();
    char next[PATH_MAX];
    for (int step = 0; step < theLinkLimit; ++step)
    {
        const ssize_t length = readlink(target.c_str(), next, sizeof next);
        if (length < 0 || static_cast<std::size_t>(length) == sizeof next)
            break;
        const std::size_t nameStart = target.rfind('/') + 1; // 0 without a directory
        target = (next[0] == '/' ? std::string() : target.substr(0, nameStart)) +
                 std::string(next, static_cast<std::size_t>(length));
    }
    return target;
}

// A file can be put in the place of a regular file or of nothing; a device or a directory must not be replaced.
bool isReplaceable(const std::string& name)
{
    struct stat status = {};
    if (lstat(name.c_str(), &status) != 0)
        return errno == ENOENT;
    errno = S_ISDIR(status.st_mode) ? EISDIR : EINVAL;
    return S_ISREG(status.st_mode);
}

mode_t modeFor(const std::string& name)
{
    struct stat status = {};
    if (stat(name.c_str(), &status) == 0)
        return status.st_mode & 07777;
    const mode_t mask = umask(0);
    umask(mask);
    return 0666 & ~mask;
}
} // namespace

bool DtReadFile(const DtString& name, std::string& text)
{
    const DtDescriptor file(::open(name.c_str(), O_RDONLY | O_CLOEXEC | O_NONBLOCK));
    struct stat status = {};
    if (file.get() < 0 || fstat(file.get(), &status) != 0 || !S_ISREG(status.st_mode))
        return false;
    return readAll(file.get(), static_cast<std::size_t>(status.st_size), text);
}

bool DtMakeDirectory(const DtFilename& directory)
{
    // The last directory alone is missing as a rule.
    if (mkdir(directory.c_str(), 0777) == 0)
        return true;
    DtString path(directory.isAbsolute() ? "/" : "");
    if (errno == ENOENT)
    {
        for (const DtString& piece : DtSplit(directory, '/', DtEmptyPieces::Drop))
        {
            path += piece;
            if (mkdir(path.c_str(), 0777) != 0 && errno != EEXIST && errno != EROFS && errno != EACCES)
                return false;
            path += '/';
        }
    }
    struct stat status = {};
    return directory.isEmpty() || (stat(directory.c_str(), &status) == 0 && S_ISDIR(status.st_mode));
}

bool DtReplaceFile(const DtString& name, const std::string& text)
{
    const std::string target = linkTarget(name);
    if (target.empty() || !isReplaceable(target))
        return false;
    std::string sibling = target + ".XXXXXX";
    DtDescriptor file(mkstemp(sibling.data()));
    if (file.get() < 0)
        return false;
    static_cast<void>(fchmod(file.get(), modeFor(target))); // fails on file systems that know no modes
    const bool isWritten = writeAll(file.get(), text) && fsync(file.get()) == 0 && file.close();
    if (isWritten && rename(sibling.c_str(), target.c_str()) == 0)
        return true;
    const int cause = errno;
    unlink(sibling.c_str());
    errno = cause;
    return false;
}

void DtSleep(double seconds)
{
    std::this_thread::sleep_for(std::chrono::duration<double>(seconds));
}

bool DtPollBlockingInputChar()
{
    pollfd input = {STDIN_FILENO, POLLIN, 0};
    char character = '\0';
    // An ended or closed input counts as a key: nobody could press one.
    return poll(&input, 1, 0) > 0 && (::read(STDIN_FILENO, &character, 1) >= 0 || errno != EAGAIN);
}

DtString DtOperatingSystem()
{
    utsname name = {};
    return uname(&name) == 0 ? DtString(name.sysname) : DtString("unknown");
}

DtString DtCompiler()
{
#if defined(__clang__)
    return DtString("clang ") + __clang_version__;
#else
    return DtString("g++ ") + __VERSION__;
#endif
}

int diagonalizable()
{
    return 0;
}
