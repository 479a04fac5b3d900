#include "fileGenerator/cCompatibleName.h"
#include "fileGenerator/rowFileWriter.h"
#include "foundation/stringUtils.h"
#include "registerTest.h"
#include "writerProbe.h"

#include <QtTest/QtTest>

#include <random>

namespace
{

using Probe = AttributeProbe<DtClassFileWriter>;
using TokenValues = std::vector<std::pair<DtString, DtString>>;

// A writer for the class "SeaShip" under "Platform" with one attribute.
struct Ship
{
    explicit Ship(const char* parent = "Platform") : writer("DataTypes/ship.first.h", "")
    {
        DtOMTEnvWriter::setPrefixName("Pre");
        DtOMTEnvWriter::setIncludeName("inc");
        DtOMTEnvWriter::setBaseName("/models/my-model.v1.xml");
        writer.setRootName("SeaShip");
        writer.setParentClassName(parent);
        writer.setFullClassName("HLAobjectRoot.Platform.SeaShip");
        writer.setPduKind(42);
    }
    RunSettings settings;
    Probe writer;
};

DtAttribute speedAttribute()
{
    DtAttribute attribute("Speed", "DtFloat32");
    attribute.setCardinality("3");
    attribute.setDatatype("CfwSpeed");
    attribute.setEncoding("CfwEncoding");
    attribute.setDatatypeDatatype("HLAfloat32BE");
    return attribute;
}

DtString lower(const DtString& name)
{
    return DtFirstCharToLowerConditional(name);
}

// What the class tokens are worth, told a second time: one concatenation each, in the order of replacement.
TokenValues classValues(const DtString& R, const DtString& Q, const DtString& className, const DtString& full, int kind,
                        const DtString& stem, const DtString& include)
{
    DtCCompatibleNames names;
    const DtString P = DtOMTEnvWriter::prefixName();
    const DtString C = DtOMTEnvWriter::includePath();
    const DtString A = lower(R);
    const DtString B = lower(Q);
    const DtString firstLetter(A.stdString().substr(0, 1));
    const DtString quote = "\"";
    const bool top = Q == "ObjectRoot";
    DtString bare = names.MakeCCompatibleString(className);
    bare.snipFront('t', false);
    return {
        {"FileToInclude",            names.MakeCCompatibleString(include) + ".h"                                         },
        {"ClassName",                names.MakeCCompatibleString(className)                                              },
        {"NonDtClassName",           lower(bare)                                                                         },
        {"FileBase",                 stem                                                                                },
        {"FileBaseHeader",           C + stem + ".h"                                                                     },
        {"BaseClassName",            ""                                                                                  },
        {"BaseClassHeader",          ""                                                                                  },
        {"FullClassName",            full                                                                                },
        {"SrHeader",                 C + A + "StateRepository"                                                           },
        {"SrMethod",                 A + "StateRep"                                                                      },
        {"ShortSrMethod",            firstLetter + "sr"                                                                  },
        {"StateRepName",             "Dt" + P + R + "StateRepository"                                                    },
        {"HEncHeader",               C + A + "EncoderHLA"                                                                },
        {"HDecHeader",               C + A + "DecoderHLA"                                                                },
        {"DEncHeader",               C + A + "EncoderDIS"                                                                },
        {"DDecHeader",               C + A + "DecoderDIS"                                                                },
        {"HlaPubHeader",             C + A + "PublisherHLA"                                                              },
        {"PubHeader",                C + A + "Publisher"                                                                 },
        {"DisPubHeader",             C + A + "PublisherDIS"                                                              },
        {"PduHeader",                C + R + "Pdu"                                                                       },
        {"NetPduHeader",             C + "net" + R + "Pdu"                                                               },
        {"PduClassName",             "Dt" + P + R + "Pdu"                                                                },
        {"PublisherClassName",       "Dt" + P + R + "Publisher"                                                          },
        {"DecoderClassName",         "Dt" + P + R + "Decoder"                                                            },
        {"EncoderClassName",         "Dt" + P + R + "Encoder"                                                            },
        {"InteractionClassName",     "Dt" + P + R                                                                        },
        {"PduInteractionClassName",  "Dt" + P + R + "Pdu"                                                                },
        {"InteractionHeader",        C + A + "HLA"                                                                       },
        {"ClassCbName",              className + "Cb"                                                                    },
        {"PduKind",                  DtString(kind)                                                                      },
        {"ReflectedListClassName",   "DtReflected" + P + R + "List"                                                      },
        {"ReflectedObjectClassName", "DtReflected" + P + R                                                               },
        {"ReflectedListHeader",      C + "reflected" + R + "List"                                                        },
        {"HReflectedListHeader",     C + "reflected" + R + "ListHLA"                                                     },
        {"DReflectedListHeader",     C + "reflected" + R + "ListDIS"                                                     },
        {"ReflectedObjectHeader",    C + "reflected" + R                                                                 },
        {"HReflectedObjectHeader",   C + "reflected" + R + "HLA"                                                         },
        {"DReflectedObjectHeader",   C + "reflected" + R + "DIS"                                                         },
        {"ClassCallbackFunction",    "Dt" + P + R + "CallbackFunction"                                                   },
        {"NetPduClassName",          "DtNet" + P + R + "Pdu"                                                             },
        {"NetPduClassBase",          top ? DtString("DtNetPduHeader") : "DtNet" + P + Q + "Pdu"                          },
        {"NetPduClassBaseHeader",    top ? DtString("<qx/packets/pduHeader.h>") : quote + C + "net" + Q + "Pdu.h" + quote},
        {"ObjectPduBaseClass",       top ? DtString("DtStateMsg") : "Dt" + P + Q + "Pdu"                                 },
        {"ObjectPduBaseClassHeader", top ? DtString("<qx/stateMsg.h>") : quote + C + Q + "Pdu.h" + quote                 },
        {"BaseDecoderClassName",     top ? DtString("DtStateDecoder") : "Dt" + P + Q + "Decoder"                         },
        {"BaseEncoderClassName",     top ? DtString("DtStateEncoder") : "Dt" + P + Q + "Encoder"                         },
        {"BaseDecoderClassHeader",   top ? DtString("<qx/stateDecoder.h>") : quote + C + "d" + B + "Decoder.h" + quote   },
        {"BaseEncoderClassHeader",   top ? DtString("<qx/stateEncoder.h>") : quote + C + "d" + B + "Encoder.h" + quote   },
    };
}

DtString bracketed(const DtString& token)
{
    return "<!" + token + "!>";
}

DtString replaceInOrder(DtString line, const TokenValues& values)
{
    for (const auto& entry : values)
        line = DtReplaceAllSubstrings(line, bracketed(entry.first), entry.second);
    return line;
}

// The number at the end of a shortened name.
int numberOf(const QString& shortName)
{
    return shortName.mid(50).toInt();
}

DtOmtProject projectWith(const std::vector<const char*>& modules)
{
    DtOmtProject project;
    for (const char* module : modules)
        project.addFomDefFile(module, "/models");
    return project;
}

inline constexpr DtWriterRow theTestRow = {
    DtClassTree::Interaction,
    "Dt%P%NTested",
    "DtTop",
    "<qx/top.h>",
    "Dt%P%QTested",
    "\"%C%qTested.h\"",
    DtFullName::WithoutRoot,
    {{{"<!Cb!>", "%KCb"}, {"<!Base!>", "Dt%P%Q", "DtTopBase"}, {"<!File!>", "%C%F-%n"}, {"<!ClassName!>", "%U"}}}};
inline constexpr DtWriterRow theObjectRow = {
    DtClassTree::Object, "DtReflected%P%N", "", "", "", "", DtFullName::WithoutRoot, {}};
inline constexpr DtWriterRow thePlainRow = {};

} // namespace

