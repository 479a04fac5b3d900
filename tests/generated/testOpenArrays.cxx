// Datatypes with several arrays of open length: refused as a rule, and coded when the configuration asks for it.

#include "registerTest.h"

#include "stagedSample.h"

namespace
{
const char theModel[] =
    "<?xml version=\"1.0\"?>\n<objectModel xmlns=\"http://standards.ieee.org/IEEE1516-2010\">"
    "<objects><objectClass><name>HLAobjectRoot</name><objectClass><name>Buoy</name>"
    "<attribute><name>Lines</name><dataType>Rows</dataType></attribute>"
    "<attribute><name>Both</name><dataType>Pair</dataType></attribute>"
    "</objectClass></objectClass></objects><interactions><interactionClass><name>HLAinteractionRoot</name>"
    "<interactionClass><name>Horn</name><parameter><name>Lines</name><dataType>Rows</dataType></parameter>"
    "</interactionClass></interactionClass></interactions><dataTypes><arrayDataTypes>"
    "<arrayData><name>Row</name><dataType>HLAoctet</dataType><cardinality>Dynamic</cardinality>"
    "<encoding>HLAvariableArray</encoding></arrayData>"
    "<arrayData><name>Rows</name><dataType>Row</dataType><cardinality>Dynamic</cardinality>"
    "<encoding>HLAvariableArray</encoding></arrayData></arrayDataTypes><fixedRecordDataTypes>"
    "<fixedRecordData><name>Pair</name><encoding>HLAfixedRecord</encoding>"
    "<field><name>Left</name><dataType>Row</dataType></field>"
    "<field><name>Right</name><dataType>Row</dataType></field></fixedRecordData>"
    "</fixedRecordDataTypes></dataTypes></objectModel>\n";

// Prints the octets of each attribute that can be sent, and whether they come back as they went.
const char theProgram[] = R"(
#include "buoyDecoderHLA.h"
#include "buoyEncoderHLA.h"
#include "DataTypes/pair.h"
#include "DataTypes/row.h"
#include "DataTypes/rows.h"

#include <qx/valueText.h>

#include <cstdio>

int main()
{
    DtRow one, two;
    one.push_back(7);
    two.push_back(8);
    two.push_back(9);
    DtRows rows;
    rows.push_back(one);
    rows.push_back(two);
    DtPair pair;
    pair.setLeft(one);
    pair.setRight(two);
    DtBuoyStateRepository state, seen;
    state.setLines(rows);
    state.setBoth(pair);
    DtAttributeValues values;
    DtBuoyEncoder().encode(state, values);
    for (const auto& value : values)
        std::printf("%s %s\n", value.first.c_str(), DtHexText(value.second.data(), value.second.size()).c_str());
    DtBuoyDecoder().decode(values, seen);
    std::printf("%d %d\n", seen.lines() == rows, seen.both() == pair);
}
)";

QString runOf(const DtStagedOutput& output)
{
    const QString program = output.path() + "/buoy";
    const QString errors = output.compile(output.files("(DataTypes/.*|.*HLA|.*StateRepository)\\.cxx"), theProgram,
                                          QStringList{"-std=c++11", "-Wpedantic", "-Wshadow"} + toolkitSources() +
                                              QStringList{"-I" QX_SOURCE_DIR "/toolkit/src"},
                                          program);
    return errors.isEmpty() ? runProgram(output.path(), program, {}).output : errors;
}

const QString theRefusals =
    "Warning: Cannot encode/decode attributes of type: DtRows: contains a + attribute of a type "
    "that contains a + attribute.\n"
    "Warning: Cannot encode/decode data type DtRows.\n";
const QString theRecordRefusal = "Warning: Cannot encode/decode data type DtPair.\n";
} // namespace

class TestOpenArrays : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void valuesAreRefusedWithoutTheKey()
    {
        const DtStagedOutput output{QByteArray(theModel)};
        QCOMPARE(output.warnings(), theRefusals + theRecordRefusal);
        QCOMPARE(runOf(output), QString("0 0\n"));
    }

    // Every array has its length in front, and starts at its boundary.
    void valuesAreSentWithTheKey()
    {
        const std::unique_ptr<DtStagedOutput> output = DtStagedOutput::withKey(theModel, "codeOpenArrays");
        const QString coded = "Warning: Data type %1 is coded all the same, as codeOpenArrays is on.\n";
        QCOMPARE(output->warnings(), theRefusals + coded.arg("DtRows") + theRecordRefusal + coded.arg("DtPair"));
        QCOMPARE(runOf(*output), QString("Both 0000000107000000000000020809\n"
                                         "Lines 000000020000000107000000000000020809\n1 1\n"));
    }
};

QX_REGISTER_TEST(TestOpenArrays)
#include "testOpenArrays.moc"
