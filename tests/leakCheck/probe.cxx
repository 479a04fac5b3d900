// Loads the library that the first argument names, and has its thread-local block allocated at the place that the
// sanitizers mistake, 16 bytes into a page. With a second argument it leaks memory too.

#include "library.h"

#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <dlfcn.h>

namespace
{
constexpr std::uintptr_t thePageSize = 4096;
constexpr std::size_t theBlockSize = 16; // of the library's thread-local variables
constexpr std::uintptr_t theStep = 32;   // from one such block to the next, which the sanitizer allocates behind it
constexpr int theTryLimit = 1000;

void* volatile theLost = nullptr;
void** theChain = nullptr; // keeps what is allocated on the way from being a leak

// Allocates blocks until the next one begins 16 bytes into a page. False when none does.
bool reachPage()
{
    for (int i = 0; i < theTryLimit; ++i)
    {
        void** const block = static_cast<void**>(std::malloc(theBlockSize));
        *block = theChain;
        theChain = block;
        if ((reinterpret_cast<std::uintptr_t>(block) + theStep) % thePageSize == 16)
            return true;
    }
    return false;
}
} // namespace

int main(int argc, char** argv)
{
    void* const library = argc > 1 ? dlopen(argv[1], RTLD_NOW) : nullptr;
    const auto holdInLibrary = library == nullptr ? nullptr : reinterpret_cast<decltype(&hold)>(dlsym(library, "hold"));
    if (holdInLibrary == nullptr)
        return 2;
    void* const held = std::malloc(1000); // only the library's block tells of it
    if (!reachPage())
        return 3;
    holdInLibrary(held);
    if (argc > 2)
    {
        theLost = std::malloc(777);
        theLost = nullptr;
    }
    std::puts("done");
    return 0;
}
