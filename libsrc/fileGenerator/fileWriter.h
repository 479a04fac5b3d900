#ifndef FILE_GENERATOR_FILE_WRITER_H
#define FILE_GENERATOR_FILE_WRITER_H

#include "fileGenerator/settings.h"
#include "fileGenerator/templateStream.h"
#include "fileGenerator/tokenPass.h"
#include "foundation/filePrinter.h"
#include "foundation/filename.h"
#include "foundation/fomType.h"
#include "foundation/outputStream.h"

#include <cstdio>
#include <initializer_list>
#include <istream>
#include <memory>
#include <string>
#include <vector>

struct DtTemplateBlock;

// Expands one template into one generated file; base of every writer.
//
// A template is text in lines. Six constructs exist: the token <!Name!>; the loop <#Header>body<#> and the loop over a
// file <#Header#path#>; the conditional <?Condition>body<?> and the conditional file <?Condition?path?>; and a bar as
// first character of a line, which joins the line to the one above. docs/templates.md tells the language by example.
//
// The scan is line-oriented: blocks are found by text search in pieces of at most maximumLineLength() - 1 bytes, bodies
// are taken out raw and go through writeFileStream() again for each expansion. A derived writer changes three things
// only: the tokens (tokenChain), the loops (writeMultipleTimes) and the conditions (writeConditional).
//
// What the scan makes of a template does not change, so it is done once for each text (templateText.h). On a stream
// over such a text writeFileStream() walks the parts that were found; on any other it scans. All operations are called
// the same way on both, with the same texts and with the stream at the same positions.
//
// Nearly all lines of a run go out without a call of decodeFileLine(), which would be that of the library: see
// setHasOwnDecoding().
//
// One object, one output file: construct, writeFile() once, destroy, which closes the output. The class-wide settings
// are set before the writers of a run are made.
class DtFileWriter
{
public:
    // The output goes to outputDirectory() + the include path if the name holds ".h" + fileName, joined as they are.
    // An empty fileName opens nothing, an empty templateName no template. A name that leads out of the output directory
    // is reported and its text dropped.
    DtFileWriter(const DtString& fileName, const DtString& templateName);
    DtFileWriter(const DtFileWriter&) = delete;
    DtFileWriter& operator=(const DtFileWriter&) = delete;

    virtual ~DtFileWriter();
    virtual void setFileName(const DtString& name);
    virtual const DtString& fileName() const;
    // Expands the whole template; one step of the progress meter, which has to be set up. A second call writes nothing
    // more, but is a step again.
    virtual void writeFile();
    // Scans the stream to its end and writes the expansion to myStream. Called again for every body.
    virtual void writeFileStream(std::istream& in);
    // Replaces the tokens of the line, along the chain.
    virtual void decodeFileLine(DtString& line);
    // The stream stands on the opening; the whole block is taken and expanded.
    virtual void handleForLoop(std::istream& in);
    virtual void handleIfStatement(std::istream& in);
    // Expands the body of a loop; here, as many times as the number at the start of the header says.
    virtual void writeMultipleTimes(const DtString& header, std::istream& body);
    // Expands the body if the condition holds: exists, notexists, greaterthan, lessthan, equals, notequals.
    virtual void writeConditional(const DtString& header, std::istream& body);

    // Tells that decodeFileLine() is that of this class or of DtClassFileWriter. It is then called for the first line
    // or operand behind each change that a loop of a derived class may have made: at the start of a repetition, and
    // behind the loop. What follows is expanded along the chain, with the same outcome.
    void setHasOwnDecoding(bool hasOwnDecoding) { myHasOwnDecoding = hasOwnDecoding; }

    // Takes the body of an inline block, from index start of the line on, and leaves the stream behind its terminator.
    // linePosition is where the line starts in the stream; line and position follow the reading. delimiter: '#' or '?'.
    void helperStringHandler(std::string& line, unsigned int start, std::istream& in, std::streampos& linePosition,
                             char delimiter, DtTemplateStream& body);
    // Takes the path of a file block and opens the file; `file` stays closed when that cannot be done.
    void helperFileHandler(std::string& line, unsigned int start, std::istream& in, std::streampos& linePosition,
                           char delimiter, DtTemplateStream& file);

