#ifndef DT_DLL_CASE_DtBerthPublisher_H
#define DT_DLL_CASE_DtBerthPublisher_H
 
// Generated from case; the next generation writes it anew.
 
#include <qx/hlaPublisherBase.h>
 
#include "berthStateRepository.h"
#include "dllExport.h"
 
#include <string>
 
// Publishes one PortEntity.Berth: set attributes in its state, then call tick().
class DT_DLL_CASE DtBerthPublisher : public DtHlaPublisherBase
{
public:
    // The connection must outlive the publisher. An empty name leaves the object without one.
    explicit DtBerthPublisher(DtExerciseConn* exerciseConn, const std::string& name = std::string());
 
    static const char* fullClassName();
 
    // The object's state, under a long and a short name.
    DtBerthStateRepository* berthStateRep() const;
    DtBerthStateRepository* bsr() const;
};

#endif
