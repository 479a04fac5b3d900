#include "registerTest.h"

#include "fileGenerator/templateFiles.h"
#include "foundation/exception.h"
#include "templateTestSupport.h"

#include <QtCore/QTemporaryDir>
#include <QtTest/QtTest>

#include <memory>

namespace
{
const DtTokenRow<int> theOwnRows[] = {
    {"<!Own!>",      [](const int& value) { return DtString(value); }    },
    {"<!OwnWidth!>", [](const int&) { return DtString("w<!BitCount!>"); }},
};

// A writer with tokens, a loop and a condition of its own.
class DtOwnWriter : public DtMemoryWriter
{
public:
    void decodeFileLine(DtString& line) override
    {
        static const DtTokenTable<int> theTable(theOwnRows);
        DtTokenValues<int> values(theTable, &myValue);
        line = DtString(line) + (line == "mark" ? "ed" : "");
        expandTokens(line, {nullptr, &values});
    }
    void writeMultipleTimes(const DtString& header, std::istream& body) override
    {
        headers.push_back(header.c_str());
        if (header != "Numbers")
            return DtMemoryWriter::writeMultipleTimes(header, body);
        const std::streampos position = body.tellg();
        for (myValue = 1; myValue <= 3; ++myValue)
            writeBodyFrom(body, position);
    }
    void writeConditional(const DtString& header, std::istream& body) override
    {
        headers.push_back(header.c_str());
        if (header == "odd" && myValue % 2 == 0)
            return;
        header == "odd" ? writeFileStream(body) : DtMemoryWriter::writeConditional(header, body);
    }

    QStringList headers;

private:
    int myValue = 0;
};

// Shows what derived writers can see.
class DtOpenWriter : public DtFileWriter
{
public:
    using DtFileWriter::DtFileWriter;
    using DtFileWriter::myFileStem;
    using DtFileWriter::myPrinter;
    using DtFileWriter::myTemplateFile;
};

// Notes what the scan calls, with what.
class DtNotingWriter : public DtMemoryWriter
{
public:
    void writeFileStream(std::istream& in) override
    {
        calls += "stream at " + position(in);
        DtMemoryWriter::writeFileStream(in);
    }
    void decodeFileLine(DtString& line) override
    {
        calls += QString("line ") + line.c_str();
        DtMemoryWriter::decodeFileLine(line);
    }
    void handleForLoop(std::istream& in) override
    {
        calls += "loop at " + position(in);
        DtMemoryWriter::handleForLoop(in);
        calls += "loop ends at " + position(in);
    }
    void handleIfStatement(std::istream& in) override
    {
        calls += "condition at " + position(in);
        DtMemoryWriter::handleIfStatement(in);
    }
    void writeMultipleTimes(const DtString& header, std::istream& body) override
    {
        calls += QString("times ") + header.c_str() + " from " + position(body);
        DtMemoryWriter::writeMultipleTimes(header, body);
    }
    void writeConditional(const DtString& header, std::istream& body) override
    {
        calls += QString("if ") + header.c_str();
        DtMemoryWriter::writeConditional(header, body);
    }

    QStringList calls;

private:
    static QString position(std::istream& in) { return QString::number(std::streamoff(in.tellg())); }
};

// Knows a loop "Twice" and one "None".
class DtTwiceWriter : public DtNotingWriter
{
public:
    void writeMultipleTimes(const DtString& header, std::istream& body) override
    {
        const std::streampos position = body.tellg();
        if (header != "Twice" && header != "None")
            return DtNotingWriter::writeMultipleTimes(header, body);
        for (int repetition = 0; header == "Twice" && repetition < 2; ++repetition)
            writeBodyFrom(body, position);
    }
};

// Takes the rest of the stream away behind each loop.
class DtTakingWriter : public DtMemoryWriter
{
public:
    void handleForLoop(std::istream& in) override
    {
        DtMemoryWriter::handleForLoop(in);
        in.ignore(2);
    }
};

std::string expand(const std::string& text)
{
    return DtMemoryWriter().expand(text);
}
} // namespace

class TestFileWriter : public QObject
{
    Q_OBJECT

private:
    std::unique_ptr<DtWriterSettings> mySettings;
    std::unique_ptr<QTemporaryDir> myDirectory;
    std::unique_ptr<DtInDirectory> myInDirectory;

private Q_SLOTS:
    void init();
    void cleanup();

    void settingsStartAsToldAndAreKept();
    void templateComesOut_data();
    void templateComesOut();
    void warningsOfBrokenBlocks_data();
    void warningsOfBrokenBlocks();

