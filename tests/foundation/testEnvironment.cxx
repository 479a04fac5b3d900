#include "foundation/environment.h"
#include "foundationTest.h"
#include "registerTest.h"

#include <QtTest/QtTest>

#include <sstream>

class TestEnvironment : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void startsWithoutARoot();
    void addingMakesANamelessRoot();
    void objectWithoutATypeIsAList();
    void addsUnderAGivenParent();
    void nothingIsAddedUnderANodeThatIsNoObject();
    void attributesHaveDistinctNames();
    void valueOfAnObjectIsItsAttribute();
    void formatTellsTheKindOfNode();
    void copiesShareTheNodes();
    void rootMadeByAddingIsNotShared();
    void namedListIsTheFirstOfThatName();
    void namedListIsNoObjectOfAnotherType();
    void objectIsFoundByNameAndType();
    void lastOfSeveralObjectsCounts();
    void allNodesOfANameAreCollected();
    void lookUpsInAnEmptyHandleFindNothing();
    void dumpWritesOneEntryALine();
    void dumpLeavesOutAMissingValue();
    void dumpNamesTheRootThatHasAName();
    void dumpOfAnEmptyTreeIsEmpty();
};

namespace
{
QByteArray dump(const DtEnvironment& environment)
{
    std::ostringstream out;
    out << environment;
    return QByteArray::fromStdString(out.str());
}
} // namespace

void TestEnvironment::startsWithoutARoot()
{
    DtEnvironment environment;
    QVERIFY(environment.root() == nullptr);
    const auto node = std::make_shared<DtEnvObject>("n", "t");
    environment.setRoot(node);
    QVERIFY(environment.root() == node);
    QVERIFY(DtEnvironment(node).root() == node);
}

void TestEnvironment::addingMakesANamelessRoot()
{
    DtEnvironment environment;
    const auto node = environment.addObject("objects", "branch");
    QVERIFY(node != nullptr);
    QVERIFY(environment.root() != nullptr);
    QVERIFY(environment.root()->name().isEmpty());
    QVERIFY(environment.getObject("objects", "branch") == node);
}

void TestEnvironment::objectWithoutATypeIsAList()
{
    DtEnvironment environment;
    const auto outer = environment.addObject("outer");
    const auto inner = environment.addObject("inner", outer);
    QVERIFY(environment.getNamedList("outer") == outer);
    QVERIFY(DtEnvironment(outer).getNamedList("inner") == inner);
    COMPARE_TEXT(DtEnvObject::castToObject(inner)->type(), "inner");
}

void TestEnvironment::addsUnderAGivenParent()
{
    DtEnvironment environment;
    const auto parent = environment.addObject("parent");
    environment.addObject("child", "type", parent);
    environment.addAttribute("a", "1", parent);
    environment.addAttribute("b", "2");
    QCOMPARE(dump(environment), QByteArray("b (attribute) = 2\n"
                                           "parent (parent)\n"
                                           "  a (attribute) = 1\n"
                                           "  child (type)\n"));
}

void TestEnvironment::nothingIsAddedUnderANodeThatIsNoObject()
{
    DtEnvironment environment;
    const auto attribute = environment.addAttribute("a", "1");
    QVERIFY(environment.addObject("x", attribute) == nullptr);
    QVERIFY(environment.addAttribute("x", "1", attribute) == nullptr);
    QVERIFY(environment.addObject("x", "t", DtEnvironment::NodePtr()) == nullptr);
    DtEnvironment onAttribute(attribute);
    QVERIFY(onAttribute.addObject("x") == nullptr);
    QVERIFY(onAttribute.addComment("x") == nullptr);
}

void TestEnvironment::attributesHaveDistinctNames()
{
    DtEnvironment environment;
    const auto first = environment.addAttribute("a", "1");
    const auto second = environment.addAttribute("a", "2");
    QVERIFY(first == second);
    COMPARE_TEXT(first->value(), "2");
    const DtEnvObject* const root = DtEnvObject::castToObject(environment.root());
    QVERIFY(root->attribute("a") == first);
    QVERIFY(root->attribute("b") == nullptr);
    QCOMPARE(root->attributes().size(), std::size_t(1));
}

void TestEnvironment::valueOfAnObjectIsItsAttribute()
{
    DtEnvironment environment;
    const auto node = environment.addObject("n", "var");
    DtEnvObject* const object = DtEnvObject::castToObject(node);
    QVERIFY(!object->hasValue());
    QVERIFY(node->value().isEmpty());
    node->setValue("one");
    QVERIFY(object->hasValue());
    COMPARE_TEXT(object->attribute("value")->value(), "one");
    object->attribute("value")->setValue("two");
    COMPARE_TEXT(node->value(), "two");
}

