// A newcomer's first hour with the window, from the new project to generating from a project that was loaded again.

#include "registerTest.h"

#include "codeGenApp/aboutBox.h"
#include "codeGenApp/codeEditor.h"
#include "codeGenApp/customCodeGui.h"
#include "progressWatch.h"
#include "windowFixture.h"

namespace
{
const char theOwnCode[] = "    // by a newcomer: \xC3\xA4 \xE2\x82\xAC\n    return true;";

QStringList sortedLines(const QString& text)
{
    QStringList lines = text.split('\n');
    lines.sort();
    return lines;
}

QStringList formTexts(const QDialog& dialog)
{
    QStringList texts;
    for (const QAbstractButton* button : dialog.findChildren<QAbstractButton*>())
        texts += button->text();
    return texts;
}
} // namespace

class TestNewcomer : public QObject, private DtWindowFixture
{
    Q_OBJECT

private:
    void choose(const char* text) const { action(text).trigger(); }
    void chooseFile(const char* text, const QString& file, const char* title) const
    {
        myDialogs->setAnswers({file});
        choose(text);
        QCOMPARE(myDialogs->takeSeen(), QStringList(title));
    }
    void click(QTreeWidget& list, const char* text, Qt::KeyboardModifiers modifiers = Qt::NoModifier) const
    {
        QTreeWidgetItem* const item = itemOf(list, text);
        QVERIFY2(item != nullptr, text);
        list.scrollToItem(item);
        const QRect place = list.visualItemRect(item); // may reach beyond what is shown
        QTest::mouseClick(list.viewport(), Qt::LeftButton, modifiers, QPoint(place.left() + 5, place.center().y()));
    }
    void pressMiddleButton(int which) const
    {
        QTest::mouseClick(myWindow->findChildren<QPushButton*>("MiddleButton").at(which), Qt::LeftButton);
    }
    QAbstractButton& button(const QWidget& window, const char* text) const
    {
        for (QAbstractButton* each : window.findChildren<QAbstractButton*>())
            if (each->text() == text)
                return *each;
        qFatal("no button %s", text);
    }
    void clickBox(const QDialog& dialog, const char* text) const
    {
        QAbstractButton& box = button(dialog, text);
        const bool before = box.isChecked();
        QTest::mouseClick(&box, Qt::LeftButton, Qt::NoModifier, QPoint(8, box.height() / 2));
        QCOMPARE(box.isChecked(), !before);
    }
    QByteArray generated() const
    {
        QByteArray text;
        for (const QString& name : filesBelow(path("out")))
            text += name.toUtf8() + "\n" + readTextFile(path("out/") + name);
        return text;
    }
    QByteArray project() const { return readTextFile(path("models/first.qxproj")); }

