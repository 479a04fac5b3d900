#ifndef DT_DLL_CASE_DtReflectedVessel_FRONT_H
#define DT_DLL_CASE_DtReflectedVessel_FRONT_H
 
// Generated from case; the next generation writes it anew.
 
// The reflected object of the protocol that the program is built for: with QX_DIS defined that of DIS, else that of HLA.
 
#ifdef QX_DIS
#include "reflectedVesselDIS.h"
#else
#include "reflectedVesselHLA.h"
#endif
#endif
