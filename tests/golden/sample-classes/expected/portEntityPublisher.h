#ifndef DT_DLL_CASE_DtPortEntityPublisher_FRONT_H
#define DT_DLL_CASE_DtPortEntityPublisher_FRONT_H
 
// Generated from case; the next generation writes it anew.
 
// The publisher of the protocol that the program is built for: with QX_DIS defined that of DIS, else that of HLA.
 
#ifdef QX_DIS
#include "portEntityPublisherDIS.h"
#else
#include "portEntityPublisherHLA.h"
#endif
#endif
