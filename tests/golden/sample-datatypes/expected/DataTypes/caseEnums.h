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
 
enum class DtBerthKind64 : DtInt64
{
    eContainer = 0,
    eOilGas = 1,
    e7th = 2,
};
 
inline DtEnumeratorTable DtEnumeratorsOf(DtBerthKind64)
{
    static const DtEnumerator theEntries[] = {
        {"Container", 0},
        {"Oil&Gas", 1},
        {"7th", 2},
        {"", 0}};
    static const DtNumberForm theNumber(8, 1, 0);
    return DtEnumeratorTable("DtBerthKind64", theEntries, sizeof theEntries / sizeof *theEntries - 1, theNumber);
}
 
enum class DtLampState : DtInt64
{
    eDark = 0,
    eFlash = 1,
    eFaulty = -1,
};
 
inline DtEnumeratorTable DtEnumeratorsOf(DtLampState)
{
    static const DtEnumerator theEntries[] = {
        {"Dark", 0},
        {"Flash", 1},
        {"Faulty", -1},
        {"", 0}};
    static const DtNumberForm theNumber(1, 1, 0);
    return DtEnumeratorTable("DtLampState", theEntries, sizeof theEntries / sizeof *theEntries - 1, theNumber);
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
 
enum class DtCurrent16 : DtInt64
{
    eStill = 0,
    eEbb = -300,
    eFlood = 300,
};
 
inline DtEnumeratorTable DtEnumeratorsOf(DtCurrent16)
{
    static const DtEnumerator theEntries[] = {
        {"Still", 0},
        {"Ebb", -300},
        {"Flood", 300},
        {"", 0}};
    static const DtNumberForm theNumber(2, 1, 1);
    return DtEnumeratorTable("DtCurrent16", theEntries, sizeof theEntries / sizeof *theEntries - 1, theNumber);
}
 
enum class DtTool16 : DtInt64
{
    eAnchor = 1,
    eCrane = 2,
    eRadio = 513,
};
 
inline DtEnumeratorTable DtEnumeratorsOf(DtTool16)
{
    static const DtEnumerator theEntries[] = {
        {"Anchor", 1},
        {"Crane", 2},
        {"Radio", 513},
        {"", 0}};
    static const DtNumberForm theNumber(2, 0, 1);
    return DtEnumeratorTable("DtTool16", theEntries, sizeof theEntries / sizeof *theEntries - 1, theNumber);
}
 
enum class DtSlack24 : DtInt64
{
    eWeak = -1,
    eStrong = 70000,
};
 
inline DtEnumeratorTable DtEnumeratorsOf(DtSlack24)
{
    static const DtEnumerator theEntries[] = {
        {"Weak", -1},
        {"Strong", 70000},
        {"", 0}};
    static const DtNumberForm theNumber(3, 1, 1);
    return DtEnumeratorTable("DtSlack24", theEntries, sizeof theEntries / sizeof *theEntries - 1, theNumber);
}
 
enum class DtDeep32 : DtInt64
{
    eShallow = -70000,
    eChannel = 0,
    eBasin = 70000,
};
 
inline DtEnumeratorTable DtEnumeratorsOf(DtDeep32)
{
    static const DtEnumerator theEntries[] = {
        {"Shallow", -70000},
        {"Channel", 0},
        {"Basin", 70000},
        {"", 0}};
    static const DtNumberForm theNumber(4, 1, 1);
    return DtEnumeratorTable("DtDeep32", theEntries, sizeof theEntries / sizeof *theEntries - 1, theNumber);
}
 
enum class DtZone64 : DtInt64
{
    eInner = 1,
    eOuter = 2,
    eOpenSea = 16909060,
};
 
inline DtEnumeratorTable DtEnumeratorsOf(DtZone64)
{
    static const DtEnumerator theEntries[] = {
        {"Inner", 1},
        {"Outer", 2},
        {"Open-Sea", 16909060},
        {"", 0}};
    static const DtNumberForm theNumber(8, 0, 1);
    return DtEnumeratorTable("DtZone64", theEntries, sizeof theEntries / sizeof *theEntries - 1, theNumber);
}
 
enum class DtHullPart32 : DtInt64
{
    eKeel = 0,
    eRudder = 1,
    eScrew = 2,
};
 
inline DtEnumeratorTable DtEnumeratorsOf(DtHullPart32)
{
    static const DtEnumerator theEntries[] = {
        {"Keel", 0},
        {"Rudder", 1},
        {"Screw", 2},
        {"", 0}};
    static const DtNumberForm theNumber(4, 0, 0);
    return DtEnumeratorTable("DtHullPart32", theEntries, sizeof theEntries / sizeof *theEntries - 1, theNumber);
}
 
#endif
