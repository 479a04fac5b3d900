#include "foundation/applicationSettings.h"
#include "foundation/cmdLine.h"
#include "foundation/configVariable.h"
#include "foundation/multiConfigVariable.h"
#include "foundation/varType.h"
#include "foundationTest.h"
#include "registerTest.h"

#include <QtTest/QtTest>

#include <iostream>
#include <sstream>

class TestConfigVariable : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void startsWithItsDefault();
    void multiVariableStartsWithoutValues();
    void ampersandInTheNameMarksTheFlag_data();
    void ampersandInTheNameMarksTheFlag();
    void entersAndLeavesItsGroup();
    void scopeTellsWhetherItIsOnTheCommandLine_data();
    void scopeTellsWhetherItIsOnTheCommandLine();
    void variableOffTheCommandLineAddsNoArgument();
    void longAndShortOptionsSetTheSame_data();
    void longAndShortOptionsSetTheSame();
    void unusedOptionsStayUnset();
    void repeatedOptionKeepsTheOrder();
    void valueWithBlanksIsOneValue();
    void combinedSwitchesSetBoth();
    void givenSwitchIsTheOppositeOfItsDefault();
    void settingsParseTwice();
    void wrongCommandLineEndsWithOne();
    void usageListsTheVariablesInOrder();
    void versionIsTheProgramsOwn();
    void valueComesFromTheGroupsNode();
    void valueFromTheStoreDoesNotCountAsGiven();
    void missingGroupOrValueLeavesTheVariable();
    void ambiguousValueIsReported();
    void attributeIsReportedAsWrongType();
    void multiVariableTakesItsElements();
    void multiVariableIgnoresAnythingButOneMatch();
    void valueIsStoredBelowItsDescription();
    void multiVariableStoresOneElementAValue();
    void schemaDescribesATypeOnce();
    void requiredVariableHasNoMinimum();
    void multiVariableHasNoSchema();
    void typesAreNamed();
};

namespace
{
DtEnvironment storeWith(const char* name, const char* value)
{
    DtEnvironment store;
    const auto group = store.addObject("settings");
    store.addObject(name, group)->setValue(value);
    return store;
}

QByteArray dump(const DtEnvironment& environment)
{
    std::ostringstream out;
    out << environment;
    return QByteArray::fromStdString(out.str());
}

// Collects the standard output stream of C++ while it lives.
class DtStandardOutput
{
public:
    DtStandardOutput() : myOld(std::cout.rdbuf(myText.rdbuf())) {}
    ~DtStandardOutput() { std::cout.rdbuf(myOld); }
    QByteArray text() const { return QByteArray::fromStdString(myText.str()); }

private:
    std::ostringstream myText;
    std::streambuf* myOld;
};

// Four variables as the program has them.
struct DtVariables
{
    DtApplicationSettings settings{"settings", "Title", "Description"};
    DtConfigVariable<bool> generate{&settings, "generate", false, "Generates", DtScopeBoth, false, "G"};
    DtConfigVariable<bool> all{&settings, "all", false, "All", DtScopeBoth, false, "A"};
    DtConfigVariable<DtString> output{&settings, "outputDir", "", "Output", DtScopeBoth, false, "O"};
    DtMultiConfigVariable<DtString> files{&settings, "fomDefFile", "file", "Files", DtScopeBoth, false, "F"};

    void parse(std::vector<std::string> arguments)
    {
        arguments.insert(arguments.begin(), "program");
        std::vector<char*> pointers;
        for (std::string& argument : arguments)
            pointers.push_back(argument.data());
        pointers.push_back(nullptr);
        settings.parseCommandLine(static_cast<int>(arguments.size()), pointers.data(), false);
    }
};
} // namespace

void TestConfigVariable::startsWithItsDefault()
{
    const DtConfigVariable<DtString> text(nullptr, "name", "default", "what", DtScopeBoth, true, "n");
    COMPARE_TEXT(text.name(), "name");
    COMPARE_TEXT(text.value(), "default");
    COMPARE_TEXT(text.defaultValue(), "default");
    COMPARE_TEXT(text.description(), "what");
    COMPARE_TEXT(text.flag(), "n");
    QVERIFY(text.isRequired());
    QVERIFY(!text.isSet());
    QCOMPARE(text.scope(), DtScopeBoth);
    const DtConfigVariable<bool> flag(nullptr, "name", true, "", DtScopeBoth, false, "");
    QVERIFY(flag.value());
    QVERIFY(!flag.isRequired());
}

