#ifndef DT_DLL_CASE_DtCollisionInter_FRONT_H
#define DT_DLL_CASE_DtCollisionInter_FRONT_H
 
// Generated from case; the next generation writes it anew.
 
// The interaction of the protocol that the program is built for: with QX_DIS defined that of DIS, else that of HLA.
 
#ifdef QX_DIS
#include "collisionInterDIS.h"
#else
#include "collisionInterHLA.h"
#endif
#endif
