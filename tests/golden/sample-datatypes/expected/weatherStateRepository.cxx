// Generated from case; the next generation writes it anew.
 
#include "weatherStateRepository.h"
 
DtWeatherStateRepository::DtWeatherStateRepository() : Own()
{
}

void DtWeatherStateRepository::setWind(const ValueOfWind& value)
{
    Own.myWind = value;
    DtStateRepository::markChanged("Wind");
}
 
const DtWeatherStateRepository::ValueOfWind& DtWeatherStateRepository::wind() const
{
    return Own.myWind;
}

void DtWeatherStateRepository::setReport(const ValueOfReport& value)
{
    Own.myReport = value;
    DtStateRepository::markChanged("Report");
}
 
const DtWeatherStateRepository::ValueOfReport& DtWeatherStateRepository::report() const
{
    return Own.myReport;
}

void DtWeatherStateRepository::setSamples(const ValueOfSamples& value)
{
    Own.mySamples = value;
    DtStateRepository::markChanged("Samples");
}
 
const DtWeatherStateRepository::ValueOfSamples& DtWeatherStateRepository::samples() const
{
    return Own.mySamples;
}

void DtWeatherStateRepository::setCodes(const ValueOfCodes& value)
{
    Own.myCodes = value;
    DtStateRepository::markChanged("Codes");
}
 
const DtWeatherStateRepository::ValueOfCodes& DtWeatherStateRepository::codes() const
{
    return Own.myCodes;
}

void DtWeatherStateRepository::setTide(const ValueOfTide& value)
{
    Own.myTide = value;
    DtStateRepository::markChanged("Tide");
}
 
const DtWeatherStateRepository::ValueOfTide& DtWeatherStateRepository::tide() const
{
    return Own.myTide;
}

void DtWeatherStateRepository::setTrace(const ValueOfTrace& value)
{
    Own.myTrace = value;
    DtStateRepository::markChanged("Trace");
}
 
const DtWeatherStateRepository::ValueOfTrace& DtWeatherStateRepository::trace() const
{
    return Own.myTrace;
}

