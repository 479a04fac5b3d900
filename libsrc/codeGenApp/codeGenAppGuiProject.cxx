// New, saved and loaded projects.

#include "codeGenApp/codeGenAppGui.h"
#include "codeGenApp/customCodeGui.h"
#include "codeGenApp/keepFile.h"
#include "codeGenApp/listViewManager.h"
#include "codeGenApp/modelSpellings.h"
#include "codeGenApp/omtProjectXmlReader.h"
#include "codeGenApp/omtProjectXmlWriter.h"
#include "codeGenApp/preferencesDialog.h"
#include "codeGenApp/projectBadge.h"
#include "fileGenerator/dataTypeMapper.h"
#include "fileGenerator/omtEnvWriter.h"
#include "fileGenerator/omtProject.h"
#include "foundation/fileUtils.h"
#include "foundation/outputStream.h"
#include "foundation/restored.h"
#include "omtReader/fedReader.h"
#include "omtReader/omtTree.h"

#include <QtWidgets/QAction>
#include <QtWidgets/QFileDialog>
#include <QtWidgets/QMessageBox>

#include <cerrno>
#include <cstring>

namespace
{
const char theProjectExtension[] = "qxproj";
const char theProjectFilter[] = "Project Files (*.qxproj)";

DtString stem(const DtFilename& path)
{
    DtFilename name = DtFilename::stripPath(path);
    name.stripExtension();
    return name;
}

// As it is told.
QString nameOf(const DtFilename& path)
{
    return QString::fromUtf8(DtFilename::stripPath(path).c_str());
}

// A file that is not there gets the extension of projects.
DtFilename withExtension(DtFilename path)
{
    if (!path.exists() && path.extension() != theProjectExtension)
        path.setExtension(theProjectExtension);
    return path;
}

bool canOpen(const DtFilename& path)
{
    FILE* const file = path.isRegularFile() ? DtFileOpen(path.c_str(), "rt") : nullptr;
    DtFileClose(file);
    return file != nullptr;
}

// A path to try, which need not exist.
DtFilename whereModelIs(const DtCodeGenAppGui::DtModelFile& model, const DtFilename& projectFile)
{
    DtFilename path = model.second;
    path.append(model.first);
    DtFilename projectDirectory(projectFile);
    projectDirectory.stripFilename();
    if (!path.exists())
        path = DtFilename::searchAlternatePath(model.first.c_str(), model.second.c_str());
    if (!path.exists())
        path = DtFilename::searchAlternatePath(model.first.c_str(), projectDirectory.c_str());
    return path;
}

// The models with name and directory joined. Several models by bare name would come from the working directory, where
// it has files of these names, and not from where the project's were found.
std::vector<DtCodeGenAppGui::DtModelFile> joinedPaths(const std::vector<DtCodeGenAppGui::DtModelFile>& models)
{
    std::vector<DtCodeGenAppGui::DtModelFile> paths;
    paths.reserve(models.size());
    for (const auto& [name, directory] : models)
    {
        DtFilename path(directory);
        path.append(name);
        paths.emplace_back(path, DtString());
    }
    return paths;
}
} // namespace

void DtCodeGenAppGui::slot_newOmtProject()
{
    if (isVisible() && myCustomCodeGui != nullptr && !myCustomCodeGui->close())
        return;
    slot_saveOmtProject();
    if (isVisible() && hasUnsavedWork() && !mayLeaveProject())
        return;
    const QString choice = QFileDialog::getSaveFileName(this, QStringLiteral("New Project File"), myLastDirectory,
                                                        QString::fromLatin1(theProjectFilter));
    if (choice.isEmpty())
        return;
    noteDirectory(choice);
    DtFilename path(choice.toUtf8().constData());
    if (path.extension().isEmpty())
        path.setExtension(theProjectExtension);
    newOmtProject(path);
}

void DtCodeGenAppGui::newOmtProject(DtFilename path)
{
    const bool isKept = DtKeepFile(path);
    myProjectFile = isKept ? path : DtFilename(); // without a copy nothing may be saved over it
    myProject = std::make_unique<DtOmtProject>();
    myProject->initializePredefinedTypes();
    forgetFiles();
    DtDataTypeMapper::instance()->setPredefinedTypes(myProject->predefinedTypes());
    myBaseName = stem(path);
    slot_saveOmtProject();
    if (!isKept)
        showStatus("Cannot keep a copy of project file " + path + ", so it is not written.");
    else if (!myStatusIsFailure)
        showSuccess("Project " + nameOf(path) + " made");
    enableProjectActions(true);
    myOutputDir = DtString();
    if (isVisible()) // its files are forgotten
        titleWithoutFile();
}

