#ifndef FILE_GENERATOR_OMT_INTERACTION_H
#define FILE_GENERATOR_OMT_INTERACTION_H

#include "fileGenerator/omtClass.h"
#include "fileGenerator/omtParameter.h"

// One chosen interaction class with its own parameters; those of its superclasses are not among them.
class DtOmtInteraction : public DtOmtClass<DtOmtParameter>
{
public:
    virtual void setParameters(const std::set<DtOmtParameter>& parameters) { myMembers.change() = parameters; }
    virtual const std::set<DtOmtParameter>& parameters() const { return *myMembers; }
    // Changes nothing when a parameter of that name is there.
    virtual void addParameter(const DtOmtParameter& parameter) { myMembers.change().insert(parameter); }
    // An unknown name gives a new record with that name, so noGen is false and there is no rename.
    virtual DtOmtParameter getParameterFromName(const DtString& name) const
    {
        return memberFromName(name, &DtOmtParameter::setOwningInteraction);
    }

    bool operator==(const DtOmtInteraction& other) const { return myFullName.get() == other.myFullName.get(); }
};

#endif
