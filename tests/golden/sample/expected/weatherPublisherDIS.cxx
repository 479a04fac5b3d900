// Generated from case; the next generation writes it anew.
 
#include "weatherPublisherDIS.h"
 
#include "weatherEncoderDIS.h"
#include "netWeatherPdu.h"
 
DtWeatherPublisher::DtWeatherPublisher(DtExerciseConn* exerciseConn, const std::string& name)
    : DtDisPublisherBase(exerciseConn, DtNetWeatherPdu::theKind, name,
                         std::unique_ptr<DtStateRepository>(new DtWeatherStateRepository),
                         std::unique_ptr<DtStateEncoder>(new DtWeatherEncoder))
{
}
 
const char* DtWeatherPublisher::fullClassName()
{
    return "Weather";
}
 
DtWeatherStateRepository* DtWeatherPublisher::weatherStateRep() const
{
    return static_cast<DtWeatherStateRepository*>(stateRepository());
}
 
DtWeatherStateRepository* DtWeatherPublisher::wsr() const
{
    return weatherStateRep();
}

