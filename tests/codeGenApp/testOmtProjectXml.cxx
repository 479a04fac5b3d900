#include "registerTest.h"
#include "testSupport.h"

#include "codeGenApp/omtProjectXmlReader.h"
#include "codeGenApp/omtProjectXmlWriter.h"
#include "fileGenerator/omtProject.h"

#include <QtCore/QTemporaryDir>
#include <QtCore/QTemporaryFile>
#include <QtTest/QtTest>

#include <libxml/parser.h>
#include <libxml/xmlmemory.h>

#include <sys/stat.h>
#include <unistd.h>

#include <cstdio>
#include <cstdlib>

namespace
{

// Collects what the process writes to its standard error stream while it lives.
class StandardError
{
public:
    StandardError()
    {
        std::fflush(stderr);
        myOld = dup(STDERR_FILENO);
        if (!myFile.open() || dup2(myFile.handle(), STDERR_FILENO) < 0)
            qFatal("cannot redirect the standard error stream");
    }
    ~StandardError() { restore(); }
    StandardError(const StandardError&) = delete;
    StandardError& operator=(const StandardError&) = delete;
    QByteArray text()
    {
        restore();
        return readTextFile(myFile.fileName());
    }

private:
    void restore()
    {
        if (myOld < 0)
            return;
        std::fflush(stderr);
        dup2(myOld, STDERR_FILENO);
        close(myOld);
        myOld = -1;
    }

    int myOld = -1;
    QTemporaryFile myFile;
};

// Lets libxml2 find no memory while it lives.
class NoMemoryForXml
{
public:
    NoMemoryForXml()
    {
        xmlInitParser();
        xmlMemGet(&myFree, &myMalloc, &myRealloc, &myStrdup);
        xmlMemSetup(
            myFree, [](std::size_t) -> void* { return nullptr; }, [](void*, std::size_t) -> void* { return nullptr; },
            [](const char*) -> char* { return nullptr; });
    }
    ~NoMemoryForXml() { xmlMemSetup(myFree, myMalloc, myRealloc, myStrdup); }
    NoMemoryForXml(const NoMemoryForXml&) = delete;
    NoMemoryForXml& operator=(const NoMemoryForXml&) = delete;

private:
    xmlFreeFunc myFree = nullptr;
    xmlMallocFunc myMalloc = nullptr;
    xmlReallocFunc myRealloc = nullptr;
    xmlStrdupFunc myStrdup = nullptr;
};

QString text(const DtString& string)
{
    return QString::fromUtf8(string.c_str());
}

template <typename Member>
Member memberOf(const char* name, const char* rename, bool noGen, const char* reference)
{
    Member member;
    member.setName(name);
    member.setRename(rename);
    member.setNoGen(noGen);
    member.setCustomGenerationRef(reference);
    return member;
}

DtOmtProject sampleProject()
{
    DtOmtProject project;
    project.setBaseName("Sample");
    project.setIncludeDir("sample");
    project.setClassPrefix("Sm");
    project.addFomDefFile("b.xml", "/models");
    project.addFomDefFile("a.xml", "");
    DtOmtObject ship;
    ship.setFullName("Root.Ship");
    ship.setName("Ship");
    ship.setRename("Vessel");
    ship.setShouldRename(true);
    ship.addAttribute(memberOf<DtOmtAttribute>("speed", "", true, "speed.txt"));
    ship.addAttribute(memberOf<DtOmtAttribute>("course", "heading", false, ""));
    project.addObject(ship);
    project.addObject("Root.Boat", false, "");
    DtOmtInteraction fire;
    fire.setFullName("Root.Fire");
    fire.addParameter(memberOf<DtOmtParameter>("target", "aim", true, ""));
    project.addInteraction(fire);
    project.addCustomCoding("Root.Ship.speed", {"if (a < b && \"c\")\n\treturn;\r\n", ""});
    project.addPredefinedType("T", "DtU8");
    return project;
}

DtString ownerOf(const DtOmtAttribute& attribute)
{
    return attribute.owningObject();
}

DtString ownerOf(const DtOmtParameter& parameter)
{
    return parameter.owningInteraction();
}

// All that the file holds, as text.
template <typename Member>
QString describe(const std::set<Member>& members)
{
    QString result;
    for (const Member& member : members)
        result += QString("  %1,%2,%3,%4,%5,%6\n")
                      .arg(text(member.name()), text(member.fullName()), text(ownerOf(member)), text(member.rename()),
                           text(member.customGenerationRef()))
                      .arg(member.noGen());
    return result;
}

QString describe(const DtOmtProject& project)
{
    QString result = text(project.baseName() + "," + project.includeDir() + "," + project.classPrefix()) + "\n";
    for (const auto& [name, directory] : project.fomDefFiles())
        result += "fom " + text(name) + "," + text(directory) + "\n";
    for (const DtOmtObject& each : project.getObjects())
        result += "object " + text(each.fullName() + "," + each.name() + "," + each.rename()) + "\n" +
                  describe(each.attributes());
    for (const DtOmtInteraction& each : project.getInteractions())
        result += "interaction " + text(each.fullName() + "," + each.name() + "," + each.rename()) + "\n" +
                  describe(each.parameters());
    for (const auto& [key, coding] : project.customCodings())
        result += "coding " + text(key) + "," + text(coding.first) + "," + text(coding.second) + "\n";
    for (const auto& [name, type] : project.predefinedTypes())
        result += "type " + text(name) + "," + text(type) + "\n";
    return result;
}

} // namespace