class TestClassFileWriter : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void startValues();
    void rootNameIsHandedToTheClassName();
    void classTokens_data();
    void classTokens();
    void shortMethodOfAnEmptyName();
    void topClassHasToolkitHeaders();
    void lowerClassHasGeneratedHeadersWithTheLetterD();
    void attributeTokens_data();
    void attributeTokens();
    void attributeTokensStayOutsideTheLoop();
    void vectorTypeIsPeeled();
    void flagsOfAnAttribute();
    void toolkitNetTypesAreTold();
    void enumerationTokens();
    void sizesUseTheModelNameOfUnknownTypes();
    void attributeNames_data();
    void attributeNames();
    void boundaryIsThatOfTheOriginalName();
    void unsetOriginalNameIsZero();
    void encodingRules_data();
    void encodingRules();
    void moduleTokensNeedModules();
    void enumsHeaderLosesPathExtensionDashesAndDots();
    void laterRowsSeeEarlierValues();
    void earlierRowsDoNotSeeLaterValues();
    void changedNamesAreSeen();
    void quickPassEqualsTheOrderedPass();
    void includeLoopCompilesOnce();
    void includeListLeavesOutKnownTypesAndEnumerations();
    void onlyNeighbouringIncludesAreDropped();
    void includeLoopDropsNeighboursOfAFilledList();
    void attributeLoopCountsFromZero();
    void counterKeepsTheNumberOfAttributes();
    void loopNamesAreExact();
    void unknownLoopsCount();
    void moduleLoopSkipsTheFirst_data();
    void moduleLoopSkipsTheFirst();
    void moduleLoopMovesTheAttributeCounter();
    void innerAttributeLoopEndsTheOuterOne();
    void objectRootIsCutAtTheStartOnly_data();
    void objectRootIsCutAtTheStartOnly();
    void interactionRootIsCutAtTheStartOnly_data();
    void interactionRootIsCutAtTheStartOnly();
    void longNamesAreNumberedAtTheFirstLine();
    void longNamesAreNumberedInTokenOrder();
    void singleLongNameIsNumberedAtTheFirstLine_data();
    void singleLongNameIsNumberedAtTheFirstLine();
    void knownTokensAreAllReplaced();
    void rowWriterFillsItsNames();
    void rowWriterUnderTheRoot();
    void rowTokensComeFirst();
    void rowOfTheObjectTreeCutsTheObjectRoot();
    void plainRowIsAPlainWriter();
};

void TestClassFileWriter::initTestCase()
{
    DtDataTypeMapper& mapper = *DtDataTypeMapper::instance();
    mapper.addDatatypeToEncodingMapping("CfwArray", "CfwArrayEncoding");
    mapper.addEnumeration("CfwKindEnum");
    mapper.addEnumNameToRepMapping("CfwKindEnum", "DtU16");
    mapper.addDataTypeNameToBoundary("CfwRecord", 4);
    mapper.addDataTypeNameToSize("CfwRecord", 20);
    mapper.addDataTypeNameToSize("DtFloat32", 4);
    mapper.addVariableSizeNetType("DtNetCfwOpen");
    mapper.addNonEncodeableDataType("DtCfwBad");
}

