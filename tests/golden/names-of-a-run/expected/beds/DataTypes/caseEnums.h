#ifndef DT_DLL_CASE_ENUMS_H
#define DT_DLL_CASE_ENUMS_H
 
// Generated from case; the next generation writes it anew.
//
// Every enumerator has the letter e in front, so that digits and keywords are names too. DtEnumeratorsOf gives the names
// as the model has them, and how long the number is on the wire. A number without a name is a value all the same.
 
#include <qx/enumerators.h>
 
#include "dllExport.h"
 
namespace garden
{
 
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
 
enum class DtColour8 : DtInt64
{
    eRed = 0,
    eBlue = 1,
};
 
inline DtEnumeratorTable DtEnumeratorsOf(DtColour8)
{
    static const DtEnumerator theEntries[] = {
        {"Red", 0},
        {"Blue", 1},
        {"", 0}};
    static const DtNumberForm theNumber(1, 0, 0);
    return DtEnumeratorTable("DtColour8", theEntries, sizeof theEntries / sizeof *theEntries - 1, theNumber);
}
 
} // namespace garden
 
#endif
