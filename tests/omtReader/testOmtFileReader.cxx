#include "foundation/mtlReader.h"
#include "omtText.h"
#include "registerTest.h"

#include <QtCore/QDir>
#include <QtCore/QElapsedTimer>
#include <QtTest/QtTest>

#include <cstdint>
#include <stdexcept>
#include <sys/stat.h>

namespace
{
const qint64 theTimeLimit = 20000; // milliseconds; a work that is not proportional to the text takes far longer

int openFiles()
{
    return QDir("/proc/self/fd").entryList(QDir::NoDotAndDotDot | QDir::AllEntries | QDir::System).size();
}

class DtThrowingStream : public DtlInputStream
{
    int readByte() override { throw std::runtime_error("no bytes"); }
};

class DtReaderWithBadStream : public DtOMTFileReader
{
public:
    enum class Fault
    {
        NoStream,
        ThrowingStream
    };
    explicit DtReaderWithBadStream(Fault fault) : myFault(fault) {}

protected:
    std::unique_ptr<DtlInputStream> openStream(FILE* /*file*/) override
    {
        return myFault == Fault::ThrowingStream ? std::make_unique<DtThrowingStream>() : nullptr;
    }

private:
    Fault myFault;
};

class DtReaderWithHandles : public DtOMTFileReader
{
public:
    QStringList names;

private:
    void setAttributeHandles(DtObjectClassFedNode* node) override { names += "attributes of " + toQt(node->getName()); }
    void setParameterHandles(DtInteractionClassFedNode* node) override
    {
        names += "parameters of " + toQt(node->getName());
    }
};

class DtReaderWithNamesOfItsOwn : public DtOMTFileReader
{
    void processName(const DtlObjPtr& /*list*/, DtOMTTree* tree) override { tree->setName("own"); }
    void processAttribute(const DtlObjPtr& list, DtObjectClassFedNode* objectClass) override
    {
        DtOMTFileReader::processAttribute(list, objectClass);
        objectClass->getAttributes().back()->setDescription("own");
    }
};

const char theFamily[] =
    "(Class (ID 1) (Name \"Base\") (Attribute (Name \"a\")))"
    "(Class (ID 2) (Name \"Ship\") (SuperClass 1) (Attribute (Name \"b\")) (Attribute (Name \"c\")))"
    "(Class (ID 3) (Name \"Other\"))"
    "(Interaction (ID 1) (Name \"Hit\") (Parameter (Name \"p\")))"
    "(Interaction (ID 2) (Name \"Kill\") (SuperInteraction 1) (Parameter (Name \"q\")))";
} // namespace

