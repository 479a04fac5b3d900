#ifndef TESTS_OMT_READER_OMT_TEXT_H
#define TESTS_OMT_READER_OMT_TEXT_H

#include "modelText.h"
#include "omtReader/omtFileReader.h"
#include "testSupport.h"

#include <QtCore/QTemporaryDir>

// Reads texts in the OMT text format and prints what came out.

using DtTreePointer = std::unique_ptr<DtOMTTree>;

// What became of a file.
struct DtOutcome
{
    DtTreePointer tree;
    bool hasThrown = false;
    QString error;
    QString warnings;
};

inline DtOutcome readName(const QByteArray& name, DtOMTFileReader& reader)
{
    DtOutcome outcome;
    const DtCapture warnings(DtWarn);
    try
    {
        outcome.tree.reset(reader.readFile(name.constData(), nullptr));
    }
    catch (const DtOMTReadException&)
    {
        outcome.hasThrown = true;
    }
    outcome.error = toQt(reader.getLastError());
    outcome.warnings = warnings.text();
    return outcome;
}

inline DtOutcome readText(const QByteArray& text, DtOMTFileReader& reader)
{
    QTemporaryDir directory;
    const QString name = directory.filePath("m.omt");
    writeTextFile(name, text);
    DtOutcome outcome = readName(name.toUtf8(), reader);
    outcome.warnings.replace(directory.path() + '/', "");
    return outcome;
}

inline DtOutcome readText(const QByteArray& text)
{
    DtOMTFileReader reader;
    return readText(text, reader);
}

// The tree of a model with these elements.
inline DtTreePointer readElements(const QByteArray& elements)
{
    DtOutcome outcome = readText("(ObjectModel " + elements + ")");
    if (outcome.tree == nullptr)
        qFatal("%s", qPrintable(outcome.error));
    return std::move(outcome.tree);
}

inline QString objectClasses(const DtOMTTree& tree)
{
    return printClass(tree.objectClassRoot());
}

inline QString interactionClasses(const DtOMTTree& tree)
{
    return printClass(tree.interactionClassRoot());
}

inline QString identificationOf(const DtOMTTree& tree)
{
    QStringList fields;
    for (const DtString& field :
         {tree.getName(), tree.getVersionNo(), tree.getType(), tree.getPurpose(), tree.getApplicationDomain(),
          tree.getSponsorOrgName(), tree.getModificationDate(), tree.getMOMVersion()})
        fields += toQt(field);
    return fields.join('|');
}

inline QString contactOf(const DtOMTTree& tree)
{
    const DtOMTTreePOC& contact = tree.getPOCList().front();
    QStringList fields;
    for (const DtString& field : {contact.type, contact.firstName, contact.lastName, contact.organization,
                                  contact.telephone, contact.email, contact.other})
        fields += toQt(field);
    return fields.join('|');
}

#endif
