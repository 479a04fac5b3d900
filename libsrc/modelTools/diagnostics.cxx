#include "modelTools/diagnostics.h"

#include "foundation/textEnds.h"

#include <nlohmann/json.hpp>

#include <algorithm>

namespace
{
const char* colorOf(DtSeverity severity)
{
    switch (severity)
    {
    case DtSeverity::Note:
        return "\033[36m";
    case DtSeverity::Warning:
        return "\033[35m";
    case DtSeverity::Error:
        break;
    }
    return "\033[31m";
}

// "file:line:column", as much of it as is known; "qxgen" stands for the file where no file is at fault.
std::string textPlace(const DtPlace& place)
{
    std::string text = place.file.empty() ? "qxgen" : place.file;
    if (place.line > 0)
        text += ":" + std::to_string(place.line);
    if (place.line > 0 && place.column > 0)
        text += ":" + std::to_string(place.column);
    return text;
}

std::string msvsPlace(const DtPlace& place)
{
    std::string text = place.file.empty() ? "qxgen" : place.file;
    if (place.line > 0)
        text += "(" + std::to_string(place.line) + (place.column > 0 ? "," + std::to_string(place.column) : "") + ")";
    return text;
}

std::string formattedText(const DtDiagnostic& diagnostic, bool isColored)
{
    const char* const bold = isColored ? "\033[1m" : "";
    const char* const color = isColored ? colorOf(diagnostic.severity) : "";
    const char* const plain = isColored ? "\033[0m" : "";
    const std::string rule = diagnostic.rule.empty() ? "" : " [" + diagnostic.rule + "]";
    return bold + textPlace(diagnostic.place) + ": " + plain + color + DtSeverityName(diagnostic.severity) + ": " +
           plain + diagnostic.text + rule + "\n";
}

std::string formattedMsvs(const DtDiagnostic& diagnostic)
{
    const std::string rule = diagnostic.rule.empty() ? "" : " " + diagnostic.rule;
    return msvsPlace(diagnostic.place) + ": " + DtSeverityName(diagnostic.severity) + rule + ": " + diagnostic.text +
           "\n";
}

std::string formattedJson(const DtDiagnostic& diagnostic)
{
    nlohmann::ordered_json object;
    object["severity"] = DtSeverityName(diagnostic.severity);
    if (!diagnostic.rule.empty())
        object["rule"] = diagnostic.rule;
    if (!diagnostic.place.file.empty())
        object["file"] = diagnostic.place.file;
    if (diagnostic.place.line > 0)
        object["line"] = diagnostic.place.line;
    if (diagnostic.place.line > 0 && diagnostic.place.column > 0)
        object["column"] = diagnostic.place.column;
    if (diagnostic.subject.kind != DtSubject::None)
        object["subject"] = diagnostic.subject.name.stdString();
    object["text"] = diagnostic.text;
    return object.dump(-1, ' ', false, nlohmann::json::error_handler_t::replace) + "\n";
}

std::string withoutPrefix(std::string text, const std::string& prefix)
{
    if (DtStartsWith(text, prefix))
        text.erase(0, prefix.size());
    return text;
}
} // namespace

const char* DtSeverityName(DtSeverity severity)
{
    switch (severity)
    {
    case DtSeverity::Note:
        return "note";
    case DtSeverity::Warning:
        return "warning";
    case DtSeverity::Error:
        break;
    }
    return "error";
}

std::string DtFormatted(const DtDiagnostic& diagnostic, DtDiagnosticFormat format, bool isColored)
{
    switch (format)
    {
    case DtDiagnosticFormat::Json:
        return formattedJson(diagnostic);
    case DtDiagnosticFormat::Msvs:
        return formattedMsvs(diagnostic);
    case DtDiagnosticFormat::Text:
        break;
    }
    return formattedText(diagnostic, isColored);
}

std::string DtFormattedNotice(DtSeverity severity, const std::string& text, DtDiagnosticFormat format,
                              const std::string& file)
{
    if (format != DtDiagnosticFormat::Json)
        return std::string("qxgen: ") + (severity == DtSeverity::Error ? "error: " : "") +
               (file.empty() ? "" : file + ": ") + text + "\n";
    DtDiagnostic notice;
    notice.severity = severity;
    notice.place.file = file;
    notice.text = text;
    return formattedJson(notice);
}

std::size_t DtDiagnostics::count(DtSeverity severity) const
{
    const auto isOfSeverity = [severity](const DtDiagnostic& each) { return each.severity == severity; };
    return static_cast<std::size_t>(std::count_if(myDiagnostics.begin(), myDiagnostics.end(), isOfSeverity));
}

bool DtDiagnostics::makeErrors(const DtWarningRule& rule)
{
    bool hasFound = false;
    for (DtDiagnostic& diagnostic : myDiagnostics)
    {
        if (diagnostic.rule != rule.id)
            continue;
        diagnostic.severity = DtSeverity::Error;
        hasFound = true;
    }
    return hasFound;
}

void DtDiagnostics::findPlaces(const std::function<DtPlace(const DtSubject&)>& placeOf)
{
    for (DtDiagnostic& diagnostic : myDiagnostics)
    {
        if (diagnostic.place.line != 0 || diagnostic.subject.kind == DtSubject::None)
            continue;
        const DtPlace place = placeOf(diagnostic.subject);
        if (!place.file.empty())
            diagnostic.place = place;
    }
}

void DtDiagnostics::take(const DtWarning& warning)
{
    std::string text = withoutPrefix(warning.text.stdString(), "Warning: ");
    text.erase(text.find_last_not_of("\n ") + 1);
    if (warning.subject.line != 0) // which the text has too, for those who see nothing else
        text =
            withoutPrefix(text, warning.subject.name.stdString() + ":" + std::to_string(warning.subject.line) + ": ");
    DtDiagnostic diagnostic;
    diagnostic.text = text;
    diagnostic.rule = warning.rule.id;
    diagnostic.subject = warning.subject;
    myDiagnostics.push_back(std::move(diagnostic));
}
