#include "registerTest.h"

#include "referenceExpander.h"
#include "templateTestSupport.h"

#include <QtCore/QTemporaryDir>
#include <QtTest/QtTest>

#include <random>

namespace
{
// What the free texts among the settings are.
struct DtTexts
{
    std::string namespaceName = "sim";
    std::string exportMacro = "DT_DLL_DEMO";
    std::string fomFile = "demo-model.v2.xml";
};

void setDemoValues(const DtTexts& texts = DtTexts())
{
    DtOMTEnvWriter::setNamespaceName(texts.namespaceName);
    DtOMTEnvWriter::setIncludeName("");
    DtOMTEnvWriter::setBaseName("demo-model.v2.xml");
    DtOMTEnvWriter::setFomDefinitionFileName(texts.fomFile);
    DtOMTEnvWriter::setMaximumLineLength(300);
    DtFileWriter::setExportMacroName(texts.exportMacro);
    DtFileWriter::setGenerate64Bit(true);
    DtFileWriter::setGenerateErrors(false);
    DtFileWriter::setUseDecodeIncludes(false);
    DtDataTypeMapper::instance()->setMapRtiObjectIdToGlobalId(true);
}

// The tokens in their order, with the values above.
std::vector<std::pair<std::string, std::string>> demoTokens(const DtTexts& texts)
{
    const std::string mark = "DT_DLL_";
    std::string withoutMark = texts.exportMacro;
    if (withoutMark.find(mark) != std::string::npos)
        withoutMark.erase(withoutMark.find(mark), mark.size());
    return {
        {"<!mapRtiObjectIdToGlobalId!>", "1"                 },
        {"<!noDtDllExport!>",            withoutMark         },
        {"<!DllExport!>",                texts.exportMacro   },
        {"<!BitCount!>",                 "64"                },
        {"<!NamespaceName!>",            texts.namespaceName },
        {"<!FullFomFileName!>",          texts.fomFile       },
        {"<!FomFileName!>",              "demomodelv2"       },
        {"<!FomFileNameTypesHeader!>",   "demomodelv2Types.h"},
        {"<!FomFileNameNoDash!>",        "demomodelv2"       },
        {"<!GenerateErrors!>",           ""                  },
        {"<!UseDecodeIncludes!>",        ""                  },
    };
}

// Expands a template file to the text of the output file.
QByteArray expandFile(const QString& templateName)
{
    const QTemporaryDir directory;
    DtFileWriter::setOutputDirectory(qPrintable(directory.path() + "/"));
    const DtWithMeter meter(1);
    {
        DtFileWriter writer("result.txt", qPrintable(templateName));
        writer.writeFile();
    }
    return readTextFile(directory.filePath("result.txt"));
}

const char* const theFragments[] = {
    "a",
    " ",
    "\n",
    "\n\n",
    "|",
    "\n|",
    "b c",
    "<#2>",
    "<#1>",
    "<#>",
    "<#>",
    "<#>",
    "<#0>",
    "<#x",
    "2>",
    "<#3>",
    "<?exists 1>",
    "<?>",
    "<?>",
    "<?>",
    "<!Foo!>",
    "<!BitCount!>",
    "<!",
    "!>",
    "<",
    ">",
    "#",
    "?",
    "#>",
    "?>",
    "<#",
    "<?",
    "<#2#f#>",
    "<#1#f",
    "<#1#g.t #>",
    "<?exists 1?f?>",
    "<?equals <!BitCount!> 64>",
    "<?notexists <!Foo!>>",
    "<?lessthan 9 10>",
    "<?exists <!GenerateErrors!>>",
    "<?notequals a b?f?>",
    "<!NamespaceName!>",
    "<#2##>",
    "<!DllExport!>",
    "<? exists 1>",
    "exists <!Bi",
};

// With values that hold tokens and parts of them, what comes out depends on the order of the passes.
const char* const theOrderFragments[] = {
    "<!NamespaceName!>",
    "<!NamespaceName!>",
    "<!noDtDllExport!>",
    "<!noDtDllExport!>",
    "<!DllExport!>",
    "<!FullFomFileName!>",
    "<!FullFomFileName!>",
    "<!FomFileName!>",
    "<!BitCount!>",
    "<!GenerateErrors!>",
    "<!Foo!>",
    "<",
    "!",
    "<!",
    "!>",
    "!BitCount!>",
    "FomFileName!>",
    "<!Nam",
    " ",
    "a",
    "\n",
    "<#2>",
    "<#>",
    "<?exists <!NamespaceName!>>",
    "<?equals <!DllExport!> <!BitCount!>>",
    "<?>",
};

const DtTexts theOrderTexts[] = {
    {"<!FomFileName!>",     "DT_DLL_<!NamespaceName!>", "<!BitCount!>"     },
    {"<",                   "!BitCount!>",              "<!Fom"            },
    {"x<!",                 "<!DT_DLL_FomFileName!>",   "FileName!>"       },
    {"",                    "<",                        "!"                },
    {"<!NamespaceName!>",   "<!DllExport!>",            "<!GenerateErrors!"},
    {"<!FullFomFileName!>", "a<!Foo!>",                 "!>"               },
};

template <std::size_t N>
std::string randomTemplate(std::mt19937& random, const char* const (&fragments)[N])
{
    std::string text;
    const unsigned int count = 1 + random() % 14;
    for (unsigned int i = 0; i < count; ++i)
        text += fragments[random() % N];
    if (random() % 8 == 0)
        text.insert(random() % (text.size() + 1), std::string(280 + random() % 40, 'z'));
    return text;
}
} // namespace

