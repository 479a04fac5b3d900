// docs/configuration.md against the shipped files, the code that reads and writes them, and runs of the program.

#include "docPage.h"
#include "qxgenProgram.h"
#include "registerTest.h"

#include "codeGenApp/codeGenInitializer.h"
#include "codeGenApp/deployment.h"
#include "codeGenApp/windowPlace.h"
#include "modelTools/configKeys.h"

#include <QtTest/QtTest>

namespace
{
const QString theShippedFile = QStringLiteral("data/config/codeGenConfig.xml");

struct DtKeyRow
{
    QString key, type, byDefault, effect, writer;
};

std::vector<DtKeyRow> keyRows()
{
    std::vector<DtKeyRow> rows;
    for (const QStringList& cells : tableRows(pageText("configuration.md"), "key"))
        rows.push_back({cells[0].mid(1, cells[0].size() - 2), cells[1], cells[2], cells[3], cells[4]});
    return rows;
}

// Key and value of each setting, as "key=value" lines in order.
QStringList shippedSettings(const QString& text)
{
    QStringList settings;
    for (auto each = QRegularExpression("<var name=\"([^\"]+)\" value=\"([^\"]*)\"").globalMatch(text); each.hasNext();)
    {
        const QRegularExpressionMatch match = each.next();
        settings += match.captured(1) + "=" + match.captured(2);
    }
    settings.sort();
    return settings;
}

const char* typeOf(DtConfigKey::Kind kind)
{
    switch (kind)
    {
    case DtConfigKey::Text:
        return "text";
    case DtConfigKey::Identifier:
        return "identifier";
    case DtConfigKey::Namespace:
        return "identifier, no keyword";
    case DtConfigKey::SubDirectory:
        return "directory";
    case DtConfigKey::Flag:
        return "flag";
    case DtConfigKey::Number:
        return "number";
    }
    return "";
}

QString otherValue(const DtKeyRow& row)
{
    if (row.type == "flag")
        return row.byDefault == "true" ? "false" : "true";
    return row.type == "number" ? "9" : "Other";
}

// A class with a member that no code can be made for and one with lists in a list, so that every key that has an effect
// shows it.
std::string modelWithUnknownType()
{
    return moduleText(objectText("Barge", attributeText("Load", "Unheard") + attributeText("Name", "HLAunicodeString") +
                                              attributeText("Marks", "HLAhandleList")))
        .toStdString();
}
} // namespace

