#include "modelTools/outputJournal.h"

#include "modelTools/outputPath.h"
#include "modelTools/stageFolder.h"

#include <nlohmann/json.hpp>
#include <stdexcept>

namespace
{
constexpr int theFormat = 1;

DtChangeKind kindOf(const std::string& letter)
{
    for (const DtChangeKind kind : {DtChangeKind::Added, DtChangeKind::Modified, DtChangeKind::Removed})
        if (letter == std::string(1, static_cast<char>(kind)))
            return kind;
    throw std::runtime_error(nlohmann::json(letter).dump() + " is no kind of change");
}

DtOutputChange changeOf(const nlohmann::json& row)
{
    DtOutputChange change;
    change.kind = kindOf(row.at("change").get<std::string>());
    change.path = DtDecodedPath(row.at("path").get<std::string>());
    change.oldHash = row.at("old").get<std::string>();
    if (!DtIsInnerPath(change.path) || DtIsReservedPath(change.path))
        throw std::runtime_error("the path " + row.at("path").dump() + " cannot be one of an output file");
    return change;
}
} // namespace

std::string DtOutputJournal::text() const
{
    nlohmann::ordered_json root;
    root["format"] = theFormat;
    root["stage"] = stage;
    nlohmann::ordered_json& rows = root["changes"] = nlohmann::ordered_json::array();
    for (const DtOutputChange& change : changes)
        rows.push_back({
            {"change", std::string(1, change.letter())},
            {"path",        DtEncodedPath(change.path)               },
            {"old",        change.oldHash }
        });
    return root.dump(1) + "\n";
}

DtOutputJournal DtOutputJournal::parsed(const std::string& text)
{
    const nlohmann::json root = nlohmann::json::parse(text);
    if (root.at("format").get<int>() != theFormat)
        throw std::runtime_error("its format is not known to this version of the program");
    DtOutputJournal journal;
    journal.stage = root.at("stage").get<std::string>();
    if (!DtStageFolder::isName(journal.stage))
        throw std::runtime_error(root.at("stage").dump() + " is no name of a stage");
    for (const nlohmann::json& row : root.at("changes"))
        journal.changes.push_back(changeOf(row));
    return journal;
}
