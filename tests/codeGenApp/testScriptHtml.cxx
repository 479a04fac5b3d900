// The model browser that genHtml.txt writes: the page as it is, and the page in a browser.

#include "registerTest.h"

#include "fileGenerator/omtProject.h"
#include "scratchProgram.h"
#include "smallModels.h"

#include <QtCore/QProcess>
#include <QtCore/QRegularExpression>
#include <QtCore/QStandardPaths>
#include <QtCore/QXmlStreamReader>

#include <map>
#include <set>

namespace
{
const char* const theModels = QX_SHARED_DIR "/models/";

struct DtElement
{
    QString name;
    QString text; // of the element and all below it
    std::map<QString, QString> attributes;
    int parent = -1;

    QString operator[](const char* attribute) const
    {
        const auto found = attributes.find(QString::fromLatin1(attribute));
        return found != attributes.end() ? found->second : QString();
    }
    bool has(const char* attribute) const { return attributes.count(QString::fromLatin1(attribute)) > 0; }
    bool isOf(const char* className) const { return (*this)["class"].split(' ').contains(className); }
};

// A page as a strict reader of XML sees it.
class DtPage
{
public:
    explicit DtPage(const QByteArray& bytes) : myBytes(bytes)
    {
        QXmlStreamReader reader(bytes);
        std::vector<int> open;
        while (!reader.atEnd())
            take(reader, reader.readNext(), open);
        myError = reader.hasError() ? QStringLiteral("line %1: %2").arg(reader.lineNumber()).arg(reader.errorString())
                                    : QString();
    }

    const QByteArray& bytes() const { return myBytes; }
    const QString& error() const { return myError; }
    const QStringList& oddTokens() const { return myOddTokens; } // whatever is neither element nor text
    const std::vector<DtElement>& elements() const { return myElements; }

    const DtElement* byId(const QString& id) const
    {
        for (const DtElement& element : myElements)
            if (element["id"] == id)
                return &element;
        return nullptr;
    }
    bool isInside(const DtElement& element, const DtElement& other) const
    {
        const DtElement* at = &element;
        while (at != &other && at->parent >= 0)
            at = &myElements[static_cast<std::size_t>(at->parent)];
        return at == &other;
    }
    // The elements of a class below the element with this id.
    std::vector<const DtElement*> below(const QString& id, const char* className) const
    {
        std::vector<const DtElement*> found;
        const DtElement* root = byId(id);
        for (const DtElement& element : myElements)
            if (root != nullptr && element.isOf(className) && isInside(element, *root))
                found.push_back(&element);
        return found;
    }
    QStringList textsBelow(const QString& id, const char* className) const
    {
        QStringList texts;
        for (const DtElement* element : below(id, className))
            texts += element->text;
        return texts;
    }
    // The ids of the entries of a section.
    QStringList entries(const char* section) const
    {
        QStringList ids;
        for (const DtElement* element : below(section, "item"))
            ids += (*element)["id"];
        return ids;
    }
    QStringList repeatedIds() const
    {
        std::set<QString> seen;
        QStringList repeated;
        for (const DtElement& element : myElements)
            if (element.has("id") && !seen.insert(element["id"]).second)
                repeated += element["id"];
        return repeated;
    }
    QStringList links() const
    {
        QStringList links;
        for (const DtElement& element : myElements)
            if (element.has("href"))
                links += element["href"];
        return links;
    }
    // Links that lead out of the page or to no element of it.
    QStringList brokenLinks() const
    {
        std::set<QString> ids;
        for (const DtElement& element : myElements)
            ids.insert(element["id"]);
        QStringList broken;
        for (const QString& link : links())
            if (!link.startsWith('#') || ids.count(link.mid(1)) == 0)
                broken += link;
        return broken;
    }

private:
    void take(const QXmlStreamReader& reader, QXmlStreamReader::TokenType token, std::vector<int>& open)
    {
        if (token == QXmlStreamReader::StartElement)
        {
            DtElement element;
            element.name = reader.name().toString();
            element.parent = open.empty() ? -1 : open.back();
            for (const QXmlStreamAttribute& attribute : reader.attributes())
                element.attributes[attribute.qualifiedName().toString()] = attribute.value().toString();
            open.push_back(static_cast<int>(myElements.size()));
            myElements.push_back(element);
        }
        else if (token == QXmlStreamReader::EndElement)
            open.pop_back();
        else if (token == QXmlStreamReader::Characters && !reader.isCDATA())
            for (const int at : open)
                myElements[static_cast<std::size_t>(at)].text += reader.text();
        else if (token == QXmlStreamReader::Characters || token == QXmlStreamReader::Comment ||
                 token == QXmlStreamReader::DTD || token == QXmlStreamReader::ProcessingInstruction ||
                 token == QXmlStreamReader::EntityReference)
            myOddTokens += reader.tokenString();
    }

