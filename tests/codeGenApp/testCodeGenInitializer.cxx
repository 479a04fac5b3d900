#include "codeGenApp/codeGenInitializer.h"
#include "foundation/envXmlReader.h"
#include "registerTest.h"
#include "testSupport.h"

#include <QtTest/QtTest>

#include <ctime>
#include <libxml/parser.h>
#include <libxml/valid.h>

#define COMPARE_TEXT(actual, expected) QCOMPARE(QByteArray((actual).c_str()), QByteArray(expected))

class TestCodeGenInitializer : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();
    void compiledInDefaultsHoldBeforeAnyRead();
    void unreadableFileLeavesEveryFieldAsItWas_data();
    void unreadableFileLeavesEveryFieldAsItWas();
    void everyKeyIsRead();
    void allDatatypesIsOffWithoutAWarningWhenItIsMissing();
    void userValueWinsOverDefault();
    void varWithoutAValueCountsAsNotFound();
    void missingKeyIsNamedAndGivesFalse();
    void missingKeysAreNamedInTheOrderOfReading();
    void flagsAreTrueForTheExactWordOnly();
    void encodeSizeInStringsWinsOverTheMapping_data();
    void encodeSizeInStringsWinsOverTheMapping();
    void generateErrorsIsReadFromAnotherKeyThanItIsSavedTo();
    void savedGenerateErrorsIsLostAtTheNextStart();
    void includeStandardMimIsNeverStored();
    void notifyLevelIsTakenWhenNotZero_data();
    void notifyLevelIsTakenWhenNotZero();
    void notifyLevelMayStandInTheUserList();
    void settersWriteTheirKeys_data();
    void settersWriteTheirKeys();
    void firstSetterMakesTheUserList();
    void setterWithoutAnyFileMakesTheUserList();
    void defaultsAreNeverTouched();
    void setterSavesNothingByItself();
    void settingCanBeSetToItself();
    void setterRepairsAVarWithoutAValue();
    void variableValueOfOneList();
    void variableCannotBeMadeWithoutAList();
    void scriptsComeFromBothLists();
    void scriptFlagIgnoresCase();
    void scriptWithoutAValueIsNotListed();
    void lastScriptOfANameCounts();
    void manyScriptsAreReadAndSavedQuickly();
    void mapIsNotClearedByParsing();
    void setScriptMapWritesTheUserList();
    void setScriptMapMakesTheUserListToo();
    void entriesNoLongerInTheMapStayInTheList();
    void savedFileHasTheStatedForm();
    void savedFileIsReadBackToTheSame();
    void commentsSurviveSaving();
    void saveFailsWithoutADirectory();
    void nothingIsSavedWhenItIsNotToBe();
    void storeOfAnotherFileIsSavedWithoutItsSettings();
    void copiesShareTheStore();
    void shippedConfigurationHoldsEveryKey();
    void shippedConfigurationIsValid();

private:
    void write(const QByteArray& lists);
    QString parse(DtCodeGenInitializer& initializer); // what is said on DtWarn

    std::unique_ptr<QTemporaryDir> myDirectory;
    std::unique_ptr<DtInDirectory> myHere;
    std::unique_ptr<DtSaved<int>> myLevel;
};

namespace
{
const char* const theKeys[] = {
    "logFileName",
    "namespaceName",
    "includeName",
    "prefixName",
    "firstPduKind",
    "generateExamples",
    "generate64Bit",
    "useErrorForNonDecodableAttrs",
    "dumpParseTree",
    "generateDIS",
    "mapRtiObjectIdToGlobalId",
    "encodeSizeInStrings",
    "includeStandardMIM",
    "encodeSizeInArrays",
    "sizeOfArrayLength",
    "notifyLevel",
};

QByteArray var(const QByteArray& name, const QByteArray& value)
{
    return "<var name='" + name + "' value='" + value + "'/>";
}

// A list of defaults with every key, so that a test sees no warnings but its own; `lines` stand behind and count more.
QByteArray defaultsWith(const QByteArray& lines)
{
    QByteArray all;
    for (const char* key : theKeys)
        all += var(key, "");
    return "<defaults>" + all + lines + "</defaults>";
}

QString warning(const char* key)
{
    return QString("Initializer: no var found with name: %1\n").arg(key);
}
} // namespace

void TestCodeGenInitializer::init()
{
    myDirectory = std::make_unique<QTemporaryDir>();
    myHere = std::make_unique<DtInDirectory>(myDirectory->path());
    myLevel = std::make_unique<DtSaved<int>>(DtNotifyLevel);
}

