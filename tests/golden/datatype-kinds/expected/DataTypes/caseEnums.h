#ifndef DT_DLL_CASE_ENUMS_H
#define DT_DLL_CASE_ENUMS_H
 
// Generated from case; the next generation writes it anew.
//
// Every enumerator has the letter e in front, so that digits and keywords are names too. DtEnumeratorsOf gives the names
// as the model has them, and how long the number is on the wire. A number without a name is a value all the same.
 
#include <qx/enumerators.h>
 
#include "dllExport.h"
 
// What the predefined truth values are called as discriminants; the class of one that the run makes goes first.
#ifndef DT_DLL_CASE_DtHLAboolean
typedef bool DtHLAboolean;
#endif
#ifndef DT_DLL_CASE_DtRPRboolean
typedef bool DtRPRboolean;
#endif
#ifndef DT_DLL_CASE_DtOMT13boolean
typedef bool DtOMT13boolean;
#endif
 
enum class DtState8 : DtInt64
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
        {"Half-On", 1},
        {"2nd", 2},
        {"class", 3},
        {"", 0}};
    static const DtNumberForm theNumber(1, 0, 0);
    return DtEnumeratorTable("DtState8", theEntries, sizeof theEntries / sizeof *theEntries - 1, theNumber);
}
 
#endif
