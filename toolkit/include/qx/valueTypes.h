#ifndef QX_VALUE_TYPES_H
#define QX_VALUE_TYPES_H

// The local types of the toolkit: what a program computes with. Plain values; how they look on the wire is told in
// <qx/wireFormat.h>. Every type is default-constructible (zero or empty), copyable and comparable.

#include <cstddef>
#include <cstdint>
#include <string>
#include <utility>
#include <vector>

typedef std::uint8_t DtU8;
typedef std::uint16_t DtU16;
typedef std::uint32_t DtU32;
typedef std::uint64_t DtU64;
typedef std::int8_t DtInt8;
typedef std::int16_t DtInt16;
typedef std::int32_t DtInt32;
typedef std::int64_t DtInt64;
typedef float DtFloat32;
typedef double DtFloat64;
typedef double DtFloat; // a floating-point number whose size the model leaves open

// The coded form of one value, octet by octet as it goes over the wire.
typedef std::vector<unsigned char> DtValueBuffer;

// Text of any content, zero characters included. Narrow text is kept as it comes, wide text as UTF-8.
class DtString
{
public:
    DtString() {}
    DtString(const char* text) : myText(text ? text : "") {}
    DtString(const char* text, std::size_t length) : myText(text, length) {}
    DtString(const std::string& text) : myText(text) {}
    DtString(std::string&& text) : myText(std::move(text)) {}

    const char* c_str() const { return myText.c_str(); }
    const std::string& text() const { return myText; }
    std::size_t length() const { return myText.size(); }
    bool empty() const { return myText.empty(); }
    char operator[](std::size_t index) const { return myText[index]; }
    void assign(const char* text, std::size_t length) { myText.assign(text, length); }
    DtString& operator+=(const DtString& other)
    {
        myText += other.myText;
        return *this;
    }

private:
    std::string myText;
};

inline bool operator==(const DtString& a, const DtString& b)
{
    return a.text() == b.text();
}
inline bool operator!=(const DtString& a, const DtString& b)
{
    return !(a == b);
}
inline bool operator<(const DtString& a, const DtString& b)
{
    return a.text() < b.text();
}

// Name of an object that all federates know it by.
class DtGlobalObjectDesignator
{
public:
    DtGlobalObjectDesignator() {}
    DtGlobalObjectDesignator(const char* name) : myName(name) {}
    DtGlobalObjectDesignator(const DtString& name) : myName(name) {}
    DtGlobalObjectDesignator(const std::string& name) : myName(name) {}

    const DtString& name() const { return myName; }
    const char* c_str() const { return myName.c_str(); }
    std::size_t length() const { return myName.length(); }
    bool empty() const { return myName.empty(); }

private:
    DtString myName;
};

inline bool operator==(const DtGlobalObjectDesignator& a, const DtGlobalObjectDesignator& b)
{
    return a.name() == b.name();
}
inline bool operator!=(const DtGlobalObjectDesignator& a, const DtGlobalObjectDesignator& b)
{
    return !(a == b);
}

// Three components along the axes x, y and z; Tag keeps vectors of equal precision apart.
template <class Number, int Tag>
class DtTriple
{
public:
    DtTriple() : myX(), myY(), myZ() {}
    DtTriple(Number x, Number y, Number z) : myX(x), myY(y), myZ(z) {}

    Number x() const { return myX; }
    Number y() const { return myY; }
    Number z() const { return myZ; }
    void setX(Number x) { myX = x; }
    void setY(Number y) { myY = y; }
    void setZ(Number z) { myZ = z; }

private:
    Number myX, myY, myZ;
};

template <class Number, int Tag>
bool operator==(const DtTriple<Number, Tag>& a, const DtTriple<Number, Tag>& b)
{
    return a.x() == b.x() && a.y() == b.y() && a.z() == b.z();
}
template <class Number, int Tag>
bool operator!=(const DtTriple<Number, Tag>& a, const DtTriple<Number, Tag>& b)
{
    return !(a == b);
}

typedef DtTriple<DtFloat64, 0> DtVector;
typedef DtTriple<DtFloat32, 1> DtVector32;
typedef DtTriple<DtFloat64, 2> DtVector64;

