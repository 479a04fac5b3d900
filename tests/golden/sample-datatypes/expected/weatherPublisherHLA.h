#ifndef DT_DLL_CASE_DtWeatherPublisher_H
#define DT_DLL_CASE_DtWeatherPublisher_H
 
// Generated from case; the next generation writes it anew.
 
#include <qx/hlaPublisherBase.h>
 
#include "weatherStateRepository.h"
#include "dllExport.h"
 
#include <string>
 
// Publishes one Weather: set attributes in its state, then call tick().
class DT_DLL_CASE DtWeatherPublisher : public DtHlaPublisherBase
{
public:
    // The connection must outlive the publisher. An empty name leaves the object without one.
    explicit DtWeatherPublisher(DtExerciseConn* exerciseConn, const std::string& name = std::string());
 
    static const char* fullClassName();
 
    // The object's state, under a long and a short name.
    DtWeatherStateRepository* weatherStateRep() const;
    DtWeatherStateRepository* wsr() const;
};

#endif
