#ifndef DT_DLL_CASE_DtVesselEncoder_H
#define DT_DLL_CASE_DtVesselEncoder_H
 
// Generated from case; the next generation writes it anew.
 
#include "portEntityEncoderHLA.h"
#include "vesselStateRepository.h"
#include "dllExport.h"
 
// Puts the attributes of HLAobjectRoot.PortEntity.Vessel into named buffers, behind those of its superclasses.
class DT_DLL_CASE DtVesselEncoder
    : public DtPortEntityEncoder
{
public:
    DtVesselEncoder();
 
protected:
    // One for each attribute; false if the value has no wire form.
    static bool encodeSpeed(const DtVesselStateRepository& state, DtWireWriter& writer);
    static bool encodeHeading__True(const DtVesselStateRepository& state, DtWireWriter& writer);
    static bool encodeState(const DtVesselStateRepository& state, DtWireWriter& writer);
    static bool encodeTheClass(const DtVesselStateRepository& state, DtWireWriter& writer);
    static bool encodeTheInt(const DtVesselStateRepository& state, DtWireWriter& writer);
    static bool encodeTheTemplate(const DtVesselStateRepository& state, DtWireWriter& writer);
    static bool encodeCrew(const DtVesselStateRepository& state, DtWireWriter& writer);
};

#endif
