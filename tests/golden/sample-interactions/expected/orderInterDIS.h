#ifndef DT_DLL_CASE_DtOrderInterInter_DIS_H
#define DT_DLL_CASE_DtOrderInterInter_DIS_H
 
// Generated from case; the next generation writes it anew.
 
#include "radioInter.h"
#include <qx/exerciseConn.h>
#include <qx/interactionDecoder.h>
#include <qx/interactionEncoder.h>
#include <qx/opaqueValue.h>
#include <qx/packets/pduHeader.h>
#include <qx/valueTypes.h>
 
#include "DataTypes/caseEnums.h"
#include "dllExport.h"
 
#include <string>
#include <vector>
 
class DtOrderInterInter;
typedef void (*DtOrderInterInterCb)(DtOrderInterInter* interaction, void* user);
 
// Header of the protocol data unit that carries a Radio.Order, by its kind.
class DT_DLL_CASE DtOrderInterPdu : public DtRadioInterPdu
{
public:
    enum
    {
        theKind = 3
    };
 
    DtOrderInterPdu() { setPduKind(theKind); }
};
 
// One Radio.Order: its own parameters here, those of its superclasses in the bases.
class DT_DLL_CASE DtOrderInterInter : public DtRadioInter
{
public:
    // Every value starts as zero, false or empty.
    DtOrderInterInter();
 
    // False if a parameter could not be coded, and the rest goes out without it, or if it is too long and stays here.
    static bool send(DtExerciseConn* exerciseConn, const DtOrderInterInter& interaction);
    // The callback gets this class alone, while DtExerciseConn::drainInput() runs: a subclass has a kind of its own.
    static void addCallback(DtExerciseConn* exerciseConn, DtOrderInterInterCb callback, void* user);
    static void removeCallback(DtExerciseConn* exerciseConn, DtOrderInterInterCb callback, void* user);

    typedef DtUrgency8 ValueOfUrgency;
    void setUrgency(const ValueOfUrgency& value);
    const ValueOfUrgency& urgency() const;

    typedef DtInt32 ValueOfTheRegister;
    void setTheRegister(const ValueOfTheRegister& value);
    const ValueOfTheRegister& theRegister() const;

protected:
    // For subclasses, which have names of their own.
    explicit DtOrderInterInter(const std::string& fullClassName);
 
private:
    // The values stand in a structure of their own, where no accessor can share their names.
    struct OwnValues
    {
        ValueOfUrgency myUrgency;
        ValueOfTheRegister myTheRegister;
    };
 
    OwnValues Own;
};
 
// The name that the class has in the files of both protocols.
typedef DtOrderInterInter DtOrderInter;
 
// Its parameters as named buffers, behind those of its superclasses.
class DT_DLL_CASE DtOrderInterEncoder : public DtRadioInterEncoder
{
public:
    DtOrderInterEncoder();
};
 
class DT_DLL_CASE DtOrderInterDecoder : public DtRadioInterDecoder
{
public:
    DtOrderInterDecoder();
};

#endif
