#ifndef DT_DLL_CASE_DtPortEntityDecoder_DIS_H
#define DT_DLL_CASE_DtPortEntityDecoder_DIS_H
 
// Generated from case; the next generation writes it anew.
 
#include <qx/stateDecoder.h>
#include "portEntityStateRepository.h"
#include "dllExport.h"
 
// Sets the attributes of HLAobjectRoot.PortEntity and of its superclasses from the body of a protocol data unit.
class DT_DLL_CASE DtPortEntityDecoder : public DtStateDecoder
{
public:
    DtPortEntityDecoder();
 
protected:
    // One for each attribute; false if the body holds no value of it.
    static bool decodePosition(DtPortEntityStateRepository& state, DtWireReader& reader);
    static bool decodeName(DtPortEntityStateRepository& state, DtWireReader& reader);
    static bool decodeSerial(DtPortEntityStateRepository& state, DtWireReader& reader);
};

#endif
