#ifndef DT_DLL_CASE_DtBeaconPublisher_H
#define DT_DLL_CASE_DtBeaconPublisher_H
 
// Generated from case; the next generation writes it anew.
 
#include <qx/hlaPublisherBase.h>
 
#include "beaconStateRepository.h"
#include "dllExport.h"
 
#include <string>
 
// Publishes one PortEntity.Beacon: set attributes in its state, then call tick().
class DT_DLL_CASE DtBeaconPublisher : public DtHlaPublisherBase
{
public:
    // The connection must outlive the publisher. An empty name leaves the object without one.
    explicit DtBeaconPublisher(DtExerciseConn* exerciseConn, const std::string& name = std::string());
 
    static const char* fullClassName();
 
    // The object's state, under a long and a short name.
    DtBeaconStateRepository* beaconStateRep() const;
    DtBeaconStateRepository* bsr() const;
};

#endif
