#ifndef DT_DLL_CASE_DtCollisionInter_H
#define DT_DLL_CASE_DtCollisionInter_H
 
// Generated from case; the next generation writes it anew.
 
#include <qx/interactionWithEncDec.h>
#include <qx/exerciseConn.h>
#include <qx/opaqueValue.h>
#include <qx/valueTypes.h>
 
#include "DataTypes/caseEnums.h"
#ifndef __has_include
#include "DataTypes/geoPoint.h"
#elif __has_include("DataTypes/geoPoint.h")
#include "DataTypes/geoPoint.h"
#endif
#ifndef __has_include
#include "DataTypes/cargo_Item_List.h"
#elif __has_include("DataTypes/cargo_Item_List.h")
#include "DataTypes/cargo_Item_List.h"
#endif
#include "dllExport.h"
 
#include <vector>
 
class DtCollisionInter;
typedef void (*DtCollisionInterCb)(DtCollisionInter* interaction, void* user);
 
// One Collision: its own parameters here, those of its superclasses in the bases.
//
// It is sent with DtExerciseConn::sendInteraction() and comes in through a callback.
class DT_DLL_CASE DtCollisionInter
    : public DtInteractionWithEncDec
{
public:
    // Every value starts as zero, false or empty.
    DtCollisionInter();
 
    // The callback gets this class and its subclasses, while DtExerciseConn::drainInput() runs.
    static void addCallback(DtExerciseConn* exerciseConn, DtCollisionInterCb callback, void* user);
    static void removeCallback(DtExerciseConn* exerciseConn, DtCollisionInterCb callback, void* user);

    typedef DtFloat64 ValueOfForce;
    void setForce(const ValueOfForce& value);
    const ValueOfForce& force() const;

    typedef DtGeoPoint ValueOfWhere;
    void setWhere(const ValueOfWhere& value);
    const ValueOfWhere& where() const;

    typedef DtCargo_Item_List ValueOfDebris;
    void setDebris(const ValueOfDebris& value);
    const ValueOfDebris& debris() const;

protected:
    // For subclasses, which have names and coders of their own.
    explicit DtCollisionInter(const DtInteractionCoding& coding);
 
private:
    // The values stand in a structure of their own, where no accessor can share their names.
    struct OwnValues
    {
        ValueOfForce myForce;
        ValueOfWhere myWhere;
        ValueOfDebris myDebris;
    };
 
    OwnValues Own;
};

#endif
