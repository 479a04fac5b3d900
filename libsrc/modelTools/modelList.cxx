#include "modelTools/modelList.h"

#include "fileGenerator/progressMeter.h"
#include "foundation/warningRules.h"
#include "modelTools/modelPlaces.h"
#include "omtReader/visitDatatype.h"

#include <nlohmann/json.hpp>

#include <algorithm>
#include <ostream>
#include <vector>

namespace
{
using Json = nlohmann::ordered_json;

// Object and interaction classes differ in the names of their operations.
const std::list<DtObjectClassFedNode*>& childrenOf(const DtObjectClassFedNode& node)
{
    return node.getChildObjects();
}
const std::list<DtInteractionClassFedNode*>& childrenOf(const DtInteractionClassFedNode& node)
{
    return node.getChildInteractions();
}
const std::list<DtAttributeFedNode*>& membersOf(const DtObjectClassFedNode& node)
{
    return node.getAttributes();
}
const std::list<DtParameterFedNode*>& membersOf(const DtInteractionClassFedNode& node)
{
    return node.getParameters();
}
const char* memberKey(const DtObjectClassFedNode& /*node*/)
{
    return "attributes";
}
const char* memberKey(const DtInteractionClassFedNode& /*node*/)
{
    return "parameters";
}

// Calls `visit` with each class below `node` and with how deep it stands, 1 for a child.
template <typename Node, typename Visit>
void visitClasses(const Node& node, const Visit& visit, int depth = 1)
{
    for (const Node* each : childrenOf(node))
    {
        visit(*each, depth);
        visitClasses(*each, visit, depth + 1);
    }
}

std::string indentation(int depth)
{
    return std::string(static_cast<std::size_t>(depth) * 2, ' ');
}

template <typename Node, typename IsSelected>
void writeClasses(std::ostream& out, const Node* root, bool isTree, const IsSelected& isSelected)
{
    if (root == nullptr)
        return;
    if (isTree)
        out << root->getName() << '\n';
    const auto write = [&](const Node& node, int depth)
    {
        if (!isSelected(node.getFullName()))
            return;
        if (isTree)
            out << indentation(depth) << node.getName() << '\n';
        else
            out << node.getFullName() << '\n';
    };
    visitClasses(*root, write);
}

template <typename Node>
Json classObject(const Node& node)
{
    Json object;
    object["name"] = node.getName().stdString();
    object["fullName"] = node.getFullName().stdString();
    const DtFedNode* const parent = node.getParentObject();
    object["parent"] = parent != nullptr ? Json(parent->getFullName().stdString()) : Json();
    Json& members = object[memberKey(node)] = Json::array();
    for (const auto* member : membersOf(node))
        members.push_back({
            {"name",     member->getName().stdString()    },
            {"datatype", member->getDatatype().stdString()}
        });
    return object;
}

template <typename Node, typename IsSelected>
Json classList(const Node* root, const IsSelected& isSelected)
{
    Json list = Json::array();
    const auto add = [&](const Node& node, int /*depth*/)
    {
        if (isSelected(node.getFullName()))
            list.push_back(classObject(node));
    };
    if (root != nullptr)
        visitClasses(*root, add);
    return list;
}

const char* familyOf(const DtBasicDataRepresentationNode& /*node*/)
{
    return "basic";
}
const char* familyOf(const DtSimpleDatatypeNode& /*node*/)
{
    return "simple";
}
const char* familyOf(const DtReferenceDatatypeNode& /*node*/)
{
    return "reference";
}
const char* familyOf(const DtEnumeratedDatatypeNode& /*node*/)
{
    return "enumerated";
}
const char* familyOf(const DtArrayDatatypeNode& /*node*/)
{
    return "array";
}
const char* familyOf(const DtFixedDatatypeNode& /*node*/)
{
    return "fixedRecord";
}
const char* familyOf(const DtVariantDatatypeNode& /*node*/)
{
    return "variantRecord";
}
const char* familyOf(const DtComplexDatatypeNode& /*node*/)
{
    return "complex";
}

void addDetails(const DtBasicDataRepresentationNode& node, Json& object)
{
    object["size"] = node.getSize().stdString();
    object["endian"] = node.getEndian().stdString();
}

void addDetails(const DtSimpleDatatypeNode& node, Json& object)
{
    object["representation"] = node.getRepresentation().stdString();
}

void addDetails(const DtReferenceDatatypeNode& node, Json& object)
{
    object["representation"] = node.getRepresentation().stdString();
    object["class"] = node.getReferenceClass().stdString();
    object["attribute"] = node.getReferencedAttribute().stdString();
}

void addDetails(const DtEnumeratedDatatypeNode& node, Json& object)
{
    object["representation"] = node.getRepresentation().stdString();
    Json& enumerators = object["enumerators"] = Json::array();
    for (auto each = node.getEnumerationNodeList(); each != node.getEnumerationNodeEnd(); ++each)
        enumerators.push_back({
            {"name",  (*each)->getEnum().stdString()            },
            {"value", Json::parse((*each)->numberText().c_str())}
        });
}

void addDetails(const DtArrayDatatypeNode& node, Json& object)
{
    object["datatype"] = node.getDatatype().stdString();
    object["cardinality"] = node.getCardinality().stdString();
}

void addDetails(const DtFixedDatatypeNode& node, Json& object)
{
    Json& fields = object["fields"] = Json::array();
    for (const DtFieldComponentNode* field : node.components())
        fields.push_back({
            {"name",     field->getName().stdString()    },
            {"datatype", field->getDatatype().stdString()}
        });
}

void addDetails(const DtVariantDatatypeNode& node, Json& object)
{
    object["discriminant"] = node.getDiscriminant().stdString();
    object["datatype"] = node.getDatatype().stdString();
    Json& alternatives = object["alternatives"] = Json::array();
    for (const DtAlternativeComponentNode* each : node.components())
        alternatives.push_back({
            {"name",       each->getName().stdString()      },
            {"enumerator", each->getEnumerator().stdString()},
            {"datatype",   each->getDatatype().stdString()  }
        });
}

void addDetails(const DtComplexDatatypeNode& node, Json& object)
{
    Json& components = object["components"] = Json::array();
    for (const DtComplexComponentNode* each : node.components())
        components.push_back({
            {"name",        each->getName().stdString()       },
            {"datatype",    each->getDatatype().stdString()   },
            {"cardinality", each->getCardinality().stdString()}
        });
}

// Calls `visit` with each datatype, family by family.
template <typename Visit>
void visitDatatypes(const DtOMTTree& tree, const Visit& visit)
{
    const auto visitAll = [&visit](const auto& nodes)
    {
        for (const auto* node : nodes)
            visit(*node);
    };
    visitAll(tree.basicDataRepresentations());
    visitAll(tree.simpleDatatypes());
    visitAll(tree.referenceDatatypes());
    visitAll(tree.enumeratedDatatypes());
    visitAll(tree.arrayDatatypes());
    visitAll(tree.fixedDatatypes());
    visitAll(tree.variantDatatypes());
    visitAll(tree.complexDatatypes());
}

void writeDatatypes(std::ostream& out, const DtOMTTree& tree, bool isTree)
{
    std::string lastFamily;
    const auto write = [&](const auto& node)
    {
        const std::string family = familyOf(node);
        if (isTree && family != lastFamily)
            out << family << '\n';
        lastFamily = family;
        if (isTree)
            out << indentation(1) << node.getName() << '\n';
        else
            out << node.getName() << '\t' << family << '\n';
    };
    visitDatatypes(tree, write);
}

Json datatypeList(const DtOMTTree& tree)
{
    Json list = Json::array();
    const auto add = [&list](const auto& node)
    {
        Json object;
        object["name"] = node.getName().stdString();
        object["family"] = familyOf(node);
        addDetails(node, object);
        list.push_back(object);
    };
    visitDatatypes(tree, add);
    return list;
}

DtListOptions withChoice(DtListOptions options)
{
    if (!options.listsObjects && !options.listsInteractions && !options.listsDatatypes)
        options.listsObjects = options.listsInteractions = options.listsDatatypes = true;
    return options;
}
} // namespace