void TestConfigVariable::multiVariableStartsWithoutValues()
{
    const DtMultiConfigVariable<DtString> multi(nullptr, "names", "name", "what", DtScopeBoth, false, "n");
    QVERIFY(multi.values().empty());
    COMPARE_TEXT(multi.name(), "names");
    COMPARE_TEXT(multi.elementName(), "name");
    QVERIFY(!multi.isSet());
}

void TestConfigVariable::ampersandInTheNameMarksTheFlag_data()
{
    QTest::addColumn<QByteArray>("given");
    QTest::addColumn<QByteArray>("flag");
    QTest::addColumn<QByteArray>("name");
    QTest::addColumn<QByteArray>("result");
    QTest::newRow("in the middle") << QByteArray("a&bc") << QByteArray("") << QByteArray("abc") << QByteArray("b");
    QTest::newRow("appended") << QByteArray("a&bc") << QByteArray("x") << QByteArray("abc") << QByteArray("xb");
    QTest::newRow("in front") << QByteArray("&abc") << QByteArray("") << QByteArray("abc") << QByteArray("a");
    QTest::newRow("at the end") << QByteArray("abc&") << QByteArray("x") << QByteArray("abc") << QByteArray("x");
    QTest::newRow("none") << QByteArray("abc") << QByteArray("x") << QByteArray("abc") << QByteArray("x");
}

void TestConfigVariable::ampersandInTheNameMarksTheFlag()
{
    QFETCH(QByteArray, given);
    QFETCH(QByteArray, flag);
    const DtConfigVariable<bool> single(nullptr, given.constData(), false, "", DtScopeBoth, false, flag.constData());
    QTEST(QByteArray(single.name().c_str()), "name");
    QTEST(QByteArray(single.flag().c_str()), "result");
    const DtMultiConfigVariable<DtString> multi(nullptr, given.constData(), "e", "", DtScopeBoth, false,
                                                flag.constData());
    QTEST(QByteArray(multi.name().c_str()), "name");
    QTEST(QByteArray(multi.flag().c_str()), "result");
}

void TestConfigVariable::entersAndLeavesItsGroup()
{
    DtVariableGroup group("group");
    DtConfigVariable<bool> first(&group, "first", false, "", DtScopeBoth, false, "");
    {
        DtMultiConfigVariable<DtString> second(&group, "second", "e", "", DtScopeBoth, false, "");
        DtConfigVariable<DtString> third(&group, "third", "", "", DtScopeBoth, false, "");
        QVERIFY((group.variables() == std::vector<DtBaseConfigVariable*>{&first, &second, &third}));
    }
    QVERIFY((group.variables() == std::vector<DtBaseConfigVariable*>{&first}));
}

void TestConfigVariable::scopeTellsWhetherItIsOnTheCommandLine_data()
{
    QTest::addColumn<int>("scope");
    QTest::addColumn<bool>("expected");
    QTest::newRow("none") << 0 << false;
    QTest::newRow("configuration file") << 1 << false;
    QTest::newRow("command line") << 2 << true;
    QTest::newRow("both") << 3 << true;
}

void TestConfigVariable::scopeTellsWhetherItIsOnTheCommandLine()
{
    QFETCH(int, scope);
    const DtConfigVariable<bool> variable(nullptr, "n", false, "", static_cast<DtVariableScope>(scope), false, "");
    QTEST(variable.inCommandLine(), "expected");
}

void TestConfigVariable::variableOffTheCommandLineAddsNoArgument()
{
    DtCmdLine::CmdLine commandLine("codeGen", "", "5.10", false);
    const std::size_t count = commandLine.getArgList().size();
    DtConfigVariable<bool> single(nullptr, "single", false, "", DtScopeConfigFile, false, "s");
    DtMultiConfigVariable<DtString> multi(nullptr, "multi", "e", "", DtScopeConfigFile, false, "m");
    single.getCommandLineArg(commandLine);
    multi.getCommandLineArg(commandLine);
    QCOMPARE(commandLine.getArgList().size(), count);
    single.updateFromCommandLineArg(); // without an argument nothing happens
    multi.updateFromCommandLineArg();
    QVERIFY(!single.isSet());
    QVERIFY(!multi.isSet());
}

