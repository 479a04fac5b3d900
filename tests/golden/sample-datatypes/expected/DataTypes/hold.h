#ifndef DT_DLL_CASE_DtHold_H
#define DT_DLL_CASE_DtHold_H
 
// Generated from case; the next generation writes it anew.
 
#include <qx/opaqueValue.h>
#include <qx/wireFormat.h>
 
#include "dllExport.h"
#include "DataTypes/caseEnums.h"
#ifndef __has_include
#include "DataTypes/weight__Kg.h"
#elif __has_include("DataTypes/weight__Kg.h")
#include "DataTypes/weight__Kg.h"
#endif
#ifndef __has_include
#include "DataTypes/sub_Count_.h"
#elif __has_include("DataTypes/sub_Count_.h")
#include "DataTypes/sub_Count_.h"
#endif

// A fixed record. Its own operations take an argument or are templates, so that a field may bear any name.
class DT_DLL_CASE DtHold
{
public:
    DtHold();
    bool operator==(const DtHold& other) const;
    bool operator!=(const DtHold& other) const;
 
    const bool& full() const { return Own.myFull; }
    void setFull(const bool& value) { Own.myFull = value; }
    const DtWeight__Kg& load() const { return Own.myLoad; }
    void setLoad(const DtWeight__Kg& value) { Own.myLoad = value; }
    const DtVesselState8& state() const { return Own.myState; }
    void setState(const DtVesselState8& value) { Own.myState = value; }
    const DtSub_Count_& sub() const { return Own.mySub; }
    void setSub(const DtSub_Count_& value) { Own.mySub = value; }

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
        bool myFull;
        DtWeight__Kg myLoad;
        DtVesselState8 myState;
        DtSub_Count_ mySub;
    };
 
    OwnValues Own;
};
 
#endif

