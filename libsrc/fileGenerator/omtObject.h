#ifndef FILE_GENERATOR_OMT_OBJECT_H
#define FILE_GENERATOR_OMT_OBJECT_H

#include "fileGenerator/omtAttribute.h"
#include "fileGenerator/omtClass.h"

// One chosen object class with its own attributes; those of its superclasses are not among them.
class DtOmtObject : public DtOmtClass<DtOmtAttribute>
{
public:
    // Changes nothing when an attribute of that name is there.
    virtual void addAttribute(const DtOmtAttribute& attribute) { myMembers.change().insert(attribute); }
    virtual void setAttributes(const std::set<DtOmtAttribute>& attributes) { myMembers.change() = attributes; }
    virtual const std::set<DtOmtAttribute>& attributes() const { return *myMembers; }
    // An unknown name gives a new record with that name, so noGen is false and there is no rename.
    virtual DtOmtAttribute getAttributeFromName(const DtString& name) const
    {
        return memberFromName(name, &DtOmtAttribute::setOwningObject);
    }

    bool operator==(const DtOmtObject& other) const { return myFullName.get() == other.myFullName.get(); }
    bool operator==(const DtString& fullName) const { return myFullName.get() == fullName; }
};

#endif
