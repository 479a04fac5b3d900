#include "fileGenerator/toolkitLayouts.h"
#include "fileGenerator/valueForm.h"
#include "registerTest.h"

#include <QtTest/QtTest>

// What generated code tells the toolkit about the layout of values, by name.
class TestValueForm : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void arrayNamesItsLayout_data();
    void arrayNamesItsLayout();
    void variantNamesItsKind();
    void callsNameTheLayout_data();
    void callsNameTheLayout();
    void layoutsOfRecordsAreWrapped();
};

void TestValueForm::arrayNamesItsLayout_data()
{
    QTest::addColumn<QByteArray>("encoding");
    QTest::addColumn<int>("elements");
    QTest::addColumn<QString>("layout");
    const struct
    {
        const char* name;
        const char* encoding;
        int elements;
        const char* layout;
    } rows[] = {
        {"nothing said",             "",                       -1, "DtVariableArray"      },
        {"nothing but a number",     "",                       4,  "DtVariableArray"      },
        {"variable",                 "HLAvariableArray",       9,  "DtVariableArray"      },
        {"fixed",                    "HLAfixedArray",          3,  "DtFixedArray, 3"      },
        {"fixed, no element",        "HLAfixedArray",          0,  "DtFixedArray, 0"      },
        {"fixed, left open",         "HLAfixedArray",          -1, "DtUnknownArray"       },
        {"terminated",               "HLAnullTerminatedArray", 9,  "DtNullTerminatedArray"},
        {"terminated, bare",         "NullTerminatedArray",    -1, "DtNullTerminatedArray"},
        {"terminated, RPR",          "RPRnullTerminatedArray", -1, "DtNullTerminatedArray"},
        {"lengthless",               "HLAlengthlessVarArray",  -1, "DtLengthlessArray"    },
        {"lengthless, RPR",          "RPRlengthlessArray",     9,  "DtLengthlessArray"    },
        {"padding to 32",            "RPRpaddingTo32Array",    -1, "DtPaddingArray, 4"    },
        {"padding to 64",            "HLApaddingTo64Array",    9,  "DtPaddingArray, 8"    },
        {"padding to odd bits",      "HLApaddingTo12Array",    -1, "DtLengthlessArray"    },
        {"padding to no number",     "HLApaddingToEnd",        2,  "DtFixedArray, 2"      },
        {"padding beyond all bits",  "paddingTo99999999999",   -1, "DtLengthlessArray"    },
        {"bits",                     "HLAbitArray",            8,  "DtUnknownArray"       },
        {"bits, bare",               "BitArray",               -1, "DtUnknownArray"       },
        {"unknown with a number",    "Custom",                 4,  "DtFixedArray, 4"      },
        {"unknown without elements", "Custom",                 0,  "DtLengthlessArray"    },
        {"unknown without a number", "Custom",                 -1, "DtLengthlessArray"    },
        {"no clean text",            "Bad)qx\"\\",             -1, "DtLengthlessArray"    },
    };
    for (const auto& row : rows)
        QTest::newRow(row.name) << QByteArray(row.encoding) << row.elements << QString(row.layout);
}

void TestValueForm::arrayNamesItsLayout()
{
    QFETCH(QByteArray, encoding);
    QFETCH(int, elements);
    QFETCH(QString, layout);
    QCOMPARE(QString(arrayLayoutCall(encoding.constData(), elements).c_str()), "DtArrayLayout(" + layout + ")");
}

void TestValueForm::variantNamesItsKind()
{
    QCOMPARE(toolkitKindOfVariant("HLAvariantRecord"), DtString("DtPlainVariant"));
    QCOMPARE(toolkitKindOfVariant(""), DtString("DtPlainVariant"));
    QCOMPARE(toolkitKindOfVariant("RPRextendedVariantRecord"), DtString("DtExtendedVariant"));
    QCOMPARE(toolkitKindOfVariant("HLAextendableVariantRecord"), DtString("DtExtendableVariant"));
}

