#ifndef CODE_GEN_APP_CODE_GEN_APP_GUI_H
#define CODE_GEN_APP_CODE_GEN_APP_GUI_H

#include "codeGenApp/widgetIconStyleManager.h"
#include "fileGenerator/omtEnvReader.h"
#include "foundation/filename.h"
#include "foundation/fomType.h"

#include <QtCore/QPointer>
#include <QtWidgets/QMainWindow>

#include <functional>
#include <map>
#include <memory>
#include <utility>
#include <vector>

class DtAboutBox;
class DtCodeGenInitializer;
class DtCustomCodeGui;
class DtDetailPanel;
class DtFedNode;
class DtFindBar;
class DtGenerationRun;
class DtGenerationWatch;
class DtListViewManager;
class DtMessageDock;
class DtMessageLog;
class DtOMTTree;
class DtOmtProject;
class DtPreferencesDialog;
class DtProjectBadge;
class QAction;
class QApplication;
class QHelpEvent;
class QKeyEvent;
class QMenu;
class QTreeWidget;
class QTreeWidgetItem;
class Ui_QtCodeGenApp;

// The main window, and the one who does the work of a run: it loads and merges model files, keeps the project and the
// selection, and starts generation. A batch run uses the same object and never shows it.
//
// Owns the reader, the parse tree, the project, the list manager and the dialogs; the application and the initializer
// are not owned and must outlive it. Paths are relative to the working directory, a sibling of the data directory.
// Its destructor writes the user's configuration file.
//
// What the user has to know goes to the status bar and stays there until it is replaced. While the window is not
// visible each text goes to DtWarn as well, in one line. A visible window tells what went well, too, and at the right
// of the bar what is open.
//
// Beside its menus it takes files that are dropped on it: project files to load, and model files to add while the
// action "Import FOM" is enabled. In the lists Insert adds; in the right one Delete removes, and F2 or Enter customizes
// the current class. Ctrl+F opens a find bar below the left list, F4 a panel that tells all of the current
// class, F5 the messages, and Ctrl+Z takes the last addition or removal back.
class DtCodeGenAppGui : public QMainWindow
{
    Q_OBJECT

public:
    // File name and directory of a model file.
    using DtModelFile = std::pair<DtString, DtString>;
    using DtItemMap = std::map<QTreeWidgetItem*, const DtFedNode*>;

    DtCodeGenAppGui(DtCodeGenInitializer& initializer, QApplication* application, QWidget* parent);
    ~DtCodeGenAppGui() override;

    void setValidProject(bool valid) { myValidProject = valid; }
    bool isValidProject() const { return myValidProject; }
    // An unattended window opens no message box and no file dialog: the text goes to DtWarn and the operation goes on
    // as after a cancel.
    void setUnattended(bool unattended) { myIsUnattended = unattended; }
    // Lines that were told before the window was made; they stand ahead of its own.
    void takeEarlierMessages(const QStringList& lines);
    // Puts the window where it was closed last, and notes its place from now on whenever it is closed.
    void keepPlace();

    // Gives the two middle buttons their icons.
    virtual void manageIcons();
    // Reads one more model file beside those loaded; all files are read again and merged. 1 on success, else 0. The
    // right list shows the project's classes again then. After a failure a visible window has what it had before.
    virtual int loadFile(const DtString& path, const DtString& directory);
    // Reads these files as one model, in place of what was loaded. 1 on success, else 0.
    virtual int loadFiles(const std::vector<DtModelFile>& files);
    // Saves the project and runs every script that is switched on, in the order of their names.
    virtual void generateAllFiles();
    virtual void generateCppFiles();
    virtual void generateFile(const DtString& script);
    virtual void setOutputDirectory(const QString& directory); // has to end in a separator
    void setOutputPath(const DtString& directory);             // the same, for names that no QString can hold
    virtual void setIncludeDirectory(const QString& directory);
    virtual void setClassPrefix(const QString& prefix);
    virtual void addAllObjectInteractions();
    virtual DtOMTEnvReader* reader() const { return myReader.get(); }
    virtual DtListViewManager* listViewManager() const { return myListViewManager.get(); }
    virtual DtOmtProject* omtProject() const { return myProject.get(); } // null when there is none
    virtual void saveOmtProject();
    virtual void loadOmtProject(const DtFilename& path);
    virtual void newOmtProject(DtFilename path);
    // Without the files of a style the window has the look of the platform.
    virtual void loadStylesheet(bool dark);
    // The colours of icons follow from the style sheet. For QIcon::Normal there are none, and a warning.
    virtual DtIconColorMappings iconColorMappingsByMode(QIcon::Mode mode) const;
    // The colours are worked out again when they are asked for the next time.
    virtual void invalidateIconColorMappings();
    virtual void putIntoUi(DtOmtProject* project);
    // True when the model file can be opened, from here or below RTI_CONFIG, where the readers look too. The standard
    // management model is found under its name without a file.
    virtual bool findFile(const DtFilename& path);
    // Replaces until nothing is left to replace, so the replacement must not hold the searched text.
    virtual void replaceAll(QString& text, const QString& from, const QString& to);
    virtual QString resolveVars(const QString& text);

