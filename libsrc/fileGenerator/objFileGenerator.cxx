#include "fileGenerator/objFileGenerator.h"

#include "fileGenerator/dpubWriter.h"
#include "fileGenerator/examplesCreator.h"
#include "fileGenerator/hobjDecoderHeaderWriter.h"
#include "fileGenerator/hobjDecoderSourceWriter.h"
#include "fileGenerator/hobjEncoderHeaderWriter.h"
#include "fileGenerator/hobjEncoderSourceWriter.h"
#include "fileGenerator/hpubWriter.h"
#include "fileGenerator/hrefListHeaderWriter.h"
#include "fileGenerator/hrefListSourceWriter.h"
#include "fileGenerator/hrefObjWriter.h"
#include "fileGenerator/progressMeter.h"
#include "fileGenerator/refListHeaderWriter.h"
#include "fileGenerator/refObjHeaderWriter.h"
#include "fileGenerator/srHeaderFileWriter.h"
#include "fileGenerator/valueTypeWalk.h"
#include "foundation/stringUtils.h"

namespace
{
constexpr const char* theSignature =
    "DtObjectFileGenerator::DtObjectFileGenerator(const DtString&, std::set<DtString>&, bool, bool, "
    "const DtOmtObject&, DtOmtProject)";

using Row = DtOutputRow<DtObjectFileGenerator, DtOmtObject>;

template <typename Writer>
constexpr auto make = makeWriter<Writer, DtOmtObject>;

constexpr DtWanted Always = DtWanted::Always;
constexpr DtWanted WithDis = DtWanted::WithDis;

// The first parts of the file names.
constexpr auto theEncoder = &DtObjectFileGenerator::encoderFileBaseName;
constexpr auto theDecoder = &DtObjectFileGenerator::decoderFileBaseName;
constexpr auto theState = &DtObjectFileGenerator::stateRepositoryFileBaseName;
constexpr auto thePublisher = &DtObjectFileGenerator::publisherFileBaseName;
constexpr auto theObject = &DtObjectFileGenerator::refObjFileBaseName;
constexpr auto theList = &DtObjectFileGenerator::refListFileBaseName;
constexpr auto theNetPdu = &DtObjectFileGenerator::netPduFileBaseName;
constexpr auto thePdu = &DtObjectFileGenerator::pduFileBaseName;

// The order is that of creation and of writing. With DIS, front headers over both protocols come first. The include
// that templates form for the PDU keeps the capital that its file name loses.
//   name, ending, template, writer, wanted
const Row theOutputs[] = {
    {theEncoder,   "HLA.h",   "hobjEncHeader.tlt",   make<DtHlaObjectEncoderHeaderWriter>,     Always },
    {theEncoder,   "HLA.cxx", "hobjEncSource.tlt",   make<DtHlaObjectEncoderSourceWriter>,     Always },
    {theState,     ".cxx",    "stateRepSource.tlt",  make<DtStateRepositoryFileWriter>,        Always },
    {theState,     ".h",      "stateRepHeader.tlt",  make<DtStateRepositoryFileWriter>,        Always },
    {thePublisher, "HLA.h",   "hpubHeader.tlt",      make<DtHlaPublisherFileWriter>,           Always },
    {thePublisher, "HLA.cxx", "hpubSource.tlt",      make<DtHlaPublisherFileWriter>,           Always },
    {theObject,    "HLA.h",   "hrefObjHeader.tlt",   make<DtHlaReflectedObjectFileWriter>,     Always },
    {theObject,    "HLA.cxx", "hrefObjSource.tlt",   make<DtHlaReflectedObjectFileWriter>,     Always },
    {theList,      "HLA.h",   "hrefListHeader.tlt",  make<DtHlaReflectedListHeaderFileWriter>, Always },
    {theList,      "HLA.cxx", "hrefListSource.tlt",  make<DtHlaReflectedListSourceFileWriter>, Always },
    {theDecoder,   "HLA.h",   "hobjDecHeader.tlt",   make<DtHlaObjectDecoderHeaderWriter>,     Always },
    {theDecoder,   "HLA.cxx", "hobjDecSource.tlt",   make<DtHlaObjectDecoderSourceWriter>,     Always },
    {theList,      ".h",      "refListHeader.tlt",   make<DtReflectedListHeaderFileWriter>,    WithDis},
    {thePublisher, ".h",      "pubHeader.tlt",       make<DtClassFileWriter>,                  WithDis},
    {theObject,    ".h",      "refObjHeader.tlt",    make<DtReflectedObjectHeaderFileWriter>,  WithDis},
    {thePublisher, "DIS.h",   "dpubHeader.tlt",      make<DtDisPublisherFileWriter>,           WithDis},
    {thePublisher, "DIS.cxx", "dpubSource.tlt",      make<DtDisPublisherFileWriter>,           WithDis},
    {theEncoder,   "DIS.h",   "dobjEncHeader.tlt",   make<DtClassFileWriter>,                  WithDis},
    {theEncoder,   "DIS.cxx", "dobjEncSource.tlt",   make<DtClassFileWriter>,                  WithDis},
    {theDecoder,   "DIS.h",   "dobjDecHeader.tlt",   make<DtClassFileWriter>,                  WithDis},
    {theDecoder,   "DIS.cxx", "dobjDecSource.tlt",   make<DtClassFileWriter>,                  WithDis},
    {theObject,    "DIS.h",   "drefObjHeader.tlt",   make<DtClassFileWriter>,                  WithDis},
    {theObject,    "DIS.cxx", "drefObjSource.tlt",   make<DtClassFileWriter>,                  WithDis},
    {theList,      "DIS.h",   "drefListHeader.tlt",  make<DtClassFileWriter>,                  WithDis},
    {theList,      "DIS.cxx", "drefListSource.tlt",  make<DtClassFileWriter>,                  WithDis},
    {thePdu,       ".h",      "objPduHeader.tlt",    make<DtClassFileWriter>,                  WithDis},
    {thePdu,       ".cxx",    "objPduSource.tlt",    make<DtClassFileWriter>,                  WithDis},
    {theNetPdu,    ".h",      "netObjPduHeader.tlt", make<DtClassFileWriter>,                  WithDis},
};
} // namespace

