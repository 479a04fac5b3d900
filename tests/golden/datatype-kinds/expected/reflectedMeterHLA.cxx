// Generated from case; the next generation writes it anew.
 
#include "reflectedMeterHLA.h"
 
#include "meterDecoderHLA.h"
 
DtReflectedMeter::DtReflectedMeter(DtExerciseObjectId id, const std::string& name)
    : DtHlaReflectedObject(id, name, std::unique_ptr<DtStateRepository>(new DtMeterStateRepository),
                           std::unique_ptr<DtHlaStateDecoder>(new DtMeterDecoder))
{
}
 
DtMeterStateRepository* DtReflectedMeter::meterStateRep() const
{
    return static_cast<DtMeterStateRepository*>(stateRepository());
}
 
DtMeterStateRepository* DtReflectedMeter::msr() const
{
    return meterStateRep();
}

