#include "codeGenApp/preferencesDialog.h"

#include "codeGenApp/codeGenInitializer.h"
#include "codeGenApp/generateListView.h"
#include "ui_preferencesDialog.h"

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
