#ifndef TESTS_GENERATOR_FIXTURE_H
#define TESTS_GENERATOR_FIXTURE_H

#include "testSupport.h"

#include "fileGenerator/dataTypeMapper.h"
#include "fileGenerator/datatypeClassNames.h"
#include "fileGenerator/fileWriter.h"
#include "fileGenerator/omtEnvWriter.h"
#include "fileGenerator/qtProgressMeter.h"
#include "foundation/restored.h"
#include "omtReader/omtTree.h"

#include <QtCore/QDirIterator>
#include <QtCore/QTemporaryDir>
#include <QtWidgets/QApplication>

// What generation reads from its surroundings, in a scratch directory and put back afterwards: a working directory
// beside a directory of templates, an output directory, the class-wide settings, the mapper's mappings and the meter.
class DtGeneratorFixture
{
public:
    DtGeneratorFixture() : myInBin(binDirectory())
    {
        DtFileWriter::setOutputDirectory(qPrintable(myScratch.path() + "/out/"));
        DtFileWriter::setExportMacroName("DT_DLL_MODEL");
        DtOMTEnvWriter::setPrefixName("");
        DtOMTEnvWriter::setIncludeName("");
        DtOMTEnvWriter::setFomDefinitionFileName("model.xml");
        DtOMTEnvWriter::setBaseName("model.xml");
        DtDataTypeMapper::instance()->clearMappings();
        DtDatatypeClassNames::instance().clear();
        startMeter();
    }
    ~DtGeneratorFixture()
    {
        DtQtProgressMeter::instance()->setIsCancelled(false);
        DtQtProgressMeter::instance()->reset();
        DtDatatypeClassNames::instance().clear();
        DtDataTypeMapper::instance()->clearMappings();
    }
    DtGeneratorFixture(const DtGeneratorFixture&) = delete;
    DtGeneratorFixture& operator=(const DtGeneratorFixture&) = delete;

    void startMeter() const
    {
        DtQtProgressMeter::instance()->init(qApp, nullptr);
        DtQtProgressMeter::instance()->setTotalMeasure(100);
    }
    void writeTemplate(const QString& name, const QByteArray& text) const
    {
        writeTextFile(myScratch.path() + "/data/templates/" + name, text);
    }
    QString outputPath(const QString& name) const { return myScratch.path() + "/out/" + name; }
    bool hasOutput(const QString& name) const { return QFile::exists(outputPath(name)); }
    QString output(const QString& name) const { return QString::fromUtf8(readTextFile(outputPath(name))); }
    // All files below the output directory, sorted, with their paths from there.
    QStringList outputs() const
    {
        QStringList names;
        const QDir directory(myScratch.path() + "/out");
        for (QDirIterator it(directory.path(), QDir::Files, QDirIterator::Subdirectories); it.hasNext();)
            names += directory.relativeFilePath(it.next());
        names.sort();
        return names;
    }
    QString scratch(const QString& name) const { return myScratch.path() + '/' + name; }

private:
    QString binDirectory()
    {
        QDir().mkpath(myScratch.path() + "/bin");
        QDir().mkpath(myScratch.path() + "/data/templates/subTemplates");
        return myScratch.path() + "/bin";
    }

    QTemporaryDir myScratch;
    const DtRestored<DtSettings> mySettings{DtSettings::instance()};
    DtInDirectory myInBin;
};

// A model in memory, filled piece by piece. Classes are given by their full names, parents first.
class DtTestModel
{
public:
    DtTestModel()
    {
        auto* objectRoot = new DtObjectClassFedNode;
        objectRoot->setName("HLAobjectRoot");
        myTree.addObjectClassNode(objectRoot);
        myTree.setObjectClassRoot(objectRoot);
        auto* interactionRoot = new DtInteractionClassFedNode;
        interactionRoot->setName("HLAinteractionRoot");
        myTree.addInteractionClassNode(interactionRoot);
        myTree.setInteractionClassRoot(interactionRoot);
    }

    DtOMTTree* tree() { return &myTree; }

