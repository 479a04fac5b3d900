#include "fileGenerator/fileWriter.h"

#include "fileGenerator/commentText.h"
#include "fileGenerator/dataTypeMapper.h"
#include "fileGenerator/progressMeter.h"
#include "fileGenerator/relativePath.h"
#include "fileGenerator/settings.h"
#include "fileGenerator/templateBlock.h"
#include "fileGenerator/templateFiles.h"
#include "fileGenerator/templateScan.h"
#include "foundation/applicationSettings.h"
#include "foundation/assertion.h"
#include "foundation/restored.h"
#include "foundation/stringUtils.h"
#include "foundation/warningRules.h"

#include <algorithm>

namespace
{
// Depth at which a file that includes itself is left out.
constexpr std::size_t theMaximumFileDepth = 64;
// Depth at which blocks inside blocks are left out: the program's stack holds several times as many.
constexpr int theMaximumBlockDepth = 1000;

std::size_t pieceLimit()
{
    return static_cast<std::size_t>(std::max(2, DtSettings::instance().cpp.maximumLineLength) - 1);
}

DtString flag(bool isSet)
{
    return isSet ? "1" : "";
}

DtString mapsRtiObjectIds()
{
    return DtDataTypeMapper::instance()->mapRtiObjectIdToGlobalId() ? "1" : "0";
}

DtString modelFileName()
{
    DtFilename name(DtSettings::instance().cpp.fomDefinitionFileName);
    name.stripPath();
    return DtCommentWords(name);
}

DtString typesHeader(const DtString& fomFileName)
{
    return DtSettings::instance().cpp.includePath() + fomFileName + "Types.h";
}

// The file of a file block is open while this lives; nothing for an inline block, whose file name is empty.
class DtInsideFile
{
public:
    DtInsideFile(std::vector<std::string>& files, const std::string& name) : myFiles(files), myCount(files.size())
    {
        if (!name.empty())
            myFiles.push_back(name);
    }
    ~DtInsideFile() { myFiles.resize(myCount); }
    DtInsideFile(const DtInsideFile&) = delete;
    DtInsideFile& operator=(const DtInsideFile&) = delete;

private:
    std::vector<std::string>& myFiles;
    std::size_t myCount;
};
} // namespace

DtFileWriter::DtFileWriter(const DtString& fileName, const DtString& templateName)
    : myFileName(fileName),
      myStream(&myStreamBuffer, DtNotifyLevel, 1, nullptr),
      myBaseTokens(baseTable(), this, DtTokenMemory::OneLine)
{
    myTokenChain.putAhead({&myBaseTokens});
    if (myFileName.isEmpty())
        return;
    openOutput();
    myFileStem = myFileName;
    myFileStem.snipBackToFirst('.');
    if (templateName != DtString::nullString())
        myTemplateFile = DtOpenTemplate(templateName);
}

DtFileWriter::~DtFileWriter()
{
    myStream.detachPrinter(myPrinter.get());
}

void DtFileWriter::openOutput()
{
    // Any name with these two characters counts as a header, "a.html" too.
    const bool isHeader = DtContainsSubstring(myFileName, ".h");
    const DtString name = isHeader ? DtSettings::instance().cpp.includePath() + myFileName : myFileName;
    const DtString path = outputDirectory() + name;
    if (!staysBelow(name, outputDirectory()))
    {
        DtTellWarning(DtRules::outsideOutput, DtSubject::file(path),
                      "File " + path + " is not written: it is outside of the output directory.\n");
        return;
    }
    myPrinter = std::make_unique<DtFilePrinter>(path.c_str());
    myStream.attachPrinter(myPrinter.get());
}

void DtFileWriter::setFileName(const DtString& name)
{
    myFileName = name;
}

const DtString& DtFileWriter::fileName() const
{
    return myFileName;
}

void DtFileWriter::writeFile()
{
    if (myTemplateFile == nullptr)
        return;
    DtProgressMeter::current()->setFileGenerated(myFileName);
    const DtTemplateRun run;
    DtTemplateStream in;
    if (myIsWritten)
        in.open(std::string());
    else
        in.open(DtPreparedTemplateText(myTemplateFile, pieceLimit()));
    myIsWritten = true;
    writeFileStream(in);
    DtProgressMeter::current()->incrementCurrentMeasure(1);
}

// Writes what the scanner meets.
class DtFileWriter::DtScanTaker
{
public:
    DtScanTaker(DtFileWriter& writer, std::istream& in) : myWriter(writer), myStream(in) {}

