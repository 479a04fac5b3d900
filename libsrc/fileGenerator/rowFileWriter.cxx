#include "fileGenerator/rowFileWriter.h"

#include <map>
#include <string_view>
#include <utility>

DtRowFileWriterBase::DtRowFileWriterBase(const DtWriterRow& row, const DtString& fileName, const DtString& templateName)
    : DtClassFileWriter(fileName, templateName), myRow(row), myOwnValues(row)
{
    myTokenChain.putAhead({&myOwnValues});
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
    std::vector<DtString> values;
    for (const DtOwnToken& own : myRow.ownTokens)
    {
        if (own.token != nullptr)
            values.push_back(fill(own.topValue != nullptr && isTop() ? own.topValue : own.value));
    }
    myOwnValues.set(std::move(values));
}

const DtTokenIndex& DtRowFileWriterBase::DtOwnValues::indexOf(const DtWriterRow& row)
{
    static std::map<const DtWriterRow*, DtTokenIndex> theIndexes;
    const auto known = theIndexes.find(&row);
    if (known != theIndexes.end())
        return known->second;
    std::vector<std::string_view> tokens;
    for (const DtOwnToken& own : row.ownTokens)
    {
        if (own.token != nullptr)
            tokens.emplace_back(own.token);
    }
    return theIndexes.emplace(&row, DtTokenIndex(std::move(tokens))).first->second;
}
