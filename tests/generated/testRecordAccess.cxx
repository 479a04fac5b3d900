// What programs do with records and variant records beside coding them: setting, changing, copying and moving.

#include "registerTest.h"

#include "stagedSample.h"

namespace
{
QByteArray fields(const char* element, std::initializer_list<std::pair<const char*, const char*>> rows)
{
    QByteArray text;
    for (const auto& [name, datatype] : rows)
        text += QByteArray("<") + element + "><name>" + name + "</name><dataType>" + datatype + "</dataType></" +
                element + ">";
    return text;
}

QByteArray record(const char* name, std::initializer_list<std::pair<const char*, const char*>> rows)
{
    return QByteArray("<fixedRecordData><name>") + name + "</name><encoding>HLAfixedRecord</encoding>" +
           fields("field", rows) + "</fixedRecordData>";
}

struct DtChoice
{
    const char *enumerator, *name, *datatype;
};

QByteArray variant(const char* name, const char* discriminant, std::initializer_list<DtChoice> choices)
{
    QByteArray text = QByteArray("<variantRecordData><name>") + name +
                      "</name><discriminant>Kind</discriminant><dataType>" + discriminant + "</dataType>";
    for (const DtChoice& choice : choices)
        text += QByteArray("<alternative><enumerator>") + choice.enumerator + "</enumerator><name>" + choice.name +
                "</name><dataType>" + choice.datatype + "</dataType></alternative>";
    return text + "<encoding>HLAvariantRecord</encoding></variantRecordData>";
}

// A step has two alternatives of one type in C++, one that two enumerators select, steps in a step, and one without a
// value.
QByteArray model()
{
    const QByteArray attributes = fields("attribute", {
                                                          {"One",   "Step"            },
                                                          {"Two",   "Frame"           },
                                                          {"Three", "Answer"          },
                                                          {"Four",  "Level"           },
                                                          {"Five",  "Single"          },
                                                          {"Six",   "Bare"            },
                                                          {"Words", "HLAunicodeString"},
                                                          {"Count", "HLAinteger32BE"  }
    });
    QByteArray enumerators;
    for (const char* each : {"A", "B", "C", "D", "E", "F"})
        enumerators += QByteArray("<enumerator><name>") + each + "</name><value>" + QByteArray::number(each[0] - 'A') +
                       "</value></enumerator>";
    return "<?xml version=\"1.0\"?>\n<objectModel xmlns=\"http://standards.ieee.org/IEEE1516-2010\">"
           "<objects><objectClass><name>HLAobjectRoot</name><objectClass><name>Buoy</name>" +
           attributes +
           "</objectClass></objectClass></objects><dataTypes><enumeratedDataTypes><enumeratedData><name>Letter</name>"
           "<representation>HLAoctet</representation>" +
           enumerators +
           "</enumeratedData></enumeratedDataTypes><arrayDataTypes><arrayData><name>Steps</name>"
           "<dataType>Step</dataType><cardinality>Dynamic</cardinality><encoding>HLAvariableArray</encoding>"
           "</arrayData></arrayDataTypes><fixedRecordDataTypes>" +
           record("Note",
                  {
                      {"Words",  "HLAunicodeString"},
                      {"Count",  "HLAinteger32BE"  },
                      {"Letter", "Letter"          }
    }) +
           record("Frame", {{"Note", "Note"},
                            {"MutableNote", "HLAinteger16BE"},
                            {"mutableCount", "HLAoctet"},
                            {"Count", "HLAoctet"},
                            {"Mutable", "HLAoctet"},
                            {"template", "HLAoctet"}}) +
           "</fixedRecordDataTypes><variantRecordDataTypes>" +
           variant("Step", "Letter",
                   {{"A", "Words", "HLAASCIIstring"},
                    {"B", "More", "HLAunicodeString"},
                    {"C, D", "Steps", "Steps"},
                    {"E", "Note", "Note"},
                    {"F", "None", "NA"}}) +
           variant("Answer", "HLAboolean",
                   {{"HLAfalse", "MutableFault", "HLAinteger16BE"}, {"HLAtrue", "Fault", "HLAunicodeString"}}) +
           variant("Level", "HLAinteger16BE", {{"1", "Low", "HLAfloat64BE"}, {"[2 .. 9]", "High", "HLAinteger32BE"}}) +
           variant("Single", "Letter", {{"B", "Value", "Letter"}}) + variant("Bare", "Letter", {}) +
           "</variantRecordDataTypes></dataTypes></objectModel>\n";
}

// What does not hold is written with its line.
const char theStart[] = R"(
#include "DataTypes/answer.h"
#include "DataTypes/bare.h"
#include "DataTypes/frame.h"
#include "DataTypes/level.h"
#include "DataTypes/modelEnums.h"
#include "DataTypes/single.h"
#include "DataTypes/step.h"
#include "DataTypes/steps.h"
#include "buoyStateRepository.h"

#include <qx/valueCoding.h>
#include <qx/sampleValue.h>

#include <cstdio>
#include <string>
#include <type_traits>

#define CHECK(condition) ((condition) ? 0 : std::printf("%d: %s\n", __LINE__, #condition))

const std::string theLongText(200, 'x');

)";

