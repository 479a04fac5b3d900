#include "modelTools/templateScanner.h"

#include "modelTools/nearNames.h"
#include "modelTools/toolRules.h"

#include <algorithm>
#include <cctype>
#include <fstream>
#include <iterator>

namespace
{
constexpr std::size_t nowhere = std::string::npos;

// What a verb compares, by its number of operands.
const std::map<std::string, std::size_t> theOperandCounts = {
    {"exists",      1},
    {"notexists",   1},
    {"greaterthan", 2},
    {"lessthan",    2},
    {"equals",      2},
    {"notequals",   2}
};

// "0" when they do not hold, which exists like anything else.
const std::set<std::string> theNeverMissing = {"<!mapRtiObjectIdToGlobalId!>", "<!DatatypeFile!>"};

bool isTokenForm(const std::string& token)
{
    const auto isNameLetter = [](char letter) { return std::isalnum(static_cast<unsigned char>(letter)) != 0; };
    return token.size() > 4 && std::all_of(token.begin() + 2, token.end() - 2, isNameLetter);
}

bool isNumber(const std::string& text)
{
    return !text.empty() && text.find_first_not_of("0123456789") == nowhere;
}

std::vector<std::string> wordsOf(const std::string& text)
{
    std::vector<std::string> words;
    for (std::size_t start = text.find_first_not_of(' '); start != nowhere;)
    {
        const std::size_t end = std::min(text.find(' ', start), text.size());
        words.push_back(text.substr(start, end - start));
        start = text.find_first_not_of(' ', end);
    }
    return words;
}

// Behind a message that ends without a point.
std::string hint(const std::string& name, const DtTemplateRules::Names& names)
{
    const std::string text = DtNearNamesHint(name, {names.begin(), names.end()});
    return text.empty() ? text : "." + text;
}

std::string textOf(const std::string& file)
{
    std::ifstream in(file, std::ios::binary);
    return std::string(std::istreambuf_iterator<char>(in), {});
}
} // namespace

const std::vector<DtDiagnostic>& DtTemplateScanner::scan(const std::string& file, const std::string& text)
{
    const std::size_t outer = std::exchange(myOuter, myOpen.size());
    const Source outerSource = std::exchange(mySource, Source{file, text, 0});
    myOpenFiles.push_back(file);
    if (isNext("|"))
        fault("a bar at the very start is plain text", DtToolRules::templateBar, DtSeverity::Warning);
    while (mySource.at < mySource.text.size())
        step();
    for (; myOpen.size() > myOuter; myOpen.pop_back())
        faultAt(myOpen.back().at, "the block is not closed: " + myOpen.back().kind + myOpen.back().loop,
                DtRules::templateBlock);
    myOpenFiles.pop_back();
    mySource = outerSource;
    myOuter = outer;
    return myFaults;
}

void DtTemplateScanner::faultAt(std::size_t at, const std::string& text, const DtWarningRule& rule, DtSeverity severity)
{
    const std::string& source = mySource.text;
    const std::size_t lineFeed = at > 0 ? source.rfind('\n', at - 1) : nowhere;
    DtDiagnostic diagnostic;
    diagnostic.severity = severity;
    diagnostic.place.file = mySource.file;
    diagnostic.place.line = static_cast<unsigned int>(
        1 + std::count(source.begin(), source.begin() + static_cast<std::ptrdiff_t>(at), '\n'));
    diagnostic.place.column = static_cast<unsigned int>(lineFeed == nowhere ? at + 1 : at - lineFeed);
    diagnostic.text = text;
    diagnostic.rule = rule.id;
    myFaults.push_back(diagnostic);
}

void DtTemplateScanner::fault(const std::string& text, const DtWarningRule& rule, DtSeverity severity)
{
    faultAt(mySource.at, text, rule, severity);
}

bool DtTemplateScanner::isNext(const char* text) const
{
    return mySource.text.compare(mySource.at, std::char_traits<char>::length(text), text) == 0;
}

void DtTemplateScanner::step()
{
    if (isNext("<!"))
        takeToken();
    else if (isNext("<#") || isNext("<?"))
        takeBlock(mySource.text.substr(mySource.at, 2));
    else
    {
        if (isNext("#>") || isNext("?>"))
            fault("the end of a file block stands alone", DtRules::templateBlock);
        ++mySource.at;
    }
}

// A token that is misspelt in itself is an error. "<!" alone is markup of the output, as a rule, and stays in it.
void DtTemplateScanner::takeToken()
{
    const std::size_t end = mySource.text.find("!>", mySource.at);
    const std::string token = end == nowhere ? "" : mySource.text.substr(mySource.at, end + 2 - mySource.at);
    if (!isTokenForm(token))
    {
        const bool isMarkup = token.find_first_of("<\n", 1) != nowhere || token.empty();
        fault("no token follows <!", DtToolRules::templateToken, isMarkup ? DtSeverity::Warning : DtSeverity::Error);
        mySource.at += 2;
        return;
    }
    checkToken(token);
    mySource.at = end + 2;
}

void DtTemplateScanner::checkToken(const std::string& token)
{
    if (!myRules.knows(token))
        return fault("the writer does not know " + token + hint(token, myRules.allTokens()),
                     DtToolRules::templateToken);
    bool isSet = myRules.freeTokens.count(token) > 0;
    for (const Block& block : myOpen)
        isSet = isSet || (!block.loop.empty() && myRules.loops.at(block.loop).count(token) > 0);
    if (!isSet)
        fault(token + " has no value outside of its loop", DtToolRules::templateTokenPlace);
}

