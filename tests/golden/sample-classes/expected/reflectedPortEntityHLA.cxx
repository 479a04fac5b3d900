// Generated from case; the next generation writes it anew.
 
#include "reflectedPortEntityHLA.h"
 
#include "portEntityDecoderHLA.h"
 
DtReflectedPortEntity::DtReflectedPortEntity(DtExerciseObjectId id, const std::string& name)
    : DtHlaReflectedObject(id, name, std::unique_ptr<DtStateRepository>(new DtPortEntityStateRepository),
                           std::unique_ptr<DtHlaStateDecoder>(new DtPortEntityDecoder))
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

