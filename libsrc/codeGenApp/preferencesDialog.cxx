#include "codeGenApp/preferencesDialog.h"

#include "codeGenApp/codeGenInitializer.h"
#include "codeGenApp/generateListView.h"
#include "codeGenApp/nameRules.h"
#include "ui_preferencesDialog.h"

#include <QtWidgets/QShortcut>
#include <QtWidgets/QStyle>

#include <utility>

namespace
{
const int theScriptsHeight = 130; // pixels, for header and five rows

struct DtBitsRow
{
    const char* text;
    DtPreferencesDialog::DtCodeGenBits bits;
};

const DtBitsRow theBits[] = {
    {"8",  DtPreferencesDialog::DtBits8 },
    {"16", DtPreferencesDialog::DtBits16},
    {"32", DtPreferencesDialog::DtBits32},
    {"64", DtPreferencesDialog::DtBits64},
};

void fillText(QCheckBox* box, QLineEdit* edit, const DtString& value)
{
    box->setChecked(!value.isEmpty());
    edit->setEnabled(!value.isEmpty());
    edit->setText(QString::fromUtf8(value.c_str()));
}

DtString readText(const QCheckBox* box, const QLineEdit* edit)
{
    return box->isChecked() ? DtString(edit->text().toUtf8().constData()) : DtString::nullString();
}
} // namespace

DtPreferencesDialog::DtPreferencesDialog(DtCodeGenInitializer& initializer, QWidget* parent)
    : QDialog(parent),
      myInitializer(initializer),
      myForm(std::make_unique<Ui_QtPreferencesDialog>()),
      myScripts(new DtGenerateListView(this))
{
    myForm->setupUi(this);
    myScripts->setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Ignored); // takes what height is left, but not less
    myScripts->setMinimumHeight(theScriptsHeight);
    myForm->myScriptsLayout->addWidget(myScripts);
    setTabOrder(myForm->myIncludeStandardMIM, myScripts);
    setTabOrder(myScripts, myForm->myGenerateDis);
    setWindowFlag(Qt::WindowContextHelpButtonHint, false);
    readInitializer();
    fillControls();
    connectControls();
    createShortcuts();
    addToolTips();
}

DtPreferencesDialog::~DtPreferencesDialog() = default;

void DtPreferencesDialog::readInitializer()
{
    myNamespaceName = myInitializer.namespaceName();
    myIncludeName = myInitializer.includeName();
    myPrefixName = myInitializer.prefixName();
    myIncludeStandardMIM = myInitializer.includeStandardMIM();
    myGenerateExamples = myInitializer.generateExamples();
    myGenerate64Bit = myInitializer.generate64Bit();
    myGenerateErrors = myInitializer.generateErrors();
    myDumpParseTree = myInitializer.dumpParseTree();
    myGenerateDis = myInitializer.generateDis();
    myFirstPduKind = myInitializer.firstPduKind();
    myMapRtiObjectIdToGlobalId = myInitializer.mapRtiObjIdToGlobalId();
    fillScripts();
}

void DtPreferencesDialog::fillScripts()
{
    myScripts->clear();
    for (const auto& [name, isWanted] : myInitializer.scriptMap())
        myScripts->addItem(name.c_str(), isWanted);
}

void DtPreferencesDialog::fillControls()
{
    fillText(myForm->myUseNamespace, myForm->myNamespaceName, myNamespaceName);
    fillText(myForm->myCreateIncludeDir, myForm->myIncludeName, myIncludeName);
    fillText(myForm->myPrefixClassnames, myForm->myPrefixName, myPrefixName);
    myForm->myIncludeStandardMIM->setChecked(myIncludeStandardMIM);
    myForm->myGenerateExamples->setChecked(myGenerateExamples);
    myForm->myGenerate64Bit->setChecked(myGenerate64Bit);
    myForm->myGenerateErrors->setChecked(myGenerateErrors);
    myForm->mySaveParseTree->setChecked(myDumpParseTree);
    myForm->myGenerateDis->setChecked(myGenerateDis);
    myForm->myFirstPduKind->setValue(myFirstPduKind);
    myForm->myFirstPduKind->setEnabled(myGenerateDis);
    myForm->myMapRtiObjectId->setChecked(myMapRtiObjectIdToGlobalId);
}

