#ifndef DT_DLL_CASE_DtCargo__Item_H
#define DT_DLL_CASE_DtCargo__Item_H
 
// Generated from case; the next generation writes it anew.
 
#include <qx/opaqueValue.h>
#include <qx/wireFormat.h>
 
#include "dllExport.h"
#include "DataTypes/caseEnums.h"
#ifndef __has_include
#include "DataTypes/oldText.h"
#elif __has_include("DataTypes/oldText.h")
#include "DataTypes/oldText.h"
#endif
#ifndef __has_include
#include "DataTypes/weight__Kg.h"
#elif __has_include("DataTypes/weight__Kg.h")
#include "DataTypes/weight__Kg.h"
#endif
#ifndef __has_include
#include "DataTypes/plain__Four.h"
#elif __has_include("DataTypes/plain__Four.h")
#include "DataTypes/plain__Four.h"
#endif

// A fixed record. Its own operations take an argument or are templates, so that a field may bear any name.
class DT_DLL_CASE DtCargo__Item
{
public:
    DtCargo__Item();
    bool operator==(const DtCargo__Item& other) const;
    bool operator!=(const DtCargo__Item& other) const;
 
    const DtOldText& label() const { return Own.myLabel; }
    void setLabel(const DtOldText& value) { Own.myLabel = value; }
    const DtWeight__Kg& weight__Gross() const { return Own.myWeight__Gross; }
    void setWeight__Gross(const DtWeight__Kg& value) { Own.myWeight__Gross = value; }
    const DtPlain__Four& theTemplate() const { return Own.mytemplate; }
    void setTheTemplate(const DtPlain__Four& value) { Own.mytemplate = value; }

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
        DtOldText myLabel;
        DtWeight__Kg myWeight__Gross;
        DtPlain__Four mytemplate;
    };
 
    OwnValues Own;
};
 
#endif

