#ifndef FILE_GENERATOR_ATTRIBUTE_H
#define FILE_GENERATOR_ATTRIBUTE_H

#include "foundation/sharedValue.h"
#include "foundation/string.h"

#include <memory>

// What others have worked out from an attribute and keep with it.
class DtAttributeNotes
{
public:
    virtual ~DtAttributeNotes() = default;
};

// One attribute, parameter or record member on its way into a template.
//
// Built from the model's name and the target type. The wire type follows from type, datatype and endianness and is
// worked out again by each setter that can change it; the mapper answers what is an enumeration and what is
// little-endian. A plain value whose copies share what they hold until one of them is changed: every writer has a copy
// of its own. Callers set cardinality, datatype, encoding and datatype's datatype in that order.
class DtAttribute
{
public:
    DtAttribute(const DtString& name, const DtString& type);
    DtAttribute(const DtAttribute&) = default;
    DtAttribute& operator=(const DtAttribute&) = default;
    virtual ~DtAttribute() = default;

    virtual const DtString& name() const;
    virtual const DtString& type() const;
    // An attribute that once was an enumeration stays marked as one.
    virtual void setType(const DtString& type);
    // Takes "4", "0+", "Dynamic", or for the alternative of a variant "0-1" and "0-1 (discriminant=value)". An open
    // array leaves the count at 1; a text that is none of these changes nothing but the stored text and element type.
    virtual void setCardinality(const DtString& text);
    virtual const DtString& cardinality() const;
    // The model's datatype; endianness and wire type follow it.
    virtual void setDatatype(const DtString& name);
    virtual const DtString& datatype() const;
    // The datatype that the datatype itself is built on.
    virtual void setDatatypeDatatype(const DtString& name);
    virtual const DtString& datatypeDatatype() const;
    virtual void setEncoding(const DtString& encoding);
    virtual const DtString& encoding() const;
    // Class of the wire type.
    virtual const DtString& netType() const;
    virtual bool hasPlusCardinality() const;
    virtual bool isEnumeration() const;
    virtual bool isVariant() const;
    // Number of elements of a fixed array; 1 for a scalar and for an open array.
    virtual int numericalCardinality() const;
    // Element type; empty until a cardinality is set.
    virtual const DtString& nonVectorType() const;
    // C++ expression for the size on the wire. The length of a string counts once for each element, and the elements
    // of a fixed array of variable size count as if all were like the first.
    virtual DtString netSizeString() const;
    virtual const DtString& discrimininant() const;
    virtual const DtString& discrimininantValue() const;
    virtual void setDiscriminantValue(const DtString& value);
    virtual void setIsFloat(bool isFloat);
    virtual bool isFloat() const;
    // Takes effect on the wire type at the next obtainNetType().
    virtual void setLittleEndian(bool littleEndian);
    virtual bool isLittleEndian() const;
    virtual void obtainNetType();

    // What the model tells people of it.
    void setDocumentation(const DtString& text);
    const DtString& documentation() const { return myContent->documentation; }

    // Copies made from here on have the same notes; one that is changed has none. Null when none are kept.
    void keepNotes(std::shared_ptr<DtAttributeNotes> notes);
    DtAttributeNotes* notes() const { return myContent->notes.get(); }

private:
    struct DtContent
    {
        DtString name;
        DtString type;
        DtString cardinality;
        DtString netType;
        DtString nonVectorType;
        bool hasPlusCardinality = false;
        bool isEnumeration = false;
        bool isVariant = false;
        bool isLittleEndian = false;
        bool isFloat = false;
        int numericalCardinality = 1;
        DtString discriminant;
        DtString discriminantValue;
        DtString datatype;
        DtString datatypeDatatype;
        DtString encoding;
        DtString documentation;
        std::shared_ptr<DtAttributeNotes> notes;
    };

    // The content of this one alone, without notes.
    DtContent& change();
    void markEnumeration();
    void setVariantCardinality(const DtString& text);
    void obtainEnumerationNetType();

    DtSharedValue<DtContent> myContent;
};

#endif
