// Generated from case; the next generation writes it anew.
 
#include "reflectedWeatherDIS.h"
 
#include "weatherDecoderDIS.h"
 
DtReflectedWeather::DtReflectedWeather(DtExerciseObjectId id, const std::string& name)
    : DtDisReflectedObject(id, name, std::unique_ptr<DtStateRepository>(new DtWeatherStateRepository),
                           std::unique_ptr<DtStateDecoder>(new DtWeatherDecoder))
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