void TestClassFileWriter::startValues()
{
    const RunSettings settings;
    Probe writer("", "");
    QCOMPARE(text(writer.className() + writer.rootName() + writer.parentClassName()), QString());
    QCOMPARE(text(writer.originalName()), QString("0"));
    QCOMPARE(writer.pduKind(), 0);
    QVERIFY(writer.attributeList().empty());
    QVERIFY(writer.omtProject().fomDefFiles().empty());
}

void TestClassFileWriter::rootNameIsHandedToTheClassName()
{
    const RunSettings settings;
    Probe writer("", "");
    writer.setRootName("Ship");
    QCOMPARE(text(writer.className()), QString("Ship"));
}

void TestClassFileWriter::classTokens_data()
{
    const Ship ship;
    QTest::addColumn<QString>("token");
    QTest::addColumn<QString>("expected");
    for (const auto& entry :
         classValues("SeaShip", "Platform", "SeaShip", "HLAobjectRoot.Platform.SeaShip", 42, "DataTypes/ship", ""))
        QTest::newRow(entry.first.c_str()) << text(bracketed(entry.first)) << text(entry.second);
}

void TestClassFileWriter::classTokens()
{
    QFETCH(QString, token);
    Ship ship;
    QTEST(ship.writer.decode(token.toUtf8().constData()), "expected");
}

void TestClassFileWriter::shortMethodOfAnEmptyName()
{
    const RunSettings settings;
    Probe writer("", "");
    QCOMPARE(writer.decode("<!ShortSrMethod!><!SrMethod!>"), QString("srStateRep"));
}

void TestClassFileWriter::topClassHasToolkitHeaders()
{
    Ship ship("ObjectRoot");
    QCOMPARE(ship.writer.decode("<!NetPduClassBase!> <!NetPduClassBaseHeader!> <!ObjectPduBaseClass!> "
                                "<!ObjectPduBaseClassHeader!>"),
             QString("DtNetPduHeader <qx/packets/pduHeader.h> DtStateMsg <qx/stateMsg.h>"));
    QCOMPARE(ship.writer.decode("<!BaseDecoderClassName!> <!BaseEncoderClassName!> <!BaseDecoderClassHeader!> "
                                "<!BaseEncoderClassHeader!>"),
             QString("DtStateDecoder DtStateEncoder <qx/stateDecoder.h> <qx/stateEncoder.h>"));
}

void TestClassFileWriter::lowerClassHasGeneratedHeadersWithTheLetterD()
{
    Ship ship;
    QCOMPARE(ship.writer.decode("<!BaseDecoderClassHeader!> <!BaseEncoderClassHeader!>"),
             QString("\"inc/dplatformDecoder.h\" \"inc/dplatformEncoder.h\""));
}

void TestClassFileWriter::attributeTokens_data()
{
    QTest::addColumn<QString>("token");
    QTest::addColumn<QString>("expected");
    const char* const rows[][2] = {
        {"AttributeLocalType",                 "DtFloat32"               },
        {"AttributeSize",                      "4"                       },
        {"AttributeBoundary",                  "4"                       },
        {"NumberOfAttribute",                  "0"                       },
        {"Prefix",                             "Pre"                     },
        {"AttributeLocalNetType",              "DtNetFloat32"            },
        {"AttributeCastNetType",               "DtFloat32"               },
        {"AttributeQuorvexNetType",            "DtNetFloat32"            },
        {"attributeName",                      "speed"                   },
        {"AttributeName",                      "Speed"                   },
        {"ExactAttributeName",                 "Speed"                   },
        {"AttributeNetType",                   "DtNetFloat32"            },
        {"AttributeNetSizeString",             "3 * sizeof(DtNetFloat32)"},
        {"AttributeDatatype",                  "DtFloat32"               },
        {"AttributeFomDatatype",               "CfwSpeed"                },
        {"AttributeDatatypeDatatype",          "HLAfloat32BE"            },
        {"IsFloat",                            ""                        },
        {"AttributeNumCardinality",            "3"                       },
        {"AttributeInitialValueFromLocalType", "0.0"                     },
        {"AttributeSampleValueFromType",       "7.02"                    },
        {"AttributeInitialValueFromType",      "0.0"                     },
        {"AttributeEnumerationSize",           "32"                      },
        {"EnumerationRep",                     ""                        },
        {"enumerationRep",                     ""                        },
        {"AttributeIsVariableSize",            ""                        },
        {"AttributeIsNotEncodeable",           ""                        },
        {"AttributeHasNoCoding",               ""                        },
        {"AttributeHasPlusCardinality",        ""                        },
        {"AttributeNetIsVariableSize",         ""                        },
        {"AttributeIsEnumeration",             ""                        },
        {"AttributeIsString",                  ""                        },
        {"AttributeIsVariant",                 ""                        },
        {"NonVectorDatatype",                  "DtFloat32"               },
        {"AttributeEncoding",                  "CfwEncoding"             },
    };
    for (const auto& row : rows)
        QTest::newRow(row[0]) << text(bracketed(row[0])) << QString(row[1]);
}

void TestClassFileWriter::attributeTokens()
{
    QFETCH(QString, token);
    Ship ship;
    const DtAttribute attribute = speedAttribute();
    ship.writer.setCurrentAttribute(&attribute);
    QTEST(ship.writer.decode(token.toUtf8().constData()), "expected");
}

