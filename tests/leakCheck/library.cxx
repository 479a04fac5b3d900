// A library with a thread-local variable, to be loaded while a program runs.

#include "library.h"

namespace
{
// Two pointers make a block of 16 bytes. Nobody reads them, so only volatile ones are written.
thread_local void* volatile theHeld = nullptr;
thread_local void* volatile theOther = nullptr;
} // namespace

void hold(void* memory)
{
    theHeld = memory;
    theOther = memory;
}
