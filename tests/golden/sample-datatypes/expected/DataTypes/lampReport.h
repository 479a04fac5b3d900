#ifndef DT_DLL_CASE_DtLampReport_H
#define DT_DLL_CASE_DtLampReport_H
 
// Generated from case; the next generation writes it anew.
 
#include <qx/opaqueValue.h>
#include <qx/wireFormat.h>
 
#include "dllExport.h"
#include "DataTypes/caseEnums.h"

// A variant record: a discriminant and the alternative that it selects. Setting an alternative selects it.
//
// Its own operations take an argument or are templates, so that an alternative may bear any name.
class DT_DLL_CASE DtLampReport
{
public:
    typedef DtLampState Discriminant;

    DtLampReport();
    bool operator==(const DtLampReport& other) const;
    bool operator!=(const DtLampReport& other) const;
 
    template <class Result = Discriminant>
    Result discriminant() const
    {
        return Own.selector;
    }
    template <class Value>
    void setDiscriminant(Value value)
    {
        Own.selector = value;
    }
    // The place of the selected alternative among those that have a value, from 0; -1 when none is selected.
    template <class Result = int>
    Result selected() const
    {
        return placeOf(Own.selector);
    }
 
    const DtFloat32& period() const { return Own.myPeriod; }
    void setPeriod(const DtFloat32& value)
    {
        Own.myPeriod = value;
        select(0);
    }
    const DtString& cause() const { return Own.myCause; }
    void setCause(const DtString& value)
    {
        Own.myCause = value;
        select(1);
    }

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
    // How the record is coded. No accessor is called like this: the second letter would be a capital too.
    struct Coding
    {
        static const DtAlternativeTable& places();
        static DtVariantKind kind();
        static DtWireForm discriminantForm();
        static DtWireForm formOf(unsigned int alternative);
        static unsigned int alternativeBoundary(const DtWireTrail* outer);
    };
 
    static int placeOf(const Discriminant& selector);
    void select(unsigned int alternative);
 
    // The values stand in a structure of their own, where no accessor can share their names.
    struct OwnValues
    {
        Discriminant selector;
        DtFloat32 myPeriod;
        DtString myCause;
    };
 
    OwnValues Own;
};
 
#endif