    void startsWithAProject() const
    {
        QVERIFY(!action("Import FOM").isEnabled() && !action("Save Project").isEnabled());
        choose("Generate");
        QCOMPARE(status(), QString("No file loaded... Cannot generate files."));
        choose("New Project"); // changes the mind
        QCOMPARE(myDialogs->takeSeen(), QStringList("New Project File"));
        QVERIFY(!action("Import FOM").isEnabled());
        chooseFile("New Project", path("models/first"), "New Project File");
        QVERIFY(action("Import FOM").isEnabled() && action("Save Project").isEnabled());
        QVERIFY(project().contains("<baseName name=\"first\"/>"));
    }
    void importsAModel(const QString& file) const
    {
        chooseFile("Import FOM", file, "Open File");
        QCOMPARE(myWindow->windowTitle(), "Quorvex Code Generator - " + file);
        QVERIFY(printList(left()).startsWith("Objects\n HLAmanager\n"));
    }
    void choosesClasses(const char* wanted, const char* unwanted) const
    {
        click(left(), wanted);
        click(left(), unwanted, Qt::ControlModifier);
        pressMiddleButton(0);
        QVERIFY(itemOf(right(), wanted) != nullptr && itemOf(right(), unwanted) != nullptr);
        click(right(), unwanted);
        pressMiddleButton(1);
        QVERIFY(itemOf(right(), unwanted) == nullptr && itemOf(right(), wanted) != nullptr);
        QVERIFY(recorded().contains(wanted) && !recorded().contains(unwanted));
    }
    void takesEverything() const
    {
        QApplication::setActiveWindow(myWindow.get()); // which the platform leaves to the test behind a dialog
        left().setFocus();
        choose("Select All");
        pressMiddleButton(0);
        QCOMPARE(sortedLines(printList(right())), sortedLines(printList(left())));
    }
    void goesThroughThePreferences() const
    {
        choose("Preferences...");
        const DtPreferencesDialog& dialog = *myWindow->preferences();
        QTRY_VERIFY(dialog.isVisible());
        for (const QString& text : formTexts(dialog))
            if (text != "OK" && text != "Cancel" && !text.isEmpty())
                clickBox(dialog, text.toUtf8().constData());
        for (const char* name : {"myNamespaceName", "myIncludeName", "myPrefixName"})
        {
            auto* const edit = dialog.findChild<QLineEdit*>(name);
            QVERIFY(edit->isEnabled());
            QTest::keyClicks(edit, "port");
        }
        dialog.findChild<QSpinBox*>()->setValue(7);
        QTest::mouseClick(&button(dialog, "OK"), Qt::LeftButton);
        QVERIFY(!dialog.isVisible());
        for (const DtString& name : {dialog.namespaceName(), dialog.includeName(), dialog.prefixName()})
            QCOMPARE(name.c_str(), "port");
        QCOMPARE(dialog.firstPduKind(), 7);
        QVERIFY(dialog.generateDis() && dialog.dumpParseTree() && dialog.generateErrors());
        QVERIFY(!dialog.generate64Bit() && !dialog.includeStandardMIM() && !dialog.mapRtiObjectIdToGlobalId());
    }
    // As they were, for a small run.
    void putsThePreferencesBack() const
    {
        choose("Preferences...");
        const DtPreferencesDialog& dialog = *myWindow->preferences();
        for (const QString& text : formTexts(dialog))
            if (text != "OK" && text != "Cancel" && text != "Generate Examples" && !text.isEmpty())
                clickBox(dialog, text.toUtf8().constData());
        static_cast<QCheckBox&>(button(dialog, "Generate Examples")).setChecked(false);
        QTest::mouseClick(&button(dialog, "OK"), Qt::LeftButton);
        QCOMPARE(dialog.namespaceName().c_str(), "");
    }
    void generatesAndCancels() const
    {
        choose("Generate"); // asks where to, and is told nothing
        QCOMPARE(myDialogs->takeSeen(), QStringList("Choose an Output Directory"));
        QVERIFY(filesBelow(path("out")).isEmpty());
        chooseFile("Choose Output Directory...", path("out"), "Choose an Output Directory");
        {
            int before = 0;
            DtCancelAfter user(3, [&] { before = filesBelow(path("out")).size(); });
            choose("Generate");
            QVERIFY(user.isDone());
            QVERIFY(filesBelow(path("out")).size() <= before + 2); // a datatype's source comes with its header
        }
        QVERIFY(!QFile::exists(path("out/cpp\\Makefile")));
        DtCancelAfter nobody(-1);
        choose("Generate");
        QVERIFY(nobody.files().size() > 15);
        QVERIFY(QFile::exists(path("out/cpp\\Makefile")));
        QVERIFY(project().contains("<fom name=")); // saved on the way
    }
    void customizesAnEncoder(const char* className, const char* key) const
    {
        right().setCurrentItem(itemOf(right(), className));
        QTest::keyClick(&right(), Qt::Key_F2);
        QWidget* const editor = myWindow->customCodeGui();
        QVERIFY(editor != nullptr && editor->isVisible());
        auto* const list = editor->findChild<QTreeWidget*>();
        list->setCurrentItem(itemOf(*list, key));
        auto* const text = editor->findChild<CodeEditor*>("myEncEditor");
        QVERIFY(text->isEnabled());
        text->selectAll();
        text->insertPlainText(QString::fromUtf8(theOwnCode));
        QVERIFY(itemOf(*list, (QByteArray("*") + key).constData()) != nullptr);
        QTest::mouseClick(&button(*editor, "Save Changes"), Qt::LeftButton);
        QVERIFY(itemOf(*list, key) != nullptr);
        editor->close();
        QTRY_VERIFY(myWindow->customCodeGui() == nullptr);
        QVERIFY(project().contains(key));
    }
    void savesAndCloses() const
    {
        choose("Save Project");
        choose("Close");
        QCOMPARE(myWindow->windowTitle(), QString("Quorvex Code Generator - No File Loaded"));
        QCOMPARE(printList(left()) + printList(right()), QString());
        choose("Generate");
        QCOMPARE(status(), QString("No file loaded... Cannot generate files."));
    }
    void looksAround() const
    {
        const QString dark = myWindow->styleSheet();
        choose("&Toggle Dark Mode...");
        QVERIFY(myWindow->styleSheet() != dark);
        choose("&Toggle Dark Mode...");
        QCOMPARE(myWindow->styleSheet(), dark);
        choose("About Quorvex Code Generator");
        const DtAboutBox& box = *myWindow->aboutBox();
        QTRY_VERIFY(box.isVisible());
        QGuiApplication::clipboard()->clear();
        QTest::mouseClick(&button(box, "Copy Image to Clipboard"), Qt::LeftButton);
        QCOMPARE(QGuiApplication::clipboard()->pixmap().size(), box.size());
        QTest::mouseClick(&button(box, "Close"), Qt::LeftButton);
        QVERIFY(!box.isVisible());
    }

private Q_SLOTS:
    void init() { open(); }
    void cleanup() { close(); }