// Each is the body of a function of its name.
struct DtCheck
{
    const char *name, *body;
};
// clang-format off
const DtCheck theChecks[] = {
{"variantHoldsItsSelectedAlternativeAlone", R"(
    static_assert(sizeof(DtStep) <= sizeof(DtNote) + 3 * sizeof(void*), "");
    static_assert(sizeof(DtBare) <= 2 * sizeof(void*), "");
    DtStep step;
    CHECK(step.selected() == 0 && step.words().empty());
    step.setMore("more");
    CHECK(step.selected() == 1 && step.more() == "more" && step.words().empty());
    step.setWords("words");
    CHECK(step.selected() == 0 && step.words() == "words" && step.more().empty());
    step.setDiscriminant(DtLetter::eB);
    CHECK(step.selected() == 1 && step.more().empty() && step.words().empty());
    step.setDiscriminant(DtLetter::eA);
    CHECK(step.words().empty());
    CHECK(&step.more() == &DtStep().more());
)"},

{"discriminantOfTheSameAlternativeKeepsItsValue", R"(
    DtStep step;
    step.mutableSteps().resize(3);
    CHECK(step.discriminant() == DtLetter::eC);
    step.setDiscriminant(DtLetter::eD);
    CHECK(step.steps().size() == 3);
    step.setSteps(step.steps());
    CHECK(step.discriminant() == DtLetter::eD);
    step.setDiscriminant(DtLetter::eF);
    CHECK(step.selected() == -1);
    step.setDiscriminant(DtLetter::eC);
    CHECK(step.steps().empty());
    DtLevel level;
    CHECK(level.selected() == -1);
    level.setHigh(7);
    CHECK(level.discriminant() == 2);
    level.setDiscriminant(DtInt16(9));
    CHECK(level.high() == 7 && level.low() == 0);
    level.setDiscriminant(DtInt16(10));
    CHECK(level.selected() == -1 && level.high() == 0);
    DtAnswer answer;
    answer.setFault("f");
    CHECK(answer.discriminant() && answer.fault() == "f" && answer.mutableFault() == 0);
    answer.setDiscriminant(false);
    CHECK(answer.fault().empty());
)"},

{"variantsAreEqualByWhatIsSelected", R"(
    DtStep one, two;
    one.setMore("x");
    one.setWords("y");
    two.setWords("y");
    CHECK(one == two);
    two.mutableWords() += "z";
    CHECK(one != two);
    one.setDiscriminant(DtLetter::eE);
    two.setNote(DtNote());
    CHECK(one == two); // one that was never set is as it starts
    two.mutableNote().setCount(1);
    CHECK(one != two);
    DtBare bare;
    bare.setDiscriminant(DtLetter::eB);
    CHECK(bare != DtBare() && bare == bare);
)"},

{"fieldWinsOverTheMutableAccessorOfItsName", R"(
    DtFrame frame;
    static_assert(std::is_same<decltype(frame.mutableCount()), const DtU8&>::value, "");
    static_assert(std::is_same<decltype(frame.mutableNote()), const DtInt16&>::value, "");
    frame.mutableMutableNote() = 4;
    frame.mutableTheMutable() = 5;
    frame.mutableTheTemplate() = 6;
    CHECK(frame.mutableNote() == 4 && frame.theMutable() == 5 && frame.theTemplate() == 6);
    DtAnswer answer;
    answer.mutableMutableFault() = 3;
    CHECK(answer.mutableFault() == 3 && !answer.discriminant());
)"},

{"mutableAccessChangesAndSelects", R"(
    DtStep step;
    step.mutableNote().mutableWords() = "deep";
    step.mutableNote().mutableLetter() = DtLetter::eB;
    CHECK(step.discriminant() == DtLetter::eE && step.note().words() == "deep" &&
          step.note().letter() == DtLetter::eB);
    step.mutableWords() = "w";
    CHECK(step.selected() == 0 && step.note().words().empty());
    DtSingle single;
    single.mutableValue() = DtLetter::eF;
    CHECK(single.discriminant() == DtLetter::eB && single.value() == DtLetter::eF);
)"},

{"valuesThatAreGivenAwayAreMoved", R"(
    DtString text(theLongText);
    const char* const memory = text.c_str();
    DtNote note;
    note.setWords(std::move(text));
    CHECK(note.words().c_str() == memory);
    DtStep step;
    step.setNote(std::move(note));
    CHECK(step.note().words().c_str() == memory);
    DtSteps steps;
    steps.resize(1);
    steps[0] = std::move(step);
    CHECK(steps[0].note().words().c_str() == memory);
    DtStep outer;
    outer.setSteps(std::move(steps));
    CHECK(outer.steps()[0].note().words().c_str() == memory);
    DtBuoyStateRepository state;
    state.setOne(std::move(outer));
    CHECK(state.one().steps()[0].note().words().c_str() == memory);
    state.setWords(DtString(theLongText));
    state.setWords("short");
    CHECK(state.words() == "short" && state.changes().size() == 2);
)"},

{"valuesThatStayAreCopiedIntoTheirMemory", R"(
    DtNote note;
    note.setWords(theLongText);
    const char* const memory = note.words().c_str();
    const DtString shorter(std::string(100, 'y'));
    note.setWords(shorter);
    CHECK(note.words().c_str() == memory && note.words() == shorter);
    DtStep step;
    step.setWords(theLongText);
    const char* const ofStep = step.words().c_str();
    step.setWords(shorter);
    CHECK(step.words().c_str() == ofStep);
)"},

{"classesOfValuesAreMovedWithoutAThrow", R"(
    static_assert(std::is_nothrow_move_constructible<DtNote>::value, "");
    static_assert(std::is_nothrow_move_assignable<DtNote>::value, "");
    static_assert(std::is_nothrow_move_constructible<DtFrame>::value, "");
    static_assert(std::is_nothrow_move_constructible<DtStep>::value, "");
    static_assert(std::is_nothrow_move_assignable<DtStep>::value, "");
    static_assert(std::is_nothrow_move_constructible<DtSteps>::value, "");
    static_assert(std::is_nothrow_move_assignable<DtSteps>::value, "");
    static_assert(std::is_nothrow_move_constructible<DtBare>::value, "");
    static_assert(std::is_nothrow_move_constructible<DtAnswer>::value, "");
)"},

{"partOfAVariantMayTakeItsPlace", R"(
    DtStep step;
    step.mutableSteps().resize(2);
    step.mutableSteps()[1].setWords(theLongText);
    DtStep set(step), copied(step), moved(step);
    set.setWords(set.steps()[1].words());
    CHECK(set.words() == theLongText);
    copied = copied.steps()[1];
    CHECK(copied.words() == theLongText && copied.selected() == 0);
    moved = std::move(moved.mutableSteps()[1]);
    CHECK(moved.words() == theLongText);
    step = *&step;
    CHECK(step.steps()[1].words() == theLongText);
)"},

{"octetsGoAndComeAsBefore", R"(
    DtStep step;
    step.setDiscriminant(DtLetter::eE); // and nothing set
    DtWireWriter unset, set;
    step.encode(unset);
    step.setNote(DtNote());
    step.encode(set);
    CHECK(unset.bytes() == set.bytes() && set.size() == 13);
    DtStep seen;
    seen.setWords("w");
    DtWireReader reader(set.data(), set.size());
    CHECK(seen.decode(reader) && seen == step && seen.words().empty());
    const DtU8 none[] = {5};
    DtWireReader ofNone(none, 1);
    CHECK(seen.decodeInto(ofNone) && seen.selected() == -1);
    seen.setDiscriminant(DtLetter::eE);
    CHECK(seen.note() == DtNote());
)"},

{"decodingIntoAHeldValueUsesItsMemory", R"(
    DtStep step, seen;
    step.setWords(theLongText);
    DtWireWriter writer;
    step.encode(writer);
    seen.setWords(std::string(300, 'y'));
    const char* const memory = seen.words().c_str();
    DtWireReader reader(writer.data(), writer.size());
    CHECK(seen.decodeInto(reader) && seen == step && seen.words().c_str() == memory);
    DtWireReader noDiscriminant(writer.data(), 0);
    CHECK(!seen.decodeInto(noDiscriminant) && seen == step);
    DtWireReader half(writer.data(), 20);
    CHECK(!seen.decode(half) && seen == step);
)"},

{"sampleValuesSelectEveryAlternative", R"(
    CHECK(!DtSampleOf<DtStep>(0).words().empty());
    CHECK(!DtSampleOf<DtStep>(1).more().empty());
    CHECK(!DtSampleOf<DtStep>(3).note().words().empty());
    CHECK(DtSampleOf<DtBare>(1).selected() == -1);
)"},
};
// clang-format on

