// Values of datatypes that models spell in several ways, by value: the models of valueModels with their octets, which
// are worked out by hand from the rules of IEEE 1516.2. The codec in Python and the generated C++ have to give these
// octets, and the accessors of the C++ the values.

#include "registerTest.h"

#include "bothSides.h"

#include <memory>

namespace
{
// The structures of the models that stand for classes of the toolkit, and these classes.
const std::vector<std::pair<const char*, const char*>> theStructures = {
    {"WorldLocationStruct",         "DtVector64"        },
    {"VelocityVectorStruct",        "DtVector32"        },
    {"AccelerationVectorStruct",    "DtVector32"        },
    {"AngularVelocityVectorStruct", "DtVector32"        },
    {"OrientationStruct",           "DtTaitBryan"       },
    {"EntityTypeStruct",            "DtEntityType"      },
    {"EntityIdentifierStruct",      "DtEntityIdentifier"},
};

// What the accessors give, changed in the lines of one datatype.
struct DtChange
{
    const char *name, *datatype;
    const char *printed, *instead;
    const char* fault; // empty when there is none
};
const DtChange theChanges[] = {
    {"nothing",       "EntityTypeStruct",         "kind",             "kind",             ""                         },
    {"float",         "LocationList",             "3ff0000000000000", "000000000000f03f", "[0] .x is 3.03"           },
    {"sign of zero",  "WorldLocationStruct",      "3ff0000000000000", "8000000000000000", ".x is -0.0 instead of 1.0"},
    {"components",    "OrientationStruct",        "psi",              "theta",            "has ['phi', 'theta']"     },
    {"octet order",   "EntityTypeStruct",         "225",              "57600",            ".country is 57600"        },
    {"nested record", "EntityIdentifierStruct",   "258",              "513",              ".application is 513"      },
    {"text",          "RTIobjectId",              "416461",           "61644100",         "is 61644100 instead"      },
    {"octets",        "HLAlogicalTime",           "4004",             "0440",             "is 0440000000000000"      },
    {"accessor",      "FederateIdentifierStruct", "siteID",           "site",             ".SiteID has no accessor"  },
    {"element",       "RTIobjectIdList",          "\"41\"",           "\"42\"",           "[0] is 42 instead of 41"  },
    {"length",        "RTIobjectIdList",          "[{",               "[[], {",           "has 3 elements"           },
    {"discriminant",  "Target",                   "\"number\": 2",    "\"number\": 1",    ".discriminant is 1 "      },
    {"enumerator",    "Target",                   "456e74697479",     "506c616365",       ".discriminant is ['506"   },
    {"alternative",   "Target",                   "\"id\"",           "\"words\"",        "selects words"            },
    {"selection",     "Target",                   "\"selected\": -1", "\"selected\": 0",  "selects"                  },
    {"kind",          "EntityIdentifierStruct",   ": 1, ",            ": [1], ",          ".site is of another kind" },
    {"refusal",       "Report",                   "{\"rec",           "refused: {",       "refused"                  },
};

QString fileOf(const QString& model, const QString& suffix)
{
    return QStringLiteral(QX_SOURCE_DIR "/tests/generated/valueModels/") + model + suffix;
}

int countOfVectors(const QString& model)
{
    return readTextFile(fileOf(model, ".txt")).count('\n');
}

QStringList warningsWith(const DtBothSides& sides, const QString& datatype, const QString& further = QString())
{
    return sides.warnings().split('\n').filter(QRegularExpression("\\b" + datatype + "\\b")).filter(further);
}

// The datatypes with faults ahead of the faults, since messages of tests are cut off.
QByteArray told(const DtPythonRun& run)
{
    QStringList names;
    for (const QString& line : run.output.split('\n').filter(QRegularExpression("^wrong ")))
        names += line.section(' ', 1, 1).remove(':');
    names.removeDuplicates();
    return (names.join(' ') + '\n' + run.output).toUtf8();
}

void addModels(std::initializer_list<const char*> models)
{
    QTest::addColumn<QString>("model");
    for (const char* model : models)
        QTest::newRow(model) << model;
}

void addStructures()
{
    QTest::addColumn<QString>("datatype");
    QTest::addColumn<QString>("toolkitType");
    for (const auto& [datatype, toolkitType] : theStructures)
        QTest::newRow(datatype) << datatype << toolkitType;
}
} // namespace