DtModelList::DtModelList(const DtListOptions& options) : myOptions(withChoice(options)), myGeneration(options.request)
{
}

void DtModelList::run(std::ostream& out, std::ostream& err)
{
    DtDiagnostics diagnostics;
    try
    {
        load();
    }
    catch (...)
    {
        tell(diagnostics, err);
        throw;
    }
    tell(diagnostics, err);
    if (myOptions.format == DtListFormat::Json)
        writeJson(out);
    else
        writeText(out);
}

void DtModelList::tell(DtDiagnostics& diagnostics, std::ostream& err) const
{
    if (myOptions.isQuiet)
        return;
    DtModelPlaces places(myGeneration.modelFiles());
    diagnostics.makeErrors(DtRules::unreadableModel);
    diagnostics.findPlaces([&places](const DtSubject& subject) { return places.of(subject); });
    for (const DtDiagnostic& diagnostic : diagnostics.all())
        err << DtFormatted(diagnostic, DtDiagnosticFormat::Text);
}

void DtModelList::load()
{
    DtQuietProgressMeter quiet;
    const DtProgressUse use(quiet);
    myGeneration.load();
    noteSelection();
}

void DtModelList::noteSelection()
{
    for (const DtOmtObject& object : myGeneration.project().getObjects())
        mySelected.insert(object.fullName());
    for (const DtOmtInteraction& interaction : myGeneration.project().getInteractions())
        mySelected.insert(interaction.fullName());
}

void DtModelList::writeText(std::ostream& out) const
{
    const DtOMTTree& tree = myGeneration.tree();
    const auto isWanted = [this](const DtString& name) { return isSelected(name); };
    if (myOptions.listsObjects)
        writeClasses(out, tree.objectClassRoot(), myOptions.isTree, isWanted);
    if (myOptions.listsInteractions)
        writeClasses(out, tree.interactionClassRoot(), myOptions.isTree, isWanted);
    if (myOptions.listsDatatypes)
        writeDatatypes(out, tree, myOptions.isTree);
}

void DtModelList::writeJson(std::ostream& out) const
{
    const DtOMTTree& tree = myGeneration.tree();
    const auto isWanted = [this](const DtString& name) { return isSelected(name); };
    Json object;
    if (myOptions.listsObjects)
        object["objects"] = classList(tree.objectClassRoot(), isWanted);
    if (myOptions.listsInteractions)
        object["interactions"] = classList(tree.interactionClassRoot(), isWanted);
    if (myOptions.listsDatatypes)
        object["datatypes"] = datatypeList(tree);
    out << object.dump(2, ' ', false, Json::error_handler_t::replace) << '\n';
}
