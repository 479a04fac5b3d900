#include "modelTools/modelGeneration.h"

#include "codeGenApp/modelSpellings.h"
#include "codeGenApp/omtProjectXmlReader.h"
#include "fileGenerator/dataFile.h"
#include "fileGenerator/dataTypeMapper.h"
#include "fileGenerator/fileWriter.h"
#include "foundation/filePrinter.h"
#include "foundation/fileUtils.h"
#include "foundation/textEnds.h"
#include "foundation/warningRules.h"
#include "modelTools/classPattern.h"
#include "modelTools/configKeys.h"
#include "modelTools/inputPath.h"
#include "modelTools/nearNames.h"
#include "modelTools/outputTree.h"
#include "modelTools/toolFailure.h"
#include "modelTools/toolRules.h"
#include "modelTools/unknownDatatypes.h"
#include "omtReader/fedReader.h"
#include "omtReader/omtTree.h"

#include <algorithm>
#include <cerrno>
#include <cstring>
#include <iterator>
#include <string_view>
#include <system_error>
#include <unistd.h>

namespace fs = std::filesystem;

namespace
{
constexpr const char* theConfiguration = "config/codeGenConfig.xml";

[[noreturn]] void fail(DtExitCode code, const std::string& text)
{
    throw DtToolFailure(code, text);
}

DtString stem(const DtFilename& path)
{
    DtFilename name = DtFilename::stripPath(path);
    name.stripExtension();
    return name;
}

// Both lists are sorted.
std::vector<std::string> added(const std::vector<std::string>& before, const std::vector<std::string>& after)
{
    std::vector<std::string> names;
    std::set_difference(after.begin(), after.end(), before.begin(), before.end(), std::back_inserter(names));
    return names;
}

bool isMim(const DtString& name)
{
    return name == DtFedReader::standardMimFileName(DtFomEvolved);
}

// The name becomes part of names of files and of text; an empty one is none.
bool isFileName(const std::string& name)
{
    constexpr std::size_t theLongestName = 100;
    const auto isRefused = [](char each)
    {
        return static_cast<unsigned char>(each) < ' ' ||
               std::string_view("/\\<>\"'$").find(each) != std::string_view::npos;
    };
    return name.size() <= theLongestName && !DtStartsWith(name, ".") && !DtStartsWith(name, " ") &&
           !DtEndsWith(name, " ") && std::none_of(name.begin(), name.end(), isRefused);
}

std::set<DtString> withSuperclasses(const std::set<DtString>& fullNames)
{
    std::set<DtString> names(fullNames);
    for (const DtString& fullName : fullNames)
        for (std::string name = fullName.stdString(); name.find('.') != std::string::npos;)
        {
            name.erase(name.rfind('.'));
            names.insert(DtString(name));
        }
    return names;
}

template <typename Classes>
void warnOfMissing(const Classes& selected, const std::set<DtString>& present, DtSubject (*subject)(const DtString&))
{
    for (const auto& each : selected)
        if (present.count(each.fullName()) == 0 && each.fullName().stdString().find('.') != std::string::npos)
            DtTellWarning(DtToolRules::missingClass, subject(each.fullName()),
                          "The project selects the class " + each.fullName() + ", which the models have not.\n");
}

// "genHtml.txt" for "html"; empty for what is no name of a script.
std::string fileOfScript(const std::string& name)
{
    std::string file = name;
    file.front() = static_cast<char>(std::toupper(static_cast<unsigned char>(file.front())));
    return "gen" + file + ".txt";
}

// "html" for "genHtml.txt"; empty for any other file.
std::string scriptOfFile(const std::string& file)
{
    const std::string start = "gen";
    const std::string end = ".txt";
    if (file.size() <= start.size() + end.size() || !DtStartsWith(file, start) || !DtEndsWith(file, end))
        return std::string();
    std::string name = file.substr(start.size(), file.size() - start.size() - end.size());
    name.front() = static_cast<char>(std::tolower(static_cast<unsigned char>(name.front())));
    return name;
}
} // namespace

DtModelGeneration::DtModelGeneration(const DtGenerationRequest& request) : myRequest(request)
{
}

void DtModelGeneration::load()
{
    if (!isFileName(myRequest.name))
        fail(DtExitCode::Usage, "\"" + myRequest.name +
                                    "\" is no name for a library: it takes up to 100 characters that "
                                    "files can have, without separators and without blanks at its ends.");
    setUpSettings();
    commandFiles(); // a script that there is not goes ahead of an input that cannot be read
    readConfiguration();
    readProject();
    loadModels();
    fillProject();
    warnOfIncludeDirectory();
    select();
    DtWarnOfUnknownDatatypes(tree(), myProject);
}

