#ifndef CODE_GEN_APP_PREFERENCES_DIALOG_H
#define CODE_GEN_APP_PREFERENCES_DIALOG_H

#include "foundation/string.h"

#include <QtWidgets/QDialog>

#include <map>
#include <memory>

class DtCodeGenInitializer;
class DtGenerateListView;
class QCheckBox;
class QLineEdit;
class Ui_QtPreferencesDialog;

// Edits what the configuration stores. The main window reads every setting from this dialog, which writes changes
// through to the initializer when OK is pressed. A namespace or prefix that C++ does not take is marked, and can be
// kept.
//
// The initializer is not owned and must outlive the dialog. The dialog keeps copies of the settings: a value put in by
// setIncludeDir() or setPrefix(), from a project or the command line, holds for the run without entering the store.
class DtPreferencesDialog : public QDialog
{
    Q_OBJECT

public:
    enum DtCodeGenBits
    {
        DtBits8 = 0,
        DtBits16 = 1,
        DtBits32 = 2,
        DtBits64 = 3
    };

    explicit DtPreferencesDialog(DtCodeGenInitializer& initializer, QWidget* parent = nullptr);
    ~DtPreferencesDialog() override;

    virtual const DtString& namespaceName() const { return myNamespaceName; }
    virtual const DtString& includeName() const { return myIncludeName; }
    virtual const DtString& prefixName() const { return myPrefixName; }
    virtual bool includeStandardMIM() const { return myIncludeStandardMIM; }
    // Sets all controls from the settings and shows the dialog.
    virtual void show();
    virtual bool generateExamples() const { return myGenerateExamples; }
    virtual bool generate64Bit() const { return myGenerate64Bit; }
    virtual bool generateErrors() const { return myGenerateErrors; }
    virtual bool dumpParseTree() const { return myDumpParseTree; }
    virtual bool generateDis() const { return myGenerateDis; }
    virtual int firstPduKind() const { return myFirstPduKind; }
    // Script file name to whether it is to run.
    virtual const std::map<DtString, bool>& generateScripts() const;
    virtual bool mapRtiObjectIdToGlobalId() const { return myMapRtiObjectIdToGlobalId; }
    virtual void setIncludeDir(const DtString& directory);
    virtual void setPrefix(const DtString& prefix);
    virtual void setIncludeStandardMIM(bool include);

    // "8", "16", "32" and "64" to the enumeration and back; anything else is 32 bits.
    static DtCodeGenBits getCodeGenBitsEnum(const DtString& text);
    static DtString getDtString(DtCodeGenBits bits);

public Q_SLOTS:
    virtual void cancelButtonPressed();
    virtual void okButtonPressed();
    // Runs ahead of the toggle and stores the state that the box is about to take. Cancel does not take it back.
    virtual void includeStandardMIMBoxChecked();
    void reject() override;

private:
    void readInitializer();
    void fillScripts();
    void fillControls();
    void connectControls();
    void createShortcuts();
    void addToolTips();
    void checkNames();
    void readControls();
    void writeInitializer();

    DtCodeGenInitializer& myInitializer;
    std::unique_ptr<Ui_QtPreferencesDialog> myForm;
    DtGenerateListView* myScripts;
    DtString myNamespaceName;
    DtString myIncludeName;
    DtString myPrefixName;
    bool myIncludeStandardMIM = true;
    bool myGenerateExamples = true;
    bool myGenerate64Bit = true;
    bool myGenerateErrors = false;
    bool myDumpParseTree = false;
    bool myGenerateDis = false;
    int myFirstPduKind = 0;
    bool myMapRtiObjectIdToGlobalId = true;
};

#endif
