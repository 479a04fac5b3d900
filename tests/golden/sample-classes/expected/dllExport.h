#ifndef DT_DLL_CASE_EXPORT_H
#define DT_DLL_CASE_EXPORT_H
 
// Generated from case; the next generation writes it anew.
 
// Marks what a shared library offers. The project file defines CASE_EXPORTS when it builds one; a program
// that uses it as a DLL defines DT_DLL_CASE_SHARED. A static library needs neither.
#if defined(_WIN32) && defined(CASE_EXPORTS)
#define DT_DLL_CASE __declspec(dllexport)
#elif defined(_WIN32) && defined(DT_DLL_CASE_SHARED)
#define DT_DLL_CASE __declspec(dllimport)
#elif defined(__GNUC__)
#define DT_DLL_CASE __attribute__((visibility("default")))
#else
#define DT_DLL_CASE
#endif
 
#include <qx/valueTypes.h>
 
#endif
