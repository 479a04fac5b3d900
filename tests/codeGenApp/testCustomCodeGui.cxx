// The custom code window: its list, its texts, what it marks, saves and asks.

#include "registerTest.h"

#include "customCodeFixture.h"

namespace
{
// Answers the question of a window that is closed, and notes its texts.
class AnswerQuestion : public QObject
{
public:
    explicit AnswerQuestion(QMessageBox::StandardButton answer) : myAnswer(answer) { qApp->installEventFilter(this); }
    ~AnswerQuestion() override { qApp->removeEventFilter(this); }
    const QStringList& seen() const { return mySeen; }

    bool eventFilter(QObject* object, QEvent* event) override
    {
        auto* const box = qobject_cast<QMessageBox*>(object);
        if (box == nullptr || event->type() != QEvent::Show)
            return false;
        mySeen += box->text() + "|" + box->informativeText();
        QTimer::singleShot(0, box, [this, box] { box->button(myAnswer)->click(); });
        return false;
    }

private:
    QMessageBox::StandardButton myAnswer;
    QStringList mySeen;
};

QString printed(const DtOmtProject::DtCodingPair& pair)
{
    return QString::fromUtf8((pair.first + "|" + pair.second).c_str());
}
} // namespace

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
    void headerNamesFunction_data();
    void headerNamesFunction();
    void headerTakesPrefixAndRename();
    void tokenHasItsValue_data();
    void tokenHasItsValue();
    void tokensAreReplacedInOrder();
    void everyTokenOfTheTemplatesIsKnown();
    void nothingIsReplacedWithoutMember();
    void defaultTextFollowsDatatype_data();
    void defaultTextFollowsDatatype();
    void storedTextGoesAheadOfDefault();
    void missingTemplateIsToldAndEmpty();
    void blankLinesOfTemplateStay();
    void editedItemIsMarked();
    void markIsSeenInNarrowColumn();
    void undoTakesMarkAwayAndRedoPutsItBack();
    void markStaysWhileOtherTextIsEdited();
    void editsStayFromItemToItem();
    void undoOfReturnedEditKeepsMark();
    void lookingAtItemsMarksNothing();
    void highlighterIsOnForMembersOnly();
    void saveStoresBothTextsOfCurrentItem();
    void saveLeavesEditsOfOtherItems();
    void saveOfUntouchedItemStoresItsTexts();
    void editBehindSaveIsMarkedAgain();
    void savedTextIsOfferedAgain();
    void saveWritesProjectFile();
    void saveWithoutProjectKeepsEdits();
    void saveWithoutItemDoesNothing();
    void closeWithoutEditsAsksNothing();
    void closeAsksForEdits();
    void closeAndSaveStoresEveryEditedItem();
    void closeAndDiscardStoresNothing();
    void closeAndSaveWithoutProjectStaysOpen();
    void textsSurviveSaveAndLoad_data();
    void textsSurviveSaveAndLoad();
    void lineEndsOfEditedTextStay_data();
    void lineEndsOfEditedTextStay();
    void emptyTextIsStored();
    void contextMenuLeadsToTexts();
    void contextMenuPutsOriginalTextBack();
    void contextMenuNeedsAnItem();
    void saveButtonWorksByMouseAndKey();

private:
    QString decoded(const char* line) const
    {
        DtString text(line);
        myGui->decodeFileLine(text);
        return QString::fromUtf8(text.c_str());
    }
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

void TestCustomCodeGui::headerNamesFunction_data()
{
    QTest::addColumn<QString>("path");
    QTest::addColumn<QString>("encoder");
    QTest::addColumn<QString>("decoder");
    QTest::newRow("object")
        << "Objects.Ship"
        << "bool DtShipEncoder::encodeHeading(const DtShipStateRepository& state, DtWireWriter& writer)"
        << "bool DtShipDecoder::decodeHeading(DtShipStateRepository& state, DtWireReader& reader)";
    QTest::newRow("interaction")
        << "Interactions.Call"
        << "bool DtCallInterEncoder::encodeText(const DtCallInter& interaction, DtWireWriter& writer)"
        << "bool DtCallInterDecoder::decodeText(DtCallInter& interaction, DtWireReader& reader)";
}

