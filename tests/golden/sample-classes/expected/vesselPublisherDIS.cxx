// Generated from case; the next generation writes it anew.
 
#include "vesselPublisherDIS.h"
 
#include "vesselEncoderDIS.h"
#include "netVesselPdu.h"
 
DtVesselPublisher::DtVesselPublisher(DtExerciseConn* exerciseConn, const std::string& name)
    : DtDisPublisherBase(exerciseConn, DtNetVesselPdu::theKind, name,
                         std::unique_ptr<DtStateRepository>(new DtVesselStateRepository),
                         std::unique_ptr<DtStateEncoder>(new DtVesselEncoder))
{
}
 
const char* DtVesselPublisher::fullClassName()
{
    return "PortEntity.Vessel";
}
 
DtVesselStateRepository* DtVesselPublisher::vesselStateRep() const
{
    return static_cast<DtVesselStateRepository*>(stateRepository());
}
 
DtVesselStateRepository* DtVesselPublisher::vsr() const
{
    return vesselStateRep();
}

