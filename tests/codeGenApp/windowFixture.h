#ifndef TESTS_WINDOW_FIXTURE_H
#define TESTS_WINDOW_FIXTURE_H

#include "codeGenApp/listViewManager.h"
#include "dialogWatch.h"
#include "fileGenerator/omtProject.h"
#include "printedLists.h"
#include "scratchProgram.h"
#include "smallModels.h"

#include <memory>

// A window over a copy of the program's data, with a user who answers its dialogs as told and a home of its own for
// what the window remembers. The tests of a class share the copy; one that changes the data opens on data of its own.
class DtWindowFixture
{
protected:
    void open() { openOn(std::make_unique<DtScratchProgram>(myTree)); }
    void openOnOwnData()
    {
        close();
        openOn(std::make_unique<DtScratchProgram>());
    }
    void openOn(std::unique_ptr<DtScratchProgram> program)
    {
        myProgram = std::move(program);
        for (const char* directory : {"models", "home", "out"})
            QDir().mkpath(myProgram->path(directory));
        myHome = std::make_unique<DtWithEnvironment>("XDG_CONFIG_HOME", bytes("home").c_str());
        myDialogs = std::make_unique<DtDialogWatch>();
        makeWindow();
    }
    void makeWindow()
    {
        myWindow = myProgram->makeWindow();
        myWindow->setUnattended(false);
    }
    // Also fails the test that has left a dialog behind.
    void close()
    {
        QCOMPARE(myDialogs->takeSeen(), QStringList());
        myDialogs.reset();
        myWindow.reset();
        myHome.reset();
        myProgram.reset();
    }
    void show() const
    {
        myWindow->show();
        QApplication::setActiveWindow(myWindow.get());
        QVERIFY(QTest::qWaitForWindowActive(myWindow.get()));
    }

    QString path(const char* name) const { return myProgram->path(name); }
    DtString bytes(const char* name) const { return myProgram->bytes(path(name)); }
    QTreeWidget& left() const { return *myWindow->listViewManager()->leftListView(); }
    QTreeWidget& right() const { return *myWindow->listViewManager()->rightListView(); }
    QString status() const { return myWindow->statusBar()->currentMessage(); }
    QAction& action(const char* text) const
    {
        for (QAction* each : myWindow->findChildren<QAction*>())
            if (each->text() == text)
                return *each;
        qFatal("no action %s", text);
    }
    // A new project with a model of these classes, without the management model.
    void loadModel(const QByteArray& objects, const QByteArray& interactions = QByteArray()) const
    {
        myWindow->preferences()->setIncludeStandardMIM(false);
        myWindow->newOmtProject(DtFilename(bytes("models/p.qxproj")));
        QCOMPARE(myWindow->loadFile(myProgram->model("m.xml", moduleText(objects, interactions)), ""), 1);
    }
    // Full names of the project's classes, objects ahead of interactions.
    QString recorded() const
    {
        QStringList names;
        for (const DtOmtObject& object : myWindow->omtProject()->getObjects())
            names += QString::fromUtf8(object.fullName().c_str());
        for (const DtOmtInteraction& interaction : myWindow->omtProject()->getInteractions())
            names += QString::fromUtf8(interaction.fullName().c_str());
        return names.join(' ');
    }

    DtScratchTree myTree;
    std::unique_ptr<DtScratchProgram> myProgram;
    std::unique_ptr<DtWithEnvironment> myHome;
    std::unique_ptr<DtDialogWatch> myDialogs;
    std::unique_ptr<DtCodeGenAppGui> myWindow;
};

#endif
