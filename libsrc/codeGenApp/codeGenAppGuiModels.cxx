// Loading and merging of model files.

#include "codeGenApp/codeGenAppGui.h"
#include "codeGenApp/findBar.h"
#include "codeGenApp/listViewManager.h"
#include "codeGenApp/messageLog.h"
#include "codeGenApp/modelLoading.h"
#include "codeGenApp/preferencesDialog.h"
#include "fileGenerator/dataTypeMapper.h"
#include "fileGenerator/omtEnvWriter.h"
#include "fileGenerator/omtProject.h"
#include "foundation/outputStream.h"
#include "foundation/stringUtils.h"
#include "omtReader/fedReader.h"
#include "omtReader/omtTree.h"

#include <utility>

namespace
{
const char theTitle[] = "Quorvex Code Generator - ";
const char theLoadFailure[] = "Error Loading File, please try a different file.";

DtFilename joined(const DtString& name, const DtString& directory)
{
    DtFilename path(name);
    path.prepend(DtFilename(directory));
    return path;
}

DtCodeGenAppGui::DtModelFile nameAndDirectory(const DtFilename& path)
{
    DtFilename directory(path);
    directory.stripFilename();
    return {DtFilename::stripPath(path), directory};
}

DtString mimName(DtFomType type)
{
    return DtFedReader::standardMimFileName(type);
}
} // namespace

int DtCodeGenAppGui::loadFile(const DtString& path, const DtString& directory)
{
    myMessagesBeforeLoad = myMessages->count();
    DtOMTEnvWriter::setMIMincluded(myPreferences->includeStandardMIM());
    const DtFilename file = joined(path, directory);
    const DtFomType type = DtFedReader::checkFomType(file.c_str());
    const bool addMim = myPreferences->includeStandardMIM() && type >= DtFomEvolved && myLoadedFiles.empty();
    if (!canMergeWithLoaded(path, type))
        return 0;
    const bool isFurther = !myLoadedFiles.empty();
    if (!readTypedFiles(filesToRead(file, type, addMim)))
        return failedLoad();
    myFileName = path;
    setWindowTitle(QString::fromUtf8((theTitle + file).c_str()));
    myLoadedFiles.push_back(nameAndDirectory(file));
    showProjectAfterImport(isFurther);
    tellOfImport(QString::fromUtf8(DtFilename::stripPath(file).c_str()));
    return 1;
}

// Reads files of the present format into tree, maps and lists.
bool DtCodeGenAppGui::readTypedFiles(const std::vector<DtFilename>& files)
{
    myReader = std::make_unique<DtOMTEnvReader>();
    bool ok = false;
    takeTree(myReader->readMultipleFiles(files, ok, myFomType));
    if (!ok)
        return false;
    fillLists();
    myReadFiles = files;
    return true;
}

// Nobody looks at an unseen window, and its run ends without a model. In a visible one the user has what was there
// before: it is read again, as it was read then.
int DtCodeGenAppGui::failedLoad()
{
    showStatus(theLoadFailure);
    tellOfLostFiles();
    addToStatusToolTip(myMessages->linesSince(myMessagesBeforeLoad));
    const std::vector<DtFilename> files = std::exchange(myReadFiles, {});
    if (isVisible() && !files.empty() && readTypedFiles(files))
        showProjectOnTheRight();
    return 0;
}

// All files are read together, so the one that is missing need not be the one that was asked for.
void DtCodeGenAppGui::tellOfLostFiles()
{
    if (!isVisible())
        return;
    for (const DtModelFile& loaded : myLoadedFiles)
    {
        const DtFilename file = joined(loaded.first, loaded.second);
        const DtString mim = mimName(myFomType);
        const bool isMim = !mim.isEmpty() && DtContainsSubstring(file, mim);
        if (!isMim && !findFile(file))
            DtWarn << file << " is loaded, but cannot be opened any more." << std::endl;
    }
}

// A project that is being loaded goes to the lists when that is done. The first model of an unseen window belongs to
// the start of a run, which selects for itself.
void DtCodeGenAppGui::showProjectAfterImport(bool isFurther)
{
    if (!myIsLoadingProject && (isFurther || isVisible()))
        showProjectOnTheRight();
}

// The classes are those of all modules together. A project that is being loaded tells of itself.
void DtCodeGenAppGui::tellOfImport(const QString& files)
{
    if (!myIsLoadingProject)
        showSuccess(files + " imported: " + QString::number(myObjectItems.size()) + " object, " +
                    QString::number(myInteractionItems.size()) + " interaction classes");
}

