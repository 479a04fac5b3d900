#ifndef QX_WIRE_FORM_H
#define QX_WIRE_FORM_H

// What the model says about a value, as far as it decides the octets on the wire.

#include <qx/numberForm.h>

#include <cstring>

// One number of a record that a class of the toolkit stands for.
struct DtWirePartForm
{
    unsigned int component; // of the toolkit's class, from 0, in the order of its constructor's arguments
    unsigned int offset;    // in octets from the start of the record
    unsigned int octets;
    bool isSigned; // of a whole number
    bool isLittleEndian;
};

// The parts of such a record in the order in which they lie on the wire. No parts: the model's datatype does not fit
// into the toolkit's class, and its values are refused.
struct DtWireRecordLayout
{
    unsigned int boundary; // in octets
    unsigned int count;
    const DtWirePartForm* parts;
};

// A part and a layout as generated code writes them:
//
//     &DtWireRecordOf<8, DtWirePart<2, 0, 8>, DtWirePart<1, 8, 8>, DtWirePart<0, 16, 8>>::theLayout // z, y and x, each
//     of 8 octets
template <unsigned int Component, unsigned int Offset, unsigned int Octets, bool Signed = false, bool Little = false>
struct DtWirePart
{
    static constexpr DtWirePartForm form() { return {Component, Offset, Octets, Signed, Little}; }
};

template <unsigned int Boundary, class... Parts>
struct DtWireRecordOf
{
    static const DtWirePartForm theParts[sizeof...(Parts)];
    static const DtWireRecordLayout theLayout;
};

template <unsigned int Boundary, class... Parts>
const DtWirePartForm DtWireRecordOf<Boundary, Parts...>::theParts[sizeof...(Parts)] = {Parts::form()...};

template <unsigned int Boundary, class... Parts>
const DtWireRecordLayout DtWireRecordOf<Boundary, Parts...>::theLayout = {Boundary, sizeof...(Parts), theParts};

// The layout of what does not fit.
template <unsigned int Boundary>
struct DtWireRecordOf<Boundary>
{
    static const DtWireRecordLayout theLayout;
};

template <unsigned int Boundary>
const DtWireRecordLayout DtWireRecordOf<Boundary>::theLayout = {Boundary, 0, nullptr};

typedef DtWireRecordOf<1> DtWireMisfit;

enum DtArrayKind
{
    DtVariableArray, // count in four octets, then the elements
    DtFixedArray,
    DtLengthlessArray,     // elements up to the end of the value
    DtNullTerminatedArray, // elements up to one whose octets are all zero
    DtPaddingArray,        // as many octets as bring the enclosing record to a multiple of a number of octets
    DtUnknownArray         // no wire form
};

// Texts at compile time, where forms are made of literals.
constexpr bool DtTextEquals(const char* text, const char* other)
{
    return *text == *other && (*text == '\0' || DtTextEquals(text + 1, other + 1));
}
constexpr bool DtTextBegins(const char* text, const char* start)
{
    return *start == '\0' || (*text == *start && DtTextBegins(text + 1, start + 1));
}
constexpr bool DtIsDigit(char each)
{
    return each >= '0' && each <= '9';
}
// The number whose digits begin at the text, but for what goes far beyond any number of bits.
constexpr unsigned int DtNumberAt(const char* text, unsigned int before = 0)
{
    return DtIsDigit(*text) && before < 100000
               ? DtNumberAt(text + 1, before * 10 + static_cast<unsigned int>(*text - '0'))
               : before;
}
constexpr unsigned int DtFirstNumber(const char* text)
{
    return *text == '\0' || DtIsDigit(*text) ? DtNumberAt(text) : DtFirstNumber(text + 1);
}
constexpr unsigned int DtOctetsOfBits(unsigned int bits)
{
    return bits % 8 == 0 ? bits / 8 : 0;
}

// The number of octets that a padding array fills up to a multiple of, from the bits in a name such as
// "RPRpaddingTo32Array"; 0 for other encodings.
constexpr unsigned int DtPaddingUnit(const char* encoding)
{
    return *encoding == '\0'                    ? 0
           : DtTextBegins(encoding, "addingTo") ? DtOctetsOfBits(DtFirstNumber(encoding))
                                                : DtPaddingUnit(encoding + 1);
}

// The kind of array that an encoding stands for. One that is not named here is fixed where the model gives the number
// of elements, else without length; bits are not packed. Where nothing is said at all, the array is variable.
constexpr DtArrayKind DtArrayKindOf(const char* encoding, int count)
{
    return *encoding == '\0' || DtTextEquals(encoding, "HLAvariableArray") ? DtVariableArray
           : DtPaddingUnit(encoding) != 0                                  ? DtPaddingArray
           : DtTextEquals(encoding, "HLAfixedArray")                       ? DtFixedArray
           : DtTextEquals(encoding, "HLAnullTerminatedArray") || DtTextEquals(encoding, "NullTerminatedArray") ||
                   DtTextEquals(encoding, "RPRnullTerminatedArray")
               ? DtNullTerminatedArray
           : DtTextEquals(encoding, "HLAlengthlessVarArray") || DtTextEquals(encoding, "RPRlengthlessArray")
               ? DtLengthlessArray
           : DtTextEquals(encoding, "HLAbitArray") || DtTextEquals(encoding, "BitArray") ? DtUnknownArray
           : count > 0                                                                   ? DtFixedArray
                                                                                         : DtLengthlessArray;
}

