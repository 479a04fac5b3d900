#ifndef DT_DLL_CASE_DtStayInter_H
#define DT_DLL_CASE_DtStayInter_H
 
// Generated from case; the next generation writes it anew.
 
#include "orderInterHLA.h"
#include <qx/exerciseConn.h>
#include <qx/opaqueValue.h>
#include <qx/valueTypes.h>
 
#include "DataTypes/caseEnums.h"
#include "dllExport.h"
 
#include <vector>
 
class DtStayInter;
typedef void (*DtStayInterCb)(DtStayInter* interaction, void* user);
 
// One Radio.Order.Stay: its own parameters here, those of its superclasses in the bases.
//
// It is sent with DtExerciseConn::sendInteraction() and comes in through a callback.
class DT_DLL_CASE DtStayInter
    : public DtOrderInter
{
public:
    // Every value starts as zero, false or empty.
    DtStayInter();
 
    // The callback gets this class and its subclasses, while DtExerciseConn::drainInput() runs.
    static void addCallback(DtExerciseConn* exerciseConn, DtStayInterCb callback, void* user);
    static void removeCallback(DtExerciseConn* exerciseConn, DtStayInterCb callback, void* user);

protected:
    // For subclasses, which have names and coders of their own.
    explicit DtStayInter(const DtInteractionCoding& coding);
 
private:
};

#endif