void TestCodeGenInitializer::cleanup()
{
    myLevel.reset();
    myHere.reset();
    myDirectory.reset();
}

void TestCodeGenInitializer::write(const QByteArray& lists)
{
    writeTextFile("config.xml", "<codeGenConfig>" + lists + "</codeGenConfig>");
}

QString TestCodeGenInitializer::parse(DtCodeGenInitializer& initializer)
{
    const DtCapture capture(DtWarn);
    if (!initializer.parseConfigFile("config.xml"))
        qFatal("config.xml could not be read");
    return capture.text();
}

void TestCodeGenInitializer::compiledInDefaultsHoldBeforeAnyRead()
{
    const DtCodeGenInitializer initializer;
    QVERIFY(initializer.logFileName().isEmpty());
    QVERIFY(initializer.namespaceName().isEmpty());
    QVERIFY(initializer.includeName().isEmpty());
    QVERIFY(initializer.prefixName().isEmpty());
    QCOMPARE(initializer.firstPduKind(), 0);
    QVERIFY(initializer.generateExamples());
    QVERIFY(initializer.generate64Bit());
    QVERIFY(!initializer.generateErrors());
    QVERIFY(!initializer.generateDis());
    QVERIFY(!initializer.dumpParseTree());
    QVERIFY(initializer.mapRtiObjIdToGlobalId());
    QVERIFY(initializer.includeStandardMIM());
    QVERIFY(initializer.scriptMap().empty());
}

void TestCodeGenInitializer::unreadableFileLeavesEveryFieldAsItWas_data()
{
    QTest::addColumn<QByteArray>("text");
    QTest::newRow("missing") << QByteArray();
    QTest::newRow("malformed") << QByteArray("<codeGenConfig><defaults>");
    QTest::newRow("no XML") << QByteArray("generate64Bit = false");
}

void TestCodeGenInitializer::unreadableFileLeavesEveryFieldAsItWas()
{
    QFETCH(QByteArray, text);
    if (!text.isNull())
        writeTextFile("config.xml", text);
    DtCodeGenInitializer initializer;
    initializer.setPrefixName("Qx");
    const DtCapture capture(DtWarn);
    QVERIFY(!initializer.parseConfigFile("config.xml"));
    QCOMPARE(capture.text(), QString());
    COMPARE_TEXT(initializer.prefixName(), "Qx");
    QVERIFY(initializer.generateExamples());
    QVERIFY(initializer.generate64Bit());
    QVERIFY(initializer.mapRtiObjIdToGlobalId());
    QVERIFY(initializer.includeStandardMIM());
    COMPARE_TEXT(initializer.getVariableValue("prefixName"), "Qx");
}

void TestCodeGenInitializer::everyKeyIsRead()
{
    write(defaultsWith(var("logFileName", "a.log") + var("namespaceName", "ns") + var("includeName", "inc") +
                       var("prefixName", "Qx") + var("firstPduKind", "129") + var("generateExamples", "true") +
                       var("generate64Bit", "true") + var("useErrorForNonDecodableAttrs", "true") +
                       var("dumpParseTree", "true") + var("generateDIS", "true") + var("encodeSizeInStrings", "true") +
                       var("includeStandardMIM", "true") + var("codeOpenArrays", "true") +
                       var("allDatatypes", "true")));
    DtCodeGenInitializer initializer;
    QCOMPARE(parse(initializer), QString());
    COMPARE_TEXT(initializer.logFileName(), "a.log");
    COMPARE_TEXT(initializer.namespaceName(), "ns");
    COMPARE_TEXT(initializer.includeName(), "inc");
    COMPARE_TEXT(initializer.prefixName(), "Qx");
    QCOMPARE(initializer.firstPduKind(), 129);
    QVERIFY(initializer.generateExamples());
    QVERIFY(initializer.generate64Bit());
    QVERIFY(initializer.generateErrors());
    QVERIFY(initializer.dumpParseTree());
    QVERIFY(initializer.generateDis());
    QVERIFY(initializer.mapRtiObjIdToGlobalId());
    QVERIFY(initializer.includeStandardMIM());
    QVERIFY(initializer.codeOpenArrays());
    QVERIFY(initializer.allDatatypes());
}

