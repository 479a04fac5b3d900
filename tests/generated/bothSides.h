#ifndef TESTS_BOTH_SIDES_H
#define TESTS_BOTH_SIDES_H

// A model with an object class Probe, which has an attribute of each of its datatypes, and what is written of it: the
// codec in Python and the generated C++.

#include "codeGenApp/compiledOutput.h"
#include "codeGenApp/scriptRun.h"
#include "codeGenApp/smallModels.h"
#include "toolkitObjects.h"
#include "valuePrinters.h"

#include <QtCore/QXmlStreamReader>

#include <optional>
#include <set>

// Attributes are called P0, P1 and so on; these are their datatypes, with the cardinality where HLA 1.3 gives one that
// is not "1", as in "short[0+]".
struct DtProbedModel
{
    QByteArray text;
    QStringList datatypes;
};

// The datatypes that a model in XML defines. A name is an element in the newer formats and an attribute in the older
// one.
inline QStringList datatypesIn(const QByteArray& model)
{
    static const std::set<QString> theElements = {"basicData", "simpleData",      "enumeratedData",
                                                  "arrayData", "fixedRecordData", "variantRecordData"};
    QStringList names;
    QXmlStreamReader reader(model);
    bool isDatatype = false;
    while (!reader.atEnd())
    {
        if (reader.readNext() != QXmlStreamReader::StartElement)
            continue;
        if (isDatatype && reader.name() == QLatin1String("name"))
            names += reader.readElementText();
        isDatatype = theElements.count(reader.name().toString()) > 0;
        if (isDatatype && reader.attributes().hasAttribute("name"))
            names += reader.attributes().value("name").toString();
    }
    return names;
}

inline QStringList datatypesIn(const QStringList& files)
{
    QStringList names;
    for (const QString& file : files)
        names += datatypesIn(readTextFile(file));
    names.removeDuplicates();
    return names;
}

// A module for modules that define these, in the form of the same year.
inline DtProbedModel probeModule(const QStringList& datatypes, const QByteArray& year)
{
    QByteArray attributes;
    for (int index = 0; index < datatypes.size(); ++index)
        attributes += attributeText("P" + QByteArray::number(index), datatypes[index].toHtmlEscaped().toUtf8());
    return {moduleText(objectText("Probe", attributes), QByteArray(), year), datatypes};
}

// The same as part of a model in the older XML format.
inline DtProbedModel withOlderProbe(QByteArray model)
{
    const QStringList datatypes = datatypesIn(model);
    const int root = model.indexOf('>', model.indexOf("name=\"HLAobjectRoot\"")) + 1;
    QByteArray probe = "<objectClass name=\"Probe\">";
    for (int index = 0; index < datatypes.size(); ++index)
        probe += "<attribute name=\"P" + QByteArray::number(index) + "\" dataType=\"" +
                 datatypes[index].toHtmlEscaped().toUtf8() + "\"/>";
    return {model.insert(root, probe + "</objectClass>"), datatypes};
}

using DtTextMember = std::pair<QString, QString>; // datatype and cardinality

