#include "fileGenerator/dataTypeMapper.h"
#include "fileGenerator/datatypeClassNames.h"
#include "fileGenerator/fixedExtents.h"
#include "fileGenerator/toolkitLayouts.h"
#include "foundation/stringUtils.h"
#include "omtReader/omtTree.h"
#include "registerTest.h"

#include <QtTest/QtTest>

namespace
{
void addBasic(DtOMTTree& tree, const char* name, const char* bits)
{
    auto* node = new DtBasicDataRepresentationNode;
    node->setName(name);
    node->setSize(bits);
    node->setEndian("Big");
    tree.addBasicDataRepresentationNode(node);
}

// A model with everything that a field may be. Fields are given as name:datatype, with blanks between.
class DtModel
{
public:
    DtModel()
    {
        DtDataTypeMapper::instance()->setPredefinedTypes({
            {"HLAoctet",       "DtU8"     },
            {"HLAinteger16BE", "DtInt16"  },
            {"HLAinteger32BE", "DtInt32"  },
            {"HLAfloat64BE",   "DtFloat64"}
        });
        addBasic(myTree, "HLAoctet", "8");
        addBasic(myTree, "HLAinteger16BE", "16");
        addBasic(myTree, "HLAinteger32BE", "32");
        addBasic(myTree, "HLAfloat64BE", "64");
        addSimple("Metres", "HLAfloat64BE");
        addArray("Text", "HLAoctet", "HLAvariableArray", "Dynamic");
        addArray("Three", "HLAfloat64BE", "HLAfixedArray", "3");
        addEnumeration("Kind", "HLAinteger16BE");
        addEnumeration("Unknown", "Nowhere");
    }
    ~DtModel()
    {
        DtFixedExtents::instance().clear();
        DtToolkitLayouts::instance().clear();
        DtDatatypeClassNames::instance().clear();
        DtDataTypeMapper::instance()->clearMappings();
    }

    void addSimple(const char* name, const char* representation)
    {
        auto* node = new DtSimpleDatatypeNode;
        node->setName(name);
        node->setRepresentation(representation);
        myTree.addSimpleDatatypeNode(node);
    }
    void addArray(const char* name, const char* element, const char* encoding, const char* cardinality)
    {
        auto* node = new DtArrayDatatypeNode;
        node->setName(name);
        node->setDatatype(element);
        node->setEncoding(encoding);
        node->setCardinality(cardinality);
        myTree.addArrayDatatypeNode(node);
        addClass(name);
    }
    void addEnumeration(const char* name, const char* representation)
    {
        auto* node = new DtEnumeratedDatatypeNode;
        node->setName(name);
        node->setRepresentation(representation);
        myTree.addEnumeratedDatatypeNode(node);
        DtDatatypeClassNames::instance().addGeneratedEnumeration(name, DtString("Dt") + name);
    }
    void addRecord(const QString& name, const QString& fields)
    {
        auto* node = new DtFixedDatatypeNode;
        node->setName(name.toStdString().c_str());
        for (const QString& field : fields.split(' ', Qt::SkipEmptyParts))
        {
            auto* component = new DtFieldComponentNode;
            component->setName(field.section(':', 0, 0).toStdString().c_str());
            component->setDatatype(field.section(':', 1).toStdString().c_str());
            node->addComponentNode(component);
        }
        myTree.addFixedDatatypeNode(node);
        addClass(name);
    }
    // Octets and boundary; "no" when the values differ.
    QString extentOf(const QString& record)
    {
        DtDataTypeMapper::instance()->populateFromOmtTree(&myTree);
        std::set<DtString> used;
        for (const DtFixedDatatypeNode* node : myTree.fixedDatatypes())
            used.insert(node->getName());
        used.insert("Three");
        DtToolkitLayouts::instance().workOut(myTree, used);
        DtFixedExtents::instance().clear();
        const DtFixedDatatypeNode& node = *myTree.getFixedDatatypeNode(record.toStdString().c_str());
        const DtFixedExtent extent = DtFixedExtents::instance().ofRecord(node, myTree);
        return extent.octets == 0 ? QString("no") : QStringLiteral("%1/%2").arg(extent.octets).arg(extent.boundary);
    }
    DtOMTTree& tree() { return myTree; }

private:
    void addClass(const QString& name)
    {
        const DtString text = name.toStdString().c_str();
        DtDatatypeClassNames::instance().add(text, "Dt" + DtFirstCharToUpper(text));
    }

    DtOMTTree myTree;
};
} // namespace