// A file from before it came has no such key, and a user cannot do anything about that.
void TestCodeGenInitializer::allDatatypesIsOffWithoutAWarningWhenItIsMissing()
{
    write(defaultsWith(""));
    DtCodeGenInitializer initializer;
    QCOMPARE(parse(initializer), QString());
    QVERIFY(!initializer.allDatatypes());
    write(defaultsWith(var("allDatatypes", "true")) + "<user>" + var("allDatatypes", "false") + "</user>");
    QCOMPARE(parse(initializer), QString());
    QVERIFY(!initializer.allDatatypes());
    initializer.setVariableValue("allDatatypes", "true");
    initializer.applySettings();
    QVERIFY(initializer.allDatatypes());
}

void TestCodeGenInitializer::userValueWinsOverDefault()
{
    write(defaultsWith(var("prefixName", "Default")) + "<user>" + var("prefixName", "User") + "</user>");
    DtCodeGenInitializer initializer;
    QCOMPARE(parse(initializer), QString());
    COMPARE_TEXT(initializer.prefixName(), "User");
}

void TestCodeGenInitializer::varWithoutAValueCountsAsNotFound()
{
    write(defaultsWith(var("prefixName", "Default")) + "<user><var name='prefixName'/></user>");
    DtCodeGenInitializer initializer;
    QCOMPARE(parse(initializer), QString());
    COMPARE_TEXT(initializer.prefixName(), "Default");
}

void TestCodeGenInitializer::missingKeyIsNamedAndGivesFalse()
{
    QByteArray all = defaultsWith("");
    all.replace(var("generateExamples", ""), "");
    write(all);
    DtCodeGenInitializer initializer;
    QCOMPARE(parse(initializer), warning("generateExamples"));
    QVERIFY(!initializer.generateExamples());
}

void TestCodeGenInitializer::missingKeysAreNamedInTheOrderOfReading()
{
    write("");
    DtCodeGenInitializer initializer;
    QString expected;
    for (const char* key : theKeys)
        expected += warning(key);
    QCOMPARE(parse(initializer), expected);
    QVERIFY(!initializer.generate64Bit());
    QVERIFY(!initializer.mapRtiObjIdToGlobalId());
    QVERIFY(!initializer.includeStandardMIM());
}

void TestCodeGenInitializer::flagsAreTrueForTheExactWordOnly()
{
    write(defaultsWith(var("generateExamples", "True") + var("generate64Bit", " true") + var("dumpParseTree", "1") +
                       var("generateDIS", "true")));
    DtCodeGenInitializer initializer;
    parse(initializer);
    QVERIFY(!initializer.generateExamples());
    QVERIFY(!initializer.generate64Bit());
    QVERIFY(!initializer.dumpParseTree());
    QVERIFY(initializer.generateDis());
}

void TestCodeGenInitializer::encodeSizeInStringsWinsOverTheMapping_data()
{
    QTest::addColumn<QByteArray>("mapping");
    QTest::addColumn<QByteArray>("strings");
    QTest::addColumn<bool>("expected");
    QTest::newRow("strings on") << QByteArray("false") << QByteArray("true") << true;
    QTest::newRow("strings off") << QByteArray("true") << QByteArray("false") << false;
    QTest::newRow("strings missing") << QByteArray("true") << QByteArray() << false;
}

void TestCodeGenInitializer::encodeSizeInStringsWinsOverTheMapping()
{
    QFETCH(QByteArray, mapping);
    QFETCH(QByteArray, strings);
    QByteArray all = defaultsWith(var("mapRtiObjectIdToGlobalId", mapping));
    all.replace(var("encodeSizeInStrings", ""), strings.isNull() ? "" : var("encodeSizeInStrings", strings));
    write(all);
    DtCodeGenInitializer initializer;
    QCOMPARE(parse(initializer), strings.isNull() ? warning("encodeSizeInStrings") : QString());
    QTEST(initializer.mapRtiObjIdToGlobalId(), "expected");
}

void TestCodeGenInitializer::generateErrorsIsReadFromAnotherKeyThanItIsSavedTo()
{
    write(defaultsWith(var("useErrorForNonDecodableAttrs", "true") + var("generateErrors", "false")));
    DtCodeGenInitializer initializer;
    parse(initializer);
    QVERIFY(initializer.generateErrors());
    initializer.setGenerateErrors(false);
    QVERIFY(!initializer.generateErrors());
    COMPARE_TEXT(initializer.getVariableValue("generateErrors"), "false");
    COMPARE_TEXT(initializer.getVariableValue("useErrorForNonDecodableAttrs"), "true");
}

