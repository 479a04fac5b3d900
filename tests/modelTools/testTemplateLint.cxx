// What is found in directories of templates and command files. The faults of single constructs are those of the scanner
// (TestTemplateFiles); here are the files: which of them are read, with whose rules, and what is told of them.

#include "registerTest.h"

#include "modelTools/modelToolsTest.h"
#include "modelTools/templateLint.h"
#include "modelTools/toolFailure.h"

#include <QtTest/QtTest>

namespace
{
using Files = std::map<std::string, std::string>;

std::string toLines(const std::vector<DtDiagnostic>& diagnostics, const std::string& directory)
{
    std::string lines;
    for (DtDiagnostic diagnostic : diagnostics)
    {
        diagnostic.place.file.erase(0, directory.size() + 1);
        lines += DtFormatted(diagnostic, DtDiagnosticFormat::Text);
    }
    return lines;
}

// The findings in a directory with these files, which stand without the directory.
std::string findings(const Files& files)
{
    const DtTestFolder folder;
    for (const auto& [name, text] : files)
        writeBytes(folder.path() / name, text);
    return toLines(DtTemplateLint(folder.path().string() + "/", QX_SOURCE_DIR "/data/").run(), folder.path().string());
}

const std::string theScript = "beginTypes\nendTypes\ntemplateDir templates/cs\nfile Model.cs model.tlt\n";
} // namespace

