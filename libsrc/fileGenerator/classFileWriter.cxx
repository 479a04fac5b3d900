#include "fileGenerator/classFileWriter.h"

#include "fileGenerator/cCompatibleName.h"
#include "fileGenerator/dataTypeMapper.h"
#include "fileGenerator/datatypeClassNames.h"
#include "fileGenerator/namePattern.h"
#include "fileGenerator/numberForm.h"
#include "fileGenerator/settings.h"
#include "fileGenerator/toolkitLayouts.h"
#include "fileGenerator/valueForm.h"
#include "foundation/stringUtils.h"

#include <algorithm>
#include <string_view>

namespace
{

DtCCompatibleNames theNames;

// No identifier form of a name this short is over the limit of 100 characters: a character becomes two at most, and a
// keyword gets three more in front.
const unsigned int theSafeLength = 48;

const DtDataTypeMapper& mapper()
{
    return *DtDataTypeMapper::instance();
}

DtString identifier(const DtString& text)
{
    return theNames.MakeCCompatibleString(text);
}

DtString decimal(unsigned int number)
{
    return DtString(number);
}

DtString flag(bool isSet)
{
    return isSet ? "1" : "";
}

DtString withoutPrefix(const DtString& text, std::string_view prefix)
{
    return DtString(text.stdString().substr(prefix.size()));
}

DtString withoutVector(const DtString& type)
{
    return DtReplaceSubstring(DtReplaceSubstring(type, "std::vector<", ""), ">", "");
}

// The name that the tables of sizes and representations have: model types stand there without "Dt".
DtString tableName(const DtAttribute& attribute)
{
    const DtString& type = attribute.type();
    return !mapper().isKnownType(type) && type.startsWith("Dt") ? withoutPrefix(type, "Dt") : type;
}

// The keyword test takes the name with a small first letter in both cases: "Template" becomes "TheTemplate".
bool isReservedName(const DtString& name)
{
    return isCPlusPlusKeyword(DtFirstCharToLower(name));
}

DtString lowerAttributeName(const DtString& name, DtCCompatibleNames& names = theNames)
{
    return names.MakeCCompatibleString(isReservedName(name) ? "the" + DtFirstCharToUpper(name)
                                                            : DtFirstCharToLowerConditional(name));
}

DtString upperAttributeName(const DtString& name, DtCCompatibleNames& names = theNames)
{
    return names.MakeCCompatibleString((isReservedName(name) ? "The" : "") + DtFirstCharToUpper(name));
}

bool isString(const DtAttribute& attribute)
{
    return attribute.netType() == "DtString" || attribute.netType() == "DtGlobalObjectDesignator";
}

// Object identifiers are written as terminated text, whatever else is known of them; both spellings are in use.
DtString encodingOf(const DtAttribute& attribute)
{
    const DtString& datatype = attribute.datatype();
    const DtString& ofDatatype = datatype.isEmpty() ? DtString::nullString() : mapper().encOfDatatype(datatype);
    if (!ofDatatype.isEmpty())
        return ofDatatype;
    if (datatype == "RTIobjectId" || datatype == "RTIObjectId")
        return "RPRnullTerminatedArray";
    return attribute.encoding().isEmpty() ? DtString("HLAvariableArray") : attribute.encoding();
}

DtValueForm valueFormOf(const DtAttribute& attribute)
{
    return valueFormOf(attribute.datatype(), encodingOf(attribute),
                       DtToolkitLayouts::instance().of(attribute.datatype()));
}

// Whether nothing stands for the datatype in C++: no type of the toolkit, no enumeration, and no class. The wire type
// of a class is the class's name with "DtNet", so it is the model's name that stays where there is no class.
bool hasNoClass(const DtAttribute& attribute)
{
    const bool isKnown = mapper().isNonEncodeableDataType(attribute.type()) || attribute.isEnumeration() ||
                         isString(attribute) || mapper().boundaryFromDataTypeName(tableName(attribute)) != 0;
    return !isKnown && attribute.netType() == attribute.nonVectorType();
}

// The C++ name of the attribute's type.
DtString typeIdentifier(const DtAttribute& attribute)
{
    return identifier(DtDatatypeClassNames::instance().identifierOf(attribute.datatype(), attribute.type()));
}

DtString bareClassName(const DtString& className)
{
    DtString name = identifier(className);
    name.snipFront('t', false);
    return DtFirstCharToLowerConditional(name);
}

DtString enumsHeader()
{
    DtFilename base(DtSettings::instance().cpp.baseName);
    base.stripPath();
    base.stripExtension();
    return DtSettings::instance().cpp.includePath() +
           DtReplaceAllSubstrings(DtReplaceAllSubstrings(base, "-", ""), ".", "") + "Enums";
}

DtString withoutRoot(const DtString& name, std::string_view root, std::string_view standardRoot)
{
    if (name.startsWith(DtString(std::string(root))))
        return withoutPrefix(name, root);
    return name.startsWith(DtString(std::string(standardRoot))) ? withoutPrefix(name, standardRoot) : name;
}

} // namespace

