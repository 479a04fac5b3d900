#ifndef DT_DLL_CASE_DtSignalInterInter_DIS_H
#define DT_DLL_CASE_DtSignalInterInter_DIS_H
 
// Generated from case; the next generation writes it anew.
 
#include <qx/interaction.h>
#include <qx/exerciseConn.h>
#include <qx/interactionDecoder.h>
#include <qx/interactionEncoder.h>
#include <qx/opaqueValue.h>
#include <qx/packets/pduHeader.h>
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
 
#include <string>
#include <vector>
 
class DtSignalInterInter;
typedef void (*DtSignalInterInterCb)(DtSignalInterInter* interaction, void* user);
 
// Header of the protocol data unit that carries a Signal, by its kind.
class DT_DLL_CASE DtSignalInterPdu : public DtNetPduHeader
{
public:
    enum
    {
        theKind = 6
    };
 
    DtSignalInterPdu() { setPduKind(theKind); }
};
 
// One Signal: its own parameters here, those of its superclasses in the bases.
class DT_DLL_CASE DtSignalInterInter : public DtInteraction
{
public:
    // Every value starts as zero, false or empty.
    DtSignalInterInter();
 
    // False if a parameter could not be coded, and the rest goes out without it, or if it is too long and stays here.
    static bool send(DtExerciseConn* exerciseConn, const DtSignalInterInter& interaction);
    // The callback gets this class alone, while DtExerciseConn::drainInput() runs: a subclass has a kind of its own.
    static void addCallback(DtExerciseConn* exerciseConn, DtSignalInterInterCb callback, void* user);
    static void removeCallback(DtExerciseConn* exerciseConn, DtSignalInterInterCb callback, void* user);

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
    // For subclasses, which have names of their own.
    explicit DtSignalInterInter(const std::string& fullClassName);
 
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
 
// The name that the class has in the files of both protocols.
typedef DtSignalInterInter DtSignalInter;
 
// Its parameters as named buffers, behind those of its superclasses.
class DT_DLL_CASE DtSignalInterEncoder : public DtInteractionEncoder
{
public:
    DtSignalInterEncoder();
};
 
class DT_DLL_CASE DtSignalInterDecoder : public DtInteractionDecoder
{
public:
    DtSignalInterDecoder();
};

#endif
