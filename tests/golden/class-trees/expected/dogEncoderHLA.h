#ifndef DT_DLL_CASE_DtDogEncoder_H
#define DT_DLL_CASE_DtDogEncoder_H
 
// Generated from case; the next generation writes it anew.
 
#include "animalEncoderHLA.h"
#include "dogStateRepository.h"
#include "dllExport.h"
 
// Puts the attributes of HLAobjectRoot.Animal.Dog into named buffers, behind those of its superclasses.
class DT_DLL_CASE DtDogEncoder
    : public DtAnimalEncoder
{
public:
    DtDogEncoder();
 
protected:
    // One for each attribute; false if the value has no wire form.
    static bool encodeBarks(const DtDogStateRepository& state, DtWireWriter& writer);
    static bool encodeWeight__Kg(const DtDogStateRepository& state, DtWireWriter& writer);
};

#endif
