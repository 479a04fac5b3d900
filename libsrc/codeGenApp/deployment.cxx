#include "codeGenApp/deployment.h"

#include "foundation/outputStream.h"

#include <QtCore/QFile>
#include <QtCore/QXmlStreamReader>

namespace
{
struct DtDeploymentRow
{
    const char* element;
    QString DtDeployment::*text;
};

const DtDeploymentRow theElements[] = {
    {"address",     &DtDeployment::address    },
    {"telephone",   &DtDeployment::telephone  },
    {"webAddress",  &DtDeployment::webAddress },
    {"mailAddress", &DtDeployment::mailAddress},
    {"versionPage", &DtDeployment::versionPage},
};

// The indentation of the file is no part of an address of several lines.
QString withoutIndentation(const QString& text)
{
    QStringList lines;
    for (const QString& line : text.trimmed().split('\n'))
        lines += line.trimmed();
    return lines.join('\n');
}

void readElement(QXmlStreamReader& reader, DtDeployment& deployment)
{
    for (const DtDeploymentRow& row : theElements)
        if (reader.name() == QLatin1String(row.element))
        {
            deployment.*row.text = withoutIndentation(reader.readElementText());
            return;
        }
    reader.skipCurrentElement();
}
} // namespace

DtDeployment DtDeployment::read(const QString& file)
{
    QFile source(file);
    if (!source.open(QIODevice::ReadOnly))
        return DtDeployment();
    DtDeployment deployment;
    QXmlStreamReader reader(&source);
    if (reader.readNextStartElement())
        while (reader.readNextStartElement())
            readElement(reader, deployment);
    if (!reader.hasError())
        return deployment;
    DtWarn << "Cannot read " << file.toStdString() << ": " << reader.errorString().toStdString() << std::endl;
    return DtDeployment();
}
