// The manual pages in docs/man against what the programs say of themselves.

#include "docPage.h"
#include "qxgenProgram.h"
#include "registerTest.h"
#include "sourceTexts.h"

#include <QtTest/QtTest>

namespace
{
const QStringList theCommands = {"completion", "generate", "lint-templates", "list", "window"};

QString manText(const QString& page)
{
    return pageText("man/" + page + ".scd");
}

// The options of a page, "-o,--output DIR" each.
QStringList pageOptions(const QString& page)
{
    QStringList options;
    for (QString line : manText(page).section("\n# OPTIONS\n", 1).section("\n# ", 0, 0).split('\n'))
    {
        if (!line.startsWith("*-"))
            continue;
        line.remove('*').replace(QRegularExpression("_([A-Za-z0-9.=|]+)_"), "\\1").replace(", ", ",");
        options += line;
    }
    options.sort();
    return options;
}

QString helpOf(const DtArguments& arguments)
{
    const DtProgramEnd end = DtProgramFolder().run(arguments);
    return end.code == 0 ? QString::fromStdString(end.out) : QString();
}

// The same from a help: an option begins behind two blanks, and what it does behind two more.
QStringList helpOptions(const QString& help)
{
    QStringList options;
    for (const QString& line : help.split('\n'))
        if (line.startsWith("  -"))
            options += line.trimmed().section("  ", 0, 0);
    options.sort();
    return options;
}

// Command and first sentence of each subcommand.
QStringList helpCommands(const QString& help)
{
    QStringList commands;
    for (const QString& line : help.section("Subcommands:", 1).split('\n'))
        if (line.startsWith("  "))
            commands += line.trimmed().section(' ', 0, 0);
    commands.sort();
    return commands;
}

QStringList pagesThatAre()
{
    QStringList pages;
    for (const QString& file : QDir(QX_SOURCE_DIR "/docs/man").entryList({"*.scd"}, QDir::Files, QDir::Name))
        pages += QString(file).remove(".scd");
    return pages;
}

// Long name and letter of each option that the application declares, "-O --outputDir"; flags without a value.
QStringList declaredOptions()
{
    const QString source = sourceText("libsrc/codeGenApp/codeGenerationApp.cxx").simplified();
    const QRegularExpression declaration(
        "\\(&mySettings, \"(\\w+)\", [^\"]*?(?:\"\\w+\", )?\"[^;{]*?theScope, false, \"(\\w)\"\\)");
    QStringList options;
    for (auto each = declaration.globalMatch(source); each.hasNext();)
    {
        const QRegularExpressionMatch match = each.next();
        options += "-" + match.captured(2) + " --" + match.captured(1);
    }
    options += {"--version", "-h --help"};
    options.sort();
    return options;
}
} // namespace

