#include "fileGenerator/fileWriter.h"

#include "fileGenerator/dataFile.h"
#include "fileGenerator/dataTypeMapper.h"
#include "fileGenerator/progressMeter.h"
#include "fileGenerator/regularExpressionUtils.h"
#include "fileGenerator/relativePath.h"
#include "fileGenerator/settings.h"
#include "fileGenerator/templateBlock.h"
#include "fileGenerator/templateFiles.h"
#include "foundation/assertion.h"
#include "foundation/fileUtils.h"
#include "foundation/restored.h"
#include "foundation/stringUtils.h"
#include "foundation/warningRules.h"

#include <algorithm>

namespace
{
constexpr std::size_t theNowhere = std::string::npos;
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

DtString typesHeader(const DtString& fomFileName)
{
    return DtSettings::instance().cpp.includePath() + fomFileName + "Types.h";
}

std::string_view trimmedFront(std::string_view text)
{
    return text.substr(std::min(text.find_first_not_of(' '), text.size()));
}

std::string_view trimmedBack(std::string_view text)
{
    return text.substr(0, text.find_last_not_of(' ') + 1);
}

// A text cut at its first blank. One without a blank is whole in both parts.
struct DtCut
{
    explicit DtCut(std::string_view text) : left(text), right(text)
    {
        const std::size_t blank = text.find(' ');
        if (blank == theNowhere)
            return;
        left = text.substr(0, blank);
        right = text.substr(blank + 1);
    }

