#ifndef DT_DLL_CASE_DtCallInter_H
#define DT_DLL_CASE_DtCallInter_H
 
// Generated from case; the next generation writes it anew.
 
#include <qx/interactionWithEncDec.h>
#include <qx/exerciseConn.h>
#include <qx/opaqueValue.h>
#include <qx/valueTypes.h>
 
#include "DataTypes/caseEnums.h"
#include "dllExport.h"
 
#include <vector>
 
class DtCallInter;
typedef void (*DtCallInterCb)(DtCallInter* interaction, void* user);
 
// One Call: its own parameters here, those of its superclasses in the bases.
//
// It is sent with DtExerciseConn::sendInteraction() and comes in through a callback.
class DT_DLL_CASE DtCallInter
    : public DtInteractionWithEncDec
{
public:
    // Every value starts as zero, false or empty.
    DtCallInter();
 
    // The callback gets this class and its subclasses, while DtExerciseConn::drainInput() runs.
    static void addCallback(DtExerciseConn* exerciseConn, DtCallInterCb callback, void* user);
    static void removeCallback(DtExerciseConn* exerciseConn, DtCallInterCb callback, void* user);

    typedef DtString ValueOfText;
    void setText(const ValueOfText& value);
    const ValueOfText& text() const;

protected:
    // For subclasses, which have names and coders of their own.
    explicit DtCallInter(const DtInteractionCoding& coding);
 
private:
    // The values stand in a structure of their own, where no accessor can share their names.
    struct OwnValues
    {
        ValueOfText myText;
    };
 
    OwnValues Own;
};

#endif