class TestTemplateCases : public QObject
{
    Q_OBJECT

private:
    std::unique_ptr<DtWriterSettings> mySettings;

private Q_SLOTS:
    void init()
    {
        mySettings = std::make_unique<DtWriterSettings>();
        setDemoValues();
    }
    void cleanup() { mySettings.reset(); }

    void goldenCaseComesOutByteForByte_data();
    void goldenCaseComesOutByteForByte();
    void workedExampleComesOut_data();
    void workedExampleComesOut();
    void randomTemplatesComeOutAsTold();
    void randomTemplatesComeOutAsToldInShortPieces();
    void randomTemplatesWithValuesThatHoldTokensComeOutAsTold();

private:
    void compareRandomTemplates(unsigned int seed, int count, int lineLength);
    void compareTemplate(const std::string& text, const DtTexts& texts, int lineLength);

    int myLeftOut = 0; // templates that take too long
};

namespace
{
// The numbers of random templates, multiplied by what the environment says for a longer search.
int counted(int count)
{
    return count * std::max(1, qEnvironmentVariableIntValue("QX_RANDOM_FACTOR"));
}

void writeIncludedFiles()
{
    writeTextFile("f", "i <!BitCount!>\n\n|j<#2>k<#>\n");
    writeTextFile("g.t", "last");
}
} // namespace

void TestTemplateCases::goldenCaseComesOutByteForByte_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<bool>("generate64Bit");
    QTest::addColumn<bool>("generateErrors");
    const QByteArray table = readTextFile(QX_SHARED_DIR "/template-cases/cases.tsv");
    for (const QByteArray& line : table.split('\n').mid(1))
    {
        const QList<QByteArray> cells = line.trimmed().split('\t');
        if (cells.size() == 3)
            QTest::newRow(cells[0].constData())
                << QString::fromUtf8(cells[0]) << (cells[1] == "true") << (cells[2] == "true");
    }
    if (table.isEmpty())
        QTest::newRow("no cases here") << QString() << true << false;
}

void TestTemplateCases::goldenCaseComesOutByteForByte()
{
    QFETCH(QString, name);
    QFETCH(bool, generate64Bit);
    QFETCH(bool, generateErrors);
    const QString directory = QX_SHARED_DIR "/template-cases";
    if (name.isEmpty())
        QSKIP("The cases are not here.");
    const DtInDirectory inDirectory(directory);
    DtFileWriter::setGenerate64Bit(generate64Bit);
    DtFileWriter::setGenerateErrors(generateErrors);
    QVERIFY(QFile::exists(name + ".expected"));
    QCOMPARE(expandFile(name + ".tlt"), readTextFile(name + ".expected"));
}

