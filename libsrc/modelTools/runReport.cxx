#include "modelTools/runReport.h"

#include "fileGenerator/omtProject.h"
#include "foundation/fileUtils.h"
#include "foundation/warningRules.h"
#include "modelTools/outputManifest.h"
#include "modelTools/programVersion.h"

#include <QtCore/QString>

#include <nlohmann/json.hpp>

#include <algorithm>
#include <cctype>
#include <filesystem>
#include <map>

namespace
{
using Json = nlohmann::ordered_json;

std::string hashOf(const std::string& path)
{
    std::string content;
    if (!DtReadFile(DtString(path), content))
        return std::string();
    return DtOutputManifest::entryOf(content).sha256;
}

// The name that the project gives a class; the part of its full name behind the last dot when it is not renamed.
template <typename Record>
void addIfRenamed(const Record& record, std::vector<DtRunReport::DtRenamed>& renamed)
{
    const std::string fullName = record.fullName().stdString();
    const std::string shortName = fullName.substr(fullName.rfind('.') + 1);
    const std::string name = record.rename().isEmpty() ? record.name().stdString() : record.rename().stdString();
    if (name != shortName)
        renamed.push_back({fullName, name});
}

std::map<std::string, std::vector<const DtDiagnostic*>> byRule(const std::vector<DtDiagnostic>& diagnostics)
{
    std::map<std::string, std::vector<const DtDiagnostic*>> groups;
    for (const DtDiagnostic& diagnostic : diagnostics)
        groups[diagnostic.rule].push_back(&diagnostic);
    return groups;
}

std::size_t countOf(const std::vector<DtDiagnostic>& diagnostics, DtSeverity severity)
{
    return static_cast<std::size_t>(std::count_if(diagnostics.begin(), diagnostics.end(),
                                                  [severity](const DtDiagnostic& each)
                                                  { return each.severity == severity; }));
}

// The datatypes whose values are refused, by their names in the model.
std::set<std::string> notEncodable(const std::vector<DtDiagnostic>& diagnostics)
{
    std::set<std::string> names;
    for (const DtDiagnostic& diagnostic : diagnostics)
        if (diagnostic.rule == DtRules::noEncoding.id)
            names.insert(diagnostic.subject.name.stdString());
    return names;
}

Json jsonOf(const DtDiagnostic& diagnostic)
{
    return Json::parse(DtFormatted(diagnostic, DtDiagnosticFormat::Json));
}

std::string escaped(const std::string& text)
{
    return QString::fromUtf8(text.c_str()).toHtmlEscaped().toStdString();
}

std::string row(const std::string& head, const std::string& value)
{
    return "<tr><th>" + escaped(head) + "</th><td>" + escaped(value) + "</td></tr>\n";
}

std::string number(std::size_t value)
{
    return std::to_string(value);
}

std::string list(const char* title, const std::vector<std::string>& items)
{
    if (items.empty())
        return std::string();
    std::string text = "<details><summary>" + number(items.size()) + " " + title + "</summary>\n<ul>\n";
    for (const std::string& item : items)
        text += "<li>" + escaped(item) + "</li>\n";
    return text + "</ul></details>\n";
}

std::string placeText(const DtPlace& place)
{
    std::string text = place.file;
    if (place.line > 0)
        text += ":" + std::to_string(place.line);
    if (place.line > 0 && place.column > 0)
        text += ":" + std::to_string(place.column);
    return text;
}

std::string diagnosticsTable(const std::vector<DtDiagnostic>& diagnostics)
{
    if (diagnostics.empty())
        return "<p>Nothing was found.</p>\n";
    std::string text;
    for (const auto& [rule, group] : byRule(diagnostics))
    {
        text += "<h3>" + escaped(rule) + " (" + number(group.size()) + ")</h3>\n<table>\n";
        for (const DtDiagnostic* diagnostic : group)
            text += row(placeText(diagnostic->place),
                        std::string(DtSeverityName(diagnostic->severity)) + ": " + diagnostic->text);
        text += "</table>\n";
    }
    return text;
}

constexpr const char* theStyle = "body{font:15px/1.5 sans-serif;max-width:60em;margin:2em auto;padding:0 1em}"
                                 "table{border-collapse:collapse}th,td{text-align:left;vertical-align:top;"
                                 "padding:.2em .8em;border-bottom:1px solid #8884}th{font-weight:600}"
                                 "@media(prefers-color-scheme:dark){body{background:#1b1d21;color:#dde1e7}}";
} // namespace

void DtRunReport::setInputs(const std::set<std::string>& files)
{
    for (const std::string& file : files)
        inputs.emplace_back(file, hashOf(file));
}