// Rows run top to bottom, and a later row sees what an earlier one put in: their order shows in the output.
struct DtClassFileWriter::DtTokens
{
    using Writer = DtClassFileWriter;
    using Row = DtTokenRow<DtClassFileWriter>;
    using Table = DtTokenTable<DtClassFileWriter>;

    static const Table& boundary();
    static const Table& attribute();
    static const Table& classNames();
    static const Table& modules();
    static const Table& encoding();
    static DtString fill(const Writer& writer, const char* pattern);
    // The first pattern under "ObjectRoot", the second under any other parent.
    static DtString fillByParent(const Writer& writer, const char* topPattern, const char* pattern);
};

// A row whose value is a name pattern, and one that has another pattern under the model's root.
#define PATTERN(pattern) [](const Writer& w) { return fill(w, pattern); }
#define BY_PARENT(topPattern, pattern) [](const Writer& w) { return fillByParent(w, topPattern, pattern); }
// A row that asks the current attribute, called a.
#define OF_ATTRIBUTE(expression)                                                                                       \
    [](const Writer& w) -> DtString                                                                                    \
    {                                                                                                                  \
        const DtAttribute& a = *w.myCurrentAttribute;                                                                  \
        return expression;                                                                                             \
    }

// clang-format off
const DtClassFileWriter::DtTokens::Table& DtClassFileWriter::DtTokens::boundary()
{
    static const Row theRows[] = {
        {"<!OctetBoundary!>", [](const Writer& w) { return decimal(mapper().boundaryFromDataTypeName(w.myOriginalName)); }},
    };
    static const Table theTable(theRows);
    return theTable;
}