    void lineOf299BytesEndsWithABlank();
    void blankLineHoldsABlankInTemplatesOnly();
    void lastBlankLineWithoutLineFeedStays();
    void pieceBoundaryHidesTokensAndBlocks();
    void valuesAreNotScannedForBlocks();
    void tokensGoInOrder();
    void firstMarkOfTheExportMacroIsCut();
    void everyBaseTokenHasItsValue();
    void fomFileNamesAreTakenOnceOnly();
    void zeroBytesAreOrdinary();

    void derivedWriterChangesTokensLoopsAndConditions();
    void headersAreHandedOnRaw();
    void operandsAreDecodedOneByOne();
    void bodyIsTakenFromItsPosition();
    void operationsAreCalledAlikeForEveryStream();
    void ownDecodingIsAskedAtFirstLinesOnly();
    void operationThatLeavesTheStreamElsewhereIsFollowed();
    void directCallsWithoutOpening();
    void directCallLeavesStreamBehindTerminator();
    void helpersFollowTheLine();
    void streamInBadStateIsLeftAlone();

    void outputStandsUnderDirectoryAndIncludePath();
    void stemEndsAtFirstDot();
    void emptyNameOpensNothing();
    void missingTemplateLeavesEmptyFileAndNoStep();
    void secondCallExpandsNothing();
    void oneTemplateIsOneStep();
    void withoutMeterWriteFileThrows();
    void levelZeroDropsTheText();
    void changedTemplateIsReadAgain();
    void templateOfARunIsLookedAtOnce();
    void nameCanBeChanged();
    void pathOutsideIsNotWritten_data();
    void pathOutsideIsNotWritten();

    void fileThatIncludesItselfStopsAtDepth64();
    void fileThatIncludesItselfTwiceStops();
    void filesThatIncludeEachOtherStop();
    void manyFilesInsideEachOtherAreExpanded();
    void blocksNestedTooDeepAreLeftOut();
    void onlyRegularFilesAreIncluded();

private:
    QByteArray writeFile(const char* name, const QByteArray& templateText);
};

void TestFileWriter::init()
{
    mySettings = std::make_unique<DtWriterSettings>();
    myDirectory = std::make_unique<QTemporaryDir>();
    myInDirectory = std::make_unique<DtInDirectory>(myDirectory->path());
    DtFileWriter::setOutputDirectory("out/");
    DtOMTEnvWriter::setBaseName("dir/my-model.v2.xml");
    DtOMTEnvWriter::setNamespaceName("sim");
    DtOMTEnvWriter::setIncludeName("");
    DtOMTEnvWriter::setFomDefinitionFileName("dir/my-model.v2.xml");
    DtFileWriter::setExportMacroName("DT_DLL_DEMO");
}

void TestFileWriter::cleanup()
{
    myInDirectory.reset();
    myDirectory.reset();
    mySettings.reset();
}

QByteArray TestFileWriter::writeFile(const char* name, const QByteArray& templateText)
{
    writeTextFile("t.tlt", templateText);
    const DtWithMeter meter(1);
    {
        DtFileWriter writer(name, "t.tlt");
        writer.writeFile();
    }
    return readTextFile(QString("out/") + name);
}

void TestFileWriter::settingsStartAsToldAndAreKept()
{
    QVERIFY(DtFileWriter::generate64Bit());
    QVERIFY(!DtFileWriter::generateErrors());
    QVERIFY(!DtFileWriter::useDecodeIncludes());
    QCOMPARE(DtFileWriter::hlaVersion(), DtHlaUnknown);
    DtFileWriter::setHlaVersion(DtHla1516e);
    QCOMPARE(DtFileWriter::hlaVersion(), DtHla1516e);
    DtFileWriter::setHlaVersion(DtHlaUnknown);
    DtFileWriter::setExportMacroName("X");
    QCOMPARE(DtFileWriter::exportMacroName().c_str(), "X");
    QCOMPARE(DtFileWriter::outputDirectory().c_str(), "out/");
}

