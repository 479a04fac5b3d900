#ifndef DT_DLL_CASE_DtAnimalDecoder_H
#define DT_DLL_CASE_DtAnimalDecoder_H
 
// Generated from case; the next generation writes it anew.
 
#include <qx/hlaStateDecoder.h>
#include "animalStateRepository.h"
#include "dllExport.h"
 
// Sets the attributes of HLAobjectRoot.Animal and of its superclasses from named buffers.
class DT_DLL_CASE DtAnimalDecoder
    : public DtHlaStateDecoder
{
public:
    DtAnimalDecoder();
 
protected:
    // One for each attribute; false if the buffer holds no value of it.
    static bool decodeName(DtAnimalStateRepository& state, DtWireReader& reader);
    static bool decodeLegs(DtAnimalStateRepository& state, DtWireReader& reader);
};

#endif