enum DtByteOrder
{
    DtBigEndian,
    DtLittleEndian
};

// What the model says about a value. Generated code names the layout:
//
//     DtWireForm::number(4), DtWireForm::number(4, DtLittleEndian)     // octets
//     DtWireForm::array(DtVariableArray, 1)                            // a text or an array, octets of each element
//     DtWireForm::fixedArray(11, 1)                                    // with a number of elements
//     DtWireForm::record(&DtWireRecordOf<...>::theLayout)              // in a class of the toolkit
//     DtWireForm()                                                     // the class of the value knows
//
// Where the model leaves the length open, and for types that are neither generated nor the toolkit's, a form is made of
// names: the datatype, the last representation that it leads to, and the encoding of an array or record; with them what
// the model's tables give for the number that the datatype ends at. An empty name, a count of -1, a length of 0 and no
// layout say nothing: the length and the byte order then follow from the names, or from the local type; the classes of
// the toolkit lie as they usually do. Where there is a length, the names of the datatype and the representation decide
// nothing.
struct DtWireForm
{
    constexpr DtWireForm(const char* datatypeName = "", const char* representationName = "",
                         const char* encodingName = "", int elementCount = -1, unsigned int numberOctets = 0,
                         bool numberIsLittleEndian = false, const DtWireRecordLayout* recordLayout = nullptr)
        : datatype(datatypeName),
          representation(representationName),
          encoding(encodingName),
          count(elementCount),
          octets(numberOctets),
          isLittleEndian(numberIsLittleEndian),
          layout(recordLayout),
          kind(DtArrayKindOf(encodingName, elementCount)),
          unit(kind == DtPaddingArray ? DtPaddingUnit(encodingName) : 0)
    {
    }
    static constexpr DtWireForm number(unsigned int octetCount, DtByteOrder order = DtBigEndian)
    {
        return DtWireForm(DtVariableArray, -1, octetCount, order, nullptr);
    }
    static constexpr DtWireForm array(DtArrayKind arrayKind, unsigned int octetCount, DtByteOrder order = DtBigEndian)
    {
        return DtWireForm(arrayKind, -1, octetCount, order, nullptr);
    }
    static constexpr DtWireForm fixedArray(int elementCount, unsigned int octetCount, DtByteOrder order = DtBigEndian)
    {
        return DtWireForm(DtFixedArray, elementCount, octetCount, order, nullptr);
    }
    static constexpr DtWireForm record(const DtWireRecordLayout* recordLayout)
    {
        return DtWireForm(DtVariableArray, -1, 0, DtBigEndian, recordLayout);
    }
    bool isMisfit() const { return layout && !layout->parts; }

    const char* datatype;
    const char* representation;
    const char* encoding;
    int count;                        // elements of a fixed array, over all of its dimensions
    unsigned int octets;              // length of the number, or of one element
    bool isLittleEndian;              // counts together with octets only
    const DtWireRecordLayout* layout; // of a toolkit class that holds a record; null: the usual one
    DtArrayKind kind;                 // by the encoding
    unsigned int unit;                // octets that a padding array fills up to a multiple of

private:
    constexpr DtWireForm(DtArrayKind arrayKind, int elementCount, unsigned int numberOctets, DtByteOrder order,
                         const DtWireRecordLayout* recordLayout)
        : datatype(""),
          representation(""),
          encoding(""),
          count(elementCount),
          octets(numberOctets),
          isLittleEndian(order == DtLittleEndian),
          layout(recordLayout),
          kind(arrayKind),
          unit(0)
    {
    }
};

struct DtArrayLayout
{
    DtArrayLayout(DtArrayKind layoutKind = DtVariableArray, std::size_t number = 0) : kind(layoutKind), count(number) {}

    DtArrayKind kind;
    std::size_t count; // elements of a fixed array, octets of the multiple of a padding array
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
    return form.octets != 0 ? form.isLittleEndian : DtHasByteOrder(DtRepresentationOf(form), 'L');
}

// Length of a representation by its name, in octets; 0 when the name does not tell.
unsigned int DtOctetsByName(const char* name);

// Names of model representations and of local types alike.
inline bool DtIsUnsignedByName(const char* name)
{
    return std::strncmp(name, "DtInt", 5) != 0 &&
           (std::strstr(name, "nteger") == nullptr || std::strstr(name, "nsigned") != nullptr);
}

// The layout that the encoding of an array stands for.
inline DtArrayLayout DtLayoutOf(const DtWireForm& form)
{
    if (form.kind == DtPaddingArray)
        return DtArrayLayout(DtPaddingArray, form.unit);
    if (form.kind == DtFixedArray)
        return form.count < 0 ? DtArrayLayout(DtUnknownArray)
                              : DtArrayLayout(DtFixedArray, static_cast<std::size_t>(form.count));
    return DtArrayLayout(form.kind);
}

#endif