void TestFileWriter::templateComesOut_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<QString>("expected");
    const struct
    {
        const char *name, *text, *expected;
    } theRows[] = {
        {"unknownTokenStaysInLine",         "a <!NoSuch!> b",                              "a <!NoSuch!> b"          },
        {"barAtStreamStartIsPlainText",     "|a\n|b",                                      "|ab"                     },
        {"barBehindTerminatorIsPlainText",  "<#1>a<#>|b",                                  "a|b"                     },
        {"barBehindHeaderIsPlainText",      "<#2>|a<#>",                                   "|a|a"                    },
        {"oneBarRemovesOneLineFeed",        "a\n\n|b",                                     "a\nb"                    },
        {"barInALineIsPlainText",           "a\nb|c",                                      "a\nb|c"                  },
        {"twoBarsLeaveOne",                 "a\n||b",                                      "a|b"                     },
        {"carriageReturnStays",             "a\r\nb\r\n",                                  "a\r\nb\r\n"              },
        {"hashInConditionIsPlain",          "<?equals # #>a<?>",                           "a"                       },
        {"questionMarkInLoopHeaderIsPlain", "<#2?>a<#>",                                   "aa"                      },
        {"constantOperandExists",           "<?exists 1>b<?>",                             "b"                       },
        {"closingAngleEndsHeader",          "<?exists a>b>c<?>",                           "b>c"                     },
        {"pairedAnglesStayInHeader",        "<?equals <a> <a>>b<?>",                       "b"                       },
        {"countOfZero",                     "[<#0>a<#>]",                                  "[]"                      },
        {"negativeCount",                   "[<#-1>a<#>]",                                 "[]"                      },
        {"countThatIsNoNumber",             "[<#x>a<#>]",                                  "[]"                      },
        {"emptyCount",                      "[<#>a<#>]",                                   "[]"                      },
        {"countEndsAtFirstOtherCharacter",  "<#2x>a<#>",                                   "aa"                      },
        {"textBehindTerminatorIsScanned",   "<#1>a<#> <?exists 1>b<?>",                    "a b"                     },
        {"firstOfBothKindsIsHandled",       "1<?exists 1>a<?>2<#2>b<#>3",                  "1a2bb3"                  },
        {"conditionInLoop",                 "<#2><?exists 1>a<?><#>",                      "aa"                      },
        {"loopInCondition",                 "<?exists 1><#2>a<#><?>",                      "aa"                      },
        {"loopInLoop",                      "<#2><#2>a<#>b<#>",                            "aabaab"                  },
        {"fileBlockInBody",                 "<#2><#1#none#>a<#>",                          "aa"                      },
        {"strayClosingPairNeedsNoOpening",  "<#2>a#>b<#>c",                                "a#>ba#>bc"               },
        {"unterminatedBodyTakesAll",        "x<#2>abc\n",                                  "xabc\nabc\n"             },
        {"lastLineIsMetTwice",              "<#1>\n|abc\nlast",                            "abc\nlastast"            },
        {"otherKindInBodyIsOpaque",         "<#2><?exists 1>a<#>",                         "a?exists 1>aa?exists 1>a"},
        {"verbsAreCaseSensitive",           "<?Exists 1>a<?>",                             ""                        },
        {"leadingBlankLeavesNoVerb",        "<? exists 1>a<?>",                            ""                        },
        {"emptyConditionDoesNothing",       "<?>a<?>b",                                    "b"                       },
        {"blankConditionDoesNothing",       "<?  >a<?>b",                                  "b"                       },
        {"loneVerbTestsItself",             "<?exists>a<?><?notexists>b<?>",               "a"                       },
        {"loneOperandEqualsItself",         "<?equals a>b<?>",                             "b"                       },
        {"unknownTokenIsMissing",           "<?exists <!No!>>a<?><?notexists <!No!>>b<?>", "b"                       },
        {"emptyValueIsMissing",             "<?exists <!GenerateErrors!>>a<?>",            ""                        },
        {"mapFlagAlwaysExists",             "<?exists <!mapRtiObjectIdToGlobalId!>>a<?>",  "a"                       },
        {"numbersAreCompared",              "<?greaterthan 10 9>a<?><?lessthan 10 9>b<?>", "a"                       },
        {"equalNumbersAreNeither",          "<?greaterthan 9 9>a<?><?lessthan 9 9>b<?>",   ""                        },
        {"blanksAroundOperandsGo",          "<?equals   a    a   >b<?>",                   "b"                       },
        {"rightOperandKeepsItsBlanks",      "<?notequals a a b>c<?>",                      "c"                       },
        {"missingFileGivesNothing",         "a<#2#none#>b",                                "ab"                      },
        {"emptyPathGivesNothing",           "a<#2##>b",                                    "ab"                      },
        {"fileIsRepeated",                  "<#2#f#>.",                                    "i\n\nj\ni\n\nj\n."       },
        {"trailingBlanksOfPathGo",          "<#1#f  #>.",                                  "i\n\nj\n."               },
        {"leadingBlanksOfPathStay",         "<#1# f#>.",                                   "."                       },
        {"tokensInPathStay",                "<#1#<!BitCount!>#>.",                         "."                       },
        {"characterBehindPathIsNotTested",  "<#1#f#x.",                                    "i\n\nj\n."               },
        {"fileConditionHolds",              "<?exists 1?g?>!",                             "64!"                     },
        {"fileConditionFails",              "<?exists <!No!>?g?>!<?notexists 1?g?>",       "!"                       },
        {"delimiterWinsOverClosingAngle",   "<?exists a?b>c?>d",                           "d"                       },
        {"pathRunsOverLines",               "<#1#\n\nf#>.",                                "i\n\nj\n."               },
        {"headerRunsOverLines",             "<#1\n\n2>a<#>",                               "aaaaaaaaaaaa"            },
    };
    for (const auto& row : theRows)
        QTest::newRow(row.name) << row.text << row.expected;
}