void DtPreferencesDialog::connectControls()
{
    connect(myForm->myUseNamespace, &QCheckBox::toggled, myForm->myNamespaceName, &QWidget::setEnabled);
    connect(myForm->myCreateIncludeDir, &QCheckBox::toggled, myForm->myIncludeName, &QWidget::setEnabled);
    connect(myForm->myPrefixClassnames, &QCheckBox::toggled, myForm->myPrefixName, &QWidget::setEnabled);
    connect(myForm->myCancelButton, &QPushButton::pressed, this, &DtPreferencesDialog::cancelButtonPressed);
    connect(myForm->myOkButton, &QPushButton::pressed, this, &DtPreferencesDialog::okButtonPressed);
    connect(myForm->myIncludeStandardMIM, &QCheckBox::pressed, this,
            &DtPreferencesDialog::includeStandardMIMBoxChecked);
    connect(myForm->myGenerateDis, &QCheckBox::toggled, myForm->myFirstPduKind, &QWidget::setEnabled);
    for (const QLineEdit* edit : {myForm->myNamespaceName, myForm->myPrefixName})
        connect(edit, &QLineEdit::textChanged, this, &DtPreferencesDialog::checkNames);
}

// The texts of the controls have no letters marked, so the keys have no other sign than the tooltips' ends.
void DtPreferencesDialog::createShortcuts()
{
    const std::pair<const char*, QWidget*> theKeys[] = {
        {"Alt+N", myForm->myUseNamespace      },
        {"Alt+I", myForm->myCreateIncludeDir  },
        {"Alt+P", myForm->myPrefixClassnames  },
        {"Alt+6", myForm->myGenerate64Bit     },
        {"Alt+E", myForm->myGenerateExamples  },
        {"Alt+M", myForm->myMapRtiObjectId    },
        {"Alt+R", myForm->myGenerateErrors    },
        {"Alt+H", myForm->myIncludeStandardMIM},
        {"Alt+L", myScripts                   },
        {"Alt+D", myForm->myGenerateDis       },
        {"Alt+K", myForm->myFirstPduKind      },
        {"Alt+T", myForm->mySaveParseTree     },
        {"Alt+O", myForm->myOkButton          },
        {"Alt+C", myForm->myCancelButton      },
    };
    for (const auto& [key, control] : theKeys)
        connect(new QShortcut(QKeySequence(QString::fromLatin1(key)), this), &QShortcut::activated, control,
                [control = control]
                {
                    control->setFocus(Qt::ShortcutFocusReason);
                    if (auto* const button = qobject_cast<QAbstractButton*>(control))
                        button->click();
                });
}

void DtPreferencesDialog::addToolTips()
{
    const std::pair<QWidget*, const char*> theToolTips[] = {
        {myForm->myCreateIncludeDir, "Put the generated headers into a directory of this name"  },
        {myForm->myIncludeName,      "Name of the directory, below that of the generated files" },
        {myForm->myPrefixClassnames, "Put a text in front of the names of all generated classes"},
        {myForm->myPrefixName,       "The text that stands in front of the names"               },
        {myForm->myOkButton,         "Take the settings over and keep them (Alt+O)"             },
        {myForm->myCancelButton,     "Leave the settings as they were (Alt+C)"                  },
    };
    for (const auto& [control, toolTip] : theToolTips)
        control->setToolTip(QString::fromLatin1(toolTip));
    checkNames();
}

// What qxgen refuses is marked; it can be kept all the same.
void DtPreferencesDialog::checkNames()
{
    struct DtNameRow
    {
        QLineEdit* edit;
        bool (*fits)(const DtString& text);
        const char *usual, *fault;
    };
    const DtNameRow theNames[] = {
        {myForm->myNamespaceName, DtFitsNamespace, "Name of the namespace",
         "The name of a namespace is an identifier of C++ that is no keyword."},
        {myForm->myPrefixName,    DtFitsPrefix,    "The text that stands in front of the names",
         "A prefix is an identifier of C++."                                  },
    };
    for (const DtNameRow& row : theNames)
    {
        const bool isFaulty = !row.fits(row.edit->text().toUtf8().constData());
        row.edit->setToolTip(QString::fromLatin1(isFaulty ? row.fault : row.usual));
        row.edit->setProperty("isFaulty", isFaulty);
        row.edit->style()->unpolish(row.edit); // the style sheet looks at properties only then
        row.edit->style()->polish(row.edit);
    }
}

void DtPreferencesDialog::show()
{
    fillScripts();
    fillControls();
    ensurePolished();
    const int width = qMax(size().width(), minimumSizeHint().width());
    resize(width, qMax(height(), layout()->totalHeightForWidth(width))); // whatever the user's font
    QDialog::show();
}

const std::map<DtString, bool>& DtPreferencesDialog::generateScripts() const
{
    return myScripts->generateScripts();
}