class TestOmtFileReader : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    // After each of these tests the readers have put everything back.
    void init() { myOpenFiles = openFiles(); }
    void cleanup()
    {
        QVERIFY(DtMtlReadEscapeChar == nullptr);
        QCOMPARE(openFiles(), myOpenFiles);
    }

    void fileThatCannotBeOpened_data()
    {
        QTest::addColumn<QByteArray>("name");
        for (const char* name : {"none.omt", "", "/", "/dev/null", "/none/m.omt"})
            QTest::newRow(name) << QByteArray(name);
    }

    void fileThatCannotBeOpened()
    {
        QFETCH(QByteArray, name);
        DtOMTFileReader reader;
        const DtOutcome outcome = readName(name, reader);
        QVERIFY(outcome.hasThrown);
        QCOMPARE(outcome.error, QString("Failed to Open OMT File"));
    }

    void pipeIsNotOpened()
    {
        QTemporaryDir directory;
        const QByteArray name = directory.filePath("m.omt").toUtf8();
        QCOMPARE(mkfifo(name.constData(), 0600), 0);
        DtOMTFileReader reader;
        QCOMPARE(readName(name, reader).error, QString("Failed to Open OMT File"));
    }

    // Lists, projects and generated code all hold UTF-8, so a name must be the same text in all of them.
    void textsAreTakenToUtf8_data()
    {
        QTest::addColumn<QByteArray>("name");
        QTest::addColumn<QByteArray>("read");
        const struct
        {
            const char* name;
            QByteArray text, read;
        } theRows[] = {
            {"Latin-1", "M\xe9tro",     "M\xc3\xa9tro"},
            {"UTF-8",   "M\xc3\xa9tro", "M\xc3\xa9tro"},
            {"ASCII",   "Metro",        "Metro"       },
        };
        for (const auto& row : theRows)
            QTest::newRow(row.name) << row.text << row.read;
    }
    void textsAreTakenToUtf8()
    {
        QFETCH(QByteArray, name);
        QFETCH(QByteArray, read);
        const DtTreePointer tree =
            readElements("(Name \"" + name + "\")(POC (LastName \"" + name + "\"))(Class (ID 1) (Name \"" + name +
                         "\") (Attribute (Name \"" + name + "\")))");
        QVERIFY(tree != nullptr);
        QCOMPARE(tree->getName().c_str(), read.constData());
        const DtObjectClassFedNode* node = *tree->getObjectClassNodeBegin();
        QCOMPARE(node->getName().c_str(), read.constData());
        QCOMPARE(node->getAttributes().front()->getName().c_str(), read.constData());
    }

    void fileIsNotLookedForBelowRtiConfig()
    {
        QTemporaryDir directory;
        writeTextFile(directory.filePath("m.omt"), "(ObjectModel)");
        const DtWithEnvironment environment("RTI_CONFIG", directory.path().toUtf8().constData());
        DtOMTFileReader reader;
        QCOMPARE(readName("m.omt", reader).error, QString("Failed to Open OMT File"));
    }

    void readingWithoutAStreamFails()
    {
        DtReaderWithBadStream reader(DtReaderWithBadStream::Fault::NoStream);
        const DtOutcome outcome = readText("(ObjectModel)", reader);
        QVERIFY(outcome.hasThrown);
        QCOMPARE(outcome.error, QString("Failed to Open OMT Input Stream"));
    }

    void foreignExceptionLeavesNothingOpen() // the rest is in cleanup()
    {
        DtReaderWithBadStream reader(DtReaderWithBadStream::Fault::ThrowingStream);
        QVERIFY_EXCEPTION_THROWN(readText("(ObjectModel)", reader), std::runtime_error);
    }

    void textWithoutAModel_data()
    {
        QTest::addColumn<QByteArray>("text");
        QTest::addColumn<QString>("error");
        const auto empty = [](const char* name, const QByteArray& text)
        { QTest::newRow(name) << text << "OMT Input file is empty"; };
        empty("nothing", "");
        empty("blanks", " \r\n\t");
        empty("comment", "; (ObjectModel)");
        empty("closing parenthesis", ")");
        empty("symbol of the end", "eof (ObjectModel)");
        const auto none = [](const char* name, const QByteArray& text)
        { QTest::newRow(name) << text << "Could not find ObjectModel tag"; };
        none("symbol", "hello");
        none("NUL byte", QByteArray("\0", 1));
        none("other list", "(DIF HLA-OMT v1.3)");
        none("symbol of the end behind another object", "(DIF) eof (ObjectModel)");
        none("bare tag", "ObjectModel");
        none("tag within another list", "(DIF (ObjectModel))");
        none("tag within a list that does not end", "(DIF (ObjectModel)");
        none("head that is a list", "((ObjectModel))");
        none("head that is a string", "(\"ObjectModel\")");
        none("head in small letters", "(objectmodel)");
        none("longer head", "(ObjectModels)");
        none("later element", "(a ObjectModel)");
        none("empty list", "()");
        none("string without an end", "\"(ObjectModel)");
        none("model in a comment", "a ; (ObjectModel)");
        none("XML", "<?xml version=\"1.0\"?>\n<objectModel/>\n");
    }

    void textWithoutAModel()
    {
        QFETCH(QByteArray, text);
        const DtOutcome outcome = readText(text);
        QVERIFY(outcome.hasThrown);
        QVERIFY(outcome.tree == nullptr);
        QTEST(outcome.error, "error");
    }

    void exceptionHasTheTextOfTheError()
    {
        DtOMTFileReader reader;
        try
        {
            reader.readFile("none.omt", nullptr);
            QFAIL("no exception");
        }
        catch (const DtException& exception)
        {
            QCOMPARE(toQt(exception.message()), "DtException: " + toQt(reader.getLastError()));
        }
    }

    void errorStaysUntilItIsCleared()
    {
        DtOMTFileReader reader;
        QCOMPARE(toQt(reader.getLastError()), QString());
        readText("", reader);
        QVERIFY(readText("(ObjectModel)", reader).tree != nullptr);
        QCOMPARE(toQt(reader.getLastError()), QString("OMT Input file is empty"));
        reader.clearLastError();
        QCOMPARE(toQt(reader.getLastError()), QString());
    }

    void whatStandsAroundTheModelIsSkipped_data()
    {
        QTest::addColumn<QByteArray>("before");
        QTest::addColumn<QByteArray>("after");
        const auto row = [](const char* name, const char* before, const char* after = "")
        { QTest::newRow(name) << QByteArray(before) << QByteArray(after); };
        row("DIF list", "(DIF HLA-OMT v1.3 (TYPE Single))\r\n");
        row("OMDT list", "(OMDT v1.3 (Name \"Not me\"))\n");
        row("objects", "a 12 \"(ObjectModel)\" () ((ObjectModel)) ");
        row("comment", "; (ObjectModel (Name \"Not me\"))\n");
        row("byte order mark", "\xEF\xBB\xBF");
        row("closing parentheses", ") )) ");
        row("second model", "", "(ObjectModel (Name \"Not me\"))");
        row("rest without an end", "", "(a \"");
    }

    void whatStandsAroundTheModelIsSkipped()
    {
        QFETCH(QByteArray, before);
        QFETCH(QByteArray, after);
        const DtOutcome outcome = readText(before + "(ObjectModel (Name \"M\"))" + after);
        QVERIFY2(outcome.tree != nullptr, qPrintable(outcome.error));
        QCOMPARE(toQt(outcome.tree->getName()), QString("M"));
        QCOMPARE(outcome.warnings, QString());
    }

    void modelThatIsADottedPairGivesNoTree()
    {
        const DtOutcome outcome = readText("(ObjectModel . x)");
        QVERIFY(outcome.tree == nullptr);
        QVERIFY(!outcome.hasThrown);
        QCOMPARE(outcome.error, QString("Could not find ObjectModel tree"));
    }

    void modelThatIsNoListGivesNoTree()
    {
        DtOMTFileReader reader;
        for (DtlObjPtr object : {DtcMakeSymbol("ObjectModel"), DtlObjPtr(new DtlAtom(DtlObj::Kind::String, "x"))})
        {
            reader.clearLastError();
            QVERIFY(reader.processObjectModel(object) == nullptr);
            QCOMPARE(toQt(reader.getLastError()), QString("Could not find ObjectModel tree"));
        }
    }

    void emptyModelHasRootsAndAPointOfContact()
    {
        const DtTreePointer tree = readElements("");
        QCOMPARE(int(tree->hlaVersion()), 1);
        QCOMPARE(objectClasses(*tree), QString("ObjectRoot\n"));
        QCOMPARE(interactionClasses(*tree), QString("InteractionRoot\n"));
        QCOMPARE(toQt(tree->objectClassRoot()->getDescriptor()), QString("Predefined object root"));
        QCOMPARE(toQt(tree->interactionClassRoot()->getDescriptor()), QString("Predefined Interaction Root"));
        QCOMPARE(tree->objectClassRoot()->getIdentifier(), 0);
        QCOMPARE(tree->getPOCList().size(), std::size_t(1));
        QCOMPARE(contactOf(*tree), QString("||||||"));
        QCOMPARE(identificationOf(*tree), QString("|||||||"));
    }

    void classesHangUnderTheirSuperclasses()
    {
        const DtTreePointer tree = readElements(theFamily);
        QCOMPARE(objectClasses(*tree), QString("ObjectRoot\n  Base [a]\n    Ship [b c]\n  Other\n"));
        QCOMPARE(interactionClasses(*tree), QString("InteractionRoot\n  Hit [p]\n    Kill [q]\n"));
        QCOMPARE(toQt(tree->getObjectClassNodeByID(2)->getFullName()), QString("ObjectRoot.Base.Ship"));
        QCOMPARE(toQt(tree->getInteractionClassNodeByID(2)->getFullName()), QString("InteractionRoot.Hit.Kill"));
        QCOMPARE(namesOf(tree->getObjectClassNodeBegin(), tree->getObjectClassNodeEnd()),
                 QString("Base Ship Other ObjectRoot")); // the root comes behind what was read
    }

    void superclassMayComeLater()
    {
        QCOMPARE(objectClasses(*readElements("(Class (ID 2) (Name \"Ship\") (SuperClass 1))"
                                             "(Class (ID 1) (Name \"Base\"))")),
                 QString("ObjectRoot\n  Base\n    Ship\n"));
    }

    void unknownSuperclassIsTheRoot()
    {
        const DtOutcome outcome = readText("(ObjectModel (Class (ID 1) (Name \"Ship\") (SuperClass 7))"
                                           "(Interaction (ID 1) (Name \"Hit\") (SuperInteraction -7)))");
        QCOMPARE(objectClasses(*outcome.tree), QString("ObjectRoot\n  Ship\n"));
        QCOMPARE(interactionClasses(*outcome.tree), QString("InteractionRoot\n  Hit\n"));
        QCOMPARE(outcome.warnings, QString());
    }

    void superclassZeroIsTheRoot()
    {
        QCOMPARE(objectClasses(*readElements("(Class (ID 0) (Name \"Null\") (SuperClass 0))"
                                             "(Class (ID 1) (Name \"One\") (SuperClass 0))")),
                 QString("ObjectRoot\n  Null\n  One\n"));
    }

    void firstOfTwoClassesOfANumberIsTheSuperclass()
    {
        QCOMPARE(objectClasses(*readElements("(Class (ID 1) (Name \"First\")) (Class (ID 1) (Name \"Second\"))"
                                             "(Class (ID 2) (Name \"Below\") (SuperClass 1))"
                                             "(Class (ID 1) (Name \"Third\") (SuperClass 1))")),
                 QString("ObjectRoot\n  First\n    Below\n    Third\n  Second\n"));
    }

    void numbersOfClassesAndInteractionsAreApart()
    {
        QCOMPARE(objectClasses(*readElements("(Interaction (ID 1) (Name \"Hit\"))"
                                             "(Class (ID 2) (Name \"Ship\") (SuperClass 1))")),
                 QString("ObjectRoot\n  Ship\n"));
    }

    void classThatNamesItselfHangsUnderTheRoot()
    {
        const DtOutcome outcome = readText("(ObjectModel (Class (ID 1) (Name \"Base\") (SuperClass 1))"
                                           "(Class (ID 2) (Name \"Ship\") (SuperClass 1))"
                                           "(Interaction (ID 5) (Name \"Hit\") (SuperInteraction 5)))");
        QCOMPARE(objectClasses(*outcome.tree), QString("ObjectRoot\n  Base\n    Ship\n"));
        QCOMPARE(interactionClasses(*outcome.tree), QString("InteractionRoot\n  Hit\n"));
        QCOMPARE(outcome.warnings, QString("Warning: Class Base names itself as its superclass\n"
                                           "Warning: Interaction Hit names itself as its superclass\n"));
    }

    void classesInARingAreOutOfReach()
    {
        const DtTreePointer tree =
            readElements("(Class (ID 1) (Name \"A\") (SuperClass 2)) (Class (ID 2) (Name \"B\") (SuperClass 3))"
                         "(Class (ID 3) (Name \"C\") (SuperClass 1)) (Class (ID 4) (Name \"D\") (SuperClass 3))"
                         "(Class (ID 5) (Name \"E\"))"
                         "(Interaction (ID 1) (Name \"F\") (SuperInteraction 2))"
                         "(Interaction (ID 2) (Name \"G\") (SuperInteraction 1))");
        QCOMPARE(objectClasses(*tree), QString("ObjectRoot\n  E\n"));
        QCOMPARE(interactionClasses(*tree), QString("InteractionRoot\n"));
        QCOMPARE(namesOf(tree->getObjectClassNodeBegin(), tree->getObjectClassNodeEnd()),
                 QString("A B C D E ObjectRoot"));
        QVERIFY(tree->getObjectClassNode("ObjectRoot.A") == nullptr);
        // Asked all the same, each has an end.
        QCOMPARE(toQt(tree->getObjectClassNodeByID(1)->getFullName()), QString("A"));
        QCOMPARE(toQt(tree->getObjectClassNodeByID(4)->getFullName()), QString("D"));
        QVERIFY(tree->getObjectClassNodeByID(1)->findChildObject("A.C.B.A.C.X") == nullptr);
    }

    void classTooDeepIsPutUnderTheRoot_data()
    {
        QTest::addColumn<bool>("isRootFirst"); // in the file
        QTest::newRow("from the top down") << true;
        QTest::newRow("from the bottom up") << false;
    }

    void classTooDeepIsPutUnderTheRoot()
    {
        QFETCH(bool, isRootFirst);
        QByteArray elements;
        for (int number = 1; number <= 600; ++number)
        {
            const QByteArray name = QByteArray::number(number);
            const QByteArray element = "(Class (ID " + name + ") (Name \"c" + name + "\") (SuperClass " +
                                       QByteArray::number(number - 1) + "))";
            elements = isRootFirst ? elements + element : element + elements;
        }
        const DtOutcome outcome = readText("(ObjectModel " + elements + ")");
        QStringList names = namesOf(outcome.tree->objectClassRoot()->getChildObjects()).split(' ');
        names.sort();
        QCOMPARE(names.join(' '), QString("c1 c257 c513"));
        const DtFedNode* deepest = outcome.tree->getObjectClassNodeByID(256);
        int depth = 0;
        for (; deepest->getParentObject() != nullptr; deepest = deepest->getParentObject())
            ++depth;
        QCOMPARE(depth, 256);
        QCOMPARE(outcome.warnings,
                 QString("Warning: Class c257 has more than 255 superclasses and is put under the root\n"
                         "Warning: Class c513 has more than 255 superclasses and is put under the root\n"));
    }

    void treeWithARootIsLeftAlone()
    {
        DtOMTTree tree;
        DtObjectClassFedNode* root = addObjectClass(tree, "MyRoot", nullptr);
        auto* node = new DtObjectClassFedNode;
        tree.addObjectClassNode(node);
        DtOMTFileReader reader;
        reader.buildObjectClassTree(&tree);
        QVERIFY(tree.objectClassRoot() == root);
        QVERIFY(node->getParentObject() == nullptr);
        reader.buildInteractionClassTree(&tree);
        const DtInteractionClassFedNode* interactionRoot = tree.interactionClassRoot();
        reader.buildInteractionClassTree(&tree);
        QVERIFY(tree.interactionClassRoot() == interactionRoot);
    }

    void handlesAreSetWithAConnectionOnly()
    {
        QTemporaryDir directory;
        const QByteArray name = directory.filePath("m.omt").toUtf8();
        writeTextFile(name, QByteArray("(ObjectModel ") + theFamily + ')');
        DtReaderWithHandles reader;
        DtTreePointer(reader.readFile(name.constData(), nullptr));
        QCOMPARE(reader.names.join('\n'), QString());
        int connection = 0; // never looked into
        DtTreePointer(reader.readFile(name.constData(), reinterpret_cast<DtExerciseConn*>(&connection)));
        QCOMPARE(reader.names.join('\n'), QString("attributes of Base\nattributes of Ship\nattributes of Other\n"
                                                  "parameters of Hit\nparameters of Kill"));
    }

    void operationsAreOpenToDerivedReaders()
    {
        DtReaderWithNamesOfItsOwn reader;
        const DtTreePointer tree =
            readText("(ObjectModel (Name \"M\") (Class (ID 1) (Attribute (Name \"a\"))))", reader).tree;
        QCOMPARE(toQt(tree->getName()), QString("own"));
        QCOMPARE(toQt(tree->getObjectClassNodeByID(1)->findAttribute("a")->getDescription()), QString("own"));
    }

    void readerMayBeUsedAgain()
    {
        DtOMTFileReader reader;
        readText("(ObjectModel (Class . x))", reader);
        const DtTreePointer first = readText("(ObjectModel (Name \"a\"))", reader).tree;
        const DtTreePointer second = readText("(ObjectModel (Type \"b\"))", reader).tree;
        QCOMPARE(identificationOf(*first), QString("a|||||||"));
        QCOMPARE(identificationOf(*second), QString("||b|||||"));
    }

    void fileThatEndsEarlyIsReadWithAWarning_data()
    {
        QTest::addColumn<QByteArray>("text");
        QTest::addColumn<QString>("classes");
        QTest::newRow("parenthesis of the model")
            << QByteArray("(ObjectModel (Class (Name \"A\"))") << "ObjectRoot\n  A\n";
        QTest::newRow("parenthesis of a class")
            << QByteArray("(ObjectModel (Class (Name \"A\") (Class (Name \"B\"))") << "ObjectRoot\n  A\n";
        QTest::newRow("string") << QByteArray("(ObjectModel (Class (Name \"A))") << "ObjectRoot\n  A))\n";
        QTest::newRow("keyword") << QByteArray("(ObjectModel (Class (Name") << "ObjectRoot\n  \n";
        QTest::newRow("tag") << QByteArray("(ObjectModel") << "ObjectRoot\n";
    }

    void fileThatEndsEarlyIsReadWithAWarning()
    {
        QFETCH(QByteArray, text);
        const DtOutcome outcome = readText(text);
        QVERIFY2(outcome.tree != nullptr, qPrintable(outcome.error));
        QTEST(objectClasses(*outcome.tree), "classes");
        QCOMPARE(outcome.warnings, QString("m.omt: the file ends within a list or a string\n"));
    }

    void largeInputsAreReadInProportionalTime_data()
    {
        QTest::addColumn<QByteArray>("text");
        QTest::addColumn<QString>("error");
        const int count = 1000000;
        const QByteArray open(count, '(');
        const QByteArray close(count, ')');
        const QString noTag("Could not find ObjectModel tag");
        QTest::newRow("open parentheses") << open << noTag;
        QTest::newRow("balanced parentheses") << open + close << noTag;
        QTest::newRow("closing parentheses") << close << QString("OMT Input file is empty");
        QTest::newRow("open parentheses ahead") << open + "(ObjectModel)" << noTag;
        QTest::newRow("lists ahead") << QByteArray("(a)").repeated(count / 10) + "(ObjectModel)" << QString();
        const auto row = [](const char* name, const QByteArray& elements)
        { QTest::newRow(name) << "(ObjectModel " + elements + ")" << QString(); };
        row("open parentheses in a model", open);
        row("deep name", "(Name " + open.left(count / 5) + close.left(count / 5) + ")");
        row("deep name of a class", "(Class (Name " + open + close + "))");
        row("deep keyword", "(Class (" + open.left(count / 5) + close.left(count / 5) + "))");
        row("elements of a model", QByteArray("1 ").repeated(count));
        row("elements of a class", "(Class " + QByteArray("x ").repeated(count / 10) + ")");
        row("elements of a name", "(Name " + QByteArray("\"a\" ").repeated(count / 10) + ")");
        row("long string", "(Name \"" + QByteArray(10 * count, 'x') + "\")");
        row("string without an end", "(Name \"" + QByteArray(10 * count, '\\'));
        row("NUL bytes", "(Name \"" + QByteArray(count, '\0') + "\") " + QByteArray(count, '\0'));
        row("classes", QByteArray("(Class (ID 1) (SuperClass 1))").repeated(count / 10));
        row("enumerators", "(EnumeratedDataType " + QByteArray("(Enumeration)").repeated(count / 10) + ")");
        QByteArray chain;
        for (int number = 1; number <= count / 10; ++number)
            chain += "(Class (ID " + QByteArray::number(number) + ") (Name \"c\") (SuperClass " +
                     QByteArray::number(number + 1) + "))";
        row("chain of superclasses", chain);
    }

    void largeInputsAreReadInProportionalTime()
    {
        QFETCH(QByteArray, text);
        QElapsedTimer timer;
        timer.start();
        const DtSaved<int> quiet(DtNotifyLevel, 0); // thousands of warnings
        {
            const DtOutcome outcome = readText(text);
            QTEST(outcome.error, "error");
            QCOMPARE(outcome.tree != nullptr, outcome.error.isEmpty());
        }
        QVERIFY2(timer.elapsed() < theTimeLimit, qPrintable(QString::number(timer.elapsed())));
    }

    // A small generator of its own makes the same texts everywhere.
    void anyMixOfTokensGivesATreeOrAText()
    {
        static const QList<QByteArray> tokens =
            QByteArray(
                "(|(|(|)|)|)|.|\"a\"|12|(ObjectModel |(Class |(Name |(ID 1)|(SuperClass 1)|(Attribute |(DataType |"
                "(Enumeration |(EnumeratedDataType |(ComplexDataType |(ComplexComponent |(Interaction |"
                "(Parameter |(Note |\"|;\n|\\|eof")
                .split('|');
        const DtSaved<int> quiet(DtNotifyLevel, 0);
        std::uint32_t state = 1;
        for (int round = 0; round < 1000; ++round)
        {
            QByteArray text("(ObjectModel ");
            for (int length = 0; length < 60; ++length)
            {
                state = state * 1664525U + 1013904223U;
                text += tokens[int((state >> 16) % unsigned(tokens.size()))];
                text += ' ';
            }
            const DtOutcome outcome = readText(text);
            QVERIFY2(outcome.tree != nullptr || !outcome.error.isEmpty(), text.constData());
        }
    }

private:
    int myOpenFiles = 0;
};

QX_REGISTER_TEST(TestOmtFileReader)
#include "testOmtFileReader.moc"