void TestConfigVariable::longAndShortOptionsSetTheSame_data()
{
    QTest::addColumn<QStringList>("arguments");
    QTest::newRow("short") << QStringList{"-G", "-A", "-O", "out", "-F", "a.xml"};
    QTest::newRow("long") << QStringList{"--generate", "--all", "--outputDir", "out", "--fomDefFile", "a.xml"};
}

void TestConfigVariable::longAndShortOptionsSetTheSame()
{
    QFETCH(QStringList, arguments);
    std::vector<std::string> texts;
    for (const QString& argument : arguments)
        texts.push_back(argument.toStdString());
    DtVariables variables;
    variables.parse(texts);
    QVERIFY(variables.generate.isSet() && variables.generate.value());
    QVERIFY(variables.all.isSet() && variables.all.value());
    QVERIFY(variables.output.isSet());
    COMPARE_TEXT(variables.output.value(), "out");
    QVERIFY(variables.files.isSet());
    QVERIFY((variables.files.values() == std::vector<DtString>{"a.xml"}));
}

void TestConfigVariable::unusedOptionsStayUnset()
{
    DtVariables variables;
    variables.parse({"-A"});
    QVERIFY(variables.all.isSet());
    QVERIFY(!variables.generate.isSet());
    QVERIFY(!variables.generate.value());
    QVERIFY(!variables.output.isSet());
    QVERIFY(!variables.files.isSet());
}

void TestConfigVariable::repeatedOptionKeepsTheOrder()
{
    DtVariables variables;
    variables.parse({"-F", "b.xml", "-G", "-F", "a.xml"});
    QVERIFY((variables.files.values() == std::vector<DtString>{"b.xml", "a.xml"}));
}

void TestConfigVariable::valueWithBlanksIsOneValue()
{
    DtVariables variables;
    variables.parse({"-O", "my out put", "-F", "a b.xml"});
    COMPARE_TEXT(variables.output.value(), "my out put");
    QVERIFY((variables.files.values() == std::vector<DtString>{"a b.xml"}));
}

void TestConfigVariable::combinedSwitchesSetBoth()
{
    DtVariables variables;
    variables.parse({"-GA"});
    QVERIFY(variables.generate.isSet());
    QVERIFY(variables.all.isSet());
}

void TestConfigVariable::givenSwitchIsTheOppositeOfItsDefault()
{
    DtVariables variables;
    DtConfigVariable<bool> on(&variables.settings, "on", true, "", DtScopeBoth, false, "n");
    variables.parse({"-n"});
    QVERIFY(on.isSet());
    QVERIFY(!on.value());
}

void TestConfigVariable::settingsParseTwice()
{
    DtVariables variables;
    variables.parse({"-O", "first", "-F", "a"});
    variables.parse({"-O", "second", "-F", "b"});
    COMPARE_TEXT(variables.output.value(), "second");
    QVERIFY((variables.files.values() == std::vector<DtString>{"b"}));
}

void TestConfigVariable::wrongCommandLineEndsWithOne()
{
    const DtChildResult result = runInChild(
        []
        {
            DtVariables variables;
            variables.parse({"foo"});
        });
    QVERIFY(result.hasExited);
    QCOMPARE(result.exitCode, 1);
    QVERIFY2(result.errors.startsWith("PARSE ERROR: Argument: foo\n             Couldn't find match for argument\n"),
             result.errors.constData());
    QVERIFY(result.errors.endsWith("   codeGen --help\n"));
}

void TestConfigVariable::usageListsTheVariablesInOrder()
{
    const DtChildResult result = runInChild(
        []
        {
            DtVariables variables;
            variables.parse({"--help"});
        });
    QCOMPARE(result.exitCode, 0);
    int last = -1;
    for (const char* text : {"USAGE: ", "codeGen  [-G] [-A] [-O <string>] [-F <string>] ...",
                             "Where: ", "-G,  --generate", "-A,  --all", "-O <string>,  --outputDir <string>",
                             "-F <string>,  --fomDefFile <string>  (accepted multiple times)", "Description"})
    {
        const int at = result.output.indexOf(text);
        QVERIFY2(at > last, text);
        last = at;
    }
}

