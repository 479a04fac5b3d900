// Code of the user's own in a project, from its file to the running program.

#include "registerTest.h"

#include "codeGenApp/smallModels.h"
#include "fileGenerator/omtProject.h"
#include "stagedSample.h"

namespace
{

// A byte of 7 and the value in one more.
const char theEncoder[] = "    writer.putByte(7);\n    writer.putByte(static_cast<DtU8>(%1));\n";
const char theDecoder[] = "    DtU8 octets[2];\n    if (!reader.getBytes(octets, 2) || octets[0] != 7)\n    {\n"
                          "        return false;\n    }\n    %1(octets[1]);\n";

const char theProgram[] = R"(
#include <cstdio>
static bool is(const DtAttributeValues& values, const char* name, const DtValueBuffer& octets)
{
    const DtAttributeValues::const_iterator found = values.find(name);
    return found != values.end() && found->second == octets;
}
static int check(const char* what, bool holds)
{
    std::printf("%s %s\n", what, holds ? "yes" : "NO");
    return holds ? 0 : 1;
}
int main()
{
    int faults = 0;
    DtBoatStateRepository boat;
    boat.setSpeed(42);
    boat.setDraught(3);
    DtAttributeValues values;
    faults += check("object is encoded", DtBoatEncoder().encode(boat, values));
    faults += check("custom encoder runs", is(values, "Speed", {7, 42}));
    faults += check("other attribute is generated", is(values, "Draught", {0, 0, 0, 3}));
    DtBoatStateRepository seen;
    faults += check("object is decoded", DtBoatDecoder().decode(values, seen));
    faults += check("custom decoder runs", seen.speed() == 42 && seen.draught() == 3);
    values["Speed"] = {8, 42};
    faults += check("custom decoder may refuse", !DtBoatDecoder().decode(values, seen) && seen.speed() == 42);

    DtHornInter horn;
    horn.setVolume(5);
    horn.setSecret(9);
    values.clear();
    DtInteractionWithEncDec& sent = horn;
    faults += check("interaction is encoded", sent.encode(values));
    faults += check("custom encoder of a parameter runs", is(values, "Volume", {7, 5}));
    faults += check("parameter that is left out is not sent", values.count("Secret") == 0 && values.size() == 1);
    DtHornInter heard;
    DtInteractionWithEncDec& received = heard;
    faults += check("interaction is decoded", received.decode(values));
    faults += check("custom decoder of a parameter runs", heard.volume() == 5 && heard.secret() == 0);
    return faults;
}
)";

DtString filledIn(const char* text, const char* value)
{
    return QString(text).arg(QString(value)).toUtf8().constData();
}

void leaveOut(DtOmtProject& project, const DtString& interaction, const DtString& parameter)
{
    std::set<DtOmtInteraction> changed;
    for (DtOmtInteraction each : project.getInteractions())
    {
        std::set<DtOmtParameter> parameters;
        for (DtOmtParameter member : each.parameters())
        {
            member.setNoGen(each.fullName() == interaction && member.name() == parameter);
            parameters.insert(member);
        }
        each.setParameters(parameters);
        changed.insert(each);
    }
    project.setInteractions(changed);
}
} // namespace

class TestCustomCode : public QObject
{
    Q_OBJECT

private:
    // Makes the project, with the texts, and saves it.
    static DtFilename savedProject(DtScratchProgram& program)
    {
        const DtString model = program.model(
            "boats.xml", moduleText(objectText("Boat", attributeText("Speed") + attributeText("Draught")),
                                    interactionText("Horn", parameterText("Volume") + parameterText("Secret"))));
        const DtFilename file(program.bytes(program.path("models/boats.qxproj")));
        const auto window = makeWindow(program);
        window->newOmtProject(file);
        window->loadFile(model, "");
        window->addAllObjectInteractions();
        DtOmtProject& project = *window->omtProject();
        project.addCustomCoding("HLAobjectRoot.Boat.Speed",
                                {filledIn(theEncoder, "state.speed()"), filledIn(theDecoder, "state.setSpeed")});
        project.addCustomCoding("HLAinteractionRoot.Horn.Volume", {filledIn(theEncoder, "interaction.volume()"),
                                                                   filledIn(theDecoder, "interaction.setVolume")});
        leaveOut(project, "HLAinteractionRoot.Horn", "Secret");
        window->saveOmtProject();
        return file;
    }

    static std::unique_ptr<DtCodeGenAppGui> makeWindow(DtScratchProgram& program)
    {
        return program.makeWindow(
            [](DtCodeGenInitializer& initializer)
            {
                initializer.setGenerateExamples(false);
                initializer.setIncludeStandardMIM(false);
            });
    }

private Q_SLOTS:
    void textsOfTheProjectRun()
    {
        DtScratchProgram program;
        const DtFilename file = savedProject(program);
        const auto window = makeWindow(program);
        window->loadOmtProject(file);
        window->setOutputDirectory(program.path("out/"));
        window->generateAllFiles();
        const DtStagedOutput output(program.path("out"));
        const QString run = output.path() + "/custom";
        const QString errors =
            output.compile(output.files("[^/]*\\.cxx"), theProgram, toolkitSources() + QStringList{"-std=c++17"}, run);
        QVERIFY2(errors.isEmpty(), qPrintable(errors));
        const DtProgramRun result = runProgram(output.path(), run, {});
        QVERIFY2(result.exitCode == 0, qPrintable(result.output));
        QCOMPARE(result.output.count(" yes"), 11);
    }
};

QX_REGISTER_TEST(TestCustomCode)
#include "testCustomCode.moc"
