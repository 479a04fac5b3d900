#include "codeGenApp/modelLoading.h"
#include "fileGenerator/omtProject.h"
#include "modelTools/classPattern.h"
#include "registerTest.h"
#include "smallModels.h"
#include "toolTest.h"

#include <QtTest/QtTest>

namespace
{
QByteArray model()
{
    const QByteArray aircraft = objectText("Aircraft", objectText("Jet") + objectText("AmphibiousAircraft"));
    return moduleText(objectText("Platform", aircraft + objectText("Ship")) + objectText("Harbour"),
                      interactionText("Collision") + interactionText("Horn", interactionText("FogHorn")));
}

// The names without their roots.
template <typename Names>
std::string shortened(const Names& names)
{
    std::vector<std::string> texts;
    for (const DtString& name : names)
        texts.push_back(name.stdString().substr(name.stdString().find('.') + 1));
    return joined(texts);
}
} // namespace

class TestClassPattern : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase()
    {
        const std::filesystem::path file = myFolder.path() / "model.xml";
        writeBytes(file, model().toStdString());
        myModel = DtLoadModel({DtFilename(DtString(file.native()))}, true);
        QVERIFY(myModel.tree != nullptr);
    }

    void patternMatchesWholeNamesBehindADot_data()
    {
        QTest::addColumn<QByteArray>("pattern");
        QTest::addColumn<bool>("matches");
        const auto row = [](const char* pattern, bool matches)
        { QTest::newRow(pattern) << QByteArray(pattern) << matches; };
        row("HLAobjectRoot.Platform.Aircraft", true);
        row("Platform.Aircraft", true);
        row("Aircraft", true);
        row("*", true);
        row("**", true);
        row("Platform.*", true);
        row("HLA*craft", true); // dots too
        row("*form*", true);
        row("Air*f*t", true);
        row("A?rcraft", true);
        row("Platform?Aircraft", true);
        row("????????", true);
        row("HLAobjectRoot.Platform.Aircraft*", true);
        row("", false);
        row("Platform", false); // that is its superclass
        row("craft", false);
        row("form.Aircraft", false);
        row("aircraft", false);
        row("Aircraft.*", false);
        row("Aircraft?", false);
        row("?Aircraft", false);
        row("A*x", false);
        row(".Aircraft", false);
        row("[A]ircraft", false);
        row("Air.raft", false);
    }
    void patternMatchesWholeNamesBehindADot()
    {
        QFETCH(QByteArray, pattern);
        QFETCH(bool, matches);
        QCOMPARE(DtClassPattern(pattern.constData()).matches("HLAobjectRoot.Platform.Aircraft"), matches);
    }

    void questionMarkStandsForACharacterOfAnyLength()
    {
        const DtString name("HLAobjectRoot.F\xc3\xa4hre\xe2\x82\xac");
        for (const char* pattern : {"F?hre?", "F?hr??", "F?hre\xe2\x82\xac", "?\xc3\xa4*?"})
            QVERIFY2(DtClassPattern(pattern).matches(name), pattern);
        for (const char* pattern : {"F??hre?", "F?hre??", "F?hre"})
            QVERIFY2(!DtClassPattern(pattern).matches(name), pattern);
        QVERIFY(DtClassPattern("F?hre").matches(DtString("Root.F\xe4hre"))); // no UTF-8
    }

    void manyStarsOnALongNameComeToAnEnd()
    {
        std::string stars;
        for (int index = 0; index < 30; ++index)
            stars += "*a";
        QVERIFY(!DtClassPattern(stars + "b").matches(DtString(std::string(2000, 'a'))));
    }

    void exclamationMarkTakesAway()
    {
        const DtClassPattern pattern("!Jet");
        QVERIFY(pattern.takesAway());
        COMPARE_TEXT(pattern.text(), "Jet");
        QVERIFY(pattern.matches("HLAobjectRoot.Jet"));
        QVERIFY(!DtClassPattern("Jet!").takesAway());
    }

    void managementClassesStandRightBelowARoot_data()
    {
        QTest::addColumn<QByteArray>("name");
        QTest::addColumn<bool>("isManagement");
        const auto row = [](const char* name, bool isManagement)
        { QTest::newRow(name) << QByteArray(name) << isManagement; };
        row("HLAobjectRoot.HLAmanager", true);
        row("HLAobjectRoot.HLAmanager.HLAfederate", true);
        row("HLAinteractionRoot.HLAmanager.HLAfederate.HLAadjust", true);
        row("ObjectRoot.Manager", true);
        row("InteractionRoot.Manager.Federate.Report", true);
        row("HLAobjectRoot", false);
        row("Manager", false);
        row("HLAmanager.Federate", false);
        row("HLAobjectRoot.Managers", false);
        row("HLAobjectRoot.HLAmanagerX", false);
        row("HLAobjectRoot.manager", false);
        row("HLAobjectRoot.Plant.Manager", false);
    }
    void managementClassesStandRightBelowARoot()
    {
        QFETCH(QByteArray, name);
        QFETCH(bool, isManagement);
        QCOMPARE(DtIsManagementClass(name.constData()), isManagement);
    }

    void namesStandInTheOrderOfTheModel()
    {
        std::vector<DtString> names;
        for (const DtString& name : DtClassNames(*myModel.tree))
            if (!DtIsManagementClass(name))
                names.push_back(name);
        COMPARE_TEXT(shortened(names), "|Platform|Platform.Aircraft|Platform.Aircraft.Jet|Platform.Aircraft."
                                       "AmphibiousAircraft|Platform.Ship|Harbour|Collision|Horn|Horn.FogHorn");
    }

    void patternsSelectInTurn_data()
    {
        QTest::addColumn<QByteArray>("patterns");
        QTest::addColumn<QByteArray>("expected"); // of a sorted set: interactions ahead of objects
        const auto row = [](const char* patterns, const char* expected)
        { QTest::newRow(patterns) << QByteArray(patterns) << QByteArray(expected); };
        row("Jet", "|Platform.Aircraft.Jet");
        row("Jet Horn", "|Horn|Platform.Aircraft.Jet");
        row("*Horn*", "|Horn|Horn.FogHorn");
        row("Platform.* !*Amphibious*", "|Platform.Aircraft|Platform.Aircraft.Jet|Platform.Ship");
        row("!Platform* !Horn*", "|Collision|Harbour");
        row("!Platform* !Horn* Ship", "|Collision|Harbour|Platform.Ship");
        row("Ship !Ship", "");
        row("Ship !Ship Ship", "|Platform.Ship");
        row("HLAobjectRoot.*", "|Harbour|Platform|Platform.Aircraft|Platform.Aircraft.AmphibiousAircraft|"
                               "Platform.Aircraft.Jet|Platform.Ship");
    }
    void patternsSelectInTurn()
    {
        QFETCH(QByteArray, patterns);
        QFETCH(QByteArray, expected);
        COMPARE_TEXT(shortened(selected(patterns, false)), expected);
    }

    void managementClassesTakePartOnlyIfWanted()
    {
        for (const DtString& name : selected("*", false))
            QVERIFY2(!DtIsManagementClass(name), name.c_str());
        QVERIFY(selected("*", true).count("HLAobjectRoot.HLAmanager.HLAfederate") == 1);
        QVERIFY(selected("HLAmanager.HLAfederation", true).size() == 2); // an object class and an interaction class
    }

    void patternWithoutMatchIsAnErrorThatNamesNearNames_data()
    {
        QTest::addColumn<QByteArray>("pattern");
        QTest::addColumn<QByteArray>("error");
        const auto row = [](const char* pattern, const char* error)
        { QTest::newRow(pattern) << QByteArray(pattern) << QByteArray(error); };
        row("Shipp", "1: no class matches \"Shipp\". Did you mean Ship?");
        row("platform.ship", "1: no class matches \"platform.ship\". Did you mean Platform.Ship or Platform?");
        row("!Harbor", "1: no class matches \"Harbor\". Did you mean Harbour?");
        row("Submarine", "1: no class matches \"Submarine\".");
        row("HLAfederate", "1: no class matches \"HLAfederate\". It matches management classes; --with-management "
                           "lets them in.");
        row("HLAobjectRoot", "1: no class matches \"HLAobjectRoot\".");
        row("", "1: no class matches \"\".");
    }
    void patternWithoutMatchIsAnErrorThatNamesNearNames()
    {
        QFETCH(QByteArray, pattern);
        QFETCH(QByteArray, error);
        COMPARE_TEXT(failureOf(
                         [&] {
                             DtClassesOfPatterns(*myModel.tree, {"Jet", pattern.constData()}, false);
                         }),
                     error);
    }

    void superclassesComeAlong()
    {
        const std::set<DtString> wanted = selected("Jet FogHorn", false);
        DtOmtProject project;
        DtSelectClasses(*myModel.tree, project, [&wanted](const DtString& name) { return wanted.count(name) != 0; });
        std::vector<DtString> names;
        for (const DtOmtObject& object : project.getObjects())
            names.push_back(object.fullName());
        for (const DtOmtInteraction& interaction : project.getInteractions())
            names.push_back(interaction.fullName());
        COMPARE_TEXT(shortened(names), "|Platform|Platform.Aircraft|Platform.Aircraft.Jet|Horn|Horn.FogHorn");
    }

private:
    // By patterns with blanks between.
    std::set<DtString> selected(const QByteArray& patterns, bool withManagement) const
    {
        std::vector<std::string> texts;
        for (const QByteArray& each : patterns.split(' '))
            texts.push_back(each.toStdString());
        return DtClassesOfPatterns(*myModel.tree, texts, withManagement);
    }

    DtTestFolder myFolder;
    DtLoadedModel myModel;
};

QX_REGISTER_TEST(TestClassPattern)
#include "testClassPattern.moc"
