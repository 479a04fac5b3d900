#include "modelTools/configKeys.h"

#include "codeGenApp/codeGenInitializer.h"
#include "codeGenApp/nameRules.h"
#include "fileGenerator/relativePath.h"
#include "foundation/envXmlReader.h"
#include "modelTools/nearNames.h"
#include "modelTools/toolFailure.h"

#include <algorithm>
#include <cctype>
#include <filesystem>

namespace
{
constexpr std::size_t theLongestNumber = 9; // digits that fit into an int, whatever they are

bool isNumber(const std::string& text)
{
    const auto isDigit = [](char each) { return std::isdigit(static_cast<unsigned char>(each)) != 0; };
    return !text.empty() && text.size() <= theLongestNumber && std::all_of(text.begin(), text.end(), isDigit);
}

// Shells complete a directory with a separator at its end, and the generated code puts one of its own behind it.
std::string asDirectory(const std::string& value)
{
    const std::string path = std::filesystem::path(value).lexically_normal().string();
    const std::size_t end = path.find_last_not_of('/');
    return path == "." || end == std::string::npos ? std::string() : path.substr(0, end + 1);
}

struct DtKindRow
{
    bool (*fits)(const std::string& value);
    const char* expected;
};

// In the order of DtConfigKey::Kind.
const DtKindRow theKinds[] = {
    {[](const std::string&) { return true; },                                               "a text"              },
    {[](const std::string& value) { return DtFitsPrefix(DtString(value)); },                "an identifier of C++"},
    {[](const std::string& value) { return DtFitsNamespace(DtString(value)); },
     "an identifier of C++ that is no keyword"                                                                    },
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

// Null when there is none.
const DtConfigKey* findKey(const std::string& name)
{
    const std::vector<DtConfigKey>& keys = DtConfigKeys();
    const auto found =
        std::find_if(keys.begin(), keys.end(), [&name](const DtConfigKey& each) { return name == each.name; });
    return found != keys.end() ? &*found : nullptr;
}

std::string wrongValue(const DtConfigKey& key, const std::string& value)
{
    return "\"" + value + "\" is no value of the key \"" + key.name + "\", which takes " + theKinds[key.kind].expected +
           ".";
}

// The window saves this flag under a key that nothing reads, so its files have it.
constexpr const char* theKeyThatIsSavedOnly = "generateErrors";

// Empty when the setting may stand in a file.
std::string faultOf(const std::string& name, const std::string& value)
{
    if (name == theKeyThatIsSavedOnly)
        return std::string();
    const DtConfigKey* const key = findKey(name);
    if (key == nullptr)
        return "there is no key \"" + name + "\" in a configuration." + DtNearNamesHint(name, settableNames());
    if (key->writesElsewhere && !value.empty())
        return "the key \"" + name + "\" has to be empty: " + key->refusal + ".";
    return theKinds[key->kind].fits(value) ? std::string() : wrongValue(*key, value);
}

void checkSettings(const std::string& path, const DtEnvironment& list)
{
    const DtEnvObject* const root = DtEnvObject::castToObject(list.root());
    if (root == nullptr)
        return;
    for (const std::shared_ptr<DtEnvValue>& child : root->children())
    {
        const DtEnvObject* const setting = DtEnvObject::castToObject(child);
        if (setting == nullptr || setting->type() != "var")
            continue;
        const std::string fault = faultOf(setting->name().stdString(), setting->value().stdString());
        if (!fault.empty())
        {
            const std::string place = path + ", list \"" + root->name().stdString() + "\": ";
            throw DtToolFailure(DtExitCode::Unreadable, place + fault);
        }
    }
}
} // namespace

const std::vector<DtConfigKey>& DtConfigKeys()
{
    static const std::vector<DtConfigKey> theKeys = {
        {"namespaceName",                DtConfigKey::Namespace,    nullptr,                                                                false},
        {"includeName",                  DtConfigKey::SubDirectory, nullptr,                                                                false},
        {"prefixName",                   DtConfigKey::Identifier,   nullptr,                                                                false},
        {"firstPduKind",                 DtConfigKey::Number,       nullptr,                                                                false},
        {"generateExamples",             DtConfigKey::Flag,         nullptr,                                                                false},
        {"generate64Bit",                DtConfigKey::Flag,         nullptr,                                                                false},
        {"useErrorForNonDecodableAttrs", DtConfigKey::Flag,         nullptr,                                                                false},
        {"dumpParseTree",                DtConfigKey::Flag,         nullptr,                                                                false},
        {"generateDIS",                  DtConfigKey::Flag,         nullptr,                                                                false},
        {"mapRtiObjectIdToGlobalId",     DtConfigKey::Flag,         nullptr,                                                                false},
        {"encodeSizeInStrings",          DtConfigKey::Flag,         nullptr,                                                                false},
        {"encodeSizeInArrays",           DtConfigKey::Flag,         nullptr,                                                                false},
        {"sizeOfArrayLength",            DtConfigKey::Number,       nullptr,                                                                false},
        {"includeStandardMIM",           DtConfigKey::Flag,         nullptr,                                                                false},
        {"codeOpenArrays",               DtConfigKey::Flag,         nullptr,                                                                false},
        {"allDatatypes",                 DtConfigKey::Flag,         nullptr,                                                                false},
        {"notifyLevel",                  DtConfigKey::Number,       "-q and -v say how much is told",                                       false},
        {"logFileName",                  DtConfigKey::Text,         "it would write a file outside of the output; redirect standard error",
         true                                                                                                                                    },
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
    const DtConfigKey* const key = findKey(name);
    if (key == nullptr)
        throw DtToolFailure(DtExitCode::Usage, "there is no key \"" + name + "\" in the configuration." +
                                                   DtNearNamesHint(name, settableNames()));
    if (key->refusal != nullptr)
        throw DtToolFailure(DtExitCode::Usage, "the key \"" + name + "\" cannot be set: " + key->refusal + ".");
    if (!theKinds[key->kind].fits(value))
        throw DtToolFailure(DtExitCode::Usage, wrongValue(*key, value));
    const std::string stored = key->kind == DtConfigKey::SubDirectory ? asDirectory(value) : value;
    configuration.setVariableValue(DtString(name), DtString(stored));
}

void DtCheckConfigFile(const std::string& path)
{
    bool isGood = false;
    const DtEnvironment file = DtEnvXMLReader(false).readFile(DtString(path), &isGood);
    const DtEnvObject* const root = DtEnvObject::castToObject(file.root());
    if (!isGood || root == nullptr || root->type() != "codeGenConfig")
        throw DtToolFailure(DtExitCode::Unreadable, "the configuration " + path + " cannot be read.");
    for (const char* list : {"defaults", "user"})
        checkSettings(path, DtEnvironment(file.getNamedList(list)));
}
