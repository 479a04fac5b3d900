// What a list of a model names, in text and in JSON.

#include "registerTest.h"

#include "modelTools/modelList.h"
#include "modelTools/modelToolsTest.h"
#include "modelTools/toolFailure.h"
#include "smallModels.h"

#include <QtCore/QJsonArray>
#include <QtCore/QJsonDocument>
#include <QtCore/QJsonObject>
#include <QtTest/QtTest>

#include <sstream>

namespace
{
const QByteArray theClasses = objectText("Boat", attributeText("Speed") + objectText("Tug", attributeText("Pull"))) +
                              objectText("HLAmanager", objectText("HLAfederate"));
const QByteArray theSounds = interactionText("Sound", parameterText("Pitch") + interactionText("Horn"));

// A datatype of each family that the 2010 form has.
const QByteArray theDatatypes =
    "<dataTypes>"
    "<basicDataRepresentations><basicData><name>Int</name><size>32</size><endian>Big</endian></basicData>"
    "</basicDataRepresentations>"
    "<simpleDataTypes><simpleData><name>Speed</name><representation>Int</representation></simpleData>"
    "</simpleDataTypes>"
    "<enumeratedDataTypes><enumeratedData><name>Kind</name><representation>Int</representation>"
    "<enumerator><name>Low</name><value>3</value></enumerator></enumeratedData></enumeratedDataTypes>"
    "<arrayDataTypes><arrayData><name>Speeds</name><dataType>Speed</dataType><cardinality>4</cardinality>"
    "<encoding>HLAfixedArray</encoding></arrayData></arrayDataTypes>"
    "<fixedRecordDataTypes><fixedRecordData><name>Point</name><encoding>HLAfixedRecord</encoding>"
    "<field><name>X</name><dataType>Speed</dataType></field></fixedRecordData></fixedRecordDataTypes>"
    "<variantRecordDataTypes><variantRecordData><name>Choice</name><discriminant>Which</discriminant>"
    "<dataType>Kind</dataType><alternative><enumerator>Low</enumerator><name>Deep</name>"
    "<dataType>Speed</dataType></alternative><encoding>HLAvariantRecord</encoding></variantRecordData>"
    "</variantRecordDataTypes></dataTypes>";

QByteArray modelText()
{
    QByteArray text = moduleText(theClasses, theSounds);
    return text.insert(text.indexOf("</objectModel>"), theDatatypes);
}

// The list of one model that is written for the purpose, and what was told beside it.
class DtListed
{
public:
    explicit DtListed(const std::function<void(DtListOptions&)>& choose, const QByteArray& text = modelText(),
                      const std::string& name = "small.xml")
    {
        const DtTestFolder folder;
        writeBytes(folder.path() / name, text.toStdString());
        DtListOptions options;
        options.request.models = {(folder.path() / name).string()};
        options.request.dataDirectory = QX_SOURCE_DIR "/data/";
        options.request.settings = {"includeStandardMIM=false"};
        choose(options);
        std::ostringstream out;
        std::ostringstream err;
        try
        {
            DtModelList(options).run(out, err);
        }
        catch (const DtToolFailure& error)
        {
            failure = error.what();
            code = error.code();
        }
        output = out.str();
        errors = err.str();
    }
    QJsonObject json() const { return QJsonDocument::fromJson(QByteArray::fromStdString(output)).object(); }

    std::string output;
    std::string errors;
    std::string failure;
    DtExitCode code = DtExitCode::Done;
};

void listObjects(DtListOptions& options)
{
    options.listsObjects = true;
}

QByteArray compact(const QJsonValue& value)
{
    return QJsonDocument(value.toObject()).toJson(QJsonDocument::Compact);
}
} // namespace