void DtModelGeneration::setUpSettings()
{
    DtFileSettings& files = DtSettings::instance().files;
    files.dataDirectory = DtString(myRequest.dataDirectory);
    for (const std::string& directory : myRequest.templateDirectories)
    {
        std::error_code ignored;
        if (!fs::is_directory(directory, ignored))
        {
            myLookedFor.insert(DtAbsolutePath(directory));
            fail(DtExitCode::Unreadable, "there is no template directory " + directory + ".");
        }
        files.templateDirectories.emplace_back(DtAbsolutePath(directory));
    }
    files.keepsToOutput = true;
    files.makesNamedUuids = true;
}

// Options come last, so that they win. The shipped configuration has examples on, which a build has no use for.
void DtModelGeneration::readConfiguration()
{
    const bool isShipped = myRequest.configFile.empty();
    const std::string file = isShipped ? myRequest.dataDirectory + theConfiguration : myRequest.configFile;
    DtCheckConfigFile(file);
    if (!myConfiguration.parseConfigFile(DtString(file)))
        fail(DtExitCode::Unreadable, "the configuration " + file + " cannot be read.");
    if (isShipped)
        DtSetConfigKey(myConfiguration, "generateExamples=false");
    for (const std::string& setting : myRequest.settings)
        DtSetConfigKey(myConfiguration, setting);
    myConfiguration.applySettings();
}

// Make takes a blank for the end of a name and a dollar for a variable, wherever they stand.
void DtModelGeneration::warnOfIncludeDirectory() const
{
    const DtString& directory = myConfiguration.includeName();
    if (directory.stdString().find_first_of(" \t$#%:") != std::string::npos)
        DtTellWarning(DtToolRules::includeDirectory, DtSubject::none(),
                      "The include directory \"" + directory +
                          "\" cannot stand in a makefile; build with the lists of files instead, or name another.\n");
}

void DtModelGeneration::readProject()
{
    if (myRequest.project.empty())
    {
        myProject.initializePredefinedTypes();
        return;
    }
    if (!DtIsFile(myRequest.project))
        fail(DtExitCode::Unreadable, "there is no project file " + myRequest.project + ".");
    DtOmtProjectXmlReader reader{DtFilename(DtString(myRequest.project))};
    reader.readXml(myProject);
    if (!reader.hasFoundProject())
        fail(DtExitCode::Unreadable, myRequest.project + " is no project file.");
}

void DtModelGeneration::loadModels()
{
    const std::vector<DtFilename> files = filesToLoad();
    for (const DtFilename& file : files)
        if (!isMim(file))
            myModelFiles.push_back(DtAbsolutePath(file.stdString()));
    if (myModelFiles.empty())
        fail(DtExitCode::Usage, "the management model alone is no model; name a model file.");
    const bool includeMim = myConfiguration.includeStandardMIM();
    DtSettings::instance().cpp.includesMim = includeMim;
    checkAccess();
    myModel = DtLoadModel(files, includeMim);
    if (myModel.tree == nullptr && myModel.type == DtFomUnknown)
        DtFedReader::checkFomType(files.front()); // once more, to tell what is wrong
    if (myModel.tree == nullptr)
        fail(DtExitCode::Unreadable, "the model cannot be read: " + myModelFiles.front() +
                                         (myModelFiles.size() > 1 ? " and the modules behind it." : "."));
    if (myModel.type == DtFomOmt13 && myModelFiles.size() > 1)
        fail(DtExitCode::Unreadable, "the OMT text " + myModelFiles.front() + " is a whole model: " + myModelFiles[1] +
                                         " cannot be a module of it.");
    DtDataTypeMapper& mapper = *DtDataTypeMapper::instance();
    mapper.setPredefinedTypes(myProject.predefinedTypes());
    mapper.populateFromOmtTree(myModel.tree.get());
}

