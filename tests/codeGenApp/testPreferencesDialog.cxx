// The preferences: what the dialog reads from the configuration and what OK and Cancel do to it.

#include "registerTest.h"

#include "codeGenApp/codeGenInitializer.h"
#include "codeGenApp/generateListView.h"
#include "codeGenApp/preferencesDialog.h"
#include "testSupport.h"

#include <QtCore/QTemporaryDir>
#include <QtGui/QTextDocument>
#include <QtTest/QtTest>
#include <QtWidgets/QCheckBox>
#include <QtWidgets/QHeaderView>
#include <QtWidgets/QLabel>
#include <QtWidgets/QLineEdit>
#include <QtWidgets/QPushButton>
#include <QtWidgets/QSpinBox>

#include <limits>

namespace
{
// A dialog over a configuration of these texts.
struct DtPreferences
{
    explicit DtPreferences(const DtString& includeName = DtString())
    {
        initializer.parseConfigFile(QX_SOURCE_DIR "/data/config/codeGenConfig.xml");
        initializer.setIncludeName(includeName);
        dialog = std::make_unique<DtPreferencesDialog>(initializer);
    }
    template <typename Control>
    Control& control(const char* name) const
    {
        auto* const found = dialog->findChild<Control*>(name);
        if (found == nullptr)
            qFatal("no control %s", name);
        return *found;
    }
    // The check box with this text.
    QCheckBox& box(const char* text) const
    {
        for (QCheckBox* each : dialog->findChildren<QCheckBox*>())
            if (each->text() == text)
                return *each;
        qFatal("no check box %s", text);
    }
    DtGenerateListView& scripts() const { return *dialog->findChild<DtGenerateListView*>(); }
    QByteArray stored() const
    {
        const QTemporaryDir directory;
        DtCodeGenInitializer copy(initializer);
        copy.saveConfigFile((directory.path() + "/config.xml").toUtf8().constData());
        return readTextFile(directory.path() + "/config.xml");
    }

    DtCodeGenInitializer initializer;
    std::unique_ptr<DtPreferencesDialog> dialog;
};

struct DtFlagRow
{
    const char* text;
    bool (DtPreferencesDialog::*setting)() const;
    bool (DtCodeGenInitializer::*stored)() const;
};
using DtDialog = DtPreferencesDialog;
using DtInit = DtCodeGenInitializer;
const DtFlagRow theFlags[] = {
    {"64-bit Linux Makefile",                       &DtDialog::generate64Bit,            &DtInit::generate64Bit     },
    {"Generate Examples",                           &DtDialog::generateExamples,         &DtInit::generateExamples  },
    {"Map RTIObjectID to DtGlobalObjectDesignator", &DtDialog::mapRtiObjectIdToGlobalId,
     &DtInit::mapRtiObjIdToGlobalId                                                                                 },
    {"Generate #error for undecodable attributes",  &DtDialog::generateErrors,           &DtInit::generateErrors    },
    {"Include HLA Standard MIM",                    &DtDialog::includeStandardMIM,       &DtInit::includeStandardMIM},
    {"Generate DIS PDUs",                           &DtDialog::generateDis,              &DtInit::generateDis       },
    {"Save Parse Tree",                             &DtDialog::dumpParseTree,            &DtInit::dumpParseTree     },
};

struct DtTextRow
{
    const char *box, *edit;
    const DtString& (DtPreferencesDialog::*setting)() const;
    const DtString& (DtCodeGenInitializer::*stored)() const;
};
const DtTextRow theTexts[] = {
    {"Use Namespace",            "myNamespaceName", &DtDialog::namespaceName, &DtInit::namespaceName},
    {"Create Include Directory", "myIncludeName",   &DtDialog::includeName,   &DtInit::includeName  },
    {"Prefix Classnames",        "myPrefixName",    &DtDialog::prefixName,    &DtInit::prefixName   },
};
} // namespace

class TestPreferencesDialog : public QObject
{
    Q_OBJECT

private:
    int myLevel = 0;

private Q_SLOTS:
    void init() { myLevel = DtNotifyLevel; }
    void cleanup() { DtNotifyLevel = myLevel; }

