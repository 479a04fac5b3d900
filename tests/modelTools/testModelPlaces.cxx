#include "codeGenApp/modelLoading.h"
#include "modelTools/modelPlaces.h"
#include "modelToolsTest.h"
#include "omtReader/omtTree.h"
#include "registerTest.h"

#include <QtCore/QTextCodec>
#include <QtTest/QtTest>

#include <sys/stat.h>

namespace
{
// The places of the rows below are counted in these texts by hand.
const std::string theEvolvedModel =
    "<?xml version=\"1.0\"?>\n"
    "<objectModel xmlns=\"http://standards.ieee.org/IEEE1516-2010\">\n"
    "<objects>\n"
    " <objectClass><name>HLAobjectRoot</name>\n"
    "  <objectClass>\n"
    "   <name> Ship </name>\n"
    "   <sharing>Neither</sharing><attribute><name>Speed</name></attribute>\n"
    "   <objectClass><!-- \xC3\xA4 --><name>Tug</name></objectClass><objectClass><name>Ferry</name></objectClass>\n"
    "  </objectClass>\n"
    " </objectClass>\n"
    "</objects>\n"
    "<interactions><interactionClass><name>HLAinteractionRoot</name><interactionClass\n"
    "  ><name>Hail</name><parameter><name>Text</name></parameter></interactionClass>\n"
    "</interactionClass></interactions>\n"
    "<dataTypes>\n"
    "<basicDataRepresentations><basicData><name>Half</name></basicData></basicDataRepresentations>\n"
    "<simpleDataTypes><simpleData><name>Knots</name></simpleData></simpleDataTypes>\n"
    "<enumeratedDataTypes><enumeratedData><name>Color</name>\n"
    "<enumerator><name>Red</name></enumerator></enumeratedData></enumeratedDataTypes>\n"
    "<arrayDataTypes><arrayData><name>List</name></arrayData></arrayDataTypes>\n"
    "<fixedRecordDataTypes><fixedRecordData><name>Pair</name><field><name>First</name></field></fixedRecordData>"
    "</fixedRecordDataTypes>\n"
    "<variantRecordDataTypes><variantRecordData><name>Choice</name><discriminant>Which</discriminant>\n"
    "<alternative><enumerator>Red</enumerator><name>Paint</name></alternative></variantRecordData>"
    "</variantRecordDataTypes>\n"
    "</dataTypes></objectModel>\n";

const std::string theModelOf2000 =
    "<?xml version=\"1.0\" encoding=\"ISO-8859-1\"?>\n"
    "<objectModel DTDversion=\"1516.2\"><!-- \xE4\xF6 --><objects><objectClass\n"
    "   name=\"HLAobjectRoot\"><attribute name=\"a&lt;b\"/>\n"
    "<objectClass name=\"Ship\" sharing=\"Neither\"/></objectClass></objects>\n"
    "<dataTypes><fixedRecordDataTypes><fixedRecordData name=\"Pair\"><field name=\"Fu\xDF\"/></fixedRecordData>"
    "</fixedRecordDataTypes></dataTypes></objectModel>\n";

const std::string theOmtModel =
    "; a comment with (Class (Name \"None\")\n"
    "(ObjectModel (Name \"m\")\n"
    "  (Class (ID 1) (Name \"Ship\") (SuperClass 2)\n"
    "    (Attribute (Name \"Speed\")))\n"
    "  (Class (ID 2) (Name \"Base\") (Attribute (Name \"Tag\")))\n"
    "  (Interaction (ID 1) (Name \"Hail\") (Parameter (Name \"Text (odd)\")))\n"
    "  (EnumeratedDataType (Name \"Color\") (Enumeration (Enumerator \"Red\") (Representation 1)))\n"
    "  (ComplexDataType (Name \"Pair\") (ComplexComponent (FieldName \"Fu\xDF\"))))\n";

DtSubject subjectOf(DtSubject::Kind kind, const char* name, const char* owner)
{
    return {kind, name, owner};
}

// "file:line:column" with the file's own name; empty when nothing is known.
std::string textOf(const DtPlace& place)
{
    if (place.file.empty())
        return std::string();
    return std::filesystem::path(place.file).filename().native() + ":" + std::to_string(place.line) + ":" +
           std::to_string(place.column);
}

// Models by file names, in that order; places asked of them.
class DtPlacedModels
{
public:
    explicit DtPlacedModels(const std::vector<std::pair<const char*, std::string>>& models)
        : myPlaces(written(myFolder, models))
    {
    }
    std::string of(const DtSubject& subject) { return textOf(myPlaces.of(subject)); }
    std::filesystem::path path(const char* name) const { return myFolder.path() / name; }

private:
    static std::vector<std::string> written(const DtTestFolder& folder,
                                            const std::vector<std::pair<const char*, std::string>>& models)
    {
        std::vector<std::string> files;
        for (const auto& [name, content] : models)
        {
            files.push_back((folder.path() / name).native());
            writeBytes(files.back(), content);
        }
        return files;
    }