    // The settings of all writers. DtFileSettings tells what each is for.
    static void setOutputDirectory(const DtString& directory) { settings().outputDirectory = directory; }
    static const DtString& outputDirectory() { return settings().outputDirectory; }
    static void setExportMacroName(const DtString& name) { settings().exportMacroName = name; }
    static const DtString& exportMacroName() { return settings().exportMacroName; }
    static void setGenerate64Bit(bool generate) { settings().generates64Bit = generate; }
    static bool generate64Bit() { return settings().generates64Bit; }
    static void setGenerateErrors(bool generate) { settings().generatesErrors = generate; }
    static bool generateErrors() { return settings().generatesErrors; }
    static void setUseDecodeIncludes(bool use) { settings().usesDecodeIncludes = use; }
    static bool useDecodeIncludes() { return settings().usesDecodeIncludes; }
    static void setCodeOpenArrays(bool code) { settings().codesOpenArrays = code; }
    static bool codeOpenArrays() { return settings().codesOpenArrays; }
    static void setAllDatatypes(bool all) { settings().takesAllDatatypes = all; }
    static void setHlaVersion(DtHLAProtocolVersion version) { settings().hlaVersion = version; }
    static DtHLAProtocolVersion hlaVersion() { return settings().hlaVersion; }

    // The tokens that the writer replaces, in the order of replacement. Those that every writer has come last, and only
    // tokens whose values are put in as they are stand behind these.
    const DtTokenChain& tokenChain() const { return myTokenChain; }

protected:
    // Replaces further tokens, which the line alone has, ahead of those of the chain.
    void expandTokens(DtString& line, std::initializer_list<DtTokenSource*> further);
    // Does so in one step for a line whose tokens are known ahead, with the finder asked first. False, with the line as
    // it was, for any other line and where the outcome depends on the order of the tokens.
    bool expandCompiled(DtString& line, DtTokenFinder* finder = nullptr);
    // Sets the body back to the position, with a clean state, and runs it once through writeFileStream().
    void writeBodyFrom(std::istream& body, std::streampos position);

    std::shared_ptr<FILE> myTemplateFile; // shared with other writers of the template during a run
    DtString myFileName;
    DtString myFileStem; // the file name up to its first dot
    std::unique_ptr<DtFilePrinter> myPrinter;
    DtOutputStreamBuffer myStreamBuffer;
    DtOutputStream myStream; // all generated text goes here
    DtFilename myFomFileName;
    DtFilename myFomFileNameNoDash;
    DtTokenChain myTokenChain; // a derived class adds its sources in its constructor

private:
    static DtFileSettings& settings() { return DtSettings::instance().files; }
    static const DtTokenTable<DtFileWriter>& baseTable();

    void openOutput();
    void fillFomFileNames();
    class DtScanTaker;

    void scan(std::istream& in);
    // Walks the parts. False when the rest of the stream has to be scanned.
    bool writeParts(const DtTemplateParts& parts, std::istream& in, DtTemplateBuffer& buffer);
    void writeText(std::string_view text);
    void writeLineFeeds(std::size_t count);
    void writePiece(std::string_view piece); // with its tokens replaced
    void writeLine(const DtCompiledLine& line);
    // False, with nothing written, for a line that only decodeFileLine() can do.
    bool writeDirectly(const DtCompiledLine& line);
    void decode(const DtCompiledLine& line, DtString& text); // through decodeFileLine()
    void handleBlock(std::istream& in, char delimiter);
    void repeatBody(std::istream& body, std::streampos position);
    void scanBlock(std::istream& in, char delimiter, DtTemplateBlock& memory);
    void expandPart(const DtTemplateBlockPart& part, DtTemplateStream& body);
    void expandBlock(const DtString& header, DtTemplateStream& body, char delimiter);
    bool holds(const DtTemplateCondition& condition);
    void openFile(const std::string& path, DtTemplateStream& file);
    bool mayOpen(const std::string& path);
    void warnOnce(bool& hasWarned, const DtString& templateFile, const DtString& text);

    DtString myLine;                                     // the piece on its way out
    DtString myOperands[2];                              // of the condition that is tested
    const DtCompiledLine* myCompiledLine = nullptr;      // the one that decodeFileLine() is called for
    const DtTemplateBlockPart* myExpandedPart = nullptr; // the one that the stated operations are called for
    std::string myExpandedText;                          // working memory
    std::vector<std::string> myOpenFiles; // of the file blocks around the current position, outermost first
    int myBlockDepth = 0;
    bool myIsWritten = false;
    bool myHasOwnDecoding = false;
    bool myIsDirect = false;    // whether lines need not go through decodeFileLine() at present
    bool myIsPlainLoop = false; // whether the last loop was one by number, which changes nothing
    bool myHasWarnedOfFiles = false;
    bool myHasWarnedOfBlocks = false;
    DtTokenValues<DtFileWriter> myBaseTokens;
};

#endif
