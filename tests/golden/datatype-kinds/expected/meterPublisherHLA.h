#ifndef DT_DLL_CASE_DtMeterPublisher_H
#define DT_DLL_CASE_DtMeterPublisher_H
 
// Generated from case; the next generation writes it anew.
 
#include <qx/hlaPublisherBase.h>
 
#include "meterStateRepository.h"
#include "dllExport.h"
 
#include <string>
 
// Publishes one Meter: set attributes in its state, then call tick().
class DT_DLL_CASE DtMeterPublisher : public DtHlaPublisherBase
{
public:
    // The connection must outlive the publisher. An empty name leaves the object without one.
    explicit DtMeterPublisher(DtExerciseConn* exerciseConn, const std::string& name = std::string());
 
    static const char* fullClassName();
 
    // The object's state, under a long and a short name.
    DtMeterStateRepository* meterStateRep() const;
    DtMeterStateRepository* msr() const;
};

#endif
