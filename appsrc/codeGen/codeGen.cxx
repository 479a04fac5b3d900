#include "codeGenApp/codeGenerationApp.h"
#include "foundation/exception.h"
#include "foundation/miniDumper.h"
#include "foundation/outputStream.h"

#include <csignal>

namespace
{
void installCrashHandler()
{
    DtMiniDumper::installSignalStack(); // a stack overflow is reported too
    struct sigaction action = {};
    action.sa_sigaction = DtMiniDumper::printCallStack;
    action.sa_flags = SA_SIGINFO | SA_ONSTACK;
    sigemptyset(&action.sa_mask);
    for (int signalNumber : {SIGSEGV, SIGABRT, SIGFPE})
        sigaction(signalNumber, &action, nullptr);
}

// A reader that goes away, and a limit on the size of files, make a write fail, which is told where it happens. They do
// not end the run. With a handler, which SIG_IGN is not, the programs that are started from here have the defaults.
void outliveFailedWrites()
{
    struct sigaction action = {};
    action.sa_handler = [](int) {};
    action.sa_flags = SA_RESTART;
    sigemptyset(&action.sa_mask);
    for (int signalNumber : {SIGPIPE, SIGXFSZ})
        sigaction(signalNumber, &action, nullptr);
}

void runApplication(int argc, char** argv)
{
    DtCodeGenerationApp application(argc, argv);
    application.run();
}
} // namespace

// The exit code is 0 after every normal run and every caught exception.
int main(int argc, char** argv)
{
    DtMiniDumper::myApplicationName = "CodeGen";
    installCrashHandler();
    outliveFailedWrites();
    try
    {
        runApplication(argc, argv);
    }
    catch (const DtException& exception)
    {
        DtWarn << "Caught DtException with stack: \n" << exception << std::endl;
    }
    catch (const std::exception& exception)
    {
        DtWarn << "Caught std::exception: " << exception.what() << std::endl;
    }
    catch (...)
    {
        DtWarn << "Caught Unknown Exception in. int main(int, char**)[codeGen:45]" << std::endl;
    }
    return 0;
}