void TestValueForm::callsNameTheLayout_data()
{
    QTest::addColumn<QString>("encoding");
    QTest::addColumn<int>("count");
    QTest::addColumn<int>("octets");
    QTest::addColumn<bool>("isArray");
    QTest::addColumn<QString>("call");
    const struct
    {
        const char *name, *encoding;
        int count, octets;
        bool isArray;
        const char* call;
    } theRows[] = {
        {"number",           "HLAvariableArray",       -1, 4, false, "DtWireForm::number(4)"                      },
        {"text",             "HLAvariableArray",       -1, 1, true,  "DtWireForm::array(DtVariableArray, 1)"      },
        {"nothing said",     "",                       -1, 2, true,  "DtWireForm::array(DtVariableArray, 2)"      },
        {"terminated",       "RPRnullTerminatedArray", -1, 1, true,  "DtWireForm::array(DtNullTerminatedArray, 1)"},
        {"without length",   "RPRlengthlessArray",     -1, 1, true,  "DtWireForm::array(DtLengthlessArray, 1)"    },
        {"fixed",            "HLAfixedArray",          11, 1, true,  "DtWireForm::fixedArray(11, 1)"              },
        {"fixed but open",   "HLAfixedArray",          -1, 1, true,  ""                                           },
        {"padding",          "RPRpaddingTo32Array",    -1, 1, true,  ""                                           },
        {"bits",             "HLAbitArray",            8,  1, true,  "DtWireForm::array(DtUnknownArray, 1)"       },
        {"unknown encoding", "Something",              4,  1, true,  ""                                           },
        {"unknown length",   "HLAvariableArray",       -1, 0, false, ""                                           },
    };
    for (const auto& row : theRows)
        QTest::newRow(row.name) << row.encoding << row.count << row.octets << row.isArray << row.call;
}

void TestValueForm::callsNameTheLayout()
{
    QFETCH(QString, encoding);
    QFETCH(int, count);
    QFETCH(int, octets);
    QFETCH(bool, isArray);
    const DtToolkitValue value = isArray ? DtToolkitValue::Array : DtToolkitValue::Number;
    QFETCH(QString, call);
    DtValueForm form;
    form.encoding = DtString(encoding.toStdString());
    form.count = count;
    form.number.octets = octets;
    QCOMPARE(QString(wireFormCall(form, value).c_str()), call);
    if (isArray) // of a type of the toolkit, or of numbers
        QCOMPARE(wireFormCall(form, DtToolkitValue::Number, false), wireFormCall(form, value));
    QCOMPARE(wireFormCall(form, DtToolkitValue::None), DtString());
    form.number.isLittleEndian = true;
    if (!call.isEmpty())
        QCOMPARE(QString(wireFormCall(form, value).c_str()), call.chopped(1) + ", DtLittleEndian)");
}

void TestValueForm::layoutsOfRecordsAreWrapped()
{
    DtValueForm form;
    form.layout = ", &DtWireMisfit::theLayout";
    QCOMPARE(QString(wireFormCall(form, DtToolkitValue::Record).c_str()),
             QString("DtWireForm::record(&DtWireMisfit::theLayout)"));
    form.layout = ",\n        &DtWireRecordOf<8, DtWirePart<0, 0, 8>, DtWirePart<1, 8, 8>>::theLayout";
    QCOMPARE(QString(wireFormCall(form, DtToolkitValue::Record).c_str()),
             QString("DtWireForm::record(&DtWireRecordOf<8, DtWirePart<0, 0, 8>, DtWirePart<1, 8, 8>>::theLayout)"));
    form.layout =
        ",\n        &DtWireRecordOf<8, DtWirePart<0, 0, 8>, DtWirePart<1, 8, 8>, DtWirePart<2, 16, 8>>::theLayout";
    QCOMPARE(QString(wireFormCall(form, DtToolkitValue::Record).c_str()),
             QString("DtWireForm::record(&DtWireRecordOf<8,\n            DtWirePart<0, 0, 8>,\n            "
                     "DtWirePart<1, 8, 8>,\n            DtWirePart<2, 16, 8>>::theLayout)"));
}

QX_REGISTER_TEST(TestValueForm)
#include "testValueForm.moc"
