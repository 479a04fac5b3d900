// Generated from case; the next generation writes it anew.
 
#include "reflectedVesselListDIS.h"
 
#include "netVesselPdu.h"
 
DtReflectedVesselList::DtReflectedVesselList(DtExerciseConn* exerciseConn)
    : DtDisReflectedList(exerciseConn, DtNetVesselPdu::theKind)
{
}
 
DtReflectedVessel* DtReflectedVesselList::first() const
{
    return static_cast<DtReflectedVessel*>(findAfter(0));
}
 
DtReflectedVessel* DtReflectedVesselList::next(const DtReflectedVessel* object) const
{
    return static_cast<DtReflectedVessel*>(findAfter(object->objectId()));
}
 
DtReflectedVessel* DtReflectedVesselList::lookup(DtExerciseObjectId id) const
{
    return static_cast<DtReflectedVessel*>(find(id));
}
 
void DtReflectedVesselList::addAdditionCallback(DtVesselCallbackFunction callback, void* user)
{
    addCallback(Addition, callback, user);
}
 
void DtReflectedVesselList::removeAdditionCallback(DtVesselCallbackFunction callback, void* user)
{
    removeCallback(Addition, callback, user);
}
 
void DtReflectedVesselList::addUpdateCallback(DtVesselCallbackFunction callback, void* user)
{
    addCallback(Update, callback, user);
}
 
void DtReflectedVesselList::removeUpdateCallback(DtVesselCallbackFunction callback, void* user)
{
    removeCallback(Update, callback, user);
}
 
void DtReflectedVesselList::addRemovalCallback(DtVesselCallbackFunction callback, void* user)
{
    addCallback(Removal, callback, user);
}
 
void DtReflectedVesselList::removeRemovalCallback(DtVesselCallbackFunction callback, void* user)
{
    removeCallback(Removal, callback, user);
}
 
std::unique_ptr<DtDisReflectedObject> DtReflectedVesselList::makeObject(
    DtExerciseObjectId id, const std::string& name) const
{
    return std::unique_ptr<DtDisReflectedObject>(new DtReflectedVessel(id, name));
}

