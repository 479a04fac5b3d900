#ifndef DT_DLL_CASE_DtTug__PusherStateRepository_H
#define DT_DLL_CASE_DtTug__PusherStateRepository_H
 
// Generated from case; the next generation writes it anew.
 
#include "vesselStateRepository.h"
#include <qx/opaqueValue.h>
#include <qx/valueTypes.h>
 
#include "DataTypes/caseEnums.h"
#include "dllExport.h"
 
#include <vector>
 
// The attribute values of one PortEntity.Vessel.Tug/Pusher: its own here, those of its superclasses in the bases.
class DT_DLL_CASE DtTug__PusherStateRepository
    : public DtVesselStateRepository
{
public:
    // Every value starts as zero, false or empty.
    DtTug__PusherStateRepository();

    typedef DtFloat64 ValueOfPull__Push;
    void setPull__Push(const ValueOfPull__Push& value);
    const ValueOfPull__Push& pull__Push() const;

    typedef DtLineState32 ValueOfLine__1;
    void setLine__1(const ValueOfLine__1& value);
    const ValueOfLine__1& line__1() const;

    typedef DtString ValueOfOwner;
    void setOwner(const ValueOfOwner& value);
    const ValueOfOwner& owner() const;

private:
    // The values stand in a structure of their own, where no accessor can share their names.
    struct OwnValues
    {
        ValueOfPull__Push myPull__Push;
        ValueOfLine__1 myLine__1;
        ValueOfOwner myOwner;
    };
 
    OwnValues Own;
};

#endif
