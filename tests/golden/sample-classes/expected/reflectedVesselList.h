#ifndef DT_DLL_CASE_DtReflectedVesselList_FRONT_H
#define DT_DLL_CASE_DtReflectedVesselList_FRONT_H
 
// Generated from case; the next generation writes it anew.
 
// The reflected list of the protocol that the program is built for: with QX_DIS defined that of DIS, else that of HLA.
 
#ifdef QX_DIS
#include "reflectedVesselListDIS.h"
#else
#include "reflectedVesselListHLA.h"
#endif
#endif