void TestConfigVariable::versionIsTheProgramsOwn()
{
    const DtChildResult result = runInChild(
        []
        {
            DtVariables variables;
            variables.parse({"--version"});
        });
    QCOMPARE(result.exitCode, 0);
    QCOMPARE(result.output, QByteArray("codeGen version: 5.10\n"));
}

void TestConfigVariable::valueComesFromTheGroupsNode()
{
    DtVariables variables;
    variables.output.updateFromEnvironment(storeWith("outputDir", "from the store"));
    COMPARE_TEXT(variables.output.value(), "from the store");
    for (const char* text : {"true", "TRUE"})
    {
        variables.all.setValue(false);
        variables.all.updateFromEnvironment(storeWith("all", text));
        QVERIFY(variables.all.value());
    }
    variables.all.updateFromEnvironment(storeWith("all", "yes"));
    QVERIFY(!variables.all.value());
    DtConfigVariable<DtString> loose(nullptr, "n", "", "", DtScopeBoth, false, "");
    DtEnvironment store;
    store.addObject("n")->setValue("x");
    loose.updateFromEnvironment(store); // without a group the root itself is searched
    COMPARE_TEXT(loose.value(), "x");
}

void TestConfigVariable::valueFromTheStoreDoesNotCountAsGiven()
{
    DtVariables variables;
    variables.output.updateFromEnvironment(storeWith("outputDir", "x"));
    QVERIFY(!variables.output.isSet());
    DtEnvironment store;
    const auto list = store.addObject("fomDefFile", store.addObject("settings"));
    store.addObject("file", list)->setValue("a");
    variables.files.updateFromEnvironment(store);
    QCOMPARE(variables.files.values().size(), std::size_t(1));
    QVERIFY(!variables.files.isSet());
}

void TestConfigVariable::missingGroupOrValueLeavesTheVariable()
{
    DtVariables variables;
    variables.output.setValue("old");
    const DtStandardOutput output;
    variables.output.updateFromEnvironment(DtEnvironment());
    DtEnvironment outside; // not below the group
    outside.addObject("outputDir")->setValue("x");
    variables.output.updateFromEnvironment(outside);
    variables.output.updateFromEnvironment(storeWith("other", "x"));
    COMPARE_TEXT(variables.output.value(), "old");
    QCOMPARE(output.text(), QByteArray());
}

void TestConfigVariable::ambiguousValueIsReported()
{
    DtVariables variables;
    DtEnvironment store = storeWith("outputDir", "one");
    store.addObject("outputDir", store.getNamedList("settings"))->setValue("two");
    const DtStandardOutput output;
    variables.output.updateFromEnvironment(store);
    QCOMPARE(output.text(), QByteArray("Unable to get from Environment, Object not unique: outputDir\n"));
    COMPARE_TEXT(variables.output.value(), "");
}

void TestConfigVariable::attributeIsReportedAsWrongType()
{
    DtVariables variables;
    DtEnvironment store;
    store.addAttribute("outputDir", "x", store.addObject("settings"));
    const DtStandardOutput output;
    variables.output.updateFromEnvironment(store);
    QCOMPARE(output.text(), QByteArray("Environment Object wrong type.\n"));
    COMPARE_TEXT(variables.output.value(), "");
}

void TestConfigVariable::multiVariableTakesItsElements()
{
    DtVariables variables;
    DtEnvironment store;
    const auto list = store.addObject("fomDefFile", store.addObject("settings"));
    for (const char* value : {"a", "b"})
        store.addObject("file", list)->setValue(value);
    store.addObject("other", list)->setValue("c");
    store.addAttribute("file", "no object", list);
    variables.files.updateFromEnvironment(store);
    QVERIFY((variables.files.values() == std::vector<DtString>{"a", "b"}));
    variables.files.updateFromEnvironment(store); // replaced, not added
    QCOMPARE(variables.files.values().size(), std::size_t(2));
}

