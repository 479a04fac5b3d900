#ifndef FILE_GENERATOR_DATATYPE_CLOSURE_H
#define FILE_GENERATOR_DATATYPE_CLOSURE_H

#include "fileGenerator/omtInteraction.h"
#include "fileGenerator/omtObject.h"
#include "foundation/string.h"
#include "foundation/warning.h"
#include "omtReader/datatypeFedNode.h"

#include <set>
#include <vector>

class DtCCompatibleNames;
class DtComplexComponentNode;
class DtComplexDatatypeNode;
class DtOMTTree;
struct DtArrayShape;

// The datatypes of a record's components, in order, each as often as it comes. Without the discriminant of a variant.
template <typename Record>
std::vector<DtString> componentDatatypes(const Record& record)
{
    std::vector<DtString> datatypes;
    for (const auto* component : record.components())
        datatypes.push_back(component->getDatatype());
    return datatypes;
}

// The datatypes that a selection of classes uses, and the arrays that cardinalities imply without a declaration.
//
// Both drivers of generation share this. It works on the tree and on the set of used datatypes of its driver and owns
// neither. Names of arrays are made by the identifiers of the driver's module.
class DtDatatypeClosure
{
public:
    DtDatatypeClosure(DtOMTTree* tree, std::set<DtString>& used, DtCCompatibleNames& names);

    // Inserts every array of the tree, as models of HLA 1.3 need them.
    void insertAllArrays();
    // Inserts the datatypes that the members of these classes and the datatypes of the set need, directly or through
    // others; with takesAllDatatypes of the settings, all that the tree has.
    void complete(const std::set<DtOmtObject>& objects, const std::set<DtOmtInteraction>& interactions);

    // Make up the arrays of the classes' members and map the members' names to them. Nothing without a tree.
    void makeArraysOf(const std::set<DtOmtObject>& objects);
    void makeArraysOf(const std::set<DtOmtInteraction>& interactions);
    void makeArraysOf(const DtComplexDatatypeNode& node);
    void makeArrayOf(DtComplexComponentNode& component);
    // The name of the array, or empty, after a warning, when the cardinality type makes none.
    DtString makeArrayOf(const DtString& itemName, const DtString& cardinality,
                         DtDatatypeFedNode::DtCardinalityType type, const DtString& datatype);

    // The name of the array that is made for the component; empty when none is.
    static DtString arrayNameOf(const DtComplexComponentNode& component, DtCCompatibleNames& names);

private:
    void insertAllDatatypes();
    void insertMemberDatatypes(const std::set<DtOmtObject>& objects, const std::set<DtOmtInteraction>& interactions);
    std::vector<DtString> subDatatypes(const DtString& name) const;
    void mapToArray(const DtDatatypeFedNode& member, const DtSubject& owner);
    // The subject is what the array is made for.
    void makeArrayOf(const DtSubject& subject, DtComplexComponentNode& component);
    DtString makeArrayOf(const DtSubject& subject, const DtString& itemName, const DtString& cardinality,
                         DtDatatypeFedNode::DtCardinalityType type, const DtString& datatype);
    DtString addArray(const DtArrayShape& shape, const DtString& cardinality, const DtString& datatype);

    DtOMTTree* myTree;
    std::set<DtString>& myUsed;
    DtCCompatibleNames& myNames;
};

#endif