    DtTestFolder myFolder;
    DtModelPlaces myPlaces;
};

std::string model2010(const std::string& objects)
{
    return "<objectModel><objects>\n" + objects + "\n</objects></objectModel>";
}
// The text from that place on, which begins with the element; empty where there is no such place.
QByteArray textAt(const QList<QByteArray>& lines, const DtPlace& place)
{
    const int line = static_cast<int>(place.line);
    return line == 0 || line > lines.size() ? QByteArray() : lines[line - 1].mid(static_cast<int>(place.column) - 1);
}

template <typename Nodes, typename Subject>
void addSubjects(std::vector<DtSubject>& subjects, const Nodes& nodes, Subject subject)
{
    for (const auto* node : nodes)
        subjects.push_back(subject(*node));
}

// All classes, members of classes and datatypes of a tree.
std::vector<DtSubject> subjectsOf(const DtOMTTree& tree)
{
    std::vector<DtSubject> subjects;
    for (const DtObjectClassFedNode* node : tree.objectClasses())
    {
        const DtSubject owner = DtSubject::objectClass(node->getFullName());
        subjects.push_back(owner);
        addSubjects(subjects, node->getAttributes(),
                    [&owner](const DtAttributeFedNode& each) { return owner.member(each.getName()); });
    }
    for (const DtInteractionClassFedNode* node : tree.interactionClasses())
    {
        const DtSubject owner = DtSubject::interactionClass(node->getFullName());
        subjects.push_back(owner);
        addSubjects(subjects, node->getParameters(),
                    [&owner](const DtParameterFedNode& each) { return owner.member(each.getName()); });
    }
    const auto datatype = [](const DtOMTNode& node) { return DtSubject::datatype(node.getName()); };
    addSubjects(subjects, tree.basicDataRepresentations(), datatype);
    addSubjects(subjects, tree.simpleDatatypes(), datatype);
    addSubjects(subjects, tree.enumeratedDatatypes(), datatype);
    addSubjects(subjects, tree.arrayDatatypes(), datatype);
    addSubjects(subjects, tree.fixedDatatypes(), datatype);
    addSubjects(subjects, tree.variantDatatypes(), datatype);
    addSubjects(subjects, tree.complexDatatypes(), datatype);
    return subjects;
}

QByteArray startOf(DtSubject::Kind kind, bool isText)
{
    switch (kind)
    {
    case DtSubject::ObjectClass:
        return isText ? "(Class" : "<objectClass";
    case DtSubject::InteractionClass:
        return isText ? "(Interaction" : "<interactionClass";
    case DtSubject::Attribute:
        return isText ? "(Attribute" : "<attribute";
    case DtSubject::Parameter:
        return isText ? "(Parameter" : "<parameter";
    default:
        return isText ? "(" : "<";
    }
}
} // namespace