// What a reader of models cannot tell.
void DtModelGeneration::checkAccess() const
{
    const auto find = [this](const auto& isWrong)
    {
        const auto found = std::find_if(myModelFiles.begin(), myModelFiles.end(), isWrong);
        return found == myModelFiles.end() ? std::string() : *found;
    };
    const std::string locked = find([](const std::string& file) { return access(file.c_str(), R_OK) != 0; });
    if (!locked.empty())
        fail(DtExitCode::Unreadable, "the model cannot be read: " + locked + ": " + std::strerror(errno) + ".");
    const std::string project = find([](const std::string& file) { return fs::path(file).extension() == ".qxproj"; });
    if (!project.empty())
        fail(DtExitCode::Unreadable, "a project stands behind --project, not among the models: " + project + ".");
}

std::vector<DtFilename> DtModelGeneration::filesToLoad()
{
    std::vector<DtFilename> files;
    for (const std::string& model : myRequest.models)
        files.push_back(findModelOnLine(model));
    if (myRequest.models.empty())
        for (const DtOmtProject::DtFilePair& model : myProject.fomDefFiles())
            files.push_back(findProjectModel(model));
    if (files.empty())
        fail(DtExitCode::Usage, myRequest.project.empty() ? "no model is given." : "the project names no model.");
    return files;
}

bool DtModelGeneration::lookFor(const std::string& file)
{
    if (DtIsFile(file))
        return true;
    myLookedFor.insert(DtAbsolutePath(file));
    return false;
}

DtFilename DtModelGeneration::findModel(const std::string& name)
{
    if (lookFor(name))
        return DtFilename(DtString(DtAbsolutePath(name)));
    for (const std::string& directory : myRequest.modelPaths)
    {
        const std::string path = (fs::path(directory) / name).string();
        if (lookFor(path))
            return DtFilename(DtString(DtAbsolutePath(path)));
    }
    const DtString below = DtFedReader::pathBelowRtiConfig(name.c_str());
    if (!below.isEmpty() && lookFor(below.stdString()))
        return DtFilename(DtString(DtAbsolutePath(below.stdString())));
    return isMim(DtString(name)) ? DtFilename(DtString(name)) : DtFilename();
}

void DtModelGeneration::failWithoutModel(const std::string& name, const std::string& places) const
{
    std::string all = places + "the working directory";
    for (const std::string& directory : myRequest.modelPaths)
        all += ", " + directory;
    fail(DtExitCode::Unreadable,
         "there is no model " + name + " in " + all + " or below RTI_CONFIG. --model-path names further directories.");
}

DtFilename DtModelGeneration::findModelOnLine(const std::string& name)
{
    const DtFilename found = findModel(name);
    if (found.isEmpty())
        failWithoutModel(name, std::string());
    return found;
}

// Where it was when the project was saved, else beside the project, else where any model is looked for.
DtFilename DtModelGeneration::findProjectModel(const DtOmtProject::DtFilePair& model)
{
    const fs::path project = fs::path(DtAbsolutePath(myRequest.project)).parent_path();
    for (const auto& [name, directory] : DtModelSpellings(model))
    {
        for (const fs::path& place : {project / directory.stdString(), project})
            if (lookFor((place / name.stdString()).string()))
                return DtFilename(DtString(DtAbsolutePath((place / name.stdString()).string())));
        const DtFilename found = findModel(name.stdString());
        if (!found.isEmpty())
            return found;
    }
    const fs::path meant = DtAbsolutePath((project / model.second.stdString()).string());
    const std::string saved = (meant.has_filename() ? meant : meant.parent_path()).string();
    const std::string own = DtAbsolutePath(project.string());
    failWithoutModel(model.first.stdString(), saved + ", " + (saved != own ? own + ", " : ""));
}

bool DtModelGeneration::hasSetting(const std::string& key) const
{
    const auto setsKey = [&key](const std::string& setting) { return DtStartsWith(setting, key + "="); };
    return std::any_of(myRequest.settings.begin(), myRequest.settings.end(), setsKey);
}

// What the window notes in a project when it saves it. Models stand without their directories, so that generated text
// does not name these.
void DtModelGeneration::fillProject()
{
    std::vector<DtOmtProject::DtFilePair> files;
    for (const DtFilename& file : myModel.files)
        if (myModelFiles.size() > 1 || !isMim(file)) // a single file stands alone, as in a project of the window
            files.emplace_back(DtFilename::stripPath(file), DtString());
    if (!myRequest.project.empty())
    {
        if (!hasSetting("includeName"))
            myConfiguration.setIncludeName(myProject.includeDir());
        if (!hasSetting("prefixName"))
            myConfiguration.setPrefixName(myProject.classPrefix());
    }
    myProject.setFomDefFiles(files);
    myProject.setIncludeDir(myConfiguration.includeName());
    myProject.setClassPrefix(myConfiguration.prefixName());
    if (!myRequest.name.empty())
        myProject.setBaseName(DtString(myRequest.name));
    else if (myProject.baseName().isEmpty())
        myProject.setBaseName(
            stem(DtFilename(DtString(myRequest.project.empty() ? myModelFiles.front() : myRequest.project))));
}