    void addObject(const DtString& fullName)
    {
        auto* node = new DtObjectClassFedNode;
        node->setName(lastPart(fullName));
        myTree.addObjectClassNode(node);
        myTree.getObjectClassNode(parentOf(fullName))->addChildObject(node);
    }
    void addInteraction(const DtString& fullName)
    {
        auto* node = new DtInteractionClassFedNode;
        node->setName(lastPart(fullName));
        myTree.addInteractionClassNode(node);
        myTree.getInteractionClassNode(parentOf(fullName))->addChildInteraction(node);
    }
    void addAttribute(const DtString& owner, const DtString& name, const DtString& datatype,
                      const DtString& cardinality = "1")
    {
        myTree.getObjectClassNode(owner)->addAttribute(makeMember<DtAttributeFedNode>(name, datatype, cardinality));
    }
    void addParameter(const DtString& owner, const DtString& name, const DtString& datatype,
                      const DtString& cardinality = "1")
    {
        myTree.getInteractionClassNode(owner)->addParameter(
            makeMember<DtParameterFedNode>(name, datatype, cardinality));
    }
    void addBasic(const DtString& name, const DtString& size)
    {
        auto* node = new DtBasicDataRepresentationNode;
        node->setName(name);
        node->setSize(size);
        node->setEndian("Big");
        myTree.addBasicDataRepresentationNode(node);
    }
    void addSimple(const DtString& name, const DtString& representation)
    {
        auto* node = new DtSimpleDatatypeNode;
        node->setName(name);
        node->setRepresentation(representation);
        myTree.addSimpleDatatypeNode(node);
    }
    void addArray(const DtString& name, const DtString& datatype, const DtString& cardinality = "Dynamic",
                  const DtString& encoding = "HLAvariableArray")
    {
        auto* node = new DtArrayDatatypeNode;
        node->setName(name);
        node->setDatatype(datatype);
        node->setCardinality(cardinality);
        node->setEncoding(encoding);
        myTree.addArrayDatatypeNode(node);
    }
    void addEnumeration(const DtString& name, const DtString& representation,
                        const std::vector<std::pair<DtString, int>>& values)
    {
        auto* node = new DtEnumeratedDatatypeNode;
        node->setName(name);
        node->setRepresentation(representation);
        for (const auto& [text, number] : values)
        {
            auto* value = new DtEnumerationNode;
            value->setEnum(text);
            value->setNumber(number);
            node->addEnumerationNode(value);
        }
        myTree.addEnumeratedDatatypeNode(node);
    }
    void addFixed(const DtString& name, const std::vector<std::pair<DtString, DtString>>& fields)
    {
        auto* node = new DtFixedDatatypeNode;
        node->setName(name);
        for (const auto& [field, datatype] : fields)
            node->addComponentNode(makeComponent<DtFieldComponentNode>(field, datatype));
        myTree.addFixedDatatypeNode(node);
    }
    void addVariant(const DtString& name, const DtString& discriminant, const DtString& datatype,
                    const std::vector<std::pair<DtString, DtString>>& alternatives)
    {
        auto* node = new DtVariantDatatypeNode;
        node->setName(name);
        node->setDiscriminant(discriminant);
        node->setDatatype(datatype);
        for (const auto& [alternative, alternativeType] : alternatives)
        {
            auto* component = makeComponent<DtAlternativeComponentNode>(alternative, alternativeType);
            component->setEnumerator(alternative + "Kind");
            node->addComponentNode(component);
        }
        myTree.addVariantDatatypeNode(node);
    }
    DtComplexDatatypeNode* addComplex(const DtString& name)
    {
        auto* node = new DtComplexDatatypeNode;
        node->setName(name);
        myTree.addComplexDatatypeNode(node);
        return node;
    }
    static DtComplexComponentNode* addComponent(DtComplexDatatypeNode* complex, const DtString& name,
                                                const DtString& datatype, const DtString& cardinality)
    {
        auto* component = makeComponent<DtComplexComponentNode>(name, datatype);
        component->setCardinality(cardinality);
        complex->addComponentNode(component);
        return component;
    }

private:
    static DtString lastPart(DtString fullName)
    {
        fullName.snipFrontToLast('.');
        return fullName;
    }
    static DtString parentOf(DtString fullName)
    {
        fullName.snipBack('.');
        return fullName;
    }
    template <typename Member>
    static Member* makeMember(const DtString& name, const DtString& datatype, const DtString& cardinality)
    {
        auto* member = new Member;
        member->setName(name);
        member->setDatatype(datatype);
        member->setCardinality(cardinality);
        return member;
    }
    template <typename Component>
    static Component* makeComponent(const DtString& name, const DtString& datatype)
    {
        auto* component = new Component;
        component->setName(name);
        component->setDatatype(datatype);
        return component;
    }

    DtOMTTree myTree;
};

#endif
