#ifndef QX_NET_TYPES_H
#define QX_NET_TYPES_H

// The net types of the toolkit: images of a value as it lies on the wire. An image has no alignment of its own, its
// sizeof is its length on the wire, and it converts from and to the local type.

#include <qx/valueTypes.h>

#include <cstring>

// A number or truth value in its octets; Bits is the unsigned integer of the same length as the image.
template <class Value, class Bits, bool Little>
class DtNumberImage
{
public:
    DtNumberImage() { set(Value()); }
    DtNumberImage(Value value) { set(value); }
    operator Value() const { return get(); }

    void set(Value value)
    {
        Bits bits = bitsOf(value);
        for (unsigned int i = 0; i < sizeof(Bits); ++i)
            myOctets[Little ? i : sizeof(Bits) - 1 - i] = static_cast<DtU8>(static_cast<DtU64>(bits) >> (8 * i));
    }
    Value get() const
    {
        DtU64 bits = 0;
        for (unsigned int i = 0; i < sizeof(Bits); ++i)
            bits |= static_cast<DtU64>(myOctets[Little ? i : sizeof(Bits) - 1 - i]) << (8 * i);
        return valueOf(static_cast<Bits>(bits), static_cast<Value*>(nullptr));
    }
    const DtU8* octets() const { return myOctets; }

private:
    static Bits bitsOf(bool value) { return value ? 1 : 0; }
    template <class Number>
    static Bits bitsOf(Number value)
    {
        static_assert(sizeof(Number) == sizeof(Bits), "an image is as long as its value");
        Bits bits;
        std::memcpy(&bits, &value, sizeof bits);
        return bits;
    }
    static bool valueOf(Bits bits, bool*) { return bits != 0; }
    template <class Number>
    static Number valueOf(Bits bits, Number*)
    {
        Number value;
        std::memcpy(&value, &bits, sizeof value);
        return value;
    }

    DtU8 myOctets[sizeof(Bits)];
};

typedef DtNumberImage<DtU8, DtU8, false> DtNetU8;
typedef DtNumberImage<DtU16, DtU16, false> DtNetU16;
typedef DtNumberImage<DtU32, DtU32, false> DtNetU32;
typedef DtNumberImage<DtU64, DtU64, false> DtNetU64;
typedef DtNumberImage<DtFloat32, DtU32, false> DtNetFloat32;
typedef DtNumberImage<DtFloat64, DtU64, false> DtNetFloat64;
typedef DtNumberImage<DtInt16, DtU16, false> DtNetInt16;
typedef DtNumberImage<DtInt32, DtU32, false> DtNetInt32;
typedef DtNumberImage<DtInt64, DtU64, false> DtNetInt64;
typedef DtNumberImage<DtU8, DtU8, true> DtLEU8;
typedef DtNumberImage<DtU16, DtU16, true> DtLEU16;
typedef DtNumberImage<DtU32, DtU32, true> DtLEU32;
typedef DtNumberImage<DtU64, DtU64, true> DtLEU64;
typedef DtNumberImage<DtFloat32, DtU32, true> DtLEFloat32;
typedef DtNumberImage<DtFloat64, DtU64, true> DtLEFloat64;
typedef DtNumberImage<DtInt16, DtU16, true> DtLEInt16;
typedef DtNumberImage<DtInt32, DtU32, true> DtLEInt32;
typedef DtNumberImage<bool, DtU8, false> DtNetBoolean;

template <class Vector, class Component>
class DtVectorImage
{
public:
    DtVectorImage() {}
    template <class Number, int Tag>
    DtVectorImage(const DtTriple<Number, Tag>& v)
        : myX(static_cast<Number>(v.x())), myY(static_cast<Number>(v.y())), myZ(static_cast<Number>(v.z()))
    {
    }
    operator Vector() const { return Vector(myX, myY, myZ); }

private:
    Component myX, myY, myZ;
};

typedef DtVectorImage<DtVector32, DtNetFloat32> DtNetVector32;
typedef DtVectorImage<DtVector64, DtNetFloat64> DtNetVector64;

class DtNetEulerAngles
{
public:
    DtNetEulerAngles() {}
    DtNetEulerAngles(const DtTaitBryan& angles) : myPsi(angles.psi()), myTheta(angles.theta()), myPhi(angles.phi()) {}
    operator DtTaitBryan() const { return DtTaitBryan(myPsi, myTheta, myPhi); }

private:
    DtNetFloat32 myPsi, myTheta, myPhi;
};

class DtNetEntityType
{
public:
    DtNetEntityType() {}
    DtNetEntityType(const DtEntityType& type)
        : myKind(type.kind()),
          myDomain(type.domain()),
          myCountry(type.country()),
          myCategory(type.category()),
          mySubCategory(type.subCategory()),
          mySpecific(type.specific()),
          myExtra(type.extra())
    {
    }
    operator DtEntityType() const
    {
        return DtEntityType(myKind, myDomain, myCountry, myCategory, mySubCategory, mySpecific, myExtra);
    }

private:
    DtNetU8 myKind, myDomain;
    DtNetU16 myCountry;
    DtNetU8 myCategory, mySubCategory, mySpecific, myExtra;
};

class DtNetEntityIdentifier
{
public:
    DtNetEntityIdentifier() {}
    DtNetEntityIdentifier(const DtEntityIdentifier& id)
        : mySite(id.site()), myApplication(id.application()), myEntity(id.entity())
    {
    }
    operator DtEntityIdentifier() const { return DtEntityIdentifier(mySite, myApplication, myEntity); }

private:
    DtNetU16 mySite, myApplication, myEntity;
};

#endif