void TestTemplateCases::workedExampleComesOut_data()
{
    QTest::addColumn<QByteArray>("text");
    QTest::addColumn<QByteArray>("expected");
    const struct
    {
        const char* name;
        QByteArray text;
        QByteArray expected;
    } theRows[] = {
        {"token",               "int<!BitCount!>_t x;",                              "int64_t x;"                },
        {"blank line",          "a\n\nb\n",                                          "a\n \nb\n"                 },
        {"bar",                 "void f(\n|int a);\n",                               "void f(int a);\n"          },
        {"loop on lines",       "<#2>\nrow\n<#>\nend\n",                             "\nrow\n\nrow\n\nend\n"     },
        {"loop with bars",      "<#2>\n|row\n<#>\n|end\n",                           "row\nrow\nend\n"           },
        {"loop in a line",      "x<#3>ab<#>y",                                       "xabababy"                  },
        {"condition fails",     "<?exists <!GenerateErrors!>>\n|yes\n<?>\n|after\n", "after\n"                   },
        {"unknown is missing",  "<?notexists <!NoSuchToken!>>no<?>",                 "no"                        },
        {"equals",              "<?equals <!BitCount!> 64>wide<?>",                  "wide"                      },
        {"greaterthan",         "<?greaterthan <!BitCount!> 32>big<?>",              "big"                       },
        {"condition in a loop", "<#2>\n|<?exists <!BitCount!>>\n|a\n|<?>\n<#>\n",    "a\na\n\n"                  },
        {"file loop",           "<#2#inc.tlt#>\nz\n",                                "i\n\nj\ni\n\nj\n\nz\n"     },
        {"header over lines",   "<#1\n2>ab<#>\n",                                    "abababababababababababab\n"},
    };
    for (const auto& row : theRows)
        QTest::newRow(row.name) << row.text << row.expected;
}

void TestTemplateCases::workedExampleComesOut()
{
    QFETCH(QByteArray, text);
    QFETCH(QByteArray, expected);
    const QTemporaryDir directory;
    const DtInDirectory inDirectory(directory.path());
    writeTextFile("inc.tlt", "i\n\nj\n");
    writeTextFile("case.tlt", text);
    QCOMPARE(expandFile("case.tlt"), expected);
}

void TestTemplateCases::compareTemplate(const std::string& text, const DtTexts& texts, int lineLength)
{
    DtReferenceExpander reference(demoTokens(texts), lineLength);
    try
    {
        std::istringstream in(text);
        reference.expand(in);
    }
    catch (const DtReferenceExpander::TooMuch&)
    {
        ++myLeftOut;
        return;
    }
    const QByteArray expected = QByteArray::fromStdString(reference.output() + "\nWARNINGS " + reference.warnings());
    enum
    {
        OwnStream,
        OwnDecoding,
        PlainStream
    };
    for (const int way : {OwnStream, OwnDecoding, PlainStream})
    {
        const DtCapture warnings(DtWarn);
        DtMemoryWriter writer;
        writer.setHasOwnDecoding(way == OwnDecoding);
        const std::string output = way == PlainStream ? writer.expandPlain(text) : writer.expand(text);
        const QByteArray got = QByteArray::fromStdString(output) + "\nWARNINGS " + warnings.text().toUtf8();
        if (got != expected)
            qWarning("way %d: \"%s\"", way, text.c_str());
        QCOMPARE(got, expected);
    }
}

void TestTemplateCases::compareRandomTemplates(unsigned int seed, int count, int lineLength)
{
    const QTemporaryDir directory;
    const DtInDirectory inDirectory(directory.path());
    writeIncludedFiles();
    DtOMTEnvWriter::setMaximumLineLength(lineLength);
    std::mt19937 random(seed);
    myLeftOut = 0;
    for (int i = 0; i < count && !QTest::currentTestFailed(); ++i)
        compareTemplate(randomTemplate(random, theFragments), DtTexts(), lineLength);
    QVERIFY2(myLeftOut < count / 20, "too many templates were left out as too long");
}

void TestTemplateCases::randomTemplatesComeOutAsTold()
{
    compareRandomTemplates(20110, counted(4000), 300);
}

void TestTemplateCases::randomTemplatesComeOutAsToldInShortPieces()
{
    compareRandomTemplates(7, counted(2000), 24);
}

void TestTemplateCases::randomTemplatesWithValuesThatHoldTokensComeOutAsTold()
{
    std::mt19937 random(1130);
    for (const DtTexts& texts : theOrderTexts)
    {
        setDemoValues(texts);
        for (int i = 0; i < counted(600) && !QTest::currentTestFailed(); ++i)
            compareTemplate(randomTemplate(random, theOrderFragments), texts, 300);
    }
}

QX_REGISTER_TEST(TestTemplateCases)
#include "testTemplateCases.moc"
