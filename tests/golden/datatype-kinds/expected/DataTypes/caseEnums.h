#ifndef DT_DLL_CASE_ENUMS_H
#define DT_DLL_CASE_ENUMS_H
 
// Generated from case; the next generation writes it anew.
//
// Every enumerator has the letter e in front, so that digits and keywords are names too. DtEnumeratorsOf gives the names
// as the model has them, without the letter.
 
#include <qx/enumerators.h>
 
#include "dllExport.h"
 
enum class DtState8 : DtInt32
{
    eOff = 0,
    eHalfOn = 1,
    e2nd = 2,
    eclass = 3,
};
 
inline DtEnumeratorTable DtEnumeratorsOf(DtState8)
{
    static const DtEnumerator theEntries[] = {
        {"Off", 0},
        {"HalfOn", 1},
        {"2nd", 2},
        {"class", 3},
        {"", 0}};
    return DtEnumeratorTable("DtState8", theEntries, sizeof theEntries / sizeof *theEntries - 1);
}
 
// Where variant records look up the type of their discriminant: among the enumerations, else among the ready-made types.
struct DT_DLL_CASE_Discriminants : DtReadyDiscriminants
{
    typedef ::DtState8 DtState8;
};
 
#endif
