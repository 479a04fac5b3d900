#include "fileGenerator/rowFileWriter.h"

#include "foundation/stringUtils.h"

DtRowFileWriterBase::DtRowFileWriterBase(const DtWriterRow& row, const DtString& fileName, const DtString& templateName)
    : DtClassFileWriter(fileName, templateName), myRow(row)
{
    obtainOwnValues();
}

void DtRowFileWriterBase::setClassName(const DtString& name)
{
    myGivenName = name;
    DtClassFileWriter::setClassName(fill(myRow.className));
    obtainOwnValues();
}

void DtRowFileWriterBase::setParentClassName(const DtString& name)
{
    DtClassFileWriter::setParentClassName(name);
    myBaseClassName = fill(isTop() ? myRow.topBase : myRow.base);
    myBaseClassHeader = fill(isTop() ? myRow.topHeader : myRow.header);
    namesChanged();
    obtainOwnValues();
}

void DtRowFileWriterBase::setFullClassName(const DtString& name)
{
    const bool isObject = myRow.tree == DtClassTree::Object;
    if (myRow.fullName == DtFullName::AsGiven)
        DtClassFileWriter::setFullClassName(name);
    else
        DtClassFileWriter::setFullClassName(isObject ? replaceFirstObjRootOccurance(name)
                                                     : replaceFirstIntRootOccurance(name));
    obtainOwnValues();
}

void DtRowFileWriterBase::decodeFileLine(DtString& line)
{
    if (DtHasToken(line))
    {
        for (std::size_t i = 0; i < myOwnValues.size(); ++i)
            line = DtReplaceAllSubstrings(line, myRow.ownTokens[i].token, myOwnValues[i]);
    }
    DtClassFileWriter::decodeFileLine(line);
}

std::vector<DtString> DtRowFileWriterBase::knownTokens() const
{
    std::vector<DtString> tokens;
    for (std::size_t i = 0; i < myOwnValues.size(); ++i)
        tokens.emplace_back(myRow.ownTokens[i].token);
    const std::vector<DtString> ofClass = DtClassFileWriter::knownTokens();
    tokens.insert(tokens.end(), ofClass.begin(), ofClass.end());
    return tokens;
}

bool DtRowFileWriterBase::isTop() const
{
    return myParentClassName == (myRow.tree == DtClassTree::Object ? "ObjectRoot" : "InteractionRoot");
}

DtString DtRowFileWriterBase::fill(const char* pattern) const
{
    return fillPattern(pattern, {myGivenName, myParentClassName, myClassName, myFullClassName, myFileStem});
}

void DtRowFileWriterBase::obtainOwnValues()
{
    myOwnValues.clear();
    for (const DtOwnToken& own : myRow.ownTokens)
    {
        if (own.token == nullptr)
            return;
        myOwnValues.push_back(fill(own.topValue != nullptr && isTop() ? own.topValue : own.value));
    }
}