void TestCodeGenInitializer::savedGenerateErrorsIsLostAtTheNextStart()
{
    write(defaultsWith(var("useErrorForNonDecodableAttrs", "false")));
    DtCodeGenInitializer initializer;
    parse(initializer);
    initializer.setGenerateErrors(true);
    QVERIFY(initializer.saveConfigFile("config.xml"));
    DtCodeGenInitializer next;
    parse(next);
    QVERIFY(!next.generateErrors());
    COMPARE_TEXT(next.getVariableValue("generateErrors"), "true");
}

void TestCodeGenInitializer::includeStandardMimIsNeverStored()
{
    write(defaultsWith(var("includeStandardMIM", "true")));
    DtCodeGenInitializer initializer;
    parse(initializer);
    initializer.setIncludeStandardMIM(false);
    QVERIFY(!initializer.includeStandardMIM());
    COMPARE_TEXT(initializer.getVariableValue("includeStandardMIM"), "true");
}

void TestCodeGenInitializer::notifyLevelIsTakenWhenNotZero_data()
{
    QTest::addColumn<QByteArray>("value");
    QTest::addColumn<int>("expected");
    QTest::newRow("zero") << QByteArray("0") << 2;
    QTest::newRow("empty") << QByteArray("") << 2;
    QTest::newRow("no number") << QByteArray("high") << 2;
    QTest::newRow("four") << QByteArray("4") << 4;
    QTest::newRow("negative") << QByteArray("-1") << -1;
    QTest::newRow("number with a tail") << QByteArray("3x") << 3;
}

void TestCodeGenInitializer::notifyLevelIsTakenWhenNotZero()
{
    QFETCH(QByteArray, value);
    DtNotifyLevel = 2;
    write(defaultsWith(var("notifyLevel", value)));
    DtCodeGenInitializer initializer;
    parse(initializer);
    QTEST(DtNotifyLevel, "expected");
}

void TestCodeGenInitializer::notifyLevelMayStandInTheUserList()
{
    DtNotifyLevel = 2;
    write(defaultsWith(var("notifyLevel", "3")) + "<user>" + var("notifyLevel", "4") + "</user>");
    DtCodeGenInitializer initializer;
    parse(initializer);
    QCOMPARE(DtNotifyLevel, 4);
}

void TestCodeGenInitializer::settersWriteTheirKeys_data()
{
    QTest::addColumn<QByteArray>("value");
    for (const char* key : {"logFileName", "namespaceName", "includeName", "prefixName"})
        QTest::newRow(key) << QByteArray("text");
    QTest::newRow("firstPduKind") << QByteArray("-7");
    for (const char* key : {"generateExamples", "generate64Bit", "generateErrors", "dumpParseTree", "generateDIS",
                            "mapRtiObjectIdToGlobalId"})
        QTest::newRow(key) << QByteArray("true");
}

void TestCodeGenInitializer::settersWriteTheirKeys()
{
    QFETCH(QByteArray, value);
    const QByteArray key = QTest::currentDataTag();
    write(defaultsWith(""));
    DtCodeGenInitializer initializer;
    parse(initializer);
    const std::map<QByteArray, std::function<void()>> setters{
        {"logFileName",              [&] { initializer.setLogFileName("text"); }        },
        {"namespaceName",            [&] { initializer.setNamespaceName("text"); }      },
        {"includeName",              [&] { initializer.setIncludeName("text"); }        },
        {"prefixName",               [&] { initializer.setPrefixName("text"); }         },
        {"firstPduKind",             [&] { initializer.setFirstPduKind(-7); }           },
        {"generateExamples",         [&] { initializer.setGenerateExamples(true); }     },
        {"generate64Bit",            [&] { initializer.setGenerate64Bit(true); }        },
        {"generateErrors",           [&] { initializer.setGenerateErrors(true); }       },
        {"dumpParseTree",            [&] { initializer.setDumpParseTree(true); }        },
        {"generateDIS",              [&] { initializer.setGenerateDis(true); }          },
        {"mapRtiObjectIdToGlobalId", [&] { initializer.setMapRtiObjIdToGlobalId(true); }},
    };
    setters.at(key)();
    COMPARE_TEXT(initializer.getVariableValue(key.constData()), value);
    QVERIFY(initializer.saveConfigFile("saved.xml"));
    QVERIFY(readTextFile("saved.xml")
                .contains("<user>\n        <var name=\"" + key + "\" value=\"" + value + "\"/>\n    </user>"));
}