class TestModelList : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void everythingIsListedWhenNothingIsAskedFor()
    {
        const DtListed list([](DtListOptions&) {});
        COMPARE_TEXT(list.output,
                     "HLAobjectRoot.Boat\nHLAobjectRoot.Boat.Tug\nHLAinteractionRoot.Sound\n"
                     "HLAinteractionRoot.Sound.Horn\nInt\tbasic\nSpeed\tsimple\nKind\tenumerated\nSpeeds\tarray\n"
                     "Point\tfixedRecord\nChoice\tvariantRecord\n");
        COMPARE_TEXT(list.failure, "");
    }

    void eachKindIsListedAlone_data()
    {
        QTest::addColumn<int>("kind");
        QTest::addColumn<QByteArray>("output");
        QTest::newRow("objects") << 0 << QByteArray("HLAobjectRoot.Boat\nHLAobjectRoot.Boat.Tug\n");
        QTest::newRow("interactions") << 1 << QByteArray("HLAinteractionRoot.Sound\nHLAinteractionRoot.Sound.Horn\n");
        QTest::newRow("datatypes") << 2
                                   << QByteArray("Int\tbasic\nSpeed\tsimple\nKind\tenumerated\nSpeeds\tarray\n"
                                                 "Point\tfixedRecord\nChoice\tvariantRecord\n");
    }
    void eachKindIsListedAlone()
    {
        QFETCH(int, kind);
        QFETCH(QByteArray, output);
        const DtListed list(
            [kind](DtListOptions& options)
            {
                options.listsObjects = kind == 0;
                options.listsInteractions = kind == 1;
                options.listsDatatypes = kind == 2;
            });
        QCOMPARE(QByteArray::fromStdString(list.output), output);
    }

    void treeHasShortNamesBelowSuperclassesAndFamilies()
    {
        const DtListed list([](DtListOptions& options) { options.isTree = true; });
        COMPARE_TEXT(list.output,
                     "HLAobjectRoot\n  Boat\n    Tug\nHLAinteractionRoot\n  Sound\n    Horn\nbasic\n  Int\nsimple\n"
                     "  Speed\nenumerated\n  Kind\narray\n  Speeds\nfixedRecord\n  Point\nvariantRecord\n  Choice\n");
    }

    void managementClassesAreListedWhenAskedFor()
    {
        const DtListed list(
            [](DtListOptions& options)
            {
                listObjects(options);
                options.request.withManagement = true;
            });
        COMPARE_TEXT(list.output, "HLAobjectRoot.Boat\nHLAobjectRoot.Boat.Tug\nHLAobjectRoot.HLAmanager\n"
                                  "HLAobjectRoot.HLAmanager.HLAfederate\n");
    }

    void patternsLeaveTheClassesOfAGenerationWithThem()
    {
        const DtListed list(
            [](DtListOptions& options)
            {
                options.listsObjects = options.listsInteractions = true;
                options.request.patterns = {"Horn"};
            });
        COMPARE_TEXT(list.output, "HLAinteractionRoot.Sound\nHLAinteractionRoot.Sound.Horn\n");
    }

    void unknownNameEndsWithNearNames()
    {
        const DtListed list([](DtListOptions& options) { options.request.patterns = {"Tag"}; });
        QCOMPARE(list.code, DtExitCode::Usage);
        COMPARE_TEXT(list.failure, "no class matches \"Tag\". Did you mean Tug?");
        COMPARE_TEXT(list.output, "");
    }

    void jsonHasMembersAndTheirDatatypes()
    {
        const DtListed list([](DtListOptions& options) { options.format = DtListFormat::Json; });
        const QJsonObject root = list.json();
        QCOMPARE(root.keys(), QStringList({"datatypes", "interactions", "objects"}));
        QCOMPARE(compact(root["objects"].toArray()[1]),
                 QByteArray("{\"attributes\":[{\"datatype\":\"HLAinteger32BE\",\"name\":\"Pull\"}],"
                            "\"fullName\":\"HLAobjectRoot.Boat.Tug\",\"name\":\"Tug\","
                            "\"parent\":\"HLAobjectRoot.Boat\"}"));
        QCOMPARE(compact(root["interactions"].toArray()[0]),
                 QByteArray("{\"fullName\":\"HLAinteractionRoot.Sound\",\"name\":\"Sound\","
                            "\"parameters\":[{\"datatype\":\"HLAinteger32BE\",\"name\":\"Pitch\"}],"
                            "\"parent\":\"HLAinteractionRoot\"}"));
    }

    void jsonTellsWhatDatatypesAreMadeOf_data()
    {
        QTest::addColumn<int>("index");
        QTest::addColumn<QByteArray>("text");
        int index = 0;
        for (const char* text :
             {"{\"endian\":\"Big\",\"family\":\"basic\",\"name\":\"Int\",\"size\":\"32\"}",
              "{\"family\":\"simple\",\"name\":\"Speed\",\"representation\":\"Int\"}",
              "{\"enumerators\":[{\"name\":\"Low\",\"value\":3}],\"family\":\"enumerated\",\"name\":\"Kind\","
              "\"representation\":\"Int\"}",
              "{\"cardinality\":\"4\",\"datatype\":\"Speed\",\"family\":\"array\",\"name\":\"Speeds\"}",
              "{\"family\":\"fixedRecord\",\"fields\":[{\"datatype\":\"Speed\",\"name\":\"X\"}],\"name\":\"Point\"}",
              "{\"alternatives\":[{\"datatype\":\"Speed\",\"enumerator\":\"Low\",\"name\":\"Deep\"}],"
              "\"datatype\":\"Kind\",\"discriminant\":\"Which\",\"family\":\"variantRecord\",\"name\":\"Choice\"}"})
            QTest::newRow(text) << index++ << QByteArray(text);
    }
    void jsonTellsWhatDatatypesAreMadeOf()
    {
        QFETCH(int, index);
        QFETCH(QByteArray, text);
        const DtListed list(
            [](DtListOptions& options)
            {
                options.format = DtListFormat::Json;
                options.listsDatatypes = true;
            });
        QCOMPARE(list.json().keys(), QStringList("datatypes"));
        QCOMPARE(compact(list.json()["datatypes"].toArray()[index]), text);
    }

    void complexDatatypesOfTheTextFormatAreAFamily()
    {
        const QByteArray text =
            "(DIF HLA-OMT v1.3 (TYPE Single))\n(ObjectModel (Name \"Old\")\n"
            "  (ComplexDataType (Name \"Pair\")\n"
            "    (ComplexComponent (FieldName \"First\") (DataType \"short\") (Cardinality \"2\")))\n"
            "  (Class (ID 1) (Name \"Barge\")))\n";
        const auto listDatatypes = [](DtListOptions& options) { options.listsDatatypes = true; };
        const std::string output = DtListed(listDatatypes, text, "old.omt").output;
        QVERIFY2(output.find("Pair\tcomplex\n") != std::string::npos, output.c_str());
    }

    // The reader takes bytes that are no UTF-8 for Latin-1.
    void namesThatAreNotUtf8AreListedInUtf8()
    {
        const QByteArray text = "(DIF HLA-OMT v1.3 (TYPE Single))\n(ObjectModel (Name \"Old\")\n"
                                "  (Class (ID 1) (Name \"B\xE4r\")))\n";
        const std::string output = DtListed(listObjects, text, "old.omt").output;
        QVERIFY2(output.find("ObjectRoot.B\xC3\xA4r\n") != std::string::npos, output.c_str());
    }

    void unreadableModelEndsWithWhatTheReaderSays()
    {
        const DtListed list(listObjects, "<?xml version=\"1.0\"?>\n<objectModel><oops></objectModel>\n");
        QCOMPARE(list.code, DtExitCode::Unreadable);
        QVERIFY2(list.failure.find("the model cannot be read") == 0, list.failure.c_str());
        COMPARE_TEXT(list.output, "");
    }
};

QX_REGISTER_TEST(TestModelList)
#include "testModelList.moc"