// The walk over the lists records superclasses that the project does not hold. A copy takes them, so that a class that
// the user has removed stays out of the project.
void DtCodeGenAppGui::showProjectOnTheRight()
{
    if (myProject == nullptr)
        return;
    DtOmtProject shown(*myProject);
    putIntoUi(&shown);
    myListViewManager->startAtTheTop();
    if (isVisible())
        markTakenClasses();
}

// The first file decides the format; every further one has to have it, and only modules merge.
bool DtCodeGenAppGui::canMergeWithLoaded(const DtString& path, DtFomType type)
{
    if (myLoadedFiles.empty())
    {
        myFomType = type;
        return true;
    }
    DtString text;
    if (type != myFomType)
        text = "Error Loading File, Protocol of " + path + " does not match those currently loaded";
    else if (type <= DtFom1516)
        text =
            "Error Loading File, Cannot merge non HLA1516-2010 FOMs.  " + path + " cannot merge with currently loaded";
    else
        return true;
    for (const DtModelFile& file : myLoadedFiles)
        text += " " + file.first;
    showStatus(text);
    return false;
}

// The standard management model stands first when it is to be added. A loaded file of its name is left out.
std::vector<DtFilename> DtCodeGenAppGui::filesToRead(const DtFilename& newFile, DtFomType type, bool addMim) const
{
    std::vector<DtFilename> files;
    if (addMim)
        files.emplace_back(mimName(type));
    for (const DtModelFile& loaded : myLoadedFiles)
    {
        const DtFilename file = joined(loaded.first, loaded.second);
        if (!DtContainsSubstring(file, mimName(type)))
            files.push_back(file);
    }
    files.push_back(newFile);
    return files;
}

int DtCodeGenAppGui::loadFiles(const std::vector<DtModelFile>& models)
{
    myMessagesBeforeLoad = myMessages->count();
    DtOMTEnvWriter::setMIMincluded(myPreferences->includeStandardMIM());
    std::vector<DtFilename> files;
    files.reserve(models.size() + 1);
    for (const DtModelFile& model : models)
        files.push_back(DtFilename::searchAlternatePath(model.first.c_str(), model.second.c_str()));
    const DtModelFormats formats = DtFormatsOf(files);
    if (myPreferences->includeStandardMIM())
        DtAddMimIfMissing(files, formats); // ahead of a single one
    const bool isFurther = !myLoadedFiles.empty();
    myReader = std::make_unique<DtOMTEnvReader>();
    bool ok = false;
    takeTree(myReader->readFiles(files, ok));
    if (!ok || myTree == nullptr) // the reader's answer is true whatever it read
        return failedLoad();
    fillLists();
    myReadFiles = files;
    myFomType = formats.first;
    myFileName = files.front();
    myLoadedFiles.clear();
    DtString title(theTitle);
    QStringList names;
    for (const DtFilename& file : files)
    {
        myLoadedFiles.push_back(nameAndDirectory(file));
        title += "/" + DtFilename::stripPath(file); // ahead of the first name too
        names += QString::fromUtf8(DtFilename::stripPath(file).c_str());
    }
    setWindowTitle(QString::fromUtf8(title.c_str()));
    showProjectAfterImport(isFurther);
    tellOfImport(names.join(QStringLiteral(", ")));
    return 1;
}

// The lists show the old tree's classes, so they and the maps go with it.
void DtCodeGenAppGui::takeTree(DtOMTTree* tree)
{
    myObjectItems.clear();
    myInteractionItems.clear();
    myListViewManager->reset();
    myTree.reset(tree);
}

void DtCodeGenAppGui::fillLists()
{
    DtDataTypeMapper::instance()->populateFromOmtTree(myTree.get());
    myFileLoaded = true;
    QTreeWidget* const list = myListViewManager->leftListView();
    myReader->constructObjectListView(list, myListViewManager->leftObjectList());
    myReader->constructInteractionListView(list, myListViewManager->leftInteractionList());
    myObjectItems = myReader->objectWidgetToRootNodeMap();
    myInteractionItems = myReader->interactionWidgetToRootNodeMap();
    myListViewManager->fitColumns();
    if (myFindBar != nullptr)
        myFindBar->refresh();
}

void DtCodeGenAppGui::forgetFiles()
{
    myBeforeChange.reset();
    myObjectItems.clear();
    myInteractionItems.clear();
    myListViewManager->reset();
    myLoadedFiles.clear();
    myReadFiles.clear();
}

void DtCodeGenAppGui::titleWithoutFile()
{
    setWindowTitle(QStringLiteral("Quorvex Code Generator - No File Loaded"));
}

void DtCodeGenAppGui::closeOpenFiles()
{
    myFileLoaded = false;
    forgetFiles();
    titleWithoutFile();
    myProjectFile = DtString();
    myBaseName = DtString();
    refreshBadge();
}
