// The command language of DtOMTWriter.

#include "fileGenerator/dataFile.h"
#include "fileGenerator/fileWriter.h"
#include "fileGenerator/omtWriter.h"
#include "fileGenerator/progressMeter.h"
#include "fileGenerator/relativePath.h"
#include "fileGenerator/settings.h"
#include "fileGenerator/universalFileWriter.h"
#include "foundation/assertion.h"
#include "foundation/fileUtils.h"
#include "foundation/outputStream.h"
#include "foundation/stringUtils.h"
#include "foundation/warningRules.h"

#include <algorithm>
#include <cstdio>
#include <memory>

// A command, and what it needs to act.
struct DtOMTWriter::Command
{
    const char* name;
    std::size_t words; // the name counted in
    void (DtOMTWriter::*run)(const Words& words);
    char separator; // of its words
    bool isOfTypes; // acts in the first run alone
};

namespace
{
constexpr int thePieceLength = 499;         // bytes of a line that are taken at once
constexpr std::size_t theMaximumDepth = 64; // command files included in one another
const char* const theDataDirectory = "../data/";

struct DtFileCloser
{
    void operator()(FILE* file) const { DtFileClose(file); }
};

// A command file is open while this lives; the output directory goes back to where it started then.
class DtInsideCommandFile
{
public:
    DtInsideCommandFile(std::vector<DtString>& files, const DtString& path, const DtString& directory)
        : myFiles(files), myDirectory(directory)
    {
        myFiles.push_back(path);
    }
    ~DtInsideCommandFile()
    {
        myFiles.pop_back();
        DtFileWriter::setOutputDirectory(myDirectory);
    }
    DtInsideCommandFile(const DtInsideCommandFile&) = delete;
    DtInsideCommandFile& operator=(const DtInsideCommandFile&) = delete;

private:
    std::vector<DtString>& myFiles;
    const DtString myDirectory;
};

bool endsIn(const DtString& line, char character)
{
    return line.length() > 0 && line[line.length() - 1] == character;
}

// True when nothing is left of the line that was read last but its line feed.
bool isAtLineEnd(FILE* file)
{
    const int next = std::fgetc(file);
    std::ungetc(next, file);
    return next == '\n' || next == EOF;
}

// Takes the line feed off a piece of the file, and one carriage return ahead of it; true when there was one. A piece
// that is full may end between the two.
bool takeOffLineEnd(DtString& line, FILE* file)
{
    const bool isWhole = endsIn(line, '\n');
    if (isWhole)
        line.snipBack('\n');
    if (!endsIn(line, '\r') || !(isWhole || isAtLineEnd(file)))
        return false;
    line.snipBack('\r');
    return true;
}

// The next piece of the file that holds a command; false at the end. Notes a carriage return at the end of a line.
bool readCommand(FILE* file, DtString& line, bool& hasCarriageReturn)
{
    char buffer[thePieceLength + 1];
    while (std::fgets(buffer, sizeof buffer, file) != nullptr)
    {
        line = buffer;
        hasCarriageReturn = takeOffLineEnd(line, file) || hasCarriageReturn;
        line.chompFront();
        if (!line.isEmpty() && line[0] != '#')
            return true;
    }
    return false;
}

DtString firstWord(DtString line)
{
    line.snipBackToFirst(' ');
    return line;
}

DtProgressMeter& meter()
{
    return *DtProgressMeter::current();
}
} // namespace

void DtOMTWriter::execCmdFile(const DtString& path)
{
    mySavedOutputDirectory = DtFileWriter::outputDirectory();
    myHasWarnedOfLimit = false;
    myReportedLines.clear();
    myReportedFiles.clear();
    myFileCount = 1;
    meter().reset();
    meter().setTotalMeasure(1);
    runPass(path, &DtOMTWriter::executeCommandLine_prepare);
    myFileCount = 0;
    runPass(path, &DtOMTWriter::executeCommandLine_countFiles);
    meter().reset();
    meter().setTotalMeasure(static_cast<int>(myFileCount));
    runPass(path, &DtOMTWriter::executeCommandLine_generate);
}

void DtOMTWriter::runPass(const DtString& path, cmdLineProc handler)
{
    myHasMetLimit = false;
    parseCommandFile(path, handler);
}

void DtOMTWriter::parseCommandFile(const DtString& path, cmdLineProc handler)
{
    const std::unique_ptr<FILE, DtFileCloser> file(DtFileOpen(DtDataFile(path).c_str(), "r"));
    if (file == nullptr)
    {
        DtTellWarning(DtRules::unreadableCommandFile, DtSubject::file(path),
                      "Cannot open command file " + path + "\n"); // the assertion does not name it
        if (DtSettings::instance().files.keepsToOutput) // such a run has a stage to take away, and ends by the warning
            return;
        DT_ASSERT(false);
    }
    const DtInsideCommandFile inside(myOpenFiles, path, mySavedOutputDirectory);
    bool hasCarriageReturn = false;
    for (DtString line; readCommand(file.get(), line, hasCarriageReturn) && !meter().isCancelled();)
        (this->*handler)(line);
    if (hasCarriageReturn && myReportedFiles.insert(path).second)
        DtTellWarning(DtRules::carriageReturns, DtSubject::file(path),
                      "Command file " + path + ": the carriage returns at the ends of its lines are left out.\n");
}

void DtOMTWriter::executeCommandLine_prepare(const DtString& line)
{
    const Command* command = findCommand(line);
    if (command != nullptr && command->isOfTypes)
        run(*command, line);
    else if (firstWord(line) != "include")
        executeCommandLine_generate(line);
}

