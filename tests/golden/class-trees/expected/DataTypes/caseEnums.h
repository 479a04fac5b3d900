#ifndef DT_DLL_CASE_ENUMS_H
#define DT_DLL_CASE_ENUMS_H
 
// Generated from case; the next generation writes it anew.
//
// Every enumerator has the letter e in front, so that digits and keywords are names too. DtEnumeratorsOf gives the names
// as the model has them, without the letter.
 
#include <qx/enumerators.h>
 
#include "dllExport.h"
 
// Where variant records look up the type of their discriminant: among the enumerations, else among the ready-made types.
struct DT_DLL_CASE_Discriminants : DtReadyDiscriminants
{
};
 
#endif