void TestClassFileWriter::attributeTokensStayOutsideTheLoop()
{
    Ship ship;
    for (const char* token : {"<!AttributeName!>", "<!Prefix!>", "<!NumberOfAttribute!>", "<!AttributeEncoding!>",
                              "<!NonVectorDatatype!>", "<!IsFloat!>"})
        QCOMPARE(ship.writer.decode(token), QString(token));
}

void TestClassFileWriter::vectorTypeIsPeeled()
{
    Ship ship;
    const DtAttribute attribute("Marks", "std::vector<DtU16>");
    ship.writer.setCurrentAttribute(&attribute);
    QCOMPARE(ship.writer.decode("<!AttributeLocalType!> <!AttributeLocalNetType!> <!AttributeCastNetType!> "
                                "<!AttributeInitialValueFromLocalType!> <!AttributeInitialValueFromType!>"),
             QString("DtU16 DtNetU16 std::vector<DtU16> 0 "));
    QCOMPARE(ship.writer.decode("<!AttributeDatatype!>"), QString("std::vector_DtU16_"));
}

void TestClassFileWriter::flagsOfAnAttribute()
{
    Ship ship;
    DtAttribute open("Open", "DtCfwOpen");
    open.setCardinality("0+");
    open.setIsFloat(true);
    ship.writer.setCurrentAttribute(&open);
    QCOMPARE(ship.writer.decode("<!AttributeHasPlusCardinality!><!AttributeIsVariableSize!>"
                                "<!AttributeNetIsVariableSize!><!IsFloat!>|<!AttributeIsNotEncodeable!>"),
             QString("111Float|"));
    DtAttribute bad("Bad", "std::vector<DtCfwBad>");
    bad.setCardinality("0-1");
    ship.writer.setCurrentAttribute(&bad);
    QCOMPARE(ship.writer.decode("<!AttributeIsNotEncodeable!><!AttributeIsVariant!>|<!AttributeHasPlusCardinality!>"),
             QString("11|"));
    for (const char* type : {"DtString", "DtGlobalObjectDesignator"})
    {
        const DtAttribute string("Mark", type);
        ship.writer.setCurrentAttribute(&string);
        QCOMPARE(ship.writer.decode("<!AttributeIsString!><!AttributeIsVariableSize!><!AttributeSampleValueFromType!>"),
                 QString("11\"Mark\""));
    }
}

void TestClassFileWriter::toolkitNetTypesAreTold()
{
    Ship ship;
    for (const auto& row : {
             std::pair<const char*, const char*>{"DtU32",     "DtNetU32"},
                {"DtInt8",    ""        },
                {"DtCfwOpen", ""        }
    })
    {
        const DtAttribute attribute("a", row.first);
        ship.writer.setCurrentAttribute(&attribute);
        QCOMPARE(ship.writer.decode("<!AttributeQuorvexNetType!>"), QString(row.second));
    }
}

void TestClassFileWriter::enumerationTokens()
{
    Ship ship;
    const DtAttribute attribute("Kind", "DtCfwKindEnum");
    ship.writer.setCurrentAttribute(&attribute);
    QCOMPARE(ship.writer.decode("<!AttributeIsEnumeration!> <!EnumerationRep!> <!enumerationRep!> "
                                "<!AttributeEnumerationSize!> <!AttributeNetType!>"),
             QString("1 DtU16 dtU16 32 DtNetU32"));
}

void TestClassFileWriter::sizesUseTheModelNameOfUnknownTypes()
{
    Ship ship;
    for (const char* type : {"DtCfwRecord", "CfwRecord"})
    {
        const DtAttribute attribute("a", type);
        ship.writer.setCurrentAttribute(&attribute);
        QCOMPARE(ship.writer.decode("<!AttributeSize!> <!AttributeBoundary!>"), QString("20 4"));
    }
    const DtAttribute unknown("a", "DtNowhere");
    ship.writer.setCurrentAttribute(&unknown);
    QCOMPARE(ship.writer.decode("<!AttributeSize!> <!AttributeBoundary!>"), QString("0 0"));
}

void TestClassFileWriter::attributeNames_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<QString>("expected");
    const struct
    {
        const char* tag;
        QString name, expected;
    } theRows[] = {
        {"plain",                             "Speed",    "speed Speed Speed"               },
        {"keyword of both lists",             "class",    "theClass TheClass _class"        },
        {"keyword in capitals at the start",  "Template", "theTemplate TheTemplate Template"},
        {"keyword of the language only",      "int",      "theInt TheInt int"               },
        {"word of the table only",            "lock",     "_lock Lock _lock"                },
        {"word of the table by its lowering", "Lock",     "_lock Lock Lock"                 },
        {"capitals",                          "HLAid",    "HLAid HLAid HLAid"               },
        {"slash and point",                   "a/b.c",    "a__b__c A__b__c a__b__c"         },
        {"angle brackets",                    "Of<x>",    "of_x_ Of_x_ Of_x_"               },
        {"empty",                             "",         "  "                              },
    };
    for (const auto& row : theRows)
        QTest::newRow(row.tag) << row.name << row.expected;
}

void TestClassFileWriter::attributeNames()
{
    QFETCH(QString, name);
    Ship ship;
    const DtAttribute attribute(name.toUtf8().constData(), "DtU8");
    ship.writer.setCurrentAttribute(&attribute);
    QTEST(ship.writer.decode("<!attributeName!> <!AttributeName!> <!ExactAttributeName!>"), "expected");
}

