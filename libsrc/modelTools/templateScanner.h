#ifndef MODEL_TOOLS_TEMPLATE_SCANNER_H
#define MODEL_TOOLS_TEMPLATE_SCANNER_H

#include "modelTools/diagnostics.h"
#include "modelTools/templateRules.h"

#include <functional>
#include <set>
#include <string>
#include <utility>
#include <vector>

// Reads a template strictly and says what the writer would pass over in silence.
//
// Stricter than the language where the language only surprises: every block has to be closed in the order of opening,
// every operand has to be there, a file block has to name a file, and a bar has to stand where it joins lines.
//
// A file that is included is read with the blocks that are open around it, so what is right in one place can be wrong
// in another. It is read again only for other loops around it.
class DtTemplateScanner
{
public:
    // The file that a path of a file block leads to, empty when there is none.
    using Finder = std::function<std::string(const std::string& path)>;

    DtTemplateScanner(const DtTemplateRules& rules, Finder finder) : myRules(rules), myFinder(std::move(finder)) {}

    // The faults of this text and of the files that it includes, which were found so far.
    const std::vector<DtDiagnostic>& scan(const std::string& file, const std::string& text);
    // The paths of file blocks that lead to a file.
    const std::set<std::string>& includedPaths() const { return myIncluded; }

private:
    struct Source
    {
        std::string file;
        std::string text;
        std::size_t at = 0;
    };
    struct Block
    {
        std::string kind; // "<#" or "<?"
        std::string loop; // empty for counted loops and conditions
        std::size_t at = 0;
    };

    void faultAt(std::size_t at, const std::string& text, const DtWarningRule& rule,
                 DtSeverity severity = DtSeverity::Error);
    void fault(const std::string& text, const DtWarningRule& rule, DtSeverity severity = DtSeverity::Error);
    bool isNext(const char* text) const;
    void step();
    void takeToken();
    void checkToken(const std::string& token);
    void takeBlock(const std::string& kind);
    void closeBlock(const std::string& kind);
    std::size_t headerEnd(char delimiter) const;
    void openBlock(const Block& block);
    void takeFile(const Block& block, char delimiter);
    void include(const Block& block, const std::string& path, const std::string& file);
    std::string checkLoop(const std::string& header);
    bool isInside(const std::string& loop) const;
    void checkCondition(const std::string& header);
    void checkTokensOf(const std::string& header);
    std::string openLoops() const;

    const DtTemplateRules& myRules;
    const Finder myFinder;
    Source mySource;
    std::vector<Block> myOpen;
    std::vector<std::string> myOpenFiles;
    std::size_t myOuter = 0; // blocks of the files that include this one
    std::vector<DtDiagnostic> myFaults;
    std::set<std::string> myIncluded;
    std::set<std::pair<std::string, std::string>> mySeen; // files with the loops around them
};

#endif