void DtPreferencesDialog::setIncludeDir(const DtString& directory)
{
    myIncludeName = directory;
    fillText(myForm->myCreateIncludeDir, myForm->myIncludeName, myIncludeName);
}

void DtPreferencesDialog::setPrefix(const DtString& prefix)
{
    myPrefixName = prefix;
    fillText(myForm->myPrefixClassnames, myForm->myPrefixName, myPrefixName);
}

void DtPreferencesDialog::setIncludeStandardMIM(bool include)
{
    myIncludeStandardMIM = include;
    myInitializer.setIncludeStandardMIM(include);
}

DtPreferencesDialog::DtCodeGenBits DtPreferencesDialog::getCodeGenBitsEnum(const DtString& text)
{
    for (const DtBitsRow& row : theBits)
        if (text == row.text)
            return row.bits;
    return DtBits32;
}

DtString DtPreferencesDialog::getDtString(DtCodeGenBits bits)
{
    for (const DtBitsRow& row : theBits)
        if (bits == row.bits)
            return row.text;
    return "32";
}

void DtPreferencesDialog::cancelButtonPressed()
{
    reject();
}

void DtPreferencesDialog::reject()
{
    fillScripts(); // the run reads the list itself, which must not keep what was not confirmed
    QDialog::reject();
}

void DtPreferencesDialog::okButtonPressed()
{
    readControls();
    writeInitializer();
    accept();
}

void DtPreferencesDialog::includeStandardMIMBoxChecked()
{
    setIncludeStandardMIM(!myForm->myIncludeStandardMIM->isChecked());
}

void DtPreferencesDialog::readControls()
{
    myNamespaceName = readText(myForm->myUseNamespace, myForm->myNamespaceName);
    myIncludeName = readText(myForm->myCreateIncludeDir, myForm->myIncludeName);
    myPrefixName = readText(myForm->myPrefixClassnames, myForm->myPrefixName);
    myIncludeStandardMIM = myForm->myIncludeStandardMIM->isChecked();
    myGenerateExamples = myForm->myGenerateExamples->isChecked();
    myGenerate64Bit = myForm->myGenerate64Bit->isChecked();
    myGenerateErrors = myForm->myGenerateErrors->isChecked();
    myDumpParseTree = myForm->mySaveParseTree->isChecked();
    myGenerateDis = myForm->myGenerateDis->isChecked();
    myFirstPduKind = myForm->myFirstPduKind->value();
    myMapRtiObjectIdToGlobalId = myForm->myMapRtiObjectId->isChecked();
}

namespace
{
// Writes a setting only when it differs, so that an unchanged configuration is not touched.
template <typename Get, typename Set, typename Value>
void writeChanged(DtCodeGenInitializer& initializer, Get get, Set set, const Value& value)
{
    if ((initializer.*get)() != value)
        (initializer.*set)(value);
}
} // namespace

void DtPreferencesDialog::writeInitializer()
{
    using DtInit = DtCodeGenInitializer;
    writeChanged(myInitializer, &DtInit::namespaceName, &DtInit::setNamespaceName, myNamespaceName);
    writeChanged(myInitializer, &DtInit::includeName, &DtInit::setIncludeName, myIncludeName);
    writeChanged(myInitializer, &DtInit::prefixName, &DtInit::setPrefixName, myPrefixName);
    writeChanged(myInitializer, &DtInit::includeStandardMIM, &DtInit::setIncludeStandardMIM, myIncludeStandardMIM);
    writeChanged(myInitializer, &DtInit::generateExamples, &DtInit::setGenerateExamples, myGenerateExamples);
    writeChanged(myInitializer, &DtInit::generate64Bit, &DtInit::setGenerate64Bit, myGenerate64Bit);
    writeChanged(myInitializer, &DtInit::generateErrors, &DtInit::setGenerateErrors, myGenerateErrors);
    writeChanged(myInitializer, &DtInit::dumpParseTree, &DtInit::setDumpParseTree, myDumpParseTree);
    writeChanged(myInitializer, &DtInit::generateDis, &DtInit::setGenerateDis, myGenerateDis);
    writeChanged(myInitializer, &DtInit::firstPduKind, &DtInit::setFirstPduKind, myFirstPduKind);
    writeChanged(myInitializer, &DtInit::mapRtiObjIdToGlobalId, &DtInit::setMapRtiObjIdToGlobalId,
                 myMapRtiObjectIdToGlobalId);
    writeChanged(myInitializer, &DtInit::scriptMap, &DtInit::setScriptMap, generateScripts());
}