const DtClassFileWriter::DtTokens::Table& DtClassFileWriter::DtTokens::attribute()
{
    static const Row theRows[] = {
        {"<!AttributeLocalType!>",                OF_ATTRIBUTE(withoutVector(a.type()))},
        {"<!AttributeSize!>",                     OF_ATTRIBUTE(decimal(mapper().sizeFromDataTypeName(tableName(a))))},
        {"<!AttributeBoundary!>",                 OF_ATTRIBUTE(decimal(mapper().boundaryFromDataTypeName(tableName(a))))},
        {"<!NumberOfAttribute!>",                 [](const Writer& w) { return DtString(w.myAttributeCounter); }},
        {"<!Prefix!>",                            [](const Writer&) { return DtSettings::instance().cpp.prefixName; }},
        {"<!AttributeLocalNetType!>",             OF_ATTRIBUTE(withoutVector(a.netType()))},
        {"<!AttributeCastNetType!>",              OF_ATTRIBUTE(DtReplaceSubstring(a.netType(), "DtNet", "Dt"))},
        {"<!AttributeQuorvexNetType!>",           OF_ATTRIBUTE(mapper().isQuorvexNetType(a.netType()) ? a.netType() : DtString())},
        {"<!attributeName!>",                     OF_ATTRIBUTE(lowerAttributeName(a.name()))},
        {"<!AttributeName!>",                     OF_ATTRIBUTE(upperAttributeName(a.name()))},
        {"<!ExactAttributeName!>",                OF_ATTRIBUTE(identifier(a.name()))},
        {"<!AttributeNetType!>",                  OF_ATTRIBUTE(a.netType())},
        {"<!AttributeNetSizeString!>",            OF_ATTRIBUTE(a.netSizeString())},
        {"<!AttributeDatatype!>",                 OF_ATTRIBUTE(identifier(a.type()))},
        {"<!AttributeFomDatatype!>",              OF_ATTRIBUTE(identifier(a.datatype()))},
        {"<!AttributeDatatypeDatatype!>",         OF_ATTRIBUTE(identifier(a.datatypeDatatype()))},
        {"<!IsFloat!>",                           OF_ATTRIBUTE(a.isFloat() ? "Float" : "")},
        {"<!AttributeNumCardinality!>",           OF_ATTRIBUTE(DtString(a.numericalCardinality()))},
        {"<!AttributeInitialValueFromLocalType!>", OF_ATTRIBUTE(mapper().initialValueFromType(withoutVector(a.type())))},
        {"<!AttributeSampleValueFromType!>",      OF_ATTRIBUTE(mapper().sampleValueFromType(a.type(), a.name()))},
        {"<!AttributeInitialValueFromType!>",     OF_ATTRIBUTE(mapper().initialValueFromType(a.type()))},
        {"<!AttributeEnumerationSize!>",          OF_ATTRIBUTE(mapper().enumerationSize(a.type()))},
        {"<!EnumerationRep!>",                    OF_ATTRIBUTE(mapper().repForEnumName(tableName(a)))},
        {"<!enumerationRep!>",                    OF_ATTRIBUTE(DtFirstCharToLowerConditional(mapper().repForEnumName(tableName(a))))},
        {"<!AttributeIsVariableSize!>",           OF_ATTRIBUTE(flag(mapper().isVariableSizeNetType(a.netType())))},
        {"<!AttributeIsNotEncodeable!>",          OF_ATTRIBUTE(flag(mapper().isNonEncodeableDataType(a.type())))},
        {"<!AttributeHasPlusCardinality!>",       OF_ATTRIBUTE(flag(a.hasPlusCardinality()))},
        {"<!AttributeNetIsVariableSize!>",        OF_ATTRIBUTE(flag(mapper().isVariableSizeNetType(a.netType())))}, // both are in use
        {"<!AttributeIsEnumeration!>",            OF_ATTRIBUTE(flag(a.isEnumeration()))},
        {"<!AttributeIsString!>",                 OF_ATTRIBUTE(flag(isString(a)))},
        {"<!AttributeIsVariant!>",                OF_ATTRIBUTE(flag(a.isVariant()))},
        {"<!NonVectorDatatype!>",                 OF_ATTRIBUTE(a.nonVectorType())},
        {"<!AttributeElementCount!>",             OF_ATTRIBUTE(DtString(valueFormOf(a).count))},
        {"<!AttributeOctets!>",                   OF_ATTRIBUTE(DtString(valueFormOf(a).number.octets))},
        {"<!AttributeIsLittleEndian!>",           OF_ATTRIBUTE(valueFormOf(a).number.isLittleEndian ? "1" : "0")},
        {"<!AttributeHasNoClass!>",               OF_ATTRIBUTE(flag(hasNoClass(a)))},
        {"<!AttributeTypeIdentifier!>",           OF_ATTRIBUTE(typeIdentifier(a))},
        {"<!AttributeIsNamesake!>",               OF_ATTRIBUTE(flag(DtDatatypeClassNames::instance().isNamesake(a.datatype())))},
        {"<!AttributeLayout!>",                   OF_ATTRIBUTE(valueFormOf(a).layout)},
    };
    static const Table theTable(theRows, [](const Writer& w) { return w.myCurrentAttribute != nullptr; });
    return theTable;
}

