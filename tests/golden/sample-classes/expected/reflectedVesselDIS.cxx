// Generated from case; the next generation writes it anew.
 
#include "reflectedVesselDIS.h"
 
#include "vesselDecoderDIS.h"
 
DtReflectedVessel::DtReflectedVessel(DtExerciseObjectId id, const std::string& name)
    : DtDisReflectedObject(id, name, std::unique_ptr<DtStateRepository>(new DtVesselStateRepository),
                           std::unique_ptr<DtStateDecoder>(new DtVesselDecoder))
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