void DtRunReport::setProject(const DtOmtProject& project)
{
    objectClasses = project.getObjects().size();
    interactionClasses = project.getInteractions().size();
    for (const DtOmtObject& object : project.getObjects())
        addIfRenamed(object, renamed);
    for (const DtOmtInteraction& interaction : project.getInteractions())
        addIfRenamed(interaction, renamed);
}

void DtRunReport::setFiles(const std::vector<std::string>& files, const std::vector<DtOutputChange>& changes)
{
    for (const DtOutputChange& change : changes)
    {
        if (change.kind != DtChangeKind::Removed)
            written.push_back(change.path);
        else
            (change.changesFolder() ? removed : kept).push_back(change.path);
    }
    const std::set<std::string> changed(written.begin(), written.end());
    std::copy_if(files.begin(), files.end(), std::back_inserter(unchanged),
                 [&changed](const std::string& file) { return changed.count(file) == 0; });
}

std::string DtRunReport::json() const
{
    Json report;
    report["program"] = "qxgen";
    report["version"] = DtProgramVersion();
    report["output"] = outputDirectory;
    report["committed"] = isCommitted;
    report["inputs"] = Json::array();
    for (const auto& [path, hash] : inputs)
        report["inputs"].push_back({
            {"path",   path},
            {"sha256", hash}
        });
    report["counts"] = {
        {"objectClasses",      objectClasses     },
        {"interactionClasses", interactionClasses},
        {"written",            written.size()    },
        {"removed",            removed.size()    },
        {"kept",               kept.size()       },
        {"unchanged",          unchanged.size()  },
        {"listed",             listed.size()     },
        {"diagnostics",        diagnostics.size()}
    };
    report["files"] = {
        {"written",   written  },
        {"removed",   removed  },
        {"kept",      kept     },
        {"unchanged", unchanged},
        {"listed",    listed   }
    };
    report["diagnostics"] = Json::object();
    for (const auto& [rule, group] : byRule(diagnostics))
        for (const DtDiagnostic* diagnostic : group)
            report["diagnostics"][rule].push_back(jsonOf(*diagnostic));
    report["notEncodable"] = notEncodable(diagnostics);
    report["renamed"] = Json::array();
    for (const DtRenamed& each : renamed)
        report["renamed"].push_back({
            {"class", each.fullName},
            {"name",  each.name    }
        });
    report["seconds"] = Json::object();
    for (const auto& [step, seconds] : times)
        report["seconds"][step] = seconds;
    return report.dump(2, ' ', false, Json::error_handler_t::replace) + "\n";
}

std::string DtRunReport::html() const
{
    std::string text =
        "<!DOCTYPE html>\n<html lang=\"en\"><head><meta charset=\"utf-8\"><title>Generation report</title>"
        "<style>";
    text += std::string(theStyle) + "</style></head>\n<body>\n<h1>Generation report</h1>\n<table>\n";
    text += row("Program", std::string("qxgen ") + DtProgramVersion());
    if (!outputDirectory.empty())
        text += row("Output", outputDirectory + (isCommitted ? "" : ", left as it was"));
    text += row("Object classes", number(objectClasses)) + row("Interaction classes", number(interactionClasses));
    text += row("Errors", number(countOf(diagnostics, DtSeverity::Error))) +
            row("Warnings", number(countOf(diagnostics, DtSeverity::Warning)));
    for (const auto& [step, seconds] : times)
        text += row("Seconds, " + step, QString::number(seconds, 'f', 3).toStdString());
    text += "</table>\n<h2>Files</h2>\n" + list("written", written) + list("removed", removed) +
            list("edited by hand and kept", kept) + list("unchanged", unchanged) + list("listed", listed);
    text += "<h2>Errors and warnings</h2>\n" + diagnosticsTable(diagnostics);
    const std::set<std::string> refused = notEncodable(diagnostics);
    text += list("datatypes without encoding", {refused.begin(), refused.end()});
    if (!renamed.empty())
        text += "<h2>Renamed classes</h2>\n<table>\n";
    for (const DtRenamed& each : renamed)
        text += row(each.fullName, each.name);
    text += std::string(renamed.empty() ? "" : "</table>\n") + "<h2>Inputs</h2>\n<table>\n";
    for (const auto& [path, hash] : inputs)
        text += row(path, hash);
    return text + "</table>\n</body></html>\n";
}

std::string DtRunReport::textFor(const std::string& file) const
{
    std::string kind = std::filesystem::path(file).extension().string();
    std::transform(kind.begin(), kind.end(), kind.begin(),
                   [](unsigned char letter) { return static_cast<char>(std::tolower(letter)); });
    return kind == ".html" || kind == ".htm" || kind == ".xhtml" ? html() : json();
}
