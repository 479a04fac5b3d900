#ifndef DT_DLL_CASE_DtPortEntityDecoder_H
#define DT_DLL_CASE_DtPortEntityDecoder_H
 
// Generated from case; the next generation writes it anew.
 
#include <qx/hlaStateDecoder.h>
#include "portEntityStateRepository.h"
#include "dllExport.h"
 
// Sets the attributes of HLAobjectRoot.PortEntity and of its superclasses from named buffers.
class DT_DLL_CASE DtPortEntityDecoder
    : public DtHlaStateDecoder
{
public:
    DtPortEntityDecoder();
 
protected:
    // One for each attribute; false if the buffer holds no value of it.
    static bool decodePosition(DtPortEntityStateRepository& state, DtWireReader& reader);
    static bool decodeName(DtPortEntityStateRepository& state, DtWireReader& reader);
    static bool decodeSerial(DtPortEntityStateRepository& state, DtWireReader& reader);
};

#endif
