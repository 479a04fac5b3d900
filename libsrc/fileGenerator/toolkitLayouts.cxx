#include "fileGenerator/toolkitLayouts.h"

#include "fileGenerator/dataTypeMapper.h"
#include "fileGenerator/datatypeShape.h"
#include "foundation/perRun.h"
#include "foundation/stringUtils.h"
#include "foundation/warningRules.h"
#include "omtReader/visitDatatype.h"

#include <algorithm>

namespace
{

constexpr std::size_t theMostMembers = 16; // more than any type of the toolkit has

enum class DtToolkitKind
{
    Number,
    Text,
    Octets,   // a time in the form of its time implementation
    Floats,   // a record of floating-point numbers
    Integers, // a record of whole numbers
};

// The components of a record stand in the order of the constructor's arguments, with a bar between them. Each is told
// by words of which a field's name may hold one.
struct DtToolkitRow
{
    const char* type;
    DtToolkitKind kind;
    bool isFloat;
    const char* components;
};

const DtToolkitRow theTypes[] = {
    {"DtU8",                     DtToolkitKind::Number,   false, ""                                                       },
    {"DtU16",                    DtToolkitKind::Number,   false, ""                                                       },
    {"DtU32",                    DtToolkitKind::Number,   false, ""                                                       },
    {"DtU64",                    DtToolkitKind::Number,   false, ""                                                       },
    {"DtInt8",                   DtToolkitKind::Number,   false, ""                                                       },
    {"DtInt16",                  DtToolkitKind::Number,   false, ""                                                       },
    {"DtInt32",                  DtToolkitKind::Number,   false, ""                                                       },
    {"DtInt64",                  DtToolkitKind::Number,   false, ""                                                       },
    {"bool",                     DtToolkitKind::Number,   false, ""                                                       },
    {"DtFloat32",                DtToolkitKind::Number,   true,  ""                                                       },
    {"DtFloat64",                DtToolkitKind::Number,   true,  ""                                                       },
    {"DtString",                 DtToolkitKind::Text,     false, ""                                                       },
    {"DtGlobalObjectDesignator", DtToolkitKind::Text,     false, ""                                                       },
    {"DtHlaLogicalTime",         DtToolkitKind::Octets,   false, ""                                                       },
    {"DtHlaLogicalTimeInterval", DtToolkitKind::Octets,   false, ""                                                       },
    {"DtVector",                 DtToolkitKind::Floats,   true,  "x|y|z"                                                  },
    {"DtVector32",               DtToolkitKind::Floats,   true,  "x|y|z"                                                  },
    {"DtVector64",               DtToolkitKind::Floats,   true,  "x|y|z"                                                  },
    {"DtTaitBryan",              DtToolkitKind::Floats,   true,  "psi heading yaw|theta pitch|phi roll"                   },
    {"DtEntityType",             DtToolkitKind::Integers, false, "kind|domain|country|category|subcategory|specific|extra"},
    {"DtEntityIdentifier",       DtToolkitKind::Integers, false, "site|application host|entity"                           },
};

const DtToolkitRow* rowOf(const DtString& type)
{
    const auto* found = std::find_if(std::begin(theTypes), std::end(theTypes),
                                     [&type](const DtToolkitRow& row) { return type == row.type; });
    return found != std::end(theTypes) ? found : nullptr;
}

bool isUpper(char character)
{
    return DtToLower(character) != character;
}

bool isLetter(char character)
{
    const char lower = DtToLower(character);
    return lower >= 'a' && lower <= 'z';
}

// The words of a name in lower case: "BodyXDistance" gives body, x and distance, "SiteID" gives site and id. Digits and
// all that is no letter part words too.
std::vector<std::string> wordsOf(const DtString& name)
{
    const std::string& text = name.stdString();
    std::vector<std::string> words;
    bool isInWord = false;
    for (std::size_t at = 0; at < text.size(); ++at)
    {
        const bool startsWord =
            isUpper(text[at]) && (at == 0 || !isUpper(text[at - 1]) ||
                                  (at + 1 < text.size() && isLetter(text[at + 1]) && !isUpper(text[at + 1])));
        if (isLetter(text[at]) && (!isInWord || startsWord))
            words.emplace_back();
        isInWord = isLetter(text[at]);
        if (isInWord)
            words.back() += DtToLower(text[at]);
    }
    return words;
}

bool isOneOf(const std::string& word, const DtString& names)
{
    return (' ' + names.stdString() + ' ').find(' ' + word + ' ') != std::string::npos;
}

std::vector<DtString> componentNames(const DtToolkitRow& row)
{
    return DtSplit(row.components, '|');
}

// "SubCategory" is one word here, or it would be taken for a category.
std::vector<std::string> componentWords(const DtString& field)
{
    std::vector<std::string> words = wordsOf(field);
    for (std::size_t at = 0; at + 1 < words.size(); ++at)
    {
        if (words[at] == "sub")
        {
            words[at] += words[at + 1];
            words.erase(words.begin() + static_cast<std::ptrdiff_t>(at) + 1);
        }
    }
    return words;
}

// The component that a field is by its name; -1 when the name does not tell.
int componentOf(const DtString& field, const DtToolkitRow& row)
{
    const std::vector<DtString> names = componentNames(row);
    for (const std::string& word : componentWords(field))
        for (std::size_t component = 0; component < names.size(); ++component)
            if (isOneOf(word, names[component]))
                return static_cast<int>(component);
    return -1;
}

// The names without what all of them begin and end with, so that "xpos", "ypos" and "zpos" tell of x, y and z.
std::vector<DtString> withoutCommonEnds(const std::vector<DtShapePart>& parts)
{
    std::vector<std::string> names;
    names.reserve(parts.size());
    for (const DtShapePart& part : parts)
        names.push_back(part.name.stdString());
    const auto shares = [&names](std::size_t length, bool fromEnd)
    {
        return std::all_of(names.begin(), names.end(),
                           [&](const std::string& name)
                           {
                               const std::string& first = names.front();
                               return name.size() > length && first.size() > length &&
                                      (fromEnd ? name[name.size() - 1 - length] == first[first.size() - 1 - length]
                                               : name[length] == first[length]);
                           });
    };
    std::size_t front = 0, back = 0;
    while (shares(front, false))
        ++front;
    for (std::string& name : names)
        name.erase(0, front);
    while (shares(back, true))
        ++back;
    std::vector<DtString> rest;
    rest.reserve(names.size());
    for (const std::string& name : names)
        rest.emplace_back(name.substr(0, name.size() - back));
    return rest;
}

// The component that each part is by its name; -1 where the name does not tell.
std::vector<int> namedComponents(const std::vector<DtShapePart>& parts, const DtToolkitRow& row)
{
    std::vector<int> components;
    components.reserve(parts.size());
    for (const DtShapePart& part : parts)
        components.push_back(componentOf(part.name, row));
    if (std::any_of(components.begin(), components.end(), [](int component) { return component >= 0; }))
        return components;
    components.clear();
    for (const DtString& name : withoutCommonEnds(parts))
        components.push_back(componentOf(name, row));
    return components;
}

// Which component each part is: the one that its name tells of; what is left goes to the rest in order. Empty when two
// parts bear the name of the same component.
std::vector<int> componentsOf(const std::vector<DtShapePart>& parts, const DtToolkitRow& row)
{
    std::vector<int> components = namedComponents(parts, row);
    std::set<int> taken;
    for (const int component : components)
    {
        if (component >= 0 && !taken.insert(component).second)
            return {};
    }
    int next = 0;
    for (int& component : components)
    {
        while (component < 0 && taken.count(next) != 0)
            ++next;
        if (component < 0)
            component = next++;
    }
    return components;
}

DtString partText(const DtShapePart& part, int component)
{
    DtString text =
        "DtWirePart<" + DtString(component) + ", " + DtString(part.offset) + ", " + DtString(part.form.octets);
    const bool isSigned = part.form.isSigned && !part.form.isFloat;
    if (isSigned || part.form.isLittleEndian)
        text += isSigned ? ", true" : ", false";
    if (part.form.isLittleEndian)
        text += ", true";
    return text + ">";
}

bool fits(const DtNumberForm& form, bool isFloat)
{
    return form.isFloat == isFloat && (!isFloat || form.octets == 4 || form.octets == 8);
}

DtString differenceOfShape(const DtDatatypeShape& shape, const DtToolkitRow& row)
{
    if (!shape.fault.isEmpty())
        return shape.fault;
    const std::size_t wanted = componentNames(row).size();
    if (shape.parts.size() != wanted)
        return "has " + DtString(static_cast<int>(shape.parts.size())) + " members in place of " +
               DtString(static_cast<int>(wanted));
    for (const DtShapePart& part : shape.parts)
    {
        if (!fits(part.form, row.isFloat))
            return "has a member " + part.name +
                   (row.isFloat ? " that is no floating-point number of 4 or 8 octets" : " that is no whole number");
    }
    return componentsOf(shape.parts, row).empty() ? "has two members for one component" : "";
}

DtToolkitLayout layoutOfRecord(const DtString& datatype, const DtToolkitRow& row, const DtOMTTree& tree)
{
    const DtDatatypeShape shape = shapeOf(datatype, tree, theMostMembers);
    DtToolkitLayout layout;
    layout.difference = differenceOfShape(shape, row);
    if (!layout.difference.isEmpty())
        return layout;
    const std::vector<int> components = componentsOf(shape.parts, row);
    layout.argument = ",\n        &DtWireRecordOf<" + DtString(shape.boundary);
    for (std::size_t at = 0; at < shape.parts.size(); ++at)
        layout.argument += ", " + partText(shape.parts[at], components[at]);
    layout.argument += ">::theLayout";
    return layout;
}

DtToolkitLayout layoutOfNumber(const DtString& datatype, const DtToolkitRow& row, const DtOMTTree& tree)
{
    DtToolkitLayout layout;
    const DtNumberForm form = numberOf(datatype, tree);
    const DtString name = belowSimpleTypes(datatype, tree);
    if (isComposite(tree, name))
        layout.difference = "is no number";
    else if (form.octets != 0 && !fits(form, row.isFloat))
        layout.difference = row.isFloat ? "is no floating-point number of 4 or 8 octets" : "is no whole number";
    return layout;
}

struct DtArrayText
{
    DtString element;
    DtString encoding;
    int count = -1;
};

// The usual layouts of texts that a record of the model may hold without defining them.
const struct DtUsualText
{
    const char* name;
    const char* element;
    const char* encoding;
} theUsualTexts[] = {
    {"string",           "char",           "HLAnullTerminatedArray"},
    {"RTIobjectId",      "char",           "RPRnullTerminatedArray"},
    {"RTIObjectId",      "char",           "RPRnullTerminatedArray"},
    {"HLAASCIIstring",   "HLAASCIIchar",   "HLAvariableArray"      },
    {"HLAunicodeString", "HLAunicodeChar", "HLAvariableArray"      },
    {"HLAopaqueData",    "HLAoctet",       "HLAvariableArray"      },
};

DtArrayText arrayOf(const DtFieldComponentNode&)
{
    return {};
}

// The array that a component of HLA 1.3 is by its cardinality.
DtArrayText arrayOf(const DtComplexComponentNode& component)
{
    const DtString& cardinality = component.getCardinality();
    if (cardinality.isEmpty() || cardinality == "1")
        return {};
    switch (component.getCardinalityType())
    {
    case 0:
        return {component.getDatatype(), "HLAfixedArray", elementCountOf(cardinality)};
    case 3:
        return {component.getDatatype(), "HLAnullTerminatedArray", -1};
    default:
        return {component.getDatatype(), "HLApaddingTo32Array", -1};
    }
}

// The array that a text is: by its own definition, that of a simple type's representation, or that of the only field of
// a record, which lies like its field. No element when the datatype is something else.
class DtTextSearch
{
public:
    explicit DtTextSearch(const DtOMTTree& tree) : myTree(tree) {}