    std::string_view left;
    std::string_view right;
};

// An unknown token is still in the decoded text, with its bracket first.
bool isPresent(const DtString& value)
{
    return !value.isEmpty() && value[0] != '<';
}

using DtTest = bool (*)(const DtString& left, const DtString& right);

struct DtVerb
{
    std::string_view name;
    bool hasTwoOperands;
    DtTest test;
};

const DtVerb theVerbs[] = {
    {"exists",      false, [](const DtString& value, const DtString&) { return isPresent(value); }                  },
    {"notexists",   false, [](const DtString& value, const DtString&) { return !isPresent(value); }                 },
    {"greaterthan", true,  [](const DtString& left,  const DtString& right) { return left.toInt() > right.toInt(); }},
    {"lessthan",    true,  [](const DtString& left,  const DtString& right) { return left.toInt() < right.toInt(); }},
    {"equals",      true,  [](const DtString& left,  const DtString& right) { return left == right; }               },
    {"notequals",   true,  [](const DtString& left,  const DtString& right) { return left != right; }               },
};

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

void DtFileWriter::DtFileCloser::operator()(FILE* file) const
{
    DtFileClose(file);
}

DtFileWriter::DtFileWriter(const DtString& fileName, const DtString& templateName)
    : myFileName(fileName),
      myStream(&myStreamBuffer, DtNotifyLevel, 1, nullptr),
      myBaseTokens(baseTable(), this, DtTokenMemory::OneLine)
{
    myTokenChain.putAhead({&myBaseTokens});
    if (myFileName.isEmpty())
        return;
    openOutput();
    myFileStem = DtRegularExpressionUtils::regExpReplace("\\..*", myFileName, "");
    if (templateName != DtString::nullString())
        myTemplateFile.reset(DtFileOpen(DtDataFile(templateName).c_str(), "r"));
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
    DtTemplateStream in;
    in.open(DtPreparedTemplateText(myTemplateFile.get(), pieceLimit()));
    writeFileStream(in);
    DtProgressMeter::current()->incrementCurrentMeasure(1);
}

void DtFileWriter::writeFileStream(std::istream& in)
{
    DtTemplateCursor cursor(in, pieceLimit());
    while (cursor.isGood())
    {
        writeLineFeeds(cursor);
        cursor.clearState();
        const std::streampos start = std::max<std::streamoff>(0, cursor.position());
        const std::string_view piece = cursor.readPiece();
        const std::size_t block = DtFindBlock(piece);
        if (block == theNowhere)
        {
            writePiece(piece);
            continue;
        }
        const bool isLoop = piece[block + 1] == '#';
        cursor.clearState();
        cursor.moveTo(start);
        cursor.skipCharacters(block);
        if (block > 0)
            writePiece(piece.substr(0, block));
        if (isLoop)
            handleForLoop(in);
        else
            handleIfStatement(in);
    }
}

// The bar is tested only behind a line feed read here, so a bar at the very start is plain text.
void DtFileWriter::writeLineFeeds(DtTemplateCursor& cursor)
{
    while (cursor.peekIs('\n'))
    {
        cursor.skip();
        if (cursor.peekIs('|'))
            cursor.skip();
        else
            writeText("\n");
    }
}

void DtFileWriter::writeText(std::string_view text)
{
    myStreamBuffer.print(text.data(), text.size());
}

void DtFileWriter::writePiece(std::string_view piece)
{
    DtAssignText(myLine, piece);
    decodeFileLine(myLine);
    writeText(myLine.stdString());
    myStreamBuffer.pubsync();
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
    myTokenChain.expand(line, further);
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
    DtTemplateBlock& block = *lease;
    DtTemplateCursor cursor(in, pieceLimit());
    if (!block.readHeader(cursor, delimiter))
        return;
    const unsigned int start = static_cast<unsigned int>(block.headerEnd + 1);
    if (block.isInline())
        helperStringHandler(block.line, start, in, block.linePosition, delimiter, block.body);
    else
        helperFileHandler(block.line, start, in, block.linePosition, delimiter, block.body);
    expandBlock(block.header, block.body, delimiter);
    block.body.close();
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
        writeMultipleTimes(header, body);
    else
        writeConditional(header, body);
}

void DtFileWriter::helperStringHandler(std::string& line, unsigned int start, std::istream& in,
                                       std::streampos& linePosition, char delimiter, DtTemplateStream& body)
{
    const std::string opening = {'<', delimiter};
    const std::string closing = {delimiter, '>'};
    DtTemplateCursor cursor(in, pieceLimit());
    std::string text = body.releaseText();
    std::size_t from = std::min<std::size_t>(start, line.size());
    std::size_t open = line.find(opening, from);
    std::size_t close = line.find(closing, from);
    int depth = 0; // goes below 0 on a stray closing pair
    while (open == theNowhere || close != open + 1 || depth > 0)
    {
        if (open == theNowhere && close == theNowhere)
        {
            if (!cursor.isGood())
                break;
            text.append(line, from, theNowhere);
            text.append(cursor.skipLineFeeds(), '\n');
            linePosition = cursor.position();
            line = cursor.readPiece();
            from = 0;
            open = line.find(opening);
            close = line.find(closing);
        }
        else if (open != theNowhere && close > open + 1)
        {
            ++depth;
            open = line.find(opening, open + 2);
        }
        else
        {
            --depth;
            if (open != theNowhere)
                open = line.find(opening, close + 2);
            close = line.find(closing, close + 2);
        }
    }
    text.append(line, from, open == theNowhere ? theNowhere : open - from);
    body.open(std::move(text));
    cursor.clearState();
    cursor.moveTo(linePosition);
    // Without a terminator the scan goes on behind the first character of the last line, which it so meets again.
    cursor.skipCharacters(close == theNowhere ? 1 : close + 2);
}

void DtFileWriter::helperFileHandler(std::string& line, unsigned int start, std::istream& in,
                                     std::streampos& linePosition, char delimiter, DtTemplateStream& file)
{
    DtTemplateCursor cursor(in, pieceLimit());
    const std::size_t from = std::min<std::size_t>(start, line.size());
    std::size_t end = line.find(delimiter, from);
    std::string path = line.substr(from, end == theNowhere ? theNowhere : end - from);
    file.close();
    while (end == theNowhere)
    {
        if (!cursor.isGood())
        {
            DtWarnOfBlock(line);
            return;
        }
        cursor.skipLineFeeds();
        linePosition = cursor.position();
        line = cursor.readPiece();
        end = line.find(delimiter);
        path.append(line, 0, end);
    }
    path = trimmedBack(path);
    cursor.clearState();
    cursor.moveTo(linePosition);
    cursor.skipCharacters(end + 2); // the character behind the delimiter, taken to be ">", goes in any case
    if (path.empty() || !mayOpen(path))
        return;
    file.open(DtTemplateFileText(DtDataFile(path)));
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
        writeBodyFrom(body, position);
}

void DtFileWriter::writeBodyFrom(std::istream& body, std::streampos position)
{
    body.clear();
    body.seekg(position);
    writeFileStream(body);
}

void DtFileWriter::writeConditional(const DtString& header, std::istream& body)
{
    if (trimmedFront(header.stdString()).empty())
        return;
    const DtCut statement(header.stdString()); // a blank in front leaves an empty verb, which is none
    const auto verb = std::find_if(std::begin(theVerbs), std::end(theVerbs),
                                   [&](const DtVerb& row) { return row.name == statement.left; });
    if (verb == std::end(theVerbs))
        return;
    const std::string_view rest = trimmedBack(trimmedFront(statement.right));
    const DtCut operands(rest);
    DtString left = std::string(verb->hasTwoOperands ? operands.left : rest);
    DtString right = std::string(verb->hasTwoOperands ? trimmedFront(operands.right) : "");
    decodeFileLine(left);
    if (verb->hasTwoOperands)
        decodeFileLine(right);
    if (verb->test(left, right))
        writeFileStream(body);
}