class TestConfigurationPage : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void everyShippedKeyHasItsRowWithItsDefault()
    {
        const QString settings = sourceText(theShippedFile).section("<scripts>", 0, 0);
        QStringList told;
        for (const DtKeyRow& row : keyRows())
            told += row.key + "=" + (row.byDefault == "empty" ? "" : row.byDefault);
        told.sort();
        QCOMPARE(told.join('\n'), shippedSettings(settings).join('\n'));
    }

    void typesAreThoseThatSetTakes()
    {
        QStringList told, taken;
        for (const DtKeyRow& row : keyRows())
            told += row.key + " " + row.type;
        for (const DtConfigKey& key : DtConfigKeys())
            taken += QString("%1 %2").arg(key.name, typeOf(key.kind));
        told.sort();
        taken.sort();
        QCOMPARE(told.join('\n'), taken.join('\n'));
    }

    // "Everything but the last two keys can be given with --set".
    void lastTwoKeysAreTheOnesThatSetRefuses()
    {
        const std::vector<DtKeyRow> rows = keyRows();
        QVERIFY(rows.size() > 10);
        QStringList told{rows[rows.size() - 2].key, rows.back().key}, refused;
        for (const DtConfigKey& key : DtConfigKeys())
            if (key.refusal != nullptr)
                refused += key.name;
        told.sort();
        refused.sort();
        QCOMPARE(told, refused);
    }

    // A key is told to have no effect exactly when another value of it gives the same files.
    void keysWithoutEffectAreToldAsSuch_data()
    {
        QTest::addColumn<QString>("setting");
        QTest::addColumn<bool>("hasEffect");
        for (const DtKeyRow& row : keyRows())
        {
            const bool isRefused = row.key == "notifyLevel" || row.key == "logFileName";
            if (!isRefused)
                QTest::newRow(qPrintable(row.key))
                    << row.key + "=" + otherValue(row) << !row.effect.startsWith("No effect");
        }
    }
    void keysWithoutEffectAreToldAsSuch()
    {
        QFETCH(QString, setting);
        QFETCH(bool, hasEffect);
        const DtProgramFolder folder(DtTestFolder::memory());
        folder.write("model.xml", modelWithUnknownType());
        // The first kind shows only with DIS, and examples are off without --examples.
        DtArguments arguments = {"model.xml", "-q"};
        if (!setting.startsWith("generateDIS"))
            arguments.emplace_back("--dis");
        if (setting.startsWith("generateExamples"))
            setting = "generateExamples=true";
        DtArguments plain = arguments, other = arguments;
        plain.insert(plain.end(), {"-o", "plain"});
        other.insert(other.end(), {"-o", "other", "--set", setting.toStdString()});
        QCOMPARE(folder.generate(plain).code, 0);
        QCOMPARE(folder.generate(other).code, 0);
        const std::string difference = differenceOf(treeOf(folder.path("plain")), treeOf(folder.path("other")));
        QVERIFY2(difference.empty() != hasEffect, difference.c_str());
    }

    // Every setter there is, and the keys that it leaves in the list "user".
    void writersAreThePreferencesThatStoreAKey()
    {
        DtCodeGenInitializer initializer;
        QVERIFY(initializer.parseConfigFile(DtString((QX_SOURCE_DIR "/" + theShippedFile).toStdString())));
        initializer.setNamespaceName("n");
        initializer.setIncludeName("i");
        initializer.setPrefixName("p");
        initializer.setFirstPduKind(7);
        initializer.setGenerateExamples(false);
        initializer.setGenerate64Bit(false);
        initializer.setGenerateErrors(true);
        initializer.setDumpParseTree(true);
        initializer.setGenerateDis(true);
        initializer.setMapRtiObjIdToGlobalId(false);
        initializer.setIncludeStandardMIM(false);
        const DtTestFolder folder;
        const std::string file = (folder.path() / "saved.xml").native();
        QVERIFY(initializer.saveConfigFile(DtString(file)));
        const QString saved = QString::fromStdString(readBytes(file));
        QStringList stored, told{"generateErrors"};
        for (const QString& setting : shippedSettings(saved.section("<user", 1)))
            stored += setting.section('=', 0, 0);
        for (const DtKeyRow& row : keyRows())
            if (!row.writer.startsWith("nobody"))
                told += row.key;
        told.sort();
        QCOMPARE(told.join('\n'), stored.join('\n'));
        QVERIFY(keyRows()[6].writer.contains("`generateErrors`")); // beside the key that it is read from
    }

    void namesOfThePreferencesAreThoseOfTheDialog()
    {
        const QString dialog = sourceText("libsrc/codeGenApp/preferencesDialog.ui");
        for (const DtKeyRow& row : keyRows())
            for (auto each = QRegularExpression("\\*([^*]+)\\*").globalMatch(row.writer); each.hasNext();)
            {
                const QString name = each.next().captured(1);
                const bool isThere = dialog.contains("<string>" + name + "</string>") ||
                                     dialog.contains("<string>" + name + ":</string>");
                QVERIFY2(isThere, qPrintable(name));
            }
    }

    void scriptsAreThoseOfTheShippedFile()
    {
        QStringList told;
        for (const QStringList& cells : tableRows(pageText("configuration.md"), "script"))
            told += cells[0].mid(1, cells[0].size() - 2) + "=" + cells[1];
        told.sort();
        QCOMPARE(told.join('\n'), shippedSettings(sourceText(theShippedFile).section("<scripts>", 1)).join('\n'));
    }

    void pageNamesWhatTheDocumentTypeKnows()
    {
        const QStringList codes = codesIn(pageText("configuration.md"));
        int count = 0;
        const QRegularExpression name("<!(?:ELEMENT|ATTLIST) (\\w+)|^ +(\\w+) CDATA",
                                      QRegularExpression::MultilineOption);
        for (auto each = name.globalMatch(sourceText("data/config/codeGenConfig.dtd")); each.hasNext(); ++count)
        {
            const QRegularExpressionMatch match = each.next();
            const QString word = match.captured(1) + match.captured(2);
            QVERIFY2(codes.contains(word), qPrintable(word));
        }
        QVERIFY(count > 6);
    }

    void elementsOfTheAddressesAreThoseOfTheShippedFile()
    {
        QStringList told, shipped;
        for (const QStringList& cells : tableRows(pageText("configuration.md"), "element"))
            told += codesIn(cells[0]);
        for (auto each = QRegularExpression("</(\\w+)>").globalMatch(sourceText("data/config/deployment.xml"));
             each.hasNext();)
            shipped += each.next().captured(1);
        shipped.removeAll("deployment");
        QCOMPARE(told, shipped);
    }

    void placeOfTheWindowIsKeptWhereThePageSays()
    {
        const DtWithEnvironment home("XDG_CONFIG_HOME", "/somewhere");
        const QString file = DtWindowPlaceFile().section("/somewhere/", 1);
        QVERIFY2(codesIn(pageText("configuration.md")).contains(file), qPrintable(file));
    }

    void everyEnvironmentVariableHasItsRow()
    {
        QStringList told;
        for (const QStringList& cells : tableRows(pageText("configuration.md"), "variable"))
            told += codesIn(cells[0]);
        // HOME stands for "~" in a completed word, as for every shell.
        const QRegularExpression read(
            "(?:getenv|VariableIsSet|VariableIsEmpty)\\(\"(\\w+)\"\\)|\"([A-Z_]*DISPLAY|QT_QPA_"
            "PLATFORM)\"");
        QStringList used;
        QDirIterator sources(QX_SOURCE_DIR, {"*.cxx", "*.h"}, QDir::Files, QDirIterator::Subdirectories);
        while (sources.hasNext())
        {
            const QString file = sources.next().mid(int(sizeof QX_SOURCE_DIR));
            if (!file.startsWith("libsrc/") && !file.startsWith("appsrc/"))
                continue;
            for (auto each = read.globalMatch(sourceText(file)); each.hasNext();)
            {
                const QRegularExpressionMatch match = each.next();
                used += match.captured(1) + match.captured(2);
            }
            if (sourceText(file).contains("temp_directory_path("))
                used += "TMPDIR";
        }
        used.removeDuplicates();
        used.removeAll("HOME");
        told.sort();
        used.sort();
        QCOMPARE(told, used);
    }
};

QX_REGISTER_TEST(TestConfigurationPage)
#include "testConfigurationPage.moc"