class TestOmtProjectXml : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();

    void writtenFileHasTheStatedForm();
    void emptyProjectHasAllParts();
    void writtenProjectReadsBackEqual();
    void defaultPredefinedTypesAreWrittenOut();
    void lineEndsAndTabsOfCustomTextSurvive();
    void latin1TextIsConverted();
    void forbiddenCharactersAreLeftOutWithWarning();
    void utf8TextStaysAsItIs();
    void writerHoldsACopyOfTheProject();
    void writingTwiceGivesTheSameFile();
    void oldFileKeepsItsMode();
    void linkIsFollowed();
    void failedSaveIsToldAndLeavesNothing();
    void withoutWriterAllFourMessagesAppearAndOldFileStays();
    void oversizedTextLeavesTheOldFile();

    void missingFileLeavesTheProjectAlone();
    void directoryLeavesTheProjectAlone();
    void contentThatIsNoXmlIsSilent_data();
    void contentThatIsNoXmlIsSilent();
    void foreignRootIsSilent();
    void orderOfElementsDoesNotMatter();
    void unknownElementsAndCommentsArePassedOver();
    void namesAreCaseSensitive();
    void nogenValue_data();
    void nogenValue();
    void carriageReturnBetweenElementsMatchesNothing();
    void fomWithoutNameIsDropped();
    void attributeWithoutNameIsDropped();
    void classWithoutNameIsAdded();
    void lastOfSeveralNamesWins();
    void missingNamesAreEmpty();
    void repeatedElementsReplaceTheEarlier();
    void missingCodingHalfIsEmpty();
    void emptyPredefinedTypesLeaveTheTableAsItIs();
    void predefinedTypesReplaceTheTable();
    void uniqueNamesComeFromTheFileOrder();
    void readRecordIsNotMarkedForRenaming();
    void declaredEncodingIsUsed();
    void instructionsAndEntitiesAreNoElements();
    void entityInsideValueIsCutOut();
    void externalEntityIsNotRead();
    void blankTextIsBlankTabAndLineFeed_data();
    void blankTextIsBlankTabAndLineFeed();

private:
    QString path(const char* name) const { return myDirectory->filePath(name); }
    DtFilename file(const char* name = "p.qxproj") const { return DtFilename(path(name).toUtf8().constData()); }
    QByteArray written(const DtOmtProject& project) const;
    DtOmtProject reread(const DtOmtProject& project) const;
    DtOmtProject read(const QByteArray& content) const;

    std::unique_ptr<QTemporaryDir> myDirectory;
};

void TestOmtProjectXml::init()
{
    myDirectory = std::make_unique<QTemporaryDir>();
    QVERIFY(myDirectory->isValid());
}

QByteArray TestOmtProjectXml::written(const DtOmtProject& project) const
{
    DtOmtProjectXmlWriter(project, file()).writeXml();
    return readTextFile(path("p.qxproj"));
}

DtOmtProject TestOmtProjectXml::reread(const DtOmtProject& project) const
{
    return read(written(project));
}

