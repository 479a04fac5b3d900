// Generated from case; the next generation writes it anew.
 
#include "beds/waterInterHLA.h"
 
#include "beds/waterInterDecoderHLA.h"
#include "beds/waterInterEncoderHLA.h"
 
namespace garden
{
 
DtQxWaterInter::DtQxWaterInter()
    : DtQxWaterInter(DtInteractionCoding{
          "Water", &DtSharedEncoder<DtQxWaterInterEncoder>, &DtSharedDecoder<DtQxWaterInterDecoder>})
{
}
 
DtQxWaterInter::DtQxWaterInter(const DtInteractionCoding& coding)
    : DtInteractionWithEncDec(coding), Own()
{
}
 
void DtQxWaterInter::addCallback(DtExerciseConn* exerciseConn, DtQxWaterInterCb callback, void* user)
{
    exerciseConn->addInteractionCallback(callback, user);
}
 
void DtQxWaterInter::removeCallback(DtExerciseConn* exerciseConn, DtQxWaterInterCb callback, void* user)
{
    exerciseConn->removeInteractionCallback(callback, user);
}

void DtQxWaterInter::setLitres(const ValueOfLitres& value)
{
    Own.myLitres = value;
}
 
const DtQxWaterInter::ValueOfLitres& DtQxWaterInter::litres() const
{
    return Own.myLitres;
}

} // namespace garden