    QByteArray myBytes;
    QString myError;
    QStringList myOddTokens;
    std::vector<DtElement> myElements;
};

// Leaves this script of the shipped configuration switched on, and no other.
void switchOnHtmlOnly(const DtScratchProgram& program)
{
    const QString name = program.path("data/config/codeGenConfig.xml");
    QString text = QString::fromUtf8(readTextFile(name));
    text.replace(QRegularExpression(QStringLiteral("(name=\"gen\\w+\\.txt\" value=)\"true\"")), "\\1\"false\"");
    text.replace(QStringLiteral("name=\"genHtml.txt\" value=\"false\""),
                 QStringLiteral("name=\"genHtml.txt\" value=\"true\""));
    writeTextFile(name, text.toUtf8());
}

DtPage pageOf(const DtScratchProgram& program)
{
    return DtPage(readTextFile(program.path("out/model.xhtml")));
}

DtPage pageOfModels(DtScratchProgram& program, const std::vector<DtString>& models)
{
    switchOnHtmlOnly(program);
    runBatch(program, models);
    return pageOf(program);
}

DtPage pageOfText(const char* name, const QByteArray& text)
{
    DtScratchProgram program;
    return pageOfModels(program, {program.model(name, text)});
}

DtPage samplePage()
{
    DtScratchProgram program;
    return pageOfModels(program, {program.sampleModel()});
}

// Names the first thing that is wrong with a page.
QString faultOf(const DtPage& page)
{
    if (!page.error().isEmpty())
        return page.error();
    if (!page.oddTokens().isEmpty())
        return page.oddTokens().join(' ');
    for (const char* opening : {"<!", "<?", "<#"})
        if (page.bytes().contains(opening))
            return QStringLiteral("%1 is left").arg(opening);
    if (!page.brokenLinks().isEmpty())
        return "broken: " + page.brokenLinks().join(' ');
    if (!page.repeatedIds().isEmpty())
        return "repeated: " + page.repeatedIds().join(' ');
    return page.elements().empty() ? QStringLiteral("empty") : QString();
}

QByteArray semantics(const QByteArray& text)
{
    return element("semantics", text);
}

QByteArray record(const QByteArray& name, const QByteArray& fields)
{
    return element("fixedRecordData", element("name", name) + element("encoding", "HLAfixedRecord") + fields);
}

QByteArray field(const QByteArray& name, const QByteArray& type, const QByteArray& text = QByteArray())
{
    return element("field", element("name", name) + element("dataType", type) + semantics(text));
}

QByteArray enumerator(const QByteArray& name, const QByteArray& value)
{
    return element("enumerator", element("name", name) + element("value", value));
}

QByteArray withDatatypes(const QByteArray& module, const QByteArray& datatypes)
{
    return QByteArray(module).replace("</objectModel>", element("dataTypes", datatypes) + "</objectModel>");
}

// A name that would break a page which takes it as it is, and how a model file writes it.
const char theHostileName[] = "A\"b'<i>&amp;]]>--";
const char theHostileXml[] = "A\"b'&lt;i&gt;&amp;amp;]]&gt;--";

QByteArray hostileModel()
{
    const QByteArray name = theHostileXml;
    const QByteArray text = "</script>&lt;!DllExport!&gt; &lt;!ObjectName!&gt; &lt;#Objects&gt; &lt;?exists 1&gt; %41";
    const QByteArray safeText = QByteArray(text).replace("</script>", "&lt;/script&gt;");
    return withDatatypes(
        moduleText(objectText(name, semantics(safeText) + attributeText(name, name) + attributeText("Note", "a%41 b")),
                   interactionText(name, semantics(safeText) + parameterText(name, name))),
        element("enumeratedDataTypes",
                element("enumeratedData", element("name", "a%41 b") + element("representation", "HLAoctet") +
                                              semantics(safeText) + enumerator(name, "1"))) +
            element("fixedRecordDataTypes", record(name, field(name, "a%41 b", safeText) + field("Fields", "none"))));
}

// Chromium, where it is installed: opens a page and hands back what the script of the page has made of it.
class DtBrowser
{
public:
    DtBrowser()
    {
        for (const char* name : {"chromium", "chromium-browser", "google-chrome"})
            if (myProgram.isEmpty() && starts(QStandardPaths::findExecutable(QString::fromLatin1(name))))
                myProgram = QString::fromLatin1(name);
    }
    bool isThere() const { return !myProgram.isEmpty(); }

