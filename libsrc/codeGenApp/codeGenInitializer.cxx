#include "codeGenApp/codeGenInitializer.h"

#include "foundation/assertion.h"
#include "foundation/envXmlReader.h"
#include "foundation/envXmlWriter.h"
#include "foundation/outputStream.h"
#include "foundation/warningRules.h"

#include <cstdlib>
#include <utility>

namespace
{
const char* textOf(bool flag)
{
    return flag ? "true" : "false";
}

int numberOf(const DtString& text)
{
    return static_cast<int>(std::strtol(text.c_str(), nullptr, 10));
}
} // namespace

DtCodeGenInitializer::~DtCodeGenInitializer() = default;

bool DtCodeGenInitializer::takeStore(const DtString& file)
{
    bool isGood = false;
    const DtEnvironment config = DtEnvXMLReader(true).readFile(file, &isGood);
    if (!isGood)
        return false;
    myConfig = config;
    myDefaults.setRoot(myConfig.getNamedList("defaults"));
    myUser.setRoot(myConfig.getNamedList("user"));
    return true;
}

bool DtCodeGenInitializer::parseConfigFile(const DtString& file)
{
    if (!takeStore(file))
        return false;
    readSettings();
    parseScripts();
    getVariableValue("encodeSizeInArrays"); // these two only for the warning when they are missing
    getVariableValue("sizeOfArrayLength");
    readNotifyLevel();
    return true;
}

// A missing key is warned of, so the order shows.
void DtCodeGenInitializer::readSettings()
{
    myLogFileName = getVariableValue("logFileName");
    myNamespaceName = getVariableValue("namespaceName");
    myIncludeName = getVariableValue("includeName");
    myPrefixName = getVariableValue("prefixName");
    myFirstPduKind = numberOf(getVariableValue("firstPduKind"));
    myGenerateExamples = readFlag("generateExamples");
    myGenerate64Bit = readFlag("generate64Bit");
    myGenerateErrors = readFlag("useErrorForNonDecodableAttrs");
    myDumpParseTree = readFlag("dumpParseTree");
    myGenerateDis = readFlag("generateDIS");
    myMapRtiObjIdToGlobalId = readFlag("mapRtiObjectIdToGlobalId");
    myMapRtiObjIdToGlobalId = readFlag("encodeSizeInStrings"); // the last read counts
    myIncludeStandardMIM = readFlag("includeStandardMIM");
    myCodeOpenArrays = readOptionalFlag("codeOpenArrays");
    myAllDatatypes = readOptionalFlag("allDatatypes");
}

void DtCodeGenInitializer::applySettings()
{
    readSettings();
}

bool DtCodeGenInitializer::readFlag(const DtString& name) const
{
    return getVariableValue(name) == "true";
}

bool DtCodeGenInitializer::readOptionalFlag(const DtString& name) const
{
    bool isFound = false;
    return storedValue(name, isFound) == "true";
}

void DtCodeGenInitializer::readNotifyLevel() const
{
    const int level = numberOf(getVariableValue("notifyLevel"));
    if (level != 0)
        DtNotifyLevel = level;
}

bool DtCodeGenInitializer::saveConfigFile(const DtString& file)
{
    return myIsSaved && DtEnvXMLWriter("codeGenConfig", "codeGenConfig.dtd").writeFile(myConfig, file);
}

void DtCodeGenInitializer::setText(const char* key, DtString& field, const DtString& value)
{
    DtString copy(value); // it may be the field
    setVariableValue(key, copy);
    field = std::move(copy);
}

void DtCodeGenInitializer::setFlag(const char* key, bool& field, bool value)
{
    setVariableValue(key, textOf(value));
    field = value;
}

void DtCodeGenInitializer::setLogFileName(const DtString& name)
{
    setText("logFileName", myLogFileName, name);
}

const DtString& DtCodeGenInitializer::logFileName() const
{
    return myLogFileName;
}

void DtCodeGenInitializer::setNamespaceName(const DtString& name)
{
    setText("namespaceName", myNamespaceName, name);
}

const DtString& DtCodeGenInitializer::namespaceName() const
{
    return myNamespaceName;
}

void DtCodeGenInitializer::setIncludeName(const DtString& name)
{
    setText("includeName", myIncludeName, name);
}

const DtString& DtCodeGenInitializer::includeName() const
{
    return myIncludeName;
}

void DtCodeGenInitializer::setPrefixName(const DtString& name)
{
    setText("prefixName", myPrefixName, name);
}

const DtString& DtCodeGenInitializer::prefixName() const
{
    return myPrefixName;
}

void DtCodeGenInitializer::setGenerateExamples(bool on)
{
    setFlag("generateExamples", myGenerateExamples, on);
}

bool DtCodeGenInitializer::generateExamples() const
{
    return myGenerateExamples;
}

void DtCodeGenInitializer::setGenerate64Bit(bool on)
{
    setFlag("generate64Bit", myGenerate64Bit, on);
}

bool DtCodeGenInitializer::generate64Bit() const
{
    return myGenerate64Bit;
}

void DtCodeGenInitializer::setGenerateErrors(bool on)
{
    setFlag("generateErrors", myGenerateErrors, on);
}

bool DtCodeGenInitializer::generateErrors() const
{
    return myGenerateErrors;
}

void DtCodeGenInitializer::setDumpParseTree(bool on)
{
    setFlag("dumpParseTree", myDumpParseTree, on);
}

bool DtCodeGenInitializer::dumpParseTree() const
{
    return myDumpParseTree;
}

