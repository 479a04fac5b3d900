#include "fileGenerator/omtEnvWriter.h"

#include "foundation/filename.h"

int DtOMTEnvWriter::theMaximumLineLength = 300;
bool DtOMTEnvWriter::myMIMincluded = true;
DtString DtOMTEnvWriter::theNamespaceName;
DtString DtOMTEnvWriter::theIncludeName;
DtString DtOMTEnvWriter::thePrefixName;
DtString DtOMTEnvWriter::theFomDefinitionFileName;
DtString DtOMTEnvWriter::theBaseName;

void DtOMTEnvWriter::setMaximumLineLength(int length)
{
    theMaximumLineLength = length;
}

int DtOMTEnvWriter::maximumLineLength()
{
    return theMaximumLineLength;
}

void DtOMTEnvWriter::setMIMincluded(bool included)
{
    myMIMincluded = included;
}

bool DtOMTEnvWriter::MIMincluded()
{
    return myMIMincluded;
}

void DtOMTEnvWriter::setNamespaceName(const DtString& name)
{
    theNamespaceName = name;
}

const DtString& DtOMTEnvWriter::namespaceName()
{
    return theNamespaceName;
}

void DtOMTEnvWriter::setIncludeName(const DtString& name)
{
    theIncludeName = name;
}

const DtString& DtOMTEnvWriter::includeName()
{
    return theIncludeName;
}

void DtOMTEnvWriter::setPrefixName(const DtString& name)
{
    thePrefixName = name;
}

const DtString& DtOMTEnvWriter::prefixName()
{
    return thePrefixName;
}

void DtOMTEnvWriter::setFomDefinitionFileName(const DtString& name)
{
    theFomDefinitionFileName = name;
}

const DtString& DtOMTEnvWriter::fomDefinitionFileName()
{
    return theFomDefinitionFileName;
}

void DtOMTEnvWriter::setBaseName(const DtString& name)
{
    theBaseName = name;
}

const DtString& DtOMTEnvWriter::baseName()
{
    return theBaseName;
}

DtString DtOMTEnvWriter::includePath()
{
    return theIncludeName == DtString::nullString() ? DtString() : theIncludeName + DtFilename::separator();
}
