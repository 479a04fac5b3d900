#ifndef DT_DLL_CASE_DtQxPacket_H
#define DT_DLL_CASE_DtQxPacket_H
 
// Generated from case; the next generation writes it anew.
 
#include <qx/opaqueValue.h>
#include <qx/wireFormat.h>
 
#include "dllExport.h"
#include "DataTypes/caseEnums.h"
#ifndef __has_include
#include "DataTypes/qxSeeds.h"
#elif __has_include("DataTypes/qxSeeds.h")
#include "DataTypes/qxSeeds.h"
#endif

namespace garden
{
 
// A fixed record. Its own operations take an argument or are templates, so that a field may bear any name.
class DT_DLL_CASE DtQxPacket
{
public:
    DtQxPacket();
    bool operator==(const DtQxPacket& other) const;
    bool operator!=(const DtQxPacket& other) const;
 
    const DtQxSeeds& front() const { return Own.myFront; }
    void setFront(const DtQxSeeds& value) { Own.myFront = value; }
    const DtQxSeeds& back() const { return Own.myBack; }
    void setBack(const DtQxSeeds& value) { Own.myBack = value; }

    void encode(DtWireWriter& writer) const;
    // False: the octets are no such record, and this one is as it was.
    bool decode(DtWireReader& reader);
    // Octets on the wire, from an offset of 0.
    template <class Size = unsigned int>
    Size netSize() const
    {
        return DtNetSizeOf(*this);
    }
    template <class Size = unsigned int>
    static Size octetBoundary()
    {
        return octetBoundary(static_cast<const DtWireTrail*>(nullptr));
    }
    static unsigned int octetBoundary(const DtWireTrail* outer);
 
private:
    static DtWireForm formOf(unsigned int field);

    // The values stand in a structure of their own, where no accessor can share their names.
    struct OwnValues
    {
        DtQxSeeds myFront;
        DtQxSeeds myBack;
    };
 
    OwnValues Own;
};
 
} // namespace garden
 
#endif

