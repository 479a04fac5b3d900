// The shipped command files and their templates against what the model's context holds.

#include "registerTest.h"

#include "shippedScripts.h"
#include "templateScanner.h"

#include "fileGenerator/fileWriter.h"
#include "fileGenerator/omtWriter.h"

#include <QtCore/QDirIterator>
#include <QtTest/QtTest>

#include <map>

namespace
{
QString toText(const DtString& text)
{
    return QString::fromStdString(text.stdString());
}

// A list of the context is a loop, and its keys are the tokens of that loop.
void addKey(DtTemplateRules& rules, const DtContextKey& key)
{
    if (key.form == DtKeyForm::List)
    {
        rules.loops[toText(key.key)];
        if (!key.list.isEmpty())
            rules.parents[toText(key.key)] = toText(key.list);
        return;
    }
    DtTemplateRules::Names& names = key.list.isEmpty() ? rules.freeTokens : rules.loops[toText(key.list)];
    for (const DtString& spelling : key.spellings())
        names.insert("<!" + toText(spelling) + "!>");
}

DtTemplateRules contextRules()
{
    DtTemplateRules rules;
    rules.verbs = {"first", "notfirst", "last", "notlast"};
    rules.hasCountedLoops = false;
    rules.freeTokens = {"<!index0!>", "<!index1!>"};
    for (const DtContextKey& key : DtOMTWriter::contextKeys())
        addKey(rules, key);
    return rules;
}

// Command to the number of its arguments, the least and the most.
const std::map<QString, std::pair<int, int>> theCommands = {
    {"beginTypes",  {0, 0}},
    {"endTypes",    {0, 0}},
    {"language",    {1, 1}},
    {"templateDir", {1, 1}},
    {"subdir",      {1, 1}},
    {"file",        {2, 3}},
    {"include",     {1, 1}},
};

bool isSound(const QString& command)
{
    static const QRegularExpression theType("^setDatatype \"[^\"]+\" \"[^\"]*\"$");
    if (theType.match(command).hasMatch())
        return true;
    const QStringList words = command.split(' ');
    const auto row = theCommands.find(words.front());
    return row != theCommands.end() && words.size() > row->second.first && words.size() - 1 <= row->second.second &&
           !words.contains(QString());
}

QStringList scan(const QString& name, std::set<QString>& opened)
{
    const DtTemplateRules rules = contextRules();
    DtTemplateScanner scanner(rules, shippedData());
    const QStringList faults = scanner.scan(name, readTextFile(shippedData() + "/templates/" + name));
    opened.insert(name);
    opened.insert(scanner.includedFiles().begin(), scanner.includedFiles().end());
    return faults;
}

QStringList filesOf(const QString& directory)
{
    QStringList names;
    for (const QString& name : QDir(shippedData() + "/templates/" + directory).entryList(QDir::Files))
        names += directory + "/" + name;
    return names;
}
} // namespace

class TestCommandFiles : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void thereAreSome() { QVERIFY(shippedScripts().contains("genHtml.txt")); }

    void everyCommandIsKnownAndComplete_data() { addScripts(); }
    void everyCommandIsKnownAndComplete()
    {
        QFETCH(QString, script);
        QVERIFY(!templatesOf(script).isEmpty());
        for (const QString& command : commandsOf(script))
            QVERIFY2(isSound(command), qPrintable(command));
    }

    void configurationListsTheScriptAndLeavesItOff_data() { addScripts(); }
    void configurationListsTheScriptAndLeavesItOff()
    {
        QFETCH(QString, script);
        const QByteArray configuration = readTextFile(shippedData() + "/config/codeGenConfig.xml");
        QVERIFY(configuration.contains("<var name=\"" + script.toLatin1() + "\" value=\"false\"/>"));
    }

    void templateHoldsWhatTheContextGives_data()
    {
        QTest::addColumn<QString>("name");
        for (const QString& script : shippedScripts())
            for (const QString& name : templatesOf(script))
                QTest::newRow(qPrintable(script + " " + name)) << name;
    }
    void templateHoldsWhatTheContextGives()
    {
        QFETCH(QString, name);
        std::set<QString> opened;
        const QStringList faults = scan(name, opened);
        QVERIFY2(faults.isEmpty(), qPrintable(faults.join('\n')));
    }

    void everyTemplateOfAScriptIsOpened()
    {
        std::set<QString> opened;
        for (const QString& script : shippedScripts())
            for (const QString& name : templatesOf(script))
                scan(name, opened);
        QStringList shipped;
        for (const QString& directory : scriptTemplateDirectories())
            shipped += filesOf(directory);
        shipped.sort();
        QCOMPARE(shipped, QStringList(opened.begin(), opened.end()));
    }

    // Templates are read in pieces of 299 bytes, and what stands across the end of one is not seen.
    void linesAreShortAndHaveNoCarriageReturn()
    {
        for (const QString& directory : scriptTemplateDirectories())
            for (const QString& name : filesOf(directory))
            {
                const QByteArray text = readTextFile(shippedData() + "/templates/" + name);
                QVERIFY2(!text.isEmpty() && !text.contains('\r'), qPrintable(name));
                for (const QByteArray& line : text.split('\n'))
                    QVERIFY2(line.size() <= 298, line.constData());
            }
    }

    // A loop over a file needs a list here: the number that stands for it elsewhere is the name of no list.
    void scannerKnowsTheConditionsOfLoopsAndNoCountedLoop()
    {
        const DtTemplateRules rules = contextRules();
        const auto scan = [&](const QByteArray& text)
        { return DtTemplateScanner(rules, shippedData()).scan("t", text).value(0); };
        QCOMPARE(scan("<#Objects><?notlast>,<?><!ObjectNameHtml!><#Attributes><!AttributeNameId!><#><#>"), QString());
        QCOMPARE(scan("<#2>x<#>"), QString("t:1: the writer does not know the loop 2"));
        QCOMPARE(scan("<!ObjectName!>"), QString("t:1: <!ObjectName!> has no value outside of its loop"));
        QCOMPARE(scan("<#Attributes>x<#>"), QString("t:1: Attributes stands outside of Objects"));
        QCOMPARE(scan("<?latest>x<?>"), QString("t:1: the writer does not know the verb in: latest"));
    }

private:
    static void addScripts()
    {
        QTest::addColumn<QString>("script");
        for (const QString& script : shippedScripts())
            QTest::newRow(qPrintable(script)) << script;
    }
};

QX_REGISTER_TEST(TestCommandFiles)
#include "testCommandFiles.moc"
