#include "fileGenerator/dataTypeMapper.h"
#include "fileGenerator/toolkitLayouts.h"
#include "omtReader/omtTree.h"
#include "registerTest.h"

#include <QtTest/QtTest>

namespace
{
using DtFields = std::initializer_list<std::pair<const char*, const char*>>; // name and datatype

// Octets, byte order by name: what the tests build datatypes from.
void addBasics(DtOMTTree& tree)
{
    for (const char* name :
         {"HLAoctet", "HLAoctetPairBE", "UnsignedInteger16BE", "UnsignedInteger16LE", "HLAinteger16BE", "HLAfloat32BE",
          "HLAfloat32LE", "HLAfloat64BE", "HLAfloat64LE", "HLAinteger32BE"})
    {
        auto* node = new DtBasicDataRepresentationNode;
        node->setName(name);
        const QString text(name);
        node->setSize(text.contains("64") ? "64" : text.contains("32") ? "32" : text == "HLAoctet" ? "8" : "16");
        node->setEndian(text.endsWith("LE") ? "Little" : "Big");
        tree.addBasicDataRepresentationNode(node);
    }
}

void addRecord(DtOMTTree& tree, const char* name, DtFields fields)
{
    auto* node = new DtFixedDatatypeNode;
    node->setName(name);
    for (const auto& [field, datatype] : fields)
    {
        auto* component = new DtFieldComponentNode;
        component->setName(field);
        component->setDatatype(datatype);
        node->addComponentNode(component);
    }
    tree.addFixedDatatypeNode(node);
}

void addArray(DtOMTTree& tree, const char* name, const char* element, const char* encoding,
              const char* cardinality = "Dynamic")
{
    auto* node = new DtArrayDatatypeNode;
    node->setName(name);
    node->setDatatype(element);
    node->setEncoding(encoding);
    node->setCardinality(cardinality);
    tree.addArrayDatatypeNode(node);
}

void addSimple(DtOMTTree& tree, const char* name, const char* representation)
{
    auto* node = new DtSimpleDatatypeNode;
    node->setName(name);
    node->setRepresentation(representation);
    tree.addSimpleDatatypeNode(node);
}

// The arguments of DtWireRecordOf, or why there are none.
QString layoutText(const DtToolkitLayout& layout)
{
    if (!layout.difference.isEmpty())
        return layout.difference.c_str();
    return QString(layout.argument.c_str()).section("DtWireRecordOf<", 1).section(">::theLayout", 0, 0);
}
} // namespace

