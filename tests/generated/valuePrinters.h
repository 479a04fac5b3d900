#ifndef TESTS_VALUE_PRINTERS_H
#define TESTS_VALUE_PRINTERS_H

// Writes printers.h for generated code: a function printed() for each class of its datatypes, which calls the accessors
// that the header of the class declares.

#include "testSupport.h"

#include <QtCore/QRegularExpression>
#include <QtCore/QStringList>

// What prints the value of one class; the lines are statements of the function. Empty for a header without class.
struct DtPrinterOfClass
{
    QString className;
    QStringList lines;
};

inline QStringList linesForRecord(const QString& header)
{
    static const QRegularExpression theField("^    const .*& (\\w+)\\(\\) const \\{ return Own\\.my\\w+; \\}$",
                                             QRegularExpression::MultilineOption);
    QStringList lines{"DtPrintedParts parts;"};
    for (auto each = theField.globalMatch(header); each.hasNext();)
        lines += QStringLiteral("parts.add(\"%1\", value.%1());").arg(each.next().captured(1));
    lines += lines.size() == 1 ? "static_cast<void>(value);" : "";
    return lines += "return parts.of(\"record\");";
}

// An alternative's accessor tells its place.
inline QStringList linesForVariant(const QString& header)
{
    static const QRegularExpression theAlternative(
        "^    const .*& (\\w+)\\(\\) const \\{ return Own\\.value\\.get<(\\d+)>\\(\\); \\}$",
        QRegularExpression::MultilineOption);
    QStringList lines{"DtPrintedParts parts;", "parts.add(\"discriminant\", value.discriminant());",
                      "parts.add(\"selected\", value.selected());"};
    for (auto each = theAlternative.globalMatch(header); each.hasNext();)
    {
        const QRegularExpressionMatch match = each.next();
        lines += QStringLiteral("if (value.selected() == %2) parts.addText(\"name\", \"\\\"%1\\\"\")"
                                ".add(\"value\", value.%1());")
                     .arg(match.captured(1), match.captured(2));
    }
    return lines += "return parts.of(\"variant\");";
}

inline DtPrinterOfClass printerOf(const QString& header)
{
    static const QRegularExpression theClass("^class \\w+ (Dt\\w+)$", QRegularExpression::MultilineOption);
    DtPrinterOfClass printer{theClass.match(header).captured(1), {}};
    if (header.contains(" Discriminant;\n"))
        printer.lines = linesForVariant(header);
    else if (header.contains("    typedef std::vector<value_type> Elements;\n"))
        printer.lines = QStringList{"return printedElements(value);"};
    else if (header.contains("    Number number() const"))
        printer.lines = QStringList{"return printed(value.number());"};
    else
        printer.lines = linesForRecord(header);
    return printer;
}

// Of headers by their names below a directory.
inline QByteArray printersFor(const QString& directory, const QStringList& headers)
{
    QString includes = "#pragma once\n#include \"printedValues.h\"\n", declarations, functions;
    for (const QString& header : headers)
    {
        const DtPrinterOfClass printer = printerOf(QString::fromUtf8(readTextFile(directory + "/" + header)));
        if (printer.className.isEmpty())
            continue;
        const QString head = QStringLiteral("inline std::string printed(const %1& value)").arg(printer.className);
        includes += "#include \"" + header + "\"\n";
        declarations += head + ";\n";
        functions += "\n" + head + "\n{\n    " + printer.lines.join("\n    ") + "\n}\n";
    }
    return (includes + declarations + functions).toUtf8();
}

#endif
