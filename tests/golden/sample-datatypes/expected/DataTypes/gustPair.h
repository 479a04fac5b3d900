#ifndef DT_DLL_CASE_DtGustPair_H
#define DT_DLL_CASE_DtGustPair_H
 
// Generated from case; the next generation writes it anew.
 
#include <qx/opaqueValue.h>
#include <qx/wireFormat.h>
 
#include "dllExport.h"
#include "DataTypes/caseEnums.h"

// A fixed record. Its own operations take an argument or are templates, so that a field may bear any name.
class DT_DLL_CASE DtGustPair
{
public:
    DtGustPair();
    bool operator==(const DtGustPair& other) const;
    bool operator!=(const DtGustPair& other) const;
 
    const DtFloat32& low() const { return Own.myLow; }
    void setLow(const DtFloat32& value) { Own.myLow = value; }
    const DtFloat32& high() const { return Own.myHigh; }
    void setHigh(const DtFloat32& value) { Own.myHigh = value; }

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
        DtFloat32 myLow;
        DtFloat32 myHigh;
    };
 
    OwnValues Own;
};
 
#endif