void TestFileWriter::templateComesOut()
{
    QFETCH(QString, text);
    QFETCH(QString, expected);
    writeTextFile("f", "i\n\nj\n");
    writeTextFile("g", "<!BitCount!>");
    QCOMPARE(QString::fromStdString(DtMemoryWriter().expand(text.toStdString())), expected);
    QCOMPARE(QString::fromStdString(DtMemoryWriter().expandPlain(text.toStdString())), expected);
}

void TestFileWriter::warningsOfBrokenBlocks_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<QString>("warning");
    const QString problem = "Problem Handling For Loop in line: ";
    const struct
    {
        const char* name;
        QString text, warning;
    } theRows[] = {
        {"header without an end",               "a<#2",           problem + "<#2"  },
        {"header of some lines without an end", "a<?x\nb <!",     problem + "b <!" },
        {"header up to a last line feed",       "a<#2\n",         problem          },
        {"path without an end",                 "a<#2#f",         problem + "<#2#f"},
        {"path of two lines without an end",    "a<#2#f\ng",      problem + "g"    },
        {"body without an end gives none",      "a<#2>f",         ""               },
        {"missing file gives none",             "a<#2#none#>",    ""               },
        {"unknown token gives none",            "a<!None!>",      ""               },
        {"unknown verb gives none",             "<?first 1>a<?>", ""               },
    };
    for (const auto& row : theRows)
        QTest::newRow(row.name) << row.text << row.warning;
}

void TestFileWriter::warningsOfBrokenBlocks()
{
    QFETCH(QString, text);
    QFETCH(QString, warning);
    const DtCapture warnings(DtWarn);
    expand(text.toStdString());
    QCOMPARE(warnings.text(), warning);
}

void TestFileWriter::lineOf299BytesEndsWithABlank()
{
    const QByteArray line(299, 'y');
    QCOMPARE(writeFile("a.txt", line + "\nnext\n"), line + " \nnext\n");
    const QByteArray shorter(298, 'y');
    QCOMPARE(writeFile("b.txt", shorter + "\nnext\n"), shorter + "\nnext\n");
}

void TestFileWriter::blankLineHoldsABlankInTemplatesOnly()
{
    writeTextFile("inc", "i\n\nj");
    QCOMPARE(writeFile("a.txt", "\na\n\n<#1#inc#>\n"), QByteArray(" \na\n \ni\n\nj\n"));
}

void TestFileWriter::lastBlankLineWithoutLineFeedStays()
{
    QCOMPARE(writeFile("a.txt", "a\n "), QByteArray("a\n "));
    QCOMPARE(writeFile("b.txt", ""), QByteArray());
}

void TestFileWriter::pieceBoundaryHidesTokensAndBlocks()
{
    const std::string filler(295, 'z');
    QCOMPARE(expand(filler + "<!BitCount!>"), filler + "<!BitCount!>");
    const std::string filler298(298, 'z');
    QCOMPARE(expand(filler298 + "<#2>a<#>b"), filler298 + "<#2>a#>b"); // "<#>" opens one
    QCOMPARE(expand(filler + "zzzz<#2>a<#>b"), filler + "zzzzaab");
    DtOMTEnvWriter::setMaximumLineLength(7);
    QCOMPARE(expand("<#2>ab<#>c"), std::string("ababc"));
    DtOMTEnvWriter::setMaximumLineLength(0);
    QCOMPARE(expand("a<#2>b"), std::string("a<#2>b"));
}

void TestFileWriter::valuesAreNotScannedForBlocks()
{
    DtOMTEnvWriter::setNamespaceName("<#2>x<#><?exists 1>");
    QCOMPARE(expand("a<!NamespaceName!>b"), std::string("a<#2>x<#><?exists 1>b"));
}