class TestTemplateLint : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void shippedFilesHaveNoFindings()
    {
        const DtTestFolder folder;
        std::filesystem::copy(QX_SOURCE_DIR "/data/templates", folder.path() / "all",
                              std::filesystem::copy_options::recursive);
        for (const char* script : {"genHtml.txt", "genJson.txt", "genPython.txt"})
            std::filesystem::copy(std::string(QX_SOURCE_DIR "/data/") + script, folder.path() / "all");
        const std::string directory = (folder.path() / "all").string();
        COMPARE_TEXT(toLines(DtTemplateLint(directory, QX_SOURCE_DIR "/data/").run(), directory), "");
    }

    void emptyDirectoryHasNoFindings()
    {
        COMPARE_TEXT(findings({
                         {"notes.txt", "fiel of notes\n"}
        }),
                     "");
    }

    void findingIsToldWithPlaceAndRule_data()
    {
        QTest::addColumn<QByteArray>("name");
        QTest::addColumn<QByteArray>("text");
        QTest::addColumn<QByteArray>("line");
        const auto add = [](const char* title, const char* name, const std::string& text, const char* line)
        { QTest::newRow(title) << QByteArray(name) << QByteArray::fromStdString(text) << QByteArray(line); };
        add("unknown token", "dllExport.tlt", "a\nb <!ModelNam!>\n",
            "dllExport.tlt:2:3: error: the writer does not know <!ModelNam!>");
        add("token that the writer of another template has", "dllExport.tlt", "<!ClassName!>\n",
            "dllExport.tlt:1:1: error: the writer does not know <!ClassName!>");
        add("token outside of its loop", "enums.tlt", "<!EnumerationName!>\n",
            "enums.tlt:1:1: error: <!EnumerationName!> has no value outside of its loop [template-token-place]\n");
        add("unknown loop", "enums.tlt", "<#Enumeratio><#>\n",
            "enums.tlt:1:1: error: the writer does not know the loop Enumeratio. Did you mean Enumeration? "
            "[template-loop]\n");
        add("unknown verb", "enums.tlt", "<?exits a>x<?>\n",
            "enums.tlt:1:1: error: the writer does not know the verb in: exits a [template-condition]\n");
        add("open block", "enums.tlt", "a\n <#Enumeration>\nb\n",
            "enums.tlt:2:2: error: the block is not closed: <#Enumeration [template-block]\n");
        add("missing file", "enums.tlt", "<#1#../data/templates/none.tlt#>\n",
            "enums.tlt:1:5: error: no such file: ../data/templates/none.tlt [template-file]\n");
        add("file that reaches itself", "enums.tlt", "<#1#../data/templates/enums.tlt#>\n",
            "enums.tlt:1:5: error: a file that includes itself: ../data/templates/enums.tlt [template-cycle]\n");
        add("bar without effect", "enums.tlt", "|x\n",
            "enums.tlt:1:1: warning: a bar at the very start is plain text [template-bar]\n");
        add("markup", "enums.tlt", "<!-- x -->\n", "enums.tlt:1:1: warning: no token follows <! [template-token]\n");
        add("misspelt token", "enums.tlt", "<!No name!>\n",
            "enums.tlt:1:1: error: no token follows <! [template-token]\n");
        add("long line of text", "enums.tlt", std::string(299, 'x') + "\n",
            "enums.tlt:1:299: warning: the line has 299 bytes, and what stands across the end of a piece of 299 is not "
            "recognised [template-line-length]\n");
        add("long line with a block", "enums.tlt", "<#1><#>" + std::string(292, 'x') + "\n",
            "enums.tlt:1:299: error: the line has 299 bytes");
        add("carriage return", "enums.tlt", "x\r\ny\r\n",
            "enums.tlt:1:2: warning: carriage returns come out as they stand [template-carriage-return]\n");
        add("name that nothing opens", "enum.tlt", "x\n",
            "enum.tlt: warning: no writer and no command file opens this template. Did you mean enums.tlt");
        add("unknown command", "genCs.txt", "templateDir a\n  fille a b\n",
            "genCs.txt:2:3: error: there is no command fille. Did you mean file? [template-command]\n");
        add("command without its words", "genCs.txt", "templateDir\n",
            "genCs.txt:1:1: error: templateDir needs 1 word. [template-command]\n");
        add("command with too many words", "genCs.txt", "language C Sharp\n",
            "genCs.txt:1:1: warning: language takes no more than 1 words; the rest is passed over. "
            "[template-command]\n");
        add("type without quotes", "genCs.txt", "setDatatype \"HLAoctet\" byte\n",
            "genCs.txt:1:1: error: setDatatype needs a name and a type, both in double quotes. [template-command]\n");
        add("template ahead of its directory", "genCs.txt", "file a model.tlt\n",
            "genCs.txt:1:1: error: no templateDir stands ahead of this. [template-command]\n");
        add("missing template", "genCs.txt", "templateDir templates/cs\nfile a none.tlt\n",
            "genCs.txt:2:1: error: no such file: ../data/templates/cs/none.tlt [template-file]\n");
        add("missing command file", "genCs.txt", "include ../data/none.txt\n",
            "genCs.txt:1:1: error: no such file: ../data/none.txt [template-file]\n");
        add("command file that reaches itself", "genCs.txt", "include ../data/genCs.txt\n",
            "genCs.txt:1:1: error: a command file that includes itself: ../data/genCs.txt [template-cycle]\n");
        add("long command", "genCs.txt", "# " + std::string(498, 'x') + "\n",
            "genCs.txt:1:1: error: the line has 500 bytes, and what is behind 499 is taken for a line. "
            "[template-line-length]\n");
        add("command file of another name", "mine.txt", "beginTypes\nendType\n",
            "mine.txt:2:1: error: there is no command endType. Did you mean endTypes? [template-command]\n");
    }
    void findingIsToldWithPlaceAndRule()
    {
        QFETCH(QByteArray, name);
        QFETCH(QByteArray, text);
        QFETCH(QByteArray, line);
        const QByteArray found = QByteArray::fromStdString(findings({
            {name.toStdString(), text.toStdString()}
        }));
        QVERIFY2(found.startsWith(line), found.constData());
        QCOMPARE(found.count('\n'), 1);
    }

    // The writer of datatypes opens the template and includes the file within its loop.
    void includedFileIsReadWhereShippedTemplatesIncludeIt()
    {
        COMPARE_TEXT(findings({
                         {"subTemplates/recordSize.tlt", "<!ClassName!><!Nothing!>\n"}
        }),
                     "subTemplates/recordSize.tlt:1:14: error: the writer does not know <!Nothing!> "
                     "[template-token]\n");
    }

    void includedFileOfTheDirectoryIsReadToo()
    {
        COMPARE_TEXT(findings({
                         {"enums.tlt",  "<#1#../data/templates/mine/x.tlt#>"},
                         {"mine/x.tlt", "x <?exists>x<?>\n"                 }
        }),
                     "mine/x.tlt:1:3: error: the number of operands is wrong in: exists [template-condition]\n");
    }

    void templateOfACommandFileIsHeldAgainstTheModelsKeys()
    {
        COMPARE_TEXT(findings({
                         {"genCs.txt",    theScript                                                        },
                         {"cs/model.tlt", "<!BaseName!><#Objects><!ObjectName!><?last>x<?><#><!LibName!>\n"}
        }),
                     "cs/model.tlt:1:51: error: the writer does not know <!LibName!>. Did you mean <!BaseName!> or "
                     "<!FieldName!>? [template-token]\n");
    }

    void commandThatStartsFromAMapHasTheKeysOfItsList()
    {
        COMPARE_TEXT(findings({
                         {"genCs.txt",    theScript + "file B.cs model.tlt Objects\n"},
                         {"cs/model.tlt", "<#Attributes><!AttributeName!><#>\n"      }
        }),
                     "cs/model.tlt:1:1: error: Attributes stands outside of Objects [template-loop]\n");
        COMPARE_TEXT(findings({
                         {"genCs.txt", "beginTypes\nendTypes\ntemplateDir templates/cs\nfile B m.tlt Objects|A\n"},
                         {"cs/m.tlt",  "<!ObjectName!><#Attributes><!AttributeName!><#>\n"                       }
        }),
                     "");
    }

    void includedCommandFileGoesOnWithTheDirectoryOfTemplates()
    {
        COMPARE_TEXT(findings({
                         {"genCs.txt",    "templateDir templates/cs\ninclude ../data/more.inc\n"},
                         {"more.inc",     "file a model.tlt\nfile b c\n"                        },
                         {"cs/model.tlt", "x\n"                                                 }
        }),
                     "more.inc:2:1: error: no such file: ../data/templates/cs/c [template-file]\n");
    }

    // Each level includes the next one twice.
    void filesThatManyWaysLeadToAreReadOnce()
    {
        Files files = {
            {"enums.tlt", "<#1#../data/templates/m0.tlt#>"}
        };
        for (int level = 0; level < 40; ++level)
        {
            const std::string next = "<#1#../data/templates/m" + std::to_string(level + 1) + ".tlt#>";
            files["m" + std::to_string(level) + ".tlt"] = "x" + next + next;
        }
        files["m40.tlt"] = "<?>";
        COMPARE_TEXT(findings(files), "m40.tlt:1:1: error: <?> closes no block [template-block]\n");
    }

    void bytesThatAreNotUtf8AreTakenAsTheyAre()
    {
        COMPARE_TEXT(findings({
                         {"enums.tlt", "\xE4<?\xE4>x<?>\n"}
        }),
                     "enums.tlt:1:2: error: the writer does not know the verb in: \xE4 [template-condition]\n");
    }

    void directoryThatIsNotThereIsToldAsUnreadable()
    {
        try
        {
            DtTemplateLint("/nowhere/at/all", QX_SOURCE_DIR "/data/").run();
            QFAIL("there is no such directory");
        }
        catch (const DtToolFailure& failure)
        {
            QCOMPARE(failure.code(), DtExitCode::Unreadable);
            COMPARE_TEXT(std::string(failure.what()), "there is no directory /nowhere/at/all.");
        }
    }
};

QX_REGISTER_TEST(TestTemplateLint)
#include "testTemplateLint.moc"
