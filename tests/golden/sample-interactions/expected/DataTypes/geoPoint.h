#ifndef DT_DLL_CASE_DtGeoPoint_H
#define DT_DLL_CASE_DtGeoPoint_H
 
// Generated from case; the next generation writes it anew.
 
#include <qx/opaqueValue.h>
#include <qx/wireFormat.h>
 
#include "dllExport.h"
#include "DataTypes/caseEnums.h"

// A fixed record. Its own operations take an argument or are templates, so that a field may bear any name.
class DT_DLL_CASE DtGeoPoint
{
public:
    DtGeoPoint();
    bool operator==(const DtGeoPoint& other) const;
    bool operator!=(const DtGeoPoint& other) const;
 
    const DtFloat64& latitude() const { return Own.myLatitude; }
    void setLatitude(const DtFloat64& value) { Own.myLatitude = value; }
    const DtFloat64& longitude() const { return Own.myLongitude; }
    void setLongitude(const DtFloat64& value) { Own.myLongitude = value; }
    const DtFloat32& height() const { return Own.myHeight; }
    void setHeight(const DtFloat32& value) { Own.myHeight = value; }

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
        DtFloat64 myLatitude;
        DtFloat64 myLongitude;
        DtFloat32 myHeight;
    };
 
    OwnValues Own;
};
 
#endif

