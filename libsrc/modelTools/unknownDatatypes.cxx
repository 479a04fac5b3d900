#include "modelTools/unknownDatatypes.h"

#include "fileGenerator/dataTypeMapper.h"
#include "fileGenerator/datatypeClosure.h"
#include "fileGenerator/omtProject.h"
#include "foundation/warning.h"
#include "modelTools/toolRules.h"
#include "omtReader/visitDatatype.h"

#include <set>
#include <vector>

namespace
{
class DtUnknownDatatypes
{
public:
    explicit DtUnknownDatatypes(const DtOMTTree& tree) : myTree(tree) {}

    template <typename Members>
    void addClass(const DtSubject& owner, const Members& members)
    {
        for (const auto* member : members)
            if (member != nullptr)
                add(owner.member(member->getName()), member->getName() + " of " + owner.name, member->getDatatype());
    }

    // Follows the datatypes until all have been looked at, each once.
    void followAll()
    {
        while (!myOpen.empty())
        {
            const DtString name = myOpen.back();
            myOpen.pop_back();
            visitEachDatatype(
                myTree, name,
                DtVisitor{[](const DtBasicDataRepresentationNode&) {},
                          [this](const DtSimpleDatatypeNode& simple) { addPart(simple, simple.getRepresentation()); },
                          [this](const DtReferenceDatatypeNode& each) { addPart(each, each.getRepresentation()); },
                          [this](const DtEnumeratedDatatypeNode& each) { addPart(each, each.getRepresentation()); },
                          [this](const DtArrayDatatypeNode& array) { addPart(array, array.getDatatype()); },
                          [this](const DtFixedDatatypeNode& record) { addComponents(record); },
                          [this](const DtComplexDatatypeNode& record) { addComponents(record); },
                          [this](const DtVariantDatatypeNode& record)
                          {
                              addPart(record, record.getDatatype());
                              addComponents(record);
                          }});
        }
    }

private:
    // "NA" and an empty name are how models say that there is none.
    bool isKnown(const DtString& datatype) const
    {
        const DtDataTypeMapper& mapper = *DtDataTypeMapper::instance();
        return datatype.isEmpty() || datatype == "NA" || isDefined(myTree, datatype) || mapper.isKnownType(datatype) ||
               mapper.hasMapping(datatype);
    }

    void add(const DtSubject& subject, const DtString& what, const DtString& datatype)
    {
        if (!isKnown(datatype))
            DtTellWarning(DtToolRules::unknownDatatype, subject,
                          what + " uses the datatype " + datatype +
                              ", which neither the models nor the toolkit have.\n");
        else if (mySeen.insert(datatype).second)
            myOpen.push_back(datatype);
    }

    void addPart(const DtOMTNode& datatype, const DtString& part)
    {
        add(DtSubject::datatype(datatype.getName()), "Datatype " + datatype.getName(), part);
    }

    template <typename Record>
    void addComponents(const Record& record)
    {
        for (const auto* component : record.components())
            add(DtSubject::field(component->getName(), record.getName()),
                component->getName() + " of datatype " + record.getName(), component->getDatatype());
    }

    const DtOMTTree& myTree;
    std::set<DtString> mySeen;
    std::vector<DtString> myOpen;
};
} // namespace

void DtWarnOfUnknownDatatypes(const DtOMTTree& tree, const DtOmtProject& project)
{
    DtUnknownDatatypes unknown(tree);
    for (const DtOmtObject& object : project.getObjects())
        if (const DtObjectClassFedNode* node = tree.getObjectClassNode(object.fullName()))
            unknown.addClass(DtSubject::objectClass(object.fullName()), node->getAttributes());
    for (const DtOmtInteraction& interaction : project.getInteractions())
        if (const DtInteractionClassFedNode* node = tree.getInteractionClassNode(interaction.fullName()))
            unknown.addClass(DtSubject::interactionClass(interaction.fullName()), node->getParameters());
    unknown.followAll();
}
