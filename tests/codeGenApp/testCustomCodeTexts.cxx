// The texts of the custom code window: what stands in them at first, their tokens, and how they are stored.

#include "registerTest.h"

#include "customCodeFixture.h"
#include "fileGenerator/classFileWriter.h"

class TestCustomCodeTexts : public QObject, private DtCustomCodeFixture
{
    Q_OBJECT

private Q_SLOTS:
    void init() { openProgram(); }
    void cleanup() { closeProgram(); }

    void headerNamesFunction_data();
    void headerNamesFunction();
    void headerTakesPrefixAndRename();
    void tokenHasItsValue_data();
    void tokenHasItsValue();
    void tokensAreReplacedInOrder();
    void everyTokenOfTheTemplatesIsKnown();
    void longNamesTakeNoNumbersOfTheGeneratedClasses();
    void nothingIsReplacedWithoutMember();
    void defaultTextFollowsDatatype_data();
    void defaultTextFollowsDatatype();
    void storedTextGoesAheadOfDefault();
    void missingTemplateIsToldAndEmpty();
    void blankLinesOfTemplateStay();
    void textsSurviveSaveAndLoad_data();
    void textsSurviveSaveAndLoad();
    void lineEndsOfEditedTextStay_data();
    void lineEndsOfEditedTextStay();
    void emptyTextIsStored();

private:
    QString decoded(const char* line) const
    {
        DtString text(line);
        myGui->decodeFileLine(text);
        return QString::fromUtf8(text.c_str());
    }
};

void TestCustomCodeTexts::headerNamesFunction_data()
{
    QTest::addColumn<QString>("path");
    QTest::addColumn<QString>("encoder");
    QTest::addColumn<QString>("decoder");
    const struct
    {
        const char* name;
        QString path, coder, attribute, argument;
    } theRows[] = {
        {"object",      "Objects.Ship",      "DtShip",      "Heading", "DtShipStateRepository& state"},
        {"interaction", "Interactions.Call", "DtCallInter", "Text",    "DtCallInter& interaction"    },
    };
    const QString encoder = "bool %1Encoder::encode%2(const %3, DtWireWriter& writer)";
    const QString decoder = "bool %1Decoder::decode%2(%3, DtWireReader& reader)";
    for (const auto& row : theRows)
        QTest::newRow(row.name) << row.path << encoder.arg(row.coder, row.attribute, row.argument)
                                << decoder.arg(row.coder, row.attribute, row.argument);
}

void TestCustomCodeTexts::headerNamesFunction()
{
    QFETCH(QString, path);
    open(qPrintable(path));
    select(0);
    QTEST(find<QLabel>("myEncHeader").text(), "encoder");
    QTEST(find<QLabel>("myDecHeader").text(), "decoder");
}

void TestCustomCodeTexts::headerTakesPrefixAndRename()
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

void TestCustomCodeTexts::tokenHasItsValue_data()
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

void TestCustomCodeTexts::tokenHasItsValue()
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
void TestCustomCodeTexts::tokensAreReplacedInOrder()
{
    myWindow->setClassPrefix("<!AttributeName!><!AttributeOctets!>");
    open("Objects.Ship");
    select(0);
    QCOMPARE(decoded("<!Prefix!>"), QString("<!AttributeName!>8"));
}

void TestCustomCodeTexts::everyTokenOfTheTemplatesIsKnown()
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

// The window shows a long name with the number that it has or that is free, and leaves that free.
void TestCustomCodeTexts::longNamesTakeNoNumbersOfTheGeneratedClasses()
{
    const QByteArray tail(150, 'e');
    const QByteArray known = "known" + tail, first = "first" + tail, second = "second" + tail, type = "type" + tail;
    const auto numberOf = [](const QByteArray& name)
    { return QString::fromUtf8(DtClassFileWriter::identifierOf(name.constData()).c_str()).mid(50).toInt(); };
    const int last = numberOf(known);
    QCOMPARE(myWindow->loadFile(
                 myProgram->model(
                     "long.xml", moduleText(objectText("Pier", attributeText(known, type) + attributeText(first, type) +
                                                                   attributeText(second, type)))),
                 ""),
             1);
    myWindow->addAllObjectInteractions();
    open("Objects.Pier");
    QStringList shown;
    for (int row = 0; row < 3; ++row)
    {
        select(row);
        shown += decoded("<!attributeName!>");
        QCOMPARE(decoded("<!attributeName!>"), shown.last());
    }
    shown += decoded("<!AttributeDatatype!>");
    QCOMPARE(shown[0], "known" + QString(45, 'e') + QString::number(last));
    QSet<int> numbers;
    for (const QString& name : shown)
        numbers += name.mid(50).toInt();
    QCOMPARE(numbers, (QSet<int>{last, last + 1, last + 2, last + 3}));
    QCOMPARE(numberOf("next" + tail), last + 1);
}

