// Generated from case; the next generation writes it anew.
 
#include "reflectedPortEntityDIS.h"
 
#include "portEntityDecoderDIS.h"
 
DtReflectedPortEntity::DtReflectedPortEntity(DtExerciseObjectId id, const std::string& name)
    : DtDisReflectedObject(id, name, std::unique_ptr<DtStateRepository>(new DtPortEntityStateRepository),
                           std::unique_ptr<DtStateDecoder>(new DtPortEntityDecoder))
{
}
 
DtPortEntityStateRepository* DtReflectedPortEntity::portEntityStateRep() const
{
    return static_cast<DtPortEntityStateRepository*>(stateRepository());
}
 
DtPortEntityStateRepository* DtReflectedPortEntity::psr() const
{
    return portEntityStateRep();
}

