// Edits in the custom code window: what marks them, saves them, and asks for them.

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

class TestCustomCodeEdits : public QObject, private DtCustomCodeFixture
{
    Q_OBJECT

private Q_SLOTS:
    void init() { openProgram(); }
    void cleanup() { closeProgram(); }

    void editedItemIsMarked();
    void markIsSeenInNarrowColumn();
    void undoTakesMarkAwayAndRedoPutsItBack();
    void markStaysWhileOtherTextIsEdited();
    void editsStayFromItemToItem();
    void undoOfReturnedEditKeepsMark();
    void lookingAtItemsMarksNothing();
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
    void saveButtonWorksByMouseAndKey();
};

void TestCustomCodeEdits::editedItemIsMarked()
{
    open("Objects.Ship");
    select(1);
    QCOMPARE(marks(), QString("...."));
    encoder().insertPlainText("x");
    QCOMPARE(marks(), QString(".*.."));
    QCOMPARE(list().topLevelItem(1)->text(0), QString("*HLAobjectRoot.Ship.lamp"));
    QVERIFY(myGui->hasUnsavedEdits());
}

// Keys are long: the column has room for all of each, and in a narrow one the name of the member is left.
void TestCustomCodeEdits::markIsSeenInNarrowColumn()
{
    open("Objects.Ship");
    QCOMPARE(list().textElideMode(), Qt::ElideLeft);
    myGui->show();
    const auto room = [this](const char* text)
    { return list().columnWidth(0) - list().fontMetrics().horizontalAdvance(text); };
    QVERIFY(room("HLAobjectRoot.Ship.Heading") > 0);
    select(0);
    encoder().insertPlainText("x");
    QVERIFY(room("*HLAobjectRoot.Ship.Heading") > 0);
}

void TestCustomCodeEdits::undoTakesMarkAwayAndRedoPutsItBack()
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

void TestCustomCodeEdits::markStaysWhileOtherTextIsEdited()
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

void TestCustomCodeEdits::editsStayFromItemToItem()
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
void TestCustomCodeEdits::undoOfReturnedEditKeepsMark()
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

void TestCustomCodeEdits::lookingAtItemsMarksNothing()
{
    project().addCustomCoding("HLAobjectRoot.Ship.Heading", {"a\r\nb\r\n", "\r"});
    open("Objects.Ship");
    for (const int row : {0, 1, 2, 3, 0, 1})
        select(row);
    QCOMPARE(marks(), QString("...."));
    QVERIFY(project().customCodings().size() == 1);
}

void TestCustomCodeEdits::saveStoresBothTextsOfCurrentItem()
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

void TestCustomCodeEdits::saveLeavesEditsOfOtherItems()
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

void TestCustomCodeEdits::saveOfUntouchedItemStoresItsTexts()
{
    open("Interactions.Call");
    select(0);
    save();
    const DtOmtProject::DtCodingPair pair = coding("HLAinteractionRoot.Call.Text");
    QCOMPARE(printed(pair), encoder().text() + "|" + decoder().text());
    QVERIFY(encoder().text().contains("interaction.text()"));
}

void TestCustomCodeEdits::editBehindSaveIsMarkedAgain()
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

void TestCustomCodeEdits::savedTextIsOfferedAgain()
{
    open("Objects.Ship");
    select(0);
    encoder().insertPlainText("one");
    save();
    open("Objects.Ship");
    select(0);
    QVERIFY(encoder().text().startsWith("one"));
}

void TestCustomCodeEdits::saveWritesProjectFile()
{
    open("Objects.Ship");
    select(0);
    encoder().insertPlainText("findMe();");
    QVERIFY(!readTextFile(myProgram->path("models/p.qxproj")).contains("findMe"));
    save();
    QVERIFY(readTextFile(myProgram->path("models/p.qxproj")).contains("findMe();"));
}

void TestCustomCodeEdits::saveWithoutProjectKeepsEdits()
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

void TestCustomCodeEdits::saveWithoutItemDoesNothing()
{
    open("Objects.Ship");
    save();
    QVERIFY(project().customCodings().empty());
}

void TestCustomCodeEdits::closeWithoutEditsAsksNothing()
{
    open("Objects.Ship");
    select(0);
    myGui->show();
    const AnswerQuestion question(QMessageBox::Cancel);
    QVERIFY(myGui->close());
    QCOMPARE(question.seen(), QStringList());
}

void TestCustomCodeEdits::closeAsksForEdits()
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

void TestCustomCodeEdits::closeAndSaveStoresEveryEditedItem()
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

void TestCustomCodeEdits::closeAndDiscardStoresNothing()
{
    open("Objects.Ship");
    myGui->show();
    select(0);
    encoder().insertPlainText("x");
    const AnswerQuestion question(QMessageBox::Discard);
    QVERIFY(myGui->close());
    QVERIFY(project().customCodings().empty());
}

void TestCustomCodeEdits::closeAndSaveWithoutProjectStaysOpen()
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

void TestCustomCodeEdits::saveButtonWorksByMouseAndKey()
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

QX_REGISTER_TEST(TestCustomCodeEdits)
#include "testCustomCodeEdits.moc"