void TestCodeGenInitializer::firstSetterMakesTheUserList()
{
    write(defaultsWith(""));
    DtCodeGenInitializer initializer;
    parse(initializer);
    QVERIFY(initializer.saveConfigFile("saved.xml"));
    QVERIFY(!readTextFile("saved.xml").contains("<user"));
    initializer.setNamespaceName("ns");
    initializer.setIncludeName("inc");
    QVERIFY(initializer.saveConfigFile("saved.xml"));
    const QByteArray saved = readTextFile("saved.xml");
    QCOMPARE(saved.count("<user>"), 1);
    QVERIFY(saved.indexOf("<user>") > saved.indexOf("</defaults>"));
}

void TestCodeGenInitializer::setterWithoutAnyFileMakesTheUserList()
{
    DtCodeGenInitializer initializer;
    initializer.setPrefixName("Qx");
    QVERIFY(initializer.saveConfigFile("config.xml"));
    DtCodeGenInitializer next;
    parse(next);
    COMPARE_TEXT(next.prefixName(), "Qx");
}

void TestCodeGenInitializer::defaultsAreNeverTouched()
{
    write(defaultsWith(var("prefixName", "Default")));
    DtCodeGenInitializer initializer;
    parse(initializer);
    initializer.setPrefixName("User");
    initializer.setScriptMap({
        {"a.txt", true}
    });
    QVERIFY(initializer.saveConfigFile("saved.xml"));
    bool isGood = false;
    const DtEnvironment saved = DtEnvXMLReader(true).readFile("saved.xml", &isGood);
    QVERIFY(isGood);
    const DtEnvironment defaults(saved.getNamedList("defaults"));
    COMPARE_TEXT(defaults.getObject("prefixName", "var")->value(), "Default");
    QVERIFY(defaults.getNamedList("scripts") == nullptr);
}

void TestCodeGenInitializer::setterSavesNothingByItself()
{
    write(defaultsWith(""));
    const QByteArray before = readTextFile("config.xml");
    DtCodeGenInitializer initializer;
    parse(initializer);
    initializer.setPrefixName("Qx");
    initializer.setScriptMap({
        {"a.txt", true}
    });
    QCOMPARE(readTextFile("config.xml"), before);
}

void TestCodeGenInitializer::settingCanBeSetToItself()
{
    DtCodeGenInitializer initializer;
    initializer.setPrefixName("a text that is too long to be kept in place");
    initializer.setPrefixName(initializer.prefixName());
    COMPARE_TEXT(initializer.prefixName(), "a text that is too long to be kept in place");
    initializer.setScriptMap({
        {"a.txt", true}
    });
    initializer.setScriptMap(initializer.scriptMap());
    QCOMPARE(initializer.scriptMap().size(), std::size_t(1));
}

void TestCodeGenInitializer::setterRepairsAVarWithoutAValue()
{
    write(defaultsWith("") + "<user><var name='prefixName'/></user>");
    DtCodeGenInitializer initializer;
    parse(initializer);
    initializer.setPrefixName("Qx");
    initializer.setPrefixName("Qy");
    QVERIFY(initializer.saveConfigFile("config.xml"));
    QCOMPARE(readTextFile("config.xml").count("name=\"prefixName\""), 3); // the default, the old one, the new one
    DtCodeGenInitializer next;
    parse(next);
    COMPARE_TEXT(next.prefixName(), "Qy");
}

void TestCodeGenInitializer::variableValueOfOneList()
{
    DtCodeGenInitializer initializer;
    DtEnvironment list;
    list.addObject("a", "var")->setValue("1");
    list.addObject("b", "other")->setValue("2");
    list.addObject("c", "var");
    bool found = false;
    COMPARE_TEXT(initializer.getVariableValue(list, "a", found), "1");
    QVERIFY(found);
    for (const char* name : {"b", "c", "d"})
    {
        found = true;
        COMPARE_TEXT(initializer.getVariableValue(list, name, found), "");
        QVERIFY(!found);
    }
    QVERIFY(initializer.setVariableValue("d", "4", list));
    COMPARE_TEXT(initializer.getVariableValue(list, "d", found), "4");
    QVERIFY(initializer.setVariableValue("a", "new", list));
    COMPARE_TEXT(initializer.getVariableValue(list, "a", found), "new");
}

void TestCodeGenInitializer::variableCannotBeMadeWithoutAList()
{
    DtCodeGenInitializer initializer;
    DtEnvironment nowhere;
    const DtCapture capture(DtWarn);
    QVERIFY(!initializer.setVariableValue("a", "1", nowhere));
    QCOMPARE(capture.text(), QString("Initializer: Error creating var with name: a\n"));
}

