// Generated from case; the next generation writes it anew.
 
#include "stayInterDIS.h"
 
#include <qx/interactionWithEncDec.h>
#include <qx/valueCoding.h>
 
DtStayInterInter::DtStayInterInter() : DtStayInterInter(std::string("Radio.Order.Stay"))
{
}
 
DtStayInterInter::DtStayInterInter(const std::string& fullClassName)
    : DtOrderInter(fullClassName)
{
}
 
bool DtStayInterInter::send(DtExerciseConn* exerciseConn, const DtStayInterInter& interaction)
{
    return exerciseConn->sendPdu(DtStayInterPdu::theKind, interaction, DtSharedEncoder<DtStayInterEncoder>());
}
 
void DtStayInterInter::addCallback(DtExerciseConn* exerciseConn, DtStayInterInterCb callback, void* user)
{
    exerciseConn->addPduCallback(DtStayInterPdu::theKind, &DtSharedDecoder<DtStayInterDecoder>, callback, user);
}
 
void DtStayInterInter::removeCallback(DtExerciseConn* exerciseConn, DtStayInterInterCb callback, void* user)
{
    exerciseConn->removePduCallback(DtStayInterPdu::theKind, callback, user);
}

// ---- coding

DtStayInterEncoder::DtStayInterEncoder()
{
}
 
DtStayInterDecoder::DtStayInterDecoder()
{
}