void DtCodeGenAppGui::enableProjectActions(bool enabled)
{
    mySaveProjectAction->setEnabled(enabled);
    myImportAction->setEnabled(enabled);
}

void DtCodeGenAppGui::slot_saveOmtProject()
{
    saveOmtProject();
}

void DtCodeGenAppGui::saveOmtProject()
{
    if (myProjectFile.isEmpty() || myProject == nullptr)
    {
        showStatus("No Project loaded... Cannot save OMT Project.");
        return;
    }
    completeProject(*myProject);
    DtOmtProjectXmlWriter writer(*myProject, myProjectFile);
    errno = 0;
    writer.writeXml();
    if (!writer.isWritten())
        tellFailedSave(errno);
    else
        showSuccess("Project " + nameOf(myProjectFile) + " saved");
}

// With the reason of the system, where somebody looks at the window.
void DtCodeGenAppGui::tellFailedSave(int cause)
{
    const DtString text = "Project file " + myProjectFile + " could not be written.";
    showStatus(text);
    if (cause == 0 || !isVisible())
        return;
    const char* const reason = std::strerror(cause);
    addToStatusToolTip({QString::fromLocal8Bit(reason)});
    DtWarn << text << " " << reason << std::endl;
}

// Puts in what saving adds to a project.
void DtCodeGenAppGui::completeProject(DtOmtProject& project) const
{
    project.setFomDefFiles(myLoadedFiles);
    project.setBaseName(myBaseName.isEmpty() ? stem(myProjectFile) : myBaseName);
    project.setIncludeDir(myPreferences->includeName());
    project.setClassPrefix(myPreferences->prefixName());
}

void DtCodeGenAppGui::slot_loadOmtProject()
{
    if (mayLeaveProject())
        loadOmtProject(DtFilename());
}

bool DtCodeGenAppGui::mayLeaveProject()
{
    if (!isVisible() || myIsUnattended)
        return true;
    if (myCustomCodeGui != nullptr && !myCustomCodeGui->close())
        return false;
    if (!hasUnsavedWork())
        return true;
    QMessageBox question(QMessageBox::Warning, windowTitle(),
                         "The project " + nameOf(myProjectFile) + " has changes that are not saved.",
                         QMessageBox::Save | QMessageBox::Discard | QMessageBox::Cancel, this);
    question.setInformativeText(QStringLiteral("Do you want to save your changes?"));
    question.setDefaultButton(QMessageBox::Save);
    const int answer = question.exec();
    if (answer == QMessageBox::Save)
        saveOmtProject();
    return answer == QMessageBox::Discard || (answer == QMessageBox::Save && !hasUnsavedWork());
}

void DtCodeGenAppGui::loadOmtProject(const DtFilename& path)
{
    DtFilename file = path.isEmpty() ? myProjectFile : path;
    if (file.isEmpty())
        file = askForFile("Open Project File", theProjectFilter);
    if (isVisible() && !file.isEmpty() && !isProjectFile(file))
        return;
    const DtFilename oldFile = myProjectFile;
    bool isSound = false;
    if (file.isEmpty() || !readProject(file, isSound))
        return;
    std::vector<DtModelFile> models;
    if (!locateModels(file, models))
    {
        if (isVisible()) // what the user would import now could not be saved
            enableProjectActions(false);
        return refreshBadge();
    }
    DtDataTypeMapper::instance()->setPredefinedTypes(myProject->predefinedTypes());
    if (models.empty())
    {
        if (isSound && file == oldFile)
            myProjectFile = oldFile; // the same project, read again: it can still be saved
        if (isSound && isVisible())
        {
            openProject(file); // the user can import now
            titleWithoutFile();
            tellOfProject(file == oldFile);
        }
        return;
    }
    const bool isLoaded = loadModels(models);
    setValidProject(true);
    openProject(file);
    putIntoUi(myProject.get());
    myListViewManager->startAtTheTop();
    myLoadedFiles = models;
    if (isLoaded)
        tellOfProject(file == oldFile);
}

// What was read becomes the project that is saved.
void DtCodeGenAppGui::openProject(const DtFilename& file)
{
    myPreferences->setIncludeDir(myProject->includeDir());
    myPreferences->setPrefix(myProject->classPrefix());
    DtOMTEnvWriter::setPrefixName(myPreferences->prefixName());
    myBaseName = myProject->baseName();
    myProjectFile = file;
    enableProjectActions(true);
    myOutputDir = DtString();
}