void TestClassFileWriter::boundaryIsThatOfTheOriginalName()
{
    Ship ship;
    ship.writer.setOriginalName("CfwRecord");
    QCOMPARE(ship.writer.decode("<!OctetBoundary!>"), QString("4"));
    ship.writer.setOriginalName("Nowhere");
    QCOMPARE(ship.writer.decode("<!OctetBoundary!>"), QString("0"));
}

void TestClassFileWriter::unsetOriginalNameIsZero()
{
    for (const unsigned int boundary : {7u, 9u, 0u}) // the last is what an unknown name has
    {
        DtDataTypeMapper::instance()->addDataTypeNameToBoundary("0", boundary);
        QCOMPARE(Ship().writer.decode("<!OctetBoundary!>"), QString::number(boundary));
    }
}

void TestClassFileWriter::encodingRules_data()
{
    QTest::addColumn<QString>("datatype");
    QTest::addColumn<QString>("encoding");
    QTest::addColumn<QString>("expected");
    const struct
    {
        const char* name;
        QString datatype, encoding, expected;
    } theRows[] = {
        {"of the datatype",           "CfwArray",    "Own", "CfwArrayEncoding"      },
        {"of the attribute",          "CfwOther",    "Own", "Own"                   },
        {"object id",                 "RTIobjectId", "Own", "RPRnullTerminatedArray"},
        {"object id, other spelling", "RTIObjectId", "",    "RPRnullTerminatedArray"},
        {"none",                      "CfwOther",    "",    "HLAvariableArray"      },
        {"no datatype",               "",            "Own", "Own"                   },
        {"nothing",                   "",            "",    "HLAvariableArray"      },
    };
    for (const auto& row : theRows)
        QTest::newRow(row.name) << row.datatype << row.encoding << row.expected;
}

void TestClassFileWriter::encodingRules()
{
    QFETCH(QString, datatype);
    QFETCH(QString, encoding);
    Ship ship;
    DtAttribute attribute("a", "DtU8");
    attribute.setDatatype(datatype.toUtf8().constData());
    attribute.setEncoding(encoding.toUtf8().constData());
    ship.writer.setCurrentAttribute(&attribute);
    QTEST(ship.writer.decode("<!AttributeEncoding!>"), "expected");
}

void TestClassFileWriter::moduleTokensNeedModules()
{
    Ship ship;
    QCOMPARE(ship.writer.decode("<!FedFileName!> <!FomModule!>"), QString("<!FedFileName!> <!FomModule!>"));
    ship.writer.setOmtProject(projectWith({"first.xml", "second.xml"}));
    QCOMPARE(ship.writer.decode("<!FedFileName!> <!FomModule!>|"), QString("first.xml |"));
    ship.writer.setOmtProject(projectWith({"other.xml"}));
    QCOMPARE(ship.writer.decode("<!FedFileName!>"), QString("other.xml"));
}

void TestClassFileWriter::enumsHeaderLosesPathExtensionDashesAndDots()
{
    Ship ship;
    QCOMPARE(ship.writer.decode("<!EnumsHeader!>"), QString("inc/mymodelv1Enums"));
}

void TestClassFileWriter::laterRowsSeeEarlierValues()
{
    Ship ship;
    ship.writer.setClassName("<!PduKind!>");
    QCOMPARE(ship.writer.decode("<!ClassCbName!>"), QString("42Cb"));
    const DtAttribute attribute("<!AttributeEncoding!>", "DtString");
    ship.writer.setCurrentAttribute(&attribute);
    QCOMPARE(ship.writer.decode("<!AttributeSampleValueFromType!>"), QString("\"HLAvariableArray\""));
}

void TestClassFileWriter::earlierRowsDoNotSeeLaterValues()
{
    Ship ship;
    ship.writer.setFullClassName("<!FileBase!> <!SrMethod!>");
    QCOMPARE(ship.writer.decode("<!FullClassName!>"), QString("<!FileBase!> seaShipStateRep"));
}

void TestClassFileWriter::changedNamesAreSeen()
{
    Ship ship;
    ship.writer.decode("<!SrMethod!><!PduKind!><!FullClassName!><!NetPduClassBase!><!ClassName!>");
    ship.writer.setRootName("Boat");
    ship.writer.setPduKind(7);
    ship.writer.setFullClassName("A.B");
    ship.writer.setParentClassName("Craft");
    QCOMPARE(ship.writer.decode("<!SrMethod!> <!PduKind!> <!FullClassName!> <!NetPduClassBase!> <!ClassName!>"),
             QString("boatStateRep 7 A.B DtNetPreCraftPdu Boat"));
}

