#ifndef DT_DLL_CASE_DtCargoShipPublisher_H
#define DT_DLL_CASE_DtCargoShipPublisher_H
 
// Generated from case; the next generation writes it anew.
 
#include <qx/hlaPublisherBase.h>
 
#include "cargoShipStateRepository.h"
#include "dllExport.h"
 
#include <string>
 
// Publishes one PortEntity.Vessel.CargoShip: set attributes in its state, then call tick().
class DT_DLL_CASE DtCargoShipPublisher : public DtHlaPublisherBase
{
public:
    // The connection must outlive the publisher. An empty name leaves the object without one.
    explicit DtCargoShipPublisher(DtExerciseConn* exerciseConn, const std::string& name = std::string());
 
    static const char* fullClassName();
 
    // The object's state, under a long and a short name.
    DtCargoShipStateRepository* cargoShipStateRep() const;
    DtCargoShipStateRepository* csr() const;
};

#endif
