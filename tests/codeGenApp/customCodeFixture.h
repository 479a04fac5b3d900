#ifndef TESTS_CUSTOM_CODE_FIXTURE_H
#define TESTS_CUSTOM_CODE_FIXTURE_H

#include "codeGenApp/codeEditor.h"
#include "codeGenApp/customCodeGui.h"
#include "codeGenApp/listViewManager.h"
#include "fileGenerator/omtProject.h"
#include "scratchProgram.h"
#include "smallModels.h"

// The custom code window over a project with a small model. The tests of a class share a copy of the program's data;
// one that changes the data opens the program on data of its own.
class DtCustomCodeFixture
{
protected:
    void openProgram() { openProgramOn(std::make_unique<DtScratchProgram>(myTree)); }
    void openProgramOnOwnData()
    {
        closeProgram();
        openProgramOn(std::make_unique<DtScratchProgram>());
    }
    void openProgramOn(std::unique_ptr<DtScratchProgram> program)
    {
        myProgram = std::move(program);
        QDir().mkpath(myProgram->path("models"));
        myWindow = myProgram->makeWindow();
        myWindow->preferences()->setIncludeStandardMIM(false);
        myWindow->newOmtProject(DtFilename(myProgram->bytes(myProgram->path("models/p.qxproj"))));
        QCOMPARE(myWindow->loadFile(myProgram->model("m.xml", modelText()), ""), 1);
        myWindow->addAllObjectInteractions();
    }
    void closeProgram()
    {
        delete myGui;
        myWindow.reset();
        myProgram.reset();
    }
    // Opens the window on the item at the end of a path of names, from the top item down.
    void open(const char* path)
    {
        delete myGui;
        myGui = new DtCustomCodeGui(qApp, rightItem(path), myWindow.get());
    }
    QTreeWidgetItem* rightItem(const char* path) const
    {
        const QStringList names = QString(path).split('.');
        QTreeWidgetItem* item =
            myWindow->listViewManager()->rightListView()->findItems(names.first(), Qt::MatchExactly).value(0);
        for (const QString& name : names.mid(1))
        {
            QTreeWidgetItem* next = nullptr;
            for (int row = 0; item != nullptr && row < item->childCount(); ++row)
                next = item->child(row)->text(0) == name ? item->child(row) : next;
            item = next;
        }
        if (item == nullptr)
            qFatal("no %s", path);
        return item;
    }
    void select(int row) { list().setCurrentItem(list().topLevelItem(row)); }
    void save() { myGui->slot_saveButtonClicked(); }

    template <class Widget>
    Widget& find(const char* name) const
    {
        auto* const widget = myGui->findChild<Widget*>(name);
        if (widget == nullptr)
            qFatal("no %s", name);
        return *widget;
    }
    QTreeWidget& list() const { return find<QTreeWidget>("myItemList"); }
    CodeEditor& encoder() const { return find<CodeEditor>("myEncEditor"); }
    CodeEditor& decoder() const { return find<CodeEditor>("myDecEditor"); }
    QTabWidget& tabs() const { return find<QTabWidget>("myTabs"); }
    QString currentTab() const { return tabs().tabText(tabs().currentIndex()); }
    QString rows() const
    {
        QStringList texts;
        for (int row = 0; row < list().topLevelItemCount(); ++row)
            texts += list().topLevelItem(row)->text(0) + " " + list().topLevelItem(row)->text(1);
        return texts.join('\n');
    }
    // A star for each row that has one, a dot for each that has none.
    QString marks() const
    {
        QString text;
        for (int row = 0; row < list().topLevelItemCount(); ++row)
            text += list().topLevelItem(row)->text(0).startsWith('*') ? '*' : '.';
        return text;
    }
    DtOmtProject& project() const { return *myWindow->omtProject(); }
    // The texts that the project holds under a key; "none" twice where it holds none.
    DtOmtProject::DtCodingPair coding(const char* key) const
    {
        DtOmtProject::DtCodingPair pair("none", "none");
        project().customCodingsFromName(key, pair);
        return pair;
    }

    DtScratchTree myTree;
    std::unique_ptr<DtScratchProgram> myProgram;
    std::unique_ptr<DtCodeGenAppGui> myWindow;
    QPointer<DtCustomCodeGui> myGui;

private:
    static QByteArray enumerationText(const QByteArray& name, const QByteArray& representation)
    {
        return element("enumeratedData", element("name", name) + element("representation", representation) +
                                             element("enumerator", element("name", "Off") + element("value", "0")) +
                                             element("enumerator", element("name", "Lit") + element("value", "1")));
    }
    // Two branches with a class of one name, an enumeration, and one that is predefined as a boolean.
    static QByteArray modelText()
    {
        QByteArray text = moduleText(
            objectText("Ship", attributeText("Heading", "HLAfloat64BE") + attributeText("lamp", "LampState") +
                                   attributeText("default", "Knots") + attributeText("Manned", "HLAboolean") +
                                   objectText("Tug", attributeText("Pull"))) +
                objectText("Shore", objectText("Tug", attributeText("Rope"))),
            interactionText("Call", parameterText("Text", "HLAASCIIstring") + parameterText("Lamp", "LampState")));
        const QByteArray basic =
            element("basicData", element("name", "HLAoctet") + element("size", "8") + element("endian", "Big"));
        const QByteArray simple =
            element("simpleData", element("name", "Knots") + element("representation", "HLAfloat32BE"));
        const QByteArray types = element("basicDataRepresentations", basic) + element("simpleDataTypes", simple) +
                                 element("enumeratedDataTypes", enumerationText("LampState", "HLAoctet") +
                                                                    enumerationText("HLAboolean", "HLAinteger32BE"));
        return text.replace("</objectModel>", element("dataTypes", types) + "</objectModel>");
    }
};

#endif
