#ifndef DT_DLL_CASE_DtRadioInter_H
#define DT_DLL_CASE_DtRadioInter_H
 
// Generated from case; the next generation writes it anew.
 
#include <qx/interactionWithEncDec.h>
#include <qx/exerciseConn.h>
#include <qx/opaqueValue.h>
#include <qx/valueTypes.h>
 
#include "DataTypes/caseEnums.h"
#include "dllExport.h"
 
#include <vector>
 
class DtRadioInter;
typedef void (*DtRadioInterCb)(DtRadioInter* interaction, void* user);
 
// One Radio: its own parameters here, those of its superclasses in the bases.
//
// It is sent with DtExerciseConn::sendInteraction() and comes in through a callback.
class DT_DLL_CASE DtRadioInter
    : public DtInteractionWithEncDec
{
public:
    // Every value starts as zero, false or empty.
    DtRadioInter();
 
    // The callback gets this class and its subclasses, while DtExerciseConn::drainInput() runs.
    static void addCallback(DtExerciseConn* exerciseConn, DtRadioInterCb callback, void* user);
    static void removeCallback(DtExerciseConn* exerciseConn, DtRadioInterCb callback, void* user);

    typedef DtInt16 ValueOfChannel;
    void setChannel(const ValueOfChannel& value);
    const ValueOfChannel& channel() const;

    typedef DtString ValueOfText;
    void setText(const ValueOfText& value);
    const ValueOfText& text() const;

protected:
    // For subclasses, which have names and coders of their own.
    explicit DtRadioInter(const DtInteractionCoding& coding);
 
private:
    // The values stand in a structure of their own, where no accessor can share their names.
    struct OwnValues
    {
        ValueOfChannel myChannel;
        ValueOfText myText;
    };
 
    OwnValues Own;
};

#endif