    DtPage open(const QByteArray& text, const QString& address = QString()) const
    {
        const QTemporaryDir directory;
        const QString file = directory.filePath("model.xhtml");
        writeTextFile(file, text);
        QProcess process;
        process.start(myProgram, {"--headless", "--no-sandbox", "--disable-gpu", "--disable-dev-shm-usage",
                                  "--user-data-dir=" + directory.filePath("profile"), "--virtual-time-budget=20000",
                                  "--dump-dom", "file://" + file + address});
        if (!process.waitForFinished(240000))
            process.kill();
        return DtPage(process.readAllStandardOutput());
    }

private:
    // Some systems have a program of that name that only tells how to install one.
    static bool starts(const QString& program)
    {
        if (program.isEmpty())
            return false;
        QProcess process;
        process.start(program, {"--version"});
        return process.waitForFinished(60000) && process.exitCode() == 0 &&
               process.readAllStandardOutput().contains("Chrom");
    }

    QString myProgram;
};

// The page with a script behind its own, which runs when that is through.
QByteArray withScript(const QByteArray& page, const QByteArray& script)
{
    const QByteArray waiting = "<script>function whenReady() {"
                               "if (!root().hasAttribute('data-ready')) return setTimeout(whenReady, 20);" +
                               script +
                               "} function root() { return document.documentElement; }"
                               "function note(name, value) { root().setAttribute('data-' + name, String(value)); }"
                               "function count(selector) { return document.querySelectorAll(selector).length; }"
                               "function press(key, target) { (target || document).dispatchEvent("
                               "new KeyboardEvent('keydown', {key: key, bubbles: true, cancelable: true})); }"
                               "function type(text) { var box = document.querySelector('#search'); box.value = text;"
                               "box.dispatchEvent(new Event('input')); } whenReady();</script></body>";
    return QByteArray(page).replace("</body>", waiting);
}

QString noted(const DtPage& page, const char* name)
{
    return page.elements().empty() ? QString() : page.elements().front()[("data-" + QByteArray(name)).constData()];
}

std::vector<DtString> copies(const DtScratchProgram& program, const QStringList& files)
{
    std::vector<DtString> models;
    for (const QString& file : files)
        models.push_back(program.copiedModel(file));
    return models;
}
} // namespace