    void lineFeed() { myWriter.writeLineFeeds(1); }
    void piece(std::string_view text) { myWriter.writePiece(text); }
    bool block(char delimiter)
    {
        if (delimiter == '#')
            myWriter.handleForLoop(myStream);
        else
            myWriter.handleIfStatement(myStream);
        return true;
    }

private:
    DtFileWriter& myWriter;
    std::istream& myStream;
};

void DtFileWriter::writeFileStream(std::istream& in)
{
    if (myBlockDepth == 0)
        myIsDirect = false;
    DtTemplateBuffer* const buffer = DtTemplateBuffer::of(in);
    const bool isAtStart = buffer != nullptr && in.good() && buffer->position() == 0;
    if (!isAtStart || !writeParts(buffer->text()->parts(pieceLimit()), in, *buffer))
        scan(in);
}

void DtFileWriter::scan(std::istream& in)
{
    DtScanTaker taker(*this, in);
    DtScanTemplate(in, pieceLimit(), taker);
}

bool DtFileWriter::writeParts(const DtTemplateParts& parts, std::istream& in, DtTemplateBuffer& buffer)
{
    for (std::size_t index = 0; index < parts.steps.size(); ++index)
    {
        const DtTemplateStep& step = parts.steps[index];
        if (myIsDirect && step.literalSteps > 0)
        {
            writeText(step.literalText);
            index += step.literalSteps - 1;
            continue;
        }
        writeLineFeeds(step.lineFeeds);
        if (step.block == nullptr)
        {
            if (!myIsDirect || !writeDirectly(step.line))
                writeLine(step.line);
            continue;
        }
        buffer.moveToBlock(*step.block, step.start);
        if (step.block->delimiter == '#')
            handleForLoop(in);
        else
            handleIfStatement(in);
        if (!in.good() || buffer.position() != step.block->end)
            return false; // an operation that is not ours has left it elsewhere
    }
    writeLineFeeds(parts.lineFeeds);
    buffer.moveTo(parts.end);
    in.clear(parts.state);
    return !in.good();
}

void DtFileWriter::writeText(std::string_view text)
{
    myStreamBuffer.print(text.data(), text.size());
}

void DtFileWriter::writeLineFeeds(std::size_t count)
{
    for (; count > 0; --count)
        writeText("\n");
}

void DtFileWriter::writePiece(std::string_view piece)
{
    DtAssignText(myLine, piece);
    decodeFileLine(myLine);
    writeText(myLine.stdString());
    myStreamBuffer.pubsync();
}

void DtFileWriter::writeLine(const DtCompiledLine& line)
{
    decode(line, myLine);
    writeText(myLine.stdString());
    myStreamBuffer.pubsync();
}

bool DtFileWriter::writeDirectly(const DtCompiledLine& line)
{
    std::string text = std::move(myExpandedText); // taken out while in use: a value may be a line that is expanded
    text.clear();
    const bool isExpanded = myTokenChain.append(line, text);
    if (isExpanded)
        writeText(text);
    myExpandedText = std::move(text);
    return isExpanded;
}

void DtFileWriter::decode(const DtCompiledLine& line, DtString& text)
{
    DtAssignText(text, line.text());
    const DtRestored current(myCompiledLine, &line);
    if (myIsDirect && expandCompiled(text))
        return;
    decodeFileLine(text);
    myIsDirect = myHasOwnDecoding;
}

