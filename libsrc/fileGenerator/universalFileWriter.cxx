#include "fileGenerator/universalFileWriter.h"

#include "fileGenerator/tokenNames.h"
#include "foundation/restored.h"
#include "foundation/stringUtils.h"

#include <string_view>
#include <utility>

namespace
{
// What stands between "<!" and the next "!>" behind it, again and again; an opening that nothing closes is the last.
template <typename Take>
void forEachName(std::string_view line, Take take)
{
    std::size_t end = 0;
    for (std::size_t at = line.find("<!"); at != std::string_view::npos; at = line.find("<!", end))
    {
        const std::size_t close = line.find("!>", at + 2);
        if (close == std::string_view::npos)
            return;
        end = close + 2;
        take(line.substr(at, end - at));
    }
}
} // namespace

// The tokens of one line that have a value, in the order of their appearance, repeats included.
class DtUniversalFileWriter::LineTokens : public DtTokenSource
{
public:
    // The tokens point into a text that outlives this.
    LineTokens(const DtTokenIndex& tokens, std::vector<DtString> values)
        : DtTokenSource(tokens), myValues(std::move(values))
    {
    }

protected:
    DtString workOut(int row) const override { return myValues[static_cast<std::size_t>(row)]; }

private:
    std::vector<DtString> myValues;
};

// The values that tokens of a compiled line have at the present place in the tree.
class DtUniversalFileWriter::ContextFinder final : public DtTokenFinder
{
public:
    explicit ContextFinder(const DtUniversalFileWriter& writer) : myWriter(writer) {}

    const DtString* valueOf(int token) override
    {
        const DtString& name = DtNameOfToken(token);
        if (const DtString* text = myWriter.lookupString(name))
            return text;
        return myWriter.findNumber(name, myNumber) ? &myNumber : nullptr;
    }

private:
    const DtUniversalFileWriter& myWriter;
    DtString myNumber;
};

DtUniversalFileWriter::DtUniversalFileWriter(const DtString& fileName, const DtString& templateName,
                                             DtMapSubstitute* root)
    : DtFileWriter(fileName, templateName), myRootContext(root), myContextStack{myRootContext}
{
}

void DtUniversalFileWriter::decodeFileLine(DtString& line)
{
    ContextFinder finder(*this);
    if (expandCompiled(line, &finder))
        return;
    if (!DtHasToken(line))
        return DtFileWriter::decodeFileLine(line);
    const std::string text = line.stdString();
    std::vector<std::string_view> tokens;
    std::vector<DtString> values;
    forEachName(text,
                [&](std::string_view token)
                {
                    DtString value;
                    if (!findValue(DtString(std::string(token.substr(2, token.size() - 4))), value))
                        return;
                    tokens.push_back(token);
                    values.push_back(std::move(value));
                });
    const DtTokenIndex index(std::move(tokens));
    LineTokens source(index, std::move(values));
    expandTokens(line, {&source});
}

// The contexts go ahead of the two numbers.
bool DtUniversalFileWriter::findValue(const DtString& name, DtString& value) const
{
    const DtString* text = lookupString(name);
    if (text == nullptr)
        return findNumber(name, value);
    value = *text;
    return true;
}

bool DtUniversalFileWriter::findNumber(const DtString& name, DtString& value) const
{
    if (name.caseCompare("index0"))
        value = DtString(myIndex);
    else if (name.caseCompare("index1"))
        value = DtString(myIndex + 1);
    else
        return false;
    return true;
}

void DtUniversalFileWriter::writeMultipleTimes(const DtString& header, std::istream& body)
{
    const DtMapSubstitute* map = lookupMap(header);
    if (map == nullptr)
        return;
    const DtRestored first(myIsFirst);
    const DtRestored last(myIsLast);
    const DtRestored index(myIndex);
    enter(header);
    const std::streampos position = body.tellg();
    const std::size_t total = map->size();
    myIndex = 0;
    for (const DtMapSubstitute::Entry& entry : *map)
    {
        myIsFirst = myIndex == 0;
        myIsLast = static_cast<std::size_t>(myIndex) + 1 == total;
        writePass(entry.first, body, position);
        ++myIndex;
    }
    popContext();
}

// An entry that is no map, or that follows a text of the same key, enters nothing, and yet one context is left: such a
// list takes contexts away from the loops around it.
void DtUniversalFileWriter::writePass(const DtString& key, std::istream& body, std::streampos position)
{
    enter(key);
    writeBodyFrom(body, position);
    popContext();
}

void DtUniversalFileWriter::writeConditional(const DtString& header, std::istream& body)
{
    const std::pair<const char*, bool> conditions[] = {
        {"first",    myIsFirst },
        {"notfirst", !myIsFirst},
        {"last",     myIsLast  },
        {"notlast",  !myIsLast },
    };
    DtString verb = header;
    verb.snipBackToFirst(' ');
    for (const auto& [name, holds] : conditions)
    {
        if (verb != name)
            continue;
        if (holds)
            writeFileStream(body);
        return;
    }
    DtFileWriter::writeConditional(header, body);
}

DtUniversalSubstitute* DtUniversalFileWriter::lookup(const DtString& name) const
{
    for (auto context = myContextStack.rbegin(); context != myContextStack.rend(); ++context)
    {
        DtUniversalSubstitute* value = *context != nullptr ? (*context)->get(name) : nullptr;
        if (value != nullptr)
            return value;
    }
    return nullptr;
}

const DtString* DtUniversalFileWriter::lookupString(const DtString& name) const
{
    return DtMapSubstitute::stringOf(lookup(name));
}

DtMapSubstitute* DtUniversalFileWriter::lookupMap(const DtString& name) const
{
    return DtMapSubstitute::mapOf(lookup(name));
}

void DtUniversalFileWriter::pushContext(const DtString& names)
{
    for (const DtString& name : DtSplit(names, '|'))
        enter(name);
}

// The names of loops and of their entries come here undivided: those of a model may hold the bar.
void DtUniversalFileWriter::enter(const DtString& name)
{
    DtMapSubstitute* map = lookupMap(name);
    if (map != nullptr)
        myContextStack.push_back(map);
}

void DtUniversalFileWriter::popContext()
{
    if (!myContextStack.empty())
        myContextStack.pop_back();
}

DtMapSubstitute* DtUniversalFileWriter::context() const
{
    return myContextStack.empty() ? nullptr : myContextStack.back();
}