void TestCustomCodeGui::headerNamesFunction()
{
    QFETCH(QString, path);
    open(qPrintable(path));
    select(0);
    QTEST(find<QLabel>("myEncHeader").text(), "encoder");
    QTEST(find<QLabel>("myDecHeader").text(), "decoder");
}

void TestCustomCodeGui::headerTakesPrefixAndRename()
{
    myWindow->setClassPrefix("Port");
    open("Objects.Shore.Tug"); // the name itself is taken by the other class
    select(0);
    const QString name = QString::fromUtf8(project().getObjectFromName("HLAobjectRoot.Shore.Tug")->name().c_str());
    const QString other = QString::fromUtf8(project().getObjectFromName("HLAobjectRoot.Ship.Tug")->name().c_str());
    QVERIFY(name != other);
    QVERIFY(find<QLabel>("myEncHeader").text().startsWith("bool DtPort" + name + "Encoder::encodeRope("));

    DtOmtObject renamed;
    renamed.setFullName("HLAobjectRoot.Shore.Tug");
    renamed.setName("Tug1");
    renamed.setRename("Winch");
    project().removeObject(renamed);
    project().addObject(renamed);
    open("Objects.Shore.Tug");
    select(0);
    QVERIFY(find<QLabel>("myEncHeader").text().startsWith("bool DtPortWinchEncoder::encodeRope("));
}

void TestCustomCodeGui::tokenHasItsValue_data()
{
    QTest::addColumn<QString>("token");
    QTest::addColumn<QString>("lamp");    // of the attribute "lamp", an enumeration
    QTest::addColumn<QString>("keyword"); // of the attribute "default", a simple type
    const auto add = [](const char* token, const char* lamp, const char* keyword)
    { QTest::newRow(token) << QString(token) << QString(lamp) << QString(keyword); };
    add("<!AttributeDatatypeEnum!>", "DtLampState", "");
    add("<!AttributeName!>", "Lamp", "TheDefault");
    add("<!attributeName!>", "lamp", "theDefault");
    add("<!AttributeDatatype!>", "LampState", "Knots");
    add("<!EnumerationRep!>", "DtU8", "");
    add("<!enumerationRep!>", "dtU8", "");
    add("<!EncClassName!>", "ShipEncoder", "ShipEncoder");
    add("<!DecClassName!>", "ShipDecoder", "ShipDecoder");
    add("<!EncInterClassName!>", "ShipInterEncoder", "ShipInterEncoder");
    add("<!DecInterClassName!>", "ShipInterDecoder", "ShipInterDecoder");
    add("<!StateRepName!>", "ShipStateRepository", "ShipStateRepository");
    add("<!InteractionName!>", "ShipInter", "ShipInter");
    add("<!Prefix!>", "Port", "Port");
    add("<!AttributeDatatypeDatatype!>", "HLAoctet", "HLAfloat32BE");
    add("<!AttributeElementCount!>", "-1", "-1");
    add("<!AttributeOctets!>", "1", "4");
    add("<!AttributeIsLittleEndian!>", "0", "0");
    add("<!AttributeEncoding!>", "HLAvariableArray", "HLAvariableArray");
    add("<!Other!>", "<!Other!>", "<!Other!>");
    add("a <!Prefix!> <!Prefix!>", "a Port Port", "a Port Port");
}

void TestCustomCodeGui::tokenHasItsValue()
{
    QFETCH(QString, token);
    myWindow->setClassPrefix("Port");
    open("Objects.Ship");
    select(1);
    QTEST(decoded(qPrintable(token)), "lamp");
    select(2);
    QTEST(decoded(qPrintable(token)), "keyword");
}

// A value that holds a token of a later row is expanded in turn.
void TestCustomCodeGui::tokensAreReplacedInOrder()
{
    myWindow->setClassPrefix("<!AttributeName!><!AttributeOctets!>");
    open("Objects.Ship");
    select(0);
    QCOMPARE(decoded("<!Prefix!>"), QString("<!AttributeName!>8"));
}

