// What the window tells of its work: the texts of the status bar, and what is open at its right end.

#include "registerTest.h"

#include "progressWatch.h"
#include "windowFixture.h"

class TestWindowStatus : public QObject, private DtWindowFixture
{
    Q_OBJECT

private:
    QByteArray fleet() const
    {
        return objectText("Ship", attributeText("Speed") + objectText("Ferry")) + objectText("Tug");
    }
    void loadFleet() const { loadModel(fleet(), interactionText("Signal", parameterText("Code"))); }
    void select(const char* text) const { itemOf(left(), text)->setSelected(true); }
    QLabel& badge() const { return *myWindow->findChild<QLabel*>("ProjectBadge"); }
    QString badgeText() const { return badge().isVisible() ? badge().text() : QString(); }
    QStringList written() const { return filesBelow(path("out")); }
    // Those that are not empty: the files of a class are made together, ahead of the first one's text.
    int filledCount() const
    {
        int count = 0;
        for (const QString& name : written())
            count += QFileInfo(path("out/") + name).size() > 0 ? 1 : 0;
        return count;
    }
    QString withoutSeconds(QString text) const { return text.replace(QRegularExpression("in \\d+\\.\\d s"), "in T s"); }

private Q_SLOTS:
    void init() { open(); }
    void cleanup() { close(); }

    // Successes

    void everySuccessHasItsText()
    {
        show();
        myWindow->newOmtProject(DtFilename(bytes("models/p.qxproj")));
        QCOMPARE(status(), QString("Project p.qxproj made"));
        loadFleet();
        QCOMPARE(status(), QString("m.xml imported: 3 object, 1 interaction classes"));
        select("Ferry");
        myWindow->addSelectedItems();
        myWindow->slot_saveOmtProject();
        QCOMPARE(status(), QString("Project p.qxproj saved"));
        myWindow->loadOmtProject(DtFilename(bytes("models/p.qxproj")));
        QCOMPARE(status(), QString("Project p.qxproj read again: 1 module, 2 of its classes selected"));
        myWindow->closeOpenFiles();
        myWindow->loadOmtProject(DtFilename(bytes("models/p.qxproj")));
        QCOMPARE(status(), QString("Project p.qxproj read: 1 module, 2 of its classes selected"));
    }

    void generationTellsWhatItHasWritten()
    {
        loadFleet();
        myWindow->addAllObjectInteractions();
        show();
        myWindow->setOutputDirectory(path("out/"));
        myWindow->generateAllFiles();
        QVERIFY(!written().isEmpty());
        QCOMPARE(withoutSeconds(status()),
                 QString("%1 files written to %2 in T s").arg(written().size()).arg(path("out")));
    }

    void generationCountsItsWarnings()
    {
        myWindow->newOmtProject(DtFilename(bytes("models/p.qxproj")));
        QCOMPARE(myWindow->loadFile(myProgram->model("m.xml", moduleText(objectText("Ship"))), ""), 1);
        myWindow->addAllObjectInteractions();
        show();
        myWindow->setOutputDirectory(path("out/"));
        const DtCapture warnings(DtWarn);
        myWindow->generateAllFiles();
        const int count = warnings.text().count('\n');
        QVERIFY2(count > 1, qPrintable(warnings.text()));
        QVERIFY2(status().endsWith(QString(" s, %1 warnings").arg(count)), qPrintable(status()));
    }

    void cancelledRunTellsHowFarItCame()
    {
        loadFleet();
        myWindow->addAllObjectInteractions();
        show();
        myWindow->setOutputDirectory(path("out/"));
        const DtCancelAfter cancel(4);
        myWindow->generateAllFiles();
        QVERIFY(cancel.isDone());
        QCOMPARE(status(), QString("Cancelled after %1 files").arg(filledCount()));
    }

    void successReplacesAFailure()
    {
        show();
        myWindow->slot_saveOmtProject();
        QCOMPARE(status(), QString("No Project loaded... Cannot save OMT Project."));
        loadFleet();
        QCOMPARE(status(), QString("m.xml imported: 3 object, 1 interaction classes"));
    }

    void unseenWindowTellsNoSuccess()
    {
        const DtCapture warnings(DtWarn);
        loadFleet();
        myWindow->addAllObjectInteractions();
        myWindow->saveOmtProject();
        myWindow->loadOmtProject(DtFilename(bytes("models/p.qxproj")));
        myWindow->setOutputDirectory(path("out/"));
        myWindow->generateAllFiles();
        QVERIFY(!written().isEmpty());
        QCOMPARE(status(), QString());
        QCOMPARE(warnings.text(), QString());
        QVERIFY(badge().isHidden());
    }

    void longTextIsWholeInTheToolTip()
    {
        show();
        myWindow->newOmtProject(DtFilename(bytes("models/a & b.qxproj")));
        QVERIFY(myWindow->statusBar()->toolTip().contains("Project a &amp; b.qxproj made"));
        myWindow->slot_closeOpenFiles();
        myWindow->slot_saveOmtProject();
        QVERIFY(myWindow->statusBar()->toolTip().contains("No Project loaded... Cannot save OMT Project."));
    }

    // What is open

    void badgeNamesWhatIsOpen()
    {
        show();
        QCOMPARE(badgeText(), QString());
        loadFleet();
        QCOMPARE(badgeText(), QString("p.qxproj*, 1 module, 0 classes"));
        myWindow->slot_saveOmtProject();
        QCOMPARE(badgeText(), QString("p.qxproj, 1 module, 0 classes"));
        select("Ferry");
        myWindow->addSelectedItems();
        QCOMPARE(badgeText(), QString("p.qxproj*, 1 module, 2 classes"));
        itemOf(right(), "Ferry")->setSelected(true);
        myWindow->removeSelectedItems();
        QCOMPARE(badgeText(), QString("p.qxproj*, 1 module, 1 class"));
        myWindow->slot_saveOmtProject();
        QCOMPARE(badgeText(), QString("p.qxproj, 1 module, 1 class"));
        myWindow->setClassPrefix("Port");
        Q_EMIT myWindow->preferences()->accepted();
        QCOMPARE(badgeText(), QString("p.qxproj*, 1 module, 1 class"));
        myWindow->closeOpenFiles();
        QCOMPARE(badgeText(), QString());
    }

    void badgeDoesNotCountTheManagementModel()
    {
        myWindow->newOmtProject(DtFilename(bytes("models/p.qxproj")));
        QCOMPARE(myWindow->loadFiles({
                     {myProgram->model("a.xml", moduleText(objectText("Ship"))), ""},
                     {myProgram->model("b.xml", moduleText(objectText("Pier"))), ""}
        }),
                 1);
        QCOMPARE(myWindow->loadedFiles().size(), std::size_t(3));
        show();
        QCOMPARE(badgeText(), QString("p.qxproj*, 2 modules, 0 classes"));
    }

    void badgeGivesWayToAFailure()
    {
        loadFleet();
        show();
        QVERIFY(badge().isVisible());
        QCOMPARE(myWindow->loadFile(myProgram->model("bad.xml", "<objectModel>"), ""), 0);
        QCOMPARE(badgeText(), QString());
        myWindow->slot_saveOmtProject();
        QVERIFY(badge().isVisible());
    }
};

QX_REGISTER_TEST(TestWindowStatus)
#include "testWindowStatus.moc"