// Lines of random pieces, names that hold tokens themselves, and the answer of the pass row by row.
void TestClassFileWriter::quickPassEqualsTheOrderedPass()
{
    const RunSettings settings;
    DtOMTEnvWriter::setPrefixName("Pre");
    std::mt19937 random(4711);
    const auto below = [&random](std::size_t limit) { return static_cast<std::size_t>(random() % limit); };
    std::vector<DtString> pieces = {"<!", "!>", "<", "!", ">", "x", " ", "<!Unknown!>", "<!<!", "Name", "<#", "Dt"};
    for (const auto& entry : classValues("a", "b", "c", "d", 1, "e", "f"))
        pieces.push_back(bracketed(entry.first));
    const auto piecesOf = [&](std::size_t most)
    {
        DtString result;
        for (std::size_t i = below(most + 1); i > 0; --i)
            result += pieces[below(pieces.size())];
        return result;
    };
    for (int i = 0; i < 3000; ++i)
    {
        const DtString root = i % 3 == 0 ? piecesOf(2) : DtString("SeaShip");
        const DtString parent = i % 5 == 0 ? piecesOf(1) : DtString("ObjectRoot");
        const DtString full = piecesOf(2);
        Probe writer("f.h", "");
        writer.setRootName(root);
        writer.setParentClassName(parent);
        writer.setFullClassName(full);
        const DtString line = piecesOf(6);
        DtString expected = replaceInOrder(line, classValues(root, parent, root, full, 0, "f", ""));
        expected = DtReplaceAllSubstrings(expected, "<!EnumsHeader!>", "Enums");
        DtFileWriter("", "").decodeFileLine(expected);
        QCOMPARE(writer.decode(line.c_str()), text(expected));
    }
}

void TestClassFileWriter::includeLoopCompilesOnce()
{
    Ship ship;
    DtAttribute attribute("a", "DtFoo");
    attribute.setCardinality("1");
    ship.writer.addAttribute(attribute);
    QCOMPARE(ship.writer.expand("<#IncludeFiles><!FileToInclude!> <#>|<#IncludeFiles><!FileToInclude!> <#>"),
             QString("foo.h |foo.h "));
    QCOMPARE(ship.writer.decode("<!FileToInclude!>"), QString(".h"));
}

void TestClassFileWriter::includeListLeavesOutKnownTypesAndEnumerations()
{
    Ship ship;
    for (const char* type : {"DtU8", "DtCfwKindEnum", "DtFooBar", "HLAthing", "DtHLAthing", "bool"})
    {
        DtAttribute attribute("a", type);
        attribute.setCardinality("1");
        ship.writer.addAttribute(attribute);
    }
    QCOMPARE(ship.writer.expand("<#IncludeFiles><!FileToInclude!> <#>"), QString("fooBar.h HLAthing.h "));
}

void TestClassFileWriter::onlyNeighbouringIncludesAreDropped()
{
    Ship ship;
    for (const char* type : {"DtFoo", "DtFoo", "DtBar", "DtFoo"})
    {
        DtAttribute attribute("a", type);
        attribute.setCardinality("1");
        ship.writer.addAttribute(attribute);
    }
    ship.writer.compileIncludeList();
    QCOMPARE(ship.writer.expand("<#IncludeFiles><!FileToInclude!> <#>"), QString("foo.h bar.h foo.h "));
}

void TestClassFileWriter::includeLoopDropsNeighboursOfAFilledList()
{
    Ship ship;
    DtAttribute attribute("a", "DtFoo");
    attribute.setCardinality("1");
    ship.writer.addAttribute(attribute);
    ship.writer.compileIncludeList();
    ship.writer.compileIncludeList(); // appends, and drops the neighbour
    QCOMPARE(ship.writer.expand("<#IncludeFiles><!FileToInclude!> <#>"), QString("foo.h "));
}

void TestClassFileWriter::attributeLoopCountsFromZero()
{
    Ship ship;
    for (const char* name : {"One", "Two", "Three"})
        ship.writer.addAttribute(DtAttribute(name, "DtU8"));
    QCOMPARE(ship.writer.expand("<#Attributes><!NumberOfAttribute!>:<!attributeName!> <#>"),
             QString("0:one 1:two 2:three "));
    QCOMPARE(ship.writer.expand("<#Attributes><!NumberOfAttribute!><#>"), QString("012"));
}

void TestClassFileWriter::counterKeepsTheNumberOfAttributes()
{
    Ship ship;
    ship.writer.addAttribute(DtAttribute("One", "DtU8"));
    ship.writer.addAttribute(DtAttribute("Two", "DtU8"));
    ship.writer.expand("<#Attributes>x<#>");
    const DtAttribute attribute("a", "DtU8");
    ship.writer.setCurrentAttribute(&attribute);
    QCOMPARE(ship.writer.decode("<!NumberOfAttribute!>"), QString("2"));
}

void TestClassFileWriter::loopNamesAreExact()
{
    Ship ship;
    ship.writer.addAttribute(DtAttribute("One", "DtU8"));
    QCOMPARE(ship.writer.expand("<#attributes>x<#><#Attributes >y<#>"), QString());
}

void TestClassFileWriter::unknownLoopsCount()
{
    Ship ship;
    QCOMPARE(ship.writer.expand("<#2><!SrMethod!> <#>"), QString("seaShipStateRep seaShipStateRep "));
}

void TestClassFileWriter::moduleLoopSkipsTheFirst_data()
{
    QTest::addColumn<QStringList>("modules");
    QTest::addColumn<QString>("expected");
    QTest::newRow("none") << QStringList() << "";
    QTest::newRow("one") << QStringList{"a.xml"} << "";
    QTest::newRow("two") << QStringList{"a.xml", "b.xml"} << "b.xml ";
    QTest::newRow("standard model second") << QStringList{"a.xml", "HLAstandardMIM.xml"} << "";
    QTest::newRow("standard model first") << QStringList{"HLAstandardMIM.xml", "b.xml"} << "b.xml ";
    QTest::newRow("standard model with a path")
        << QStringList{"a.xml", "x/HLAstandardMIM.xml"} << "x/HLAstandardMIM.xml ";
    QTest::newRow("four") << QStringList{"a.xml", "b.xml", "HLAstandardMIM.xml", "c.xml"} << "b.xml c.xml ";
}