void DtModelGeneration::select()
{
    const std::vector<DtString> names = DtClassNames(tree());
    const std::set<DtString> present(names.begin(), names.end());
    warnOfMissing(myProject.getObjects(), present, DtSubject::objectClass);
    warnOfMissing(myProject.getInteractions(), present, DtSubject::interactionClass);
    if (!myRequest.patterns.empty())
        selectByPatterns();
    else if (myProject.getObjects().empty() && myProject.getInteractions().empty())
        selectByDefault();
    else if (myRequest.withManagement)
        DtSelectClasses(tree(), myProject, DtIsManagementClass);
}

// Classes that stay keep their renames and custom code, superclasses that come along among them.
void DtModelGeneration::selectByPatterns()
{
    const std::set<DtString> wanted = DtClassesOfPatterns(tree(), myRequest.patterns, myRequest.withManagement);
    const std::set<DtString> kept = withSuperclasses(wanted);
    const std::set<DtOmtObject> objects = myProject.getObjects();
    for (const DtOmtObject& object : objects)
        if (kept.count(object.fullName()) == 0)
            myProject.removeObject(object);
    const std::set<DtOmtInteraction> interactions = myProject.getInteractions();
    for (const DtOmtInteraction& interaction : interactions)
        if (kept.count(interaction.fullName()) == 0)
            myProject.removeInteraction(interaction);
    DtSelectClasses(tree(), myProject, [&wanted](const DtString& name) { return wanted.count(name) != 0; });
}

void DtModelGeneration::selectByDefault()
{
    const bool withManagement = myRequest.withManagement;
    DtSelectClasses(tree(), myProject,
                    [withManagement](const DtString& name) { return withManagement || !DtIsManagementClass(name); });
}

void DtModelGeneration::writeInto(const fs::path& directory)
{
    DtFileWriter::setOutputDirectory(DtString(directory.string() + "/"));
    DtGenerationRun run(*myModel.tree, &myProject, DtFilename::stripPath(DtFilename(DtString(myModelFiles.front()))),
                        DtGenerationOptions::of(myConfiguration), myRequest.layout);
    for (const std::string& file : commandFiles())
        runScript(file, run, DtOutputTree(directory));
    checkTemplates();
}

void DtModelGeneration::runScript(const std::string& file, DtGenerationRun& run, const DtOutputTree& tree)
{
    const DtString script(file);
    const std::vector<std::string> before = tree.list();
    const auto warnOfReplaced = [&](const DtString& name)
    {
        const std::string path = fs::path(name.stdString()).lexically_relative(tree.directory()).string();
        if (std::binary_search(before.begin(), before.end(), path))
            DtTellWarning(DtToolRules::scriptReplacesOutput, DtSubject::file(script),
                          "The script " + script + " replaces " + DtString(path) +
                              ", which another script has made in this run.\n");
    };
    {
        const DtRestored listener(DtFilePrinter::replacementListener(), warnOfReplaced);
        run.run(script);
    }
    const std::vector<std::string> made = added(before, tree.list());
    if (DtGenerationRun::isCpp(script))
        myCppFiles = made;
    else if (made.empty())
        DtTellWarning(DtToolRules::scriptWithoutOutput, DtSubject::file(script),
                      "The script " + script + " has made no file of its own.\n");
}

// The writers leave out what they cannot read, and read the shipped file where a template directory has something else
// than a file.
void DtModelGeneration::checkTemplates() const
{
    for (const std::string& file : DtReadDataFiles())
        if (access(file.c_str(), R_OK) != 0)
            fail(DtExitCode::Unreadable, "the template " + DtAbsolutePath(file) +
                                             " cannot be read. Templates are looked for in the directories that "
                                             "--template-dir names, then in the data directory.");
    const auto ahead = placesAhead();
    const auto isNoFile = [](const auto& each)
    { return DtIsFile(each.second) && fs::symlink_status(each.first).type() != fs::file_type::not_found; };
    const auto found = std::find_if(ahead.begin(), ahead.end(), isNoFile);
    if (found != ahead.end())
        fail(DtExitCode::Unreadable, found->first + " is no file, so it cannot stand in for " + found->second + ".");
}

