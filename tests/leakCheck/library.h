#ifndef TESTS_LEAK_CHECK_LIBRARY_H
#define TESTS_LEAK_CHECK_LIBRARY_H

// Keeps memory in the library's thread-local block. The first call allocates that block.
extern "C" void hold(void* memory);

#endif
