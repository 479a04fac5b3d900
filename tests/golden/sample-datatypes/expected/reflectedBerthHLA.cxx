// Generated from case; the next generation writes it anew.
 
#include "reflectedBerthHLA.h"
 
#include "berthDecoderHLA.h"
 
DtReflectedBerth::DtReflectedBerth(DtExerciseObjectId id, const std::string& name)
    : DtHlaReflectedObject(id, name, std::unique_ptr<DtStateRepository>(new DtBerthStateRepository),
                           std::unique_ptr<DtHlaStateDecoder>(new DtBerthDecoder))
{
}
 
DtBerthStateRepository* DtReflectedBerth::berthStateRep() const
{
    return static_cast<DtBerthStateRepository*>(stateRepository());
}
 
DtBerthStateRepository* DtReflectedBerth::bsr() const
{
    return berthStateRep();
}