void TestFileWriter::tokensGoInOrder()
{
    DtOMTEnvWriter::setNamespaceName("<!FullFomFileName!>,<!BitCount!>");
    DtOMTEnvWriter::setFomDefinitionFileName("f<!NamespaceName!>");
    QCOMPARE(expand("<!NamespaceName!>"), std::string("f<!NamespaceName!>,<!BitCount!>"));
    DtFileWriter::setExportMacroName("<!DllExport!>");
    QCOMPARE(expand("<!noDtDllExport!>"), std::string("<!DllExport!>")); // replaced by row 3, which gives itself
}

void TestFileWriter::firstMarkOfTheExportMacroIsCut()
{
    DtFileWriter::setExportMacroName("DT_DLL_OUTER_DT_DLL_INNER");
    QCOMPARE(expand("<!noDtDllExport!> <!DllExport!>"), std::string("OUTER_DT_DLL_INNER DT_DLL_OUTER_DT_DLL_INNER"));
}

void TestFileWriter::everyBaseTokenHasItsValue()
{
    DtOMTEnvWriter::setIncludeName("inc");
    DtDataTypeMapper::instance()->setMapRtiObjectIdToGlobalId(true);
    DtFileWriter::setGenerate64Bit(false);
    DtFileWriter::setGenerateErrors(true);
    std::string text;
    for (const DtString& token : DtMemoryWriter().tokenChain().tokens())
        text += token.stdString() + ";";
    QCOMPARE(expand(text), std::string("1;DEMO;DT_DLL_DEMO;32;sim;dir/my-model.v2.xml;mymodelv2;inc/mymodelv2Types.h;"
                                       "mymodelv2;my-model.v2.xml;5.10;;1;;"));
    DtDataTypeMapper::instance()->setMapRtiObjectIdToGlobalId(false);
    DtFileWriter::setUseDecodeIncludes(true);
    QCOMPARE(expand("<!mapRtiObjectIdToGlobalId!><!UseDecodeIncludes!>"), std::string("01"));
}

void TestFileWriter::fomFileNamesAreTakenOnceOnly()
{
    DtMemoryWriter writer;
    DtString line("no token here");
    writer.decodeFileLine(line);
    DtOMTEnvWriter::setBaseName("other.xml");
    line = "<!FomFileName!> <!FomFileNameNoDash!>";
    writer.decodeFileLine(line);
    QCOMPARE(line.c_str(), "mymodelv2 mymodelv2");
}

void TestFileWriter::zeroBytesAreOrdinary()
{
    const std::string text("a\0<!BitCount!>\nb", 16);
    QCOMPARE(expand(text), std::string("a\0"
                                       "64\nb",
                                       6));
}

void TestFileWriter::derivedWriterChangesTokensLoopsAndConditions()
{
    DtOwnWriter writer;
    QCOMPARE(writer.expand("mark\n<#Numbers><!Own!><?odd>!<?>,<#>\n<!OwnWidth!>"),
             std::string("marked\n1!,2,3!,\nw64"));
}

void TestFileWriter::headersAreHandedOnRaw()
{
    DtOwnWriter writer;
    writer.expand("<#<!BitCount!> x>a<#><?exists <!BitCount!>>a<?>");
    QCOMPARE(writer.headers, (QStringList{"<!BitCount!> x", "exists <!BitCount!>"}));
}

void TestFileWriter::operandsAreDecodedOneByOne()
{
    DtOMTEnvWriter::setNamespaceName("a b");
    QCOMPARE(expand("<?equals <!NamespaceName!> a b>x<?>"), std::string("x"));
}

void TestFileWriter::bodyIsTakenFromItsPosition()
{
    DtMemoryWriter writer;
    std::istringstream body("abc");
    body.get();
    writer.writeMultipleTimes("2", body);
    QCOMPARE(writer.text(), std::string("bcbc"));
}

void TestFileWriter::operationsAreCalledAlikeForEveryStream()
{
    writeTextFile("f", "i<!BitCount!>\n");
    const std::string text =
        "a <!BitCount!>\n|b<#2>\n|<?equals <!BitCount!> 64>c<?><#1>d<#>\n<#>e<#1#f#>\n\n<?exists 1?f?>";
    DtNotingWriter own;
    own.expand(text);
    DtNotingWriter plain;
    plain.expandPlain(text);
    QVERIFY(own.calls.size() > 30);
    QCOMPARE(own.calls, plain.calls);
    QCOMPARE(own.text(), plain.text());
}