void TestCustomCodeGui::everyTokenOfTheTemplatesIsKnown()
{
    static const QRegularExpression theToken(QStringLiteral("<![A-Za-z0-9]+!>"));
    open("Objects.Ship");
    select(1);
    const QString directory = myProgram->path("data/templates/customUITemplates");
    const QStringList files = filesBelow(directory);
    QCOMPARE(files.size(), 13);
    QStringList found;
    for (const QString& file : files)
    {
        const QString text = QString::fromUtf8(readTextFile(directory + "/" + file));
        for (auto each = theToken.globalMatch(text); each.hasNext();)
            found += each.next().captured();
    }
    found.removeDuplicates();
    QVERIFY(found.size() > 10);
    for (const QString& token : found)
        QVERIFY2(decoded(qPrintable(token)) != token, qPrintable(token));
}

void TestCustomCodeGui::nothingIsReplacedWithoutMember()
{
    open("Objects.Ship");
    QCOMPARE(decoded("<!Prefix!>"), QString("<!Prefix!>"));
}

void TestCustomCodeGui::defaultTextFollowsDatatype_data()
{
    QTest::addColumn<QString>("path");
    QTest::addColumn<int>("row");
    QTest::addColumn<QString>("encoder");
    QTest::addColumn<QString>("decoder");
    const auto add = [](const char* name, const char* path, int row, const char* encoder, const char* decoder)
    { QTest::newRow(name) << QString(path) << row << QString(encoder) << QString(decoder); };
    add("attribute", "Objects.Ship", 0, "Encoder", "Decoder");
    add("enumeration", "Objects.Ship", 1, "EnumEncoder", "EnumDecoder");
    add("predefined enumeration", "Objects.Ship", 3, "Encoder", "Decoder");
    add("parameter", "Interactions.Call", 0, "IntEncoder", "IntDecoder");
    add("enumeration parameter", "Interactions.Call", 1, "EnumIntEncoder", "EnumIntDecoder");
}

void TestCustomCodeGui::defaultTextFollowsDatatype()
{
    QFETCH(QString, path);
    QFETCH(int, row);
    for (const char* kind : {"Encoder", "Decoder", "EnumEncoder", "EnumDecoder", "IntEncoder", "IntDecoder",
                             "EnumIntEncoder", "EnumIntDecoder"})
        writeTextFile(QString("../data/templates/customUITemplates/custom%1.tlt").arg(kind), kind);
    open(qPrintable(path));
    select(row);
    QTEST(encoder().text(), "encoder");
    QTEST(decoder().text(), "decoder");
}

void TestCustomCodeGui::storedTextGoesAheadOfDefault()
{
    project().addCustomCoding("HLAobjectRoot.Ship.Heading", {"own encoder", "own decoder"});
    open("Objects.Ship");
    select(0);
    QCOMPARE(encoder().text() + "|" + decoder().text(), QString("own encoder|own decoder"));
    select(1);
    QVERIFY(encoder().text().contains("DtWriteValue") && decoder().text().contains("DtReadValue"));
}

void TestCustomCodeGui::missingTemplateIsToldAndEmpty()
{
    QVERIFY(QFile::remove("../data/templates/customUITemplates/customEncoder.tlt"));
    open("Objects.Ship");
    DtCapture capture(DtWarn);
    select(0);
    QCOMPARE(capture.text(), QString("Cannot read ../data/templates/customUITemplates/customEncoder.tlt\n"));
    QCOMPARE(encoder().text(), QString());
}

void TestCustomCodeGui::blankLinesOfTemplateStay()
{
    writeTextFile("../data/templates/customUITemplates/customEncoder.tlt", "\n\ta\n\n<!AttributeName!>\n\n");
    open("Objects.Ship");
    select(0);
    QCOMPARE(encoder().text(), QString("\n\ta\n\nHeading\n")); // the last line end alone goes
}

void TestCustomCodeGui::editedItemIsMarked()
{
    open("Objects.Ship");
    select(1);
    QCOMPARE(marks(), QString("...."));
    encoder().insertPlainText("x");
    QCOMPARE(marks(), QString(".*.."));
    QCOMPARE(list().topLevelItem(1)->text(0), QString("*HLAobjectRoot.Ship.lamp"));
    QVERIFY(myGui->hasUnsavedEdits());
}