void TestClassFileWriter::moduleLoopSkipsTheFirst()
{
    QFETCH(QStringList, modules);
    Ship ship;
    DtOmtProject project;
    for (const QString& module : modules)
        project.addFomDefFile(module.toUtf8().constData(), "");
    ship.writer.setOmtProject(project);
    QTEST(ship.writer.expand("<#FomModules><!FomModule!> <#>"), "expected");
    QCOMPARE(ship.writer.decode("<!FomModule!>"), modules.empty() ? QString("<!FomModule!>") : QString());
}

void TestClassFileWriter::moduleLoopMovesTheAttributeCounter()
{
    Ship ship;
    ship.writer.setOmtProject(projectWith({"a.xml", "b.xml", "HLAstandardMIM.xml", "c.xml"}));
    ship.writer.addAttribute(DtAttribute("One", "DtU8"));
    QCOMPARE(ship.writer.expand("<#Attributes><!NumberOfAttribute!><#FomModules><!NumberOfAttribute!><#>"
                                "<!NumberOfAttribute!><#>"),
             QString("0012"));
    const DtAttribute attribute("a", "DtU8");
    ship.writer.setCurrentAttribute(&attribute);
    QCOMPARE(ship.writer.expand("<#FomModules>x<#><!NumberOfAttribute!>"), QString("xx5"));
}

void TestClassFileWriter::innerAttributeLoopEndsTheOuterOne()
{
    Ship ship;
    for (const char* name : {"One", "Two"})
        ship.writer.addAttribute(DtAttribute(name, "DtU8"));
    QCOMPARE(
        ship.writer.expand("<#Attributes><!AttributeName!>(<#Attributes><!AttributeName!> <#>)<!AttributeName!> <#>"),
        QString("One(One Two )<!AttributeName!> Two(One Two )<!AttributeName!> "));
}

void TestClassFileWriter::objectRootIsCutAtTheStartOnly_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<QString>("expected");
    const struct
    {
        const char* tag;
        QString name, expected;
    } theRows[] = {
        {"old root",    "ObjectRoot.A.B",             "A.B"              },
        {"new root",    "HLAobjectRoot.A",            "A"                },
        {"both",        "ObjectRoot.HLAobjectRoot.A", "HLAobjectRoot.A"  },
        {"further on",  "A.ObjectRoot.B",             "A.ObjectRoot.B"   },
        {"no point",    "ObjectRoot",                 "ObjectRoot"       },
        {"interaction", "InteractionRoot.A",          "InteractionRoot.A"},
        {"none",        "A.B",                        "A.B"              },
    };
    for (const auto& row : theRows)
        QTest::newRow(row.tag) << row.name << row.expected;
}

void TestClassFileWriter::objectRootIsCutAtTheStartOnly()
{
    QFETCH(QString, name);
    QTEST(text(Ship().writer.replaceFirstObjRootOccurance(name.toUtf8().constData())), "expected");
}

void TestClassFileWriter::interactionRootIsCutAtTheStartOnly_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<QString>("expected");
    const struct
    {
        const char* tag;
        QString name, expected;
    } theRows[] = {
        {"old root",   "InteractionRoot.A.B",  "A.B"                },
        {"new root",   "HLAinteractionRoot.A", "A"                  },
        {"further on", "A.InteractionRoot.B",  "A.InteractionRoot.B"},
        {"object",     "ObjectRoot.A",         "ObjectRoot.A"       },
    };
    for (const auto& row : theRows)
        QTest::newRow(row.tag) << row.name << row.expected;
}

void TestClassFileWriter::interactionRootIsCutAtTheStartOnly()
{
    QFETCH(QString, name);
    QTEST(text(Ship().writer.replaceFirstIntRootOccurance(name.toUtf8().constData())), "expected");
}

void TestClassFileWriter::longNamesAreNumberedAtTheFirstLine()
{
    const RunSettings settings;
    Probe writer("", "");
    writer.setRootName(std::string(150, 'q'));
    const int first = numberOf(writer.decode("<!ClassName!>"));
    writer.setRootName(std::string(150, 'r'));
    writer.decode("no token at all");
    writer.setRootName(std::string(150, 's'));
    QCOMPARE(numberOf(writer.decode("<!ClassName!>")), first + 2);
    writer.setRootName(std::string(150, 'R')); // also in another case
    QCOMPARE(writer.decode("<!ClassName!>"), QString(50, 'r') + QString::number(first + 1));
}

void TestClassFileWriter::longNamesAreNumberedInTokenOrder()
{
    const RunSettings settings;
    Probe writer("", "");
    writer.setRootName(std::string(150, 'm'));
    const int first = numberOf(writer.decode("<!ClassName!>"));
    DtAttribute attribute(std::string(150, 'n'), std::string(150, 'o'));
    attribute.setDatatype(std::string(150, 'k'));
    attribute.setDatatypeDatatype(std::string(60, '.'));
    writer.setRootName(std::string(150, 'j'));
    writer.addAttribute(attribute);
    // the line asks for the last one first
    const QStringList names =
        writer
            .expand("<#Attributes><!ClassName!> <!AttributeDatatypeDatatype!> <!AttributeFomDatatype!> "
                    "<!AttributeDatatype!> <!AttributeName!><#>")
            .split(' ');
    QCOMPARE(numberOf(names[4]), first + 1);
    QCOMPARE(numberOf(names[3]), first + 2);
    QCOMPARE(numberOf(names[2]), first + 3);
    QCOMPARE(numberOf(names[1]), first + 4);
    QCOMPARE(numberOf(names[0]), first + 5);
}