class TestModelPlaces : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void placeIsTheStartTagOfTheElement_data()
    {
        QTest::addColumn<QString>("model");
        QTest::addColumn<int>("kind");
        QTest::addColumn<QString>("name");
        QTest::addColumn<QString>("owner");
        QTest::addColumn<QString>("place");
        const struct
        {
            const char* model;
            DtSubject::Kind kind;
            const char* name;
            const char* owner;
            const char* place;
        } rows[] = {
            {"2010.xml", DtSubject::ObjectClass,      "HLAobjectRoot",           "",                   "4:2"  },
            {"2010.xml", DtSubject::ObjectClass,      "HLAobjectRoot.Ship",      "",                   "5:3"  },
            {"2010.xml", DtSubject::ObjectClass,      "Ship",                    "",                   "5:3"  },
            {"2010.xml", DtSubject::ObjectClass,      "HLAobjectRoot.Ship.Tug",  "",                   "8:4"  },
            {"2010.xml", DtSubject::ObjectClass,      "Ship.Ferry",              "",                   "8:57" },
            {"2010.xml", DtSubject::ObjectClass,      "Ferry",                   "",                   "8:57" },
            {"2010.xml", DtSubject::Attribute,        "Speed",                   "HLAobjectRoot.Ship", "7:30" },
            {"2010.xml", DtSubject::Attribute,        "Speed",                   "Ship.Tug",           "7:30" },
            {"2010.xml", DtSubject::Attribute,        "Other",                   "Ship.Tug",           "8:4"  },
            {"2010.xml", DtSubject::InteractionClass, "HLAinteractionRoot",      "",                   "12:15"},
            {"2010.xml", DtSubject::InteractionClass, "HLAinteractionRoot.Hail", "",                   "12:64"},
            {"2010.xml", DtSubject::Parameter,        "Text",                    "Hail",               "13:21"},
            {"2010.xml", DtSubject::Datatype,         "Half",                    "",                   "16:27"},
            {"2010.xml", DtSubject::Datatype,         "Knots",                   "",                   "17:18"},
            {"2010.xml", DtSubject::Datatype,         "Color",                   "",                   "18:22"},
            {"2010.xml", DtSubject::Enumerator,       "Red",                     "Color",              "19:1" },
            {"2010.xml", DtSubject::Datatype,         "List",                    "",                   "20:17"},
            {"2010.xml", DtSubject::Datatype,         "Pair",                    "",                   "21:23"},
            {"2010.xml", DtSubject::Field,            "First",                   "Pair",               "21:57"},
            {"2010.xml", DtSubject::Datatype,         "Choice",                  "",                   "22:25"},
            {"2010.xml", DtSubject::Field,            "Paint",                   "Choice",             "23:1" },
            {"2010.xml", DtSubject::Field,            "Which",                   "Choice",             "22:25"},
            {"2000.xml", DtSubject::ObjectClass,      "HLAobjectRoot",           "",                   "2:54" },
            {"2000.xml", DtSubject::Attribute,        "a<b",                     "HLAobjectRoot",      "3:25" },
            {"2000.xml", DtSubject::ObjectClass,      "HLAobjectRoot.Ship",      "",                   "4:1"  },
            {"2000.xml", DtSubject::Datatype,         "Pair",                    "",                   "5:34" },
            {"2000.xml", DtSubject::Field,            "Fu\xC3\x9F",              "Pair",               "5:63" },
            {"text.omt", DtSubject::ObjectClass,      "ObjectRoot.Base.Ship",    "",                   "3:3"  },
            {"text.omt", DtSubject::ObjectClass,      "Base.Ship",               "",                   "3:3"  },
            {"text.omt", DtSubject::Attribute,        "Speed",                   "Base.Ship",          "4:5"  },
            {"text.omt", DtSubject::ObjectClass,      "Base",                    "",                   "5:3"  },
            {"text.omt", DtSubject::Attribute,        "Tag",                     "ObjectRoot.Base",    "5:31" },
            {"text.omt", DtSubject::Attribute,        "Tag",                     "Base.Ship",          "5:31" },
            {"text.omt", DtSubject::InteractionClass, "InteractionRoot.Hail",    "",                   "6:3"  },
            {"text.omt", DtSubject::Parameter,        "Text (odd)",              "Hail",               "6:37" },
            {"text.omt", DtSubject::Datatype,         "Color",                   "",                   "7:3"  },
            {"text.omt", DtSubject::Enumerator,       "Red",                     "Color",              "7:38" },
            {"text.omt", DtSubject::Datatype,         "Pair",                    "",                   "8:3"  },
            {"text.omt", DtSubject::Field,            "Fu\xC3\x9F",              "Pair",               "8:34" },
        };
        for (const auto& row : rows)
            QTest::addRow("%s %d %s %s", row.model, row.kind, row.name, row.owner)
                << row.model << int(row.kind) << row.name << row.owner << QString(row.model) + ":" + row.place;
    }

    void placeIsTheStartTagOfTheElement()
    {
        QFETCH(QString, model);
        QFETCH(int, kind);
        QFETCH(QString, name);
        QFETCH(QString, owner);
        QFETCH(QString, place);
        const std::string content = model == "2010.xml"   ? theEvolvedModel
                                    : model == "2000.xml" ? theModelOf2000
                                                          : theOmtModel;
        DtPlacedModels models({
            {model.toUtf8().constData(), content}
        });
        const DtSubject subject =
            subjectOf(static_cast<DtSubject::Kind>(kind), name.toUtf8().constData(), owner.toUtf8().constData());
        QCOMPARE(QString::fromStdString(models.of(subject)), place);
    }

    void whatIsInNoFileHasNoPlace_data()
    {
        QTest::addColumn<int>("kind");
        QTest::addColumn<QString>("name");
        QTest::newRow("nothing") << int(DtSubject::None) << "Ship";
        QTest::newRow("setting") << int(DtSubject::Setting) << "Ship";
        QTest::newRow("unknown datatype") << int(DtSubject::Datatype) << "HLAoctet";
        QTest::newRow("class as datatype") << int(DtSubject::Datatype) << "Ship";
        QTest::newRow("object as interaction") << int(DtSubject::InteractionClass) << "Ship";
        QTest::newRow("name in a comment") << int(DtSubject::ObjectClass) << "None";
        QTest::newRow("class below another") << int(DtSubject::ObjectClass) << "Other.Ship";
        QTest::newRow("empty name") << int(DtSubject::ObjectClass) << "";
    }

    void whatIsInNoFileHasNoPlace()
    {
        QFETCH(int, kind);
        QFETCH(QString, name);
        DtPlacedModels models({
            {"a.xml", theEvolvedModel},
            {"b.omt", theOmtModel    }
        });
        const DtSubject subject = subjectOf(static_cast<DtSubject::Kind>(kind), name.toUtf8().constData(), "");
        COMPARE_TEXT(models.of(subject), "");
    }

    void fileStandsForItselfWithoutALine()
    {
        DtModelPlaces places({});
        COMPARE_TEXT(textOf(places.of(DtSubject::file("gone.xml"))), "gone.xml:0:0");
    }

    void firstDefinitionCounts()
    {
        const std::string datatype = "<objectModel><dataTypes><simpleDataTypes>%1<simpleData><name>X</name>"
                                     "</simpleData></simpleDataTypes></dataTypes></objectModel>";
        DtPlacedModels models({
            {"a.xml", QString::fromStdString(datatype).arg("\n").toStdString()  },
            {"b.xml", QString::fromStdString(datatype).arg("\n\n").toStdString()}
        });
        COMPARE_TEXT(models.of(DtSubject::datatype("X")), "a.xml:2:1");
    }

    void restatedClassGivesWayToTheOneWithContent_data()
    {
        QTest::addColumn<QString>("first");
        QTest::addColumn<QString>("second");
        QTest::addColumn<QString>("place");
        const char* const bare = "<objectClass><name>A</name><objectClass><name>B</name></objectClass></objectClass>";
        const char* const valued = "<objectClass><name>A</name><sharing>Neither</sharing><objectClass><name>C</name>"
                                   "</objectClass></objectClass>";
        const char* const leaf = "<objectClass><name>A</name></objectClass>";
        const char* const full = "<objectClass><objectClass><name>D</name></objectClass><name>A</name>"
                                 "<attribute><name>x</name></attribute></objectClass>";
        QTest::newRow("bare, full") << bare << full << "b.xml:3:1";
        QTest::newRow("values only, full") << valued << full << "b.xml:3:1";
        QTest::newRow("bare, values only") << bare << valued << "b.xml:3:1";
        QTest::newRow("bare, without subclass") << bare << leaf << "b.xml:3:1";
        QTest::newRow("full, bare") << full << bare << "a.xml:3:1";
        QTest::newRow("full, full") << full << full << "a.xml:3:1";
        QTest::newRow("without subclass, full") << leaf << full << "a.xml:3:1";
        QTest::newRow("bare, bare") << bare << bare << "a.xml:3:1";
        QTest::newRow("bare of 2000, full of 2000")
            << "<objectClass name=\"A\"><objectClass name=\"B\"/></objectClass>"
            << "<objectClass name=\"A\"><attribute name=\"x\"/><objectClass name=\"B\"/></objectClass>"
            << "b.xml:3:1";
    }

    void restatedClassGivesWayToTheOneWithContent()
    {
        QFETCH(QString, first);
        QFETCH(QString, second);
        QFETCH(QString, place);
        const auto model = [](const QString& text)
        { return model2010("<objectClass><name>Root</name>\n" + text.toStdString() + "</objectClass>"); };
        DtPlacedModels models({
            {"a.xml", model(first) },
            {"b.xml", model(second)}
        });
        QCOMPARE(QString::fromStdString(models.of(DtSubject::objectClass("Root.A"))), place);
        QCOMPARE(QString::fromStdString(models.of(DtSubject::objectClass("A"))), place);
    }

    void encodingsOfTwoBytesHaveTheSamePlaces_data()
    {
        QTest::addColumn<QByteArray>("codec");
        QTest::addColumn<QByteArray>("mark");
        QTest::newRow("big, marked") << QByteArray("UTF-16BE") << QByteArray("\xFE\xFF");
        QTest::newRow("little, marked") << QByteArray("UTF-16LE") << QByteArray("\xFF\xFE");
        QTest::newRow("big") << QByteArray("UTF-16BE") << QByteArray();
        QTest::newRow("little") << QByteArray("UTF-16LE") << QByteArray();
        QTest::newRow("UTF-8, marked") << QByteArray("UTF-8") << QByteArray("\xEF\xBB\xBF");
    }

    void encodingsOfTwoBytesHaveTheSamePlaces()
    {
        QFETCH(QByteArray, codec);
        QFETCH(QByteArray, mark);
        QTextEncoder encoder(QTextCodec::codecForName(codec), QTextCodec::IgnoreHeader);
        const QString text =
            QString::fromUtf8("<?xml version=\"1.0\"?><objectModel><objects><!-- \xC3\xA4 -->"
                              "<objectClass><name>\xC3\x9C</name></objectClass></objects></objectModel>");
        const QByteArray bytes = mark + encoder.fromUnicode(text);
        DtPlacedModels models({
            {"a.xml", bytes.toStdString()}
        });
        COMPARE_TEXT(models.of(DtSubject::objectClass("\xC3\x9C")), "a.xml:1:54");
    }

    void linesBeyondSixteenBitsAreCounted()
    {
        DtPlacedModels models({
            {"a.xml", model2010(std::string(70000, '\n') + " <objectClass><name>A</name></objectClass>")}
        });
        COMPARE_TEXT(models.of(DtSubject::objectClass("A")), "a.xml:70002:2");
    }

    void modelsOfOneLongLineArePlaced()
    {
        const int count = 20000;
        std::string line;
        for (int i = 0; i < count; ++i)
            line += "<objectClass><name>" + std::to_string(100000 + i) + "</name></objectClass>";
        DtPlacedModels models({
            {"a.xml", model2010(line)}
        });
        const int width = static_cast<int>(line.size()) / count;
        const std::string place = "a.xml:2:" + std::to_string((count - 1) * width + 1);
        COMPARE_TEXT(models.of(DtSubject::objectClass(std::to_string(100000 + count - 1).c_str())), place.c_str());
    }

    void entitiesAreNeitherReplacedNorLoaded()
    {
        const std::string model =
            "<!DOCTYPE objectModel SYSTEM \"other.xml\" [\n"
            "<!ENTITY in \"<objectClass><name>In</name></objectClass>\">\n"
            "<!ENTITY out SYSTEM \"other.xml\">\n"
            "<!ENTITY big \"&in;&in;&in;&in;&in;&in;&in;&in;\"><!ENTITY huge \"&big;&big;&big;\">]>\n"
            "<objectModel><objects>&in;&out;&huge;\n"
            " <objectClass><name>A</name></objectClass></objects></objectModel>";
        DtPlacedModels models({
            {"a.xml", model}
        });
        writeBytes(models.path("other.xml"), "<objectClass><name>Out</name></objectClass>");
        COMPARE_TEXT(models.of(DtSubject::objectClass("In")), "");
        COMPARE_TEXT(models.of(DtSubject::objectClass("Out")), "");
        COMPARE_TEXT(models.of(DtSubject::objectClass("A")), "a.xml:6:2");
    }

    void firstModelOfATextIsTheOneThatCounts()
    {
        DtPlacedModels models({
            {"a.omt",
             "(Other (Class (Name \"A\")))\n (ObjectModel (Class (Name \"B\")))\n(ObjectModel (Class (Name \"A\")))"},
            {"b.omt", "(ObjectModel (Class (Name \"A\")))"                                                          }
        });
        COMPARE_TEXT(models.of(DtSubject::objectClass("B")), "a.omt:2:15");
        COMPARE_TEXT(models.of(DtSubject::objectClass("A")), "b.omt:1:14");
    }

    void malformedFileGivesThePlacesAheadOfTheFault()
    {
        DtPlacedModels models({
            {"a.xml", theEvolvedModel.substr(0, theEvolvedModel.find("  </objectClass>")) + "</wrong>"},
            {"b.omt", theOmtModel.substr(0,     theOmtModel.find("  (Interaction"))                   }
        });
        COMPARE_TEXT(models.of(DtSubject::objectClass("HLAobjectRoot.Ship.Ferry")), "a.xml:8:57");
        COMPARE_TEXT(models.of(DtSubject::objectClass("Base.Ship")), "b.omt:3:3");
    }

    void filesThatEndAnywhereDoNoHarm_data()
    {
        QTest::addColumn<QByteArray>("model");
        QTest::newRow("2010") << QByteArray::fromStdString(theEvolvedModel);
        QTest::newRow("2000") << QByteArray::fromStdString(theModelOf2000);
        QTest::newRow("text") << QByteArray::fromStdString(theOmtModel);
    }

    void filesThatEndAnywhereDoNoHarm()
    {
        QFETCH(QByteArray, model);
        const std::string content = model.toStdString();
        const bool isText = content[0] == ';';
        std::size_t most = 0;
        for (std::size_t length = 0; length <= content.size(); ++length)
        {
            const std::string start = content.substr(0, length);
            const std::size_t count = (isText ? DtOmtModelItems(start) : DtXmlModelItems(start)).items.size();
            QVERIFY2(count + 1 >= most, qPrintable(QString::number(length))); // a tag that is cut off may count or not
            most = std::max(most, count);
        }
        QVERIFY(most > 3);
    }

    void depthDoesNoHarm_data()
    {
        QTest::addColumn<QString>("open");
        QTest::newRow("elements") << "<objectClass><name>A</name>";
        QTest::newRow("lists") << "(ObjectModel (Class (Name \"A\") ";
        QTest::newRow("superclasses") << "";
    }

    void depthDoesNoHarm()
    {
        QFETCH(QString, open);
        std::string content = open.isEmpty() ? "(ObjectModel " : "";
        for (int i = 1; i <= 20000; ++i)
            content += open.isEmpty() ? "(Class (Name \"A\") (ID " + std::to_string(i) + ") (SuperClass " +
                                            std::to_string(i % 20000 + 1) + "))"
                                      : open.toStdString();
        DtPlacedModels models({
            {"a", content}
        });
        QVERIFY(!models.of(DtSubject::objectClass("A")).empty());
    }

    void everythingInRealModelsHasAPlace_data()
    {
        QTest::addColumn<QString>("file");
        QTest::newRow("sample") << QStringLiteral(QX_SOURCE_DIR "/data/samples/sample.xml");
        const QString models = QStringLiteral(QX_SHARED_DIR "/models");
        for (QDirIterator each(models, {"*.xml", "*.omt"}, QDir::Files, QDirIterator::Subdirectories); each.hasNext();)
        {
            const QString file = each.next();
            QTest::newRow(qPrintable(file.mid(models.length() + 1))) << file;
        }
    }

    void everythingInRealModelsHasAPlace()
    {
        QFETCH(QString, file);
        const bool isText = file.endsWith(".omt");
        const DtLoadedModel model = DtLoadModel({DtFilename(DtString(file.toUtf8().constData()))}, false);
        QVERIFY(model.tree != nullptr);
        DtModelPlaces places({file.toStdString()});
        const std::vector<DtSubject> subjects = subjectsOf(*model.tree);
        if (subjects.empty())
            QSKIP("The model has neither classes nor datatypes.");
        const QList<QByteArray> lines = QByteArray::fromStdString(readBytes(file.toStdString())).split('\n');
        for (const DtSubject& subject : subjects)
        {
            const bool isMadeUp = isText && (subject.name == "ObjectRoot" || subject.name == "InteractionRoot");
            const QByteArray text = textAt(lines, places.of(subject));
            QVERIFY2(isMadeUp || text.startsWith(startOf(subject.kind, isText)),
                     qPrintable(QString(subject.name) + " of " + subject.owner.c_str() + ": " + text.left(40)));
        }
    }

    void whatIsNoPlainFileIsNotOpened()
    {
        const DtTestFolder folder;
        const std::string pipe = (folder.path() / "pipe").native();
        QCOMPARE(mkfifo(pipe.c_str(), 0600), 0);
        DtModelPlaces places({pipe, folder.path().native(), (folder.path() / "gone.xml").native()});
        COMPARE_TEXT(textOf(places.of(DtSubject::datatype("A"))), "");
    }

    void filesAreReadOnceAndNotBeforeAPlaceIsWanted()
    {
        const DtTestFolder folder;
        const std::string file = (folder.path() / "a.xml").native();
        DtModelPlaces places({file});
        writeBytes(file, model2010("<objectClass><name>A</name></objectClass>"));
        COMPARE_TEXT(textOf(places.of(DtSubject::objectClass("A"))), "a.xml:2:1");
        writeBytes(file, model2010("\n<objectClass><name>A</name></objectClass>"));
        COMPARE_TEXT(textOf(places.of(DtSubject::objectClass("A"))), "a.xml:2:1");
    }
};

QX_REGISTER_TEST(TestModelPlaces)
#include "testModelPlaces.moc"