    void bitsHaveTheirTexts()
    {
        QCOMPARE(int(DtPreferencesDialog::getCodeGenBitsEnum("8")), 0);
        QCOMPARE(int(DtPreferencesDialog::getCodeGenBitsEnum("16")), 1);
        QCOMPARE(int(DtPreferencesDialog::getCodeGenBitsEnum("32")), 2);
        QCOMPARE(int(DtPreferencesDialog::getCodeGenBitsEnum("64")), 3);
        QCOMPARE(int(DtPreferencesDialog::getCodeGenBitsEnum("12")), 2);
        for (const char* text : {"8", "16", "32", "64"})
            QCOMPARE(DtDialog::getDtString(DtDialog::getCodeGenBitsEnum(text)).c_str(), text);
        QCOMPARE(DtDialog::getDtString(static_cast<DtDialog::DtCodeGenBits>(2)).c_str(), "32");
        QCOMPARE(DtDialog::getDtString(static_cast<DtDialog::DtCodeGenBits>(0)).c_str(), "8");
    }

    void settingsComeFromTheConfiguration()
    {
        DtPreferences preferences("inc");
        QCOMPARE(preferences.dialog->windowTitle(), QString("Preferences"));
        QCOMPARE(preferences.dialog->objectName(), QString("QtPreferencesDialog"));
        QCOMPARE(preferences.dialog->includeName().c_str(), "inc");
        for (const DtFlagRow& row : theFlags)
            QCOMPARE((*preferences.dialog.*row.setting)(), (preferences.initializer.*row.stored)());
        QCOMPARE(preferences.dialog->generateScripts(), preferences.initializer.scriptMap());
        QCOMPARE(preferences.dialog->generateScripts().at("genCpp.txt"), true);
    }

    void controlsHaveTheirTexts_data()
    {
        QTest::addColumn<QString>("toolTip");
        const QString ofNamespace = "Wrap all classes in a namespace. This is particularly useful if the Objects and "
                                    "Interaction names will conflict with Quorvex's standard API";
        const QString ofMakefile = "Generated Makefile supporting 64-bit architectures.\n"
                                   "If unselected, this will generate a 32-bit architecture.";
        const QString ofExamples = "Generate simple talk/listen examples for each Object and Interaction class";
        const QString ofDesignator =
            "Use the internal Quorvex concept of Global Object Designator for RTI Object names. Checking this will "
            "produce an interface more consistant with the standard Quorvex API";
        const QString ofError = "Use #error in output whenever code can't be generated. If unset, use #include to a "
                                "user generated file. Unsetting this makes it easier to repeatedly generate code.";
        const QString ofMim = "Decides whether the Code Generator includes the Standard HLA MIM file "
                              "(HLAstandardMIM.xml). If an HLA1516e FOM is selected, the HLA standard MIM will also be "
                              "included in the project. This is true by default.";
        const QString ofPdus = "If checked, Experimental DIS PDUs will be created for each object and interaction. "
                               "This is an experimental feature and will likely not work for many object classes.";
        const QString ofParseTree = "If Checked, the internal parse tree of the FOM will be saved in the output "
                                    "directory. This is useful for debugging if the FOM cannot be generated properly";
        const struct
        {
            const char* name;
            QString toolTip;
        } theRows[] = {
            {"Use Namespace",                               ofNamespace                                                },
            {"Create Include Directory",                    "Put the generated headers into a directory of this name"  },
            {"Prefix Classnames",                           "Put a text in front of the names of all generated classes"},
            {"64-bit Linux Makefile",                       ofMakefile                                                 },
            {"Generate Examples",                           ofExamples                                                 },
            {"Map RTIObjectID to DtGlobalObjectDesignator", ofDesignator                                               },
            {"Generate #error for undecodable attributes",  ofError                                                    },
            {"Include HLA Standard MIM",                    ofMim                                                      },
            {"Generate DIS PDUs",                           ofPdus                                                     },
            {"Save Parse Tree",                             ofParseTree                                                },
        };
        for (const auto& row : theRows)
            QTest::newRow(row.name) << row.toolTip;
    }
    void controlsHaveTheirTexts()
    {
        QFETCH(QString, toolTip);
        DtPreferences preferences;
        const QCheckBox& box = preferences.box(QTest::currentDataTag());
        QTextDocument shown; // the text of a rich one
        shown.setHtml(box.toolTip());
        QCOMPARE(shown.toPlainText(), toolTip);
        QCOMPARE(box.toolTip().contains("font-size:8pt"), box.text() == "64-bit Linux Makefile");
    }