// A loop by number changes nothing that lines are made of; one of a derived class may.
void TestFileWriter::ownDecodingIsAskedAtFirstLinesOnly()
{
    const std::string text = "a\nb <!BitCount!>\n\n|c<?exists <!BitCount!>>d\ne<?>f\n<#2>x\ny<#>g\n"
                             "<#Twice><?exists 1>x\ny<?>z <!BitCount!><#>h\ni <!Foo!><#None>x<#>j\nk";
    DtTwiceWriter all;
    all.expand(text);
    DtTwiceWriter first;
    first.setHasOwnDecoding(true);
    first.expand(text);
    QCOMPARE(first.text(), all.text());
    QCOMPARE(all.calls.filter("line ").size(), 24);
    QCOMPARE(first.calls.filter("line "), (QStringList{"line a", "line 1", "line 1", "line h", "line j"}));
    first.expand("l\nm");
    QCOMPARE(first.calls.last(), QString("line l"));
}

void TestFileWriter::operationThatLeavesTheStreamElsewhereIsFollowed()
{
    const std::string text = "<#1>a<#>xyb <!BitCount!><#1>c<#>zz<#1>d<#>";
    QCOMPARE(DtTakingWriter().expand(text), std::string("ab 64cd"));
    QCOMPARE(DtTakingWriter().expandPlain(text), std::string("ab 64cd"));
}

void TestFileWriter::directCallsWithoutOpening()
{
    const QString problem = "Problem Handling For Loop in line: ";
    const auto warningOf = [](const char* text, bool isLoop)
    {
        const DtCapture warnings(DtWarn);
        DtMemoryWriter writer;
        std::istringstream in(text);
        isLoop ? writer.handleForLoop(in) : writer.handleIfStatement(in);
        return warnings.text() + "=" + QString::fromStdString(writer.text());
    };
    QCOMPARE(warningOf("", true), QString("Problem Handling For Loop empty string.\n="));
    QCOMPARE(warningOf("\nx", true), QString("Problem Handling For Loop empty string.\n="));
    QCOMPARE(warningOf("ab2>c<#>", true), problem + "ab2>c<#>=cc"); // a loop goes on all the same
    QCOMPARE(warningOf("x", true), problem + "x" + problem + "x=");
    QCOMPARE(warningOf("", false), problem + "=");
    QCOMPARE(warningOf("abexists 1>c<?>", false), problem + "abexists 1>c<?>=");
}

void TestFileWriter::directCallLeavesStreamBehindTerminator()
{
    for (const bool isPlain : {false, true})
    {
        std::istringstream plain("x<#2>a\nb<#>rest");
        DtTemplateStream own;
        own.open(plain.str());
        std::istream& in = isPlain ? static_cast<std::istream&>(plain) : own;
        in.get();
        DtMemoryWriter writer;
        writer.handleForLoop(in);
        QCOMPARE(writer.text(), std::string("a\nba\nb"));
        std::string rest;
        QVERIFY(std::getline(in, rest).eof());
        QCOMPARE(rest, std::string("rest"));
    }
}

void TestFileWriter::helpersFollowTheLine()
{
    writeTextFile("f", "text");
    DtMemoryWriter writer;
    std::istringstream in("<#1>a\nb<#>c");
    std::string line = "<#1>a";
    in.seekg(5);
    std::streampos position(0);
    DtTemplateStream body;
    writer.helperStringHandler(line, 4, in, position, '#', body);
    QCOMPARE(line, std::string("b<#>c"));
    QCOMPARE(std::streamoff(position), std::streamoff(6));
    QCOMPARE(char(in.peek()), 'c');
    QCOMPARE(std::string(std::istreambuf_iterator<char>(body), {}), std::string("a\nb"));

    std::istringstream files("<?x?f ?>c");
    std::string fileLine = "<?x?f ?>c";
    position = 0;
    writer.helperFileHandler(fileLine, 4, files, position, '?', body);
    QCOMPARE(char(files.peek()), 'c');
    QCOMPARE(std::string(std::istreambuf_iterator<char>(body), {}), std::string("text"));
}

void TestFileWriter::streamInBadStateIsLeftAlone()
{
    DtMemoryWriter writer;
    std::istringstream in("abc");
    in.setstate(std::ios_base::eofbit);
    writer.writeFileStream(in);
    QCOMPARE(writer.text(), std::string());
    in.clear();
    QCOMPARE(std::streamoff(in.tellg()), std::streamoff(0));
}

void TestFileWriter::outputStandsUnderDirectoryAndIncludePath()
{
    DtOMTEnvWriter::setIncludeName("inc");
    DtFileWriter("a.h", "");
    DtFileWriter("b.html", ""); // holds ".h" too
    DtFileWriter("c.cxx", "");
    QVERIFY(QFile::exists("out/inc/a.h"));
    QVERIFY(QFile::exists("out/inc/b.html"));
    QVERIFY(QFile::exists("out/c.cxx"));
    DtFileWriter::setOutputDirectory("pre");
    DtFileWriter("fix.txt", ""); // no separator is added
    QVERIFY(QFile::exists("prefix.txt"));
}

