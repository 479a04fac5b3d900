#ifndef DT_DLL_CASE_DtInspection_H
#define DT_DLL_CASE_DtInspection_H
 
// Generated from case; the next generation writes it anew.
 
#include <qx/opaqueValue.h>
#include <qx/wireFormat.h>
 
#include "dllExport.h"
#include "DataTypes/caseEnums.h"
#ifndef __has_include
#include "DataTypes/depthGrid.h"
#elif __has_include("DataTypes/depthGrid.h")
#include "DataTypes/depthGrid.h"
#endif
#ifndef __has_include
#include "DataTypes/harbourUnsigned16LE.h"
#elif __has_include("DataTypes/harbourUnsigned16LE.h")
#include "DataTypes/harbourUnsigned16LE.h"
#endif

// A variant record: a discriminant and the alternative that it selects. Setting an alternative selects it.
//
// Its own operations take an argument or are templates, so that an alternative may bear any name.
class DT_DLL_CASE DtInspection
{
public:
    typedef DtVesselState8 Discriminant;

    DtInspection();
    bool operator==(const DtInspection& other) const;
    bool operator!=(const DtInspection& other) const;
 
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
 
    const DtDepthGrid& hull() const { return Own.myHull; }
    void setHull(const DtDepthGrid& value)
    {
        Own.myHull = value;
        select(0);
    }
    const DtFloat64& hours() const { return Own.myHours; }
    void setHours(const DtFloat64& value)
    {
        Own.myHours = value;
        select(1);
    }
    const DtHarbourUnsigned16LE& hole() const { return Own.myHole; }
    void setHole(const DtHarbourUnsigned16LE& value)
    {
        Own.myHole = value;
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
        DtDepthGrid myHull;
        DtFloat64 myHours;
        DtHarbourUnsigned16LE myHole;
    };
 
    OwnValues Own;
};
 
#endif