    void furtherTextsStandAsTheyAre()
    {
        DtPreferences preferences;
        QCOMPARE(preferences.control<QSpinBox>("myFirstPduKind").toolTip(),
                 QString("The PDU Kind to use for the fist PDU. Incremented for each subsiquent PDU."));
        QStringList texts;
        for (const QLabel* label : preferences.dialog->findChildren<QLabel*>())
            texts += label->text();
        for (const char* text :
             {"Namespace Name:", "Directory Name", "Prefix", "First PDU Kind", "Select items to generate.",
              "Experimental features: This section contains capabilities we have added for a specific internal task. "
              "They are here to help you get your work done. However, they may not be finished and are not well "
              "supported. Additionally we may remove them in future releases. ",
              "Debug features: This section contains capabilities we have added to help you, or us, understand how the "
              "code generator is working on a specific FOM. If you run into problems with your code, check this box "
              "and send us the file that is generated. "})
            QVERIFY2(texts.contains(text), text);
        QStringList buttons;
        for (const QPushButton* button : preferences.dialog->findChildren<QPushButton*>())
            buttons += button->text();
        QCOMPARE(buttons.join(' '), QString("OK Cancel"));
    }

    void tabFollowsTheRows()
    {
        DtPreferences preferences("inc");
        preferences.dialog->show();
        QStringList order;
        const QWidget* const first = &preferences.box("Use Namespace");
        for (const QWidget* each = first; order.size() < 30 && (each != first || order.isEmpty());
             each = each->nextInFocusChain())
            if ((each->focusPolicy() & Qt::TabFocus) != 0 && each->isVisible() && each->focusProxy() == nullptr &&
                qobject_cast<QAbstractSpinBox*>(each->parentWidget()) == nullptr)
                order += each->objectName().isEmpty() ? each->accessibleName() : each->objectName();
        QCOMPARE(order.join(' '),
                 QString("myUseNamespace myNamespaceName myCreateIncludeDir myIncludeName myPrefixClassnames "
                         "myPrefixName myGenerate64Bit myGenerateExamples myMapRtiObjectId myGenerateErrors "
                         "myIncludeStandardMIM Scripts myGenerateDis myFirstPduKind mySaveParseTree myOkButton "
                         "myCancelButton"));
    }

    void nothingIsCutOff()
    {
        DtPreferences preferences("inc");
        preferences.dialog->show();
        for (const QCheckBox* box : preferences.dialog->findChildren<QCheckBox*>())
            QVERIFY2(box->width() >= box->sizeHint().width(), qPrintable(box->text()));
        for (const QLabel* label : preferences.dialog->findChildren<QLabel*>())
        {
            const int needed = label->wordWrap() ? label->heightForWidth(label->width()) : label->sizeHint().height();
            const QString sizes = QString(": %1 of %2").arg(label->height()).arg(needed);
            QVERIFY2(label->height() >= needed, qPrintable(label->text() + sizes));
        }
        const QHeaderView& header = *preferences.scripts().header();
        QVERIFY(header.sectionSize(0) >= 36);
        QVERIFY(header.sectionSize(0) >= header.sectionSizeHint(0));
    }

    void textIsEnabledByItsBox()
    {
        DtPreferences preferences("inc");
        QVERIFY(preferences.box("Create Include Directory").isChecked());
        QVERIFY(preferences.control<QLineEdit>("myIncludeName").isEnabled());
        for (const char* empty : {"Use Namespace", "Prefix Classnames"})
            QVERIFY(!preferences.box(empty).isChecked());
        QVERIFY(!preferences.control<QLineEdit>("myPrefixName").isEnabled());
        preferences.box("Prefix Classnames").setChecked(true);
        QVERIFY(preferences.control<QLineEdit>("myPrefixName").isEnabled());
    }

    void okStoresEachText()
    {
        for (const DtTextRow& row : theTexts)
        {
            DtPreferences preferences;
            preferences.dialog->show();
            preferences.box(row.box).setChecked(true);
            preferences.control<QLineEdit>(row.edit).setText("harbour");
            preferences.dialog->okButtonPressed();
            QVERIFY(!preferences.dialog->isVisible());
            QCOMPARE((*preferences.dialog.*row.setting)().c_str(), "harbour");
            QCOMPARE((preferences.initializer.*row.stored)().c_str(), "harbour");
            preferences.box(row.box).setChecked(false); // the text in the edit does not count now
            preferences.dialog->okButtonPressed();
            QCOMPARE((*preferences.dialog.*row.setting)().c_str(), "");
            QCOMPARE((preferences.initializer.*row.stored)().c_str(), "");
        }
    }

    void okStoresEachFlag()
    {
        for (const DtFlagRow& row : theFlags)
        {
            DtPreferences preferences;
            const bool before = (*preferences.dialog.*row.setting)();
            preferences.box(row.text).setChecked(!before);
            preferences.dialog->okButtonPressed();
            QVERIFY2((*preferences.dialog.*row.setting)() == !before, row.text);
            QVERIFY2((preferences.initializer.*row.stored)() == !before, row.text);
        }
    }

