#include "codeGenApp/codeGenInitializer.h"
#include "modelTools/configKeys.h"
#include "registerTest.h"
#include "testSupport.h"
#include "toolTest.h"

#include <QtTest/QtTest>

namespace
{
const QString theConfiguration = QStringLiteral(QX_SOURCE_DIR "/data/config/codeGenConfig.xml");

QStringList sorted(QStringList names)
{
    names.sort();
    return names;
}

// A value other than the shipped one.
std::string otherValue(const DtConfigKey& key)
{
    switch (key.kind)
    {
    case DtConfigKey::Text:
    case DtConfigKey::Identifier:
    case DtConfigKey::Namespace:
    case DtConfigKey::SubDirectory:
        return "other";
    case DtConfigKey::Flag:
        return "false";
    case DtConfigKey::Number:
        break;
    }
    return "7";
}
} // namespace

class TestConfigKeys : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init() { QVERIFY(myConfiguration.parseConfigFile(theConfiguration.toUtf8().constData())); }

    void tableHasTheKeysOfTheShippedConfiguration()
    {
        const QString text = QString::fromUtf8(readTextFile(theConfiguration));
        const QString settings = text.left(text.indexOf("<scripts>"));
        QStringList expected;
        QRegularExpressionMatchIterator each = QRegularExpression("<var name=\"([^\"]+)\"").globalMatch(settings);
        while (each.hasNext())
            expected += each.next().captured(1);
        QVERIFY(expected.size() > 10);
        QStringList actual;
        for (const DtConfigKey& key : DtConfigKeys())
            actual += QString::fromLatin1(key.name);
        QCOMPARE(sorted(actual), sorted(expected));
    }

    void shippedValuesFitTheirKinds()
    {
        for (const DtConfigKey& key : DtConfigKeys())
        {
            if (key.refusal != nullptr)
                continue;
            const std::string value = myConfiguration.getVariableValue(key.name).stdString();
            COMPARE_TEXT(errorOf(key.name + ("=" + value)), "");
        }
    }

    // The document type is that of the file that is saved with the new values in it.
    void configurationStaysValidWithEachKeySet()
    {
        for (const DtConfigKey& key : DtConfigKeys())
        {
            if (key.refusal != nullptr)
                continue;
            DtSetConfigKey(myConfiguration, key.name + ("=" + otherValue(key)));
            COMPARE_TEXT(myConfiguration.getVariableValue(key.name), otherValue(key).c_str());
        }
        const DtTestFolder folder;
        const std::string saved = (folder.path() / "saved.xml").native();
        QVERIFY(myConfiguration.saveConfigFile(DtString(saved)));
        if (QStandardPaths::findExecutable("xmllint").isEmpty())
            QSKIP("xmllint is not installed: the configuration is not held against its document type.");
        QProcess lint;
        lint.setProcessChannelMode(QProcess::MergedChannels);
        lint.start("xmllint", {"--noout", "--nonet", "--dtdvalid", QX_SOURCE_DIR "/data/config/codeGenConfig.dtd",
                               QString::fromStdString(saved)});
        QVERIFY(lint.waitForFinished());
        QVERIFY2(lint.exitCode() == 0, lint.readAll().constData());
    }

    void fieldsFollow()
    {
        for (const char* setting : {"prefixName=Ab", "namespaceName=nn", "includeName=inc/deep", "firstPduKind=200",
                                    "generateDIS=true", "generate64Bit=false"})
            DtSetConfigKey(myConfiguration, setting);
        myConfiguration.applySettings();
        COMPARE_TEXT(myConfiguration.prefixName(), "Ab");
        COMPARE_TEXT(myConfiguration.namespaceName(), "nn");
        COMPARE_TEXT(myConfiguration.includeName(), "inc/deep");
        QCOMPARE(myConfiguration.firstPduKind(), 200);
        QVERIFY(myConfiguration.generateDis());
        QVERIFY(!myConfiguration.generate64Bit());
    }

    void goodValuesAreTaken_data()
    {
        QTest::addColumn<QByteArray>("setting");
        for (const char* setting :
             {"prefixName=", "prefixName=_a1", "prefixName=int", "namespaceName=Z", "includeName=", "includeName=a",
              "includeName=a/b", "includeName=a b", "firstPduKind=0", "firstPduKind=007", "firstPduKind=999999999",
              "generateDIS=true", "generateDIS=false"})
            QTest::newRow(setting) << QByteArray(setting);
    }
    void goodValuesAreTaken()
    {
        QFETCH(QByteArray, setting);
        COMPARE_TEXT(errorOf(setting.constData()), "");
        const QByteArray key = setting.left(setting.indexOf('='));
        COMPARE_TEXT(myConfiguration.getVariableValue(key.constData()), setting.mid(key.size() + 1));
    }

    void directoriesLoseWhatShellsAndPeopleAddToThem_data()
    {
        QTest::addColumn<QByteArray>("given");
        QTest::addColumn<QByteArray>("kept");
        const auto row = [](const char* given, const char* kept)
        { QTest::newRow(given) << QByteArray(given) << QByteArray(kept); };
        row("inc/", "inc");
        row("inc//deep///", "inc/deep");
        row("./inc", "inc");
        row("a/../b", "b");
        row(".", "");
        row("./", "");
        row("a/..", "");
    }
    void directoriesLoseWhatShellsAndPeopleAddToThem()
    {
        QFETCH(QByteArray, given);
        QFETCH(QByteArray, kept);
        COMPARE_TEXT(errorOf("includeName=" + given.toStdString()), "");
        COMPARE_TEXT(myConfiguration.getVariableValue("includeName"), kept);
    }

    void badValuesAreErrorsThatTellWhatIsTaken_data()
    {
        QTest::addColumn<QByteArray>("key");
        QTest::addColumn<QByteArray>("value");
        QTest::addColumn<QByteArray>("expected");
        const auto rows = [](const char* key, const std::vector<const char*>& values, const char* expected)
        {
            for (const char* value : values)
                QTest::addRow("%s=%s", key, value) << QByteArray(key) << QByteArray(value) << QByteArray(expected);
        };
        rows("prefixName", {"1a", "a b", "a-b", "a::b", "\xc3\xa4", "a\n", " "}, "an identifier of C++");
        rows("namespaceName", {"class", "namespace", "int", "a b"}, "an identifier of C++ that is no keyword");
        rows("includeName", {"..", "../a", "/a", "a/../../b"}, "a directory below the output");
        rows("generateDIS", {"", "1", "yes", "TRUE", "true "}, "true or false");
        rows("firstPduKind", {"", "-1", "+1", "1.5", "1x", " 1", "0x10", "9999999999"}, "a number from 0 on");
    }
    void badValuesAreErrorsThatTellWhatIsTaken()
    {
        QFETCH(QByteArray, key);
        QFETCH(QByteArray, value);
        QFETCH(QByteArray, expected);
        const DtString before = myConfiguration.getVariableValue(key.constData());
        COMPARE_TEXT(errorOf((key + "=" + value).toStdString()),
                     "1: \"" + value + "\" is no value of the key \"" + key + "\", which takes " + expected + ".");
        COMPARE_TEXT(myConfiguration.getVariableValue(key.constData()), before.c_str());
    }

    void valueMayHoldEqualsSigns()
    {
        COMPARE_TEXT(errorOf("prefixName=a=b"),
                     "1: \"a=b\" is no value of the key \"prefixName\", which takes an identifier of C++.");
    }

    void otherTextsAreErrors_data()
    {
        QTest::addColumn<QByteArray>("setting");
        QTest::addColumn<QByteArray>("error");
        const auto row = [](const char* setting, const char* error)
        { QTest::newRow(setting) << QByteArray(setting) << QByteArray(error); };
        row("prefixName", "1: --set takes KEY=VALUE, not \"prefixName\".");
        row("", "1: --set takes KEY=VALUE, not \"\".");
        row("=x", "1: there is no key \"\" in the configuration.");
        row("prefixname=x", "1: there is no key \"prefixname\" in the configuration. Did you mean prefixName?");
        row("generateDis=true", "1: there is no key \"generateDis\" in the configuration. Did you mean generateDIS or "
                                "generate64Bit?");
        row("unheardOf=1", "1: there is no key \"unheardOf\" in the configuration.");
        row("logFile=x", "1: there is no key \"logFile\" in the configuration."); // a refused key is no remedy
        row("logFileName=x", "1: the key \"logFileName\" cannot be set: it would write a file outside of the output; "
                             "redirect standard error.");
        row("notifyLevel=3", "1: the key \"notifyLevel\" cannot be set: -q and -v say how much is told.");
        row("genCpp.txt=true", "1: there is no key \"genCpp.txt\" in the configuration.");
    }
    void otherTextsAreErrors()
    {
        QFETCH(QByteArray, setting);
        QFETCH(QByteArray, error);
        COMPARE_TEXT(errorOf(setting.constData()), error);
    }

    void shippedAndSavedConfigurationsAreGood()
    {
        COMPARE_TEXT(errorOfFile(theConfiguration.toStdString()), "");
        myConfiguration.setGenerateErrors(true); // saved under a key that nothing reads
        myConfiguration.setPrefixName("Ab");
        myConfiguration.setScriptMap({
            {"genCpp.txt", true}
        });
        const DtTestFolder folder;
        const std::string saved = (folder.path() / "saved.xml").native();
        QVERIFY(myConfiguration.saveConfigFile(DtString(saved)));
        COMPARE_TEXT(errorOfFile(saved), "");
    }

    void filesAreLookedThrough_data()
    {
        QTest::addColumn<QByteArray>("text");
        QTest::addColumn<QByteArray>("error"); // FILE stands for the path
        const auto row = [](const char* name, const char* text, const char* error)
        { QTest::newRow(name) << QByteArray(text) << QByteArray(error); };
        const char* const unreadable = "2: the configuration FILE cannot be read.";
        row("empty", "", unreadable);
        row("cut off", "<codeGenConfig><defaults>", unreadable);
        row("other root", "<config><!--<codeGenConfig/>--></config>", unreadable);
        row("no settings", "<codeGenConfig/>", "");
        row("comment", "<codeGenConfig><user><!--c--></user></codeGenConfig>", "");
        row("script",
            "<codeGenConfig><user><scripts><var name=\"own.txt\" value=\"x\"/></scripts></user></codeGenConfig>", "");
        row("unknown key", "<codeGenConfig><defaults><var name=\"prefixNmae\" value=\"\"/></defaults></codeGenConfig>",
            "2: FILE, list \"defaults\": there is no key \"prefixNmae\" in a configuration. Did you mean prefixName?");
        row("bad value", "<codeGenConfig><user><var name=\"generateDIS\" value=\"TRUE\"/></user></codeGenConfig>",
            "2: FILE, list \"user\": \"TRUE\" is no value of the key \"generateDIS\", which takes true or false.");
        row("no value", "<codeGenConfig><user><var name=\"firstPduKind\"/></user></codeGenConfig>",
            "2: FILE, list \"user\": \"\" is no value of the key \"firstPduKind\", which takes a number from 0 on.");
        row("verbosity", "<codeGenConfig><user><var name=\"notifyLevel\" value=\"4\"/></user></codeGenConfig>", "");
        row("no log", "<codeGenConfig><user><var name=\"logFileName\" value=\"\"/></user></codeGenConfig>", "");
        row("log", "<codeGenConfig><user><var name=\"logFileName\" value=\"a.log\"/></user></codeGenConfig>",
            "2: FILE, list \"user\": the key \"logFileName\" has to be empty: it would write a file outside of the "
            "output; redirect standard error.");
    }
    void filesAreLookedThrough()
    {
        QFETCH(QByteArray, text);
        QFETCH(QByteArray, error);
        const DtTestFolder folder;
        const std::string file = (folder.path() / "own.xml").native();
        writeBytes(file, text.toStdString());
        COMPARE_TEXT(errorOfFile(file), error.replace("FILE", file.c_str()));
    }

    void missingFileCannotBeRead()
    {
        COMPARE_TEXT(errorOfFile("/gone/own.xml"), "2: the configuration /gone/own.xml cannot be read.");
    }

private:
    static std::string errorOfFile(const std::string& path)
    {
        return failureOf([&path] { DtCheckConfigFile(path); });
    }
    std::string errorOf(const std::string& setting)
    {
        return failureOf([this, &setting] { DtSetConfigKey(myConfiguration, setting); });
    }

    DtCodeGenInitializer myConfiguration;
};

QX_REGISTER_TEST(TestConfigKeys)
#include "testConfigKeys.moc"