void TestCustomCodeTexts::nothingIsReplacedWithoutMember()
{
    open("Objects.Ship");
    QCOMPARE(decoded("<!Prefix!>"), QString("<!Prefix!>"));
}

void TestCustomCodeTexts::defaultTextFollowsDatatype_data()
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

void TestCustomCodeTexts::defaultTextFollowsDatatype()
{
    QFETCH(QString, path);
    QFETCH(int, row);
    openProgramOnOwnData();
    for (const char* kind : {"Encoder", "Decoder", "EnumEncoder", "EnumDecoder", "IntEncoder", "IntDecoder",
                             "EnumIntEncoder", "EnumIntDecoder"})
        writeTextFile(QString("../data/templates/customUITemplates/custom%1.tlt").arg(kind), kind);
    open(qPrintable(path));
    select(row);
    QTEST(encoder().text(), "encoder");
    QTEST(decoder().text(), "decoder");
}

void TestCustomCodeTexts::storedTextGoesAheadOfDefault()
{
    project().addCustomCoding("HLAobjectRoot.Ship.Heading", {"own encoder", "own decoder"});
    open("Objects.Ship");
    select(0);
    QCOMPARE(encoder().text() + "|" + decoder().text(), QString("own encoder|own decoder"));
    select(1);
    QVERIFY(encoder().text().contains("DtWriteValue") && decoder().text().contains("DtReadValue"));
}

void TestCustomCodeTexts::missingTemplateIsToldAndEmpty()
{
    openProgramOnOwnData();
    QVERIFY(QFile::remove("../data/templates/customUITemplates/customEncoder.tlt"));
    open("Objects.Ship");
    DtCapture capture(DtWarn);
    select(0);
    QCOMPARE(capture.text(), QString("Cannot read ../data/templates/customUITemplates/customEncoder.tlt\n"));
    QCOMPARE(encoder().text(), QString());
}

void TestCustomCodeTexts::blankLinesOfTemplateStay()
{
    openProgramOnOwnData();
    writeTextFile("../data/templates/customUITemplates/customEncoder.tlt", "\n\ta\n\n<!AttributeName!>\n\n");
    open("Objects.Ship");
    select(0);
    QCOMPARE(encoder().text(), QString("\n\ta\n\nHeading\n")); // the last line end alone goes
}

void TestCustomCodeTexts::textsSurviveSaveAndLoad_data()
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
void TestCustomCodeTexts::textsSurviveSaveAndLoad()
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

void TestCustomCodeTexts::lineEndsOfEditedTextStay_data()
{
    QTest::addColumn<QByteArray>("old");
    QTest::addColumn<QByteArray>("edited"); // with a line and a no-break space in front
    QTest::newRow("line feeds") << QByteArray("a\n\tb\n") << QByteArray("x\xc2\xa0\na\n\tb\n");
    QTest::newRow("both") << QByteArray("a\r\n\tb\r\n") << QByteArray("x\xc2\xa0\r\na\r\n\tb\r\n");
    QTest::newRow("carriage returns") << QByteArray("a\r\tb") << QByteArray("x\xc2\xa0\ra\r\tb");
    QTest::newRow("none") << QByteArray("a") << QByteArray("x\xc2\xa0\na");
}

void TestCustomCodeTexts::lineEndsOfEditedTextStay()
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

void TestCustomCodeTexts::emptyTextIsStored()
{
    open("Objects.Ship");
    select(0);
    encoder().selectAll();
    QTest::keyClick(&encoder(), Qt::Key_Delete);
    QCOMPARE(marks(), QString("*..."));
    save();
    QCOMPARE(coding("HLAobjectRoot.Ship.Heading").first, DtString());
}

QX_REGISTER_TEST(TestCustomCodeTexts)
#include "testCustomCodeTexts.moc"