class TestValues : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    // The newest goes first: each has changed the working directory.
    void cleanupTestCase()
    {
        while (!mySides.empty())
            mySides.pop_back();
    }

    void pythonGivesTheOctetsAndValues_data()
    {
        addModels({"usual", "littleEndian", "otherOrder", "representations", "memberMore", "toolkitNames"});
    }
    void pythonGivesTheOctetsAndValues();
    void cxxGivesTheOctetsAndValues_data()
    {
        addModels({"usual", "littleEndian", "otherOrder", "representations", "toolkitNames"});
    }
    void cxxGivesTheOctetsAndValues();
    void randomValuesGoThereAndBack_data() { addModels({"usual", "littleEndian", "otherOrder", "toolkitNames"}); }
    void randomValuesGoThereAndBack();
    void wrongValuesAreNoticed_data();
    void wrongValuesAreNoticed();
    void wrongOctetsAreNoticed();
    void structureWithAMemberMoreIsRefused();
    void structureWithAMemberMoreIsWarnedOf_data() { addStructures(); }
    void structureWithAMemberMoreIsWarnedOf();
    void structureThatFitsIsNotWarnedOf_data() { addStructures(); }
    void structureThatFitsIsNotWarnedOf();
    void unknownByteOrderIsWarnedOfOnce_data();
    void unknownByteOrderIsWarnedOfOnce();
    void namesOfTheToolkitAreLeftToIt_data();
    void namesOfTheToolkitAreLeftToIt();

private:
    struct DtValueModel
    {
        QString name;
        DtBothSides sides;
    };

    // Made when a test asks for it first.
    const DtBothSides& sidesOf(const QString& model)
    {
        for (const auto& each : mySides)
            if (each->name == model)
                return each->sides;
        mySides.push_back(std::unique_ptr<DtValueModel>(
            new DtValueModel{model, DtBothSides({fileOf(model, ".xml")}, datatypesOfVectors(fileOf(model, ".txt")))}));
        return mySides.back()->sides;
    }
    // Those of the usual model, from one run.
    const QByteArray& usualAnswers()
    {
        const DtBothSides& sides = sidesOf("usual");
        if (myUsualAnswers.isEmpty() && sides.compile().isEmpty())
            myUsualAnswers = answersTo(sides, fileOf("usual", ".txt"));
        return myUsualAnswers;
    }

    std::vector<std::unique_ptr<DtValueModel>> mySides;
    QByteArray myUsualAnswers;
};

void TestValues::pythonGivesTheOctetsAndValues()
{
    QFETCH(QString, model);
    if (!hasPython())
        QSKIP(theMissingPython);
    const DtPythonRun run = sidesOf(model).python({"vectors", fileOf(model, ".txt")});
    QVERIFY2(run.isGood(), told(run).constData());
    QCOMPARE(run.output, QStringLiteral("%1 vectors, 0 failures\n").arg(countOfVectors(model)));
}

void TestValues::cxxGivesTheOctetsAndValues()
{
    QFETCH(QString, model);
    if (!hasPython())
        QSKIP(theMissingPython);
    const DtBothSides& sides = sidesOf(model);
    const QString errors = sides.compile();
    QVERIFY2(errors.isEmpty(), qPrintable(errors));
    const DtPythonRun run = sides.python({"answers", fileOf(model, ".txt")}, answersTo(sides, fileOf(model, ".txt")));
    QVERIFY2(run.isGood(), told(run).constData());
    QCOMPARE(run.output, QStringLiteral("%1 vectors\n").arg(countOfVectors(model)));
}

void TestValues::randomValuesGoThereAndBack()
{
    QFETCH(QString, model);
    if (!hasPython())
        QSKIP(theMissingPython);
    const DtBothSides& sides = sidesOf(model);
    QVERIFY2(sides.compile().isEmpty(), qPrintable(sides.compile()));
    const QString count = isFullRun() ? "1000" : "50";
    const QByteArray lines = sides.python({"values", count}).output.toUtf8();
    const QString total = QStringLiteral("%1 values\n").arg(sides.datatypes().size() * count.toInt());
    const DtPythonRun back = sides.python({"back", count}, sides.driver(lines).output.toUtf8());
    QVERIFY2(back.output == total, told(back).constData());
    const DtPythonRun read = sides.python({"read", count}, sides.valuesOf(lines).output.toUtf8());
    QVERIFY2(read.output == total, told(read).constData());
}

void TestValues::wrongValuesAreNoticed_data()
{
    QTest::addColumn<QString>("datatype");
    QTest::addColumn<QString>("printed");
    QTest::addColumn<QString>("instead");
    QTest::addColumn<QString>("fault");
    for (const DtChange& each : theChanges)
        QTest::newRow(each.name) << each.datatype << each.printed << each.instead << each.fault;
}

void TestValues::wrongValuesAreNoticed()
{
    QFETCH(QString, datatype);
    QFETCH(QString, printed);
    QFETCH(QString, instead);
    QFETCH(QString, fault);
    if (!hasPython())
        QSKIP(theMissingPython);
    const DtBothSides& sides = sidesOf("usual");
    QStringList lines = QString::fromUtf8(usualAnswers()).split('\n');
    int changed = 0;
    for (QString& line : lines)
    {
        const bool isIt =
            line.startsWith(sides.attributeOf(datatype) + " {") || line.startsWith(sides.attributeOf(datatype) + " [");
        changed += isIt && line.contains(printed) ? 1 : 0;
        line = isIt ? line.replace(printed, instead) : line;
    }
    QVERIFY(changed > 0);
    const DtPythonRun run = sides.python({"answers", fileOf("usual", ".txt")}, lines.join('\n').toUtf8());
    const QStringList faults = run.output.split('\n').filter("wrong " + datatype + ' ').filter(fault);
    QVERIFY2(fault.isEmpty() ? run.isGood() : !faults.isEmpty(), qPrintable(run.output));
}

