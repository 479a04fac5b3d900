#ifndef DT_DLL_CASE_DtDogPublisher_H
#define DT_DLL_CASE_DtDogPublisher_H
 
// Generated from case; the next generation writes it anew.
 
#include <qx/hlaPublisherBase.h>
 
#include "dogStateRepository.h"
#include "dllExport.h"
 
#include <string>
 
// Publishes one Animal.Dog: set attributes in its state, then call tick().
class DT_DLL_CASE DtDogPublisher : public DtHlaPublisherBase
{
public:
    // The connection must outlive the publisher. An empty name leaves the object without one.
    explicit DtDogPublisher(DtExerciseConn* exerciseConn, const std::string& name = std::string());
 
    static const char* fullClassName();
 
    // The object's state, under a long and a short name.
    DtDogStateRepository* dogStateRep() const;
    DtDogStateRepository* dsr() const;
};

#endif
