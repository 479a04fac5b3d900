#ifndef DT_DLL_CASE_DtQxFlowerPublisher_H
#define DT_DLL_CASE_DtQxFlowerPublisher_H
 
// Generated from case; the next generation writes it anew.
 
#include <qx/hlaPublisherBase.h>
 
#include "beds/flowerStateRepository.h"
#include "dllExport.h"
 
#include <string>
 
namespace garden
{
 
// Publishes one Flower: set attributes in its state, then call tick().
class DT_DLL_CASE DtQxFlowerPublisher : public DtHlaPublisherBase
{
public:
    // The connection must outlive the publisher. An empty name leaves the object without one.
    explicit DtQxFlowerPublisher(DtExerciseConn* exerciseConn, const std::string& name = std::string());
 
    static const char* fullClassName();
 
    // The object's state, under a long and a short name.
    DtQxFlowerStateRepository* flowerStateRep() const;
    DtQxFlowerStateRepository* fsr() const;
};

} // namespace garden

#endif
