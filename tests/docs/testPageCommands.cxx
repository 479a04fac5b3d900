// Carries out what the pages of docs/ and README.md tell their readers to type.
//
// The blocks of a page are one session in a folder of its own, from the top down:
//
//     ```xml file=harbour.xml     is written to that file
//     ```console                  lines that begin with "$ " are typed into a shell, and so is what follows a line that
//                                 ends in a backslash; what stands below them is compared with what they tell, where
//                                 "..." stands for any lines. Without lines below it a command has to end well only.
//     ```console code=3           its last command ends with this code; all others end with 0
//     ```console full             compiles or needs what was compiled: left to the full run
//     ```sh                       is shown only
//
// The folder is shown as /home/me/harbour, which is where the reader is.

#include "docPage.h"
#include "modelToolsTest.h"
#include "registerTest.h"

#include <QtTest/QtTest>

namespace
{
const int theTimeLimit = 900000; // milliseconds; a block may compile a whole model
const char theShownFolder[] = "/home/me/harbour";
const QChar theMark(1); // ahead of the number and the exit code of a command that has ended

struct DtBlock
{
    QStringList words; // language and what follows it
    QString text;
    int line = 0;

    QString value(const QString& key) const
    {
        for (const QString& word : words)
            if (word.startsWith(key + "="))
                return word.section('=', 1);
        return QString();
    }
};

std::vector<DtBlock> blocksOf(const QString& page)
{
    std::vector<DtBlock> blocks;
    bool isIn = false;
    int number = 0;
    for (const QString& line : page.split('\n'))
    {
        ++number;
        if (!line.startsWith("```"))
        {
            if (isIn)
                blocks.back().text += line + "\n";
            continue;
        }
        isIn = !isIn;
        if (isIn)
            blocks.push_back({line.mid(3).split(' ', Qt::SkipEmptyParts), QString(), number});
    }
    return blocks;
}

bool isRun(const DtBlock& block)
{
    return block.words.value(0) == "console";
}

struct DtCommand
{
    QString text, told;
};

std::vector<DtCommand> commandsOf(const QString& block)
{
    std::vector<DtCommand> commands;
    bool goesOn = false;
    for (const QString& line : block.split('\n'))
    {
        if (line.startsWith("$ "))
            commands.push_back({line.mid(2) + "\n", QString()});
        else if (goesOn)
            commands.back().text += line + "\n";
        else if (!commands.empty())
            commands.back().told += line + "\n";
        goesOn = (line.startsWith("$ ") || goesOn) && line.endsWith('\\');
    }
    for (DtCommand& command : commands)
        command.told = command.told.trimmed();
    return commands;
}

// Without blanks at the ends of lines; any lines fit "...".
bool fits(const QString& told, const QString& shown)
{
    QStringList lines;
    for (const QString& line : shown.split('\n'))
        lines += line.trimmed() == "..." ? QString("(?:.*\\n)*") : QRegularExpression::escape(line.trimmed()) + "\\n";
    QString text;
    for (const QString& line : told.trimmed().split('\n'))
        text += line.trimmed() + "\n";
    return QRegularExpression(QRegularExpression::anchoredPattern(lines.join(""))).match(text).hasMatch();
}

// One reader of one page.
class DtReader
{
public:
    // What goes wrong, empty if nothing does.
    QString follow(const DtBlock& block)
    {
        const QString file = block.value("file");
        if (!file.isEmpty())
        {
            writeTextFile(path(file), block.text.toUtf8());
            return QString();
        }
        return isRun(block) ? type(block) : QString();
    }

private:
    QString top() const { return QString::fromStdString(myFolder.path().native()); }
    QString path(const QString& name) const { return top() + "/" + name; }

    QProcessEnvironment environment() const
    {
        QProcessEnvironment all = QProcessEnvironment::systemEnvironment();
        for (const char* name : {"QX_DATA_DIR", "RTI_CONFIG", "NO_COLOR", "DESTDIR"})
            all.remove(name);
        // The installed generator where there is one, since CMake finds no other.
        const QString installed = QX_PREFIX "/bin";
        const bool isInstalled = QFile::exists(installed + "/qxgen");
        all.insert("PATH", (isInstalled ? installed : QFileInfo(QX_QXGEN).path()) + ":" + all.value("PATH"));
        all.insert("CMAKE_PREFIX_PATH", QX_PREFIX);
        all.insert("QX_DIR", QX_SOURCE_DIR "/toolkit");
        all.insert("HOME", top());
        return all;
    }

