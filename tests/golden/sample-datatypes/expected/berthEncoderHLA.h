#ifndef DT_DLL_CASE_DtBerthEncoder_H
#define DT_DLL_CASE_DtBerthEncoder_H
 
// Generated from case; the next generation writes it anew.
 
#include "portEntityEncoderHLA.h"
#include "berthStateRepository.h"
#include "dllExport.h"
 
// Puts the attributes of HLAobjectRoot.PortEntity.Berth into named buffers, behind those of its superclasses.
class DT_DLL_CASE DtBerthEncoder
    : public DtPortEntityEncoder
{
public:
    DtBerthEncoder();
 
protected:
    // One for each attribute; false if the value has no wire form.
    static bool encodeLength(const DtBerthStateRepository& state, DtWireWriter& writer);
    static bool encodeDepths(const DtBerthStateRepository& state, DtWireWriter& writer);
    static bool encodeOccupant(const DtBerthStateRepository& state, DtWireWriter& writer);
    static bool encodeFlags(const DtBerthStateRepository& state, DtWireWriter& writer);
    static bool encodeKind64(const DtBerthStateRepository& state, DtWireWriter& writer);
    static bool encodeFenders(const DtBerthStateRepository& state, DtWireWriter& writer);
};

#endif
