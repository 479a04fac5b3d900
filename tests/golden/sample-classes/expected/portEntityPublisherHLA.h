#ifndef DT_DLL_CASE_DtPortEntityPublisher_H
#define DT_DLL_CASE_DtPortEntityPublisher_H
 
// Generated from case; the next generation writes it anew.
 
#include <qx/hlaPublisherBase.h>
 
#include "portEntityStateRepository.h"
#include "dllExport.h"
 
#include <string>
 
// Publishes one PortEntity: set attributes in its state, then call tick().
class DT_DLL_CASE DtPortEntityPublisher : public DtHlaPublisherBase
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
