#ifndef TESTS_CONTEXT_TEST_SUPPORT_H
#define TESTS_CONTEXT_TEST_SUPPORT_H

#include "generatorFixture.h"

#include "fileGenerator/mapSubstitute.h"
#include "fileGenerator/omtEnvReader.h"
#include "fileGenerator/omtWriter.h"

#include <QtCore/QByteArray>
#include <QtCore/QStringList>

#include <memory>

// What the tests of contexts and command files share.

inline QString toQt(const DtString& text)
{
    return QString::fromUtf8(text.c_str());
}

// The text under a key; "none" when there is none.
inline QString valueOf(const DtMapSubstitute& map, const char* key)
{
    const DtString* value = map.getValue(key);
    return value != nullptr ? toQt(*value) : QStringLiteral("none");
}

// The map at the end of a path of keys, divided by ">"; an empty one when there is none.
inline const DtMapSubstitute& mapAt(const DtMapSubstitute& map, const QString& path)
{
    static const DtMapSubstitute theEmptyMap;
    const DtMapSubstitute* current = &map;
    for (const QString& key : path.split('>'))
    {
        current = current->getMap(key.toUtf8().constData());
        if (current == nullptr)
            return theEmptyMap;
    }
    return *current;
}

inline QString keysOf(const DtMapSubstitute& map)
{
    QStringList keys;
    for (const DtMapSubstitute::Entry& entry : map)
        keys += toQt(entry.first);
    return keys.join(' ');
}

// The texts under these keys as "key=value", divided by blanks.
inline QString valuesOf(const DtMapSubstitute& map, const QString& keys)
{
    QStringList values;
    for (const QString& key : keys.split(' '))
        values += key + '=' + valueOf(map, key.toUtf8().constData());
    return values.join(' ');
}

template <typename Record>
std::set<Record> selectionOf(const QStringList& fullNames)
{
    std::set<Record> records;
    for (const QString& fullName : fullNames)
    {
        Record record;
        record.setFullName(fullName.toUtf8().constData());
        record.setName(fullName.section('.', -1).toUtf8().constData());
        records.insert(record);
    }
    return records;
}

// The surroundings of a run of a command file, with its class-wide settings put back.
class DtContextFixture : public DtGeneratorFixture
{
public:
    DtContextFixture()
    {
        DtOMTWriter::setNamespaceName("");
        DtOMTWriter::setIncludeName("");
        DtOMTWriter::setPrefixName("");
    }
    // The tree of a model text, by the reader of its format.
    std::unique_ptr<DtOMTTree> read(const QByteArray& model, const char* name = "model.xml") const
    {
        const QString path = scratch(name);
        writeTextFile(path, model);
        return read(path);
    }
    static std::unique_ptr<DtOMTTree> read(const QString& path)
    {
        // The tests' own classes and datatypes are enough.
        const DtRestored hasMim(DtSettings::instance().cpp.includesMim, false);
        bool isGood = false;
        DtOMTEnvReader reader;
        std::unique_ptr<DtOMTTree> tree(reader.readFile(DtFilename(path.toUtf8().constData()), isGood));
        return isGood ? std::move(tree) : nullptr;
    }
    void writeData(const QString& name, const QByteArray& text) const { writeTextFile(scratch("data/" + name), text); }
};

// A module of the 2010 form with this content.
inline QByteArray evolvedModel(const QByteArray& content)
{
    return "<?xml version=\"1.0\"?>\n<objectModel xmlns=\"http://standards.ieee.org/IEEE1516-2010\">"
           "<modelIdentification><name>Small</name></modelIdentification>" +
           content + "</objectModel>\n";
}

// A writer for everything that the tree has, its root classes left out.
inline void selectAll(DtOMTWriter& writer, DtOMTTree& tree)
{
    QStringList objects;
    for (auto at = tree.getObjectClassNodeBegin(); at != tree.getObjectClassNodeEnd(); ++at)
        objects += toQt((*at)->getFullName());
    QStringList interactions;
    for (auto at = tree.getInteractionClassNodeBegin(); at != tree.getInteractionClassNodeEnd(); ++at)
        interactions += toQt((*at)->getFullName());
    writer.setOmtTree(&tree);
    writer.setHlaVersion(tree.hlaVersion());
    writer.setObjectsToGenerate(selectionOf<DtOmtObject>(objects));
    writer.setInteractionsToGenerate(selectionOf<DtOmtInteraction>(interactions));
}

#endif