void TestCodeGenInitializer::scriptsComeFromBothLists()
{
    write(defaultsWith("<scripts>" + var("both.txt", "true") + var("default.txt", "true") + "</scripts>") +
          "<user><scripts>" + var("both.txt", "false") + var("user.txt", "true") + "</scripts></user>");
    DtCodeGenInitializer initializer;
    QCOMPARE(parse(initializer), QString());
    QVERIFY((initializer.scriptMap() == std::map<DtString, bool>{
                                            {"both.txt",    false},
                                            {"default.txt", true },
                                            {"user.txt",    true }
    }));
}

void TestCodeGenInitializer::scriptFlagIgnoresCase()
{
    write(defaultsWith("<scripts>" + var("a.txt", "TRUE") + var("b.txt", "yes") + "</scripts>"));
    DtCodeGenInitializer initializer;
    parse(initializer);
    QVERIFY((initializer.scriptMap() == std::map<DtString, bool>{
                                            {"a.txt", true },
                                            {"b.txt", false}
    }));
}

void TestCodeGenInitializer::scriptWithoutAValueIsNotListed()
{
    write(defaultsWith("<scripts><!--none--><var name='a.txt'/><other name='b.txt' value='true'/></scripts>"));
    DtCodeGenInitializer initializer;
    QCOMPARE(parse(initializer), QString());
    QVERIFY(initializer.scriptMap().empty());
}

// Also when it has no value; an object of another kind is no script.
void TestCodeGenInitializer::lastScriptOfANameCounts()
{
    write(defaultsWith("") + "<user><scripts>" + var("a.txt", "false") + var("b.txt", "true") + var("a.txt", "true") +
          var("c.txt", "true") + "<var name='c.txt'/>" + "<other name='b.txt' value='false'/>" + "</scripts></user>");
    DtCodeGenInitializer initializer;
    QCOMPARE(parse(initializer), QString());
    QVERIFY((initializer.scriptMap() == std::map<DtString, bool>{
                                            {"a.txt", true},
                                            {"b.txt", true}
    }));
    initializer.setScriptMap({
        {"a.txt", false},
        {"b.txt", false},
        {"c.txt", false}
    });
    QVERIFY(initializer.saveConfigFile("saved.xml"));
    QVERIFY(readTextFile("saved.xml")
                .contains("        <scripts>\n"
                          "            <var name=\"a.txt\" value=\"false\"/>\n"
                          "            <var name=\"b.txt\" value=\"false\"/>\n"
                          "            <var name=\"a.txt\" value=\"false\"/>\n"
                          "            <var name=\"c.txt\" value=\"true\"/>\n"
                          "            <var name=\"c.txt\"/>\n"
                          "            <other name=\"b.txt\" value=\"false\"/>\n"
                          "            <var name=\"c.txt\" value=\"false\"/>\n"
                          "        </scripts>\n"));
}

void TestCodeGenInitializer::manyScriptsAreReadAndSavedQuickly()
{
    const int count = 20000;
    QByteArray scripts;
    std::map<DtString, bool> others;
    for (int i = 0; i < count; ++i)
    {
        scripts += var("script" + QByteArray::number(i) + ".txt", "true");
        others[DtString("other") + DtString(i)] = i % 2 == 0;
    }
    write(defaultsWith("<scripts>" + scripts + "</scripts>") + "<user><scripts>" + scripts + "</scripts></user>");
    DtCodeGenInitializer initializer;
    const std::clock_t start = std::clock(); // of this process, however busy the machine is
    QCOMPARE(parse(initializer), QString());
    QCOMPARE(initializer.scriptMap().size(), std::size_t(count));
    initializer.setScriptMap(others);
    QVERIFY(initializer.saveConfigFile("config.xml"));
    QVERIFY2(std::clock() - start < 2 * CLOCKS_PER_SEC, "linear look-ups take much longer");
    DtCodeGenInitializer next;
    parse(next);
    QCOMPARE(next.scriptMap().size(), std::size_t(2 * count));
    QVERIFY(next.scriptMap().at("other0") && !next.scriptMap().at("other19999"));
}

void TestCodeGenInitializer::mapIsNotClearedByParsing()
{
    write(defaultsWith("<scripts>" + var("a.txt", "true") + "</scripts>"));
    DtCodeGenInitializer initializer;
    parse(initializer);
    write(defaultsWith("<scripts>" + var("a.txt", "false") + var("b.txt", "true") + "</scripts>"));
    parse(initializer);
    QVERIFY((initializer.scriptMap() == std::map<DtString, bool>{
                                            {"a.txt", true},
                                            {"b.txt", true}
    }));
}

