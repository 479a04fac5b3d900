// Generated from case; the next generation writes it anew.
 
#include "portEntityPublisherDIS.h"
 
#include "portEntityEncoderDIS.h"
#include "netPortEntityPdu.h"
 
DtPortEntityPublisher::DtPortEntityPublisher(DtExerciseConn* exerciseConn, const std::string& name)
    : DtDisPublisherBase(exerciseConn, DtNetPortEntityPdu::theKind, name,
                         std::unique_ptr<DtStateRepository>(new DtPortEntityStateRepository),
                         std::unique_ptr<DtStateEncoder>(new DtPortEntityEncoder))
{
}
 
const char* DtPortEntityPublisher::fullClassName()
{
    return "PortEntity";
}
 
DtPortEntityStateRepository* DtPortEntityPublisher::portEntityStateRep() const
{
    return static_cast<DtPortEntityStateRepository*>(stateRepository());
}
 
DtPortEntityStateRepository* DtPortEntityPublisher::psr() const
{
    return portEntityStateRep();
}

