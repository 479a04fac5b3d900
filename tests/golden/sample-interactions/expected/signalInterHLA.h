#ifndef DT_DLL_CASE_DtSignalInter_H
#define DT_DLL_CASE_DtSignalInter_H
 
// Generated from case; the next generation writes it anew.
 
#include <qx/interactionWithEncDec.h>
#include <qx/exerciseConn.h>
#include <qx/opaqueValue.h>
#include <qx/valueTypes.h>
 
#include "DataTypes/caseEnums.h"
#ifndef __has_include
#include "DataTypes/clockTime.h"
#elif __has_include("DataTypes/clockTime.h")
#include "DataTypes/clockTime.h"
#endif
#ifndef __has_include
#include "DataTypes/signalMessage.h"
#elif __has_include("DataTypes/signalMessage.h")
#include "DataTypes/signalMessage.h"
#endif
#include "dllExport.h"
 
#include <vector>
 
class DtSignalInter;
typedef void (*DtSignalInterCb)(DtSignalInter* interaction, void* user);
 
// One Signal: its own parameters here, those of its superclasses in the bases.
//
// It is sent with DtExerciseConn::sendInteraction() and comes in through a callback.
class DT_DLL_CASE DtSignalInter
    : public DtInteractionWithEncDec
{
public:
    // Every value starts as zero, false or empty.
    DtSignalInter();
 
    // The callback gets this class and its subclasses, while DtExerciseConn::drainInput() runs.
    static void addCallback(DtExerciseConn* exerciseConn, DtSignalInterCb callback, void* user);
    static void removeCallback(DtExerciseConn* exerciseConn, DtSignalInterCb callback, void* user);

    typedef DtClockTime ValueOfSent;
    void setSent(const ValueOfSent& value);
    const ValueOfSent& sent() const;

    typedef DtSignalMessage ValueOfMessage;
    void setMessage(const ValueOfMessage& value);
    const ValueOfMessage& message() const;

    typedef bool ValueOfSure;
    void setSure(const ValueOfSure& value);
    const ValueOfSure& sure() const;

protected:
    // For subclasses, which have names and coders of their own.
    explicit DtSignalInter(const DtInteractionCoding& coding);
 
private:
    // The values stand in a structure of their own, where no accessor can share their names.
    struct OwnValues
    {
        ValueOfSent mySent;
        ValueOfMessage myMessage;
        ValueOfSure mySure;
    };
 
    OwnValues Own;
};

#endif