// Header tokens carry no ".h" but for the two that show it, and no quotes but for those of base classes. No writer makes
// a file with the letter "d" in front of the parent's name, as the last two rows give it.
const DtClassFileWriter::DtTokens::Table& DtClassFileWriter::DtTokens::classNames()
{
    static const Row theRows[] = {
        {"<!FileToInclude!>",            [](const Writer& w) { return identifier(w.myCurrentInclude) + ".h"; }},
        {"<!ClassName!>",                [](const Writer& w) { return identifier(w.myClassName); }},
        {"<!NonDtClassName!>",           [](const Writer& w) { return bareClassName(w.myClassName); }},
        {"<!FileBase!>",                 PATTERN("%F")},
        {"<!FileBaseHeader!>",           PATTERN("%C%F.h")},
        {"<!BaseClassName!>",            [](const Writer& w) { return w.myBaseClassName; }},
        {"<!BaseClassHeader!>",          [](const Writer& w) { return w.myBaseClassHeader; }},
        {"<!FullClassName!>",            PATTERN("%U")},
        {"<!SrHeader!>",                 PATTERN("%C%nStateRepository")},
        {"<!SrMethod!>",                 PATTERN("%nStateRep")},
        {"<!ShortSrMethod!>",            [](const Writer& w) { return DtString(fill(w, "%n").stdString().substr(0, 1)) + "sr"; }},
        {"<!StateRepName!>",             PATTERN("Dt%P%NStateRepository")},
        {"<!HEncHeader!>",               PATTERN("%C%nEncoderHLA")},
        {"<!HDecHeader!>",               PATTERN("%C%nDecoderHLA")},
        {"<!DEncHeader!>",               PATTERN("%C%nEncoderDIS")},
        {"<!DDecHeader!>",               PATTERN("%C%nDecoderDIS")},
        {"<!HlaPubHeader!>",             PATTERN("%C%nPublisherHLA")},
        {"<!PubHeader!>",                PATTERN("%C%nPublisher")},
        {"<!DisPubHeader!>",             PATTERN("%C%nPublisherDIS")},
        {"<!PduHeader!>",                PATTERN("%C%NPdu")},
        {"<!NetPduHeader!>",             PATTERN("%Cnet%NPdu")},
        {"<!PduClassName!>",             PATTERN("Dt%P%NPdu")},
        {"<!PublisherClassName!>",       PATTERN("Dt%P%NPublisher")},
        {"<!DecoderClassName!>",         PATTERN("Dt%P%NDecoder")},
        {"<!EncoderClassName!>",         PATTERN("Dt%P%NEncoder")},
        {"<!InteractionClassName!>",     PATTERN("Dt%P%N")},
        {"<!PduInteractionClassName!>",  PATTERN("Dt%P%NPdu")},
        {"<!InteractionHeader!>",        PATTERN("%C%nHLA")},
        {"<!ClassCbName!>",              PATTERN("%KCb")},
        {"<!PduKind!>",                  [](const Writer& w) { return DtString(w.myPduKind); }},
        {"<!ReflectedListClassName!>",   PATTERN("DtReflected%P%NList")},
        {"<!ReflectedObjectClassName!>", PATTERN("DtReflected%P%N")},
        {"<!ReflectedListHeader!>",      PATTERN("%Creflected%NList")},
        {"<!HReflectedListHeader!>",     PATTERN("%Creflected%NListHLA")},
        {"<!DReflectedListHeader!>",     PATTERN("%Creflected%NListDIS")},
        {"<!ReflectedObjectHeader!>",    PATTERN("%Creflected%N")},
        {"<!HReflectedObjectHeader!>",   PATTERN("%Creflected%NHLA")},
        {"<!DReflectedObjectHeader!>",   PATTERN("%Creflected%NDIS")},
        {"<!ClassCallbackFunction!>",    PATTERN("Dt%P%NCallbackFunction")},
        {"<!NetPduClassName!>",          PATTERN("DtNet%P%NPdu")},
        {"<!NetPduClassBase!>",          BY_PARENT("DtNetPduHeader", "DtNet%P%QPdu")},
        {"<!NetPduClassBaseHeader!>",    BY_PARENT("<qx/packets/pduHeader.h>", "\"%Cnet%QPdu.h\"")},
        {"<!ObjectPduBaseClass!>",       BY_PARENT("DtStateMsg", "Dt%P%QPdu")},
        {"<!ObjectPduBaseClassHeader!>", BY_PARENT("<qx/stateMsg.h>", "\"%C%QPdu.h\"")},
        {"<!BaseDecoderClassName!>",     BY_PARENT("DtStateDecoder", "Dt%P%QDecoder")},
        {"<!BaseEncoderClassName!>",     BY_PARENT("DtStateEncoder", "Dt%P%QEncoder")},
        {"<!BaseDecoderClassHeader!>",   BY_PARENT("<qx/stateDecoder.h>", "\"%Cd%qDecoder.h\"")},
        {"<!BaseEncoderClassHeader!>",   BY_PARENT("<qx/stateEncoder.h>", "\"%Cd%qEncoder.h\"")},
        {"<!EnumsHeader!>",              [](const Writer&) { return enumsHeader(); }},
    };
    static const Table theTable(theRows);
    return theTable;
}

const DtClassFileWriter::DtTokens::Table& DtClassFileWriter::DtTokens::modules()
{
    static const Row theRows[] = {
        {"<!FedFileName!>", [](const Writer& w) { return w.myOmtProject.fomDefFiles().front().first; }},
        {"<!FomModule!>",   [](const Writer& w) { return w.myCurrentFomModule; }},
    };
    static const Table theTable(theRows, [](const Writer& w) { return !w.myOmtProject.fomDefFiles().empty(); });
    return theTable;
}