const DtTokenTable<DtFileWriter>& DtFileWriter::baseTable()
{
    // Rows run top to bottom, and a later row sees what an earlier one put in. The last two are empty rather than "0",
    // so that "exists" tests them.
    static const DtTokenRow<DtFileWriter> theRows[] = {
        {"<!mapRtiObjectIdToGlobalId!>", [](const auto&) { return mapsRtiObjectIds(); }                                  },
        {"<!noDtDllExport!>",            [](const auto&) { return DtReplaceSubstring(exportMacroName(), "DT_DLL_", ""); }},
        {"<!DllExport!>",                [](const auto&) { return exportMacroName(); }                                   },
        {"<!BitCount!>",                 [](const auto&) { return DtString(generate64Bit() ? "64" : "32"); }             },
        {"<!NamespaceName!>",            [](const auto&) { return DtSettings::instance().cpp.namespaceName; }            },
        {"<!FullFomFileName!>",          [](const auto&) { return DtSettings::instance().cpp.fomDefinitionFileName; }    },
        {"<!FomFileName!>",              [](const auto& writer) { return DtString(writer.myFomFileName); }               },
        {"<!FomFileNameTypesHeader!>",   [](const auto& writer) { return typesHeader(writer.myFomFileName); }            },
        {"<!FomFileNameNoDash!>",        [](const auto& writer) { return DtString(writer.myFomFileNameNoDash); }         },
        {"<!ModelFileName!>",            [](const auto&) { return modelFileName(); }                                     },
        {"<!GeneratorVersion!>",         [](const auto&) { return DtString(DtApplicationSettings::theVersion); }         },
        {"<!EmptyLine!>",                [](const auto&) { return DtString(); }                                          },
        {"<!GenerateErrors!>",           [](const auto&) { return flag(generateErrors()); }                              },
        {"<!UseDecodeIncludes!>",        [](const auto&) { return flag(useDecodeIncludes()); }                           },
    };
    static const DtTokenTable<DtFileWriter> theTable(theRows);
    return theTable;
}

void DtFileWriter::decodeFileLine(DtString& line)
{
    expandTokens(line, {});
}

void DtFileWriter::expandTokens(DtString& line, std::initializer_list<DtTokenSource*> further)
{
    fillFomFileNames();
    if (further.size() > 0 || !expandCompiled(line))
        myTokenChain.expand(line, further);
}

bool DtFileWriter::expandCompiled(DtString& line, DtTokenFinder* finder)
{
    fillFomFileNames();
    // The line is another one when a derived writer has changed it on its way here.
    if (myCompiledLine == nullptr || myCompiledLine->text() != line.stdString())
        return false;
    if (myCompiledLine->isLiteral())
        return true;
    std::string text = std::move(myExpandedText); // taken out while in use: a value may be a line that is expanded
    text.clear();
    const bool isExpanded = myTokenChain.append(*myCompiledLine, text, finder);
    if (isExpanded)
        DtAssignText(line, text);
    myExpandedText = std::move(text);
    return isExpanded;
}

// At the first line that is decoded, and not again once they are filled.
void DtFileWriter::fillFomFileNames()
{
    if (myFomFileName.isEmpty() && !DtSettings::instance().cpp.baseName.isEmpty())
    {
        DtFilename name(DtSettings::instance().cpp.baseName);
        name.stripPath();
        name.stripExtension();
        myFomFileName = DtReplaceAllSubstrings(DtReplaceAllSubstrings(name, "-", ""), ".", "");
    }
    if (myFomFileNameNoDash.isEmpty() && !myFomFileName.isEmpty())
        myFomFileNameNoDash = DtReplaceAllSubstrings(myFomFileName, "-", "");
}

void DtFileWriter::handleForLoop(std::istream& in)
{
    handleBlock(in, '#');
}

void DtFileWriter::handleIfStatement(std::istream& in)
{
    handleBlock(in, '?');
}

void DtFileWriter::handleBlock(std::istream& in, char delimiter)
{
    const DtBlockLease lease;
    DtTemplateBlock& memory = *lease;
    DtTemplateBuffer* const buffer = DtTemplateBuffer::of(in);
    const DtTemplateBlockPart* const part = buffer != nullptr ? buffer->takeBlock(delimiter) : nullptr;
    if (part == nullptr)
        return scanBlock(in, delimiter, memory);
    buffer->moveTo(part->end);
    expandPart(*part, memory.body);
    memory.body.close();
}

void DtFileWriter::scanBlock(std::istream& in, char delimiter, DtTemplateBlock& memory)
{
    DtTemplateCursor cursor(in, pieceLimit());
    const DtHeaderOutcome outcome = memory.readHeader(cursor, delimiter);
    if (outcome == DtHeaderOutcome::NoEnd)
        DtWarnOfBlock(memory.line);
    if (outcome != DtHeaderOutcome::Read)
        return;
    const unsigned int start = static_cast<unsigned int>(memory.headerEnd + 1);
    if (memory.isInline())
        helperStringHandler(memory.line, start, in, memory.linePosition, delimiter, memory.body);
    else
        helperFileHandler(memory.line, start, in, memory.linePosition, delimiter, memory.body);
    expandBlock(memory.header, memory.body, delimiter);
    memory.body.close();
}

