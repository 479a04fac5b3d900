// Generated from case; the next generation writes it anew.
 
#include "portEntityPublisherHLA.h"
 
#include "portEntityEncoderHLA.h"
 
DtPortEntityPublisher::DtPortEntityPublisher(DtExerciseConn* exerciseConn, const std::string& name)
    : DtHlaPublisherBase(exerciseConn, fullClassName(), name,
                         std::unique_ptr<DtStateRepository>(new DtPortEntityStateRepository),
                         std::unique_ptr<DtHlaStateEncoder>(new DtPortEntityEncoder))
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

