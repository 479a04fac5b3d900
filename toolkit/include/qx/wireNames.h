#ifndef QX_WIRE_NAMES_H
#define QX_WIRE_NAMES_H

// Names of the wire layer, for headers that hand its objects on and do not look into them. What works with them
// includes <qx/wireFormat.h>.

class DtAlternativeTable;
class DtWireReader;
class DtWireWriter;
struct DtArrayLayout;
struct DtEnumeratorTable;
struct DtWireForm;
struct DtWireTrail;
enum DtVariantKind : int;

// Octets that a function writes about a value, from an offset of 0; 0 when it cannot be encoded.
unsigned int DtWrittenOctets(const void* value, void (*write)(DtWireWriter& writer, const void* value));

// Octets of a value that starts at an offset of 0; 0 when it cannot be encoded.
template <class Class>
unsigned int DtNetSizeOf(const Class& value)
{
    return DtWrittenOctets(&value, [](DtWireWriter& writer, const void* written)
                           { static_cast<const Class*>(written)->encode(writer); });
}

#endif
