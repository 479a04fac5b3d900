#ifndef DT_DLL_CASE_DtCollisionInterInter_DIS_H
#define DT_DLL_CASE_DtCollisionInterInter_DIS_H
 
// Generated from case; the next generation writes it anew.
 
#include <qx/interaction.h>
#include <qx/exerciseConn.h>
#include <qx/interactionDecoder.h>
#include <qx/interactionEncoder.h>
#include <qx/opaqueValue.h>
#include <qx/packets/pduHeader.h>
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
 
#include <string>
#include <vector>
 
class DtCollisionInterInter;
typedef void (*DtCollisionInterInterCb)(DtCollisionInterInter* interaction, void* user);
 
// Header of the protocol data unit that carries a Collision, by its kind.
class DT_DLL_CASE DtCollisionInterPdu : public DtNetPduHeader
{
public:
    enum
    {
        theKind = 0
    };
 
    DtCollisionInterPdu() { setPduKind(theKind); }
};
 
// One Collision: its own parameters here, those of its superclasses in the bases.
class DT_DLL_CASE DtCollisionInterInter : public DtInteraction
{
public:
    // Every value starts as zero, false or empty.
    DtCollisionInterInter();
 
    // False if a parameter could not be coded, and the rest goes out without it, or if it is too long and stays here.
    static bool send(DtExerciseConn* exerciseConn, const DtCollisionInterInter& interaction);
    // The callback gets this class alone, while DtExerciseConn::drainInput() runs: a subclass has a kind of its own.
    static void addCallback(DtExerciseConn* exerciseConn, DtCollisionInterInterCb callback, void* user);
    static void removeCallback(DtExerciseConn* exerciseConn, DtCollisionInterInterCb callback, void* user);

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
    // For subclasses, which have names of their own.
    explicit DtCollisionInterInter(const std::string& fullClassName);
 
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
 
// The name that the class has in the files of both protocols.
typedef DtCollisionInterInter DtCollisionInter;
 
// Its parameters as named buffers, behind those of its superclasses.
class DT_DLL_CASE DtCollisionInterEncoder : public DtInteractionEncoder
{
public:
    DtCollisionInterEncoder();
};
 
class DT_DLL_CASE DtCollisionInterDecoder : public DtInteractionDecoder
{
public:
    DtCollisionInterDecoder();
};

#endif
