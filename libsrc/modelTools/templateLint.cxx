#include "modelTools/templateLint.h"

#include "fileGenerator/dataFile.h"
#include "fileGenerator/settings.h"
#include "foundation/perRun.h"
#include "foundation/textEnds.h"
#include "modelTools/commandFileLint.h"
#include "modelTools/inputPath.h"
#include "modelTools/modelGeneration.h"
#include "modelTools/nearNames.h"
#include "modelTools/templateScanner.h"
#include "modelTools/toolFailure.h"
#include "modelTools/toolRules.h"

#include <algorithm>
#include <cstdio>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <system_error>

namespace fs = std::filesystem;

namespace
{
constexpr std::size_t theLineLimit = 298; // bytes: templates are read in pieces of 299
const std::string theTemplates = "../data/templates/";
const std::string theExtension = ".tlt";

[[noreturn]] void fail(const std::string& text)
{
    throw DtToolFailure(DtExitCode::Unreadable, text);
}

std::string textOf(const std::string& file)
{
    std::ifstream in(file, std::ios::binary);
    if (!in)
        fail(file + " cannot be read.");
    return std::string(std::istreambuf_iterator<char>(in), {});
}

// Where a path of a file block leads: beside the working directory of a run there is nothing but the data.
std::string findTemplate(const std::string& path)
{
    if (!DtStartsWith(path, "../data/") && !DtStartsWith(path, "/"))
        return std::string();
    const std::string file = DtDataFile(DtString(path)).stdString();
    return DtIsFile(file) ? file : std::string();
}

DtDiagnostic finding(DtSeverity severity, const DtPlace& place, const std::string& text, const DtWarningRule& rule)
{
    DtDiagnostic diagnostic;
    diagnostic.severity = severity;
    diagnostic.place = place;
    diagnostic.text = text;
    diagnostic.rule = rule.id;
    return diagnostic;
}

bool holdsConstruct(const std::string& line)
{
    for (const char* opening : {"<!", "<#", "<?"})
        if (line.find(opening) != std::string::npos)
            return true;
    return false;
}

// Numbers of one length, so that they sort as texts.
std::string sortingKey(const DtDiagnostic& diagnostic)
{
    char place[40];
    std::snprintf(place, sizeof place, "%010u:%010u", diagnostic.place.line, diagnostic.place.column);
    return diagnostic.place.file + '\0' + place + '\0' + diagnostic.text;
}

std::vector<std::string> filesBelow(const std::string& directory)
{
    std::vector<std::string> files;
    std::error_code error;
    for (fs::recursive_directory_iterator each(directory, error), end; !error && each != end; each.increment(error))
        if (DtIsFile(each->path().string()))
            files.push_back(each->path().lexically_relative(directory).string());
    if (error)
        fail(directory + " cannot be read: " + error.message() + ".");
    std::sort(files.begin(), files.end());
    return files;
}
} // namespace

DtTemplateLint::DtTemplateLint(const std::string& directory, const std::string& dataDirectory)
    : myDirectory(directory), myDataDirectory(dataDirectory)
{
    while (myDirectory.size() > 1 && myDirectory.back() == '/')
        myDirectory.pop_back();
}

std::vector<DtDiagnostic> DtTemplateLint::run()
{
    const DtRunScope scope;
    DtFileSettings& settings = DtSettings::instance().files;
    settings.dataDirectory = DtString(myDataDirectory);
    settings.templateDirectories = {DtString(myDirectory)};
    findFiles();
    checkScripts();
    checkWrittenTemplates();
    checkOwnTexts();
    tellUnopened();
    std::vector<DtDiagnostic> findings;
    for (const auto& [key, diagnostic] : myFindings)
        findings.push_back(diagnostic);
    return findings;
}

void DtTemplateLint::findFiles()
{
    std::error_code ignored;
    if (!fs::is_directory(myDirectory, ignored))
        fail("there is no directory " + myDirectory + ".");
    myFiles = filesBelow(myDirectory);
}

