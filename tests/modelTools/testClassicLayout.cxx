// A run without a window gives what one of the window gives: the same names and bytes, but for the identifiers of
// projects, which are random there.

#include "registerTest.h"

#include "fileGenerator/progressMeter.h"
#include "modelTools/modelGeneration.h"
#include "modelTools/toolFailure.h"
#include "scratchProgram.h"

namespace
{
using Texts = QMap<QString, QByteArray>;

// Files by name, with every identifier masked.
Texts textsBelow(const QString& directory)
{
    static const QRegularExpression theUuid("[0-9A-Fa-f]{8}(-[0-9A-Fa-f]{4}){3}-[0-9A-Fa-f]{12}");
    Texts texts;
    for (const QString& file : filesBelow(directory))
    {
        QString text = QString::fromLatin1(readTextFile(directory + "/" + file));
        texts[file] = text.replace(theUuid, "UUID").toLatin1();
    }
    return texts;
}

std::set<DtString> namesOf(const std::set<DtOmtObject>& records)
{
    std::set<DtString> names;
    for (const DtOmtObject& record : records)
        names.insert(record.fullName() + " " + record.name());
    return names;
}

DtGenerationRequest classicRequest(const DtScratchProgram& program, const std::vector<DtString>& models)
{
    DtGenerationRequest request;
    for (const DtString& model : models)
        request.models.push_back(model.stdString());
    request.withManagement = true;
    request.settings = {"generateExamples=true"};
    request.layout = DtCppLayout::Classic;
    request.dataDirectory = program.path("data/").toStdString();
    return request;
}

// The first difference in words; empty when there is none.
QString differenceOf(const Texts& expected, const Texts& actual)
{
    if (expected.keys() != actual.keys())
    {
        const auto names = [](const Texts& texts) { return QSet<QString>(texts.keyBegin(), texts.keyEnd()); };
        const QSet<QString> missing = names(expected) - names(actual);
        const QSet<QString> added = names(actual) - names(expected);
        return "missing: " + missing.values().join(' ') + "; added: " + added.values().join(' ');
    }
    for (auto each = expected.begin(); each != expected.end(); ++each)
        if (each.value() != actual[each.key()])
            return each.key() + " differs";
    return QString();
}
} // namespace

class TestClassicLayout : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void outputIsThatOfTheWindow_data()
    {
        QTest::addColumn<QStringList>("files");
        QTest::newRow("sample") << QStringList(QStringLiteral(QX_SOURCE_DIR "/data/samples/sample.xml"));
        const QDir models(QStringLiteral(QX_SHARED_DIR "/models"));
        for (const QString& file : filesBelow(models.path()))
            if (file.endsWith(".xml") || file.endsWith(".omt"))
                QTest::newRow(file.toUtf8().constData()) << QStringList(models.filePath(file));
        QTest::newRow("six modules") << largeModel();
        const QString restaurant = models.filePath("1516-2025/RestaurantFOMmodule-2025.xml");
        const QString extension = models.filePath("1516-2025/RestaurantExtensionFOMmodule-2025.xml");
        QTest::newRow("two modules of 2025") << QStringList({restaurant, extension});
    }
    void outputIsThatOfTheWindow()
    {
        QFETCH(QStringList, files);
        if (files.isEmpty() || !QFile::exists(files.first()))
            QSKIP("The models are not here.");
        DtScratchProgram program(myTree);
        std::vector<DtString> models;
        for (const QString& file : files)
            models.push_back(program.copiedModel(file));
        std::set<DtString> windowNames;
        const DtCapture warnings(DtWarn);
        {
            const DtRunScope scope; // as in a process of its own
            const auto window = runBatch(program, models);
            windowNames = namesOf(window->omtProject()->getObjects());
        }
        const Texts expected = textsBelow(program.path("out"));
        QVERIFY(expected.size() > 10 || files.first().contains("HLAstandardMIM"));

        QVERIFY(QDir().mkpath(program.path("plain")));
        DtQuietProgressMeter meter;
        const DtProgressUse use(meter);
        DtModelGeneration generation(classicRequest(program, models));
        generation.load();
        generation.writeInto(program.path("plain").toStdString());
        QCOMPARE(namesOf(generation.project().getObjects()), windowNames);
        QCOMPARE(differenceOf(expected, textsBelow(program.path("plain"))), QString());
    }

    void secondRunInAProcessGivesTheSameBytes()
    {
        DtScratchProgram program(myTree);
        QTemporaryDir other;
        DtQuietProgressMeter meter;
        const DtProgressUse use(meter);
        // A model with other datatypes of the same names runs in between.
        const QString odd = program.path("models/odd.xml");
        writeTextFile(
            odd,
            readTextFile(QStringLiteral(QX_SOURCE_DIR "/data/samples/sample.xml")).replace("Float64BE", "Float32BE"));
        const std::vector<std::pair<QString, DtString>> runs = {
            {"one", program.sampleModel()},
            {"odd", program.bytes(odd)   },
            {"two", program.sampleModel()},
        };
        for (const auto& [directory, model] : runs)
        {
            QVERIFY(QDir().mkpath(other.filePath(directory)));
            DtGenerationRequest request = classicRequest(program, {model});
            request.scripts = {"cpp", "html", "json", "python"};
            DtModelGeneration generation(request);
            generation.load();
            generation.writeInto(other.filePath(directory).toStdString());
        }
        const QStringList names = filesBelow(other.filePath("one"));
        QVERIFY(names.size() > 400);
        QCOMPARE(filesBelow(other.filePath("two")), names);
        for (const QString& name : names) // identifiers too
            QVERIFY2(readTextFile(other.filePath("one/" + name)) == readTextFile(other.filePath("two/" + name)),
                     qPrintable(name));
    }

private:
    DtScratchTree myTree;
};

QX_REGISTER_TEST(TestClassicLayout)
#include "testClassicLayout.moc"
