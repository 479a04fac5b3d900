#ifndef MODEL_TOOLS_DIAGNOSTICS_H
#define MODEL_TOOLS_DIAGNOSTICS_H

#include "foundation/warning.h"

#include <functional>
#include <iosfwd>
#include <string>
#include <vector>

// Where something stands in a file. Lines and columns count from 1; 0 stands for not known.
struct DtPlace
{
    std::string file;
    unsigned int line = 0;
    unsigned int column = 0;
};

enum class DtSeverity
{
    Note,
    Warning,
    Error
};
// "note", "warning", "error".
const char* DtSeverityName(DtSeverity severity);

struct DtDiagnostic
{
    DtSeverity severity = DtSeverity::Warning;
    DtPlace place;    // of the subject, as far as known
    std::string text; // one line or more, without a line feed at the end
    std::string rule; // id of the rule; may be empty
    DtSubject subject;
};

enum class DtDiagnosticFormat
{
    Text, // file:line:column: warning: text [rule]
    Msvs, // file(line,column): warning rule: text
    Json  // one object a line
};

// One diagnostic in that format, a line feed at its end. Coloured text only where the format is Text.
std::string DtFormatted(const DtDiagnostic& diagnostic, DtDiagnosticFormat format, bool isColored = false);

// What is told of the run as a whole, with its file if there is one: "qxgen: text", or "qxgen: error: file: text". In
// JSON it is an object like a diagnostic without a rule.
std::string DtFormattedNotice(DtSeverity severity, const std::string& text, DtDiagnosticFormat format,
                              const std::string& file = std::string());

// Takes the warnings of the libraries for as long as it lives and keeps them as diagnostics. The stated text is taken
// over without "Warning: " in front, which the severity says.
class DtDiagnostics : private DtWarningTaker
{
public:
    const std::vector<DtDiagnostic>& all() const { return myDiagnostics; }
    std::size_t count(DtSeverity severity) const;
    void add(DtDiagnostic diagnostic) { myDiagnostics.push_back(std::move(diagnostic)); }
    void clear() { myDiagnostics.clear(); }
    // Makes errors of all diagnostics of a rule; false when there are none.
    bool makeErrors(const DtWarningRule& rule);
    // Gives each diagnostic without a line the place of its subject. Where that is not known, the place stays.
    void findPlaces(const std::function<DtPlace(const DtSubject&)>& placeOf);

private:
    void take(const DtWarning& warning) override;

    std::vector<DtDiagnostic> myDiagnostics;
};

#endif
