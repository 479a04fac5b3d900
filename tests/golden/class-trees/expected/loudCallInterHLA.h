#ifndef DT_DLL_CASE_DtLoudCallInter_H
#define DT_DLL_CASE_DtLoudCallInter_H
 
// Generated from case; the next generation writes it anew.
 
#include "callInterHLA.h"
#include <qx/exerciseConn.h>
#include <qx/opaqueValue.h>
#include <qx/valueTypes.h>
 
#include "DataTypes/caseEnums.h"
#include "dllExport.h"
 
#include <vector>
 
class DtLoudCallInter;
typedef void (*DtLoudCallInterCb)(DtLoudCallInter* interaction, void* user);
 
// One Call.LoudCall: its own parameters here, those of its superclasses in the bases.
//
// It is sent with DtExerciseConn::sendInteraction() and comes in through a callback.
class DT_DLL_CASE DtLoudCallInter
    : public DtCallInter
{
public:
    // Every value starts as zero, false or empty.
    DtLoudCallInter();
 
    // The callback gets this class and its subclasses, while DtExerciseConn::drainInput() runs.
    static void addCallback(DtExerciseConn* exerciseConn, DtLoudCallInterCb callback, void* user);
    static void removeCallback(DtExerciseConn* exerciseConn, DtLoudCallInterCb callback, void* user);

    typedef DtFloat32 ValueOfLoudness;
    void setLoudness(const ValueOfLoudness& value);
    const ValueOfLoudness& loudness() const;

protected:
    // For subclasses, which have names and coders of their own.
    explicit DtLoudCallInter(const DtInteractionCoding& coding);
 
private:
    // The values stand in a structure of their own, where no accessor can share their names.
    struct OwnValues
    {
        ValueOfLoudness myLoudness;
    };
 
    OwnValues Own;
};

#endif
