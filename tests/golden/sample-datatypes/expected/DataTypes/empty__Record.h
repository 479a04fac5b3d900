#ifndef DT_DLL_CASE_DtEmpty__Record_H
#define DT_DLL_CASE_DtEmpty__Record_H
 
// Generated from case; the next generation writes it anew.
 
#include <qx/opaqueValue.h>
#include <qx/wireFormat.h>
 
#include "dllExport.h"
#include "DataTypes/caseEnums.h"

// A fixed record. Its own operations take an argument or are templates, so that a field may bear any name.
class DT_DLL_CASE DtEmpty__Record
{
public:
    DtEmpty__Record();
    bool operator==(const DtEmpty__Record& other) const;
    bool operator!=(const DtEmpty__Record& other) const;
 

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
};
 
#endif

