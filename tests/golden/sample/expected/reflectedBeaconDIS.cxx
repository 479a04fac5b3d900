// Generated from case; the next generation writes it anew.
 
#include "reflectedBeaconDIS.h"
 
#include "beaconDecoderDIS.h"
 
DtReflectedBeacon::DtReflectedBeacon(DtExerciseObjectId id, const std::string& name)
    : DtDisReflectedObject(id, name, std::unique_ptr<DtStateRepository>(new DtBeaconStateRepository),
                           std::unique_ptr<DtStateDecoder>(new DtBeaconDecoder))
{
}
 
DtBeaconStateRepository* DtReflectedBeacon::beaconStateRep() const
{
    return static_cast<DtBeaconStateRepository*>(stateRepository());
}
 
DtBeaconStateRepository* DtReflectedBeacon::bsr() const
{
    return beaconStateRep();
}

