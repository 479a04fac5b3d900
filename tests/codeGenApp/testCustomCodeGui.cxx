// The custom code window: its controls, its list, what a selection shows, and its context menu.

#include "registerTest.h"

#include "customCodeFixture.h"
#include "dialogWatch.h"

class TestCustomCodeGui : public QObject, private DtCustomCodeFixture
{
    Q_OBJECT

private Q_SLOTS:
    void init() { openProgram(); }
    void cleanup() { closeProgram(); }

    void windowHasItsTexts();
    void windowBlocksMainWindowAndDeletesItself();
    void everyControlHasAName();
    void tabOrderFollowsTheFlow();
    void listShowsKeysAndDatatypesInModelOrder();
    void interactionListsParameters();
    void classOfSameNameHasItsOwnMembers();
    void topItemHasNoMembers_data();
    void topItemHasNoMembers();
    void unknownClassHasNoMembers();
    void nullItemHasNoMembers();
    void itemMayGoWhileWindowIsOpen();
    void opensOnInstructions();
    void selectionLeadsToEncoding();
    void selectionKeepsDecodingTab();
    void noSelectionLeadsBackToInstructions();
    void keyIsTextWithoutMark();
    void datatypeIsFoundByKey();
    void highlighterIsOnForMembersOnly();
    void contextMenuLeadsToTexts();
    void contextMenuPutsOriginalTextBack();
    void contextMenuNeedsAnItem();
    void classIsNamed();
    void longNameLeavesTheWindowItsSize();
    void classWithoutMembersNamesSuperclassesThatHaveSome();
    void windowOpensOnTheMiddleOfItsParent();
    void escapeClosesBehindItsQuestion();
};

void TestCustomCodeGui::windowHasItsTexts()
{
    open("Objects.Ship");
    QCOMPARE(myGui->objectName(), QString("QtCustomGenForm"));
    QCOMPARE(myGui->windowTitle(), QString("Customize Encoders and Decoders"));
    QCOMPARE(find<QLabel>("myHeadingLabel").text(), QString("Selected Items and Datatypes"));
    QCOMPARE(tabs().tabText(0) + " " + tabs().tabText(1) + " " + tabs().tabText(2),
             QString("Encoding Decoding Instructions"));
    QCOMPARE(find<QPushButton>("mySaveButton").text(), QString("Save Changes"));
    QCOMPARE(list().columnCount(), 2);
}

void TestCustomCodeGui::windowBlocksMainWindowAndDeletesItself()
{
    open("Objects.Ship");
    QVERIFY(myGui->isWindow());
    QCOMPARE(myGui->parentWidget(), myWindow.get());
    QCOMPARE(myGui->windowModality(), Qt::WindowModal);
    myGui->show();
    myGui->close();
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    QVERIFY(myGui.isNull());
}

void TestCustomCodeGui::everyControlHasAName()
{
    open("Objects.Ship");
    for (const char* name : {"myItemList", "myEncEditor", "myDecEditor", "myInstructions"})
        QVERIFY2(!find<QWidget>(name).accessibleName().isEmpty(), name);
    QCOMPARE(find<QLabel>("myHeadingLabel").buddy(), &list());
}

void TestCustomCodeGui::tabOrderFollowsTheFlow()
{
    open("Objects.Ship");
    QStringList order;
    const QStringList controls = {"myItemList",  "myTabs",         "myEncEditor",
                                  "myDecEditor", "myInstructions", "mySaveButton"};
    for (QWidget* widget = list().nextInFocusChain(); widget != &list(); widget = widget->nextInFocusChain())
        if (controls.contains(widget->objectName()))
            order += widget->objectName();
    QCOMPARE(order.join(' '), controls.mid(1).join(' '));
    QVERIFY(find<QPlainTextEdit>("myInstructions").tabChangesFocus());
}

