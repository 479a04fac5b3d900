#ifndef DT_DLL_CASE_DtVesselDecoder_H
#define DT_DLL_CASE_DtVesselDecoder_H
 
// Generated from case; the next generation writes it anew.
 
#include "portEntityDecoderHLA.h"
#include "vesselStateRepository.h"
#include "dllExport.h"
 
// Sets the attributes of HLAobjectRoot.PortEntity.Vessel and of its superclasses from named buffers.
class DT_DLL_CASE DtVesselDecoder
    : public DtPortEntityDecoder
{
public:
    DtVesselDecoder();
 
protected:
    // One for each attribute; false if the buffer holds no value of it.
    static bool decodeSpeed(DtVesselStateRepository& state, DtWireReader& reader);
    static bool decodeHeading__True(DtVesselStateRepository& state, DtWireReader& reader);
    static bool decodeState(DtVesselStateRepository& state, DtWireReader& reader);
    static bool decodeTheClass(DtVesselStateRepository& state, DtWireReader& reader);
    static bool decodeTheInt(DtVesselStateRepository& state, DtWireReader& reader);
    static bool decodeTheTemplate(DtVesselStateRepository& state, DtWireReader& reader);
    static bool decodeCrew(DtVesselStateRepository& state, DtWireReader& reader);
};

#endif
