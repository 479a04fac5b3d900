#include "codeGenApp/namedScriptWriter.h"

#include "fileGenerator/mapSubstitute.h"
#include "fileGenerator/namedUuid.h"
#include "fileGenerator/settings.h"

namespace
{
bool areNamed()
{
    return DtSettings::instance().files.makesNamedUuids;
}

// Two identifiers for a map and for each map in its lists, down through attributes and dimensions.
void addNamedUuids(DtMapSubstitute& map, const DtString& path)
{
    for (const char* key : {"UUID1", "UUID2"})
        map.put(key, DtNamedUuid(path + "#" + key));
    for (const auto& [listKey, value] : map)
    {
        const DtMapSubstitute* const list = DtMapSubstitute::mapOf(value);
        if (list == nullptr)
            continue;
        for (const auto& [key, item] : *list)
        {
            if (DtMapSubstitute* const inner = DtMapSubstitute::mapOf(item))
                addNamedUuids(*inner, path + "/" + listKey + "/" + key);
        }
    }
}
} // namespace

DtString DtNamedScriptWriter::makeUUID()
{
    return areNamed() ? DtNamedUuid(baseName() + "#product" + DtString(myCount++)) : DtOMTWriter::makeUUID();
}

void DtNamedScriptWriter::addUUIDs(DtMapSubstitute* map)
{
    if (areNamed())
        addNamedUuids(*map, baseName());
    else
        DtOMTWriter::addUUIDs(map);
}
