#ifndef CODE_GEN_APP_CUSTOM_CODE_GUI_H
#define CODE_GEN_APP_CUSTOM_CODE_GUI_H

#include "codeGenApp/customCodeText.h"
#include "codeGenApp/customCodeTokens.h"
#include "fileGenerator/omtProject.h"

#include <QtWidgets/QWidget>

#include <map>
#include <memory>

class CodeEditor;
class DtCodeGenAppGui;
class Highlighter;
class QApplication;
class QLabel;
class QTreeWidgetItem;
class Ui_QtCustomGenForm;

// The window "Customize Encoders and Decoders": lists the attributes or parameters of one class and lets the user
// replace the text that generation writes for each. Saving puts the texts into the project and saves the project.
//
// Opens on an item of the right list of the main window, which is read at construction only. A top item of that list
// is no class and has no members. The window blocks the main window while it is open, so project and model stay as
// they are, and it deletes itself when it is closed.
//
// The class is named above the list; of one without members of its own it is told which superclasses have some.
//
// The list has the key of each member in column 0, the class's full name, a dot and the name of the member, and its
// datatype in column 1, in the order of the model. A "*" in front of the key marks a member with edits that are not
// saved. Edits are kept while the user goes from member to member. A text keeps the line ends that it came with, and
// one that was not edited is saved as it came.
class DtCustomCodeGui : public QWidget
{
    Q_OBJECT

public:
    // Without a parent it belongs to the main window.
    DtCustomCodeGui(QApplication* application, QTreeWidgetItem* item, DtCodeGenAppGui* mainWindow,
                    QWidget* parent = nullptr);
    ~DtCustomCodeGui() override;

    bool hasUnsavedEdits() const;
    // Shows the texts of a member; null leads back to the instructions.
    void selectItem(QTreeWidgetItem* item);
    // The key of an item.
    DtString itemType(const QTreeWidgetItem* item) const;
    // A template, expanded for the current member, without its last line end; empty when it cannot be read.
    DtString readTemplateFile(const char* name) const;
    // Does nothing while no member is current.
    void decodeFileLine(DtString& line) const;
    // Datatype of the member with this key; empty when there is none.
    DtString findDatatype(const DtString& key) const;
    // False without a project.
    bool setCustomItemInProject(const DtString& key, const DtOmtProject::DtCodingPair& coding);
    bool findCustomItemInProject(const DtString& key, DtOmtProject::DtCodingPair& coding) const;

public Q_SLOTS:
    void slot_showContextMenu(const QPoint& point);
    void slot_itemSelectionChanged(QTreeWidgetItem* current, QTreeWidgetItem* previous);
    void slot_encodingSelected();
    void slot_decodingSelected();
    void slot_encTextChanged(bool undoAvailable);
    void slot_decTextChanged(bool undoAvailable);
    // Both texts of the current member; the edits of the others stay as they are.
    void slot_saveButtonClicked();

protected:
    void closeEvent(QCloseEvent* event) override;

private:
    struct DtMember
    {
        DtCustomCodeMember names;
        bool isLoaded = false; // the texts have been looked up
        DtCustomCodeText encoder;
        DtCustomCodeText decoder;

        bool isEdited() const { return encoder.isEdited || decoder.isEdited; }
    };

    void prepareForm();
    void connectControls();
    void centerOn(const QWidget& window);
    void nameClass();
    DtString superclassesWithMembers() const;
    void findClass(const QTreeWidgetItem* item);
    void populateListview(QTreeWidgetItem* item);
    void findAttributesAndParameters(QTreeWidgetItem* item);
    template <typename Node>
    void addMember(const Node* node);
    DtMember* memberOf(const QTreeWidgetItem* item);
    DtString className() const;
    DtCustomCodeTokens tokensOf(const DtCustomCodeMember& member) const;

    void loadMember(QTreeWidgetItem* item);
    DtOmtProject::DtCodingPair defaultCoding() const;
    void showMember(QTreeWidgetItem* item);
    void cacheCodings(const QTreeWidgetItem* item);
    void insertDefaultCoding();
    void updateItemModificationIndicators(QTreeWidgetItem* item);
    void setEncoderEdited(bool isEdited, QTreeWidgetItem* item);
    void setDecoderEdited(bool isEdited, QTreeWidgetItem* item);
    void turnOnHighlighter();
    void turnOffHighlighter();
    void displayInstructions();
    bool storeItem(QTreeWidgetItem* item);
    void saveAllEdited();

    DtCodeGenAppGui* myMainWindow;
    std::unique_ptr<Ui_QtCustomGenForm> myForm;
    std::unique_ptr<Highlighter> myEncHighlighter; // null while off
    std::unique_ptr<Highlighter> myDecHighlighter;
    QLabel* myClassLabel = nullptr; // the class, and what there is to say of it
    DtString myClassFullName;
    bool myIsInteraction = false;
    // The window goes on with the numbers of the generated classes and takes none of them: these belong to the lines of
    // the next generation.
    mutable DtCCompatibleNames myNames;
    std::map<DtString, DtMember> myMembers; // by key
    QTreeWidgetItem* myCurrentItem = nullptr;
    bool myIsLoading = false; // while the program puts texts into the editors
};

#endif