class TestFixedExtents : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    // Worked out by hand after the rules of IEEE 1516.2 for fixed records: each field at its boundary, none behind the
    // last.
    void recordsOfNumbersHaveOneExtent_data()
    {
        QTest::addColumn<QString>("fields");
        QTest::addColumn<QString>("extent");
        const struct
        {
            const char *name, *fields, *extent;
        } theRows[] = {
            {"one",                "a:HLAoctet",                             "1/1" },
            {"gaps",               "a:HLAoctet b:HLAinteger32BE c:HLAoctet", "9/4" },
            {"simple type",        "a:HLAoctet b:Metres",                    "16/8"},
            {"enumeration",        "a:HLAoctet b:Kind",                      "4/2" },
            {"record",             "a:HLAoctet b:Inner",                     "13/4"},
            {"records in a row",   "a:Inner b:Inner",                        "21/4"},
            {"no fields",          "",                                       "no"  },
            {"text",               "a:HLAoctet b:Text",                      "no"  },
            {"fixed array",        "a:Three",                                "no"  }, // which is a vector in C++
            {"record with text",   "a:HLAoctet b:Open",                      "no"  },
            {"empty record",       "a:HLAoctet b:Empty",                     "no"  },
            {"unknown datatype",   "a:HLAoctet b:Nowhere",                   "no"  },
            {"guessed length",     "a:Unknown",                              "no"  },
            {"itself",             "a:HLAoctet b:Tested",                    "no"  },
            {"itself behind more", "a:HLAoctet b:Around",                    "no"  },
        };
        for (const auto& row : theRows)
            QTest::newRow(row.name) << row.fields << row.extent;
    }
    void recordsOfNumbersHaveOneExtent()
    {
        QFETCH(QString, fields);
        DtModel model;
        model.addRecord("Inner", "a:HLAoctet b:HLAinteger32BE c:HLAoctet");
        model.addRecord("Open", "a:Text");
        model.addRecord("Empty", "");
        model.addRecord("Around", "a:Tested");
        model.addRecord("Tested", fields);
        QTEST(model.extentOf("Tested"), "extent");
    }

    void recordsOfTheToolkitCountAsTheModelHasThem()
    {
        DtModel model;
        model.addRecord("Tested", "a:HLAoctet b:Position");
        auto* node = new DtFixedDatatypeNode;
        node->setName("Position");
        for (const char* name : {"X", "Y", "Z"})
        {
            auto* component = new DtFieldComponentNode;
            component->setName(name);
            component->setDatatype("HLAfloat64BE");
            node->addComponentNode(component);
        }
        model.tree().addFixedDatatypeNode(node);
        DtDataTypeMapper::instance()->addMapping("Position", "DtVector64");
        QCOMPARE(model.extentOf("Tested"), QString("32/8"));
        DtDataTypeMapper::instance()->addMapping("Position", "DtEntityType"); // which it does not fit into
        QCOMPARE(model.extentOf("Tested"), QString("no"));
        DtDataTypeMapper::instance()->addMapping("Position", "MyPosition"); // a class of the user's own
        QCOMPARE(model.extentOf("Tested"), QString("no"));
    }

    void recordsThatShareAClassHaveNoExtent()
    {
        DtModel model;
        model.addRecord("inner", "a:HLAoctet");
        model.addRecord("Inner", "a:HLAinteger32BE");
        model.addRecord("Tested", "a:Inner");
        QCOMPARE(model.extentOf("Inner"), QString("no"));
        QCOMPARE(model.extentOf("Tested"), QString("no"));
    }

    void longChainsAndBranchingRecordsComeToAnEnd()
    {
        DtModel model;
        model.addRecord("Level0", "a:HLAoctet");
        for (int level = 1; level <= 300; ++level)
            model.addRecord("Level" + QString::number(level), "a:Level" + QString::number(level - 1));
        QCOMPARE(model.extentOf("Level20"), QString("1/1"));
        QCOMPARE(model.extentOf("Level300"), QString("no"));
        model.addRecord("Wide0", "a:HLAoctet");
        for (int level = 1; level <= 40; ++level)
            model.addRecord("Wide" + QString::number(level), QString("a:Wide%1 b:Wide%1").arg(level - 1));
        QCOMPARE(model.extentOf("Wide10"), QString("1024/1"));
        QCOMPARE(model.extentOf("Wide40"), QString("no"));
    }
};

QX_REGISTER_TEST(TestFixedExtents)
#include "testFixedExtents.moc"
