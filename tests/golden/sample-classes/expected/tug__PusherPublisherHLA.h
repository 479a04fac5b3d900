#ifndef DT_DLL_CASE_DtTug__PusherPublisher_H
#define DT_DLL_CASE_DtTug__PusherPublisher_H
 
// Generated from case; the next generation writes it anew.
 
#include <qx/hlaPublisherBase.h>
 
#include "tug__PusherStateRepository.h"
#include "dllExport.h"
 
#include <string>
 
// Publishes one PortEntity.Vessel.Tug/Pusher: set attributes in its state, then call tick().
class DT_DLL_CASE DtTug__PusherPublisher : public DtHlaPublisherBase
{
public:
    // The connection must outlive the publisher. An empty name leaves the object without one.
    explicit DtTug__PusherPublisher(DtExerciseConn* exerciseConn, const std::string& name = std::string());
 
    static const char* fullClassName();
 
    // The object's state, under a long and a short name.
    DtTug__PusherStateRepository* tug__PusherStateRep() const;
    DtTug__PusherStateRepository* tsr() const;
};

#endif
