#ifndef DT_DLL_CASE_DtRadioInterInter_DIS_H
#define DT_DLL_CASE_DtRadioInterInter_DIS_H
 
// Generated from case; the next generation writes it anew.
 
#include <qx/interaction.h>
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
 
class DtRadioInterInter;
typedef void (*DtRadioInterInterCb)(DtRadioInterInter* interaction, void* user);
 
// Header of the protocol data unit that carries a Radio, by its kind.
class DT_DLL_CASE DtRadioInterPdu : public DtNetPduHeader
{
public:
    enum
    {
        theKind = 1
    };
 
    DtRadioInterPdu() { setPduKind(theKind); }
};
 
// One Radio: its own parameters here, those of its superclasses in the bases.
class DT_DLL_CASE DtRadioInterInter : public DtInteraction
{
public:
    // Every value starts as zero, false or empty.
    DtRadioInterInter();
 
    // False if a parameter could not be coded, and the rest goes out without it, or if it is too long and stays here.
    static bool send(DtExerciseConn* exerciseConn, const DtRadioInterInter& interaction);
    // The callback gets this class alone, while DtExerciseConn::drainInput() runs: a subclass has a kind of its own.
    static void addCallback(DtExerciseConn* exerciseConn, DtRadioInterInterCb callback, void* user);
    static void removeCallback(DtExerciseConn* exerciseConn, DtRadioInterInterCb callback, void* user);

    typedef DtInt16 ValueOfChannel;
    void setChannel(const ValueOfChannel& value);
    const ValueOfChannel& channel() const;

    typedef DtString ValueOfText;
    void setText(const ValueOfText& value);
    const ValueOfText& text() const;

protected:
    // For subclasses, which have names of their own.
    explicit DtRadioInterInter(const std::string& fullClassName);
 
private:
    // The values stand in a structure of their own, where no accessor can share their names.
    struct OwnValues
    {
        ValueOfChannel myChannel;
        ValueOfText myText;
    };
 
    OwnValues Own;
};
 
// The name that the class has in the files of both protocols.
typedef DtRadioInterInter DtRadioInter;
 
// Its parameters as named buffers, behind those of its superclasses.
class DT_DLL_CASE DtRadioInterEncoder : public DtInteractionEncoder
{
public:
    DtRadioInterEncoder();
};
 
class DT_DLL_CASE DtRadioInterDecoder : public DtInteractionDecoder
{
public:
    DtRadioInterDecoder();
};

#endif