void TestCodeGenInitializer::setScriptMapWritesTheUserList()
{
    write(defaultsWith("") + "<user/>");
    DtCodeGenInitializer initializer;
    parse(initializer);
    initializer.setScriptMap({
        {"b.txt", false},
        {"a.txt", true }
    });
    QVERIFY(initializer.saveConfigFile("saved.xml"));
    QVERIFY(readTextFile("saved.xml")
                .contains("    <user>\n"
                          "        <scripts>\n"
                          "            <var name=\"a.txt\" value=\"true\"/>\n"
                          "            <var name=\"b.txt\" value=\"false\"/>\n"
                          "        </scripts>\n"
                          "    </user>\n"));
}

void TestCodeGenInitializer::setScriptMapMakesTheUserListToo()
{
    write(defaultsWith(""));
    DtCodeGenInitializer initializer;
    parse(initializer);
    initializer.setScriptMap({
        {"a.txt", true}
    });
    QVERIFY(initializer.saveConfigFile("config.xml"));
    DtCodeGenInitializer next;
    parse(next);
    QVERIFY((next.scriptMap() == std::map<DtString, bool>{
                                     {"a.txt", true}
    }));
}

void TestCodeGenInitializer::entriesNoLongerInTheMapStayInTheList()
{
    write(defaultsWith("") + "<user><scripts>" + var("old.txt", "true") + "</scripts></user>");
    DtCodeGenInitializer initializer;
    parse(initializer);
    initializer.setScriptMap({
        {"new.txt", true}
    });
    QVERIFY((initializer.scriptMap() == std::map<DtString, bool>{
                                            {"new.txt", true}
    }));
    QVERIFY(initializer.saveConfigFile("config.xml"));
    DtCodeGenInitializer next;
    parse(next);
    QVERIFY((next.scriptMap() == std::map<DtString, bool>{
                                     {"new.txt", true},
                                     {"old.txt", true}
    }));
}

void TestCodeGenInitializer::savedFileHasTheStatedForm()
{
    DtCodeGenInitializer initializer;
    initializer.setPrefixName("a<b");
    QVERIFY(initializer.saveConfigFile("saved.xml"));
    QCOMPARE(readTextFile("saved.xml"), QByteArray("<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n"
                                                   "<!DOCTYPE codeGenConfig SYSTEM \"codeGenConfig.dtd\">\n"
                                                   "<codeGenConfig>\n"
                                                   "    <user>\n"
                                                   "        <var name=\"prefixName\" value=\"a&lt;b\"/>\n"
                                                   "    </user>\n"
                                                   "</codeGenConfig>\n"));
}

void TestCodeGenInitializer::savedFileIsReadBackToTheSame()
{
    write(defaultsWith(""));
    DtCodeGenInitializer initializer;
    parse(initializer);
    initializer.setLogFileName(" a \"b\" & c\n");
    initializer.setFirstPduKind(2147483647);
    initializer.setGenerateDis(true);
    QVERIFY(initializer.saveConfigFile("config.xml"));
    const QByteArray saved = readTextFile("config.xml");
    DtCodeGenInitializer next;
    QCOMPARE(parse(next), QString());
    COMPARE_TEXT(next.logFileName(), " a \"b\" & c\n");
    QCOMPARE(next.firstPduKind(), 2147483647);
    QVERIFY(next.generateDis());
    QVERIFY(next.saveConfigFile("config.xml"));
    QCOMPARE(readTextFile("config.xml"), saved);
}

void TestCodeGenInitializer::commentsSurviveSaving()
{
    write("<!--one--><defaults><!--two--></defaults>");
    DtCodeGenInitializer initializer;
    parse(initializer);
    QVERIFY(initializer.saveConfigFile("saved.xml"));
    QVERIFY(readTextFile("saved.xml").contains("    <!--one-->\n    <defaults>\n        <!--two-->\n"));
}

void TestCodeGenInitializer::saveFailsWithoutADirectory()
{
    DtCodeGenInitializer initializer;
    QVERIFY(!initializer.saveConfigFile("missing/config.xml"));
}

