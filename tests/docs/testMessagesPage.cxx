// docs/messages.md against the sources: every text that a program can tell stands on the page.
//
// Texts are put together from literals, and nothing says of a literal that it is part of a message. Two rules find
// them:
//
// 1. A literal with a word in it, and with more than a word, is part of a message when its statement tells something:
//    it warns, throws a failure, writes to a stream of messages, or shows a status text or a box.
// 2. Any other literal of three words or more is one as well, since it may reach a message through a variable or a
//    table. What such literals are otherwise stands in the tables below, each kind with its reason.
//
// A message with fewer words that takes the second way is missed; so are those of the libraries that the programs use.

#include "docPage.h"
#include "registerTest.h"
#include "sourceTexts.h"

#include "foundation/warningRules.h"
#include "modelTools/toolRules.h"

#include <QtTest/QtTest>

#include <algorithm>

namespace
{
// Statements of the first rule.
const QRegularExpression
    theTelling("\\b(DtTellWarning|DtToolFailure|DtOutputException|ofSystem|DtOMTReadException|fail|refuse|showStatus|"
               "showMessageBox|QMessageBox|setInformativeText|DT_THROW|showLabel|setLabel|fault|faultAt|faulty|finding|"
               "diagnosticAt|warnUnknownEncoding|DtException|logic_error|"
               "runtime_error|CmdLineParseException|fprintf|put|DtVerbose) \\(|"
               "\\b(DtWarn|DtInfo|DtFatal|cerr|myErr) <<");

// Statements whose literals of three words are told elsewhere.
const QRegularExpression theOtherUse(
    // what --help says, which the manual pages are held against
    "\\b(add_option|add_flag|addRepeated|addChoice|add_subcommand|footer|CLI : : App|theProduct|mySettings|"
    // what a compiler says of the sources
    "static_assert)\\b");

// Files whose literals are no messages.
const char* const theOtherFiles[] = {
    "libsrc/foundation/warningRules.h",        // what the rules mean, which the page says in its own words
    "libsrc/modelTools/toolRules.h",           // likewise
    "libsrc/codeGenApp/aboutBox.cxx",          // the about box
    "libsrc/fileGenerator/omtEnvironment.cxx", // words of parsedFom.txt
    "libsrc/omtReader/omtItems.h",             // what "Badly formatted" goes on with
    "libsrc/modelTools/runReport.cxx",         // the report's own page
};

// Further literals that are no messages.
const char* const theOtherTexts[] = {
    // help of codeGen, of --help and --version
    "Displays version information and exits.",
    "Displays usage information and exits.",
    // lines that are made for others
    "// The name by which other headers include",
    "Datatype to match representation only, added internally not present in FOM",
    // menus, titles and labels
    "Open a FOM definition file",
    "Close a FOM definition file",
    "Generate Quorvex extensions",
    "Choose Output Directory...",
    "&Toggle Dark Mode...",
    "Version Web Site...",
    "About Quorvex Code Generator",
    "Quorvex Code Generator",
    "Quorvex Code Generator -",
    "Quorvex Code Generator - No File Loaded",
    "Object Model Files (*.omt *.xml *.fdd)",
    "Project Files (*.qxproj)",
    "New Project File",
    "Script file name",
    "Find in the list above",
    "Objects/Interactions in Data File",
    "Objects/Interactions to Generate",
    // the splash picture
    "Loading Translation Templates",
    "Starting Code Generator...",
    // types of C++
    "unsigned long long",
    // words that names of components are compared with
    "psi heading yaw|theta pitch|phi roll",
    "site|application host|entity",
};

int wordCount(const QString& text)
{
    static const QRegularExpression theWord("(?:^|[ ,.;:\"'(])[A-Za-z][a-z']*(?=$|[ ,.;:\"')!?])");
    int count = 0;
    for (auto each = theWord.globalMatch(text); each.hasNext(); each.next())
        ++count;
    return count;
}

bool isSignature(const QString& text)
{
    return text.contains(QRegularExpression("\\w+::\\w+\\("));
}

// A name or a key, as it stands in an argument of a call.
const QRegularExpression theBareWord("^\\w+$");

bool isMessage(const DtSourceText& source)
{
    if (source.statement.contains(theTelling))
        return source.text.contains(QRegularExpression("[A-Za-z]{3,}")) && !source.text.contains(theBareWord);
    if (wordCount(source.text) < 3 || source.statement.contains(theOtherUse) || isSignature(source.text))
        return false;
    const auto is = [&source](const char* other) { return source.file == other; };
    const auto isText = [&source](const char* other) { return source.text == other; };
    return std::none_of(std::begin(theOtherFiles), std::end(theOtherFiles), is) &&
           std::none_of(std::begin(theOtherTexts), std::end(theOtherTexts), isText);
}

const QString& page()
{
    static const QString theText = pageText("messages.md");
    return theText;
}

// All that stands in backticks, a line each.
QString codes()
{
    QString all;
    for (const QString& code : codesIn(page()))
        all += code.simplified() + "\n";
    return all;
}

// The cells of the columns that hold messages.
QStringList messageCells()
{
    QStringList cells;
    for (const QStringList& row : tableRows(page(), "message"))
        cells += row[0];
    for (const QStringList& row : tableRows(page(), "reason"))
        cells += row[0];
    for (const QStringList& row : tableRows(page(), "rule"))
        cells += row[1];
    return cells;
}
} // namespace

