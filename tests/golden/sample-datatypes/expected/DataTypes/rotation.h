#ifndef DT_DLL_CASE_DtRotation_H
#define DT_DLL_CASE_DtRotation_H
 
// Generated from case; the next generation writes it anew.
 
#include <qx/opaqueValue.h>
#include <qx/wireFormat.h>
 
#include "dllExport.h"
#include "DataTypes/caseEnums.h"
#ifndef __has_include
#include "DataTypes/berthSlot.h"
#elif __has_include("DataTypes/berthSlot.h")
#include "DataTypes/berthSlot.h"
#endif
#ifndef __has_include
#include "DataTypes/geoPoint.h"
#elif __has_include("DataTypes/geoPoint.h")
#include "DataTypes/geoPoint.h"
#endif
#ifndef __has_include
#include "DataTypes/count8.h"
#elif __has_include("DataTypes/count8.h")
#include "DataTypes/count8.h"
#endif

// A fixed record. Its own operations take an argument or are templates, so that a field may bear any name.
class DT_DLL_CASE DtRotation
{
public:
    DtRotation();
    bool operator==(const DtRotation& other) const;
    bool operator!=(const DtRotation& other) const;
 
    const DtBerthSlot& slot() const { return Own.mySlot; }
    void setSlot(const DtBerthSlot& value) { Own.mySlot = value; }
    const DtGeoPoint& centre() const { return Own.myCentre; }
    void setCentre(const DtGeoPoint& value) { Own.myCentre = value; }
    const DtCount8& turns() const { return Own.myTurns; }
    void setTurns(const DtCount8& value) { Own.myTurns = value; }

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
        DtBerthSlot mySlot;
        DtGeoPoint myCentre;
        DtCount8 myTurns;
    };
 
    OwnValues Own;
};
 
#endif