// Keys are long: what is left out of one is neither the mark nor the name of the member.
void TestCustomCodeGui::markIsSeenInNarrowColumn()
{
    open("Objects.Ship");
    QCOMPARE(list().textElideMode(), Qt::ElideMiddle);
}

void TestCustomCodeGui::undoTakesMarkAwayAndRedoPutsItBack()
{
    open("Objects.Ship");
    select(0);
    decoder().insertPlainText("x");
    QCOMPARE(marks(), QString("*..."));
    decoder().undo();
    QCOMPARE(marks(), QString("...."));
    QVERIFY(!myGui->hasUnsavedEdits());
    decoder().redo();
    QCOMPARE(marks(), QString("*..."));
}

void TestCustomCodeGui::markStaysWhileOtherTextIsEdited()
{
    open("Objects.Ship");
    select(0);
    encoder().insertPlainText("x");
    decoder().insertPlainText("x");
    encoder().undo();
    QCOMPARE(marks(), QString("*..."));
    decoder().undo();
    QCOMPARE(marks(), QString("...."));
}

void TestCustomCodeGui::editsStayFromItemToItem()
{
    open("Objects.Ship");
    select(0);
    encoder().insertPlainText("one");
    select(1);
    QVERIFY(!encoder().text().contains("one"));
    decoder().insertPlainText("two");
    select(0);
    QVERIFY(encoder().text().startsWith("one"));
    select(1);
    QVERIFY(decoder().text().startsWith("two"));
    QCOMPARE(marks(), QString("**.."));
}

// The steps are gone, the edit is not.
void TestCustomCodeGui::undoOfReturnedEditKeepsMark()
{
    open("Objects.Ship");
    select(0);
    encoder().insertPlainText("one");
    select(1);
    select(0);
    encoder().insertPlainText("two");
    encoder().undo();
    QCOMPARE(marks(), QString("*..."));
    QVERIFY(encoder().text().startsWith("one"));
}

