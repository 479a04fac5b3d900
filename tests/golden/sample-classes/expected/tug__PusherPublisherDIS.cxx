// Generated from case; the next generation writes it anew.
 
#include "tug__PusherPublisherDIS.h"
 
#include "tug__PusherEncoderDIS.h"
#include "netTug__PusherPdu.h"
 
DtTug__PusherPublisher::DtTug__PusherPublisher(DtExerciseConn* exerciseConn, const std::string& name)
    : DtDisPublisherBase(exerciseConn, DtNetTug__PusherPdu::theKind, name,
                         std::unique_ptr<DtStateRepository>(new DtTug__PusherStateRepository),
                         std::unique_ptr<DtStateEncoder>(new DtTug__PusherEncoder))
{
}
 
const char* DtTug__PusherPublisher::fullClassName()
{
    return "PortEntity.Vessel.Tug/Pusher";
}
 
DtTug__PusherStateRepository* DtTug__PusherPublisher::tug__PusherStateRep() const
{
    return static_cast<DtTug__PusherStateRepository*>(stateRepository());
}
 
DtTug__PusherStateRepository* DtTug__PusherPublisher::tsr() const
{
    return tug__PusherStateRep();
}