void TestEnvironment::formatTellsTheKindOfNode()
{
    DtEnvironment environment;
    const auto object = environment.addObject("n");
    const auto attribute = environment.addAttribute("a", "1");
    const auto comment = environment.addComment("text");
    QCOMPARE(object->format(), 7);
    QVERIFY(attribute->format() != 7);
    QVERIFY(comment->format() != 7);
    QVERIFY(DtEnvObject::castToObject(object) == object.get());
    QVERIFY(DtEnvObject::castToObject(attribute) == nullptr);
    QVERIFY(DtEnvObject::castToObject(comment) == nullptr);
    QVERIFY(DtEnvObject::castToObject(nullptr) == nullptr);
    COMPARE_TEXT(comment->value(), "text");
    comment->setValue("new");
    COMPARE_TEXT(comment->value(), "new");
}

void TestEnvironment::copiesShareTheNodes()
{
    DtEnvironment environment;
    environment.addObject("a");
    DtEnvironment copy(environment);
    copy.addObject("b");
    QCOMPARE(dump(environment), QByteArray("a (a)\nb (b)\n"));
}

void TestEnvironment::rootMadeByAddingIsNotShared()
{
    DtEnvironment environment;
    DtEnvironment copy(environment);
    copy.addObject("b");
    QVERIFY(environment.root() == nullptr);
}

void TestEnvironment::namedListIsTheFirstOfThatName()
{
    DtEnvironment environment;
    const auto first = environment.addObject("list");
    environment.addObject("list");
    QVERIFY(environment.getNamedList("list") == first);
    QVERIFY(environment.getNamedList("other") == nullptr);
}

void TestEnvironment::namedListIsNoObjectOfAnotherType()
{
    DtEnvironment environment;
    environment.addObject("scripts", "var");
    environment.addAttribute("scripts", "x");
    QVERIFY(environment.getNamedList("scripts") == nullptr);
}

void TestEnvironment::objectIsFoundByNameAndType()
{
    DtEnvironment environment;
    const auto node = environment.addObject("n", "var");
    environment.addObject("n", "other");
    environment.addAttribute("n", "x");
    QVERIFY(environment.getObject("n", "var") == node);
    QVERIFY(environment.getObject("n", "none") == nullptr);
    QVERIFY(environment.getObject("m", "var") == nullptr);
}

void TestEnvironment::lastOfSeveralObjectsCounts()
{
    DtEnvironment environment;
    environment.addObject("n", "var");
    const auto last = environment.addObject("n", "var");
    QVERIFY(environment.getObject("n", "var") == last);
}

void TestEnvironment::allNodesOfANameAreCollected()
{
    DtEnvironment environment;
    const auto attribute = environment.addAttribute("n", "x");
    const auto first = environment.addObject("n", "a");
    environment.addObject("other");
    const auto second = environment.addObject("n", "b");
    environment.addComment("n");
    environment.addObject("n", first); // below, not here
    std::list<DtEnvironment::NodePtr> found{nullptr};
    environment.getObjectsByName("n", found);
    QVERIFY((found == std::list<DtEnvironment::NodePtr>{nullptr, attribute, first, second}));
}

void TestEnvironment::lookUpsInAnEmptyHandleFindNothing()
{
    const DtEnvironment environment;
    std::list<DtEnvironment::NodePtr> found;
    environment.getObjectsByName("n", found);
    QVERIFY(found.empty());
    QVERIFY(environment.getNamedList("n") == nullptr);
    QVERIFY(environment.getObject("n", "n") == nullptr);
}

void TestEnvironment::dumpWritesOneEntryALine()
{
    DtEnvironment environment;
    const auto branch = environment.addObject("objects", "branch");
    const auto entry = environment.addObject("Ship", "object name", branch);
    entry->setValue("Vehicle.Ship");
    const auto attribute = environment.addObject("Speed", "ShipAttribute", entry);
    attribute->setValue("HLAfloat32BE");
    environment.addObject("SpeedAttrCardinality", "cardinality", attribute)->setValue("1");
    environment.addComment("not shown");
    QCOMPARE(dump(environment), QByteArray("objects (branch)\n"
                                           "  Ship (object name) = Vehicle.Ship\n"
                                           "    Speed (ShipAttribute) = HLAfloat32BE\n"
                                           "      SpeedAttrCardinality (cardinality) = 1\n"));
}

void TestEnvironment::dumpLeavesOutAMissingValue()
{
    DtEnvironment environment;
    environment.addObject("without", "t");
    environment.addObject("empty", "t")->setValue("");
    QCOMPARE(dump(environment), QByteArray("without (t)\nempty (t) = \n"));
}

void TestEnvironment::dumpNamesTheRootThatHasAName()
{
    DtEnvironment environment(std::make_shared<DtEnvObject>("top", "config"));
    environment.root()->setValue("v");
    environment.addObject("a", "t");
    QCOMPARE(dump(environment), QByteArray("top (config) = v\n  a (t)\n"));
}

void TestEnvironment::dumpOfAnEmptyTreeIsEmpty()
{
    QCOMPARE(dump(DtEnvironment()), QByteArray());
}

QX_REGISTER_TEST(TestEnvironment)
#include "testEnvironment.moc"