void TestFileWriter::stemEndsAtFirstDot()
{
    QCOMPARE(DtOpenWriter("a.b.cxx", "").myFileStem.c_str(), "a");
    QCOMPARE(DtOpenWriter("Makefile", "").myFileStem.c_str(), "Makefile");
}

void TestFileWriter::emptyNameOpensNothing()
{
    writeTextFile("t.tlt", "x");
    DtOpenWriter writer("", "t.tlt");
    QVERIFY(writer.myPrinter == nullptr && writer.myTemplateFile == nullptr);
    writer.writeFile(); // does not even ask for the meter
    QVERIFY(!QFile::exists("out"));
}

void TestFileWriter::missingTemplateLeavesEmptyFileAndNoStep()
{
    const DtCapture warnings(DtWarn);
    const DtWithMeter meter(1);
    DtFileWriter writer("a.txt", "none.tlt");
    writer.writeFile();
    QCOMPARE(DtQtProgressMeter::instance()->currentMeasure(), 0);
    QCOMPARE(warnings.text(), QString());
    QVERIFY(QFile::exists("out/a.txt"));
    QCOMPARE(QFileInfo("out/a.txt").size(), qint64(0));
}

void TestFileWriter::secondCallExpandsNothing()
{
    writeTextFile("t.tlt", "x\n");
    const DtWithMeter meter(4);
    for (int round = 0; round < 2; ++round)
    {
        if (round == 1)
            QTest::qSleep(150); // the template's text may be kept from here on
        {
            DtFileWriter writer("a.txt", "t.tlt");
            writer.writeFile();
            writer.writeFile();
        }
        QCOMPARE(readTextFile("out/a.txt"), QByteArray("x\n"));
        DtFileWriter("a.txt", "t.tlt").writeFile();
    }
}

void TestFileWriter::oneTemplateIsOneStep()
{
    writeTextFile("t.tlt", "<#3>x<#>");
    const DtWithMeter meter(5);
    DtFileWriter writer("a.txt", "t.tlt");
    writer.writeFile();
    QCOMPARE(DtQtProgressMeter::instance()->currentMeasure(), 1);
}

void TestFileWriter::withoutMeterWriteFileThrows()
{
    writeTextFile("t.tlt", "x");
    DtFileWriter writer("a.txt", "t.tlt");
    QVERIFY_EXCEPTION_THROWN(writer.writeFile(), DtException);
}

void TestFileWriter::levelZeroDropsTheText()
{
    const DtSaved<int> level(DtNotifyLevel, 0);
    QCOMPARE(expand("text"), std::string());
}

void TestFileWriter::changedTemplateIsReadAgain()
{
    writeTextFile("inc", "one");
    QCOMPARE(writeFile("a.txt", "1<#1#inc#>"), QByteArray("1one"));
    writeTextFile("inc", "two"); // of the same size, a moment later
    QCOMPARE(writeFile("a.txt", "2<#1#inc#>"), QByteArray("2two"));
    QTest::qSleep(150);
    QCOMPARE(expand("<#1#inc#>"), std::string("two"));
    writeTextFile("inc", "six");
    QCOMPARE(expand("<#1#inc#>"), std::string("six"));
}

void TestFileWriter::templateOfARunIsLookedAtOnce()
{
    const DtWithMeter meter(1);
    const auto written = []
    {
        DtFileWriter("a.txt", "t.tlt").writeFile();
        return readTextFile("out/a.txt");
    };
    const auto change = [](const char* text)
    {
        writeTextFile("t.tlt", QByteArray(text) + "<#1#f#>");
        writeTextFile("f", text);
    };
    change("1");
    {
        const DtTemplateRun run;
        QCOMPARE(written(), QByteArray("11"));
        change("22");
        QCOMPARE(written(), QByteArray("11"));
    }
    QCOMPARE(written(), QByteArray("2222"));
}

void TestFileWriter::nameCanBeChanged()
{
    DtMemoryWriter writer;
    writer.setFileName("b.txt");
    QCOMPARE(writer.fileName().c_str(), "b.txt");
}

