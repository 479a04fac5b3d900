// Generated from case; the next generation writes it anew.
 
#include "reflectedBerthDIS.h"
 
#include "berthDecoderDIS.h"
 
DtReflectedBerth::DtReflectedBerth(DtExerciseObjectId id, const std::string& name)
    : DtDisReflectedObject(id, name, std::unique_ptr<DtStateRepository>(new DtBerthStateRepository),
                           std::unique_ptr<DtStateDecoder>(new DtBerthDecoder))
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

