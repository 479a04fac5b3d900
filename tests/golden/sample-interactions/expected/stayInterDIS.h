#ifndef DT_DLL_CASE_DtStayInterInter_DIS_H
#define DT_DLL_CASE_DtStayInterInter_DIS_H
 
// Generated from case; the next generation writes it anew.
 
#include "orderInter.h"
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
 
class DtStayInterInter;
typedef void (*DtStayInterInterCb)(DtStayInterInter* interaction, void* user);
 
// Header of the protocol data unit that carries a Radio.Order.Stay, by its kind.
class DT_DLL_CASE DtStayInterPdu : public DtOrderInterPdu
{
public:
    enum
    {
        theKind = 5
    };
 
    DtStayInterPdu() { setPduKind(theKind); }
};
 
// One Radio.Order.Stay: its own parameters here, those of its superclasses in the bases.
class DT_DLL_CASE DtStayInterInter : public DtOrderInter
{
public:
    // Every value starts as zero, false or empty.
    DtStayInterInter();
 
    // False if a parameter could not be coded, and the rest goes out without it, or if it is too long and stays here.
    static bool send(DtExerciseConn* exerciseConn, const DtStayInterInter& interaction);
    // The callback gets this class alone, while DtExerciseConn::drainInput() runs: a subclass has a kind of its own.
    static void addCallback(DtExerciseConn* exerciseConn, DtStayInterInterCb callback, void* user);
    static void removeCallback(DtExerciseConn* exerciseConn, DtStayInterInterCb callback, void* user);

protected:
    // For subclasses, which have names of their own.
    explicit DtStayInterInter(const std::string& fullClassName);
 
private:
};
 
// The name that the class has in the files of both protocols.
typedef DtStayInterInter DtStayInter;
 
// Its parameters as named buffers, behind those of its superclasses.
class DT_DLL_CASE DtStayInterEncoder : public DtOrderInterEncoder
{
public:
    DtStayInterEncoder();
};
 
class DT_DLL_CASE DtStayInterDecoder : public DtOrderInterDecoder
{
public:
    DtStayInterDecoder();
};

#endif