    void okStoresPduKindAndScripts()
    {
        DtPreferences preferences;
        preferences.control<QSpinBox>("myFirstPduKind").setValue(40000);
        preferences.scripts().setItemGenerated(preferences.scripts().topLevelItem(0), false);
        preferences.dialog->okButtonPressed();
        QCOMPARE(preferences.dialog->firstPduKind(), 40000);
        QCOMPARE(preferences.initializer.firstPduKind(), 40000);
        QCOMPARE(preferences.initializer.scriptMap().at("genCpp.txt"), false);
    }

    void negativePduKindSurvivesOk()
    {
        for (const int kind : {-1, -40000, std::numeric_limits<int>::min()})
        {
            DtPreferences preferences;
            preferences.initializer.setFirstPduKind(kind);
            preferences.dialog = std::make_unique<DtPreferencesDialog>(preferences.initializer);
            const QByteArray before = preferences.stored();
            preferences.dialog->show();
            preferences.dialog->okButtonPressed();
            QCOMPARE(preferences.dialog->firstPduKind(), kind);
            QCOMPARE(preferences.initializer.firstPduKind(), kind);
            QCOMPARE(preferences.stored(), before);
        }
    }

    void okWithoutAChangeLeavesTheStoreAlone()
    {
        DtPreferences preferences("inc");
        const QByteArray before = preferences.stored();
        preferences.dialog->show();
        preferences.dialog->okButtonPressed();
        QVERIFY(!before.isEmpty());
        QCOMPARE(preferences.stored(), before);
    }

    void okButtonActsWhenPressed()
    {
        DtPreferences preferences;
        preferences.dialog->show();
        preferences.box("Generate DIS PDUs").setChecked(true);
        for (QPushButton* button : preferences.dialog->findChildren<QPushButton*>())
            if (button->text() == "OK")
                Q_EMIT button->pressed();
        QVERIFY(preferences.initializer.generateDis());
    }

    void cancelKeepsTheSettings()
    {
        DtPreferences preferences("inc");
        preferences.dialog->show();
        preferences.box("Save Parse Tree").setChecked(true);
        preferences.control<QLineEdit>("myIncludeName").setText("other");
        preferences.scripts().setItemGenerated(preferences.scripts().topLevelItem(0), false);
        preferences.dialog->cancelButtonPressed();
        QVERIFY(!preferences.dialog->isVisible());
        QVERIFY(!preferences.dialog->dumpParseTree() && !preferences.initializer.dumpParseTree());
        QCOMPARE(preferences.dialog->includeName().c_str(), "inc");
        QCOMPARE(preferences.dialog->generateScripts().at("genCpp.txt"), true);
        preferences.dialog->show();
        QVERIFY(!preferences.box("Save Parse Tree").isChecked());
        QCOMPARE(preferences.control<QLineEdit>("myIncludeName").text(), QString("inc"));
        preferences.dialog->cancelButtonPressed();
    }

    void cancelKeepsTheNewMimSetting()
    {
        DtPreferences preferences;
        preferences.dialog->show();
        QCheckBox& box = preferences.box("Include HLA Standard MIM");
        QVERIFY(box.isChecked());
        box.click(); // pressed() comes ahead of the toggle
        QVERIFY(!box.isChecked());
        QVERIFY(!preferences.dialog->includeStandardMIM() && !preferences.initializer.includeStandardMIM());
        preferences.dialog->cancelButtonPressed();
        QVERIFY(!preferences.dialog->includeStandardMIM() && !preferences.initializer.includeStandardMIM());
        preferences.dialog->show();
        QVERIFY(!box.isChecked());
        preferences.dialog->cancelButtonPressed();
    }

    void valuesFromElsewhereShowAndAreNotStored()
    {
        DtPreferences preferences;
        const QByteArray before = preferences.stored();
        preferences.dialog->setIncludeDir("generated");
        preferences.dialog->setPrefix("Port");
        QCOMPARE(preferences.dialog->includeName().c_str(), "generated");
        QCOMPARE(preferences.dialog->prefixName().c_str(), "Port");
        QVERIFY(preferences.box("Prefix Classnames").isChecked());
        QCOMPARE(preferences.control<QLineEdit>("myPrefixName").text(), QString("Port"));
        QCOMPARE(preferences.stored(), before);
        preferences.dialog->setPrefix("");
        QVERIFY(!preferences.box("Prefix Classnames").isChecked());
        QVERIFY(!preferences.control<QLineEdit>("myPrefixName").isEnabled());
    }