    QString type(const DtBlock& block)
    {
        const std::vector<DtCommand> commands = commandsOf(block.text);
        QString script = "exec 2>&1\ncd " + (myDirectory.isEmpty() ? top() : myDirectory) + "\n";
        for (const DtCommand& command : commands)
            script += command.text + "printf '\\n\\001%d\\n' $?\n";
        script += "pwd\n";
        QProcess shell;
        shell.setProcessEnvironment(environment());
        shell.start("bash", {"-c", script});
        if (!shell.waitForFinished(theTimeLimit))
            return "the shell did not end";
        QStringList parts = QString::fromUtf8(shell.readAll()).split(theMark);
        QString fault;
        for (std::size_t index = 0; index < commands.size() && fault.isEmpty(); ++index)
        {
            const QString told = index == 0 ? parts.value(0) : parts.value(int(index)).section('\n', 1);
            const QString code = parts.value(int(index) + 1).section('\n', 0, 0);
            const bool isLast = index + 1 == commands.size();
            fault = faultOf(commands[index], told, code, isLast ? block.value("code") : QString());
        }
        myDirectory = parts.last().section('\n', 1).trimmed();
        return fault;
    }

    QString faultOf(const DtCommand& command, QString told, const QString& code, const QString& expectedCode) const
    {
        told.replace(top(), theShownFolder);
        if (code != (expectedCode.isEmpty() ? QString("0") : expectedCode))
            return command.text + "ends with " + code + " and tells\n" + told.right(3000);
        if (!command.told.isEmpty() && !fits(told, command.told))
            return command.text + "tells\n" + told.right(3000) + "\nwhere the page shows\n" + command.told;
        return QString();
    }

    const DtTestFolder myFolder{DtTestFolder::memory()};
    QString myDirectory;
};

QStringList pagesWithCommands()
{
    QStringList pages{"README.md"};
    for (const QString& page : QDir(QX_SOURCE_DIR "/docs").entryList({"*.md"}, QDir::Files, QDir::Name))
        pages += "docs/" + page;
    QStringList run;
    for (const QString& page : pages)
    {
        const std::vector<DtBlock> blocks = blocksOf(sourceText(page));
        if (std::any_of(blocks.begin(), blocks.end(), isRun))
            run += page;
    }
    return run;
}
} // namespace

class TestPageCommands : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void blocksAreReadInOrder()
    {
        QString told;
        for (const DtBlock& block :
             blocksOf("text\n```xml file=a.xml\n<a/>\n```\n\n```console code=2 full\n$ x\ny\n```\n"))
            told += block.words.join('|') + "\n" + block.text;
        QCOMPARE(told, QString("xml|file=a.xml\n<a/>\nconsole|code=2|full\n$ x\ny\n"));
    }

    void commandsHaveTheirLinesBelowThem()
    {
        QString told;
        for (const DtCommand& command : commandsOf("$ a \\\n    b\nc\n\nd\n$ e\n"))
            told += command.text + "-> " + command.told + "\n";
        QCOMPARE(told, QString("a \\\n    b\n-> c\n\nd\ne\n-> \n"));
    }

    void dotsStandForAnyLines()
    {
        QVERIFY(fits("a\nb\nc\n", "a\n...\nc"));
        QVERIFY(fits("a\nc\n", "a\n...\nc"));
        QVERIFY(fits("a(\n", "a("));
        QVERIFY(!fits("a\nb\n", "a"));
        QVERIFY(!fits("a\nb\nd\n", "a\n...\nc"));
    }

    void readerIsToldWhatGoesWrong()
    {
        DtReader reader;
        QCOMPARE(reader.follow({
                     {"text", "file=a/b.txt"},
                     "one\n", 1
        }),
                 QString());
        QCOMPARE(reader.follow({{"console"}, "$ cd a\n$ cat b.txt\none\n", 1}), QString());
        QCOMPARE(reader.follow({{"console"}, "$ pwd # stays\n/home/me/harbour/a\n", 1}), QString());
        QCOMPARE(reader
                     .follow({
                         {"console", "code=3"},
                         "$ true\n$ exit 3\n", 1
        })
                     .section(' ', 0, 2),
                 QString("exit 3\nends with"));
        QCOMPARE(reader.follow({
                     {"console", "code=3"},
                     "$ true\n$ (exit 3)\n", 1
        }),
                 QString());
        QCOMPARE(reader.follow({{"console"}, "$ echo two >&2\nthree\n", 1}),
                 QString("echo two >&2\ntells\ntwo\n\n\nwhere the page shows\nthree"));
        QVERIFY(reader.follow({{"console"}, "$ false\n", 1}).startsWith("false\nends with 1"));
    }

    void pageDoesWhatItShows_data()
    {
        QTest::addColumn<QString>("page");
        for (const QString& page : pagesWithCommands())
            QTest::newRow(qPrintable(page)) << page;
    }
    void pageDoesWhatItShows()
    {
        QFETCH(QString, page);
        DtReader reader;
        bool isWhole = true;
        for (const DtBlock& block : blocksOf(sourceText(page)))
        {
            if (block.words.contains("full") && !qEnvironmentVariableIsSet("QX_FULL"))
            {
                isWhole = false;
                continue;
            }
            const QString fault = reader.follow(block);
            QVERIFY2(fault.isEmpty(), qPrintable(QString("%1:%2: %3").arg(page).arg(block.line).arg(fault)));
        }
        if (!isWhole)
            QSKIP("What compiles is left to the full run, which sets QX_FULL; the rest is done.");
    }
};

QX_REGISTER_TEST(TestPageCommands)
#include "testPageCommands.moc"