    DtOMTTree* tree() const { return myTree.get(); }
    DtPreferencesDialog* preferences() const { return myPreferences.get(); }
    DtAboutBox* aboutBox() const { return myAboutBox.get(); }
    DtWidgetIconStyleManager* iconManager() const { return myIconManager.get(); }
    DtCustomCodeGui* customCodeGui() const; // the one opened last, null once it is closed
    bool isFileLoaded() const { return myFileLoaded; }
    const std::vector<DtModelFile>& loadedFiles() const { return myLoadedFiles; }
    const DtString& outputDirectory() const { return myOutputDir; }
    const DtFilename& projectFile() const { return myProjectFile; }

public Q_SLOTS:
    virtual void slot_quitMe();
    virtual void slot_showContextMenu(const QPoint& point); // a point of the right list's viewport
    virtual void slot_itemDoubleClicked(QTreeWidgetItem* item, int column);
    virtual void slot_openFile();
    // Several files at once. Nothing in the window leads here.
    virtual void slot_openFiles();
    virtual void slot_closeOpenFiles();
    virtual void closeOpenFiles();
    virtual void slot_generateFiles();
    virtual bool setOutputDirectory(); // true when a directory was chosen
    virtual void showPreferencesDialog();
    // Menus with one entry at a point of the screen; nothing without an item. Nothing in the window leads here.
    virtual void leftListRightButtonPressedCb(QTreeWidgetItem* item, const QPoint& point, int column);
    virtual void rightListRightButtonPressedCb(QTreeWidgetItem* item, const QPoint& point, int column);
    // Shows the selected classes on the right without recording them in the project.
    virtual void additionPressed();
    virtual void removalPressed();
    virtual void selectAllObjectsInteractions();
    virtual void addSelectedItems();
    virtual void removeSelectedItems();
    virtual void showAboutBox();
    // Opens the page of the toolkit's versions, whose address is a matter of the deployment.
    virtual void launchUpdate();
    virtual void slot_saveOmtProject();
    virtual void slot_loadOmtProject();
    virtual void slot_newOmtProject();
    virtual void setToggleDarkMode(bool dark);

protected:
    bool event(QEvent* event) override;
    bool eventFilter(QObject* watched, QEvent* event) override;
    void dragEnterEvent(QDragEnterEvent* event) override;
    void dropEvent(QDropEvent* event) override;
    void closeEvent(QCloseEvent* event) override;

private:
    void createActions();
    void createMenus();
    void createToolBar();
    void createConfigurationMenu();
    void createHelpMenu();
    void connectLists();
    void setUpLists();
    QAction* addNamedAction(const char* text, const char* icon, const char* shortcut, const char* toolTip);
    void popUpMenu(QMenu*& menu, const char* name, const char* text, void (DtCodeGenAppGui::*slot)(),
                   const QPoint& point);
    void customize(QTreeWidgetItem* item);
    void createStatusBar();
    void createMessages();
    void openMessages();
    void toggleMessages();
    void makeMessageDock();
    void selectNamedClass(const QString& line);
    void addToStatusToolTip(const QStringList& lines);
    // What failed, or cannot be done. The text stays until there is another one.
    void showStatus(const DtString& text);
    // What was done; nothing while the window is not visible.
    void showSuccess(const QString& text);
    void putStatus(const QString& text, bool isFailure);
    void refreshBadge();
    void fitBadge();
    std::size_t moduleCount() const;
    // Whether saving would write something else than what the project file holds.
    bool hasUnsavedWork() const;
    // Asks the user of a visible window about work that is not saved, in the custom code window first. False when the
    // work is to stay as it is, and when it could not be saved.
    bool mayLeaveProject();
    void saveConfiguration();

    void createShortcuts();
    void changeSelection(const std::function<void()>& change);
    void undoLastChange();
    void noteDirectory(const QString& file);
    bool handleListKey(const QTreeWidget* list, const QKeyEvent& event);
    void customizeCurrentItem();
    void openFindBar();
    bool takesFile(const QString& file) const;
    void takeFile(const QString& file);

