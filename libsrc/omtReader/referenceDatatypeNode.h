#ifndef OMT_READER_REFERENCE_DATATYPE_NODE_H
#define OMT_READER_REFERENCE_DATATYPE_NODE_H

#include "omtReader/omtNode.h"

// A reference datatype (IEEE 1516.2-2025): points to an object of a class, by the value of one of its attributes. Its
// values are those of its representation, which may be a datatype of any family.
class DtReferenceDatatypeNode : public DtOMTNode
{
public:
    void setRepresentation(const DtString& representation) { myRepresentation = representation; }
    const DtString& getRepresentation() const { return myRepresentation; }
    void setReferenceClass(const DtString& fullName) { myReferenceClass = fullName; }
    const DtString& getReferenceClass() const { return myReferenceClass; }
    void setReferencedAttribute(const DtString& name) { myReferencedAttribute = name; }
    const DtString& getReferencedAttribute() const { return myReferencedAttribute; }
    void setDescription(const DtString& description) { myDescription = description; }
    const DtString& getDescription() const { return myDescription; }

private:
    DtString myRepresentation;
    DtString myReferenceClass;
    DtString myReferencedAttribute;
    DtString myDescription;
};

#endif
