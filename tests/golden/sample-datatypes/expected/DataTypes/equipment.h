#ifndef DT_DLL_CASE_DtEquipment_H
#define DT_DLL_CASE_DtEquipment_H
 
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
#include "DataTypes/count8.h"
#elif __has_include("DataTypes/count8.h")
#include "DataTypes/count8.h"
#endif

// A variant record: a discriminant and the alternative that it selects. Setting an alternative selects it.
//
// Its own operations take an argument or are templates, so that an alternative may bear any name.
class DT_DLL_CASE DtEquipment
{
public:
    typedef DtTool16 Discriminant;

    DtEquipment();
    bool operator==(const DtEquipment& other) const;
    bool operator!=(const DtEquipment& other) const;
 
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
 
    const DtWeight__Kg& chain() const { return Own.myChain; }
    void setChain(const DtWeight__Kg& value)
    {
        Own.myChain = value;
        select(0);
    }
    const DtCount8& lift() const { return Own.myLift; }
    void setLift(const DtCount8& value)
    {
        Own.myLift = value;
        select(1);
    }
    const DtString& band() const { return Own.myBand; }
    void setBand(const DtString& value)
    {
        Own.myBand = value;
        select(2);
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
        DtWeight__Kg myChain;
        DtCount8 myLift;
        DtString myBand;
    };
 
    OwnValues Own;
};
 
#endif

