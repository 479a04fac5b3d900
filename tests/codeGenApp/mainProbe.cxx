// The program's main() around an application that does nothing but fail, or meet a failure, in the way its first
// argument names.

#include "codeGenApp/codeGenerationApp.h"
#include "foundation/exception.h"
#include "foundation/filePrinter.h"
#include "foundation/fileUtils.h"
#include "foundation/outputStream.h"

#include <cerrno>
#include <csignal>
#include <cstdlib>
#include <cstring>
#include <map>
#include <stdexcept>
#include <sys/resource.h>
#include <unistd.h>

namespace
{
const char* theFailure = "";

// Not a tail call, so that each call takes a frame.
int overflowStack(volatile int depth)
{
    volatile char block[4096];
    block[0] = static_cast<char>(depth);
    return depth < 0 ? 0 : overflowStack(depth + 1) + block[0];
}

// Writes to a standard output that nobody reads any more.
int writeToNobody()
{
    int ends[2] = {};
    if (pipe(ends) != 0 || dup2(ends[1], STDOUT_FILENO) < 0)
        return 1;
    close(ends[0]);
    close(ends[1]);
    DtNotifyLevel = 3;
    DtInfo << "lost" << std::endl;
    DtWarn << "alive" << std::endl;
    return 0;
}

// Writes files that are larger than the process may have.
int writeBeyondTheLimit()
{
    const rlimit limit = {4096, 4096};
    const std::string text(100000, 'x');
    setrlimit(RLIMIT_FSIZE, &limit);
    const bool isReplaced = DtReplaceFile("replaced", text);
    DtWarn << (isReplaced ? "replaced" : std::strerror(errno)) << std::endl;
    DtFilePrinter("printed").print(text.data(), text.size());
    return 0;
}

// Programs started from here have to end by these signals as they do elsewhere.
int startPrograms()
{
    for (const char* command : {"kill -s PIPE $$; echo alive >&2", "kill -s XFSZ $$; echo alive >&2"})
        if (std::system(command) == -1)
            return 1;
    return 0;
}

int fail()
{
    static const std::map<DtString, int (*)()> theFailures = {
        {"DtException",    []() -> int { DT_THROW("wrong order"); }                 },
        {"std::exception", []() -> int { throw std::runtime_error("out of paper"); }},
        {"unknown",        []() -> int { throw 1; }                                 },
        {"overflow",       [] { return overflowStack(0); }                          },
        {"SIGFPE",         [] { return raise(SIGFPE); }                             },
        {"SIGABRT",        [] { return raise(SIGABRT); }                            },
        {"result",         [] { return 5; }                                         },
        {"SIGPIPE",        writeToNobody                                            },
        {"SIGXFSZ",        writeBeyondTheLimit                                      },
        {"programs",       startPrograms                                            },
    };
    const auto found = theFailures.find(theFailure);
    return found == theFailures.end() ? 0 : found->second();
}
} // namespace

DtCodeGenerationApp::DtCodeGenerationApp(int argc, char** argv)
    : mySettings("", "", ""),
      myGenerate(nullptr, "generate", false, "", DtScopeNone, false, ""),
      myAll(nullptr, "all", false, "", DtScopeNone, false, ""),
      myOutputDir(nullptr, "outputDir", "", "", DtScopeNone, false, ""),
      myFomDefFile(nullptr, "fomDefFile", "", "", DtScopeNone, false, ""),
      myProject(nullptr, "project", "", "", DtScopeNone, false, ""),
      myIncludeDir(nullptr, "includeDir", "", "", DtScopeNone, false, ""),
      myClassPrefix(nullptr, "classPrefix", "", "", DtScopeNone, false, "")
{
    theFailure = argv[1];
    if (argc > 2 && std::strcmp(argv[2], "early") == 0)
        fail();
}

DtCodeGenerationApp::~DtCodeGenerationApp()
{
    DtWarn << "destroyed" << std::endl;
}

int DtCodeGenerationApp::run()
{
    return fail();
}
