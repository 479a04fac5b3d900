#include "modelTools/configKeys.h"

#include "codeGenApp/codeGenInitializer.h"
#include "fileGenerator/relativePath.h"
#include "modelTools/nearNames.h"
#include "modelTools/toolFailure.h"

#include <algorithm>
#include <cctype>

namespace
{
constexpr std::size_t theLongestNumber = 9; // digits that fit into an int, whatever they are

bool isIdentifier(const std::string& text)
{
    const auto isLetter = [](char each) { return std::isalnum(static_cast<unsigned char>(each)) != 0 || each == '_'; };
    return text.empty() || (std::isdigit(static_cast<unsigned char>(text.front())) == 0 &&
                            std::all_of(text.begin(), text.end(), isLetter));
}

bool isNumber(const std::string& text)
{
    const auto isDigit = [](char each) { return std::isdigit(static_cast<unsigned char>(each)) != 0; };
    return !text.empty() && text.size() <= theLongestNumber && std::all_of(text.begin(), text.end(), isDigit);
}

struct DtKindRow
{
    bool (*fits)(const std::string& value);
    const char* expected;
};

// In the order of DtConfigKey::Kind.
const DtKindRow theKinds[] = {
    {[](const std::string&) { return true; },                                               "a text"              },
    {isIdentifier,                                                                          "an identifier of C++"},
    {[](const std::string& value) { return value.empty() || staysBelow(DtString(value)); },
     "a directory below the output"                                                                               },
    {[](const std::string& value) { return value == "true" || value == "false"; },          "true or false"       },
    {isNumber,                                                                              "a number from 0 on"  },
};

std::vector<std::string> settableNames()
{
    std::vector<std::string> names;
    for (const DtConfigKey& key : DtConfigKeys())
        if (key.refusal == nullptr)
            names.emplace_back(key.name);
    return names;
}
} // namespace

const std::vector<DtConfigKey>& DtConfigKeys()
{
    static const std::vector<DtConfigKey> theKeys = {
        {"namespaceName",                DtConfigKey::Identifier,   nullptr                                                               },
        {"includeName",                  DtConfigKey::SubDirectory, nullptr                                                               },
        {"prefixName",                   DtConfigKey::Identifier,   nullptr                                                               },
        {"firstPduKind",                 DtConfigKey::Number,       nullptr                                                               },
        {"generateExamples",             DtConfigKey::Flag,         nullptr                                                               },
        {"generate64Bit",                DtConfigKey::Flag,         nullptr                                                               },
        {"useErrorForNonDecodableAttrs", DtConfigKey::Flag,         nullptr                                                               },
        {"dumpParseTree",                DtConfigKey::Flag,         nullptr                                                               },
        {"generateDIS",                  DtConfigKey::Flag,         nullptr                                                               },
        {"mapRtiObjectIdToGlobalId",     DtConfigKey::Flag,         nullptr                                                               },
        {"encodeSizeInStrings",          DtConfigKey::Flag,         nullptr                                                               },
        {"encodeSizeInArrays",           DtConfigKey::Flag,         nullptr                                                               },
        {"sizeOfArrayLength",            DtConfigKey::Number,       nullptr                                                               },
        {"includeStandardMIM",           DtConfigKey::Flag,         nullptr                                                               },
        {"notifyLevel",                  DtConfigKey::Number,       "-q and -v say how much is told"                                      },
        {"logFileName",                  DtConfigKey::Text,         "it would write a file outside of the output; redirect standard error"},
    };
    return theKeys;
}

void DtSetConfigKey(DtCodeGenInitializer& configuration, const std::string& assignment)
{
    const std::size_t equals = assignment.find('=');
    if (equals == std::string::npos)
        throw DtToolFailure(DtExitCode::Usage, "--set takes KEY=VALUE, not \"" + assignment + "\".");
    const std::string name = assignment.substr(0, equals);
    const std::string value = assignment.substr(equals + 1);
    const std::vector<DtConfigKey>& keys = DtConfigKeys();
    const auto key =
        std::find_if(keys.begin(), keys.end(), [&name](const DtConfigKey& each) { return name == each.name; });
    if (key == keys.end())
        throw DtToolFailure(DtExitCode::Usage, "there is no key \"" + name + "\" in the configuration." +
                                                   DtNearNamesHint(name, settableNames()));
    if (key->refusal != nullptr)
        throw DtToolFailure(DtExitCode::Usage, "the key \"" + name + "\" cannot be set: " + key->refusal + ".");
    const DtKindRow& kind = theKinds[key->kind];
    if (!kind.fits(value))
        throw DtToolFailure(DtExitCode::Usage, "\"" + value + "\" is no value of the key \"" + name +
                                                   "\", which takes " + kind.expected + ".");
    configuration.setVariableValue(DtString(name), DtString(value));
}
