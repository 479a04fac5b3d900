#ifndef TESTS_SCANNED_TEMPLATE_H
#define TESTS_SCANNED_TEMPLATE_H

#include "modelTools/templateScanner.h"
#include "testSupport.h"

#include <QtCore/QStringList>

#include <algorithm>

// A template that is held against the rules of its writer, with the shipped files where it includes some.
class DtScannedTemplate
{
public:
    DtScannedTemplate(const DtTemplateRules& rules, const QString& name, const QByteArray& text)
        : myScanner(rules, findShipped), myFaults(myScanner.scan(name.toStdString(), text.toStdString()))
    {
    }
    // A shipped one, by its name below the directory of templates.
    DtScannedTemplate(const DtTemplateRules& rules, const QString& name)
        : DtScannedTemplate(rules, name, readTextFile(data() + "/templates/" + name))
    {
    }

    // As texts, name:line: what is wrong.
    QStringList faults() const
    {
        QStringList texts;
        for (const DtDiagnostic& fault : myFaults)
            texts += QStringLiteral("%1:%2: %3")
                         .arg(QString::fromStdString(fault.place.file))
                         .arg(fault.place.line)
                         .arg(QString::fromStdString(fault.text));
        return texts;
    }
    // The shipped templates that it includes, by their names below the directory of templates.
    std::set<QString> includedNames() const
    {
        std::set<QString> names;
        for (const std::string& path : myScanner.includedPaths())
            names.insert(QString::fromStdString(path).remove(QStringLiteral("../data/templates/")));
        return names;
    }

private:
    static QString data() { return QStringLiteral(QX_SOURCE_DIR "/data"); }
    static std::string findShipped(const std::string& path)
    {
        const QString file = data() + "/" + path.c_str();
        const bool isShipped = path.rfind("../data/templates/", 0) == 0 && QFile::exists(file);
        return isShipped ? file.toStdString() : std::string();
    }

    DtTemplateScanner myScanner;
    std::vector<DtDiagnostic> myFaults;
};

#endif
