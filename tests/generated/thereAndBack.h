#ifndef TESTS_THERE_AND_BACK_H
#define TESTS_THERE_AND_BACK_H

// Values of all datatypes of a model, from the generated codec in Python to the generated C++ and back.

#include "bothSides.h"

// C++ classes of the management model of 2010, which the modules are merged with.
inline const QStringList theRefusedOfTheManagementModel = {"DtHLAhandleList"};

// What becomes of values of the datatypes of a model.
struct DtExpectedAnswers
{
    QStringList notInPython = {};    // without an encoding in the codec, so that there are no values
    QStringList classesRefused = {}; // C++ classes without an encoding
    QStringList holdingThese = {};   // datatypes with values that hold such a class
    QStringList notAtTheStart = {};  // what an object as it starts does not encode, or does not take back
};

inline QStringList words(const char* text)
{
    return QString::fromLatin1(text).split(' ');
}

// The rest of those lines that begin so.
inline QStringList linesBehind(const QString& start, const QString& text)
{
    QStringList lines;
    for (const QString& line : text.split('\n'))
        if (line.startsWith(start))
            lines += line.mid(start.size());
    return lines;
}

inline QStringList faultyDatatypes(const DtPythonRun& back)
{
    QStringList names;
    for (const QString& fault : linesBehind("wrong ", back.output))
        names += fault.section(": ", 0, 0);
    return names;
}

inline QString sorted(QStringList lines)
{
    lines.sort();
    return lines.join('\n');
}

inline void checkStart(const DtBothSides& sides, const DtExpectedAnswers& expected)
{
    const QStringList lines = sides.start();
    const int refused = lines.filter(" refused: ").size() - lines.filter(" not taken back, ").size();
    const QString encoded = QStringLiteral("%1 encoded").arg(sides.datatypes().size() - refused);
    QCOMPARE(sorted(lines), sorted(expected.notAtTheStart + QStringList{encoded}));
}

// What the accessors of the generated code give of octets are the values that these were made of.
inline void checkRead(const DtBothSides& sides, const DtExpectedAnswers& expected, int count)
{
    const QString number = QString::number(count);
    const QByteArray values = sides.python({"values", number}).output.toUtf8();
    const DtPythonRun driver = sides.valuesOf(values);
    QCOMPARE(driver.exitCode, 0);
    const DtPythonRun read =
        sides.python(QStringList{"read", number} + expected.classesRefused, driver.output.toUtf8());
    QVERIFY2(faultyDatatypes(read).isEmpty(), qPrintable(read.output.left(4000)));
    const int datatypes = sides.datatypes().size() - expected.notInPython.size();
    const QString total = QStringLiteral("%1 values").arg(datatypes * count);
    QVERIFY2(read.output.endsWith(total + '\n'), qPrintable(read.output.right(1000)));
}

// Values of the codec come back from the generated code as the same octets and as the same values, but for those that
// hold what has no encoding there: these are refused for that reason.
inline void checkThereAndBack(const DtBothSides& sides, const DtExpectedAnswers& expected, int count)
{
    QCOMPARE(sides.python({"refused"}).output.trimmed(), expected.notInPython.join('\n'));
    QCOMPARE(sides.classesWithoutEncoding().join('\n'), expected.classesRefused.join('\n'));
    const QString errors = sides.compile();
    QVERIFY2(errors.isEmpty(), qPrintable(errors));
    checkStart(sides, expected);
    const QString number = QString::number(count);
    const DtPythonRun values = sides.python({"values", number});
    QVERIFY2(values.isGood(), qPrintable(values.output.right(2000)));
    const DtPythonRun driver = sides.driver(values.output.toUtf8());
    QCOMPARE(driver.exitCode, 0);
    const DtPythonRun back =
        sides.python(QStringList{"back", number} + expected.classesRefused, driver.output.toUtf8());
    QVERIFY2(faultyDatatypes(back).isEmpty(), qPrintable(back.output.left(4000)));
    QCOMPARE(sorted(linesBehind("refused ", back.output)), sorted(expected.holdingThese));
    const int datatypes = sides.datatypes().size() - expected.notInPython.size();
    const QString total = QStringLiteral("%1 values").arg(datatypes * count);
    QVERIFY2(back.output.endsWith(total + '\n'), qPrintable(back.output.right(1000)));
    checkRead(sides, expected, std::min(count, 100)); // text takes longer than octets
    qInfo("%s of %d datatypes", qPrintable(total), datatypes);
}

// Why a test of this model is skipped; empty when it is not.
inline QByteArray lackOf(const QString& model)
{
    if (!QFile::exists(model))
        return "The model is not here.";
    return hasPython() ? "" : theMissingPython;
}
inline QByteArray lackOfFullRunWith(const QString& model)
{
    return isFullRun() ? lackOf(model) : "Left to the full run, which sets QX_FULL.";
}

#endif
