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
    QDockWidget& messages() const { return *myWindow->findChild<QDockWidget*>("Messages"); }
    QListWidget& messageList() const { return *messages().findChild<QListWidget*>(); }
    QStringList messageLines() const
    {
        QStringList lines;
        for (int row = 0; row < messageList().count(); ++row)
            lines += messageList().item(row)->text();
        return lines;
    }
    QPushButton& messageButton(const char* text) const
    {
        for (QPushButton* button : messages().findChildren<QPushButton*>())
            if (button->text() == text)
                return *button;
        qFatal("no button %s", text);
    }
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
        myWindow->slot_closeOpenFiles();
        QCOMPARE(status(), QString("Project p.qxproj closed"));
        QCOMPARE(badgeText(), QString());
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
        QVERIFY(myWindow->statusBar()->toolTip().endsWith("<p>F5 shows and hides the messages.</p>"));
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

    void textIsSpokenWithoutItsMarkup()
    {
        show();
        myWindow->newOmtProject(DtFilename(bytes("models/a & b.qxproj")));
        const auto description = [this]
        { return QAccessible::queryAccessibleInterface(myWindow->statusBar())->text(QAccessible::Description); };
        QCOMPARE(description(), QString("Project a & b.qxproj made"));
        myWindow->slot_closeOpenFiles();
        QCOMPARE(description(), QString("Project a & b.qxproj closed"));
    }

    // Failures

    void filesThatCannotBeWrittenAreCounted()
    {
        loadFleet();
        myWindow->addAllObjectInteractions();
        writeTextFile(path("out/cpp\\Makefile/in the way"), "");
        show();
        myWindow->setOutputDirectory(path("out/"));
        const DtCapture warnings(DtWarn);
        myWindow->generateAllFiles();
        QCOMPARE(status(), QString("1 of 69 files could not be written. Cannot open file %1: Is a directory")
                               .arg(path("out/cpp\\Makefile")));
        QVERIFY(warnings.text().contains("Cannot open file")); // as in a batch run
        QVERIFY(QFile::exists(path("out/cpp\\dllExport.h")));
    }

    void userIsAskedWhenNothingCanBeWritten_data()
    {
        QTest::addColumn<int>("button");
        QTest::newRow("stop") << int(QMessageBox::Yes);
        QTest::newRow("go on") << int(QMessageBox::No);
    }
    void userIsAskedWhenNothingCanBeWritten()
    {
        QFETCH(int, button);
        loadFleet();
        myWindow->addAllObjectInteractions();
        show();
        writeTextFile(path("full"), "");
        myWindow->setOutputDirectory(path("full/"));
        myDialogs->setButton(QMessageBox::StandardButton(button));
        const DtCapture warnings(DtWarn);
        myWindow->generateAllFiles();
        QCOMPARE(myDialogs->takeSeen(), QStringList("None of the first ten files could be written."));
        const bool isStopped = button == QMessageBox::Yes;
        QCOMPARE(status().startsWith("Cancelled. "), isStopped);
        const int failures = status().section(' ', isStopped ? 1 : 0).section(' ', 0, 0).toInt();
        QVERIFY2(isStopped ? failures >= 10 && failures < 40 : failures == 69, qPrintable(status()));
        QVERIFY2(status().contains(" could not be written. Cannot open file " + path("full/")), qPrintable(status()));
    }

    void failuresBehindAFileThatWasWrittenAreNotAskedAbout()
    {
        loadFleet();
        myWindow->addAllObjectInteractions();
        myWindow->setOutputDirectory(path("out/"));
        myWindow->generateAllFiles();
        QStringList others = written();
        QVERIFY(others.removeOne("cpp\\dllExport.h"));
        QDir(path("out")).removeRecursively();
        for (const QString& other : others)
            QDir().mkpath(path("out/") + other); // a directory in the way of each
        show();
        const DtCapture warnings(DtWarn);
        myWindow->generateAllFiles();
        QVERIFY2(status().startsWith("68 of 69 files could not be written. "), qPrintable(status()));
    }

    void unseenRunAsksAndTellsNothing()
    {
        loadFleet();
        myWindow->addAllObjectInteractions();
        writeTextFile(path("full"), "");
        myWindow->setOutputDirectory(path("full/"));
        const DtCapture warnings(DtWarn);
        myWindow->generateAllFiles();
        QCOMPARE(status(), QString());
        QCOMPARE(warnings.text().count('\n'), warnings.text().count("Cannot open file "));
    }

    void reasonOfAFailedLoadStandsInTheToolTip()
    {
        show();
        QCOMPARE(myWindow->loadFile(myProgram->model("bad.xml", "<objectModel>\n<a></b>"), ""), 0);
        QCOMPARE(status(), QString("Error Loading File, please try a different file."));
        const QString toolTip = myWindow->statusBar()->toolTip();
        QVERIFY2(toolTip.contains("bad.xml:2: "), qPrintable(toolTip));
    }

    // Messages

    void messagesComeUpWithTheFirstOne()
    {
        show();
        loadFleet();
        QVERIFY(myWindow->findChild<QDockWidget*>() == nullptr);
        DtWarn << "Something of HLAobjectRoot.Ship.Ferry.Speed is odd." << std::endl;
        QVERIFY(messages().isVisible());
        QCOMPARE(messageLines(), QStringList("Something of HLAobjectRoot.Ship.Ferry.Speed is odd."));
        messages().close();
        DtWarn << "first" << std::endl;
        DtWarn << "sec";
        DtWarn << "ond\nthird" << std::endl;
        QTRY_COMPARE(messageLines().mid(1), (QStringList{"first", "second", "third"}));
        QVERIFY(!messages().isVisible()); // stays closed
    }

    void messagesOfAnUnseenWindowAreThereWhenItIsShown()
    {
        DtWarn << "early" << std::endl;
        QVERIFY(myWindow->findChild<QDockWidget*>() == nullptr);
        show();
        QVERIFY(myWindow->findChild<QDockWidget*>() != nullptr);
        QVERIFY(messages().isVisible());
        QCOMPARE(messageLines(), QStringList("early"));
        DtWarn << "late" << std::endl;
        QTRY_COMPARE(messageLines(), (QStringList{"early", "late"}));
    }

    // The configuration is read ahead of the window.
    void messagesFromBeforeTheWindowStandFirst()
    {
        DtWarn << "second" << std::endl;
        myWindow->takeEarlierMessages({"first"});
        show();
        QCOMPARE(messageLines(), (QStringList{"first", "second"}));
    }

    void keyShowsAndHidesTheMessages()
    {
        show();
        QTest::keyClick(myWindow.get(), Qt::Key_F5);
        QVERIFY(myWindow->findChild<QDockWidget*>() != nullptr && messages().isVisible());
        QCOMPARE(messageLines(), QStringList());
        DtWarn << "first" << std::endl;
        messages().close();
        QTest::keyClick(myWindow.get(), Qt::Key_F5);
        QVERIFY(messages().isVisible());
        QTRY_COMPARE(messageLines(), QStringList("first"));
        QTest::keyClick(myWindow.get(), Qt::Key_F5);
        QVERIFY(!messages().isVisible());
    }

    void thousandMessagesAreKept()
    {
        show();
        for (int line = 0; line < 2500; ++line)
            DtWarn << line << "\n";
        QTRY_COMPARE(messageLines().size(), 1000);
        QCOMPARE(messageLines().first(), QString("1500"));
        QCOMPARE(messageLines().last(), QString("2499"));
    }

    void messagesAreCopiedAndCleared()
    {
        show();
        DtWarn << "one\ntwo\nthree" << std::endl;
        QTRY_COMPARE(messageLines().size(), 3);
        messageButton("Copy").click();
        QCOMPARE(QApplication::clipboard()->text(), QString("one\ntwo\nthree\n"));
        messageList().item(1)->setSelected(true);
        messageButton("Copy").click();
        QCOMPARE(QApplication::clipboard()->text(), QString("two\n"));
        messageButton("Clear").click();
        QCOMPARE(messageLines(), QStringList());
        DtWarn << "four" << std::endl;
        QTRY_COMPARE(messageLines(), QStringList("four"));
    }

    void clickOnAMessageSelectsItsClass_data()
    {
        QTest::addColumn<QString>("line");
        QTest::addColumn<QString>("item");
        QTest::newRow("full name") << "odd: HLAobjectRoot.Ship.Ferry."
                                   << "Ferry";
        QTest::newRow("attribute") << "Speed (HLAobjectRoot.Ship.Speed) is odd"
                                   << "Ship";
        QTest::newRow("last name") << "class Tug, odd"
                                   << "Tug";
        QTest::newRow("interaction") << "HLAinteractionRoot.Signal"
                                     << "Signal";
        QTest::newRow("none") << "nothing at all"
                              << "Objects";
    }
    void clickOnAMessageSelectsItsClass()
    {
        QFETCH(QString, line);
        QFETCH(QString, item);
        loadFleet();
        show();
        left().setCurrentItem(left().topLevelItem(0));
        DtWarn << line.toUtf8().constData() << std::endl;
        QTRY_COMPARE(messageLines(), QStringList(line));
        QTest::mouseClick(messageList().viewport(), Qt::LeftButton, Qt::NoModifier,
                          messageList().visualItemRect(messageList().item(0)).center());
        QCOMPARE(left().currentItem()->text(0), item);
    }

    void enterOnAMessageSelectsItsClass()
    {
        loadFleet();
        show();
        DtWarn << "HLAobjectRoot.Tug is odd." << std::endl;
        QTRY_COMPARE(messageLines().size(), 1);
        messageList().setFocus();
        messageList().setCurrentRow(0);
        QTest::keyClick(&messageList(), Qt::Key_Return);
        QCOMPARE(left().currentItem()->text(0), QString("Tug"));
    }

    void clickOnAMessageOfAHiddenClassEndsTheSearch()
    {
        loadFleet();
        show();
        QTest::keyClick(myWindow.get(), Qt::Key_F, Qt::ControlModifier);
        const auto* const bar = myWindow->findChild<QWidget*>("FindBar");
        QVERIFY(bar != nullptr);
        bar->findChild<QLineEdit*>()->setText("Tug");
        QVERIFY(itemOf(left(), "Ferry")->parent()->isHidden());
        DtWarn << "Something of HLAobjectRoot.Tug is odd." << std::endl;
        DtWarn << "Something of HLAobjectRoot.Ship.Ferry is odd." << std::endl;
        QTRY_COMPARE(messageLines().size(), 2);
        const auto click = [this](int row)
        {
            QTest::mouseClick(messageList().viewport(), Qt::LeftButton, Qt::NoModifier,
                              messageList().visualItemRect(messageList().item(row)).center());
        };
        click(0);
        QCOMPARE(left().currentItem()->text(0), QString("Tug"));
        QVERIFY(bar->isVisible());
        click(1);
        QCOMPARE(left().currentItem()->text(0), QString("Ferry"));
        QVERIFY(!bar->isVisible());
        QVERIFY(!left().currentItem()->isHidden() && !left().currentItem()->parent()->isHidden());
    }

    // What is open

    void badgeNamesWhatIsOpen()
    {
        show();
        myWindow->resize(1200, 582); // room for all of it
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

    void badgeLeavesTheTextItsRoom()
    {
        show();
        myWindow->preferences()->setIncludeStandardMIM(false);
        myWindow->newOmtProject(DtFilename(bytes("models/harbour.qxproj")));
        const DtString model = myProgram->model("HarbourWithAllItsVessels.xml", moduleText(fleet()));
        QCOMPARE(myWindow->loadFile(model, ""), 1);
        myWindow->resize(1200, 582);
        QCOMPARE(badgeText(), QString("harbour.qxproj*, 1 module, 0 classes"));
        const int end = myWindow->statusBar()->fontMetrics().horizontalAdvance(status());
        myWindow->resize(badge().sizeHint().width() + end + 10, 582); // both, without what divides them
        QCOMPARE(badgeText(), QString("harbour.qxproj*"));
        QTRY_VERIFY(badge().x() > end + 6);
        QVERIFY(badge().contentsRect().x() >= 12);
        QVERIFY2(badge().toolTip().contains("harbour.qxproj*, 1 module, 0 classes"), qPrintable(badge().toolTip()));
        myWindow->resize(1200, 582);
        QCOMPARE(badgeText(), QString("harbour.qxproj*, 1 module, 0 classes"));
    }

    void longNameIsCutInTheBadge()
    {
        const QString name = QString("harbour").repeated(27);
        myWindow->newOmtProject(DtFilename(bytes(qPrintable("models/" + name + ".qxproj"))));
        show();
        myWindow->resize(1200, 582);
        QVERIFY2(badgeText().startsWith("harbour") && badgeText().endsWith("proj, 0 modules, 0 classes"),
                 qPrintable(badgeText()));
        QVERIFY(badge().width() < 500);
        QVERIFY(badge().toolTip().contains(name + ".qxproj, 0 modules, 0 classes"));
        loadFleet();
        QVERIFY(badge().toolTip().contains("Not all of the project is saved."));
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