void DtFileWriter::expandPart(const DtTemplateBlockPart& part, DtTemplateStream& body)
{
    if (part.body != nullptr)
        body.open(*part.body);
    else
        openFile(part.path, body);
    const DtRestored current(myExpandedPart, &part);
    expandBlock(part.header, body, part.delimiter);
}

void DtFileWriter::expandBlock(const DtString& header, DtTemplateStream& body, char delimiter)
{
    if (myBlockDepth >= theMaximumBlockDepth)
    {
        warnOnce(myHasWarnedOfBlocks, body.fileName(),
                 "Template blocks are nested too deep; the innermost are left out.");
        return;
    }
    const DtRestored deeper(myBlockDepth, myBlockDepth + 1);
    const DtInsideFile inside(myOpenFiles, body.fileName());
    body.seekg(0); // fails for a file that could not be opened, and nothing is read from it then
    if (delimiter == '#')
    {
        myIsPlainLoop = false;
        writeMultipleTimes(header, body);
        myIsDirect = myIsDirect && myIsPlainLoop;
    }
    else
        writeConditional(header, body);
}

void DtFileWriter::helperStringHandler(std::string& line, unsigned int start, std::istream& in,
                                       std::streampos& linePosition, char delimiter, DtTemplateStream& body)
{
    DtTemplateCursor cursor(in, pieceLimit());
    std::string text;
    DtTakeBlockBody(line, start, cursor, linePosition, delimiter, text);
    body.open(std::move(text));
}

void DtFileWriter::helperFileHandler(std::string& line, unsigned int start, std::istream& in,
                                     std::streampos& linePosition, char delimiter, DtTemplateStream& file)
{
    DtTemplateCursor cursor(in, pieceLimit());
    std::string path;
    file.close();
    if (DtTakeBlockPath(line, start, cursor, linePosition, delimiter, path))
        openFile(path, file);
    else
        DtWarnOfBlock(line);
}

void DtFileWriter::openFile(const std::string& path, DtTemplateStream& file)
{
    file.close();
    if (path.empty() || !mayOpen(path))
        return;
    file.open(DtIncludedTemplateText(path));
    file.setFileName(path);
}

// Once the limit has been met, no file is entered again from within itself: every further level would only multiply
// what is left of the levels above.
bool DtFileWriter::mayOpen(const std::string& path)
{
    const bool isOpen = std::find(myOpenFiles.begin(), myOpenFiles.end(), path) != myOpenFiles.end();
    if (!isOpen || (myOpenFiles.size() < theMaximumFileDepth && !myHasWarnedOfFiles))
        return true;
    warnOnce(myHasWarnedOfFiles, path, "Template file " + DtString(path) + " includes itself; left out at depth 64.");
    return false;
}

void DtFileWriter::warnOnce(bool& hasWarned, const DtString& templateFile, const DtString& text)
{
    if (!hasWarned)
        DtTellWarning(DtRules::templateTooDeep,
                      templateFile.isEmpty() ? DtSubject::none() : DtSubject::file(templateFile), text + "\n");
    hasWarned = true;
}

void DtFileWriter::writeMultipleTimes(const DtString& header, std::istream& body)
{
    const int count = header.toInt();
    const std::streampos position = count > 0 ? body.tellg() : std::streampos(0);
    for (int repetition = 0; repetition < count; ++repetition)
        repeatBody(body, position);
    myIsPlainLoop = true; // only now: there may be other loops in the body
}

void DtFileWriter::writeBodyFrom(std::istream& body, std::streampos position)
{
    myIsDirect = false;
    repeatBody(body, position);
}

void DtFileWriter::repeatBody(std::istream& body, std::streampos position)
{
    DtTemplateBuffer* const buffer = DtTemplateBuffer::of(body);
    body.clear();
    if (buffer == nullptr || !buffer->moveTo(position))
        body.seekg(position);
    writeFileStream(body);
}

void DtFileWriter::writeConditional(const DtString& header, std::istream& body)
{
    const bool isKnown = myExpandedPart != nullptr && &header == &myExpandedPart->header;
    if (isKnown ? holds(myExpandedPart->condition) : holds(DtTemplateCondition(header.stdString())))
        writeFileStream(body);
}

bool DtFileWriter::holds(const DtTemplateCondition& condition)
{
    if (!condition.isKnown())
        return false;
    decode(condition.left(), myOperands[0]);
    if (condition.hasTwoOperands())
        decode(condition.right(), myOperands[1]);
    return condition.holds(myOperands[0], myOperands[1]);
}