    DtArrayText run(const DtString& datatype)
    {
        const DtString name = belowSimpleTypes(datatype, myTree);
        if (!myVisited.insert(name).second)
            return {};
        if (const DtArrayDatatypeNode* array = myTree.getArrayDatatypeNode(name))
            return {array->getDatatype(), array->getEncoding(), elementCountOf(array->getCardinality())};
        if (const DtFixedDatatypeNode* record = myTree.getFixedDatatypeNode(name))
            return onlyField(*record);
        if (const DtComplexDatatypeNode* record = myTree.getComplexDatatypeNode(name))
            return onlyField(*record);
        return usual(name);
    }

private:
    template <typename Record>
    DtArrayText onlyField(const Record& record)
    {
        if (record.components().size() != 1)
            return {};
        const auto* field = record.components().front();
        const DtArrayText array = arrayOf(*field);
        return array.element.isEmpty() ? run(field->getDatatype()) : array;
    }
    DtArrayText usual(const DtString& name) const
    {
        for (const DtUsualText& row : theUsualTexts)
            if (name == row.name && !isDefined(myTree, name))
                return {row.element, row.encoding, -1};
        return {};
    }

    const DtOMTTree& myTree;
    std::set<DtString> myVisited;
};

DtToolkitLayout layoutOfText(const DtString& datatype, const DtToolkitRow& row, const DtOMTTree& tree)
{
    DtToolkitLayout layout;
    const DtArrayText array = DtTextSearch(tree).run(datatype);
    const DtNumberForm element = numberOf(array.element, tree);
    const bool isText = row.kind == DtToolkitKind::Text;
    if (array.element.isEmpty())
        layout.difference = "is no array";
    else if (element.isFloat || element.octets == 0 || element.octets > (isText ? 2 : 1))
        layout.difference =
            isText ? "has elements that are no characters of 1 or 2 octets" : "has elements other than octets";
    else if (lengthOfArray(array.encoding, array.count) == DtArrayLength::None)
        layout.difference = "is an array without elements on the wire: " + array.encoding;
    if (!layout.difference.isEmpty())
        return layout;
    layout.encoding = array.encoding.isEmpty() ? DtString("HLAvariableArray") : array.encoding;
    layout.count = array.count;
    layout.element = element;
    return layout;
}

DtToolkitLayout layoutOfRow(const DtString& datatype, const DtToolkitRow& row, const DtOMTTree& tree)
{
    switch (row.kind)
    {
    case DtToolkitKind::Number:
        return layoutOfNumber(datatype, row, tree);
    case DtToolkitKind::Text:
    case DtToolkitKind::Octets:
        return layoutOfText(datatype, row, tree);
    case DtToolkitKind::Floats:
    case DtToolkitKind::Integers:
        return layoutOfRecord(datatype, row, tree);
    }
    return {};
}

} // namespace