void TestCustomCodeGui::listShowsKeysAndDatatypesInModelOrder()
{
    open("Objects.Ship");
    QCOMPARE(rows(), QString("HLAobjectRoot.Ship.Heading HLAfloat64BE\n"
                             "HLAobjectRoot.Ship.lamp LampState\n"
                             "HLAobjectRoot.Ship.default Knots\n"
                             "HLAobjectRoot.Ship.Manned HLAboolean"));
}

void TestCustomCodeGui::interactionListsParameters()
{
    open("Interactions.Call");
    QCOMPARE(rows(), QString("HLAinteractionRoot.Call.Text HLAASCIIstring\n"
                             "HLAinteractionRoot.Call.Lamp LampState"));
}

void TestCustomCodeGui::classOfSameNameHasItsOwnMembers()
{
    open("Objects.Ship.Tug");
    QCOMPARE(rows(), QString("HLAobjectRoot.Ship.Tug.Pull HLAinteger32BE"));
    open("Objects.Shore.Tug");
    QCOMPARE(rows(), QString("HLAobjectRoot.Shore.Tug.Rope HLAinteger32BE"));
}

void TestCustomCodeGui::topItemHasNoMembers_data()
{
    QTest::addColumn<QString>("path");
    QTest::newRow("objects") << QString("Objects");
    QTest::newRow("interactions") << QString("Interactions");
    QTest::newRow("class without attributes") << QString("Objects.Shore");
}

void TestCustomCodeGui::topItemHasNoMembers()
{
    QFETCH(QString, path);
    open(qPrintable(path));
    QCOMPARE(rows(), QString());
    save();
    QVERIFY(project().customCodings().empty());
}

void TestCustomCodeGui::unknownClassHasNoMembers()
{
    QTreeWidgetItem item(rightItem("Objects.Ship"), QStringList("Nobody"));
    myGui = new DtCustomCodeGui(qApp, &item, myWindow.get());
    QCOMPARE(rows(), QString());
    QCOMPARE(currentTab(), QString("Instructions"));
}

void TestCustomCodeGui::nullItemHasNoMembers()
{
    myGui = new DtCustomCodeGui(qApp, nullptr, myWindow.get());
    QCOMPARE(rows(), QString());
    myGui->selectItem(nullptr);
    myGui->slot_encTextChanged(true);
    myGui->slot_decTextChanged(false);
    myGui->slot_itemSelectionChanged(nullptr, nullptr);
    QVERIFY(!myGui->hasUnsavedEdits());
}

void TestCustomCodeGui::itemMayGoWhileWindowIsOpen()
{
    open("Objects.Ship");
    myWindow->listViewManager()->reset();
    select(0);
    encoder().insertPlainText("x");
    save();
    QVERIFY(coding("HLAobjectRoot.Ship.Heading").first.startsWith("x"));
}

void TestCustomCodeGui::opensOnInstructions()
{
    open("Objects.Ship");
    myGui->show();
    QCOMPARE(currentTab(), QString("Instructions"));
    QVERIFY(list().currentItem() == nullptr);
    QVERIFY(!encoder().isEnabled() && !decoder().isEnabled() && !find<QPushButton>("mySaveButton").isEnabled());
    const auto& instructions = find<QPlainTextEdit>("myInstructions");
    QVERIFY(instructions.isReadOnly());
    QCOMPARE(instructions.toPlainText() + "\n",
             QString::fromUtf8(readTextFile("../data/templates/customUITemplates/customUIguide.tlt")));
}

void TestCustomCodeGui::selectionLeadsToEncoding()
{
    open("Objects.Ship");
    select(0);
    QCOMPARE(currentTab(), QString("Encoding"));
    QVERIFY(encoder().isEnabled() && decoder().isEnabled() && find<QPushButton>("mySaveButton").isEnabled());
    QVERIFY(list().topLevelItem(0)->isSelected());
}

void TestCustomCodeGui::selectionKeepsDecodingTab()
{
    open("Objects.Ship");
    select(0);
    myGui->slot_decodingSelected();
    select(1);
    QCOMPARE(currentTab(), QString("Decoding"));
    myGui->slot_encodingSelected();
    QCOMPARE(currentTab(), QString("Encoding"));
}

