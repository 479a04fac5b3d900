// The shipped command files and their templates against what the model's context holds.

#include "registerTest.h"

#include "scannedTemplate.h"
#include "shippedScripts.h"

#include "fileGenerator/settings.h"
#include "foundation/perRun.h"
#include "modelTools/commandFileLint.h"

#include <QtCore/QDirIterator>
#include <QtTest/QtTest>

namespace
{
QStringList faultsOfCommands(const QString& script)
{
    const DtRunScope scope;
    DtSettings::instance().files.dataDirectory = DtString((shippedData() + "/").toStdString());
    DtCommandFileLint lint;
    lint.check((shippedData() + "/" + script).toStdString());
    QStringList faults;
    for (const DtDiagnostic& fault : lint.faults())
        faults += QString::fromStdString(DtFormatted(fault, DtDiagnosticFormat::Text));
    return faults;
}

QStringList scan(const QString& name, std::set<QString>& opened)
{
    const DtScannedTemplate scanned(DtContextRules(), name);
    opened.insert(name);
    opened.merge(scanned.includedNames());
    return scanned.faults();
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
        const QStringList faults = faultsOfCommands(script);
        QVERIFY2(faults.isEmpty(), qPrintable(faults.join('\n')));
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
        const auto scan = [](const QByteArray& text)
        { return DtScannedTemplate(DtContextRules(), "t", text).faults().value(0); };
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