// Orientation as rotations about z, y and x, in radians.
class DtTaitBryan
{
public:
    DtTaitBryan() : myPsi(0), myTheta(0), myPhi(0) {}
    DtTaitBryan(DtFloat32 psi, DtFloat32 theta, DtFloat32 phi) : myPsi(psi), myTheta(theta), myPhi(phi) {}

    DtFloat32 psi() const { return myPsi; }
    DtFloat32 theta() const { return myTheta; }
    DtFloat32 phi() const { return myPhi; }
    void setPsi(DtFloat32 psi) { myPsi = psi; }
    void setTheta(DtFloat32 theta) { myTheta = theta; }
    void setPhi(DtFloat32 phi) { myPhi = phi; }

private:
    DtFloat32 myPsi, myTheta, myPhi;
};

inline bool operator==(const DtTaitBryan& a, const DtTaitBryan& b)
{
    return a.psi() == b.psi() && a.theta() == b.theta() && a.phi() == b.phi();
}
inline bool operator!=(const DtTaitBryan& a, const DtTaitBryan& b)
{
    return !(a == b);
}

// The seven numbers that say what kind of thing an entity is.
class DtEntityType
{
public:
    DtEntityType() : myKind(0), myDomain(0), myCountry(0), myCategory(0), mySubCategory(0), mySpecific(0), myExtra(0) {}
    DtEntityType(DtU8 kind, DtU8 domain, DtU16 country, DtU8 category, DtU8 subCategory, DtU8 specific, DtU8 extra)
        : myKind(kind),
          myDomain(domain),
          myCountry(country),
          myCategory(category),
          mySubCategory(subCategory),
          mySpecific(specific),
          myExtra(extra)
    {
    }

    DtU8 kind() const { return myKind; }
    DtU8 domain() const { return myDomain; }
    DtU16 country() const { return myCountry; }
    DtU8 category() const { return myCategory; }
    DtU8 subCategory() const { return mySubCategory; }
    DtU8 specific() const { return mySpecific; }
    DtU8 extra() const { return myExtra; }

private:
    DtU8 myKind, myDomain;
    DtU16 myCountry;
    DtU8 myCategory, mySubCategory, mySpecific, myExtra;
};

inline bool operator==(const DtEntityType& a, const DtEntityType& b)
{
    return a.kind() == b.kind() && a.domain() == b.domain() && a.country() == b.country() &&
           a.category() == b.category() && a.subCategory() == b.subCategory() && a.specific() == b.specific() &&
           a.extra() == b.extra();
}
inline bool operator!=(const DtEntityType& a, const DtEntityType& b)
{
    return !(a == b);
}

// Site, application and entity number: unique in one exercise.
class DtEntityIdentifier
{
public:
    DtEntityIdentifier() : mySite(0), myApplication(0), myEntity(0) {}
    DtEntityIdentifier(DtU16 site, DtU16 application, DtU16 entity)
        : mySite(site), myApplication(application), myEntity(entity)
    {
    }

    DtU16 site() const { return mySite; }
    DtU16 application() const { return myApplication; }
    DtU16 entity() const { return myEntity; }

private:
    DtU16 mySite, myApplication, myEntity;
};

inline bool operator==(const DtEntityIdentifier& a, const DtEntityIdentifier& b)
{
    return a.site() == b.site() && a.application() == b.application() && a.entity() == b.entity();
}
inline bool operator!=(const DtEntityIdentifier& a, const DtEntityIdentifier& b)
{
    return !(a == b);
}

// A time of the federation in the encoded form of its time implementation, which alone can read it.
template <int Tag>
class DtEncodedTime
{
public:
    DtEncodedTime() {}
    explicit DtEncodedTime(const std::vector<DtU8>& octets) : myOctets(octets) {}

    const std::vector<DtU8>& octets() const { return myOctets; }
    void setOctets(const std::vector<DtU8>& octets) { myOctets = octets; }

private:
    std::vector<DtU8> myOctets;
};

template <int Tag>
bool operator==(const DtEncodedTime<Tag>& a, const DtEncodedTime<Tag>& b)
{
    return a.octets() == b.octets();
}
template <int Tag>
bool operator!=(const DtEncodedTime<Tag>& a, const DtEncodedTime<Tag>& b)
{
    return !(a == b);
}

typedef DtEncodedTime<0> DtHlaLogicalTime;
typedef DtEncodedTime<1> DtHlaLogicalTimeInterval;

#endif