void DtCodeGenAppGui::tellOfProject(bool isReadAgain)
{
    const QString text = "Project " + nameOf(myProjectFile) + (isReadAgain ? " read again: " : " read: ");
    if (myLoadedFiles.empty())
        return showSuccess(text + "it has no models");
    showSuccess(text + DtCounted(moduleCount(), "module", "modules") + ", " +
                QString::number(myProject->getObjects().size() + myProject->getInteractions().size()) +
                " of its classes selected");
}

bool DtCodeGenAppGui::loadModels(const std::vector<DtModelFile>& models)
{
    const DtRestored loading(myIsLoadingProject, true);
    const int isLoaded =
        models.size() > 1 ? loadFiles(joinedPaths(models)) : loadFile(models.front().first, models.front().second);
    return isLoaded != 0;
}

// What the user chooses; empty after a cancel, and without a user.
DtFilename DtCodeGenAppGui::askForFile(const char* title, const char* filter, const DtString& name)
{
    if (myIsUnattended)
    {
        DtWarn << title << std::endl;
        return DtFilename();
    }
    const QString start = name.isEmpty() ? myLastDirectory : myLastDirectory + "/" + QString::fromUtf8(name.c_str());
    const QString choice =
        QFileDialog::getOpenFileName(this, QString::fromLatin1(title), start, QString::fromLatin1(filter));
    noteDirectory(choice);
    return choice.toUtf8().constData();
}

// Looks ahead for the user, who keeps what is open when the file holds no project.
bool DtCodeGenAppGui::isProjectFile(const DtFilename& path)
{
    const DtFilename file = withExtension(path);
    if (!canOpen(file))
    {
        showStatus("Project file " + file + " could not be opened.");
        return false;
    }
    DtOmtProject project;
    DtOmtProjectXmlReader reader(file);
    reader.readXml(project);
    if (!reader.hasFoundProject())
        showStatus(file + " is no project file, and is not loaded.");
    return reader.hasFoundProject();
}

// Replaces the present project by what the file holds. A file that cannot be opened leaves no project at all. Until
// the load is complete no project file is set, so a save in between cannot write over a project. A file that holds no
// project is not sound, and gives an empty one.
bool DtCodeGenAppGui::readProject(DtFilename& path, bool& isSound)
{
    forgetProject();
    path = withExtension(path);
    if (!canOpen(path))
    {
        enableProjectActions(false);
        showStatus("Project file " + path + " could not be opened.");
        return false;
    }
    myProject = std::make_unique<DtOmtProject>();
    DtOmtProjectXmlReader reader(path);
    reader.readXml(*myProject);
    isSound = reader.hasFoundProject();
    return true;
}

void DtCodeGenAppGui::forgetProject()
{
    myProject.reset();
    setValidProject(false);
    myProjectFile = DtString();
    forgetFiles();
}

// Finds every model file of the project. False when one is missing and the user gives no other for it.
bool DtCodeGenAppGui::locateModels(const DtFilename& projectFile, std::vector<DtModelFile>& models)
{
    for (const DtModelFile& model : myProject->fomDefFiles())
    {
        DtFilename found;
        if (!locateModel(model, projectFile, found))
            return false;
        DtFilename directory(found);
        directory.stripFilename();
        models.emplace_back(DtFilename::stripPath(found), directory);
    }
    return true;
}

bool DtCodeGenAppGui::locateModel(const DtModelFile& model, const DtFilename& projectFile, DtFilename& found)
{
    for (const DtModelFile& spelling : DtModelSpellings(model))
    {
        found = whereModelIs(spelling, projectFile);
        if (findFile(found))
            return true;
    }
    showMessageBox(model.first + " could not be found");
    found = askForFile("Open File", "Object Model Files (*.omt *.xml *.fdd)", DtFilename::stripPath(model.first));
    if (found.isEmpty() && isVisible())
        showStatus("Project file " + projectFile + " is not loaded: " + model.first + " could not be found.");
    return !found.isEmpty();
}

void DtCodeGenAppGui::showMessageBox(const DtString& text)
{
    if (myIsUnattended)
        DtWarn << text << std::endl;
    else
        QMessageBox::warning(this, windowTitle(), QString::fromUtf8(text.c_str()));
}

bool DtCodeGenAppGui::findFile(const DtFilename& path)
{
    if (DtFilename::stripPath(path) == DtFedReader::standardMimFileName(DtFomEvolved))
        return true;
    FILE* const file = static_cast<FILE*>(DtFedReader::openFedFile(path, false));
    DtFileClose(file);
    return file != nullptr;
}

void DtCodeGenAppGui::putIntoUi(DtOmtProject* project)
{
    myListViewManager->processAddition(true, project, myObjectItems, myInteractionItems, true);
}
