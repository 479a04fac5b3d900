#include "fileGenerator/fileGenerator.h"

#include "fileGenerator/dataTypeMapper.h"
#include "fileGenerator/examplesCreator.h"
#include "fileGenerator/memberTypes.h"
#include "fileGenerator/progressMeter.h"
#include "foundation/exception.h"

DtFileGenerator::~DtFileGenerator() = default;

void DtFileGenerator::setParentClassName(const DtString& name)
{
    for (const auto& writer : myWriters)
        writer->setParentClassName(name);
}

void DtFileGenerator::setPduKind(int kind)
{
    for (const auto& writer : myWriters)
        writer->setPduKind(kind);
}

void DtFileGenerator::setFullClassName(const DtString& name)
{
    for (const auto& writer : myWriters)
        writer->setFullClassName(name);
}

bool DtFileGenerator::runWriters()
{
    for (const auto& writer : myWriters)
    {
        writer->compileIncludeList();
        writer->writeFile();
        if (DtProgressMeter::current()->isCancelled())
            return false;
    }
    return true;
}

void DtFileGenerator::setDocumentation(const DtClassDocumentation& documentation)
{
    myDocumentation = documentation;
    for (const auto& writer : myWriters)
        writer->setDocumentation(documentation.ofClass);
}

void DtFileGenerator::addInheritedAttribute(const DtString& name, const DtString& datatype, const DtString& cardinality)
{
    if (myExamples != nullptr)
        myExamples->addAttribute(makeAttribute(name, datatype, cardinality));
}

DtAttribute DtFileGenerator::addToWriters(const DtString& name, const DtString& datatype, const DtString& cardinality)
{
    DtAttribute attribute = makeAttribute(name, datatype, cardinality);
    const auto documentation = myDocumentation.ofMembers.find(name);
    if (documentation != myDocumentation.ofMembers.end())
        attribute.setDocumentation(documentation->second);
    attribute.keepNotes(std::make_shared<DtAttributeValues>());
    for (const auto& writer : myWriters)
        writer->addAttribute(attribute);
    return attribute;
}

DtAttribute DtFileGenerator::makeAttribute(const DtString& name, const DtString& datatype, const DtString& cardinality)
{
    DtString type = DtDataTypeMapper::instance()->quorvexType(datatype);
    DtString resolvedCardinality = cardinality;
    if (type.isEmpty())
        determineValueType(datatype, resolvedCardinality, type);
    DtAttribute attribute(name, type);
    attribute.setCardinality(resolvedCardinality);
    // Behind the cardinality: it works out the wire type again, now with the byte order of the datatype.
    attribute.setDatatype(datatype);
    attribute.setDatatypeDatatype(lastRepresentation(datatype));
    return attribute;
}

void DtFileGenerator::initializeWriters(const DtString& name, const DtOmtProject& project)
{
    for (const auto& writer : myWriters)
    {
        writer->setRootName(name);
        writer->setOmtProject(project);
    }
}

void DtFileGenerator::guardConstruction(const char* signature, const char* file, unsigned int line,
                                        const std::function<void()>& body)
{
    try
    {
        body();
    }
    catch (const DtException& cause)
    {
        throw DtException("Propagating DtException.", signature, file, line, &cause);
    }
    catch (const std::exception& cause)
    {
        throw DtException(DtString("std::exception ") + cause.what(), signature, file, line);
    }
    catch (...)
    {
        throw DtTemplatedException<-2>("Caught Unknown Exception.", signature, file, line);
    }
}
