#ifndef DT_DLL_CASE_DtPortEntityPublisher_DIS_H
#define DT_DLL_CASE_DtPortEntityPublisher_DIS_H
 
// Generated from case; the next generation writes it anew.
 
#include <qx/disPublisherBase.h>
 
#include "portEntityStateRepository.h"
#include "dllExport.h"
 
#include <string>
 
// Publishes one PortEntity as protocol data units: set attributes in its state, and call tick() again and again.
class DT_DLL_CASE DtPortEntityPublisher : public DtDisPublisherBase
{
public:
    // The connection must outlive the publisher. An empty name leaves the object without one.
    explicit DtPortEntityPublisher(DtExerciseConn* exerciseConn, const std::string& name = std::string());
 
    static const char* fullClassName();
 
    // The object's state, under a long and a short name.
    DtPortEntityStateRepository* portEntityStateRep() const;
    DtPortEntityStateRepository* psr() const;
};

#endif