// What a new project holds when the content is read into it.
DtOmtProject TestOmtProjectXml::read(const QByteArray& content) const
{
    writeTextFile(path("read.qxproj"), content);
    DtOmtProject project;
    DtOmtProjectXmlReader(file("read.qxproj")).readXml(project);
    return project;
}

void TestOmtProjectXml::writtenFileHasTheStatedForm()
{
    QCOMPARE(QString::fromUtf8(written(sampleProject())), QString(R"(<?xml version="1.0" encoding="utf-8"?>
<project>
  <baseName name="Sample"/>
  <includeDir name="sample"/>
  <classPrefix name="Sm"/>
  <foms>
    <fom name="b.xml" location="/models"/>
    <fom name="a.xml" location=""/>
  </foms>
  <configurationRoot>
    <objectClass name="Root.Boat" rename=""/>
    <objectClass name="Root.Ship" rename="Vessel">
      <attribute name="course" rename="heading" nogen="false" customGenerationReference=""/>
      <attribute name="speed" rename="" nogen="true" customGenerationReference="speed.txt"/>
    </objectClass>
    <interactionClass name="Root.Fire" rename="">
      <parameter name="target" rename="aim" nogen="true" customGenerationReference=""/>
    </interactionClass>
    <customization>
      <editedItem name="Root.Ship.speed">
        <Encoder text="if (a &lt; b &amp;&amp; &quot;c&quot;)&#10;&#9;return;&#13;&#10;"/>
        <Decoder text=""/>
      </editedItem>
    </customization>
    <predefinedTypes>
      <type name="T" representation="DtU8"/>
    </predefinedTypes>
  </configurationRoot>
</project>
)"));
}

void TestOmtProjectXml::emptyProjectHasAllParts()
{
    QCOMPARE(QString::fromUtf8(written(DtOmtProject())), QString(R"(<?xml version="1.0" encoding="utf-8"?>
<project>
  <baseName name=""/>
  <includeDir name=""/>
  <classPrefix name=""/>
  <foms/>
  <configurationRoot>
    <customization/>
    <predefinedTypes/>
  </configurationRoot>
</project>
)"));
}

void TestOmtProjectXml::writtenProjectReadsBackEqual()
{
    QCOMPARE(describe(reread(sampleProject())), QString(R"(Sample,sample,Sm
fom b.xml,/models
fom a.xml,
object Root.Boat,Boat,
object Root.Ship,Ship,Vessel
  course,course,Root.Ship,heading,,0
  speed,speed,Root.Ship,,speed.txt,1
interaction Root.Fire,Fire,
  target,target,Root.Fire,aim,,1
coding Root.Ship.speed,if (a < b && "c")
%1return;%2
,
type T,DtU8
)")
                                                    .arg("\t", "\r"));
    QCOMPARE(describe(reread(reread(sampleProject()))), describe(reread(sampleProject())));
}

void TestOmtProjectXml::defaultPredefinedTypesAreWrittenOut()
{
    DtOmtProject project;
    project.initializePredefinedTypes();
    QVERIFY(reread(project).predefinedTypes() == project.predefinedTypes());
}

void TestOmtProjectXml::lineEndsAndTabsOfCustomTextSurvive()
{
    const DtString odd("  <!Token!>\n\n\t'x' > ]]> & &amp; \r\r\n \\ ");
    DtOmtProject project;
    project.addCustomCoding(odd, {odd, odd + odd});
    QVERIFY(reread(project).customCodings() == project.customCodings());
}

void TestOmtProjectXml::latin1TextIsConverted()
{
    DtOmtProject project;
    project.setBaseName("caf\xe9");
    QCOMPARE(text(reread(project).baseName()), QString::fromUtf8("caf\xc3\xa9"));
}

void TestOmtProjectXml::forbiddenCharactersAreLeftOutWithWarning()
{
    const DtCapture warnings(DtWarn);
    DtOmtProject project;
    project.setBaseName("a\x01"
                        "b\x1b"
                        "c\xef\xbf\xbf"
                        "d");
    QCOMPARE(text(reread(project).baseName()), QString("abcd"));
    QVERIFY(!warnings.text().isEmpty());
}

void TestOmtProjectXml::utf8TextStaysAsItIs()
{
    const DtCapture warnings(DtWarn);
    const DtString odd("\xe2\x82\xac \xf0\x9f\x9a\xa2 \xc2\x85");
    DtOmtProject project;
    project.setBaseName(odd);
    QCOMPARE(text(reread(project).baseName()), text(odd));
    QCOMPARE(warnings.text(), QString());
}

void TestOmtProjectXml::writerHoldsACopyOfTheProject()
{
    DtOmtProject project = sampleProject();
    DtOmtProjectXmlWriter writer(project, file());
    project.removeAllChildren("", DtOmtProject::ObjectItem);
    writer.writeXml();
    QVERIFY(readTextFile(path("p.qxproj")).contains("Root.Ship"));
}

void TestOmtProjectXml::writingTwiceGivesTheSameFile()
{
    DtOmtProjectXmlWriter writer(sampleProject(), file());
    writer.writeXml();
    const QByteArray first = readTextFile(path("p.qxproj"));
    writer.writeXml();
    QVERIFY(!first.isEmpty());
    QCOMPARE(readTextFile(path("p.qxproj")), first);
}

void TestOmtProjectXml::oldFileKeepsItsMode()
{
    writeTextFile(path("p.qxproj"), "old");
    QCOMPARE(chmod(path("p.qxproj").toUtf8().constData(), 0640), 0);
    QVERIFY(written(DtOmtProject()).contains("<project>"));
    struct stat status = {};
    QCOMPARE(stat(path("p.qxproj").toUtf8().constData(), &status), 0);
    QCOMPARE(static_cast<int>(status.st_mode & 0777), 0640);
    QCOMPARE(QDir(myDirectory->path()).entryList(QDir::Files), QStringList{"p.qxproj"}); // no sibling is left
}

void TestOmtProjectXml::linkIsFollowed()
{
    writeTextFile(path("real"), "old");
    QVERIFY(QFile::link(path("real"), path("p.qxproj")));
    written(DtOmtProject());
    QVERIFY(QFileInfo(path("p.qxproj")).isSymLink());
    QVERIFY(readTextFile(path("real")).contains("<project>"));
}

void TestOmtProjectXml::failedSaveIsToldAndLeavesNothing()
{
    StandardError errors;
    DtOmtProjectXmlWriter(sampleProject(), file("missing/p.qxproj")).writeXml();
    QCOMPARE(errors.text(), QByteArray("Error at xmlSaveFormatFileEnc\n"));
    QVERIFY(!QFileInfo::exists(path("missing")));
}

void TestOmtProjectXml::withoutWriterAllFourMessagesAppearAndOldFileStays()
{
    writeTextFile(path("p.qxproj"), "old");
    DtOmtProjectXmlWriter writer(sampleProject(), file());
    StandardError errors;
    {
        const NoMemoryForXml noMemory;
        writer.writeXml();
    }
    const QList<QByteArray> lines = errors.text().split('\n');
    int found = -1;
    for (const char* line : {"Error creating the xml writer", "Error at xmlTextWriterStartDocument",
                             "Error at xmlTextWriterEndDocument", "Error at xmlSaveFormatFileEnc"})
    {
        QVERIFY2(lines.indexOf(line) > found, line); // in this order
        found = lines.indexOf(line);
        QCOMPARE(lines.count(line), 1);
    }
    QCOMPARE(readTextFile(path("p.qxproj")), QByteArray("old"));
}

void TestOmtProjectXml::oversizedTextLeavesTheOldFile()
{
    writeTextFile(path("p.qxproj"), "old");
    DtOmtProject project;
    project.addCustomCoding("key", {DtString(std::string(11'000'000, 'x')), ""}); // no reader would take it back
    StandardError errors;
    DtOmtProjectXmlWriter(project, file()).writeXml();
    QVERIFY(errors.text().contains("Error at xmlSaveFormatFileEnc\n"));
    QCOMPARE(readTextFile(path("p.qxproj")), QByteArray("old"));
}

void TestOmtProjectXml::missingFileLeavesTheProjectAlone()
{
    StandardError errors;
    DtOmtProject project = sampleProject();
    DtOmtProjectXmlReader(file("missing.qxproj")).readXml(project);
    QCOMPARE(describe(project), describe(sampleProject()));
    QCOMPARE(errors.text(), QByteArray());
}

void TestOmtProjectXml::directoryLeavesTheProjectAlone()
{
    DtOmtProject project = sampleProject();
    DtOmtProjectXmlReader(DtFilename(myDirectory->path().toUtf8().constData())).readXml(project);
    QCOMPARE(describe(project), describe(sampleProject()));
}

void TestOmtProjectXml::contentThatIsNoXmlIsSilent_data()
{
    QTest::addColumn<QByteArray>("content");
    QTest::newRow("empty") << QByteArray("");
    QTest::newRow("text") << QByteArray("not XML at all");
    QTest::newRow("no root") << QByteArray("<?xml version=\"1.0\"?>\n");
    QTest::newRow("cut off") << QByteArray("<project><baseName name=\"x\"/><foms><fom name=\"a\"");
    QTest::newRow("bad bytes") << QByteArray("<project><baseName name=\"\xff\xfe\"/></project>");
    QTest::newRow("NUL") << QByteArray("<project>\0<baseName name=\"x\"/></project>", 41);
}

void TestOmtProjectXml::contentThatIsNoXmlIsSilent()
{
    QFETCH(QByteArray, content);
    StandardError errors;
    const DtOmtProject project = read(content);
    QCOMPARE(errors.text(), QByteArray());
    QCOMPARE(describe(project), describe(DtOmtProject()));
}

void TestOmtProjectXml::foreignRootIsSilent()
{
    StandardError errors;
    const DtOmtProject project = read("<Project><baseName name=\"x\"/></Project>");
    QCOMPARE(errors.text(), QByteArray());
    QCOMPARE(describe(project), describe(DtOmtProject()));
}

void TestOmtProjectXml::orderOfElementsDoesNotMatter()
{
    const DtOmtProject project = read("<project><configurationRoot><predefinedTypes><type representation=\"DtU8\" "
                                      "name=\"T\"/></predefinedTypes><interactionClass name=\"I\"/><objectClass "
                                      "rename=\"R\" name=\"O\"/></configurationRoot><classPrefix name=\"p\"/><foms>"
                                      "<fom location=\"d\" name=\"f\"/></foms><baseName name=\"b\"/></project>");
    QCOMPARE(describe(project), QString("b,,p\nfom f,d\nobject O,O,R\ninteraction I,I,\ntype T,DtU8\n"));
}

void TestOmtProjectXml::unknownElementsAndCommentsArePassedOver()
{
    const DtOmtProject project =
        read("<!-- a --><project><!-- b --><other name=\"x\"><baseName name=\"no\"/></other>text<configurationRoot>"
             "<!-- c --><objectClass name=\"O\"><!-- d --><parameter name=\"no\"/><attribute name=\"a\"/><![CDATA[x]]>"
             "</objectClass></configurationRoot><foms><!-- e --><file name=\"no\"/></foms></project>");
    QCOMPARE(describe(project), QString(",,\nobject O,O,\n  a,a,O,,,0\n"));
}

void TestOmtProjectXml::namesAreCaseSensitive()
{
    const DtOmtProject project =
        read("<project><BaseName name=\"no\"/><baseName Name=\"no\"/><configurationRoot><objectClass name=\"O\">"
             "<attribute name=\"a\" NOGEN=\"true\"/></objectClass><customization><editedItem name=\"k\"><encoder "
             "text=\"no\"/><Decoder text=\"yes\"/></editedItem></customization></configurationRoot></project>");
    QCOMPARE(describe(project), QString(",,\nobject O,O,\n  a,a,O,,,0\ncoding k,,yes\n"));
}

void TestOmtProjectXml::nogenValue_data()
{
    QTest::addColumn<bool>("noGen");
    for (const char* value : {"true", "TRUE", "True"})
        QTest::newRow(value) << true;
    for (const char* value : {"false", "FALSE", "yes", "1", "", " true"})
        QTest::newRow(value) << false;
}

void TestOmtProjectXml::nogenValue()
{
    QFETCH(bool, noGen);
    const QByteArray value = QTest::currentDataTag();
    const DtOmtProject project = read("<project><configurationRoot><interactionClass name=\"I\"><parameter name=\"p\" "
                                      "nogen=\"" +
                                      value + "\"/></interactionClass></configurationRoot></project>");
    QCOMPARE(project.getInteractionFromName("I")->getParameterFromName("p").noGen(), noGen);
}

void TestOmtProjectXml::carriageReturnBetweenElementsMatchesNothing()
{
    const DtOmtProject project = read("<project>&#13;\r\n<foms>&#13;<fom name=\"f\"/>&#13;\n</foms>&#13;"
                                      "<configurationRoot>&#13;<objectClass name=\"O\">&#13;</objectClass>"
                                      "</configurationRoot></project>");
    QCOMPARE(describe(project), QString(",,\nfom f,\nobject O,O,\n"));
}

void TestOmtProjectXml::fomWithoutNameIsDropped()
{
    const DtOmtProject project = read("<project><foms><fom name=\"\" location=\"d\"/><fom location=\"d\"/>"
                                      "<fom name=\"f\" location=\"\"/><fom name=\"g\"/></foms></project>");
    QCOMPARE(describe(project), QString(",,\nfom f,\nfom g,\n"));
}

void TestOmtProjectXml::attributeWithoutNameIsDropped()
{
    const DtOmtProject project = read("<project><configurationRoot><objectClass name=\"O\"><attribute rename=\"x\"/>"
                                      "<attribute name=\"\"/></objectClass><interactionClass name=\"I\"><parameter/>"
                                      "</interactionClass></configurationRoot></project>");
    QCOMPARE(describe(project), QString(",,\nobject O,O,\ninteraction I,I,\n"));
}

void TestOmtProjectXml::classWithoutNameIsAdded()
{
    const DtOmtProject project = read("<project><configurationRoot><objectClass rename=\"x\"><attribute name=\"a\"/>"
                                      "</objectClass><interactionClass name=\"\"/></configurationRoot></project>");
    QCOMPARE(describe(project), QString(",,\nobject ,,\n  a,a,,,,0\ninteraction ,,\n"));
}

void TestOmtProjectXml::lastOfSeveralNamesWins()
{
    const DtOmtProject project = read("<project xmlns:x=\"urn:x\"><baseName name=\"a\" x:name=\"b\"/><includeDir "
                                      "x:name=\"a\" name=\"b\"/></project>");
    QCOMPARE(describe(project), QString("b,b,\n"));
}

void TestOmtProjectXml::missingNamesAreEmpty()
{
    writeTextFile(path("read.qxproj"), "<project><baseName/><includeDir other=\"x\"/></project>");
    DtOmtProject project = sampleProject();
    DtOmtProjectXmlReader(file("read.qxproj")).readXml(project);
    QVERIFY(project.baseName().isEmpty() && project.includeDir().isEmpty());
    QCOMPARE(text(project.classPrefix()), QString("Sm"));
}

void TestOmtProjectXml::repeatedElementsReplaceTheEarlier()
{
    const DtOmtProject project =
        read("<project><baseName name=\"a\"/><baseName name=\"b\"/><configurationRoot><objectClass name=\"O\" "
             "rename=\"first\"/><objectClass name=\"O\" rename=\"second\"/><customization><editedItem name=\"k\">"
             "<Encoder text=\"1\"/><Encoder text=\"2\"/><Decoder text=\"3\"/><Decoder/></editedItem></customization>"
             "</configurationRoot></project>");
    // ... but the first record of a class stands.
    QCOMPARE(describe(project), QString("b,,\nobject O,O,first\ncoding k,2,\n"));
}

void TestOmtProjectXml::missingCodingHalfIsEmpty()
{
    const DtOmtProject project = read("<project><configurationRoot><customization><editedItem><Decoder text=\"d\"/>"
                                      "</editedItem><editedItem name=\"k\"/></customization></configurationRoot>"
                                      "</project>");
    QCOMPARE(describe(project), QString(",,\ncoding ,,d\ncoding k,,\n"));
}

void TestOmtProjectXml::emptyPredefinedTypesLeaveTheTableAsItIs()
{
    const QByteArray content = "<project><configurationRoot><predefinedTypes/></configurationRoot></project>";
    QVERIFY(read(content).predefinedTypes().empty());
    DtOmtProject project = sampleProject();
    DtOmtProjectXmlReader(file("read.qxproj")).readXml(project);
    QVERIFY(project.isPredefinedType("T"));
}

void TestOmtProjectXml::predefinedTypesReplaceTheTable()
{
    writeTextFile(path("read.qxproj"), "<project><configurationRoot><predefinedTypes><type name=\"U\"/>"
                                       "</predefinedTypes></configurationRoot></project>");
    DtOmtProject project = sampleProject();
    DtOmtProjectXmlReader(file("read.qxproj")).readXml(project);
    QVERIFY(!project.isPredefinedType("T"));
    QCOMPARE(text(project.predefinedTypes().at("U")), QString(""));
}

void TestOmtProjectXml::uniqueNamesComeFromTheFileOrder()
{
    const DtOmtProject project = read("<project><configurationRoot><interactionClass name=\"I.Foo\"/><objectClass "
                                      "name=\"Z.Foo\"/><objectClass name=\"A.Foo\"/></configurationRoot></project>");
    QCOMPARE(describe(project), QString(",,\nobject A.Foo,Foo2,\nobject Z.Foo,Foo1,\ninteraction I.Foo,Foo,\n"));
}

void TestOmtProjectXml::readRecordIsNotMarkedForRenaming()
{
    QVERIFY(!reread(sampleProject()).getObjectFromName("Root.Ship")->shouldRename());
}

void TestOmtProjectXml::declaredEncodingIsUsed()
{
    const DtOmtProject project =
        read("<?xml version=\"1.0\" encoding=\"ISO-8859-1\"?><project><baseName name=\"caf\xe9\"/></project>");
    QCOMPARE(text(project.baseName()), QString::fromUtf8("caf\xc3\xa9"));
}

void TestOmtProjectXml::instructionsAndEntitiesAreNoElements()
{
    const DtOmtProject project =
        read("<!DOCTYPE project [<!ENTITY objectClass \"x\"><!ENTITY configurationRoot \"<objectClass name='no'/>\">]>"
             "<project>&configurationRoot;<?baseName name=\"no\"?><configurationRoot><?objectClass name=\"no\"?>"
             "&objectClass;</configurationRoot></project>");
    QCOMPARE(describe(project), describe(DtOmtProject()));
}

void TestOmtProjectXml::entityInsideValueIsCutOut()
{
    const DtOmtProject project = read("<!DOCTYPE project [<!ENTITY e \"entity\">]><project><baseName name=\"a&e;b\"/>"
                                      "<includeDir name=\"&e;b\"/></project>");
    QCOMPARE(describe(project), QString("a,b,\n")); // the first text of the value
}

void TestOmtProjectXml::externalEntityIsNotRead()
{
    writeTextFile(path("other.xml"), "<baseName name=\"no\"/>");
    writeTextFile(path("other.dtd"), "<!ATTLIST includeDir name CDATA \"no\">");
    StandardError errors;
    const DtInDirectory directory(myDirectory->path());
    const DtOmtProject project = read("<!DOCTYPE project SYSTEM \"other.dtd\" [<!ENTITY e SYSTEM \"other.xml\">]>"
                                      "<project>&e;<includeDir/><classPrefix name=\"p\"/></project>");
    QCOMPARE(describe(project), QString(",,p\n"));
    QCOMPARE(errors.text(), QByteArray());
}

void TestOmtProjectXml::blankTextIsBlankTabAndLineFeed_data()
{
    QTest::addColumn<bool>("isBlank");
    QTest::newRow(" \t\n") << true;
    QTest::newRow("") << true;
    QTest::newRow("\r") << false;
    QTest::newRow(" x") << false;
}

void TestOmtProjectXml::blankTextIsBlankTabAndLineFeed()
{
    QFETCH(bool, isBlank);
    xmlNode* node = xmlNewText(reinterpret_cast<const xmlChar*>(QTest::currentDataTag()));
    QCOMPARE(DtOmtProjectXmlReader::isBlankText(node), isBlank);
    QCOMPARE(text(DtOmtProjectXmlReader::getNodeName(node)), QString(""));
    node->type = XML_COMMENT_NODE;
    QVERIFY(!DtOmtProjectXmlReader::isBlankText(node));
    xmlFreeNode(node);
}

QX_REGISTER_TEST(TestOmtProjectXml)
#include "testOmtProjectXml.moc"