void DtOMTWriter::executeCommandLine_countFiles(const DtString& line)
{
    const DtString name = firstWord(line);
    if (name == "file")
        ++myFileCount;
    else if (name == "include")
        includeFile(line, &DtOMTWriter::executeCommandLine_countFiles);
}

void DtOMTWriter::executeCommandLine_generate(const DtString& line)
{
    const Command* command = findCommand(line);
    if (command != nullptr && !command->isOfTypes)
        run(*command, line);
    else if (firstWord(line) == "include")
        includeFile(line, &DtOMTWriter::executeCommandLine_generate);
}

const DtOMTWriter::Command* DtOMTWriter::findCommand(const DtString& line)
{
    static const Command theCommands[] = {
        {"beginTypes",  1, &DtOMTWriter::beginTypes,      ' ', true },
        {"setDatatype", 4, &DtOMTWriter::setDatatype,     '"', true },
        {"endTypes",    1, &DtOMTWriter::endTypes,        ' ', true },
        {"language",    2, &DtOMTWriter::setLanguage,     ' ', false},
        {"templateDir", 2, &DtOMTWriter::setTemplateDir,  ' ', false},
        {"subdir",      2, &DtOMTWriter::changeDirectory, ' ', false},
        {"file",        3, &DtOMTWriter::writeTemplate,   ' ', false},
    };
    const DtString name = firstWord(line);
    const auto* found = std::find_if(std::begin(theCommands), std::end(theCommands),
                                     [&](const Command& row) { return name == row.name; });
    return found != std::end(theCommands) ? found : nullptr;
}

void DtOMTWriter::run(const Command& command, const DtString& line)
{
    // Any number of blanks divides words. What stands in quotes may be empty.
    const Words words =
        DtSplit(line, command.separator, command.separator == ' ' ? DtEmptyPieces::Drop : DtEmptyPieces::Keep);
    if (words.size() >= command.words)
        (this->*command.run)(words);
    else
        reportIncomplete(line);
}

void DtOMTWriter::reportIncomplete(const DtString& line)
{
    if (myReportedLines.insert(line).second)
        DtTellWarning(DtRules::incompleteCommand,
                      myOpenFiles.empty() ? DtSubject::none() : DtSubject::file(myOpenFiles.back()),
                      "Command without its arguments: " + line + "\n");
}

void DtOMTWriter::includeFile(const DtString& line, cmdLineProc handler)
{
    const Words words = DtSplit(line, ' ', DtEmptyPieces::Drop);
    if (words.size() < 2)
        reportIncomplete(line);
    else if (mayInclude(words[1]))
        parseCommandFile(words[1], handler);
}

// Once the limit has been met, no file is entered again from within itself: every further level would only multiply
// what is left of the levels above.
bool DtOMTWriter::mayInclude(const DtString& path)
{
    const bool isOpen = std::find(myOpenFiles.begin(), myOpenFiles.end(), path) != myOpenFiles.end();
    if (myOpenFiles.size() <= theMaximumDepth && !(isOpen && myHasMetLimit))
        return true;
    if (!myHasWarnedOfLimit)
        DtTellWarning(DtRules::commandFileTooDeep, DtSubject::file(path),
                      "Command file " + path + " is included too deep; left out at depth 64.\n");
    myHasMetLimit = true;
    myHasWarnedOfLimit = true;
    return false;
}

void DtOMTWriter::beginTypes(const Words& /*words*/)
{
    myTypes.clear();
    myContext.clear();
    myUniqueNames.clear();
    myNextNumbers.clear();
}

void DtOMTWriter::setDatatype(const Words& pieces)
{
    myTypes[pieces[1]] = pieces[3];
}

void DtOMTWriter::endTypes(const Words& /*words*/)
{
    buildContext();
}

void DtOMTWriter::setLanguage(const Words& words)
{
    myLanguage = words[1];
}

void DtOMTWriter::setTemplateDir(const Words& words)
{
    myTemplateDir = theDataDirectory + words[1];
}

// Asked by a run that keeps to its output, whose directories all begin with the one of its start.
bool DtOMTWriter::leavesOutput(const DtString& directory) const
{
    if (!DtSettings::instance().files.keepsToOutput)
        return false;
    const DtString below(directory.stdString().substr(mySavedOutputDirectory.length()));
    return !staysBelow(below, mySavedOutputDirectory);
}

void DtOMTWriter::changeDirectory(const Words& words)
{
    const DtString& word = words[1];
    DtString directory = mySavedOutputDirectory;
    const bool isData = word == "$";
    if (isData && !DtSettings::instance().files.keepsToOutput)
        directory = DtSettings::instance().files.dataDirectory;
    else if (word != "~" && !isData)
    {
        directory = DtFileWriter::outputDirectory() + word + DtFilename::separator();
        if (leavesOutput(directory))
        {
            DtTellWarning(DtRules::outsideOutput, DtSubject::file(directory),
                          "Directory " + directory + " is not entered: it is outside of the output directory.\n");
            return;
        }
        DtMakeDirectory(directory);
    }
    DtFileWriter::setOutputDirectory(directory);
}

void DtOMTWriter::writeTemplate(const Words& words)
{
    const DtString path = myTemplateDir + DtFilename::separator() + words[2];
    DtUniversalFileWriter writer(words[1], path, &myContext);
    if (words.size() > 3 && !words[3].startsWith("~"))
        writer.pushContext(words[3]);
    writer.writeFile();
}
