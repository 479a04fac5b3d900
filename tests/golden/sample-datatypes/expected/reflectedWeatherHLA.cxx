// Generated from case; the next generation writes it anew.
 
#include "reflectedWeatherHLA.h"
 
#include "weatherDecoderHLA.h"
 
DtReflectedWeather::DtReflectedWeather(DtExerciseObjectId id, const std::string& name)
    : DtHlaReflectedObject(id, name, std::unique_ptr<DtStateRepository>(new DtWeatherStateRepository),
                           std::unique_ptr<DtHlaStateDecoder>(new DtWeatherDecoder))
{
}
 
DtWeatherStateRepository* DtReflectedWeather::weatherStateRep() const
{
    return static_cast<DtWeatherStateRepository*>(stateRepository());
}
 
DtWeatherStateRepository* DtReflectedWeather::wsr() const
{
    return weatherStateRep();
}