const DtClassFileWriter::DtTokens::Table& DtClassFileWriter::DtTokens::encoding()
{
    static const Row theRows[] = {
        {"<!AttributeEncoding!>",     OF_ATTRIBUTE(encodingOf(a))},
        {"<!AttributeWireEncoding!>", OF_ATTRIBUTE(valueFormOf(a).encoding)},
    };
    static const Table theTable(theRows, [](const Writer& w) { return w.myCurrentAttribute != nullptr; });
    return theTable;
}
// clang-format on

#undef PATTERN
#undef BY_PARENT
#undef OF_ATTRIBUTE

DtString DtClassFileWriter::DtTokens::fill(const Writer& w, const char* pattern)
{
    return fillPattern(pattern, {w.myRootName, w.myParentClassName, w.myClassName, w.myFullClassName, w.myFileStem});
}

DtString DtClassFileWriter::DtTokens::fillByParent(const Writer& w, const char* topPattern, const char* pattern)
{
    return fill(w, w.myParentClassName == "ObjectRoot" ? topPattern : pattern);
}

DtClassFileWriter::DtClassFileWriter(const DtString& fileName, const DtString& templateName)
    : DtFileWriter(fileName, templateName),
      myOriginalName(0),
      myBoundaryToken(DtTokens::boundary(), this),
      myAttributeTokens(DtTokens::attribute(), this),
      myClassTokens(DtTokens::classNames(), this),
      myModuleTokens(DtTokens::modules(), this),
      myEncodingToken(DtTokens::encoding(), this)
{
    myTokenChain.putAhead({&myBoundaryToken, &myAttributeTokens, &myClassTokens, &myModuleTokens, &myEncodingToken});
}

DtClassFileWriter::~DtClassFileWriter() = default;

void DtClassFileWriter::decodeFileLine(DtString& line)
{
    if (!myLongNamesAreNumbered)
        numberLongNames();
    DtFileWriter::decodeFileLine(line);
}

void DtClassFileWriter::writeMultipleTimes(const DtString& loopName, std::istream& stream)
{
    if (loopName == "IncludeFiles")
        writeIncludeFiles(stream);
    else if (loopName == "NamesakeIncludeFiles")
        writeNamesakeIncludeFiles(stream);
    else if (loopName == "Attributes")
        writeAttributes(stream);
    else if (loopName == "FomModules")
        writeFomModules(stream);
    else
        DtFileWriter::writeMultipleTimes(loopName, stream);
}

void DtClassFileWriter::setRootName(const DtString& name)
{
    myRootName = name;
    namesChanged();
    setClassName(name);
}

const DtString& DtClassFileWriter::rootName() const
{
    return myRootName;
}

void DtClassFileWriter::setPduKind(int kind)
{
    myPduKind = kind;
    namesChanged();
}

int DtClassFileWriter::pduKind() const
{
    return myPduKind;
}

void DtClassFileWriter::setClassName(const DtString& name)
{
    myClassName = name;
    namesChanged();
}

const DtString& DtClassFileWriter::className() const
{
    return myClassName;
}

void DtClassFileWriter::setParentClassName(const DtString& name)
{
    myParentClassName = name;
    namesChanged();
}

const DtString& DtClassFileWriter::parentClassName() const
{
    return myParentClassName;
}

void DtClassFileWriter::addAttribute(const DtAttribute& attribute)
{
    myAttributes.push_back(attribute);
}

const std::vector<DtAttribute>& DtClassFileWriter::attributeList() const
{
    return myAttributes;
}

void DtClassFileWriter::setOmtProject(const DtOmtProject& project)
{
    myOmtProject = project;
    myModuleTokens.clear();
}

const DtOmtProject& DtClassFileWriter::omtProject() const
{
    return myOmtProject;
}

DtString DtClassFileWriter::replaceFirstObjRootOccurance(const DtString& name) const
{
    return withoutRoot(name, "ObjectRoot.", "HLAobjectRoot.");
}

DtString DtClassFileWriter::replaceFirstIntRootOccurance(const DtString& name) const
{
    return withoutRoot(name, "InteractionRoot.", "HLAinteractionRoot.");
}

void DtClassFileWriter::setFullClassName(const DtString& name)
{
    myFullClassName = name;
    namesChanged();
}

void DtClassFileWriter::setOriginalName(const DtString& name)
{
    myOriginalName = name;
    namesChanged();
}

const DtString& DtClassFileWriter::originalName() const
{
    return myOriginalName;
}

void DtClassFileWriter::compileIncludeList()
{
    for (const DtAttribute& attribute : attributeList())
    {
        if (!attribute.isEnumeration() && !mapper().isKnownType(attribute.nonVectorType()))
            myIncludeFiles.push_back(includeNameOf(attribute.nonVectorType()));
    }
    myIncludeFiles.unique();
}

