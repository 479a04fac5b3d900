#ifndef DT_DLL_CASE_DtAnswerInterInter_DIS_H
#define DT_DLL_CASE_DtAnswerInterInter_DIS_H
 
// Generated from case; the next generation writes it anew.
 
#include "radioInter.h"
#include <qx/exerciseConn.h>
#include <qx/interactionDecoder.h>
#include <qx/interactionEncoder.h>
#include <qx/opaqueValue.h>
#include <qx/packets/pduHeader.h>
#include <qx/valueTypes.h>
 
#include "DataTypes/caseEnums.h"
#ifndef __has_include
#include "DataTypes/occupant.h"
#elif __has_include("DataTypes/occupant.h")
#include "DataTypes/occupant.h"
#endif
#include "dllExport.h"
 
#include <string>
#include <vector>
 
class DtAnswerInterInter;
typedef void (*DtAnswerInterInterCb)(DtAnswerInterInter* interaction, void* user);
 
// Header of the protocol data unit that carries a Radio.Answer, by its kind.
class DT_DLL_CASE DtAnswerInterPdu : public DtRadioInterPdu
{
public:
    enum
    {
        theKind = 2
    };
 
    DtAnswerInterPdu() { setPduKind(theKind); }
};
 
// One Radio.Answer: its own parameters here, those of its superclasses in the bases.
class DT_DLL_CASE DtAnswerInterInter : public DtRadioInter
{
public:
    // Every value starts as zero, false or empty.
    DtAnswerInterInter();
 
    // False if a parameter could not be coded, and the rest goes out without it, or if it is too long and stays here.
    static bool send(DtExerciseConn* exerciseConn, const DtAnswerInterInter& interaction);
    // The callback gets this class alone, while DtExerciseConn::drainInput() runs: a subclass has a kind of its own.
    static void addCallback(DtExerciseConn* exerciseConn, DtAnswerInterInterCb callback, void* user);
    static void removeCallback(DtExerciseConn* exerciseConn, DtAnswerInterInterCb callback, void* user);

    typedef bool ValueOfDone;
    void setDone(const ValueOfDone& value);
    const ValueOfDone& done() const;

    typedef DtOccupant ValueOfReason;
    void setReason(const ValueOfReason& value);
    const ValueOfReason& reason() const;

protected:
    // For subclasses, which have names of their own.
    explicit DtAnswerInterInter(const std::string& fullClassName);
 
private:
    // The values stand in a structure of their own, where no accessor can share their names.
    struct OwnValues
    {
        ValueOfDone myDone;
        ValueOfReason myReason;
    };
 
    OwnValues Own;
};
 
// The name that the class has in the files of both protocols.
typedef DtAnswerInterInter DtAnswerInter;
 
// Its parameters as named buffers, behind those of its superclasses.
class DT_DLL_CASE DtAnswerInterEncoder : public DtRadioInterEncoder
{
public:
    DtAnswerInterEncoder();
};
 
class DT_DLL_CASE DtAnswerInterDecoder : public DtRadioInterDecoder
{
public:
    DtAnswerInterDecoder();
};

#endif
