#include "fileGenerator/classFileWriter.h"

#include "fileGenerator/cCompatibleName.h"
#include "fileGenerator/commentText.h"
#include "fileGenerator/dataTypeMapper.h"
#include "fileGenerator/datatypeClassNames.h"
#include "fileGenerator/literalText.h"
#include "fileGenerator/memberTypes.h"
#include "fileGenerator/namePattern.h"
#include "fileGenerator/numberForm.h"
#include "fileGenerator/settings.h"
#include "fileGenerator/toolkitLayouts.h"
#include "fileGenerator/valueForm.h"
#include "foundation/perRun.h"
#include "foundation/stringUtils.h"

#include <algorithm>
#include <set>
#include <string_view>

namespace
{

// The numbers of long names, which all writers of classes share.
DtCCompatibleNames& sharedNames()
{
    return DtPerRun<DtCCompatibleNames, DtClassFileWriter>();
}

// No identifier form of a name this short is over the limit of 100 characters: a character becomes two at most, and a
// keyword gets three more in front.
const unsigned int theSafeLength = 48;

const DtDataTypeMapper& mapper()
{
    return *DtDataTypeMapper::instance();
}

DtString identifier(const DtString& text)
{
    return sharedNames().MakeCCompatibleString(text);
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

DtString lowerAttributeName(const DtString& name, DtCCompatibleNames& names = sharedNames())
{
    return names.MakeCCompatibleString(isReservedName(name) ? "the" + DtFirstCharToUpper(name)
                                                            : DtFirstCharToLowerConditional(name));
}

DtString upperAttributeName(const DtString& name, DtCCompatibleNames& names = sharedNames())
{
    return names.MakeCCompatibleString((isReservedName(name) ? "The" : "") + DtFirstCharToUpper(name));
}

bool isString(const DtAttribute& attribute)
{
    return attribute.netType() == "DtString" || attribute.netType() == "DtGlobalObjectDesignator";
}

DtValueForm valueFormOf(const DtAttribute& attribute)
{
    return valueFormOf(attribute.datatype(), encodingOf(attribute.datatype(), attribute.encoding()),
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

// A class of one number, made for a simple datatype or for a representation.
bool isNumberClass(const DtString& datatype)
{
    return !mapper().repOfSimpleType(datatype).isEmpty() || mapper().basicTypeInfoMap().count(datatype) != 0;
}

// Whether a setter gains by a value that it may take over: of texts, octets, structures and arrays.
bool isMovable(const DtAttribute& attribute)
{
    if (attribute.hasPlusCardinality() || attribute.numericalCardinality() > 1)
        return true;
    if (attribute.isEnumeration())
        return false;
    const DtString& datatype = attribute.datatype();
    return isString(attribute) || hasNoClass(attribute) || attribute.type().startsWith("DtHlaLogicalTime") ||
           (DtDatatypeClassNames::instance().contains(datatype) && !isNumberClass(datatype));
}

// Whether the attribute's type is one of the enumerations header. The mapper also knows enumerations of earlier runs,
// and a type of the toolkit can bear the name of one. A member that is called like its datatype comes with the name of
// the type in place of that of the datatype.
bool isOfEnumerationsHeader(const DtAttribute& attribute)
{
    const DtString& datatype = attribute.datatype();
    return DtDatatypeClassNames::instance().isGeneratedEnumeration(datatype) &&
           (mapper().quorvexType(datatype) == attribute.type() || datatype == attribute.type());
}

// The C++ name of the attribute's type. That of an enumeration is never shortened: the enumerations header is written
// ahead of the classes and takes no number of theirs.
DtString typeIdentifier(const DtAttribute& attribute)
{
    const DtString& datatype = attribute.datatype();
    const DtString& name = DtDatatypeClassNames::instance().identifierOf(datatype, attribute.type());
    return isOfEnumerationsHeader(attribute) ? DtCCompatibleNames::wholeIdentifier(name) : identifier(name);
}

bool isVector(const DtAttribute& attribute)
{
    return attribute.hasPlusCardinality() || attribute.numericalCardinality() != 1 ||
           attribute.nonVectorType() != withoutVector(attribute.type());
}

// Whether the attribute's type is the class that the run makes of its datatype.
bool isOfDatatypeClass(const DtAttribute& attribute)
{
    const DtString& className = DtDatatypeClassNames::instance().className(attribute.datatype());
    return !className.isEmpty() && className == attribute.type();
}

// The form of a value as generated code has it. Classes of the run and enumerations know theirs. Where the layout is
// not known, the form is made of the model's names, which are asked for in any case: long names get their numbers by
// that.
DtString wireFormOf(const DtAttribute& attribute)
{
    const DtString datatype = identifier(attribute.datatype());
    const DtString representation = identifier(attribute.datatypeDatatype());
    const bool isOne = !isVector(attribute);
    if (isOne && (isOfDatatypeClass(attribute) || isOfEnumerationsHeader(attribute)))
        return "DtWireForm()";
    const DtValueForm form = valueFormOf(attribute);
    const DtString call = wireFormCall(form, toolkitValueOf(withoutVector(attribute.type())), isOne);
    return call.isEmpty() ? wireFormOfNames(datatype, representation, form) : call;
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

// Rows run top to bottom, and a later row sees what an earlier one put in: their order shows in the output. The number
// of the attribute stands between two tables that ask the attribute itself, so it has a table of its own.

// clang-format off
namespace
{
const DtTokenTable<DtAttribute>& sizeTable()
{
    static const DtTokenRow<DtAttribute> theRows[] = {
        {"<!AttributeLocalType!>",                [](const DtAttribute& a) { return withoutVector(a.type()); }},
        {"<!AttributeSize!>",                     [](const DtAttribute& a) { return decimal(mapper().sizeFromDataTypeName(tableName(a))); }},
        {"<!AttributeBoundary!>",                 [](const DtAttribute& a) { return decimal(mapper().boundaryFromDataTypeName(tableName(a))); }},
    };
    static const DtTokenTable<DtAttribute> theTable(theRows);
    return theTable;
}

const DtTokenTable<std::int32_t>& numberTable()
{
    static const DtTokenRow<std::int32_t> theRows[] = {
        {"<!NumberOfAttribute!>", [](const std::int32_t& counter) { return DtString(counter); }},
    };
    static const DtTokenTable<std::int32_t> theTable(theRows);
    return theTable;
}

const DtTokenTable<DtAttribute>& attributeTable()
{
    static const DtTokenRow<DtAttribute> theRows[] = {
        {"<!Prefix!>",                            [](const DtAttribute&) { return DtSettings::instance().cpp.prefixName; }},
        {"<!AttributeLocalNetType!>",             [](const DtAttribute& a) { return withoutVector(a.netType()); }},
        {"<!AttributeCastNetType!>",              [](const DtAttribute& a) { return DtReplaceSubstring(a.netType(), "DtNet", "Dt"); }},
        {"<!AttributeQuorvexNetType!>",           [](const DtAttribute& a) -> DtString { return mapper().isQuorvexNetType(a.netType()) ? a.netType() : DtString(); }},
        {"<!attributeName!>",                     [](const DtAttribute& a) { return lowerAttributeName(a.name()); }},
        {"<!AttributeName!>",                     [](const DtAttribute& a) { return upperAttributeName(a.name()); }},
        {"<!ExactAttributeName!>",                [](const DtAttribute& a) { return identifier(a.name()); }},
        {"<!AttributeNetType!>",                  [](const DtAttribute& a) { return a.netType(); }},
        {"<!AttributeNetSizeString!>",            [](const DtAttribute& a) { return a.netSizeString(); }},
        {"<!AttributeDatatype!>",                 [](const DtAttribute& a) { return identifier(a.type()); }},
        {"<!AttributeFomDatatype!>",              [](const DtAttribute& a) { return identifier(a.datatype()); }},
        {"<!AttributeDatatypeDatatype!>",         [](const DtAttribute& a) { return identifier(a.datatypeDatatype()); }},
        {"<!IsFloat!>",                           [](const DtAttribute& a) -> DtString { return a.isFloat() ? "Float" : ""; }},
        {"<!AttributeNumCardinality!>",           [](const DtAttribute& a) { return DtString(a.numericalCardinality()); }},
        {"<!AttributeInitialValueFromLocalType!>", [](const DtAttribute& a) { return mapper().initialValueFromType(withoutVector(a.type())); }},
        {"<!AttributeSampleValueFromType!>",      [](const DtAttribute& a) { return mapper().sampleValueFromType(a.type(), a.name()); }},
        {"<!AttributeInitialValueFromType!>",     [](const DtAttribute& a) { return mapper().initialValueFromType(a.type()); }},
        {"<!AttributeEnumerationSize!>",          [](const DtAttribute& a) { return mapper().enumerationSize(a.type()); }},
        {"<!EnumerationRep!>",                    [](const DtAttribute& a) { return mapper().repForEnumName(tableName(a)); }},
        {"<!enumerationRep!>",                    [](const DtAttribute& a) { return DtFirstCharToLowerConditional(mapper().repForEnumName(tableName(a))); }},
        {"<!AttributeIsVariableSize!>",           [](const DtAttribute& a) { return flag(mapper().isVariableSizeNetType(a.netType())); }},
        {"<!AttributeIsNotEncodeable!>",          [](const DtAttribute& a) { return flag(mapper().isNonEncodeableDataType(a.type())); }},
        {"<!AttributeHasNoCoding!>",              [](const DtAttribute& a) { return flag(mapper().refusesCoding(a.type())); }},
        {"<!AttributeHasPlusCardinality!>",       [](const DtAttribute& a) { return flag(a.hasPlusCardinality()); }},
        {"<!AttributeNetIsVariableSize!>",        [](const DtAttribute& a) { return flag(mapper().isVariableSizeNetType(a.netType())); }}, // both are in use
        {"<!AttributeIsEnumeration!>",            [](const DtAttribute& a) { return flag(a.isEnumeration()); }},
        {"<!AttributeIsString!>",                 [](const DtAttribute& a) { return flag(isString(a)); }},
        {"<!AttributeIsVariant!>",                [](const DtAttribute& a) { return flag(a.isVariant()); }},
        {"<!NonVectorDatatype!>",                 [](const DtAttribute& a) { return a.nonVectorType(); }},
        {"<!AttributeElementCount!>",             [](const DtAttribute& a) { return DtString(valueFormOf(a).count); }},
        {"<!AttributeOctets!>",                   [](const DtAttribute& a) { return DtString(valueFormOf(a).number.octets); }},
        {"<!AttributeIsLittleEndian!>",           [](const DtAttribute& a) -> DtString { return valueFormOf(a).number.isLittleEndian ? "1" : "0"; }},
        {"<!AttributeHasNoClass!>",               [](const DtAttribute& a) { return flag(hasNoClass(a)); }},
        {"<!AttributeIsMovable!>",                [](const DtAttribute& a) { return flag(isMovable(a)); }},
        {"<!AttributeTypeIdentifier!>",           [](const DtAttribute& a) { return typeIdentifier(a); }},
        {"<!AttributeIsNamesake!>",               [](const DtAttribute& a) { return flag(DtDatatypeClassNames::instance().isNamesake(a.datatype())); }},
        {"<!AttributeLayout!>",                   [](const DtAttribute& a) { return valueFormOf(a).layout; }},
        {"<!AttributeWireForm!>",                 [](const DtAttribute& a) { return wireFormOf(a); }},
        {"<!AttributeText!>",                     [](const DtAttribute& a) { return literalText(a.name()); }},
        {"<!AttributeDocumentation!>",            [](const DtAttribute& a) { return DtCommentText(a.documentation(), 4); }},
    };
    static const DtTokenTable<DtAttribute> theTable(theRows);
    return theTable;
}

const DtTokenTable<DtAttribute>& encodingTable()
{
    static const DtTokenRow<DtAttribute> theRows[] = {
        {"<!AttributeEncoding!>",     [](const DtAttribute& a) { return encodingOf(a.datatype(), a.encoding()); }},
        {"<!AttributeWireEncoding!>", [](const DtAttribute& a) { return valueFormOf(a).encoding; }},
    };
    static const DtTokenTable<DtAttribute> theTable(theRows);
    return theTable;
}
} // namespace

struct DtClassFileWriter::DtTokens
{
    using Writer = DtClassFileWriter;
    using Row = DtTokenRow<DtClassFileWriter>;
    using Table = DtTokenTable<DtClassFileWriter>;

    static const Table& boundary();
    static const Table& modules();
};

const DtClassFileWriter::DtTokens::Table& DtClassFileWriter::DtTokens::boundary()
{
    static const Row theRows[] = {
        {"<!OctetBoundary!>", [](const Writer& w) { return decimal(mapper().boundaryFromDataTypeName(w.myOriginalName)); }},
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

// One name: a name pattern, with another one under "ObjectRoot" where there is one, or a function that asks the writer.
struct DtClassFileWriter::DtNameRow
{
    using Value = DtString (*)(const DtClassFileWriter& writer);

    DtNameRow(const char* name, const char* text, const char* topText = nullptr)
        : token(name), pattern(text), topPattern(topText)
    {
    }
    DtNameRow(const char* name, Value function) : token(name), value(function) {}

    const char* token;
    const char* pattern = nullptr;
    const char* topPattern = nullptr;
    Value value = nullptr;
};

// Header tokens carry no ".h" but for the two that show it, and no quotes but for those of base classes. No writer makes
// a file with the letter "d" in front of the parent's name, as the last two patterns give it.
const std::vector<DtClassFileWriter::DtNameRow>& DtClassFileWriter::DtNameTokens::rows()
{
    using Writer = DtClassFileWriter;
    static const std::vector<DtNameRow> theRows = {
        {"<!FileToInclude!>",            [](const Writer& w) { return identifier(w.myCurrentInclude) + ".h"; }},
        {"<!IncludeIsGenerated!>",       [](const Writer& w) { return flag(DtDatatypeClassNames::instance().isFileStem(identifier(w.myCurrentInclude))); }},
        {"<!ClassName!>",                [](const Writer& w) { return identifier(w.myClassName); }},
        {"<!NonDtClassName!>",           [](const Writer& w) { return bareClassName(w.myClassName); }},
        {"<!FileBase!>",                 "%F"},
        {"<!FileBaseHeader!>",           "%C%F.h"},
        {"<!BaseClassName!>",            [](const Writer& w) { return w.myBaseClassName; }},
        {"<!BaseClassHeader!>",          [](const Writer& w) { return w.myBaseClassHeader; }},
        {"<!FullClassName!>",            "%U"},
        {"<!SrHeader!>",                 "%C%nStateRepository"},
        {"<!SrMethod!>",                 "%nStateRep"},
        {"<!ShortSrMethod!>",            [](const Writer& w) { return DtString(w.fill("%n").stdString().substr(0, 1)) + "sr"; }},
        {"<!StateRepName!>",             "Dt%P%NStateRepository"},
        {"<!HEncHeader!>",               "%C%nEncoderHLA"},
        {"<!HDecHeader!>",               "%C%nDecoderHLA"},
        {"<!DEncHeader!>",               "%C%nEncoderDIS"},
        {"<!DDecHeader!>",               "%C%nDecoderDIS"},
        {"<!HlaPubHeader!>",             "%C%nPublisherHLA"},
        {"<!PubHeader!>",                "%C%nPublisher"},
        {"<!DisPubHeader!>",             "%C%nPublisherDIS"},
        {"<!PduHeader!>",                "%C%NPdu"},
        {"<!NetPduHeader!>",             "%Cnet%NPdu"},
        {"<!PduClassName!>",             "Dt%P%NPdu"},
        {"<!PublisherClassName!>",       "Dt%P%NPublisher"},
        {"<!DecoderClassName!>",         "Dt%P%NDecoder"},
        {"<!EncoderClassName!>",         "Dt%P%NEncoder"},
        {"<!InteractionClassName!>",     "Dt%P%N"},
        {"<!PduInteractionClassName!>",  "Dt%P%NPdu"},
        {"<!InteractionHeader!>",        "%C%nHLA"},
        {"<!ClassCbName!>",              "%KCb"},
        {"<!PduKind!>",                  [](const Writer& w) { return DtString(w.myPduKind); }},
        {"<!ReflectedListClassName!>",   "DtReflected%P%NList"},
        {"<!ReflectedObjectClassName!>", "DtReflected%P%N"},
        {"<!ReflectedListHeader!>",      "%Creflected%NList"},
        {"<!HReflectedListHeader!>",     "%Creflected%NListHLA"},
        {"<!DReflectedListHeader!>",     "%Creflected%NListDIS"},
        {"<!ReflectedObjectHeader!>",    "%Creflected%N"},
        {"<!HReflectedObjectHeader!>",   "%Creflected%NHLA"},
        {"<!DReflectedObjectHeader!>",   "%Creflected%NDIS"},
        {"<!ClassCallbackFunction!>",    "Dt%P%NCallbackFunction"},
        {"<!NetPduClassName!>",          "DtNet%P%NPdu"},
        {"<!NetPduClassBase!>",          "DtNet%P%QPdu", "DtNetPduHeader"},
        {"<!NetPduClassBaseHeader!>",    "\"%Cnet%QPdu.h\"", "<qx/packets/pduHeader.h>"},
        {"<!ObjectPduBaseClass!>",       "Dt%P%QPdu", "DtStateMsg"},
        {"<!ObjectPduBaseClassHeader!>", "\"%C%QPdu.h\"", "<qx/stateMsg.h>"},
        {"<!BaseDecoderClassName!>",     "Dt%P%QDecoder", "DtStateDecoder"},
        {"<!BaseEncoderClassName!>",     "Dt%P%QEncoder", "DtStateEncoder"},
        {"<!BaseDecoderClassHeader!>",   "\"%Cd%qDecoder.h\"", "<qx/stateDecoder.h>"},
        {"<!BaseEncoderClassHeader!>",   "\"%Cd%qEncoder.h\"", "<qx/stateEncoder.h>"},
        {"<!EnumsHeader!>",              [](const Writer&) { return enumsHeader(); }},
        {"<!ClassDocumentation!>",       [](const Writer& w) { return DtCommentText(w.myDocumentation, 0); }},
    };
    return theRows;
}
// clang-format on

const DtTokenIndex& DtClassFileWriter::DtNameTokens::rowIndex()
{
    static const DtTokenIndex theIndex = []
    {
        std::vector<std::string_view> tokens;
        for (const DtNameRow& row : rows())
            tokens.emplace_back(row.token);
        return DtTokenIndex(std::move(tokens));
    }();
    return theIndex;
}

DtString DtClassFileWriter::DtNameTokens::workOut(int row) const
{
    const DtNameRow& found = rows()[static_cast<std::size_t>(row)];
    if (found.value != nullptr)
        return found.value(myWriter);
    const bool isTop = found.topPattern != nullptr && myWriter.myParentClassName == "ObjectRoot";
    return myWriter.fill(isTop ? found.topPattern : found.pattern);
}

DtString DtClassFileWriter::fill(const char* pattern) const
{
    return fillPattern(pattern, {myRootName, myParentClassName, myClassName, myFullClassName, myFileStem});
}

DtClassFileWriter::DtClassFileWriter(const DtString& fileName, const DtString& templateName)
    : DtFileWriter(fileName, templateName),
      myOriginalName(0),
      myBoundaryToken(DtTokens::boundary(), this),
      mySizeTokens(sizeTable()),
      myNumberToken(numberTable()),
      myAttributeTokens(attributeTable()),
      myNameTokens(*this),
      myModuleTokens(DtTokens::modules(), this),
      myEncodingTokens(encodingTable())
{
    myTokenChain.putAhead({&myBoundaryToken, &mySizeTokens, &myNumberToken, &myAttributeTokens, &myNameTokens,
                           &myModuleTokens, &myEncodingTokens});
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
    else if (loopName == "Enumerations")
        writeEnumerations(stream);
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
    if (myAttributes.empty())
        myAttributes.reserve(16); // enough for most classes: memory is taken once, not again and again
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

void DtClassFileWriter::setDocumentation(const DtString& text)
{
    myDocumentation = text;
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

DtCCompatibleNames DtClassFileWriter::namesSoFar()
{
    return sharedNames();
}

DtAccessorNames DtClassFileWriter::accessorNamesOf(const DtString& attribute, DtCCompatibleNames& names)
{
    return {lowerAttributeName(attribute, names), upperAttributeName(attribute, names)};
}

void DtClassFileWriter::setCurrentAttribute(const DtAttribute* attribute)
{
    auto* const common = attribute != nullptr ? static_cast<DtAttributeValues*>(attribute->notes()) : nullptr;
    mySizeTokens.setContext(attribute, common != nullptr ? &common->sizes : nullptr);
    myNumberToken.setContext(attribute != nullptr ? &myAttributeCounter : nullptr);
    myAttributeTokens.setContext(attribute, common != nullptr ? &common->attribute : nullptr);
    myEncodingTokens.setContext(attribute, common != nullptr ? &common->encodings : nullptr);
    myLongNamesAreNumbered = false;
}

void DtClassFileWriter::namesChanged()
{
    myBoundaryToken.clear();
    myNameTokens.clear();
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

std::vector<const DtAttribute*> DtClassFileWriter::typedMembers() const
{
    std::vector<const DtAttribute*> members;
    for (const DtAttribute& attribute : myAttributes)
        members.push_back(&attribute);
    return members;
}

// The attribute that comes first stands for its enumeration.
void DtClassFileWriter::writeEnumerations(std::istream& stream)
{
    const std::streampos start = stream.tellg();
    std::set<DtString> written;
    for (const DtAttribute* attribute : typedMembers())
    {
        if (!isOfEnumerationsHeader(*attribute) || !written.insert(typeIdentifier(*attribute)).second)
            continue;
        setCurrentAttribute(attribute);
        writeBodyFrom(stream, start);
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
    myNumberToken.clear();
}

bool DtClassFileWriter::hasLongNames() const
{
    const auto isLong = [](const DtString& name) { return name.length() > theSafeLength; };
    if (isLong(myCurrentInclude) || isLong(myClassName))
        return true;
    const DtAttribute* a = currentAttribute();
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
    if (currentAttribute() != nullptr)
    {
        mySizeTokens.workOutAll();
        myAttributeTokens.workOutAll();
    }
    myNameTokens.workOutAll();
}
