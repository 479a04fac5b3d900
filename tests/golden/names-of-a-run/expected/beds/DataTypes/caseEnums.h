#ifndef DT_DLL_CASE_ENUMS_H
#define DT_DLL_CASE_ENUMS_H
 
// Generated from case; the next generation writes it anew.
//
// Every enumerator has the letter e in front, so that digits and keywords are names too. DtEnumeratorsOf gives the names
// as the model has them, without the letter.
 
#include <qx/enumerators.h>
 
#include "dllExport.h"
 
namespace garden
{
 
enum class DtColour8 : DtInt32
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
    return DtEnumeratorTable("DtColour8", theEntries, sizeof theEntries / sizeof *theEntries - 1);
}
 
// Where variant records look up the type of their discriminant: among the enumerations, else among the ready-made types.
struct DT_DLL_CASE_Discriminants : DtReadyDiscriminants
{
    typedef ::garden::DtColour8 DtColour8;
};
 
} // namespace garden
 
#endif
