#ifndef DT_DLL_CASE_DtAnimalPublisher_H
#define DT_DLL_CASE_DtAnimalPublisher_H
 
// Generated from case; the next generation writes it anew.
 
#include <qx/hlaPublisherBase.h>
 
#include "animalStateRepository.h"
#include "dllExport.h"
 
#include <string>
 
// Publishes one Animal: set attributes in its state, then call tick().
class DT_DLL_CASE DtAnimalPublisher : public DtHlaPublisherBase
{
public:
    // The connection must outlive the publisher. An empty name leaves the object without one.
    explicit DtAnimalPublisher(DtExerciseConn* exerciseConn, const std::string& name = std::string());
 
    static const char* fullClassName();
 
    // The object's state, under a long and a short name.
    DtAnimalStateRepository* animalStateRep() const;
    DtAnimalStateRepository* asr() const;
};

#endif