DtObjectFileGenerator::DtObjectFileGenerator(const DtString& name, std::set<DtString>& fileList, bool generateExamples,
                                             bool generateDis, const DtOmtObject& object, DtOmtProject project)
    : myGenerateDis(generateDis), myGenerateExamples(generateExamples), myOmtProject(project)
{
    const auto makeAll = [&]
    {
        createWriters(theOutputs, *this, name, object, DtSubject::objectClass(object.fullName()), generateDis,
                      fileList);
        if (myGenerateExamples)
            createExamples(name, object);
        initializeWriters(name, myOmtProject);
    };
    guardConstruction(theSignature, __FILE__, __LINE__, makeAll);
}

DtObjectFileGenerator::~DtObjectFileGenerator() = default;

int DtObjectFileGenerator::fileCount(bool generateDis)
{
    return countOutputs(theOutputs, generateDis);
}

void DtObjectFileGenerator::createExamples(const DtString& name, const DtOmtObject& object)
{
    myExamplesCreator = std::make_unique<DtExamplesCreator>(name, myOmtProject, object);
    myExamplesCreator->setGenerateDis(myGenerateDis);
    myExamplesCreator->setClassName(name);
    setExamples(myExamplesCreator.get());
}

void DtObjectFileGenerator::generateFiles()
{
    if (!runWriters() || !myGenerateExamples || myExamplesCreator == nullptr)
        return;
    // The label is there for objects only.
    DtProgressMeter::current()->setLabel(DtString("Generating examples for: ") + myExamplesCreator->name());
    myExamplesCreator->createObjectExamples();
}

void DtObjectFileGenerator::addAttribute(const DtString& name, const DtString& datatype, const DtString& cardinality)
{
    const DtAttribute attribute = addToWriters(name, datatype, cardinality);
    if (myGenerateExamples)
        myExamplesCreator->addAttribute(attribute);
}

void DtObjectFileGenerator::determineValueType(const DtString& datatype, DtString& cardinality, DtString& type)
{
    DtValueTypeWalk(DtValueTypeWalk::Kind::Object, cardinality, type).run(datatype);
}

DtString DtObjectFileGenerator::stateRepositoryFileBaseName(const DtString& name) const
{
    return DtFirstCharToLowerConditional(name) + "StateRepository";
}

DtString DtObjectFileGenerator::publisherFileBaseName(const DtString& name) const
{
    return DtFirstCharToLowerConditional(name) + "Publisher";
}

DtString DtObjectFileGenerator::refObjFileBaseName(const DtString& name) const
{
    return DtString("reflected") + name;
}

DtString DtObjectFileGenerator::refListFileBaseName(const DtString& name) const
{
    return DtString("reflected") + name + "List";
}

DtString DtObjectFileGenerator::encoderFileBaseName(const DtString& name) const
{
    return DtFirstCharToLowerConditional(name) + "Encoder";
}

DtString DtObjectFileGenerator::decoderFileBaseName(const DtString& name) const
{
    return DtFirstCharToLowerConditional(name) + "Decoder";
}

DtString DtObjectFileGenerator::pduFileBaseName(const DtString& name) const
{
    return DtFirstCharToLowerConditional(name) + "Pdu";
}

DtString DtObjectFileGenerator::netPduFileBaseName(const DtString& name) const
{
    return DtString("net") + name + "Pdu";
}