QByteArray program()
{
    QByteArray text = theStart;
    QByteArray calls;
    for (const DtCheck& check : theChecks)
    {
        text += QByteArray("void ") + check.name + "()\n{" + check.body + "}\n";
        calls += QByteArray("    if (name == \"") + check.name + "\")\n        return " + check.name + "(), 0;\n";
    }
    return text + "int main(int, char** arguments)\n{\n    const std::string name = arguments[1];\n" + calls +
           "    return 1;\n}\n";
}
} // namespace

class TestRecordAccess : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase()
    {
        myOutput = DtStagedOutput::withKey(model(), "codeOpenArrays");
        const QString errors = myOutput->compile(
            myOutput->files("(DataTypes/.*|buoyStateRepository)\\.cxx"), program(),
            QStringList{"-std=c++11", "-Wpedantic", "-Wshadow", "-Wconversion", "-fsanitize=address,undefined"} +
                toolkitObjects(),
            myOutput->path() + "/access");
        QVERIFY2(errors.isEmpty(), qPrintable(errors));
    }
    void cleanupTestCase() { myOutput.reset(); }

    void programFinds_data()
    {
        QTest::addColumn<QString>("name");
        for (const DtCheck& check : theChecks)
            QTest::newRow(check.name) << check.name;
    }
    void programFinds()
    {
        QFETCH(QString, name);
        const DtProgramRun run = runProgram(myOutput->path(), myOutput->path() + "/access", {name});
        QCOMPARE(run.output, QString());
        QCOMPARE(run.exitCode, 0);
    }

private:
    std::unique_ptr<DtStagedOutput> myOutput;
};

QX_REGISTER_TEST(TestRecordAccess)
#include "testRecordAccess.moc"