    void firstHour_data()
    {
        QTest::addColumn<QString>("file");
        QTest::addColumn<QByteArray>("wanted");
        QTest::addColumn<QByteArray>("unwanted");
        QTest::addColumn<QByteArray>("key");
        const QString sample(QX_SOURCE_DIR "/data/samples/sample.xml");
        const QString published(QX_SHARED_DIR "/models/1516-2010/rpr2/RPR-Base_v2.0.xml");
        const struct
        {
            const char* name;
            QString file;
            QByteArray wanted, unwanted, attribute;
        } theRows[] = {
            {"sample",           sample,    "CargoShip",      "Beacon",     "PortEntity.Vessel.CargoShip.Draught"},
            {"published module", published, "EmbeddedSystem", "BaseEntity", "EmbeddedSystem.RelativePosition"    },
        };
        for (const auto& row : theRows)
            QTest::newRow(row.name) << row.file << row.wanted << row.unwanted << "HLAobjectRoot." + row.attribute;
    }
    void firstHour()
    {
        QFETCH(QString, file);
        QFETCH(QByteArray, wanted);
        QFETCH(QByteArray, unwanted);
        QFETCH(QByteArray, key);
        if (!QFile::exists(file))
            QSKIP("The published module is not there.");
        myWindow->manageIcons();
        show();
        startsWithAProject();
        importsAModel(QString::fromUtf8(myProgram->copiedModel(file).c_str()));
        choosesClasses(wanted.constData(), unwanted.constData());
        goesThroughThePreferences();
        putsThePreferencesBack();
        generatesAndCancels();
        QVERIFY(!generated().contains(theOwnCode));
        customizesAnEncoder(wanted.constData(), key.constData());
        choose("Generate");
        const QByteArray custom = generated();
        QVERIFY(custom.contains(theOwnCode));
        savesAndCloses();
        chooseFile("Load Project", path("models/first.qxproj"), "Open Project File");
        QVERIFY(itemOf(right(), wanted.constData()) != nullptr && itemOf(right(), unwanted.constData()) == nullptr);
        QDir(path("out")).removeRecursively();
        QDir().mkpath(path("out"));
        myDialogs->setAnswers({path("out")});
        choose("Generate"); // a load forgets where the files go
        QCOMPARE(myDialogs->takeSeen(), QStringList("Choose an Output Directory"));
        QVERIFY(generated() == custom);
        takesEverything();
        looksAround();
    }
};

QX_REGISTER_TEST(TestNewcomer)
#include "testNewcomer.moc"
