#include "foundation/miniDumper.h"

#include <cstring>
#include <execinfo.h>
#include <unistd.h>

std::string DtMiniDumper::myApplicationName;

namespace
{
struct DtSignalName
{
    int number;
    const char* name;
};

const DtSignalName theSignalNames[] = {
    {SIGSEGV, "SIGSEGV, segmentation fault" },
    {SIGABRT, "SIGABRT, aborted"            },
    {SIGFPE,  "SIGFPE, arithmetic exception"},
    {SIGBUS,  "SIGBUS, bus error"           },
    {SIGILL,  "SIGILL, illegal instruction" },
};

constexpr int theFrameLimit = 128;

void put(const char* text)
{
    std::size_t length = std::strlen(text);
    while (length > 0)
    {
        const ssize_t count = ::write(STDERR_FILENO, text, length);
        if (count <= 0)
            return;
        text += count;
        length -= static_cast<std::size_t>(count);
    }
}

void putNumber(int number)
{
    char digits[12];
    char* start = digits + sizeof digits - 1;
    *start = '\0';
    for (unsigned int rest = number < 0 ? 0u : static_cast<unsigned int>(number); rest > 0 || *start == '\0';
         rest /= 10)
        *--start = static_cast<char>('0' + rest % 10);
    put(start);
}

void putSignal(int signal)
{
    putNumber(signal);
    for (const DtSignalName& each : theSignalNames)
    {
        if (each.number != signal)
            continue;
        put(" (");
        put(each.name);
        put(")");
    }
}

// The signal is blocked while its handler runs, so it is let through again to arrive at once.
[[noreturn]] void takeDefaultAction(int signal)
{
    struct sigaction action = {};
    action.sa_handler = SIG_DFL;
    sigemptyset(&action.sa_mask);
    sigaction(signal, &action, nullptr);
    sigset_t only;
    sigemptyset(&only);
    sigaddset(&only, signal);
    sigprocmask(SIG_UNBLOCK, &only, nullptr);
    raise(signal);
    _exit(128 + signal); // for a signal that is ignored by default
}
} // namespace

void DtMiniDumper::printCallStack(int signal, siginfo_t*, void*)
{
    put(myApplicationName.c_str());
    put(": caught signal ");
    putSignal(signal);
    put("\nCall stack:\n");
    void* frames[theFrameLimit];
    backtrace_symbols_fd(frames, backtrace(frames, theFrameLimit), STDERR_FILENO);
    takeDefaultAction(signal);
}

bool DtMiniDumper::installSignalStack()
{
    void* frame[1];
    backtrace(frame, 1); // the first call loads a library, which a handler must not do
    alignas(16) static char theSignalStack[64 * 1024];
    stack_t stack = {};
    stack.ss_sp = theSignalStack;
    stack.ss_size = sizeof theSignalStack;
    return sigaltstack(&stack, nullptr) == 0;
}
