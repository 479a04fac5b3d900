#ifndef QX_WIRE_FORM_H
#define QX_WIRE_FORM_H

// What the model says about a value, as far as it decides the octets on the wire.

#include <qx/valueTypes.h>

#include <cstring>

// Names out of a model: the datatype, the last representation that it leads to, and the encoding of an array or record.
//
// Made of literals in generated code. An empty name says nothing; the local type then decides.
struct DtWireForm
{
    constexpr DtWireForm(const char* datatypeName = "", const char* representationName = "",
                         const char* encodingName = "", unsigned int elementCount = 0)
        : datatype(datatypeName), representation(representationName), encoding(encodingName), count(elementCount)
    {
    }

    const char* datatype;
    const char* representation;
    const char* encoding;
    unsigned int count; // elements of a fixed array; 0 and 1 leave it open
};

enum DtArrayKind
{
    DtVariableArray, // count in four octets, then the elements
    DtFixedArray,
    DtLengthlessArray,     // elements up to the end of the value
    DtNullTerminatedArray, // elements up to a zero
    DtPaddingTo32Array,    // as many octets as bring the offset to a multiple of 4 ...
    DtPaddingTo64Array     // ... and of 8
};

struct DtArrayLayout
{
    DtArrayLayout(DtArrayKind layoutKind = DtVariableArray, std::size_t elementCount = 0)
        : kind(layoutKind), count(elementCount)
    {
    }

    DtArrayKind kind;
    std::size_t count; // of a fixed array
};

inline bool DtTextIs(const char* text, const char* other)
{
    return std::strcmp(text, other) == 0;
}

// The number that a text ends with; 0 when it does not end with a digit.
inline unsigned int DtTrailingNumber(const char* text)
{
    const char* end = text + std::strlen(text);
    const char* begin = end;
    while (begin != text && begin[-1] >= '0' && begin[-1] <= '9')
        --begin;
    unsigned int number = 0;
    for (; begin != end && number < 100000000; ++begin)
        number = number * 10 + static_cast<unsigned int>(*begin - '0');
    return number;
}

// The name that settles byte order and length: the representation, or the datatype where there is none below it.
inline const char* DtRepresentationOf(const DtWireForm& form)
{
    return *form.representation ? form.representation : form.datatype;
}

// Names of representations end in BE or LE; a name such as ANGLE does not count.
inline bool DtHasByteOrder(const char* name, char first)
{
    const std::size_t length = std::strlen(name);
    if (length < 3 || name[length - 1] != 'E' || name[length - 2] != first)
        return false;
    const char before = name[length - 3];
    return (before >= '0' && before <= '9') || (before >= 'a' && before <= 'z');
}

inline bool DtIsLittleEndian(const DtWireForm& form)
{
    return DtHasByteOrder(DtRepresentationOf(form), 'L');
}

// Length of a representation by its name, in octets; 0 when the name does not tell.
inline unsigned int DtOctetsByName(const char* name)
{
    struct Row
    {
        const char* name;
        unsigned int octets;
    };
    static const Row theRows[] = {
        {"HLAoctet",             1},
        {"octet",                1},
        {"Octet",                1},
        {"char",                 1},
        {"any",                  1},
        {"handle",               1},
        {"HLAASCIIchar",         1},
        {"HLAbyte",              1},
        {"HLAunicodeChar",       2},
        {"HLAoctetPairBE",       2},
        {"HLAoctetPairLE",       2},
        {"short",                2},
        {"unsigned__short",      2},
        {"UnsignedShort",        2},
        {"unsignedShort",        2},
        {"long",                 4},
        {"float",                4},
        {"unsigned__long",       4},
        {"UnsignedLong",         4},
        {"unsignedLong",         4},
        {"long__long",           8},
        {"double",               8},
        {"unsigned__long__long", 8}
    };
    for (const Row& row : theRows)
        if (DtTextIs(row.name, name))
            return row.octets;
    std::string stem = name;
    if (DtHasByteOrder(name, 'B') || DtHasByteOrder(name, 'L'))
        stem.resize(stem.size() - 2);
    const unsigned int bits = DtTrailingNumber(stem.c_str());
    return bits % 8 == 0 && bits <= 128 ? bits / 8 : 0;
}

// Names of model representations and of local types alike.
inline bool DtIsUnsignedByName(const char* name)
{
    return std::strncmp(name, "DtInt", 5) != 0 &&
           (std::strstr(name, "nteger") == nullptr || std::strstr(name, "nsigned") != nullptr);
}

// The layout that the encoding of an array stands for; an unknown one counts as fixed where the number of elements is
// known, else as variable.
inline DtArrayLayout DtLayoutOf(const DtWireForm& form)
{
    struct Row
    {
        const char* encoding;
        DtArrayKind kind;
    };
    static const Row theRows[] = {
        {"HLAfixedArray",          DtFixedArray         },
        {"HLAnullTerminatedArray", DtNullTerminatedArray},
        {"NullTerminatedArray",    DtNullTerminatedArray},
        {"RPRnullTerminatedArray", DtNullTerminatedArray},
        {"HLAlengthlessVarArray",  DtLengthlessArray    },
        {"RPRlengthlessArray",     DtLengthlessArray    },
        {"HLApaddingTo32Array",    DtPaddingTo32Array   },
        {"RPRpaddingTo32Array",    DtPaddingTo32Array   },
        {"HLApaddingTo64Array",    DtPaddingTo64Array   },
        {"RPRpaddingTo64Array",    DtPaddingTo64Array   }
    };
    for (const Row& row : theRows)
        if (DtTextIs(row.encoding, form.encoding))
            return DtArrayLayout(row.kind, form.count);
    return form.count > 1 ? DtArrayLayout(DtFixedArray, form.count) : DtArrayLayout();
}

#endif