void TestCustomCodeGui::lookingAtItemsMarksNothing()
{
    project().addCustomCoding("HLAobjectRoot.Ship.Heading", {"a\r\nb\r\n", "\r"});
    open("Objects.Ship");
    for (const int row : {0, 1, 2, 3, 0, 1})
        select(row);
    QCOMPARE(marks(), QString("...."));
    QVERIFY(project().customCodings().size() == 1);
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

void TestCustomCodeGui::saveStoresBothTextsOfCurrentItem()
{
    open("Objects.Ship");
    select(0);
    encoder().setPlainText("enc\n");
    decoder().selectAll();
    decoder().insertPlainText("dec");
    save();
    QCOMPARE(printed(coding("HLAobjectRoot.Ship.Heading")), QString("enc\n|dec"));
    QCOMPARE(marks(), QString("...."));
    QVERIFY(!myGui->hasUnsavedEdits());
    QCOMPARE(encoder().text(), QString("enc\n"));
}

void TestCustomCodeGui::saveLeavesEditsOfOtherItems()
{
    open("Objects.Ship");
    select(0);
    encoder().insertPlainText("one");
    select(1);
    encoder().insertPlainText("two");
    save();
    QCOMPARE(marks(), QString("*..."));
    QCOMPARE(project().customCodings().size(), std::size_t(1));
    QVERIFY(coding("HLAobjectRoot.Ship.lamp").first.startsWith("two"));
}

void TestCustomCodeGui::saveOfUntouchedItemStoresItsTexts()
{
    open("Interactions.Call");
    select(0);
    save();
    const DtOmtProject::DtCodingPair pair = coding("HLAinteractionRoot.Call.Text");
    QCOMPARE(printed(pair), encoder().text() + "|" + decoder().text());
    QVERIFY(encoder().text().contains("interaction.text()"));
}

void TestCustomCodeGui::editBehindSaveIsMarkedAgain()
{
    open("Objects.Ship");
    select(0);
    encoder().insertPlainText("one");
    save();
    encoder().insertPlainText("two");
    QCOMPARE(marks(), QString("*..."));
    encoder().undo();
    QCOMPARE(marks(), QString("...."));
    QVERIFY(encoder().text().startsWith("one")); // as it was saved, no further
}

void TestCustomCodeGui::savedTextIsOfferedAgain()
{
    open("Objects.Ship");
    select(0);
    encoder().insertPlainText("one");
    save();
    open("Objects.Ship");
    select(0);
    QVERIFY(encoder().text().startsWith("one"));
}

void TestCustomCodeGui::saveWritesProjectFile()
{
    open("Objects.Ship");
    select(0);
    encoder().insertPlainText("findMe();");
    QVERIFY(!readTextFile(myProgram->path("models/p.qxproj")).contains("findMe"));
    save();
    QVERIFY(readTextFile(myProgram->path("models/p.qxproj")).contains("findMe();"));
}

void TestCustomCodeGui::saveWithoutProjectKeepsEdits()
{
    open("Objects.Ship");
    select(0);
    encoder().insertPlainText("x");
    myWindow->loadOmtProject(DtFilename("nowhere.qxproj")); // leaves no project
    QVERIFY(myWindow->omtProject() == nullptr);
    save();
    QCOMPARE(marks(), QString("*..."));
    QCOMPARE(myWindow->statusBar()->currentMessage(), QString("No Project loaded... Cannot save OMT Project."));
    select(1); // and the texts without a project are the default ones
    QVERIFY(encoder().text().contains("DtWriteValue"));
}

void TestCustomCodeGui::saveWithoutItemDoesNothing()
{
    open("Objects.Ship");
    save();
    QVERIFY(project().customCodings().empty());
}

void TestCustomCodeGui::closeWithoutEditsAsksNothing()
{
    open("Objects.Ship");
    select(0);
    myGui->show();
    const AnswerQuestion question(QMessageBox::Cancel);
    QVERIFY(myGui->close());
    QCOMPARE(question.seen(), QStringList());
}

void TestCustomCodeGui::closeAsksForEdits()
{
    open("Objects.Ship");
    myGui->show();
    select(0);
    encoder().insertPlainText("x");
    const AnswerQuestion question(QMessageBox::Cancel);
    QVERIFY(!myGui->close());
    QCOMPARE(question.seen(), QStringList("The document has been modified.|Do you want to save your changes?"));
    QVERIFY(myGui->isVisible());
    QCOMPARE(marks(), QString("*..."));
}

void TestCustomCodeGui::closeAndSaveStoresEveryEditedItem()
{
    open("Objects.Ship");
    myGui->show();
    for (const int row : {0, 2})
    {
        select(row);
        encoder().insertPlainText(QString("edit%1").arg(row));
    }
    select(1);
    const AnswerQuestion question(QMessageBox::Save);
    QVERIFY(myGui->close());
    QCOMPARE(project().customCodings().size(), std::size_t(2));
    QVERIFY(coding("HLAobjectRoot.Ship.Heading").first.startsWith("edit0"));
    QVERIFY(coding("HLAobjectRoot.Ship.default").first.startsWith("edit2"));
    const QByteArray file = readTextFile(myProgram->path("models/p.qxproj"));
    QVERIFY(file.contains("edit0") && file.contains("edit2"));
}

void TestCustomCodeGui::closeAndDiscardStoresNothing()
{
    open("Objects.Ship");
    myGui->show();
    select(0);
    encoder().insertPlainText("x");
    const AnswerQuestion question(QMessageBox::Discard);
    QVERIFY(myGui->close());
    QVERIFY(project().customCodings().empty());
}

void TestCustomCodeGui::closeAndSaveWithoutProjectStaysOpen()
{
    open("Objects.Ship");
    myGui->show();
    select(0);
    encoder().insertPlainText("x");
    myWindow->loadOmtProject(DtFilename("nowhere.qxproj"));
    const AnswerQuestion question(QMessageBox::Save);
    QVERIFY(!myGui->close());
    QVERIFY(myGui->isVisible());
    QCOMPARE(marks(), QString("*..."));
}

void TestCustomCodeGui::textsSurviveSaveAndLoad_data()
{
    QTest::addColumn<QByteArray>("text");
    QTest::newRow("line feeds") << QByteArray("a\n\nb\n");
    QTest::newRow("both") << QByteArray("a\r\n\r\nb\r\n");
    QTest::newRow("carriage returns") << QByteArray("a\r\rb");
    QTest::newRow("mixed") << QByteArray("a\r\nb\nc\rd");
    QTest::newRow("tabs and blanks") << QByteArray("\tif (a)\n\t\t b;  \n ");
    QTest::newRow("other languages") << QByteArray("// h\xc3\xa4ngt \xe2\x82\xac \xe6\xbc\xa2 \xf0\x9f\x98\x80");
    QTest::newRow("no-break space") << QByteArray("a\xc2\xa0z");
    QTest::newRow("markup") << QByteArray("if (a < b && \"c\" > 'd') // <?x?> <!Prefix!>");
    QTest::newRow("bar") << QByteArray("a\n|b\n|| c");
    QTest::newRow("empty") << QByteArray("");
}

// Looked at and saved, read from the file and saved again: it is the same text, byte by byte.
void TestCustomCodeGui::textsSurviveSaveAndLoad()
{
    QFETCH(QByteArray, text);
    const char* const theKey = "HLAobjectRoot.Ship.Heading";
    const DtString value(text.toStdString());
    project().addCustomCoding(theKey, {value, value});
    for (int pass = 0; pass < 2; ++pass)
    {
        open("Objects.Ship");
        select(0);
        save();
        myWindow->loadOmtProject(DtFilename(myProgram->bytes(myProgram->path("models/p.qxproj"))));
        QVERIFY(myWindow->omtProject() != nullptr);
        QCOMPARE(QByteArray(coding(theKey).first.c_str()), text);
        QCOMPARE(QByteArray(coding(theKey).second.c_str()), text);
    }
}

void TestCustomCodeGui::lineEndsOfEditedTextStay_data()
{
    QTest::addColumn<QByteArray>("old");
    QTest::addColumn<QByteArray>("edited"); // with a line and a no-break space in front
    QTest::newRow("line feeds") << QByteArray("a\n\tb\n") << QByteArray("x\xc2\xa0\na\n\tb\n");
    QTest::newRow("both") << QByteArray("a\r\n\tb\r\n") << QByteArray("x\xc2\xa0\r\na\r\n\tb\r\n");
    QTest::newRow("carriage returns") << QByteArray("a\r\tb") << QByteArray("x\xc2\xa0\ra\r\tb");
    QTest::newRow("none") << QByteArray("a") << QByteArray("x\xc2\xa0\na");
}

void TestCustomCodeGui::lineEndsOfEditedTextStay()
{
    QFETCH(QByteArray, old);
    QFETCH(QByteArray, edited);
    const char* const theKey = "HLAobjectRoot.Ship.Heading";
    project().addCustomCoding(theKey, {DtString(old.toStdString()), ""});
    open("Objects.Ship");
    select(0);
    encoder().insertPlainText(QString::fromUtf8("x\xc2\xa0\n"));
    select(1);
    select(0);
    save();
    QCOMPARE(QByteArray(coding(theKey).first.c_str()), edited);
    myWindow->loadOmtProject(DtFilename(myProgram->bytes(myProgram->path("models/p.qxproj"))));
    QCOMPARE(QByteArray(coding(theKey).first.c_str()), edited);
}

void TestCustomCodeGui::emptyTextIsStored()
{
    open("Objects.Ship");
    select(0);
    encoder().selectAll();
    QTest::keyClick(&encoder(), Qt::Key_Delete);
    QCOMPARE(marks(), QString("*..."));
    save();
    QCOMPARE(coding("HLAobjectRoot.Ship.Heading").first, DtString());
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
            decoder().text().contains("state.setHeading(value)"));
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

void TestCustomCodeGui::saveButtonWorksByMouseAndKey()
{
    open("Objects.Ship");
    myGui->show();
    QApplication::setActiveWindow(myGui);
    QVERIFY(QTest::qWaitForWindowActive(myGui));
    select(0);
    QTest::mouseClick(&find<QPushButton>("mySaveButton"), Qt::LeftButton);
    QCOMPARE(project().customCodings().size(), std::size_t(1));
    select(1);
    encoder().setFocus();
    QTest::keyClick(&encoder(), Qt::Key_S, Qt::ControlModifier);
    QTRY_COMPARE(project().customCodings().size(), std::size_t(2));
}

QX_REGISTER_TEST(TestCustomCodeGui)
#include "testCustomCodeGui.moc"