void TestConfigVariable::multiVariableIgnoresAnythingButOneMatch()
{
    DtVariables variables;
    DtEnvironment store;
    const auto group = store.addObject("settings");
    store.addObject("file", store.addObject("fomDefFile", group))->setValue("a");
    variables.files.updateFromEnvironment(store);
    store.addObject("file", store.addObject("fomDefFile", group))->setValue("b");
    const DtStandardOutput output;
    variables.files.updateFromEnvironment(store);
    variables.files.updateFromEnvironment(storeWith("other", "x"));
    QVERIFY((variables.files.values() == std::vector<DtString>{"a"}));
    QCOMPARE(output.text(), QByteArray());
}

void TestConfigVariable::valueIsStoredBelowItsDescription()
{
    DtEnvironment store(std::make_shared<DtEnvObject>("root", "root"));
    DtConfigVariable<bool> flag(nullptr, "flag", true, "What it does", DtScopeBoth, false, "");
    const auto node = flag.getEnvironmentValue(store);
    COMPARE_TEXT(node->name(), "flag");
    COMPARE_TEXT(node->value(), "true");
    const DtEnvObject::Nodes& nodes = DtEnvObject::castToObject(store.root())->children();
    QCOMPARE(nodes.size(), std::size_t(2));
    QCOMPARE(nodes[0]->format(), int(DtEnvValue::Comment));
    COMPARE_TEXT(nodes[0]->value(), "What it does");
    DtConfigVariable<DtString> text(nullptr, "text", "x", "", DtScopeBoth, false, "");
    COMPARE_TEXT(text.getEnvironmentValue(store)->value(), "x");
    QCOMPARE(nodes.size(), std::size_t(3)); // no comment without a description
}

void TestConfigVariable::multiVariableStoresOneElementAValue()
{
    DtVariables variables;
    variables.parse({"-F", "a", "-F", "b"});
    DtEnvironment store(std::make_shared<DtEnvObject>("", ""));
    const auto node = variables.files.getEnvironmentValue(store);
    COMPARE_TEXT(node->name(), "fomDefFile");
    QCOMPARE(dump(store), QByteArray("fomDefFile (fomDefFile)\n  file (file) = a\n  file (file) = b\n"));
}

void TestConfigVariable::schemaDescribesATypeOnce()
{
    DtVariables variables;
    DtEnvironment schema(std::make_shared<DtEnvObject>("", ""));
    std::set<DtString> types;
    variables.generate.getEnvironmentSchemaType(schema, types);
    variables.all.getEnvironmentSchemaType(schema, types);
    variables.output.getEnvironmentSchemaType(schema, types);
    QVERIFY((types == std::set<DtString>{"bool", "string"}));
    QCOMPARE(dump(schema), QByteArray("minOccurs (attribute) = 0\n"
                                      "bool (simpleType)\n"
                                      "  restriction (restriction)\n"
                                      "    base (attribute) = xs:boolean\n"
                                      "string (simpleType)\n"
                                      "  restriction (restriction)\n"
                                      "    base (attribute) = xs:string\n"));
}

void TestConfigVariable::requiredVariableHasNoMinimum()
{
    DtEnvironment schema(std::make_shared<DtEnvObject>("", ""));
    std::set<DtString> types{"string"};
    DtConfigVariable<DtString> text(nullptr, "n", "", "", DtScopeBoth, true, "");
    text.getEnvironmentSchemaType(schema, types);
    QCOMPARE(dump(schema), QByteArray());
}

void TestConfigVariable::multiVariableHasNoSchema()
{
    DtVariables variables;
    DtEnvironment schema(std::make_shared<DtEnvObject>("", ""));
    std::set<DtString> types;
    variables.files.getEnvironmentSchemaType(schema, types);
    QVERIFY(types.empty());
    QCOMPARE(dump(schema), QByteArray());
}

void TestConfigVariable::typesAreNamed()
{
    const DtVariables variables;
    COMPARE_TEXT(variables.all.type(), DtVarType<bool>::nativeNameOfType());
    COMPARE_TEXT(variables.output.type(), DtVarType<DtString>::nativeNameOfType());
    COMPARE_TEXT(variables.files.type(), "list");
    COMPARE_TEXT(DtVarType<DtString>::convertFromArgType(DtVarType<DtString>::convertToArgType("a b")), "a b");
}

QX_REGISTER_TEST(TestConfigVariable)
#include "testConfigVariable.moc"