void TestCustomCodeGui::noSelectionLeadsBackToInstructions()
{
    open("Objects.Ship");
    select(0);
    encoder().insertPlainText("x");
    list().setCurrentItem(nullptr);
    QCOMPARE(currentTab(), QString("Instructions"));
    QVERIFY(!encoder().isEnabled() && encoder().text().isEmpty());
    QCOMPARE(find<QLabel>("myEncHeader").text() + find<QLabel>("myDecHeader").text(), QString());
    QCOMPARE(marks(), QString("*...")); // the edit is kept
    select(0);
    QVERIFY(encoder().text().startsWith('x'));
}

void TestCustomCodeGui::keyIsTextWithoutMark()
{
    open("Objects.Ship");
    const QTreeWidgetItem marked(QStringList("*A.b"));
    const QTreeWidgetItem plain(QStringList("A.b*c"));
    QCOMPARE(QString(myGui->itemType(&marked).c_str()), QString("A.b"));
    QCOMPARE(QString(myGui->itemType(&plain).c_str()), QString("A.b*c"));
}

void TestCustomCodeGui::datatypeIsFoundByKey()
{
    open("Objects.Ship");
    QCOMPARE(QString(myGui->findDatatype("HLAobjectRoot.Ship.lamp").c_str()), QString("LampState"));
    QCOMPARE(QString(myGui->findDatatype("lamp").c_str()), QString());
}

void TestCustomCodeGui::highlighterIsOnForMembersOnly()
{
    open("Objects.Ship");
    QVERIFY(encoder().document()->findChild<QSyntaxHighlighter*>() == nullptr);
    select(0);
    for (const CodeEditor* editor : {&encoder(), &decoder()})
        QVERIFY(editor->document()->findChild<QSyntaxHighlighter*>() != nullptr);
    list().setCurrentItem(nullptr);
    QVERIFY(decoder().document()->findChild<QSyntaxHighlighter*>() == nullptr);
}

void TestCustomCodeGui::contextMenuLeadsToTexts()
{
    open("Objects.Ship");
    myGui->show();
    const QPoint point = list().visualItemRect(list().topLevelItem(1)).center();
    struct Row
    {
        int entry;
        const char *text, *tab;
    };
    for (const Row& row : {
             Row{1, "Decoding", "Decoding"},
             Row{0, "Encoding", "Encoding"}
    })
    {
        Q_EMIT list().customContextMenuRequested(point);
        auto* const menu = myGui->findChild<QMenu*>();
        QVERIFY(menu != nullptr && menu->isVisible());
        QCOMPARE(menu->actions().at(row.entry)->text(), QString(row.text));
        menu->actions().at(row.entry)->trigger();
        delete menu;
        QCOMPARE(currentTab(), QString(row.tab));
        QCOMPARE(list().currentItem(), list().topLevelItem(1));
    }
}

void TestCustomCodeGui::contextMenuPutsOriginalTextBack()
{
    project().addCustomCoding("HLAobjectRoot.Ship.Heading", {"own", "own"});
    open("Objects.Ship");
    myGui->show();
    Q_EMIT list().customContextMenuRequested(list().visualItemRect(list().topLevelItem(0)).center());
    QAction* const action = myGui->findChild<QMenu*>()->actions().last();
    QCOMPARE(action->text(), QString("Original Text"));
    action->trigger();
    QVERIFY(encoder().text().contains("DtWriteValue(writer, state.heading()") &&
            decoder().text().contains("state.setHeading(std::move(value))"));
    QCOMPARE(marks(), QString("*..."));
    encoder().undo();
    QCOMPARE(encoder().text(), QString("own"));
}

void TestCustomCodeGui::contextMenuNeedsAnItem()
{
    open("Objects.Ship");
    myGui->show();
    Q_EMIT list().customContextMenuRequested(QPoint(5, list().height() - 40));
    QVERIFY(myGui->findChild<QMenu*>() == nullptr);
}

// A line may break behind each dot; what the reader sees is the name.
static QString shown(const QLabel& label)
{
    return label.text().remove(QChar(0x200B));
}

