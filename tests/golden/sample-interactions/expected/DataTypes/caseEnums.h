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
 
enum class DtUrgency8 : DtInt64
{
    eNow = 1,
    eLater = 2,
};
 
inline DtEnumeratorTable DtEnumeratorsOf(DtUrgency8)
{
    static const DtEnumerator theEntries[] = {
        {"Now", 1},
        {"Later", 2},
        {"", 0}};
    static const DtNumberForm theNumber(1, 0, 0);
    return DtEnumeratorTable("DtUrgency8", theEntries, sizeof theEntries / sizeof *theEntries - 1, theNumber);
}
 
enum class DtSignalKind16 : DtInt64
{
    eFog = 5,
    eGale = 1,
    eIce = 9,
    eFloe = 12,
    eWreck = 3,
    eDrill = 7,
    ePilot = 2,
    eSilence = 100,
};
 
inline DtEnumeratorTable DtEnumeratorsOf(DtSignalKind16)
{
    static const DtEnumerator theEntries[] = {
        {"Fog", 5},
        {"Gale", 1},
        {"Ice", 9},
        {"Floe", 12},
        {"Wreck", 3},
        {"Drill", 7},
        {"Pilot", 2},
        {"Silence", 100},
        {"", 0}};
    static const DtNumberForm theNumber(2, 1, 0);
    return DtEnumeratorTable("DtSignalKind16", theEntries, sizeof theEntries / sizeof *theEntries - 1, theNumber);
}
 
#endif
