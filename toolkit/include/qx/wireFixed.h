#ifndef QX_WIRE_FIXED_H
#define QX_WIRE_FIXED_H

// Records whose values have the same number of octets each, and every field at the same place in them (IEEE 1516.2,
// HLAfixedRecord of fields that are of constant length). Room for the whole record is asked for once, ahead of its
// first field; where each field lies then is known while the code is compiled.
//
// A generated class of such a record has
//
//     template <class Size> static constexpr Size fixedOctets();       // of every value
//     template <class Size> static constexpr Size fixedBoundary();     // octet boundary of the record
//     void encodeAt(unsigned char* octets, DtWireWriter& writer) const; // into room for that many octets
//     bool decodeAt(const unsigned char* octets, DtWireReader& reader); // out of as many; false: the reader tells why
//
// in which writer and reader are those that the octets belong to: they take refusals and failures, and no octets.

#include <qx/wireTraits.h>

#include <type_traits>

template <class Class>
constexpr auto DtFixedOctetsOf(int) -> decltype(Class::template fixedOctets<std::size_t>())
{
    return Class::template fixedOctets<std::size_t>();
}
template <class Class>
constexpr std::size_t DtFixedOctetsOf(long)
{
    return 0;
}

// Whether a class is that of such a record.
template <class Class>
struct DtIsFixed : std::integral_constant<bool, DtFixedOctetsOf<Class>(0) != 0>
{
};

// Fills the room of one record. What a record with other octets than it tells of would write is refused, and goes where
// the owner makes room for it.
template <std::size_t Octets>
class DtFixedWriter : public DtOctetWriter<DtFixedWriter<Octets>>
{
public:
    QX_IN_PLACE DtFixedWriter(DtU8* room, DtWireWriter& owner) : myRoom(room), mySize(0), myOwner(owner) {}

    QX_IN_PLACE std::size_t offset() const { return mySize; }
    QX_IN_PLACE std::size_t origin() const { return 0; }
    QX_IN_PLACE void refuse(const char* reason) { myOwner.refuse(reason); }
    QX_IN_PLACE DtU8* grow(std::size_t count)
    {
        if (count > Octets - mySize)
        {
            refuse("the record has other octets than it tells of");
            return myOwner.grow(count);
        }
        DtU8* const room = myRoom + mySize;
        mySize += count;
        return room;
    }

    template <class Value>
    QX_IN_PLACE typename std::enable_if<DtIsFixed<Value>::value>::type put(const Value& value, const DtWireForm&)
    {
        this->pad(Value::template fixedBoundary<std::size_t>());
        value.encodeAt(grow(DtFixedOctetsOf<Value>(0)), myOwner);
    }
    template <class Value>
    QX_IN_PLACE typename std::enable_if<!DtIsFixed<Value>::value>::type put(const Value& value, const DtWireForm& form)
    {
        this->pad(DtBoundaryOfType<Value>(form));
        DtWireTraits<Value>::encode(*this, value, form);
    }

private:
    DtU8* myRoom;
    std::size_t mySize;
    DtWireWriter& myOwner;
};

// Reads the octets of one record.
template <std::size_t Octets>
class DtFixedReader
{
public:
    QX_IN_PLACE DtFixedReader(const DtU8* octets, DtWireReader& owner) : myReader(octets, Octets), myOwner(owner) {}

    template <class Value>
    QX_IN_PLACE typename std::enable_if<DtIsFixed<Value>::value, bool>::type take(Value& value, const DtWireForm&)
    {
        const DtU8* const octets = myReader.pad(Value::template fixedBoundary<std::size_t>())
                                       ? myReader.take(DtFixedOctetsOf<Value>(0))
                                       : nullptr;
        return octets ? value.decodeAt(octets, myOwner) : failed();
    }
    template <class Value>
    QX_IN_PLACE typename std::enable_if<!DtIsFixed<Value>::value, bool>::type take(Value& value, const DtWireForm& form)
    {
        const bool done =
            myReader.pad(DtBoundaryOfType<Value>(form)) && DtWireTraits<Value>::decode(myReader, value, form);
        return done || failed();
    }

private:
    QX_IN_PLACE bool failed() { return myOwner.fail(myReader.reason()); }

    DtWireReader myReader;
    DtWireReader& myOwner;
};

#endif
