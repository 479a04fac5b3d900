#ifndef DT_DLL_CASE_DtBerthDecoder_H
#define DT_DLL_CASE_DtBerthDecoder_H
 
// Generated from case; the next generation writes it anew.
 
#include "portEntityDecoderHLA.h"
#include "berthStateRepository.h"
#include "dllExport.h"
 
// Sets the attributes of HLAobjectRoot.PortEntity.Berth and of its superclasses from named buffers.
class DT_DLL_CASE DtBerthDecoder
    : public DtPortEntityDecoder
{
public:
    DtBerthDecoder();
 
protected:
    // One for each attribute; false if the buffer holds no value of it.
    static bool decodeLength(DtBerthStateRepository& state, DtWireReader& reader);
    static bool decodeDepths(DtBerthStateRepository& state, DtWireReader& reader);
    static bool decodeOccupant(DtBerthStateRepository& state, DtWireReader& reader);
    static bool decodeFlags(DtBerthStateRepository& state, DtWireReader& reader);
    static bool decodeKind64(DtBerthStateRepository& state, DtWireReader& reader);
    static bool decodeFenders(DtBerthStateRepository& state, DtWireReader& reader);
};

#endif
