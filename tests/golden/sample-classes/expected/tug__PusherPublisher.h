#ifndef DT_DLL_CASE_DtTug__PusherPublisher_FRONT_H
#define DT_DLL_CASE_DtTug__PusherPublisher_FRONT_H
 
// Generated from case; the next generation writes it anew.
 
// The publisher of the protocol that the program is built for: with QX_DIS defined that of DIS, else that of HLA.
 
#ifdef QX_DIS
#include "tug__PusherPublisherDIS.h"
#else
#include "tug__PusherPublisherHLA.h"
#endif
#endif
