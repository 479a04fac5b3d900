// The program's main() around an application that does nothing but fail, in the way its first argument names.

#include "codeGenApp/codeGenerationApp.h"
#include "foundation/exception.h"
#include "foundation/outputStream.h"

#include <csignal>
#include <cstring>
#include <map>
#include <stdexcept>

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
