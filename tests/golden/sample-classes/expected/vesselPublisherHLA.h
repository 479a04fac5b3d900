#ifndef DT_DLL_CASE_DtVesselPublisher_H
#define DT_DLL_CASE_DtVesselPublisher_H
 
// Generated from case; the next generation writes it anew.
 
#include <qx/hlaPublisherBase.h>
 
#include "vesselStateRepository.h"
#include "dllExport.h"
 
#include <string>
 
// Publishes one PortEntity.Vessel: set attributes in its state, then call tick().
class DT_DLL_CASE DtVesselPublisher : public DtHlaPublisherBase
{
public:
    // The connection must outlive the publisher. An empty name leaves the object without one.
    explicit DtVesselPublisher(DtExerciseConn* exerciseConn, const std::string& name = std::string());
 
    static const char* fullClassName();
 
    // The object's state, under a long and a short name.
    DtVesselStateRepository* vesselStateRep() const;
    DtVesselStateRepository* vsr() const;
};

#endif
