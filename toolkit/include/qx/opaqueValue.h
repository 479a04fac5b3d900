#ifndef QX_OPAQUE_VALUE_H
#define QX_OPAQUE_VALUE_H

#include <qx/valueTypes.h>

class DtWireReader;
class DtWireWriter;

// Value of an attribute whose datatype has no C++ form: the octets alone.
//
// Generated classes hold one where the model names a datatype that it does not define. Nothing generated codes it,
// since its length on the wire is unknown; code written by hand may.
class DtOpaqueValue
{
public:
    DtOpaqueValue() : myOctets() {}
    explicit DtOpaqueValue(const DtValueBuffer& octets) : myOctets(octets) {}

    const DtValueBuffer& octets() const { return myOctets; }
    void setOctets(const DtValueBuffer& octets) { myOctets = octets; }

    // As an element or field: never, see above.
    void encode(DtWireWriter& writer) const;
    bool decode(DtWireReader& reader);
    static unsigned int octetBoundary() { return 1; }

private:
    DtValueBuffer myOctets;
};

inline bool operator==(const DtOpaqueValue& left, const DtOpaqueValue& right)
{
    return left.octets() == right.octets();
}

inline bool operator!=(const DtOpaqueValue& left, const DtOpaqueValue& right)
{
    return !(left == right);
}

#endif