// Those that a model in the text format defines, and those that its classes use.
inline QList<DtTextMember> membersIn(const QString& model)
{
    static const QRegularExpression theDatatype(R"re(\((?:Complex|Enumerated)DataType\s+\(Name\s+"([^"]*)")re");
    static const QRegularExpression theMember(
        R"re(\((?:Attribute|Parameter)\s+\(Name[^()]*\)\s*\(DataType\s+"([^"]*)"[^()]*\)\s*\(Cardinality\s+"([^"]*)")re");
    QList<DtTextMember> members;
    for (auto each = theDatatype.globalMatch(model); each.hasNext();)
        members += {each.next().captured(1), "1"};
    for (auto each = theMember.globalMatch(model); each.hasNext();)
    {
        const QRegularExpressionMatch match = each.next();
        const DtTextMember member(match.captured(1), match.captured(2));
        if (!members.contains(member))
            members += member;
    }
    return members;
}

inline DtProbedModel withTextProbe(QByteArray model)
{
    QByteArray probe = "(Class (ID 99999) (Name \"Probe\")\n";
    QStringList datatypes;
    for (const DtTextMember& member : membersIn(QString::fromLatin1(model)))
    {
        const auto& [datatype, cardinality] = member;
        probe += "(Attribute (Name \"P" + QByteArray::number(datatypes.size()) + "\") (DataType \"" +
                 datatype.toLatin1() + "\") (Cardinality \"" + cardinality.toLatin1() + "\"))\n";
        datatypes += cardinality == "1" ? datatype : datatype + '[' + cardinality + ']';
    }
    return {model.insert(model.lastIndexOf(')'), probe + ')'), datatypes};
}

// What both roads write of a model with a probe: the codec, and the generated code laid out for a compiler.
class DtBothSides
{
public:
    // Of modules; the probe has attributes of further datatypes too, which the standard model defines or nobody.
    explicit DtBothSides(const QStringList& files, const QStringList& furtherDatatypes = QStringList())
    {
        std::vector<DtString> models = copiedModels(myProgram, files);
        QStringList datatypes = datatypesIn(files) + furtherDatatypes;
        datatypes.removeDuplicates();
        const bool isOf2025 = readTextFile(files.front()).contains("IEEE1516-2025");
        const DtProbedModel module = probeModule(datatypes, isOf2025 ? "2025" : "2010");
        models.push_back(myProgram.model("probe.xml", module.text));
        generate(models, module.datatypes);
    }
    // Of one model in an older format.
    explicit DtBothSides(const QString& file)
    {
        const bool isText = file.endsWith(".omt");
        const QByteArray text = readTextFile(file);
        const DtProbedModel model = isText ? withTextProbe(text) : withOlderProbe(text);
        generate({myProgram.model(isText ? "model.omt" : "model.xml", model.text)}, model.datatypes);
    }

    const QStringList& datatypes() const { return myDatatypes; }
    QString attributeOf(const QString& datatype) const { return 'P' + QString::number(myDatatypes.indexOf(datatype)); }
    DtPythonRun python(const QStringList& arguments, const QByteArray& input = QByteArray()) const
    {
        return runPython(path(), QStringList{QX_SOURCE_DIR "/tests/generated/crossValues.py"} + arguments, input);
    }
    // The classes that the generator warned of: they hold several open arrays and have no encoding.
    const QStringList& classesWithoutEncoding() const { return myClassesWithoutEncoding; }

    // Of loading and generating.
    const QString& warnings() const { return myWarnings; }
    // The generated header that defines this class, if one does.
    QByteArray headerOf(const QByteArray& className) const
    {
        for (const QString& file : headers())
            if (const QByteArray text = readTextFile(path() + "/" + file); text.contains(" " + className + "\n{"))
                return text;
        return {};
    }

    // Empty when the generated code has become a program. Compiles once.
    QString compile() const
    {
        if (!myErrors)
            myErrors = compilerErrors();
        return *myErrors;
    }
    // What comes back of octets.
    DtPythonRun driver(const QByteArray& lines) const { return runProgram(path() + "/driver", {}, lines); }
    // What the accessors give of them.
    DtPythonRun valuesOf(const QByteArray& lines) const { return runProgram(path() + "/driver", {"values"}, lines); }
    // What an object as it starts does not encode, or does not take back, by datatype; and how many it encodes.
    QStringList start() const
    {
        QStringList lines = runProgram(path() + "/driver", {"start"}).output.split('\n', Qt::SkipEmptyParts);
        for (QString& line : lines)
            if (line.startsWith('P'))
                line = myDatatypes.value(line.section(' ', 0, 0).mid(1).toInt()) + ' ' + line.section(' ', 1);
        return lines;
    }

private:
    QString path() const { return myStage.path(); }
    QStringList headers() const { return filesBelow(path()).filter(QRegularExpression("^DataTypes/.*\\.h$")); }
    QString compilerErrors() const
    {
        QByteArray unit, probes;
        const QRegularExpression sources("^(DataTypes/.*|probe(En|De)coderHLA|probeStateRepository)\\.cxx$");
        for (const QString& file : filesBelow(path()).filter(sources))
            unit += "#include \"" + file.toUtf8() + "\"\n";
        for (int index = 0; index < myDatatypes.size(); ++index)
            probes += QByteArray("PROBE(P%1, p%1)\n").replace("%1", QByteArray::number(index));
        writeTextFile(path() + "/probes.h", probes);
        writeTextFile(path() + "/printers.h", printersFor(path(), headers()));
        writeTextFile(path() + "/unit.cpp", unit + "#include \"crossDriver.cxx\"\n");
        const QStringList options{"-std=c++17",
                                  "-Wall",
                                  "-Wextra",
                                  "-Werror",
                                  "-I.",
                                  "-I" QX_SOURCE_DIR "/tests/generated",
                                  "-I" QX_SOURCE_DIR "/toolkit/include"};
        const DtPythonRun run = runProgram("g++", options + QStringList{"unit.cpp", "-o", "driver"} + toolkitObjects());
        return run.isGood() ? QString() : run.output.left(4000);
    }
    DtPythonRun runProgram(const QString& program, const QStringList& arguments,
                           const QByteArray& input = QByteArray()) const
    {
        QProcess process;
        process.setWorkingDirectory(path());
        process.setProcessChannelMode(QProcess::MergedChannels);
        process.start(program, arguments);
        process.write(input);
        process.closeWriteChannel();
        if (!process.waitForFinished(900000) || process.exitStatus() != QProcess::NormalExit)
            return {-1, program + " did not end"};
        return {process.exitCode(), QString::fromUtf8(process.readAll())};
    }
    void generate(const std::vector<DtString>& models, const QStringList& datatypes)
    {
        myDatatypes = datatypes;
        switchOnScripts(myProgram, {"genCpp.txt", "genPython.txt"});
        const DtCapture warnings(DtWarn);
        runBatch(myProgram, models);
        myWarnings = warnings.text();
        const QRegularExpression refusal("Cannot encode/decode data type (\\w+)\\.");
        for (auto each = refusal.globalMatch(myWarnings); each.hasNext();)
            myClassesWithoutEncoding += each.next().captured(1);
        myClassesWithoutEncoding.sort();
        for (const QString& file : filesBelow(myProgram.path("out")))
        {
            const QString target = path() + "/" + QString(file).remove(QStringLiteral("cpp\\"));
            QDir().mkpath(QFileInfo(target).path());
            QFile::copy(myProgram.path("out/") + file, target);
        }
    }

    QStringList myDatatypes;
    QString myWarnings;
    QStringList myClassesWithoutEncoding;
    mutable std::optional<QString> myErrors; // of the compiler, when it has run
    DtScratchProgram myProgram;
    QTemporaryDir myStage;
};

// Of a list of vectors.
inline QStringList datatypesOfVectors(const QString& file)
{
    QStringList names;
    for (const QString& line : QString::fromUtf8(readTextFile(file)).split('\n', Qt::SkipEmptyParts))
        names += line.section(" | ", 0, 0);
    names.removeDuplicates();
    return names;
}

// What the generated C++ makes of the octets of the vectors, and behind it what its accessors give.
inline QByteArray answersTo(const DtBothSides& sides, const QString& vectors)
{
    const QByteArray lines = sides.python({"octets", vectors}).output.toUtf8();
    return (sides.driver(lines).output + sides.valuesOf(lines).output).toUtf8();
}

#endif