DtToolkitLayout toolkitLayoutOf(const DtString& datatype, const DtString& toolkitType, const DtOMTTree& tree)
{
    const DtToolkitRow* row = rowOf(toolkitType);
    if (row == nullptr || !isDefined(tree, datatype))
        return {};
    DtToolkitLayout layout = layoutOfRow(datatype, *row, tree);
    if (!layout.difference.isEmpty())
        layout.argument = ", &DtWireMisfit::theLayout";
    return layout;
}

DtString toolkitTypeOf(const DtString& datatype, const DtOMTTree& tree)
{
    for (const DtString& name : simpleTypesBelow(datatype, tree).names)
    {
        const DtString& type = DtDataTypeMapper::instance()->quorvexType(name);
        if (!name.isEmpty() && !type.isEmpty())
            return type;
    }
    return DtString();
}

DtToolkitValue toolkitValueOf(const DtString& type)
{
    const DtToolkitRow* row = rowOf(type);
    if (row == nullptr)
        return DtToolkitValue::None;
    switch (row->kind)
    {
    case DtToolkitKind::Number:
        return DtToolkitValue::Number;
    case DtToolkitKind::Text:
    case DtToolkitKind::Octets:
        return DtToolkitValue::Array;
    case DtToolkitKind::Floats:
    case DtToolkitKind::Integers:
        break;
    }
    return DtToolkitValue::Record;
}