class TestManPages : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void everyCommandHasItsPage()
    {
        QCOMPARE(helpCommands(helpOf({"--help"})), theCommands);
        for (const QString& command : theCommands)
            QVERIFY2(pagesThatAre().contains("qxgen-" + command + ".1"), qPrintable(command));
        for (const QString& command : theCommands)
            QVERIFY2(manText("qxgen.1").contains("\n*" + command + "*\n\t"), qPrintable(command));
    }

    void optionsAreThoseOfTheHelp_data()
    {
        QTest::addColumn<QString>("page");
        QTest::addColumn<QString>("command");
        QTest::newRow("qxgen") << "qxgen.1"
                               << "";
        for (const QString& command : theCommands)
            QTest::newRow(qPrintable(command)) << "qxgen-" + command + ".1" << command;
    }
    void optionsAreThoseOfTheHelp()
    {
        QFETCH(QString, page);
        QFETCH(QString, command);
        DtArguments arguments;
        if (!command.isEmpty())
            arguments.push_back(command.toStdString());
        arguments.emplace_back("--help");
        const QStringList options = helpOptions(helpOf(arguments));
        QVERIFY(!options.isEmpty());
        QCOMPARE(pageOptions(page).join('\n'), options.join('\n'));
    }

    // A start of codeGen takes three seconds, so its table in the sources stands for its help.
    void optionsOfTheWindowAreThoseThatItDeclares()
    {
        QStringList told;
        for (const QString& option : pageOptions("codeGen.1"))
            told += QString(option).replace(QRegularExpression(" [A-Z]+(?=,|$)"), "").replace(",", " ");
        told.sort();
        QVERIFY(declaredOptions().size() == 9);
        QCOMPARE(told.join('\n'), declaredOptions().join('\n'));
    }

    void exitCodesAreThoseOfThePage()
    {
        QStringList told;
        for (auto each =
                 QRegularExpression("^[|[]+ +\\*(\\d+)\\*(?:, \\*(\\d+)\\*)?", QRegularExpression::MultilineOption)
                     .globalMatch(manText("qxgen.1"));
             each.hasNext();)
        {
            const QRegularExpressionMatch match = each.next();
            told += match.captured(1);
            if (!match.captured(2).isEmpty())
                told += match.captured(2);
        }
        QStringList codes;
        const QString enumeration =
            sourceText("libsrc/modelTools/toolFailure.h").section("enum class", 1).section('}', 0, 0);
        for (auto each = QRegularExpression("= (\\d+)").globalMatch(enumeration); each.hasNext();)
            codes += each.next().captured(1);
        QVERIFY(codes.size() > 6);
        QCOMPARE(told, codes);
    }

    // Elements and their attributes, with the ones that the writer of project files names.
    void projectPageHasWhatIsWritten()
    {
        const QString page = manText("qxproj.5");
        int count = 0;
        for (const DtSourceText& text :
             textsOfSource(sourceText("libsrc/codeGenApp/omtProjectXmlWriter.cxx"), "omtProjectXmlWriter.cxx"))
        {
            const bool isElement = text.statement.contains(
                QRegularExpression("(startElement|writeNamedElement|writeCodingText|writeMember) \\("));
            const bool isAttribute = text.statement.contains("writeAttribute (");
            if ((!isElement && !isAttribute) || text.text == "true" || text.text == "false")
                continue;
            ++count;
            const QString marked = isElement ? "*" + text.text + "*" : "_" + text.text + "_";
            QVERIFY2(page.contains(marked), qPrintable(marked));
        }
        QVERIFY(count > 25);
    }

    void commandsOfCommandFilesAreThoseOfThePage()
    {
        const QString page = manText("codegen-templates.7").section("# COMMAND FILES", 1).section("\n# ", 0, 0);
        QStringList told;
        for (auto each = QRegularExpression("^\\*.*$", QRegularExpression::MultilineOption).globalMatch(page);
             each.hasNext();)
            for (auto word = QRegularExpression("\\*(\\w+)\\*").globalMatch(each.next().captured()); word.hasNext();)
                told += word.next().captured(1);
        QStringList known{"setDatatype"};
        const QString table =
            sourceText("libsrc/modelTools/commandFileLint.cxx").section("theCommands[]", 1).section(";", 0, 0);
        for (auto each = QRegularExpression("\"(\\w+)\"").globalMatch(table); each.hasNext();)
            known += each.next().captured(1);
        told.sort();
        known.sort();
        QVERIFY(known.size() > 5);
        QCOMPARE(told, known);
    }

    void verbsOfConditionsAreThoseOfTemplatesPage()
    {
        const QString page = manText("codegen-templates.7");
        const std::vector<QStringList> rows = tableRows(pageText("templates.md"), "Verb");
        QVERIFY(rows.size() == 6);
        for (const QStringList& row : rows)
            QVERIFY2(page.contains("*" + codesIn(row[0]).value(0) + "*"), qPrintable(row[0]));
    }

    void everyPageIsNamedInTheBuildAndSaysWhatItIs()
    {
        const QString list = pageText("CMakeLists.txt").section("set(pages", 1).section(')', 0, 0).simplified();
        QCOMPARE(list.split(' '), pagesThatAre());
        for (const QString& page : pagesThatAre())
        {
            const QString name = page.section('.', 0, 0), text = manText(page);
            QVERIFY2(text.startsWith(name + "(" + page.section('.', 1) + ") \"Quorvex Code Generator\"\n"),
                     qPrintable(page));
            QVERIFY2(text.contains("\n# NAME\n\n" + name + " - "), qPrintable(page));
        }
    }

    void pagesThatAreReferredToAreThere()
    {
        const QStringList elsewhere = {"make.1"};
        for (const QString& page : pagesThatAre())
            for (auto each = QRegularExpression("([\\w-]+)\\((\\d)\\)").globalMatch(manText(page)); each.hasNext();)
            {
                const QRegularExpressionMatch match = each.next();
                const QString other = match.captured(1) + "." + match.captured(2);
                QVERIFY2(pagesThatAre().contains(other) || elsewhere.contains(other), qPrintable(page + ": " + other));
            }
    }

    void pagesAreFormattedWithoutComplaint_data()
    {
        QTest::addColumn<QString>("page");
        for (const QString& page : pagesThatAre())
            QTest::newRow(qPrintable(page)) << page;
    }
    void pagesAreFormattedWithoutComplaint()
    {
        QFETCH(QString, page);
        if (QStandardPaths::findExecutable("scdoc").isEmpty())
            QSKIP("scdoc is not installed.");
        QProcess scdoc;
        scdoc.setStandardInputFile(QX_SOURCE_DIR "/docs/man/" + page + ".scd");
        scdoc.start("scdoc", QStringList());
        QVERIFY(scdoc.waitForFinished());
        QCOMPARE(QString::fromUtf8(scdoc.readAllStandardError()), QString());
        QCOMPARE(scdoc.exitCode(), 0);
        QVERIFY(scdoc.readAllStandardOutput().contains(".SH NAME\n"));
    }
};

QX_REGISTER_TEST(TestManPages)
#include "testManPages.moc"
