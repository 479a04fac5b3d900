#include "modelTools/toolRules.h"
#include "registerTest.h"
#include "testSupport.h"

#include <QtTest/QtTest>

namespace
{
QStringList matches(const QString& text, const char* pattern, int group = 1)
{
    QStringList found;
    for (auto each = QRegularExpression(pattern).globalMatch(text); each.hasNext();)
        found += each.next().captured(group);
    return found;
}

// The sources of the libraries and of qxgen, but for the tables.
QStringList sources()
{
    QStringList files;
    for (const char* folder : {QX_SOURCE_DIR "/libsrc", QX_SOURCE_DIR "/appsrc/qxgen"})
        for (QDirIterator each(folder, {"*.cxx", "*.h"}, QDir::Files, QDirIterator::Subdirectories); each.hasNext();)
            if (!each.next().contains("/warningRules.") && !each.filePath().contains("/toolRules."))
                files += each.filePath();
    files.sort();
    return files;
}

// The ids of the rules by their names in the sources.
QMap<QString, QString> idsByName()
{
    QMap<QString, QString> ids;
    const QStringList headers = {"foundation/warningRules.h", "modelTools/toolRules.h"};
    for (const QString& header : headers)
    {
        const QString text = QString::fromUtf8(readTextFile(QStringLiteral(QX_SOURCE_DIR "/libsrc/") + header));
        const char* const row = "DtWarningRule (\\w+) = \\{\\s*\"([^\"]*)\"";
        const QStringList names = matches(text, row), values = matches(text, row, 2);
        for (int index = 0; index < names.size(); ++index)
            ids[(header.startsWith("model") ? "DtToolRules::" : "DtRules::") + names[index]] = values[index];
    }
    return ids;
}
} // namespace

class TestToolRules : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void tableHasEveryRuleThatASourceTells()
    {
        const QMap<QString, QString> ids = idsByName();
        QSet<QString> told;
        for (const QString& file : sources())
            for (const QString& name :
                 matches(QString::fromUtf8(readTextFile(file)), "\\b(Dt(?:Tool)?Rules::\\w+)\\b(?!\\()"))
                told += ids.value(name, name);
        QStringList inSources(told.begin(), told.end()), inTable;
        inSources.sort();
        for (const DtWarningRule* rule : DtToolRules::all())
            inTable += rule->id;
        QCOMPARE(inSources.join('\n'), inTable.join('\n'));
        QVERIFY(inTable.contains("output-check") && inTable.contains("no-encoding"));
    }

    // So none can be told that has no name above.
    void ruleOfADiagnosticIsOneOfTheTable()
    {
        QStringList strange;
        int found = 0;
        for (const QString& file : sources())
            for (const QString& value :
                 matches(QString::fromUtf8(readTextFile(file)), "\\bdiagnostic\\.rule = ([^;]*);"))
            {
                ++found;
                if (value != "rule.id" && value != "warning.rule.id")
                    strange += file + ": " + value;
            }
        QCOMPARE(strange, QStringList());
        QVERIFY(found >= 5);
    }

    void rulesAreInTheOrderOfTheirIdsAndNoneIsThereTwice()
    {
        for (std::size_t index = 1; index < DtToolRules::all().size(); ++index)
        {
            const std::string before = DtToolRules::all()[index - 1]->id;
            QVERIFY2(before < DtToolRules::all()[index]->id, before.c_str());
        }
    }

    void idsAndMeaningsHaveTheFormOfThoseOfTheLibraries()
    {
        const QRegularExpression id("^[a-z]+(-[a-z]+)*$"), meaning("^[A-Z][^\n]*\\.$");
        for (const DtWarningRule* rule : DtToolRules::all())
            QVERIFY2(id.match(rule->id).hasMatch() && meaning.match(rule->meaning).hasMatch() &&
                         !QString(rule->meaning).contains(". "),
                     rule->id);
    }

    void pageListsTheRulesOfTemplates()
    {
        const QString page = QString::fromUtf8(readTextFile(QX_SOURCE_DIR "/docs/qxgen.md"));
        for (const DtWarningRule* rule : DtToolRules::all())
            if (QString(rule->id).startsWith("template-") && rule != &DtRules::templateTooDeep)
                QVERIFY2(page.contains('`' + QString(rule->id) + '`'), rule->id);
    }
};

QX_REGISTER_TEST(TestToolRules)
#include "testToolRules.moc"
