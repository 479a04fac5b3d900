#ifndef FOUNDATION_MINI_DUMPER_H
#define FOUNDATION_MINI_DUMPER_H

#include <csignal>
#include <string>

// Reports a crash on the standard error stream: the program's name, the signal and the call stack.
class DtMiniDumper
{
public:
    static std::string myApplicationName; // names the program in the report

    // A handler for sigaction with SA_SIGINFO | SA_ONSTACK. Prints the report and then lets the signal take its
    // default action; never returns to the code that faulted. Calls nothing that allocates memory or takes locks.
    static void printCallStack(int signal, siginfo_t* info, void* context);

    // Gives the calling thread a signal stack of its own, without which a stack overflow cannot be reported, and
    // prepares what the handler must not do itself. To be called once, ahead of sigaction. False when refused.
    static bool installSignalStack();
};

#endif