class TestScriptHtml : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void scriptIsListedAndSwitchedOff()
    {
        DtCodeGenInitializer initializer;
        QVERIFY(initializer.parseConfigFile(QX_SOURCE_DIR "/data/config/codeGenConfig.xml"));
        const auto scripts = initializer.scriptMap();
        QCOMPARE(scripts.count("genHtml.txt"), std::size_t(1));
        QVERIFY(!scripts.at("genHtml.txt"));
    }

    void sampleGivesOneSoundPageAndNothingElse()
    {
        DtScratchProgram program;
        const DtPage page = pageOfModels(program, {program.sampleModel()});
        QCOMPARE(filesBelow(program.path("out")), QStringList("model.xhtml"));
        QCOMPARE(faultOf(page), QString());
    }

    void pageOfRealModelIsSound_data()
    {
        QTest::addColumn<QStringList>("files");
        QTest::newRow("six modules") << largeModel();
        const QString models = QString::fromLatin1(theModels);
        for (const char* file :
             {"1516-2000/RPR_FOM_v2.0_1516-2000.xml", "omt13/RPR_v2.0_excerpt.omt", "omt13/Restaurant_converted.omt",
              "1516-2010/RestaurantFOMmodule.xml", "1516-2025/RestaurantFOMmodule-2025.xml"})
            QTest::newRow(file) << (QFile::exists(models + file) ? QStringList(models + file) : QStringList());
    }

    void pageOfRealModelIsSound()
    {
        QFETCH(QStringList, files);
        if (files.isEmpty())
            QSKIP("The model is not here.");
        DtScratchProgram program;
        switchOnHtmlOnly(program);
        const auto window = runBatch(program, copies(program, files));
        const DtPage page = pageOf(program);
        QCOMPARE(faultOf(page), QString());
        const int objects = page.entries("objects").size();
        const int interactions = page.entries("interactions").size();
        QVERIFY(objects > 0 && interactions > 0);
        QCOMPARE(objects, static_cast<int>(window->omtProject()->getObjects().size()));
        QCOMPARE(interactions, static_cast<int>(window->omtProject()->getInteractions().size()));
    }

    void pageNeedsNothingFromElsewhere()
    {
        const DtPage page = samplePage();
        for (const DtElement& element : page.elements())
        {
            QVERIFY2(!element.has("src") && element.name != "link" && element.name != "iframe",
                     qPrintable(element.name));
            QVERIFY(element.name != "style" || !element.text.contains(QRegularExpression("@import|url\\(|@font-face")));
        }
        QByteArray rest = page.bytes();
        rest.replace("http://www.w3.org/1999/xhtml", "").replace("http://www.w3.org/2000/svg", "");
        QVERIFY(!rest.contains("://"));
    }

    void scriptHoldsNoCharacterThatXmlEscapes()
    {
        int scripts = 0;
        const DtPage page = samplePage();
        for (const DtElement& element : page.elements())
        {
            if (element.name != "script")
                continue;
            ++scripts;
            QVERIFY(!element.text.contains('<') && !element.text.contains('&'));
        }
        QCOMPARE(scripts, 2);
    }

    void classShowsItsMembersAndParent()
    {
        const DtPage page = samplePage();
        const QString vessel = "object.HLAobjectRoot.PortEntity.Vessel";
        QVERIFY(page.byId(vessel) != nullptr);
        QCOMPARE((*page.byId(vessel))["data-parent"], QString("object.HLAobjectRoot.PortEntity"));
        const DtElement* position = page.byId("attribute.HLAobjectRoot.PortEntity.Position");
        QVERIFY(position != nullptr && page.isInside(*position, *page.byId("object.HLAobjectRoot.PortEntity")));
        for (const char* text : {"Position", "GeoPoint", "Conditional", "On change", "HLAreliable", "Receive",
                                 "DivestAcquire", "PublishSubscribe", "Where it is."})
            QVERIFY2(position->text.contains(text), text);
        const DtElement* force = page.byId("parameter.HLAinteractionRoot.Collision.Force");
        QVERIFY(force != nullptr && force->text.contains("Newton") && force->text.contains("How hard."));
        QVERIFY(page.links().contains("#type.Newton"));
    }

    void datatypesShowTheirParts()
    {
        const DtPage page = samplePage();
        const std::pair<const char*, const char*> theParts[] = {
            {"type.GeoPoint",      "Degrees"  },
            {"type.VesselState8",  "Under-Way"},
            {"type.Occupant",      "ShortText"},
            {"type.ShortText",     "HLA"      },
            {"type.Newton",        "HLAfloat" },
            {"basic.HLAfloat64BE", "64"       },
        };
        for (const auto& [id, text] : theParts)
        {
            const DtElement* entry = page.byId(id);
            QVERIFY2(entry != nullptr, id);
            QVERIFY2(entry->text.contains(text), qPrintable(entry->text));
        }
    }

    void onlySelectedClassesAndWhatTheyUseAreShown()
    {
        DtScratchProgram program;
        switchOnHtmlOnly(program);
        const auto window = program.makeWindow();
        const QByteArray datatypes =
            element("fixedRecordDataTypes", record("Used", field("part", "Inner")) + record("Inner", QByteArray()) +
                                                record("Other", field("part", "Inner")));
        const QByteArray classes = objectText("Barge", attributeText("load", "Used")) +
                                   objectText("Crane", attributeText("arm", "Other") + objectText("Hoist"));
        const DtString model = program.model("a.xml", withDatatypes(moduleText(classes), datatypes));
        window->newOmtProject(DtFilename(program.bytes(program.path("models/p.qxproj"))));
        QCOMPARE(window->loadFile(model, ""), 1);
        window->omtProject()->addObject("HLAobjectRoot.Barge", false, "");
        window->omtProject()->addObject("HLAobjectRoot.Crane.Hoist", false, "");
        window->setOutputDirectory(program.path("out/"));
        window->generateAllFiles();
        const DtPage page = pageOf(program);
        QCOMPARE(faultOf(page), QString());
        QCOMPARE(page.entries("objects"),
                 QStringList({"object.HLAobjectRoot.Barge", "object.HLAobjectRoot.Crane.Hoist"}));
        QCOMPARE(page.entries("fixed-records"), QStringList({"type.Used", "type.Inner"}));
        QVERIFY(page.byId("interactions") == nullptr);
        QVERIFY(!page.links().contains("#interactions"));
        QVERIFY(!page.links().contains("#object.HLAobjectRoot.Crane")); // the parent is not shown
    }

    void modelWithoutAnythingSelectedGivesAPage()
    {
        DtScratchProgram program;
        switchOnHtmlOnly(program);
        const auto window = program.makeWindow();
        window->preferences()->setIncludeStandardMIM(false);
        const DtString model = program.model("a.xml", moduleText(objectText("Barge")));
        window->newOmtProject(DtFilename(program.bytes(program.path("models/p.qxproj"))));
        QCOMPARE(window->loadFile(model, ""), 1);
        window->setOutputDirectory(program.path("out/"));
        window->generateAllFiles();
        const DtPage page = pageOf(program);
        QCOMPARE(faultOf(page), QString());
        QVERIFY(page.byId("objects") == nullptr && page.byId("enumerations") == nullptr);
        QVERIFY(page.byId("summary") != nullptr);
    }

    void hostileTextsStayTexts()
    {
        const DtPage page = pageOfText("a.xml", hostileModel());
        QCOMPARE(faultOf(page), QString());
        const QString name = QString::fromLatin1(theHostileName);
        const QString path = "HLAobjectRoot." + name;
        QVERIFY(page.byId("object." + path) != nullptr);
        QVERIFY(page.byId("interaction.HLAinteractionRoot." + name) != nullptr);
        QCOMPARE(page.textsBelow("object." + path, "name"), QStringList({name, name, "Note"}));
        QCOMPARE(page.textsBelow("object." + path, "path"), QStringList(path));
        const QString text = "</script><!DllExport!> <!ObjectName!> <#Objects> <?exists 1> %41";
        QVERIFY(page.textsBelow("object." + path, "text").contains(text));
        QVERIFY(page.textsBelow("type." + name, "text").contains(text));
        QVERIFY(page.links().contains("#type." + name) && page.links().contains("#type.a%41 b"));
        QCOMPARE(page.textsBelow("type.a%41 b", "name"), QStringList({"a%41 b", name}));
        QCOMPARE(page.textsBelow("type." + name, "name"), QStringList({name, name, "Fields"}));
    }

    void bytesThatAreNoTextDoNoHarm()
    {
        const DtPage page = pageOfText("a.omt", "(DIF HLA-OMT v1.3 (TYPE Single))\n(ObjectModel (Name \"Old\")\n"
                                                "(Class (ID 1) (Name \"Caf\xe9\x01\") (Description \"x\x02<\xff>\")\n"
                                                "  (Attribute (Name \"a\x1b&\xe9\") (DataType \"unsigned short\")))\n"
                                                "(Interaction (ID 2) (Name \"Horn\")))\n");
        QCOMPARE(faultOf(page), QString());
        const QStringList ids = page.entries("objects");
        QCOMPARE(ids.size(), 1);
        QCOMPARE(page.textsBelow(ids.front(), "name"), QStringList({u8"Caf\u00e9", u8"a&\u00e9"}));
        QVERIFY(page.textsBelow(ids.front(), "text").contains(u8"x<\u00ff>"));
    }

    void unknownDatatypeIsNoLink()
    {
        const DtPage page = pageOfText("a.xml", moduleText(objectText("Barge", attributeText("load", "Nowhere")),
                                                           interactionText("Horn", parameterText("tone", ""))));
        QCOMPARE(faultOf(page), QString());
        QCOMPARE(page.textsBelow("attribute.HLAobjectRoot.Barge.load", "ref"), QStringList("Nowhere"));
        QVERIFY(!page.links().contains("#type.Nowhere"));
    }

    void twoRunsGiveTheSameBytes()
    {
        DtScratchProgram program;
        const DtString model = program.sampleModel();
        const QByteArray first = pageOfModels(program, {model}).bytes();
        QVERIFY(!first.isEmpty());
        QVERIFY(QFile::remove(program.path("out/model.xhtml")));
        QVERIFY(pageOfModels(program, {model}).bytes() == first);
    }

    void browserBuildsTreesPicturesAndLinksBothWays()
    {
        const DtBrowser browser;
        if (!browser.isThere())
            QSKIP("Chromium is not installed: the page is not tried in a browser.");
        const DtPage page = browser.open(samplePage().bytes());
        QCOMPARE(page.error(), QString());
        QVERIFY(!noted(page, "ready").isEmpty());
        QCOMPARE(page.brokenLinks(), QStringList());
        const DtElement* tree = page.byId("contents");
        int deepest = 0;
        for (const DtElement& element : page.elements())
            if (element.name == "li" && page.isInside(element, *tree))
                deepest = std::max(deepest, depthOf(page, element));
        QVERIFY(deepest >= 4); // the section, PortEntity, Vessel and what is below it
        QStringList boxes;
        for (const DtElement& element : page.elements())
            if (element.name == "text")
                boxes += element.text;
        QCOMPARE(boxes.size(), page.entries("objects").size() + page.entries("interactions").size());
        QVERIFY(boxes.contains("Vessel") && boxes.contains("Collision"));
        QVERIFY(page.textsBelow("object.HLAobjectRoot.PortEntity.Vessel", "inherited").value(0).contains("3"));
        const QStringList extras = page.textsBelow("type.GeoPoint", "extra");
        QVERIFY2(extras.filter("Used by").value(0).contains("PortEntity.Position"), qPrintable(extras.join('\n')));
        QVERIFY2(extras.filter("Uses").value(0).contains("Degrees"), qPrintable(extras.join('\n')));
        QVERIFY(page.byId("delivery") != nullptr);
    }

    void searchShowsWhatHasTheWords()
    {
        const DtBrowser browser;
        if (!browser.isThere())
            QSKIP("Chromium is not installed: the page is not tried in a browser.");
        const DtPage page = browser.open(samplePage().bytes(), "#find=under-way%20STATE");
        QCOMPARE(page.error(), QString());
        QStringList shown;
        for (const DtElement& element : page.elements())
            if (element.isOf("item") && !element.isOf("miss"))
                shown += element["id"];
        QVERIFY2(shown.contains("type.VesselState8"), qPrintable(shown.join(' ')));
        QVERIFY(!shown.contains("type.GeoPoint") && shown.size() < 5);
        for (const DtElement* row : page.below("type.VesselState8", "name"))
            if (row->text == "Moored")
                QVERIFY(page.elements()[static_cast<std::size_t>(row->parent)].isOf("miss"));
        QVERIFY(page.byId("objects")->isOf("miss") && page.byId("summary")->isOf("miss"));
        QVERIFY(page.byId("nothing")->isOf("miss"));
    }

    void keysSearchAndClear()
    {
        const DtBrowser browser;
        if (!browser.isThere())
            QSKIP("Chromium is not installed: the page is not tried in a browser.");
        const DtPage page = browser.open(withScript(
            samplePage().bytes(), "press('/'); note('focus', document.activeElement.id); type('zebra crossing');"
                                  "setTimeout(function () { note('found', count('.item:not(.miss)'));"
                                  "note('nothing', count('#nothing.miss')); press('Escape');"
                                  "note('missing', count('.item.miss')); note('box', document.querySelector('#search')"
                                  ".value + '.'); }, 500);"));
        QCOMPARE(noted(page, "focus"), QString("search"));
        QCOMPARE(noted(page, "found"), QString("0"));
        QCOMPARE(noted(page, "nothing"), QString("0"));
        QCOMPARE(noted(page, "missing"), QString("0"));
        QCOMPARE(noted(page, "box"), QString("."));
    }

    void foldingHidesAndShows()
    {
        const DtBrowser browser;
        if (!browser.isThere())
            QSKIP("Chromium is not installed: the page is not tried in a browser.");
        const DtPage page = browser.open(withScript(
            samplePage().bytes(),
            "var entry = document.querySelector('article'); var table = entry.querySelector('.facts');"
            "function height() { return table.getClientRects().length; }"
            "entry.scrollIntoView(); note('open', height()); entry.querySelector('.toggle').click();"
            "note('closed', height()); entry.querySelector('.toggle').click(); note('again', height());"
            "document.querySelector('#fold-all').click(); note('folded', count('article:not(.folded)'));"
            "document.querySelector('#unfold-all').click(); note('unfolded', count('.folded'));"
            "var branch = document.querySelector('#contents li'); note('tree', branch.classList.contains('closed'));"
            "branch.querySelector('.toggle').click(); note('branch', branch.classList.contains('closed'));"
            "document.querySelector('#theme').click(); note('dark', root().getAttribute('data-theme'));"
            "dispatchEvent(new Event('beforeprint')); note('lists', count('.more:not(.rows)') -"
            "count('figcaption .more')); note('inherited', count('.inherited tbody tr'));"));
        QCOMPARE(noted(page, "open"), QString("1"));
        QCOMPARE(noted(page, "closed"), QString("0"));
        QCOMPARE(noted(page, "again"), QString("1"));
        QCOMPARE(noted(page, "folded"), QString("0"));
        QCOMPARE(noted(page, "unfolded"), QString("0"));
        QCOMPARE(noted(page, "tree"), QString("false"));
        QCOMPARE(noted(page, "branch"), QString("true"));
        QVERIFY(noted(page, "dark") == "dark" || noted(page, "dark") == "light");
        QCOMPARE(noted(page, "lists"), QString("0")); // what is printed has no closed list
        QVERIFY(noted(page, "inherited").toInt() > 3);
    }

    void linksToOddNamesLeadThere()
    {
        const DtBrowser browser;
        if (!browser.isThere())
            QSKIP("Chromium is not installed: the page is not tried in a browser.");
        const DtPage page = browser.open(
            withScript(pageOfText("a.xml", hostileModel()).bytes(),
                       "var anchors = Array.from(document.querySelectorAll('main a.ref')), bad = [];"
                       "note('links', anchors.length); visit(0);"
                       "function visit(at) { note('left', anchors.length - at); note('bad', bad.join(' ') + '.');"
                       "if (at === anchors.length) { return; } anchors[at].click(); wait(at, 50); }"
                       "function wait(at, rounds) { var current = document.querySelector('#contents [aria-current]');"
                       "var shown = current ? current.getAttribute('href') : '';"
                       "if (shown === anchors[at].getAttribute('href')) { return visit(at + 1); }"
                       "if (rounds > 0) { return setTimeout(wait, 20, at, rounds - 1); }"
                       "bad.push(anchors[at].textContent); visit(at + 1); }"));
        QVERIFY(noted(page, "links").toInt() > 3);
        QCOMPARE(noted(page, "left"), QString("0"));
        QCOMPARE(noted(page, "bad"), QString("."));
    }

private:
    static int depthOf(const DtPage& page, const DtElement& element)
    {
        int depth = 0;
        for (const DtElement* at = &element; at->parent >= 0; at = &page.elements()[std::size_t(at->parent)])
            depth += at->name == "li" ? 1 : 0;
        return depth;
    }
};

QX_REGISTER_TEST(TestScriptHtml)
#include "testScriptHtml.moc"