void TestCodeGenInitializer::nothingIsSavedWhenItIsNotToBe()
{
    writeTextFile("config.xml", "not readable");
    DtCodeGenInitializer initializer;
    initializer.setSaved(false);
    DtCodeGenInitializer copy(initializer);
    for (DtCodeGenInitializer* each : {&initializer, &copy})
    {
        each->setPrefixName("Qx");
        QVERIFY(!each->saveConfigFile("config.xml"));
        QVERIFY(!each->saveConfigFile("new.xml"));
    }
    QCOMPARE(readTextFile("config.xml"), QByteArray("not readable"));
    QCOMPARE(QDir().entryList(QDir::Files), QStringList("config.xml"));
    initializer.setSaved(true);
    QVERIFY(initializer.saveConfigFile("config.xml"));
    QVERIFY(readTextFile("config.xml").contains("value=\"Qx\""));
}

void TestCodeGenInitializer::storeOfAnotherFileIsSavedWithoutItsSettings()
{
    DtCodeGenInitializer initializer;
    QVERIFY(!initializer.takeStore("missing.xml"));
    QVERIFY(initializer.takeStore(QX_SOURCE_DIR "/data/config/codeGenConfig.xml"));
    QVERIFY(initializer.scriptMap().empty());
    initializer.setPrefixName("Qx");
    QVERIFY(initializer.saveConfigFile("saved.xml"));
    DtCodeGenInitializer next;
    QVERIFY(next.parseConfigFile("saved.xml"));
    QVERIFY(next.scriptMap().at("genCpp.txt"));
    COMPARE_TEXT(next.prefixName(), "Qx");
}

void TestCodeGenInitializer::copiesShareTheStore()
{
    write(defaultsWith("") + "<user/>");
    DtCodeGenInitializer initializer;
    parse(initializer);
    DtCodeGenInitializer copy(initializer);
    copy.setPrefixName("Qx");
    QVERIFY(initializer.prefixName().isEmpty()); // the field is the copy's own
    COMPARE_TEXT(initializer.getVariableValue("prefixName"), "Qx");
    DtCodeGenInitializer assigned;
    assigned = copy;
    COMPARE_TEXT(assigned.prefixName(), "Qx");
}

void TestCodeGenInitializer::shippedConfigurationHoldsEveryKey()
{
    DtNotifyLevel = 1;
    const DtCapture capture(DtWarn);
    DtCodeGenInitializer initializer;
    QVERIFY(initializer.parseConfigFile(QX_SOURCE_DIR "/data/config/codeGenConfig.xml"));
    QCOMPARE(capture.text(), QString());
    QVERIFY(initializer.includeStandardMIM());
    QVERIFY(initializer.generate64Bit());
    QVERIFY(initializer.mapRtiObjIdToGlobalId());
    COMPARE_TEXT(initializer.getVariableValue("mapRtiObjectIdToGlobalId"), "true");
    QVERIFY(!initializer.generateDis());
    QVERIFY(!initializer.generateErrors());
    COMPARE_TEXT(initializer.getVariableValue("codeOpenArrays"), "false");
    COMPARE_TEXT(initializer.getVariableValue("allDatatypes"), "false");
    QVERIFY(initializer.logFileName().isEmpty());
    QCOMPARE(DtNotifyLevel, 2);
    QVERIFY((initializer.scriptMap() ==
             std::map<DtString, bool>{
                 {"genCpp.txt",    true },
                 {"genHtml.txt",   false},
                 {"genJson.txt",   false},
                 {"genPython.txt", false}
    }));
}

void TestCodeGenInitializer::shippedConfigurationIsValid()
{
    DtCodeGenInitializer initializer;
    QVERIFY(initializer.parseConfigFile(QX_SOURCE_DIR "/data/config/codeGenConfig.xml"));
    initializer.setPrefixName("Qx");
    initializer.setScriptMap({
        {"a.txt", true}
    });
    QVERIFY(initializer.saveConfigFile("custom.xml"));
    QVERIFY(QFile::copy(QX_SOURCE_DIR "/data/config/codeGenConfig.dtd", "codeGenConfig.dtd"));
    for (const char* name : {QX_SOURCE_DIR "/data/config/codeGenConfig.xml", "custom.xml"})
    {
        xmlDoc* const document = xmlReadFile(name, nullptr, XML_PARSE_DTDVALID | XML_PARSE_NONET);
        QVERIFY2(document != nullptr, name);
        xmlValidCtxt* const context = xmlNewValidCtxt();
        const int isValid = xmlValidateDocument(context, document);
        xmlFreeValidCtxt(context);
        xmlFreeDoc(document);
        QVERIFY2(isValid == 1, name);
    }
}

QX_REGISTER_TEST(TestCodeGenInitializer)
#include "testCodeGenInitializer.moc"
