// Generated from case; the next generation writes it anew.
 
#include "reflectedBeaconHLA.h"
 
#include "beaconDecoderHLA.h"
 
DtReflectedBeacon::DtReflectedBeacon(DtExerciseObjectId id, const std::string& name)
    : DtHlaReflectedObject(id, name, std::unique_ptr<DtStateRepository>(new DtBeaconStateRepository),
                           std::unique_ptr<DtHlaStateDecoder>(new DtBeaconDecoder))
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

