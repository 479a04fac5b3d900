#ifndef DT_DLL_CASE_DtPortEntityEncoder_DIS_H
#define DT_DLL_CASE_DtPortEntityEncoder_DIS_H
 
// Generated from case; the next generation writes it anew.
 
#include <qx/stateEncoder.h>
#include "portEntityStateRepository.h"
#include "dllExport.h"
 
// Puts the attributes of HLAobjectRoot.PortEntity into the body of a protocol data unit, behind those of its superclasses.
class DT_DLL_CASE DtPortEntityEncoder : public DtStateEncoder
{
public:
    DtPortEntityEncoder();
 
protected:
    // One for each attribute; false if the value has no wire form.
    static bool encodePosition(const DtPortEntityStateRepository& state, DtWireWriter& writer);
    static bool encodeName(const DtPortEntityStateRepository& state, DtWireWriter& writer);
    static bool encodeSerial(const DtPortEntityStateRepository& state, DtWireWriter& writer);
};

#endif
