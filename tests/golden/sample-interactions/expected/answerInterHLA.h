#ifndef DT_DLL_CASE_DtAnswerInter_H
#define DT_DLL_CASE_DtAnswerInter_H
 
// Generated from case; the next generation writes it anew.
 
#include "radioInterHLA.h"
#include <qx/exerciseConn.h>
#include <qx/opaqueValue.h>
#include <qx/valueTypes.h>
 
#include "DataTypes/caseEnums.h"
#ifndef __has_include
#include "DataTypes/occupant.h"
#elif __has_include("DataTypes/occupant.h")
#include "DataTypes/occupant.h"
#endif
#include "dllExport.h"
 
#include <vector>
 
class DtAnswerInter;
typedef void (*DtAnswerInterCb)(DtAnswerInter* interaction, void* user);
 
// One Radio.Answer: its own parameters here, those of its superclasses in the bases.
//
// It is sent with DtExerciseConn::sendInteraction() and comes in through a callback.
class DT_DLL_CASE DtAnswerInter
    : public DtRadioInter
{
public:
    // Every value starts as zero, false or empty.
    DtAnswerInter();
 
    // The callback gets this class and its subclasses, while DtExerciseConn::drainInput() runs.
    static void addCallback(DtExerciseConn* exerciseConn, DtAnswerInterCb callback, void* user);
    static void removeCallback(DtExerciseConn* exerciseConn, DtAnswerInterCb callback, void* user);

    typedef bool ValueOfDone;
    void setDone(const ValueOfDone& value);
    const ValueOfDone& done() const;

    typedef DtOccupant ValueOfReason;
    void setReason(const ValueOfReason& value);
    const ValueOfReason& reason() const;

protected:
    // For subclasses, which have names and coders of their own.
    explicit DtAnswerInter(const DtInteractionCoding& coding);
 
private:
    // The values stand in a structure of their own, where no accessor can share their names.
    struct OwnValues
    {
        ValueOfDone myDone;
        ValueOfReason myReason;
    };
 
    OwnValues Own;
};

#endif
