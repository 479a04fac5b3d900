// Generated from case; the next generation writes it anew.
 
#include "vesselPublisherHLA.h"
 
#include "vesselEncoderHLA.h"
 
DtVesselPublisher::DtVesselPublisher(DtExerciseConn* exerciseConn, const std::string& name)
    : DtHlaPublisherBase(exerciseConn, fullClassName(), name,
                         std::unique_ptr<DtStateRepository>(new DtVesselStateRepository),
                         std::unique_ptr<DtHlaStateEncoder>(new DtVesselEncoder))
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

