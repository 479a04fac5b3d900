#ifndef DT_DLL_CASE_DtAnimalEncoder_H
#define DT_DLL_CASE_DtAnimalEncoder_H
 
// Generated from case; the next generation writes it anew.
 
#include <qx/hlaStateEncoder.h>
#include "animalStateRepository.h"
#include "dllExport.h"
 
// Puts the attributes of HLAobjectRoot.Animal into named buffers, behind those of its superclasses.
class DT_DLL_CASE DtAnimalEncoder
    : public DtHlaStateEncoder
{
public:
    DtAnimalEncoder();
 
protected:
    // One for each attribute; false if the value has no wire form.
    static bool encodeName(const DtAnimalStateRepository& state, DtWireWriter& writer);
    static bool encodeLegs(const DtAnimalStateRepository& state, DtWireWriter& writer);
};

#endif