void TestClassFileWriter::singleLongNameIsNumberedAtTheFirstLine_data()
{
    QTest::addColumn<int>("place");
    QTest::newRow("name") << 0;
    QTest::newRow("type") << 1;
    QTest::newRow("datatype") << 2;
    QTest::newRow("datatype of the datatype") << 3;
}

// One long name alone, in a line that asks for nothing, takes the next number.
void TestClassFileWriter::singleLongNameIsNumberedAtTheFirstLine()
{
    QFETCH(int, place);
    const RunSettings settings;
    const std::string tail(150, 'e');
    DtString names[] = {"single", "DtSingle", "Single", "SingleBelow"};
    names[place] = "lone" + std::to_string(place) + tail;
    DtAttribute attribute(names[0], names[1]);
    attribute.setDatatype(names[2]);
    attribute.setDatatypeDatatype(names[3]);
    Probe writer("", "");
    writer.setRootName("before" + std::to_string(place) + tail);
    const int first = numberOf(writer.decode("<!ClassName!>"));
    writer.setRootName("Short");
    writer.setCurrentAttribute(&attribute);
    writer.decode("no token at all");
    writer.setCurrentAttribute(nullptr);
    writer.setRootName("behind" + std::to_string(place) + tail);
    QCOMPARE(numberOf(writer.decode("<!ClassName!>")), first + 2);
}

void TestClassFileWriter::knownTokensAreAllReplaced()
{
    Ship ship;
    ship.writer.setOmtProject(projectWith({"a.xml"}));
    const DtAttribute attribute = speedAttribute();
    ship.writer.setCurrentAttribute(&attribute);
    const std::vector<DtString> tokens = ship.writer.tokenChain().tokens();
    QCOMPARE(tokens.size(), std::size_t(1 + 42 + 52 + 1 + 2 + 2 + 14));
    for (const DtString& token : tokens)
        QVERIFY2(!ship.writer.decode(token).contains("<!"), token.c_str());
}

void TestClassFileWriter::rowWriterFillsItsNames()
{
    const RunSettings settings;
    DtOMTEnvWriter::setPrefixName("Pre");
    DtOMTEnvWriter::setIncludeName("inc");
    WriterProbe<DtRowFileWriter<theTestRow>> writer("fireHLA.h", "");
    writer.setRootName("FireInter");
    writer.setParentClassName("WeaponInter");
    writer.setFullClassName("HLAinteractionRoot.Weapon.Fire");
    QCOMPARE(text(writer.className()), QString("DtPreFireInterTested"));
    QCOMPARE(text(writer.rootName()), QString("FireInter"));
    QCOMPARE(writer.decode("<!BaseClassName!> <!BaseClassHeader!> <!FullClassName!>"),
             QString("DtPreWeaponInterTested \"inc/weaponInterTested.h\" Weapon.Fire"));
    QCOMPARE(writer.decode("<!Cb!> <!Base!> <!File!>"),
             QString("DtPreFireInterTestedCb DtPreWeaponInter inc/fireHLA-fireInter"));
}

void TestClassFileWriter::rowWriterUnderTheRoot()
{
    const RunSettings settings;
    WriterProbe<DtRowFileWriter<theTestRow>> writer("", "");
    writer.setRootName("Fire");
    writer.setParentClassName("InteractionRoot");
    QCOMPARE(writer.decode("<!BaseClassName!> <!BaseClassHeader!> <!Base!>"), QString("DtTop <qx/top.h> DtTopBase"));
    writer.setParentClassName("ObjectRoot");
    QCOMPARE(writer.decode("<!BaseClassName!> <!Base!>"), QString("DtObjectRootTested DtObjectRoot"));
}

void TestClassFileWriter::rowTokensComeFirst()
{
    const RunSettings settings;
    WriterProbe<DtRowFileWriter<theTestRow>> writer("", "");
    writer.setRootName("Fire");
    writer.setFullClassName("A<!SrMethod!>");
    QCOMPARE(writer.decode("<!ClassName!>"), QString("AfireStateRep"));
    QCOMPARE(text(writer.tokenChain().tokens().front()), QString("<!Cb!>"));
}

void TestClassFileWriter::rowOfTheObjectTreeCutsTheObjectRoot()
{
    const RunSettings settings;
    WriterProbe<DtRowFileWriter<theObjectRow>> writer("", "");
    writer.setRootName("Ship");
    writer.setParentClassName("ObjectRoot");
    writer.setFullClassName("ObjectRoot.Ship");
    QCOMPARE(writer.decode("<!FullClassName!> <!ClassName!> <!BaseClassName!>|"), QString("Ship DtReflectedShip |"));
    writer.setFullClassName("InteractionRoot.Ship");
    QCOMPARE(writer.decode("<!FullClassName!>"), QString("InteractionRoot.Ship"));
}

void TestClassFileWriter::plainRowIsAPlainWriter()
{
    const RunSettings settings;
    WriterProbe<DtRowFileWriter<thePlainRow>> writer("", "");
    writer.setRootName("Ship");
    writer.setFullClassName("ObjectRoot.Ship");
    QCOMPARE(writer.decode("<!ClassName!> <!FullClassName!>"), QString("Ship ObjectRoot.Ship"));
}

QX_REGISTER_TEST(TestClassFileWriter)
#include "testClassFileWriter.moc"
