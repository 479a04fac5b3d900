#ifndef DT_DLL_CASE_DtDogDecoder_H
#define DT_DLL_CASE_DtDogDecoder_H
 
// Generated from case; the next generation writes it anew.
 
#include "animalDecoderHLA.h"
#include "dogStateRepository.h"
#include "dllExport.h"
 
// Sets the attributes of HLAobjectRoot.Animal.Dog and of its superclasses from named buffers.
class DT_DLL_CASE DtDogDecoder
    : public DtAnimalDecoder
{
public:
    DtDogDecoder();
 
protected:
    // One for each attribute; false if the buffer holds no value of it.
    static bool decodeBarks(DtDogStateRepository& state, DtWireReader& reader);
    static bool decodeWeight__Kg(DtDogStateRepository& state, DtWireReader& reader);
};

#endif