std::vector<std::string> DtModelGeneration::commandFiles()
{
    std::vector<std::string> files;
    for (const std::string& script : myRequest.scripts)
        files.push_back(commandFile(script));
    if (files.empty())
        files.push_back(commandFile("cpp"));
    std::sort(files.begin(), files.end());
    files.erase(std::unique(files.begin(), files.end()), files.end());
    return files;
}

// The C++ has no command file.
std::string DtModelGeneration::commandFile(const std::string& script)
{
    if (script.empty())
        fail(DtExitCode::Usage, "--script needs a name.");
    const std::string file = fileOfScript(script);
    const std::vector<std::string> names = scriptNames(myRequest);
    if (std::find(names.begin(), names.end(), scriptOfFile(file)) != names.end())
        return file;
    if (lookFor(script))
        return DtAbsolutePath(script);
    for (const std::string& directory : myRequest.templateDirectories)
        lookFor((fs::path(directory) / file).string());
    lookFor(myRequest.dataDirectory + file);
    std::string known;
    for (const std::string& name : names)
        known += (known.empty() ? "" : ", ") + name;
    fail(DtExitCode::Usage, "there is no script \"" + script + "\"." + DtNearNamesHint(script, names) +
                                " Scripts are " + known + ", or paths of command files.");
}

std::vector<std::string> DtModelGeneration::scriptNames(const DtGenerationRequest& request)
{
    std::set<std::string> names = {"cpp"};
    std::vector<std::string> directories = request.templateDirectories;
    directories.push_back(request.dataDirectory);
    for (const std::string& directory : directories)
    {
        std::error_code ignored;
        for (const fs::directory_entry& entry : fs::directory_iterator(directory, ignored))
        {
            const std::string name = scriptOfFile(entry.path().filename().string());
            if (!name.empty())
                names.insert(name);
        }
    }
    return {names.begin(), names.end()};
}

std::vector<std::string> DtModelGeneration::scriptFiles(const DtGenerationRequest& request)
{
    std::vector<std::string> files;
    for (const std::string& name : scriptNames(request))
        if (!DtGenerationRun::isCpp(DtString(fileOfScript(name)))) // which has none
            files.push_back(fileOfScript(name));
    return files;
}

std::set<std::string> DtModelGeneration::inputs() const
{
    std::set<std::string> files(myModelFiles.begin(), myModelFiles.end());
    for (const std::string& file : DtReadDataFiles())
        files.insert(DtAbsolutePath(file));
    const bool isShipped = myRequest.configFile.empty();
    files.insert(DtAbsolutePath(isShipped ? myRequest.dataDirectory + theConfiguration : myRequest.configFile));
    if (!myRequest.project.empty())
        files.insert(DtAbsolutePath(myRequest.project));
    return files;
}

std::set<std::string> DtModelGeneration::awaited() const
{
    std::set<std::string> files = myLookedFor;
    for (const auto& each : placesAhead())
        files.insert(each.first);
    return files;
}

// Where the template directories have nothing, or no file, for a file that was read: each such place with that file. A
// template directory has a file under the path that the shipped one has below "templates", or below the data directory
// itself for a command file.
std::vector<std::pair<std::string, std::string>> DtModelGeneration::placesAhead() const
{
    std::vector<std::string> directories;
    for (const std::string& directory : myRequest.templateDirectories)
        directories.push_back(DtAbsolutePath(directory + "/"));
    std::vector<std::string> places = directories;
    places.push_back(DtAbsolutePath(myRequest.dataDirectory + "templates/"));
    places.push_back(DtAbsolutePath(myRequest.dataDirectory));
    std::vector<std::pair<std::string, std::string>> ahead;
    for (const std::string& read : DtReadDataFiles())
    {
        const std::string file = DtAbsolutePath(read);
        const auto isIn = [&file](const std::string& place) { return DtStartsWith(file, place); };
        const auto place = std::find_if(places.begin(), places.end(), isIn);
        const std::string path = place == places.end() ? std::string() : file.substr(place->size());
        const std::size_t passed = std::min<std::size_t>(place - places.begin(), directories.size());
        for (std::size_t index = 0; index < passed && !path.empty(); ++index)
            ahead.emplace_back(directories[index] + path, file);
    }
    return ahead;
}