bool hasToolkitNumbers(const DtString& datatype, const DtOMTTree& tree)
{
    const DtToolkitLayout& layout = DtToolkitLayouts::instance().of(datatype);
    if (!layout.difference.isEmpty())
        return false;
    switch (toolkitValueOf(toolkitTypeOf(datatype, tree)))
    {
    case DtToolkitValue::Number:
        return numberOf(datatype, tree).octets != 0 && numberOf(datatype, tree).octets == numberFormOf(datatype).octets;
    case DtToolkitValue::Record:
        return !layout.argument.isEmpty();
    case DtToolkitValue::None:
    case DtToolkitValue::Array:
        break;
    }
    return false;
}

DtToolkitLayouts& DtToolkitLayouts::instance()
{
    return DtPerRun<DtToolkitLayouts>();
}

void DtToolkitLayouts::workOut(const DtOMTTree& tree, const std::set<DtString>& used)
{
    clear();
    for (const DtString& datatype : used)
    {
        const DtString type = toolkitTypeOf(datatype, tree);
        DtToolkitLayout layout = toolkitLayoutOf(datatype, type, tree);
        if (!layout.difference.isEmpty())
            DtTellWarning(DtRules::toolkitTypeDiffers, DtSubject::datatype(datatype),
                          "Warning: Datatype " + datatype + " does not fit into " + type +
                              ", which stands for it: it " + layout.difference + ". Its values are refused.\n");
        myLayouts[datatype] = std::move(layout);
    }
}

const DtToolkitLayout& DtToolkitLayouts::of(const DtString& datatype) const
{
    static const DtToolkitLayout theUsual;
    const auto found = myLayouts.find(datatype);
    return found != myLayouts.end() ? found->second : theUsual;
}