class TestToolkitLayouts : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init()
    {
        myTree = std::make_unique<DtOMTTree>();
        addBasics(*myTree);
        DtDataTypeMapper::instance()->setPredefinedTypes({});
        DtDataTypeMapper::instance()->populateFromOmtTree(myTree.get());
    }
    void cleanup()
    {
        myTree.reset();
        DtToolkitLayouts::instance().clear();
        DtDataTypeMapper::instance()->clearMappings();
    }

    void recordsLieAsTheModelHasThem_data()
    {
        QTest::addColumn<QString>("type");
        QTest::addColumn<QList<QStringList>>("fields");
        QTest::addColumn<QString>("layout");
        struct DtRow
        {
            const char* name;
            const char* type;
            const char* fields; // name:datatype, with blanks between
            const char* layout;
        };
        const DtRow theRows[] = {
            {"usual",          "DtVector64",         "X:HLAfloat64BE Y:HLAfloat64BE Z:HLAfloat64BE",
             "8, DtWirePart<0, 0, 8>, DtWirePart<1, 8, 8>, DtWirePart<2, 16, 8>"                                                                       },
            {"little",         "DtVector32",         "XVelocity:HLAfloat32LE YVelocity:HLAfloat32LE Z:HLAfloat32LE",
             "4, DtWirePart<0, 0, 4, false, true>, DtWirePart<1, 4, 4, false, true>, DtWirePart<2, 8, 4, false, true>"                                 },
            {"other order",    "DtVector64",         "Z:HLAfloat64BE X:HLAfloat64BE Y:HLAfloat64BE",
             "8, DtWirePart<2, 0, 8>, DtWirePart<0, 8, 8>, DtWirePart<1, 16, 8>"                                                                       },
            {"common end",     "DtVector64",         "Zpos:HLAfloat64BE Ypos:HLAfloat64BE Xpos:HLAfloat64BE",
             "8, DtWirePart<2, 0, 8>, DtWirePart<1, 8, 8>, DtWirePart<0, 16, 8>"                                                                       },
            {"common start",   "DtVector32",         "posz:HLAfloat32BE posx:HLAfloat32BE posy:HLAfloat32BE",
             "4, DtWirePart<2, 0, 4>, DtWirePart<0, 4, 4>, DtWirePart<1, 8, 4>"                                                                        },
            {"strange names",  "DtVector32",         "East:HLAfloat32BE North:HLAfloat32BE Up:HLAfloat32BE",
             "4, DtWirePart<0, 0, 4>, DtWirePart<1, 4, 4>, DtWirePart<2, 8, 4>"                                                                        },
            {"one strange",    "DtVector32",         "Up:HLAfloat32BE X:HLAfloat32BE Y:HLAfloat32BE",
             "4, DtWirePart<2, 0, 4>, DtWirePart<0, 4, 4>, DtWirePart<1, 8, 4>"                                                                        },
            {"padded",         "DtVector",           "X:HLAfloat32BE Y:HLAfloat64BE Z:HLAfloat32BE",
             "8, DtWirePart<0, 0, 4>, DtWirePart<1, 8, 8>, DtWirePart<2, 16, 4>"                                                                       },
            {"roll first",     "DtTaitBryan",        "Roll:HLAfloat32BE Pitch:HLAfloat32BE Yaw:HLAfloat32BE",
             "4, DtWirePart<2, 0, 4>, DtWirePart<1, 4, 4>, DtWirePart<0, 8, 4>"                                                                        },
            {"signed site",    "DtEntityIdentifier", "Site:HLAinteger16BE Application:HLAoctet Number:HLAoctet",
             "2, DtWirePart<0, 0, 2, true>, DtWirePart<1, 2, 1>, DtWirePart<2, 3, 1>"                                                                  },
            {"one more",       "DtVector64",         "X:HLAfloat64BE Y:HLAfloat64BE Z:HLAfloat64BE W:HLAfloat64BE",
             "has 4 members in place of 3"                                                                                                             },
            {"one less",       "DtVector64",         "X:HLAfloat64BE Y:HLAfloat64BE",                                "has 2 members in place of 3"     },
            {"no fields",      "DtVector64",         "",                                                             "has 0 members in place of 3"     },
            {"whole number",   "DtVector64",         "X:HLAfloat64BE Y:HLAfloat64BE Z:HLAinteger32BE",
             "has a member Z that is no floating-point number of 4 or 8 octets"                                                                        },
            {"fraction",       "DtEntityIdentifier", "Site:HLAoctet Application:HLAoctet Entity:HLAfloat32BE",
             "has a member Entity that is no whole number"                                                                                             },
            {"unknown member", "DtVector64",         "X:HLAfloat64BE Y:HLAfloat64BE Z:Nowhere",
             "has a member Z that is no number"                                                                                                        },
            {"itself",         "DtVector64",         "X:HLAfloat64BE Y:HLAfloat64BE Z:Tested",                       "holds itself or too many records"},
            {"one name twice", "DtVector64",         "X:HLAfloat64BE XAxis:HLAfloat64BE Z:HLAfloat64BE",
             "has two members for one component"                                                                                                       },
        };
        for (const DtRow& row : theRows)
        {
            QList<QStringList> fields;
            for (const QString& field : QString(row.fields).split(' ', Qt::SkipEmptyParts))
                fields += field.split(':');
            QTest::newRow(row.name) << row.type << fields << row.layout;
        }
    }
    void recordsLieAsTheModelHasThem()
    {
        QFETCH(QString, type);
        QFETCH(QList<QStringList>, fields);
        QFETCH(QString, layout);
        auto* node = new DtFixedDatatypeNode;
        node->setName("Tested");
        for (const QStringList& field : fields)
        {
            auto* component = new DtFieldComponentNode;
            component->setName(field[0].toStdString().c_str());
            component->setDatatype(field[1].toStdString().c_str());
            node->addComponentNode(component);
        }
        myTree->addFixedDatatypeNode(node);
        const DtString toolkitType(type.toStdString());
        QCOMPARE(layoutText(toolkitLayoutOf("Tested", toolkitType, *myTree)), layout);
    }

    void entityTypesAreToldByTheirFields()
    {
        addRecord(*myTree, "EntityTypeStruct",
                  {
                      {"SubCategory", "HLAoctet"           },
                      {"EntityKind",  "HLAoctet"           },
                      {"CountryCode", "UnsignedInteger16LE"},
                      {"Category",    "HLAoctet"           },
                      {"Domain",      "HLAoctet"           },
                      {"Extra",       "HLAoctet"           },
                      {"Specific",    "HLAoctet"           }
        });
        QCOMPARE(
            layoutText(toolkitLayoutOf("EntityTypeStruct", "DtEntityType", *myTree)),
            QString(
                "2, DtWirePart<4, 0, 1>, DtWirePart<0, 1, 1>, DtWirePart<2, 2, 2, false, true>, DtWirePart<3, 4, 1>, "
                "DtWirePart<1, 5, 1>, DtWirePart<6, 6, 1>, DtWirePart<5, 7, 1>"));
    }

    void recordsInRecordsCountByTheirNumbers()
    {
        addRecord(*myTree, "FederateIdentifierStruct",
                  {
                      {"SiteID",        "UnsignedInteger16BE"},
                      {"ApplicationID", "UnsignedInteger16BE"}
        });
        addRecord(*myTree, "EntityIdentifierStruct",
                  {
                      {"EntityNumber",       "HLAoctet"                },
                      {"FederateIdentifier", "FederateIdentifierStruct"}
        });
        QCOMPARE(layoutText(toolkitLayoutOf("EntityIdentifierStruct", "DtEntityIdentifier", *myTree)),
                 QString("2, DtWirePart<2, 0, 1>, DtWirePart<0, 2, 2>, DtWirePart<1, 4, 2>"));
    }

    void fixedArraysCountByTheirElements()
    {
        addArray(*myTree, "WorldLocationStruct", "HLAfloat64LE", "HLAfixedArray", "3");
        QCOMPARE(layoutText(toolkitLayoutOf("WorldLocationStruct", "DtVector64", *myTree)),
                 QString("8, DtWirePart<0, 0, 8, false, true>, DtWirePart<1, 8, 8, false, true>, DtWirePart<2, 16, 8, "
                         "false, true>"));
    }

    void hugeArraysAndBranchingRecordsComeToAnEnd()
    {
        addArray(*myTree, "Huge", "HLAoctet", "HLAfixedArray", "2000000000");
        QCOMPARE(layoutText(toolkitLayoutOf("Huge", "DtEntityType", *myTree)), QString("has more than 16 members"));
        addRecord(*myTree, "Level0", {});
        for (int level = 1; level <= 30; ++level)
        {
            const std::string below = "Level" + std::to_string(level - 1);
            addRecord(*myTree, ("Level" + std::to_string(level)).c_str(),
                      {
                          {"a", below.c_str()},
                          {"b", below.c_str()}
            });
        }
        QCOMPARE(layoutText(toolkitLayoutOf("Level30", "DtVector64", *myTree)),
                 QString("holds itself or too many records"));
    }

    void textsLieAsTheModelHasThem_data()
    {
        QTest::addColumn<QString>("element");
        QTest::addColumn<QString>("encoding");
        QTest::addColumn<QString>("cardinality");
        QTest::addColumn<QString>("form"); // encoding, count, octets
        struct DtRow
        {
            const char *name, *element, *encoding, *cardinality, *form;
        };
        const DtRow theRows[] = {
            {"terminated",  "HLAASCIIchar",   "RPRnullTerminatedArray", "Dynamic", "RPRnullTerminatedArray -1 1"                          },
            {"counted",     "HLAASCIIchar",   "HLAvariableArray",       "Dynamic", "HLAvariableArray -1 1"                                },
            {"wide",        "HLAunicodeChar", "HLAvariableArray",       "Dynamic", "HLAvariableArray -1 2"                                },
            {"fixed",       "HLAoctet",       "HLAfixedArray",          "11",      "HLAfixedArray 11 1"                                   },
            {"no encoding", "HLAoctet",       "",                       "Dynamic", "HLAvariableArray -1 1"                                },
            {"bits",        "HLAoctet",       "HLAbitArray",            "Dynamic", "is an array without elements on the wire: HLAbitArray"},
            {"padding",     "HLAoctet",       "RPRpaddingTo32Array",    "Dynamic",
             "is an array without elements on the wire: RPRpaddingTo32Array"                                                              },
            {"numbers",     "HLAinteger32BE", "HLAvariableArray",       "Dynamic",
             "has elements that are no characters of 1 or 2 octets"                                                                       },
            {"fractions",   "HLAfloat32BE",   "HLAvariableArray",       "Dynamic",
             "has elements that are no characters of 1 or 2 octets"                                                                       },
            {"unknown",     "Nowhere",        "HLAvariableArray",       "Dynamic",
             "has elements that are no characters of 1 or 2 octets"                                                                       },
        };
        for (const DtRow& row : theRows)
            QTest::newRow(row.name) << row.element << row.encoding << row.cardinality << row.form;
    }
    void textsLieAsTheModelHasThem()
    {
        QFETCH(QString, element);
        QFETCH(QString, encoding);
        QFETCH(QString, cardinality);
        QFETCH(QString, form);
        addSimple(*myTree, "HLAASCIIchar", "HLAoctet");
        addSimple(*myTree, "HLAunicodeChar", "HLAoctetPairBE");
        addArray(*myTree, "RTIobjectId", element.toStdString().c_str(), encoding.toStdString().c_str(),
                 cardinality.toStdString().c_str());
        addRecord(*myTree, "RTIObjectIdStruct",
                  {
                      {"ID", "RTIobjectId"}
        });
        for (const char* datatype : {"RTIobjectId", "RTIObjectIdStruct"}) // a record of one field lies like its field
        {
            const DtToolkitLayout layout = toolkitLayoutOf(datatype, "DtGlobalObjectDesignator", *myTree);
            const QString found = layout.difference.isEmpty() ? QStringLiteral("%1 %2 %3")
                                                                    .arg(layout.encoding.c_str())
                                                                    .arg(layout.count)
                                                                    .arg(layout.element.octets)
                                                              : QString(layout.difference.c_str());
            QCOMPARE(found, form);
        }
    }

    void recordsAreNoTexts()
    {
        addRecord(*myTree, "RTIobjectId",
                  {
                      {"a", "HLAoctet"},
                      {"b", "HLAoctet"}
        });
        QCOMPARE(layoutText(toolkitLayoutOf("RTIobjectId", "DtGlobalObjectDesignator", *myTree)),
                 QString("is no array"));
    }

    void textsThatHoldThemselvesAreNone()
    {
        addRecord(*myTree, "RTIobjectId",
                  {
                      {"a", "RTIobjectId"}
        });
        QCOMPARE(layoutText(toolkitLayoutOf("RTIobjectId", "DtString", *myTree)), QString("is no array"));
    }

    void numbersStayNumbers_data()
    {
        QTest::addColumn<QString>("type");
        QTest::addColumn<QString>("datatype");
        QTest::addColumn<QString>("difference");
        struct DtRow
        {
            const char *name, *type, *datatype, *difference;
        };
        const DtRow theRows[] = {
            {"whole",              "DtInt32",   "HLAinteger32BE", ""                                            },
            {"fraction",           "DtFloat32", "HLAfloat32BE",   ""                                            },
            {"other length",       "DtU32",     "HLAoctet",       ""                                            },
            {"fraction for whole", "DtU16",     "HLAfloat32BE",   "is no whole number"                          },
            {"whole for fraction", "DtFloat64", "HLAoctet",       "is no floating-point number of 4 or 8 octets"},
            {"record",             "DtU16",     "Pair",           "is no number"                                },
        };
        for (const DtRow& row : theRows)
            QTest::newRow(row.name) << row.type << row.datatype << row.difference;
    }
    void numbersStayNumbers()
    {
        QFETCH(QString, type);
        QFETCH(QString, datatype);
        QFETCH(QString, difference);
        addRecord(*myTree, "Pair",
                  {
                      {"a", "HLAoctet"},
                      {"b", "HLAoctet"}
        });
        const DtToolkitLayout layout =
            toolkitLayoutOf(DtString(datatype.toStdString()), DtString(type.toStdString()), *myTree);
        QCOMPARE(QString(layout.difference.c_str()), difference);
        QCOMPARE(QString(layout.argument.c_str()), QString(difference.isEmpty() ? "" : ", &DtWireMisfit::theLayout"));
    }

    void undefinedDatatypesAndTypesOfUsersSayNothing()
    {
        addRecord(*myTree, "WorldLocationStruct",
                  {
                      {"a", "HLAoctet"}
        });
        for (const DtToolkitLayout& layout : {toolkitLayoutOf("OrientationStruct", "DtTaitBryan", *myTree),
                                              toolkitLayoutOf("WorldLocationStruct", "MyPlace", *myTree)})
        {
            QCOMPARE(layout.argument, DtString());
            QCOMPARE(layout.difference, DtString());
            QCOMPARE(layout.element.octets, 0);
        }
    }

private:
    std::unique_ptr<DtOMTTree> myTree;
};

QX_REGISTER_TEST(TestToolkitLayouts)
#include "testToolkitLayouts.moc"
