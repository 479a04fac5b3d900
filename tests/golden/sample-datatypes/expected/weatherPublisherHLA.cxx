// Generated from case; the next generation writes it anew.
 
#include "weatherPublisherHLA.h"
 
#include "weatherEncoderHLA.h"
 
DtWeatherPublisher::DtWeatherPublisher(DtExerciseConn* exerciseConn, const std::string& name)
    : DtHlaPublisherBase(exerciseConn, fullClassName(), name,
                         std::unique_ptr<DtStateRepository>(new DtWeatherStateRepository),
                         std::unique_ptr<DtHlaStateEncoder>(new DtWeatherEncoder))
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

