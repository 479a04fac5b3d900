// Random values of every object class and interaction through their generated encoders and decoders.

#include "registerTest.h"

#include "stagedSample.h"

namespace
{
// The C++ class that a header defines for a file of that kind.
QString classIn(const QByteArray& header, const QString& ending)
{
    const QRegularExpression definition("\\nclass \\w+ (Dt\\w*" + ending + ")\\n");
    return definition.match(QString::fromUtf8(header)).captured(1);
}

// A program that takes every class of the output round, and the sources that it needs.
QByteArray programOf(const DtStagedOutput& output, QStringList& sources, int& classes)
{
    QByteArray calls;
    sources = output.files("DataTypes/.*\\.cxx");
    for (const QString& header : output.files("[^/]*StateRepository\\.h"))
    {
        const QString stem = QString(header).remove("StateRepository.h");
        const QByteArray name = classIn(output.text(header), "StateRepository").remove("StateRepository").toUtf8();
        sources += {stem + "StateRepository.cxx", stem + "EncoderHLA.cxx", stem + "DecoderHLA.cxx"};
        calls += "DtRoundTripOfState<" + name + "StateRepository, " + name + "Encoder, " + name + "Decoder>(\"" + name +
                 "\", 300);\n";
        ++classes;
    }
    for (const QString& header : output.files("[^/]*InterHLA\\.h"))
    {
        const QString stem = QString(header).remove("HLA.h");
        const QByteArray name = classIn(output.text(header), "Inter").toUtf8();
        sources += {stem + "HLA.cxx", stem + "EncoderHLA.cxx", stem + "DecoderHLA.cxx"};
        calls += "DtRoundTripOfInteraction<" + name + ", DtInteractionWithEncDec>(\"" + name + "\", 300);\n";
        ++classes;
    }
    return "#include <roundTrip.h>\nint main()\n{\n" + calls + "}\n";
}
} // namespace

class TestRoundTrip : public QObject
{
    Q_OBJECT

private:
    // unmoved: attributes that have one value only.
    static void check(const DtStagedOutput& output, const QStringList& unmoved)
    {
        QStringList sources;
        int classes = 0;
        const QByteArray program = programOf(output, sources, classes);
        const QString file = output.path() + "/roundTrip";
        const QString errors =
            output.compile(sources, program, toolkitObjects() + QStringList{"-std=c++17", "-O0"}, file);
        QVERIFY2(errors.isEmpty(), qPrintable(errors));
        const DtProgramRun run = runProgram(output.path(), file, {});
        QVERIFY2(run.exitCode == 0, qPrintable(run.output));
        QVERIFY2(!run.output.contains("FAULT"), qPrintable(run.output));
        const QStringList lines = run.output.split('\n', Qt::SkipEmptyParts);
        QCOMPARE(lines.size(), classes);
        QStringList still;
        int moved = 0;
        for (const QString& line : lines)
        {
            moved += line.section(", ", 1).section(' ', 0, 0).toInt();
            for (const QString& word : line.split(' '))
                if (word.startsWith('-'))
                    still += word.mid(1);
        }
        still.removeDuplicates();
        still.sort();
        QCOMPARE(still.join(' '), unmoved.join(' '));
        qInfo("%d classes, %d attributes and parameters with theirs", classes, moved);
        QVERIFY(moved > classes);
    }

private Q_SLOTS:
    // A record without fields, and arrays of padding, of which there is none at the start of a value.
    void everyClassOfTheSample() { check(DtStagedOutput(), {"Fenders", "Spare", "Trace"}); }

    void everyClassOfTheLargeModel()
    {
        const QStringList modules = largeModel();
        if (modules.isEmpty())
            QSKIP("The large model is not here.");
        check(DtStagedOutput(modules), {});
    }
};

QX_REGISTER_TEST(TestRoundTrip)
#include "testRoundTrip.moc"
