#ifndef DT_DLL_CASE_DtQxWaterInter_H
#define DT_DLL_CASE_DtQxWaterInter_H
 
// Generated from case; the next generation writes it anew.
 
#include <qx/interactionWithEncDec.h>
#include <qx/exerciseConn.h>
#include <qx/opaqueValue.h>
#include <qx/valueTypes.h>
 
#include "DataTypes/caseEnums.h"
#include "dllExport.h"
 
#include <vector>
 
namespace garden
{
 
class DtQxWaterInter;
typedef void (*DtQxWaterInterCb)(DtQxWaterInter* interaction, void* user);
 
// One Water: its own parameters here, those of its superclasses in the bases.
//
// It is sent with DtExerciseConn::sendInteraction() and comes in through a callback.
class DT_DLL_CASE DtQxWaterInter
    : public DtInteractionWithEncDec
{
public:
    // Every value starts as zero, false or empty.
    DtQxWaterInter();
 
    // The callback gets this class and its subclasses, while DtExerciseConn::drainInput() runs.
    static void addCallback(DtExerciseConn* exerciseConn, DtQxWaterInterCb callback, void* user);
    static void removeCallback(DtExerciseConn* exerciseConn, DtQxWaterInterCb callback, void* user);

    typedef DtFloat32 ValueOfLitres;
    void setLitres(const ValueOfLitres& value);
    const ValueOfLitres& litres() const;

protected:
    // For subclasses, which have names and coders of their own.
    explicit DtQxWaterInter(const DtInteractionCoding& coding);
 
private:
    // The values stand in a structure of their own, where no accessor can share their names.
    struct OwnValues
    {
        ValueOfLitres myLitres;
    };
 
    OwnValues Own;
};

} // namespace garden

#endif