// What is taken though it is too short or too long, and what comes back as something else.
void TestValues::wrongOctetsAreNoticed()
{
    if (!hasPython())
        QSKIP(theMissingPython);
    const DtBothSides& sides = sidesOf("usual");
    const QString attribute = sides.attributeOf("EntityTypeStruct");
    QString lines = QString::fromUtf8(usualAnswers());
    lines.replace(QRegularExpression('^' + attribute + " refused.*$", QRegularExpression::MultilineOption),
                  attribute + " 00");
    lines.replace(attribute + " 010200e103040506\n", attribute + " 0102e10003040506\n");
    const DtPythonRun run = sides.python({"answers", fileOf("usual", ".txt")}, lines.toUtf8());
    QCOMPARE(run.exitCode, 1);
    for (const char* fault : {"comes back as 0102e10003040506", "taken with 0 octets", "taken with 9 octets"})
        QVERIFY2(run.output.contains(fault), qPrintable(run.output));
}

// The class of the toolkit has no place for the member, so no octets are taken.
void TestValues::structureWithAMemberMoreIsRefused()
{
    if (!hasPython())
        QSKIP(theMissingPython);
    const DtBothSides& sides = sidesOf("memberMore");
    QVERIFY2(sides.compile().isEmpty(), qPrintable(sides.compile()));
    const QByteArray lines = sides.python({"octets", fileOf("memberMore", ".txt")}).output.toUtf8();
    QVERIFY(lines.count('\n') > countOfVectors("memberMore"));
    const QStringList answers = sides.driver(lines).output.split('\n', Qt::SkipEmptyParts);
    QCOMPARE(answers.size(), lines.count('\n'));
    for (const QString& answer : answers)
        QVERIFY2(answer.contains(QRegularExpression("^P\\d+ refused: \\S")), qPrintable(answer));
    const QStringList start = sides.start();
    for (const auto& [datatype, toolkitType] : theStructures)
        QVERIFY2(start.filter(QRegularExpression(QStringLiteral("^%1 refused: \\S").arg(datatype))).size() == 1,
                 qPrintable(start.join('\n')));
}

void TestValues::structureWithAMemberMoreIsWarnedOf()
{
    QFETCH(QString, datatype);
    QFETCH(QString, toolkitType);
    const DtBothSides& sides = sidesOf("memberMore");
    const QStringList warnings = warningsWith(sides, datatype, toolkitType);
    QVERIFY2(!warnings.isEmpty(), qPrintable(sides.warnings()));
    for (const QString& warning : warnings)
        QVERIFY2(warning.startsWith("Warning: "), qPrintable(warning));
}

// Neither the usual form nor another byte order or order of the members.
void TestValues::structureThatFitsIsNotWarnedOf()
{
    QFETCH(QString, datatype);
    QFETCH(QString, toolkitType);
    for (const char* model : {"usual", "littleEndian", "otherOrder"})
        QCOMPARE(warningsWith(sidesOf(model), datatype, toolkitType).join('\n'), QString());
}

void TestValues::unknownByteOrderIsWarnedOfOnce_data()
{
    QTest::addColumn<QString>("representation");
    QTest::addColumn<int>("count");
    QTest::newRow("Middle") << "MiddleUnsigned16" << 1;
    QTest::newRow("Middle, name with LE") << "MiddleInteger32LE" << 1;
    for (const char* name :
         {"PlainUnsigned16LE", "PlainUnsigned16", "EmptyUnsigned16LE", "CapitalsUnsigned16", "CapitalsUnsigned32",
          "BlanksUnsigned16", "BlanksInteger32", "SmallInteger16", "TurnedUnsigned16LE", "TurnedUnsigned16BE"})
        QTest::newRow(name) << name << 0;
}

void TestValues::unknownByteOrderIsWarnedOfOnce()
{
    QFETCH(QString, representation);
    QFETCH(int, count);
    QCOMPARE(warningsWith(sidesOf("representations"), representation).size(), count);
}

// Not Int32, whose representation is mapped: the mapped type stands for it, and it has no class.
void TestValues::namesOfTheToolkitAreLeftToIt_data()
{
    QTest::addColumn<QByteArray>("name");
    for (const char* name : {"DtVector", "DtString", "DtEntityType", "DtTaitBryan"})
        QTest::newRow(name) << QByteArray(name);
}

void TestValues::namesOfTheToolkitAreLeftToIt()
{
    QFETCH(QByteArray, name);
    const DtBothSides& sides = sidesOf("toolkitNames");
    QVERIFY(sides.headerOf(name).isEmpty());
    QVERIFY(!sides.headerOf(name + "Type").isEmpty());
}

QX_REGISTER_TEST(TestValues)
#include "testValues.moc"
