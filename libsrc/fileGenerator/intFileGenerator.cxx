#include "fileGenerator/intFileGenerator.h"

#include "fileGenerator/dintHeaderFileWriter.h"
#include "fileGenerator/dintSourceFileWriter.h"
#include "fileGenerator/examplesCreator.h"
#include "fileGenerator/hintDecHeaderWriter.h"
#include "fileGenerator/hintDecSourceWriter.h"
#include "fileGenerator/hintEncHeaderWriter.h"
#include "fileGenerator/hintEncSourceWriter.h"
#include "fileGenerator/hintHeaderFileWriter.h"
#include "fileGenerator/hintSourceFileWriter.h"
#include "fileGenerator/intHeaderFileWriter.h"
#include "fileGenerator/intSourceFileWriter.h"
#include "fileGenerator/valueTypeWalk.h"
#include "foundation/stringUtils.h"

namespace
{
constexpr const char* theSignature =
    "DtInteractionFileGenerator::DtInteractionFileGenerator(const DtString&, std::set<DtString>&, bool, bool, "
    "const DtOmtInteraction&, DtOmtProject)";

using Row = DtOutputRow<DtInteractionFileGenerator, DtOmtInteraction>;

template <typename Writer>
constexpr auto make = makeWriter<Writer, DtOmtInteraction>;

constexpr DtWanted Always = DtWanted::Always;
constexpr DtWanted WithDis = DtWanted::WithDis;

// The first parts of the file names.
constexpr auto theInteraction = &DtInteractionFileGenerator::interactionFileBaseName;
constexpr auto theEncoder = &DtInteractionFileGenerator::interEncoderFileBaseName;
constexpr auto theDecoder = &DtInteractionFileGenerator::interDecoderFileBaseName;

// The order is that of creation and of writing.
//   name, ending, template, writer, wanted
const Row theOutputs[] = {
    {theInteraction, "HLA.h",   "hinterHeader.tlt",  make<DtHlaInteractionHeaderFileWriter>,    Always },
    {theInteraction, "HLA.cxx", "hinterSource.tlt",  make<DtHlaInteractionSourceFileWriter>,    Always },
    {theInteraction, ".h",      "intHeader.tlt",     make<DtInteractionHeaderFileWriter>,       WithDis},
    {theInteraction, ".cxx",    "intSource.tlt",     make<DtInteractionSourceFileWriter>,       WithDis},
    {theInteraction, "DIS.h",   "dinterHeader.tlt",  make<DtDisInteractionHeaderFileWriter>,    WithDis},
    {theInteraction, "DIS.cxx", "dinterSource.tlt",  make<DtDisInteractionSourceFileWriter>,    WithDis},
    {theEncoder,     "HLA.h",   "hintEncHeader.tlt", make<DtHlaInteractionEncoderHeaderWriter>, Always },
    {theEncoder,     "HLA.cxx", "hintEncSource.tlt", make<DtHlaInteractionEncoderSourceWriter>, Always },
    {theDecoder,     "HLA.h",   "hintDecHeader.tlt", make<DtHlaInteractionDecoderHeaderWriter>, Always },
    {theDecoder,     "HLA.cxx", "hintDecSource.tlt", make<DtHlaInteractionDecoderSourceWriter>, Always },
};
} // namespace

DtInteractionFileGenerator::DtInteractionFileGenerator(const DtString& name, std::set<DtString>& fileList,
                                                       bool generateExamples, bool generateDis,
                                                       const DtOmtInteraction& interaction, DtOmtProject project)
    : myGenerateExamples(generateExamples), myGenerateDis(generateDis), myOmtProject(project)
{
    const auto makeAll = [&]
    {
        createWriters(theOutputs, *this, name, interaction, DtSubject::interactionClass(interaction.fullName()),
                      myGenerateDis, fileList);
        initializeWriters(name, myOmtProject);
        // The examples of an interaction are made for HLA only, whatever else is: nothing tells them of DIS.
        if (myGenerateExamples)
            myExamplesCreator = std::make_unique<DtExamplesCreator>(name, myOmtProject, interaction);
        setExamples(myExamplesCreator.get());
    };
    guardConstruction(theSignature, __FILE__, __LINE__, makeAll);
}

DtInteractionFileGenerator::~DtInteractionFileGenerator() = default;

int DtInteractionFileGenerator::fileCount(bool generateDis)
{
    return countOutputs(theOutputs, generateDis);
}

void DtInteractionFileGenerator::generateFiles()
{
    if (runWriters() && myGenerateExamples && myExamplesCreator != nullptr)
        myExamplesCreator->createInteractionExamples();
}

void DtInteractionFileGenerator::addAttribute(const DtString& name, const DtString& datatype,
                                              const DtString& cardinality)
{
    const DtAttribute attribute = addToWriters(name, datatype, cardinality);
    if (myGenerateExamples)
        myExamplesCreator->addAttribute(attribute);
}

void DtInteractionFileGenerator::determineValueType(const DtString& datatype, DtString& cardinality, DtString& type)
{
    DtValueTypeWalk(DtValueTypeWalk::Kind::Interaction, cardinality, type).run(datatype);
}

DtString DtInteractionFileGenerator::interactionFileBaseName(const DtString& name) const
{
    return DtFirstCharToLowerConditional(name);
}

DtString DtInteractionFileGenerator::interEncoderFileBaseName(const DtString& name) const
{
    return DtFirstCharToLowerConditional(name) + "Encoder";
}

DtString DtInteractionFileGenerator::interDecoderFileBaseName(const DtString& name) const
{
    return DtFirstCharToLowerConditional(name) + "Decoder";
}