void TestFileWriter::pathOutsideIsNotWritten_data()
{
    QTest::addColumn<QString>("directory");
    QTest::addColumn<QString>("include");
    QTest::addColumn<QString>("name");
    QTest::addColumn<QString>("written"); // empty: not
    const struct
    {
        const char* tag;
        QString directory, include, name;
        QString written;
    } theRows[] = {
        {"parent",                              "out/",       "",   "../a.txt",      ""             },
        {"parent in the middle",                "out/",       "",   "x/../../a.txt", ""             },
        {"parent that comes back",              "out/",       "",   "x/../a.txt",    "out/a.txt"    },
        {"include directory",                   "out/",       "..", "a.h",           ""             },
        {"sibling with the same start",         "out/",       "",   "../out2/a.txt", ""             },
        {"absolute name",                       "out/",       "",   "/a.txt",        ""             },
        {"two dots in a name",                  "out/",       "",   "a..b.txt",      "out/a..b.txt" },
        {"component that begins with two dots", "out/",       "",   "..a/b.txt",     "out/..a/b.txt"},
        {"working directory",                   "",           "",   "../a.txt",      ""             },
        {"inside of the working directory",     "./",         "",   "x/a.txt",       "x/a.txt"      },
        {"directory above",                     "sub/../../", "",   "../a.txt",      ""             },
        {"name that completes two dots",        "out/.",      "",   "./a.txt",       ""             },
    };
    for (const auto& row : theRows)
        QTest::newRow(row.tag) << row.directory << row.include << row.name << row.written;
}

void TestFileWriter::pathOutsideIsNotWritten()
{
    QFETCH(QString, directory);
    QFETCH(QString, include);
    QFETCH(QString, name);
    QFETCH(QString, written);
    QDir().mkpath("deep/er/out/x");
    const DtInDirectory inDirectory("deep/er");
    DtFileWriter::setOutputDirectory(qPrintable(directory));
    DtOMTEnvWriter::setIncludeName(qPrintable(include));
    writeTextFile("t.tlt", "text");
    const DtCapture warnings(DtWarn);
    const DtWithMeter meter(1);
    {
        DtFileWriter writer(qPrintable(name), "t.tlt");
        writer.writeFile();
    }
    QCOMPARE(DtQtProgressMeter::instance()->currentMeasure(), 1);
    if (!written.isEmpty())
    {
        QCOMPARE(readTextFile(written), QByteArray("text"));
        QCOMPARE(warnings.text(), QString());
        return;
    }
    QCOMPARE(warnings.text().count(name), 1);
    const QString path = directory + (include.isEmpty() ? "" : include + "/") + name;
    QVERIFY(!QFile::exists(path));
}

void TestFileWriter::fileThatIncludesItselfStopsAtDepth64()
{
    writeTextFile("again", "x<#1#again#>");
    const DtCapture warnings(DtWarn);
    QCOMPARE(expand("<#1#again#>"), std::string(64, 'x'));
    QCOMPARE(warnings.text().count("again"), 1);
}

void TestFileWriter::fileThatIncludesItselfTwiceStops()
{
    writeTextFile("again", "x<#2#again#><?exists 1?again?>");
    const DtCapture warnings(DtWarn);
    QVERIFY(expand("<#1#again#>").size() < 1000);
    QCOMPARE(warnings.text().count("again"), 1);
}

void TestFileWriter::filesThatIncludeEachOtherStop()
{
    writeTextFile("one", "1<#1#two#>");
    writeTextFile("two", "2<#1#one#>");
    const DtCapture warnings(DtWarn);
    QCOMPARE(QString::fromStdString(expand("<#1#one#>")), QString("12").repeated(32));
    QCOMPARE(warnings.text().count('\n'), 1);
}

void TestFileWriter::manyFilesInsideEachOtherAreExpanded()
{
    for (int i = 0; i < 100; ++i)
        writeTextFile(QString("f%1").arg(i), QString("%1<#1#f%2#>").arg(i % 10).arg(i + 1).toLatin1());
    const DtCapture warnings(DtWarn);
    QCOMPARE(QString::fromStdString(expand("<#1#f0#>")), QString("0123456789").repeated(10));
    QCOMPARE(warnings.text(), QString());
}

void TestFileWriter::blocksNestedTooDeepAreLeftOut()
{
    const auto nested = [](int depth)
    { return QString("\n|<#1>").repeated(depth) + "x" + QString("\n|<#>").repeated(depth); };
    const DtCapture warnings(DtWarn);
    QCOMPARE(expand(nested(1000).toStdString()), std::string("x"));
    QCOMPARE(warnings.text(), QString());
    QCOMPARE(expand(nested(1500).toStdString()), std::string());
    QCOMPARE(warnings.text().count('\n'), 1);
}

void TestFileWriter::onlyRegularFilesAreIncluded()
{
    QDir().mkpath("directory");
    QCOMPARE(expand("a<#1#directory#>b<#1#/dev/zero#>c"), std::string("abc"));
}

QX_REGISTER_TEST(TestFileWriter)
#include "testFileWriter.moc"
