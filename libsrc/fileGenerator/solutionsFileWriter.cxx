#include "fileGenerator/solutionsFileWriter.h"

#include "fileGenerator/cCompatibleName.h"
#include "fileGenerator/settings.h"
#include "foundation/filename.h"
#include "foundation/perRun.h"

namespace
{
DtCCompatibleNames& names()
{
    return DtPerRun<DtCCompatibleNames, class DtSolutionsFileWriter>();
}

DtString projectBase()
{
    DtFilename base(DtSettings::instance().cpp.baseName);
    base.stripPath();
    base.stripExtension();
    return base;
}

DtString identifier(const DtOmtNode& record)
{
    return names().MakeCCompatibleString(record.name());
}
} // namespace

DtSolutionsFileWriter::DtSolutionsFileWriter(const DtString& fileName, const DtString& templateName)
    : DtFileWriter(fileName, DtString("../data/templates/") + templateName),
      myProjectName(projectBase()),
      myCurrentObject(objectTable()),
      myCurrentInteraction(interactionTable()),
      myProjectTokens(projectTable(), this)
{
    myTokenChain.putAhead({&myCurrentObject, &myCurrentInteraction, &myProjectTokens});
}

const DtTokenTable<DtOmtObject>& DtSolutionsFileWriter::objectTable()
{
    static const DtTokenRow<DtOmtObject> theRows[] = {
        {"<!Object!>", [](const DtOmtObject& object) { return identifier(object); }},
        {"<!UUID1!>",  [](const DtOmtObject& object) { return object.uuid(1); }    },
        {"<!UUID2!>",  [](const DtOmtObject& object) { return object.uuid(2); }    },
    };
    static const DtTokenTable<DtOmtObject> theTable(theRows);
    return theTable;
}

const DtTokenTable<DtOmtInteraction>& DtSolutionsFileWriter::interactionTable()
{
    static const DtTokenRow<DtOmtInteraction> theRows[] = {
        {"<!Interaction!>", [](const DtOmtInteraction& interaction) { return identifier(interaction); }},
        {"<!UUID1!>",       [](const DtOmtInteraction& interaction) { return interaction.uuid(1); }    },
        {"<!UUID2!>",       [](const DtOmtInteraction& interaction) { return interaction.uuid(2); }    },
    };
    static const DtTokenTable<DtOmtInteraction> theTable(theRows);
    return theTable;
}

const DtTokenTable<DtSolutionsFileWriter>& DtSolutionsFileWriter::projectTable()
{
    static const DtTokenRow<DtSolutionsFileWriter> theRows[] = {
        {"<!ProjectName!>", [](const DtSolutionsFileWriter& writer) { return writer.myProjectName; }},
    };
    static const DtTokenTable<DtSolutionsFileWriter> theTable(theRows);
    return theTable;
}

void DtSolutionsFileWriter::writeMultipleTimes(const DtString& header, std::istream& body)
{
    if (header == "Objects")
        writeRecords(myObjects, myCurrentObject, body);
    else if (header == "Interactions")
        writeRecords(myInteractions, myCurrentInteraction, body);
    else
        DtFileWriter::writeMultipleTimes(header, body);
}

template <typename Record>
void DtSolutionsFileWriter::writeRecords(const std::set<Record>& records, DtTokenValues<Record>& current,
                                         std::istream& body)
{
    const std::streampos start = body.tellg();
    for (const Record& record : records)
    {
        if (record.fullName() == record.name())
            continue;
        current.setContext(&record);
        writeBodyFrom(body, start);
    }
    current.setContext(nullptr);
}

void DtSolutionsFileWriter::setObjects(const std::set<DtOmtObject>& objects)
{
    myObjects = objects;
}

void DtSolutionsFileWriter::setInteractions(const std::set<DtOmtInteraction>& interactions)
{
    myInteractions = interactions;
}

void DtSolutionsFileWriter::setProjectName(const DtString& name)
{
    myProjectName = name;
    myProjectTokens.clear();
}
