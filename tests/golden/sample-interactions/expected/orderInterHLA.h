#ifndef DT_DLL_CASE_DtOrderInter_H
#define DT_DLL_CASE_DtOrderInter_H
 
// Generated from case; the next generation writes it anew.
 
#include "radioInterHLA.h"
#include <qx/exerciseConn.h>
#include <qx/opaqueValue.h>
#include <qx/valueTypes.h>
 
#include "DataTypes/caseEnums.h"
#include "dllExport.h"
 
#include <vector>
 
class DtOrderInter;
typedef void (*DtOrderInterCb)(DtOrderInter* interaction, void* user);
 
// One Radio.Order: its own parameters here, those of its superclasses in the bases.
//
// It is sent with DtExerciseConn::sendInteraction() and comes in through a callback.
class DT_DLL_CASE DtOrderInter
    : public DtRadioInter
{
public:
    // Every value starts as zero, false or empty.
    DtOrderInter();
 
    // The callback gets this class and its subclasses, while DtExerciseConn::drainInput() runs.
    static void addCallback(DtExerciseConn* exerciseConn, DtOrderInterCb callback, void* user);
    static void removeCallback(DtExerciseConn* exerciseConn, DtOrderInterCb callback, void* user);

    typedef DtUrgency8 ValueOfUrgency;
    void setUrgency(const ValueOfUrgency& value);
    const ValueOfUrgency& urgency() const;

    typedef DtInt32 ValueOfTheRegister;
    void setTheRegister(const ValueOfTheRegister& value);
    const ValueOfTheRegister& theRegister() const;

protected:
    // For subclasses, which have names and coders of their own.
    explicit DtOrderInter(const DtInteractionCoding& coding);
 
private:
    // The values stand in a structure of their own, where no accessor can share their names.
    struct OwnValues
    {
        ValueOfUrgency myUrgency;
        ValueOfTheRegister myTheRegister;
    };
 
    OwnValues Own;
};

#endif