DtString DtClassFileWriter::identifierOf(const DtString& name)
{
    return identifier(name);
}

DtAccessorNames DtClassFileWriter::accessorNamesOf(const DtString& attribute, DtCCompatibleNames& names)
{
    return {lowerAttributeName(attribute, names), upperAttributeName(attribute, names)};
}

void DtClassFileWriter::setCurrentAttribute(const DtAttribute* attribute)
{
    myCurrentAttribute = attribute;
    myAttributeTokens.clear();
    myEncodingToken.clear();
    myLongNamesAreNumbered = false;
}

void DtClassFileWriter::namesChanged()
{
    myBoundaryToken.clear();
    myClassTokens.clear();
    myLongNamesAreNumbered = false;
}

DtString DtClassFileWriter::includeNameOf(const DtString& type)
{
    return DtFirstCharToLowerConditional(type.startsWith("Dt") ? withoutPrefix(type, "Dt") : type);
}

void DtClassFileWriter::writeIncludeFiles(std::istream& stream)
{
    if (myIncludeFiles.empty())
    {
        compileIncludeList();
        myIncludeFiles.unique();
    }
    writeIncludes(stream, myIncludeFiles);
}

// compileIncludeList() takes the types of namesakes for those of the toolkit.
void DtClassFileWriter::writeNamesakeIncludeFiles(std::istream& stream)
{
    const DtDatatypeClassNames& names = DtDatatypeClassNames::instance();
    std::list<DtString> includes;
    for (const DtAttribute& attribute : attributeList())
    {
        if (names.isNamesake(attribute.datatype()) && names.contains(attribute.datatype()))
            includes.push_back(names.fileStemOf(attribute.datatype()));
    }
    includes.unique();
    writeIncludes(stream, includes);
}

void DtClassFileWriter::writeIncludes(std::istream& stream, const std::list<DtString>& includes)
{
    const std::streampos start = stream.tellg();
    for (const DtString& include : includes)
    {
        setCurrentInclude(include);
        writeBodyFrom(stream, start);
    }
    setCurrentInclude(DtString());
}

void DtClassFileWriter::writeAttributes(std::istream& stream)
{
    const std::streampos start = stream.tellg();
    setAttributeCounter(0);
    for (std::size_t i = 0; i < myAttributes.size(); ++i) // a loop in the body may exchange the list
    {
        setCurrentAttribute(&myAttributes[i]);
        writeBodyFrom(stream, start);
        setAttributeCounter(myAttributeCounter + 1);
    }
    setCurrentAttribute(nullptr);
}

// The first module is the one that <!FedFileName!> names. The attribute counter goes on from where it stands.
void DtClassFileWriter::writeFomModules(std::istream& stream)
{
    const std::streampos start = stream.tellg();
    const std::vector<DtOmtProject::DtFilePair>& modules = myOmtProject.fomDefFiles();
    for (std::size_t i = 1; i < modules.size(); ++i)
    {
        if (modules[i].first == "HLAstandardMIM.xml")
            continue;
        myCurrentFomModule = modules[i].first;
        myModuleTokens.clear();
        writeBodyFrom(stream, start);
        setAttributeCounter(myAttributeCounter + 1);
    }
    myCurrentFomModule = DtString();
    myModuleTokens.clear();
}

void DtClassFileWriter::setCurrentInclude(const DtString& include)
{
    myCurrentInclude = include;
    namesChanged();
}

void DtClassFileWriter::setAttributeCounter(int counter)
{
    myAttributeCounter = counter;
    myAttributeTokens.clear();
}

bool DtClassFileWriter::hasLongNames() const
{
    const auto isLong = [](const DtString& name) { return name.length() > theSafeLength; };
    if (isLong(myCurrentInclude) || isLong(myClassName))
        return true;
    const DtAttribute* a = myCurrentAttribute;
    return a != nullptr &&
           (isLong(a->name()) || isLong(a->type()) || isLong(a->datatype()) || isLong(a->datatypeDatatype()));
}

// Long names get their numbers at the first line that is expanded with them, in the order of the tables, whether or not
// the line asks for them.
void DtClassFileWriter::numberLongNames()
{
    myLongNamesAreNumbered = true;
    if (!hasLongNames())
        return;
    if (myCurrentAttribute != nullptr)
        myAttributeTokens.workOutAll();
    myClassTokens.workOutAll();
}