void TestCustomCodeGui::classIsNamed()
{
    open("Objects.Ship.Tug");
    QCOMPARE(shown(find<QLabel>("ClassLabel")), QString("HLAobjectRoot.Ship.Tug"));
    open("Objects");
    QCOMPARE(shown(find<QLabel>("ClassLabel")), QString("HLAobjectRoot"));
}

void TestCustomCodeGui::longNameLeavesTheWindowItsSize()
{
    const QByteArray name = QByteArray("Ship").repeated(50);
    myWindow->preferences()->setIncludeStandardMIM(false);
    myWindow->newOmtProject(DtFilename(myProgram->bytes(myProgram->path("models/long.qxproj"))));
    const QByteArray text = moduleText(objectText(name, attributeText("Speed")));
    QCOMPARE(myWindow->loadFile(myProgram->model("long.xml", text), ""), 1);
    myWindow->addAllObjectInteractions();
    open("Objects." + name);
    QCOMPARE(shown(find<QLabel>("ClassLabel")), "HLAobjectRoot." + QString(name));
    QVERIFY2(myGui->minimumSizeHint().width() < 1080, qPrintable(QString::number(myGui->minimumSizeHint().width())));
}

void TestCustomCodeGui::classWithoutMembersNamesSuperclassesThatHaveSome()
{
    myWindow->preferences()->setIncludeStandardMIM(false);
    myWindow->newOmtProject(DtFilename(myProgram->bytes(myProgram->path("models/bare.qxproj"))));
    const QByteArray bare = objectText("Ship", attributeText("Heading") + objectText("Tug", objectText("Pusher")));
    QCOMPARE(myWindow->loadFile(myProgram->model("bare.xml", moduleText(bare, interactionText("Call"))), ""), 1);
    myWindow->addAllObjectInteractions();
    open("Objects.Ship.Tug.Pusher");
    QCOMPARE(shown(find<QLabel>("ClassLabel")),
             QString("HLAobjectRoot.Ship.Tug.Pusher\n"
                     "This class has no attributes of its own. Its superclasses have: HLAobjectRoot.Ship"));
    open("Interactions.Call");
    QCOMPARE(shown(find<QLabel>("ClassLabel")),
             QString("HLAinteractionRoot.Call\nThis class has no parameters of its own."));
}

void TestCustomCodeGui::windowOpensOnTheMiddleOfItsParent()
{
    const QRect screen = QGuiApplication::primaryScreen()->availableGeometry();
    myWindow->setGeometry(screen);
    myWindow->show();
    open("Objects.Ship");
    myGui->resize(300, 200);
    const QRect whole(myGui->pos(), QSize(1080, 660)); // the size of the form
    QVERIFY(whole.left() >= screen.left() && whole.top() >= screen.top());
    if (screen.width() > 1080)
        QVERIFY(qAbs(whole.center().x() - myWindow->frameGeometry().center().x()) <= 1);
}

void TestCustomCodeGui::escapeClosesBehindItsQuestion()
{
    open("Objects.Ship");
    const QPointer<DtCustomCodeGui> gui = myGui;
    myGui->show();
    QApplication::setActiveWindow(myGui);
    QVERIFY(QTest::qWaitForWindowActive(myGui));
    select(0);
    encoder().setFocus();
    encoder().insertPlainText("x");
    DtDialogWatch dialogs;
    QTest::keyClick(&encoder(), Qt::Key_Escape);
    QCOMPARE(dialogs.takeSeen(), QStringList("The document has been modified."));
    QVERIFY(gui != nullptr && gui->isVisible());
    encoder().undo();
    QApplication::setActiveWindow(myGui);
    QVERIFY(QTest::qWaitForWindowActive(myGui));
    QTest::keyClick(&encoder(), Qt::Key_Escape);
    QTRY_VERIFY(gui == nullptr);
    myGui = nullptr;
}

QX_REGISTER_TEST(TestCustomCodeGui)
#include "testCustomCodeGui.moc"