    void createClassViews();
    const DtFedNode* nodeOf(QTreeWidgetItem* item) const;
    bool showClassToolTip(const QTreeWidget* list, const QHelpEvent& event);
    void markTakenClasses();
    void toggleDetails();
    void showDetails(QTreeWidgetItem* item);

    bool canMergeWithLoaded(const DtString& path, DtFomType type);
    std::vector<DtFilename> filesToRead(const DtFilename& newFile, DtFomType type, bool addMim) const;
    bool readTypedFiles(const std::vector<DtFilename>& files);
    int failedLoad(); // 0, the answer of a load that fails
    void tellOfLostFiles();
    void takeTree(DtOMTTree* tree);
    void fillLists();
    void forgetFiles();
    void titleWithoutFile();
    void showProjectAfterImport(bool isFurther);
    void tellOfImport(const QString& files);
    void showProjectOnTheRight();

    bool isProjectFile(const DtFilename& path);
    bool readProject(DtFilename& path, bool& isSound);
    void forgetProject();
    bool loadModels(const std::vector<DtModelFile>& models);
    void openProject(const DtFilename& file);
    void tellOfProject(bool isReadAgain);
    void completeProject(DtOmtProject& project) const;
    void tellFailedSave(int cause); // of errno, 0 when it is not known
    bool locateModels(const DtFilename& projectFile, std::vector<DtModelFile>& models);
    bool locateModel(const DtModelFile& model, const DtFilename& projectFile, DtFilename& found);
    // The name is that of the file that is looked for, if there is one.
    DtFilename askForFile(const char* title, const char* filter, const DtString& name = DtString());
    void showMessageBox(const DtString& text);
    void enableProjectActions(bool enabled);
    DtGenerationRun generationRun();
    void tellOfRun(const DtGenerationWatch& watch, bool isCancelled);
    bool askToStop(const DtString& reason);

    QApplication* myApplication;
    DtCodeGenInitializer& myInitializer;
    bool myIsUnattended = false;
    bool myKeepsPlace = false;
    mutable std::map<QIcon::Mode, QColor> myIconColors; // filled on first use
    std::unique_ptr<DtWidgetIconStyleManager> myIconManager;
    std::unique_ptr<Ui_QtCodeGenApp> myForm;
    const QString myAppDir = QStringLiteral("../data/config"); // stands for $(APP_DIR) in style sheets
    DtString myOutputDir;
    DtString myIncludeDir;
    DtString myClassPrefix;
    DtString myFileName; // of the model file as it was given, of the first of several
    bool myFileLoaded = false;
    bool myValidProject = false;
    bool myIsLoadingProject = false;
    bool myStatusIsFailure = false;
    int myMessagesBeforeLoad = 0;
    DtFomType myFomType = DtFomUnknown;
    std::vector<DtModelFile> myLoadedFiles;
    std::vector<DtFilename> myReadFiles; // what the tree was read from, the management model included
    DtString myBaseName;
    DtFilename myProjectFile; // empty when no project is open
    DtItemMap myObjectItems;
    DtItemMap myInteractionItems;
    std::unique_ptr<DtOMTEnvReader> myReader;
    std::unique_ptr<DtOMTTree> myTree;
    std::unique_ptr<DtOmtProject> myProject;
    std::unique_ptr<DtListViewManager> myListViewManager;
    std::unique_ptr<DtAboutBox> myAboutBox;
    std::unique_ptr<DtPreferencesDialog> myPreferences;
    QPointer<DtCustomCodeGui> myCustomCodeGui; // deletes itself when it is closed
    QMenu* myAdditionMenu = nullptr;           // made when it is used first, as the next two
    QMenu* myRemovalMenu = nullptr;
    DtFindBar* myFindBar = nullptr;
    DtProjectBadge* myBadge = nullptr;
    DtDetailPanel* myDetailPanel = nullptr;        // made when it is asked for
    std::unique_ptr<DtOmtProject> myBeforeChange;  // what was selected ahead of the last addition or removal
    QString myLastDirectory = QStringLiteral("."); // where the last file was chosen
    std::unique_ptr<DtMessageLog> myMessages;
    DtMessageDock* myMessageDock = nullptr; // made with the first message of a visible window
    QAction* myNewProjectAction = nullptr;
    QAction* myLoadProjectAction = nullptr;
    QAction* mySaveProjectAction = nullptr;
    QAction* myImportAction = nullptr;
    QAction* mySelectAllAction = nullptr;
    QAction* myCloseAction = nullptr;
    QAction* myGenerateAction = nullptr;
    QAction* myExitAction = nullptr;
};

#endif