void DtTemplateScanner::takeBlock(const std::string& kind)
{
    if (isNext((kind + ">").c_str()))
        return closeBlock(kind);
    const std::size_t end = headerEnd(kind[1]);
    if (end == nowhere)
    {
        fault("the header has no end", DtRules::templateBlock);
        mySource.at = mySource.text.size();
        return;
    }
    const std::string header = mySource.text.substr(mySource.at + 2, end - mySource.at - 2);
    Block block{kind, "", mySource.at};
    if (kind == "<#")
        block.loop = checkLoop(header);
    else
        checkCondition(header);
    mySource.at = end + 1;
    if (mySource.text[end] == '>')
        openBlock(block);
    else
        takeFile(block, kind[1]);
}

void DtTemplateScanner::closeBlock(const std::string& kind)
{
    if (myOpen.size() == myOuter || myOpen.back().kind != kind)
        fault(kind + "> closes no block", DtRules::templateBlock);
    else
        myOpen.pop_back();
    mySource.at += 3;
}

// As the language finds it: the delimiter, or a ">" that pairs with no "<" ahead of it.
std::size_t DtTemplateScanner::headerEnd(char delimiter) const
{
    int depth = 0;
    for (std::size_t at = mySource.at + 2; at < mySource.text.size(); ++at)
    {
        const char character = mySource.text[at];
        if (character == delimiter || (character == '>' && depth == 0))
            return at;
        depth += character == '<' ? 1 : character == '>' ? -1 : 0;
    }
    return nowhere;
}

void DtTemplateScanner::openBlock(const Block& block)
{
    if (isNext("|"))
        fault("a bar behind a header is plain text", DtToolRules::templateBar, DtSeverity::Warning);
    myOpen.push_back(block);
}

void DtTemplateScanner::takeFile(const Block& block, char delimiter)
{
    const std::size_t end = mySource.text.find(delimiter, mySource.at);
    if (end == nowhere || mySource.text.compare(end + 1, 1, ">") != 0)
        return fault("the path of a file block has no end", DtRules::templateBlock);
    const std::string path = mySource.text.substr(mySource.at, end - mySource.at);
    const std::string file = myFinder(path);
    if (file.empty())
        fault("no such file: " + path, DtToolRules::templateFile);
    else if (std::find(myOpenFiles.begin(), myOpenFiles.end(), file) != myOpenFiles.end())
        fault("a file that includes itself: " + path, DtToolRules::templateCycle);
    else
        include(block, path, file);
    mySource.at = end + 2;
}

void DtTemplateScanner::include(const Block& block, const std::string& path, const std::string& file)
{
    myIncluded.insert(path);
    myOpen.push_back(block);
    if (mySeen.emplace(file, openLoops()).second)
        scan(file, textOf(file));
    myOpen.pop_back();
}

// The name of the loop; empty for one that counts.
std::string DtTemplateScanner::checkLoop(const std::string& header)
{
    if (myRules.hasCountedLoops && isNumber(header))
        return std::string();
    if (myRules.loops.count(header) == 0)
    {
        fault("the writer does not know the loop " + header + hint(header, myRules.loopNames()),
              DtToolRules::templateLoop);
        return std::string();
    }
    if (isInside(header))
        fault("the loop stands inside itself: " + header, DtToolRules::templateLoop);
    const auto parent = myRules.parents.find(header);
    if (parent != myRules.parents.end() && !isInside(parent->second))
        fault(header + " stands outside of " + parent->second, DtToolRules::templateLoop);
    return header;
}

bool DtTemplateScanner::isInside(const std::string& loop) const
{
    return std::any_of(myOpen.begin(), myOpen.end(), [&loop](const Block& block) { return block.loop == loop; });
}

void DtTemplateScanner::checkCondition(const std::string& header)
{
    if (myRules.verbs.count(header) > 0)
        return;
    const std::vector<std::string> words = wordsOf(header);
    const auto verb = theOperandCounts.find(header.substr(0, header.find(' ')));
    if (verb == theOperandCounts.end())
        fault("the writer does not know the verb in: " + header, DtToolRules::templateCondition);
    else if (words.size() != 1 + verb->second)
        fault("the number of operands is wrong in: " + header, DtToolRules::templateCondition);
    else if (verb->second == 1 && theNeverMissing.count(words[1]) > 0)
        fault(words[1] + " is never missing", DtToolRules::templateCondition, DtSeverity::Warning);
    checkTokensOf(header);
}

void DtTemplateScanner::checkTokensOf(const std::string& header)
{
    for (std::size_t at = header.find("<!"); at != nowhere; at = header.find("<!", at))
    {
        const std::size_t end = header.find("!>", at + 2);
        if (end == nowhere)
            return fault("no token follows <! in: " + header, DtToolRules::templateToken);
        checkToken(header.substr(at, end + 2 - at));
        at = end + 2;
    }
}

std::string DtTemplateScanner::openLoops() const
{
    std::set<std::string> loops;
    for (const Block& block : myOpen)
        loops.insert(block.loop);
    std::string text;
    for (const std::string& loop : loops)
        text += loop + ' ';
    return text;
}