// Shipped templates are read too: files of the directory may be what they include.
void DtTemplateLint::checkWrittenTemplates()
{
    for (const std::string& name : DtWrittenTemplates())
        scan(theTemplates + name, DtRulesOfTemplate(name));
}

void DtTemplateLint::checkScripts()
{
    DtGenerationRequest request;
    request.dataDirectory = myDataDirectory;
    request.templateDirectories = {myDirectory};
    for (const std::string& file : DtModelGeneration::scriptFiles(request))
        checkCommandFile(DtDataFile(DtString("../data/" + file)).stdString());
    for (const std::string& name : myFiles)
    {
        const std::string file = myDirectory + "/" + name;
        if (name.find('/') == std::string::npos && DtEndsWith(name, ".txt") && myOpened.count(file) == 0 &&
            DtCommandFileLint::isCommandFile(textOf(file)))
            checkCommandFile(file);
    }
}

void DtTemplateLint::checkCommandFile(const std::string& file)
{
    DtCommandFileLint lint;
    lint.check(file);
    for (const DtDiagnostic& fault : lint.faults())
        add(fault);
    myOpened.insert(lint.files().begin(), lint.files().end());
    for (const DtOpenedTemplate& opened : lint.templates())
        scan(opened.path, DtContextRules(opened.context));
}

void DtTemplateLint::scan(const std::string& path, const DtTemplateRules& rules)
{
    const std::string file = DtDataFile(DtString(path)).stdString();
    if (!DtIsFile(file)) // an installation that lacks it
        return;
    DtTemplateScanner scanner(rules, findTemplate);
    for (const DtDiagnostic& fault : scanner.scan(file, textOf(file)))
        add(fault);
    myOpened.insert(file);
    for (const std::string& included : scanner.includedPaths())
        myOpened.insert(findTemplate(included));
}

// What no block of the language shows: lines that are longer than the pieces in which templates are read, and carriage
// returns, of which one for each file is told.
void DtTemplateLint::checkOwnTexts()
{
    for (const std::string& name : myFiles)
    {
        const std::string file = myDirectory + "/" + name;
        if (!DtEndsWith(name, theExtension))
            continue;
        std::ifstream in(file, std::ios::binary);
        bool hasCarriageReturn = false;
        DtPlace place = {file, 0, 0};
        for (std::string line; std::getline(in, line);)
        {
            ++place.line;
            place.column = 1;
            if (line.size() > theLineLimit)
                add(finding(holdsConstruct(line) ? DtSeverity::Error : DtSeverity::Warning,
                            {file, place.line, static_cast<unsigned int>(theLineLimit + 1)},
                            "the line has " + std::to_string(line.size()) +
                                " bytes, and what stands across the end of a piece of 299 is not recognised",
                            DtToolRules::templateLineLength));
            const std::size_t carriageReturn = line.find('\r');
            if (carriageReturn == std::string::npos || hasCarriageReturn)
                continue;
            hasCarriageReturn = true;
            place.column = static_cast<unsigned int>(carriageReturn + 1);
            add(finding(DtSeverity::Warning, place, "carriage returns come out as they stand",
                        DtToolRules::templateCarriageReturn));
        }
    }
}

void DtTemplateLint::tellUnopened()
{
    std::vector<std::string> shipped;
    for (const std::string& name : filesBelow(myDataDirectory + "templates"))
        if (DtEndsWith(name, theExtension))
            shipped.push_back(name);
    for (const std::string& name : myFiles)
    {
        const std::string file = myDirectory + "/" + name;
        if (DtEndsWith(name, theExtension) && myOpened.count(file) == 0)
            add(finding(DtSeverity::Warning, {file, 0, 0},
                        "no writer and no command file opens this template." + DtNearNamesHint(name, shipped),
                        DtToolRules::templateUnopened));
    }
}

void DtTemplateLint::add(const DtDiagnostic& diagnostic)
{
    if (isOwn(diagnostic.place.file))
        myFindings.emplace(sortingKey(diagnostic), diagnostic);
}

bool DtTemplateLint::isOwn(const std::string& file) const
{
    return DtStartsWith(file, myDirectory + "/");
}
