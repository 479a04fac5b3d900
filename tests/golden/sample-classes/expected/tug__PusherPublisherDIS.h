#ifndef DT_DLL_CASE_DtTug__PusherPublisher_DIS_H
#define DT_DLL_CASE_DtTug__PusherPublisher_DIS_H
 
// Generated from case; the next generation writes it anew.
 
#include <qx/disPublisherBase.h>
 
#include "tug__PusherStateRepository.h"
#include "dllExport.h"
 
#include <string>
 
// Publishes one PortEntity.Vessel.Tug/Pusher as protocol data units: set attributes in its state, and call tick() again and again.
class DT_DLL_CASE DtTug__PusherPublisher : public DtDisPublisherBase
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