class TestMessagesPage : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void literalsAreReadWithTheirStatements()
    {
        const QString source = "// \"no\"\nint a = f(\"one \" /* \"no\" */\n  \"two\", 'x', '\"'); g(\"th\\\"ree\\n\");"
                               " const char* b = R\"(four \"five)\"; { \"six\" }";
        QString told;
        for (const DtSourceText& text : textsOfSource(source, "file"))
            told += text.text + " <- " + text.statement + "\n";
        QCOMPARE(told, QString("one two <- int a = f ( , , ) \nth\"ree <- g ( ) \nsix <- \n"));
    }

    void everyTextOfTheSourcesStandsOnThePage()
    {
        const QString told = codes();
        QStringList missing;
        int count = 0;
        for (const DtSourceText& text : textsOfThePrograms())
            for (const QString& piece : text.text.split(QRegularExpression("%[sd]")))
                if (isMessage(text) && ++count > 0 && !told.contains(piece.trimmed()))
                    missing += text.file + ": " + piece;
        QVERIFY2(count > 250, qPrintable(QString::number(count)));
        missing.removeDuplicates();
        QVERIFY2(missing.isEmpty(), qPrintable("\n" + missing.join('\n')));
    }

    // What stands between the dots of a message.
    void everyMessageOfThePageIsInTheSources()
    {
        QString all;
        for (const DtSourceText& text : textsOfThePrograms())
            all += text.text + "\n";
        const QRegularExpression outside("^[^A-Za-z]+|[^A-Za-z]+$");
        QStringList unknown;
        int count = 0;
        for (const QString& cell : messageCells())
            for (const QString& code : codesIn(cell))
                for (QString piece : code.simplified().split(QChar(0x2026)))
                {
                    piece.remove(outside);
                    if (wordCount(piece) < 2)
                        continue;
                    ++count;
                    if (!all.contains(piece))
                        unknown += piece;
                }
        QVERIFY2(count > 200, qPrintable(QString::number(count)));
        QVERIFY2(unknown.isEmpty(), qPrintable("\n" + unknown.join('\n')));
    }

    void everyRuleOfAWarningHasItsRow()
    {
        QStringList told, rules;
        const QString section = sectionOf(page(), "Warnings about models and what is made of them");
        for (const QStringList& row : tableRows(section, "rule"))
            told += codesIn(row[0]);
        for (const DtWarningRule* rule : DtRules::all())
            rules += rule->id;
        QCOMPARE(told.join('\n'), rules.join('\n'));
    }

    void everyOtherRuleHasItsRow()
    {
        QStringList told;
        for (const QStringList& row : tableRows(page(), "rule"))
            told += codesIn(row[0]);
        for (const DtWarningRule* rule : DtToolRules::all())
            QVERIFY2(told.contains(rule->id), rule->id);
    }

    void everyMessageHasItsMeaningAndRemedy()
    {
        for (const QString& line : page().split('\n'))
        {
            if (!line.startsWith("| ") || line.startsWith("| ---"))
                continue;
            const QStringList cells = cellsOf(line);
            for (int column = 1; column < cells.size(); ++column)
                QVERIFY2(!cells[column].isEmpty(), qPrintable(line));
        }
    }
};

QX_REGISTER_TEST(TestMessagesPage)
#include "testMessagesPage.moc"
