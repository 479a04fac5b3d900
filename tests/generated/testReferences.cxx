// Reference datatypes are coded as what represents them.

#include "registerTest.h"

#include "stagedSample.h"

namespace
{
const char theModel[] =
    "<?xml version=\"1.0\"?>\n<objectModel xmlns=\"http://standards.ieee.org/IEEE1516-2025\">"
    "<objects><objectClass><name>HLAobjectRoot</name><objectClass><name>Buoy</name>"
    "<attribute><name>Owner</name><dataType>OwnerReference</dataType></attribute>"
    "<attribute><name>Text</name><dataType>HLAunicodeString</dataType></attribute>"
    "<attribute><name>Link</name><dataType>LinkReference</dataType></attribute>"
    "<attribute><name>Both</name><dataType>Pair</dataType></attribute>"
    "</objectClass></objectClass></objects><interactions><interactionClass><name>HLAinteractionRoot</name>"
    "<interactionClass><name>Horn</name><parameter><name>Owner</name><dataType>OwnerReference</dataType></parameter>"
    "</interactionClass></interactionClass></interactions><dataTypes><referenceDataTypes>"
    "<referenceDataType><name>OwnerReference</name><representation>NameReference</representation>"
    "</referenceDataType><referenceDataType><name>NameReference</name><representation>HLAunicodeString"
    "</representation></referenceDataType><referenceDataType><name>LinkReference</name><representation>Handle"
    "</representation></referenceDataType></referenceDataTypes><arrayDataTypes>"
    "<arrayData><name>Handle</name><dataType>HLAoctet</dataType><cardinality>2</cardinality>"
    "<encoding>HLAfixedArray</encoding></arrayData></arrayDataTypes><fixedRecordDataTypes>"
    "<fixedRecordData><name>Pair</name><encoding>HLAfixedRecord</encoding>"
    "<field><name>Link</name><dataType>LinkReference</dataType></field></fixedRecordData>"
    "</fixedRecordDataTypes></dataTypes></objectModel>\n";

const char theProgram[] = R"(
#include "buoyDecoderHLA.h"
#include "buoyEncoderHLA.h"
#include "DataTypes/handle.h"
#include "DataTypes/pair.h"

#include <qx/valueText.h>

#include <cstdio>

int main()
{
    DtHandle handle;
    handle[0] = 3;
    handle[1] = 4;
    DtPair pair;
    pair.setLink(handle);
    DtBuoyStateRepository state, seen;
    state.setOwner("Ada");
    state.setText("Ada");
    state.setLink(handle);
    state.setBoth(pair);
    DtAttributeValues values;
    DtBuoyEncoder().encode(state, values);
    for (const auto& value : values)
        std::printf("%s %s\n", value.first.c_str(), DtHexText(value.second.data(), value.second.size()).c_str());
    DtBuoyDecoder().decode(values, seen);
    std::printf("%s %d %d\n", seen.owner().c_str(), seen.link() == handle, seen.both() == pair);
}
)";
} // namespace

class TestReferences : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void valuesAreThoseOfTheRepresentation()
    {
        const DtStagedOutput output{QByteArray(theModel)};
        QCOMPARE(output.warnings(), QString());
        QCOMPARE(output.files("DataTypes/.*[Rr]eference.*"), QStringList());
        const QString program = output.path() + "/buoy";
        const QString errors = output.compile(output.files("(DataTypes/.*|.*HLA|.*StateRepository)\\.cxx"), theProgram,
                                              QStringList{"-std=c++11"} + toolkitSources(), program);
        QVERIFY2(errors.isEmpty(), qPrintable(errors));
        QCOMPARE(runProgram(output.path(), program, {}).output,
                 QString("Both 0304\nLink 0304\nOwner 00000003004100640061\nText 00000003004100640061\nAda 1 1\n"));
    }
};

QX_REGISTER_TEST(TestReferences)
#include "testReferences.moc"