void DtCodeGenInitializer::setGenerateDis(bool on)
{
    setFlag("generateDIS", myGenerateDis, on);
}

bool DtCodeGenInitializer::generateDis() const
{
    return myGenerateDis;
}

void DtCodeGenInitializer::setFirstPduKind(int kind)
{
    setVariableValue("firstPduKind", DtString(kind));
    myFirstPduKind = kind;
}

int DtCodeGenInitializer::firstPduKind() const
{
    return myFirstPduKind;
}

void DtCodeGenInitializer::setMapRtiObjIdToGlobalId(bool on)
{
    setFlag("mapRtiObjectIdToGlobalId", myMapRtiObjIdToGlobalId, on);
}

bool DtCodeGenInitializer::mapRtiObjIdToGlobalId() const
{
    return myMapRtiObjIdToGlobalId;
}

void DtCodeGenInitializer::setIncludeStandardMIM(bool on)
{
    myIncludeStandardMIM = on;
}

bool DtCodeGenInitializer::includeStandardMIM() const
{
    return myIncludeStandardMIM;
}

void DtCodeGenInitializer::setScriptMap(const std::map<DtString, bool>& scripts)
{
    myScriptMap = scripts;
    saveScripts();
}

const std::map<DtString, bool>& DtCodeGenInitializer::scriptMap() const
{
    return myScriptMap;
}

void DtCodeGenInitializer::parseScripts()
{
    parseScripts(myUser);
    parseScripts(myDefaults);
}

namespace
{
// The settings of a list with the attributes that hold their values, null where there is none. Of equal names the last
// one counts. For many look-ups at once: DtEnvironment::getObject() walks the list each time.
std::map<DtString, std::shared_ptr<DtEnvValue>> valueNodes(const DtEnvironment& list)
{
    std::map<DtString, std::shared_ptr<DtEnvValue>> nodes;
    const DtEnvObject* const root = DtEnvObject::castToObject(list.root());
    if (root == nullptr)
        return nodes;
    for (const auto& child : root->children())
    {
        const DtEnvObject* const object = DtEnvObject::castToObject(child);
        if (object != nullptr && object->type() == "var")
            nodes[object->name()] = object->attribute("value");
    }
    return nodes;
}
} // namespace

void DtCodeGenInitializer::parseScripts(const DtEnvironment& list)
{
    for (const auto& [name, value] : valueNodes(DtEnvironment(list.getNamedList("scripts"))))
    {
        if (value != nullptr)
            myScriptMap.emplace(name, value->value().caseCompare("true"));
    }
}

void DtCodeGenInitializer::saveScripts()
{
    makeUserList();
    std::shared_ptr<DtEnvValue> list = myUser.getNamedList("scripts");
    if (list == nullptr)
    {
        myUser.addObject("scripts");
        list = myUser.getNamedList("scripts");
    }
    DT_ASSERT_AS(list != nullptr, "listSP != NULL", "libsrc/codeGenApp/codeGenInit", 432,
                 "void DtCodeGenInitializer::saveScripts()");
    DtEnvironment scripts(list);
    const auto nodes = valueNodes(scripts);
    for (const auto& [name, isEnabled] : myScriptMap)
    {
        const auto node = nodes.find(name);
        storeValue(node != nodes.end() ? node->second : nullptr, name, textOf(isEnabled), scripts);
    }
}

DtString DtCodeGenInitializer::storedValue(const DtString& name, bool& found) const
{
    DtString value = getVariableValue(myUser, name, found);
    if (!found)
        value = getVariableValue(myDefaults, name, found);
    return value;
}

DtString DtCodeGenInitializer::getVariableValue(const DtString& name) const
{
    bool isFound = false;
    DtString value = storedValue(name, isFound);
    if (!isFound)
        DtTellWarning(DtRules::missingSetting, DtSubject::setting(name),
                      "Initializer: no var found with name: " + name + "\n");
    return value;
}

namespace
{
// The attribute that holds the value of a setting, null if there is none.
std::shared_ptr<DtEnvValue> valueNode(const DtEnvironment& env, const DtString& name)
{
    const DtEnvObject* const object = DtEnvObject::castToObject(env.getObject(name, "var"));
    return object != nullptr ? object->attribute("value") : nullptr;
}
} // namespace

DtString DtCodeGenInitializer::getVariableValue(const DtEnvironment& env, const DtString& name, bool& found) const
{
    const std::shared_ptr<DtEnvValue> node = valueNode(env, name);
    found = node != nullptr;
    return found ? node->value() : DtString();
}

void DtCodeGenInitializer::makeUserList()
{
    if (myUser.root() == nullptr)
        myUser.setRoot(myConfig.addObject("user", "user"));
}

bool DtCodeGenInitializer::setVariableValue(const DtString& name, const DtString& value)
{
    makeUserList();
    return setVariableValue(name, value, myUser);
}

bool DtCodeGenInitializer::setVariableValue(const DtString& name, const DtString& value, DtEnvironment& env)
{
    return storeValue(valueNode(env, name), name, value, env);
}

bool DtCodeGenInitializer::storeValue(std::shared_ptr<DtEnvValue> node, const DtString& name, const DtString& value,
                                      DtEnvironment& env)
{
    if (node == nullptr)
        node = env.addAttribute("value", "", env.addObject(name, "var", env.root()));
    if (node == nullptr)
    {
        DtTellWarning(DtRules::settingNotStored, DtSubject::setting(name),
                      "Initializer: Error creating var with name: " + name + "\n");
        return false;
    }
    node->setValue(value);
    return true;
}
