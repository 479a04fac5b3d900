#ifndef DT_DLL_CASE_DtMove__ToInterInter_DIS_H
#define DT_DLL_CASE_DtMove__ToInterInter_DIS_H
 
// Generated from case; the next generation writes it anew.
 
#include "orderInter.h"
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
#include "DataTypes/tugNames.h"
#elif __has_include("DataTypes/tugNames.h")
#include "DataTypes/tugNames.h"
#endif
#include "dllExport.h"
 
#include <string>
#include <vector>
 
class DtMove__ToInterInter;
typedef void (*DtMove__ToInterInterCb)(DtMove__ToInterInter* interaction, void* user);
 
// Header of the protocol data unit that carries a Radio.Order.Move-To, by its kind.
class DT_DLL_CASE DtMove__ToInterPdu : public DtOrderInterPdu
{
public:
    enum
    {
        theKind = 4
    };
 
    DtMove__ToInterPdu() { setPduKind(theKind); }
};
 
// One Radio.Order.Move-To: its own parameters here, those of its superclasses in the bases.
class DT_DLL_CASE DtMove__ToInterInter : public DtOrderInter
{
public:
    // Every value starts as zero, false or empty.
    DtMove__ToInterInter();
 
    // False if a parameter could not be coded, and the rest goes out without it, or if it is too long and stays here.
    static bool send(DtExerciseConn* exerciseConn, const DtMove__ToInterInter& interaction);
    // The callback gets this class alone, while DtExerciseConn::drainInput() runs: a subclass has a kind of its own.
    static void addCallback(DtExerciseConn* exerciseConn, DtMove__ToInterInterCb callback, void* user);
    static void removeCallback(DtExerciseConn* exerciseConn, DtMove__ToInterInterCb callback, void* user);

    typedef DtGeoPoint ValueOfTarget_Point_;
    void setTarget_Point_(const ValueOfTarget_Point_& value);
    const ValueOfTarget_Point_& target_Point_() const;

    typedef DtFloat64 ValueOfBy__Hour;
    void setBy__Hour(const ValueOfBy__Hour& value);
    const ValueOfBy__Hour& by__Hour() const;

    typedef DtTugNames ValueOfTugs;
    void setTugs(const ValueOfTugs& value);
    const ValueOfTugs& tugs() const;

protected:
    // For subclasses, which have names of their own.
    explicit DtMove__ToInterInter(const std::string& fullClassName);
 
private:
    // The values stand in a structure of their own, where no accessor can share their names.
    struct OwnValues
    {
        ValueOfTarget_Point_ myTarget_Point_;
        ValueOfBy__Hour myBy__Hour;
        ValueOfTugs myTugs;
    };
 
    OwnValues Own;
};
 
// The name that the class has in the files of both protocols.
typedef DtMove__ToInterInter DtMove__ToInter;
 
// Its parameters as named buffers, behind those of its superclasses.
class DT_DLL_CASE DtMove__ToInterEncoder : public DtOrderInterEncoder
{
public:
    DtMove__ToInterEncoder();
};
 
class DT_DLL_CASE DtMove__ToInterDecoder : public DtOrderInterDecoder
{
public:
    DtMove__ToInterDecoder();
};

#endif
