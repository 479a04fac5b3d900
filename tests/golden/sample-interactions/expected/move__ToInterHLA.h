#ifndef DT_DLL_CASE_DtMove__ToInter_H
#define DT_DLL_CASE_DtMove__ToInter_H
 
// Generated from case; the next generation writes it anew.
 
#include "orderInterHLA.h"
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
#include "DataTypes/tugNames.h"
#elif __has_include("DataTypes/tugNames.h")
#include "DataTypes/tugNames.h"
#endif
#include "dllExport.h"
 
#include <vector>
 
class DtMove__ToInter;
typedef void (*DtMove__ToInterCb)(DtMove__ToInter* interaction, void* user);
 
// One Radio.Order.Move-To: its own parameters here, those of its superclasses in the bases.
//
// It is sent with DtExerciseConn::sendInteraction() and comes in through a callback.
class DT_DLL_CASE DtMove__ToInter
    : public DtOrderInter
{
public:
    // Every value starts as zero, false or empty.
    DtMove__ToInter();
 
    // The callback gets this class and its subclasses, while DtExerciseConn::drainInput() runs.
    static void addCallback(DtExerciseConn* exerciseConn, DtMove__ToInterCb callback, void* user);
    static void removeCallback(DtExerciseConn* exerciseConn, DtMove__ToInterCb callback, void* user);

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
    // For subclasses, which have names and coders of their own.
    explicit DtMove__ToInter(const DtInteractionCoding& coding);
 
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

#endif
