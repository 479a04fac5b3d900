// Generated from case; the next generation writes it anew.
 
#include "reflectedVesselHLA.h"
 
#include "vesselDecoderHLA.h"
 
DtReflectedVessel::DtReflectedVessel(DtExerciseObjectId id, const std::string& name)
    : DtHlaReflectedObject(id, name, std::unique_ptr<DtStateRepository>(new DtVesselStateRepository),
                           std::unique_ptr<DtHlaStateDecoder>(new DtVesselDecoder))
{
}
 
DtVesselStateRepository* DtReflectedVessel::vesselStateRep() const
{
    return static_cast<DtVesselStateRepository*>(stateRepository());
}
 
DtVesselStateRepository* DtReflectedVessel::vsr() const
{
    return vesselStateRep();
}

