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
 
enum class DtVesselState8 : DtInt64
{
    eMoored = 0,
    eUnderWay = 1,
    eAgroundSunk = 2,
    eUnknown = 255,
};
 
inline DtEnumeratorTable DtEnumeratorsOf(DtVesselState8)
{
    static const DtEnumerator theEntries[] = {
        {"Moored", 0},
        {"Under-Way", 1},
        {"Aground/Sunk", 2},
        {"Unknown#", 255},
        {"", 0}};
    static const DtNumberForm theNumber(1, 0, 0);
    return DtEnumeratorTable("DtVesselState8", theEntries, sizeof theEntries / sizeof *theEntries - 1, theNumber);
}
 
enum class DtVesselState16 : DtInt64
{
    eSmall = 0,
    eLarge = 300,
    eclass = 2,
};
 
inline DtEnumeratorTable DtEnumeratorsOf(DtVesselState16)
{
    static const DtEnumerator theEntries[] = {
        {"Small", 0},
        {"Large", 300},
        {"class", 2},
        {"", 0}};
    static const DtNumberForm theNumber(2, 1, 0);
    return DtEnumeratorTable("DtVesselState16", theEntries, sizeof theEntries / sizeof *theEntries - 1, theNumber);
}
 
enum class DtLineState32 : DtInt64
{
    eSlack = 0,
    eTight = 1,
    eBroken = -1,
};
 
inline DtEnumeratorTable DtEnumeratorsOf(DtLineState32)
{
    static const DtEnumerator theEntries[] = {
        {"Slack", 0},
        {"Tight", 1},
        {"<Broken>", -1},
        {"", 0}};
    static const DtNumberForm theNumber(4, 1, 0);
    return DtEnumeratorTable("DtLineState32", theEntries, sizeof theEntries / sizeof *theEntries - 1, theNumber);
}
 
#endif