    void keysReachTheControls()
    {
        const DtPreferences preferences;
        preferences.dialog->show();
        QApplication::setActiveWindow(preferences.dialog.get());
        QVERIFY(QTest::qWaitForWindowActive(preferences.dialog.get()));
        QCheckBox& examples = preferences.box("Generate Examples");
        const bool before = examples.isChecked();
        QTest::keyClick(preferences.dialog.get(), Qt::Key_E, Qt::AltModifier);
        QCOMPARE(examples.isChecked(), !before);
        QCOMPARE(examples.text(), QString("Generate Examples"));
        const bool mim = preferences.initializer.includeStandardMIM();
        QTest::keyClick(preferences.dialog.get(), Qt::Key_H, Qt::AltModifier);
        QCOMPARE(preferences.initializer.includeStandardMIM(), !mim); // at once, as by a click
        QTest::keyClick(preferences.dialog.get(), Qt::Key_L, Qt::AltModifier);
        QVERIFY(preferences.scripts().hasFocus());
        QTest::keyClick(preferences.dialog.get(), Qt::Key_C, Qt::AltModifier);
        QVERIFY(!preferences.dialog->isVisible());
    }

    void everyControlHasAToolTip()
    {
        const DtPreferences preferences;
        for (const QWidget* control : preferences.dialog->findChildren<QWidget*>())
            if (qobject_cast<const QCheckBox*>(control) != nullptr ||
                qobject_cast<const QPushButton*>(control) != nullptr || control->objectName() == "myNamespaceName" ||
                control->objectName() == "myPrefixName" || control->objectName() == "myIncludeName")
                QVERIFY2(!control->toolTip().isEmpty(), qPrintable(control->objectName()));
    }

    void scriptTellsWhatItMakes()
    {
        QTemporaryDir directory;
        writeTextFile(directory.path() + "/data/own.txt",
                      "# What it makes. And more,\n# and more.\n#\n# Last.\nwrite\n");
        QDir(directory.path()).mkpath("bin");
        const DtInDirectory work(directory.path() + "/bin");
        DtGenerateListView list;
        for (const char* script : {"genCpp.txt", "none.txt", "own.txt"})
            list.addItem(script, true);
        QCOMPARE(list.topLevelItem(0)->toolTip(1),
                 QString("Classes of C++ for the selected classes, and what builds them."));
        QCOMPARE(list.topLevelItem(1)->toolTip(1), QString());
        QCOMPARE(list.topLevelItem(2)->toolTip(1), QString("What it makes."));
    }

    void pduKindNeedsDis()
    {
        const DtPreferences preferences;
        preferences.dialog->show();
        auto& kind = preferences.control<QSpinBox>("myFirstPduKind");
        QVERIFY(!kind.isEnabled());
        preferences.box("Generate DIS PDUs").setChecked(true);
        QVERIFY(kind.isEnabled());
    }

    void nameThatIsNoneIsMarkedAndKept_data()
    {
        QTest::addColumn<QString>("edit");
        QTest::addColumn<QString>("text");
        QTest::addColumn<bool>("isFaulty");
        for (const char* text : {"", "port", "_a1"})
            QTest::addRow("namespace %s", text) << "myNamespaceName" << text << false;
        for (const char* text : {"1a", "a b", "a-b", "a::b", ":", "class"})
            QTest::addRow("namespace %s", text) << "myNamespaceName" << text << true;
        for (const char* text : {"", "Port", "P2", "_x", "class"})
            QTest::addRow("prefix %s", text) << "myPrefixName" << text << false;
        for (const char* text : {"9x", "a b", "x-", "a::b"})
            QTest::addRow("prefix %s", text) << "myPrefixName" << text << true;
    }

    void nameThatIsNoneIsMarkedAndKept()
    {
        QFETCH(QString, edit);
        QFETCH(QString, text);
        QFETCH(bool, isFaulty);
        DtPreferences preferences;
        auto& line = preferences.control<QLineEdit>(qPrintable(edit));
        const QString usual = line.toolTip();
        preferences.box(edit == "myPrefixName" ? "Prefix Classnames" : "Use Namespace").setChecked(true);
        line.setText(text);
        QCOMPARE(line.property("isFaulty").toBool(), isFaulty);
        QCOMPARE(line.toolTip() != usual, isFaulty);
        preferences.dialog->okButtonPressed();
        const DtString kept =
            edit == "myPrefixName" ? preferences.initializer.prefixName() : preferences.initializer.namespaceName();
        QCOMPARE(QString(kept.c_str()), text);
    }
};

QX_REGISTER_TEST(TestPreferencesDialog)
#include "testPreferencesDialog.moc"
