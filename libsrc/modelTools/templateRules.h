#ifndef MODEL_TOOLS_TEMPLATE_RULES_H
#define MODEL_TOOLS_TEMPLATE_RULES_H

#include <map>
#include <set>
#include <string>
#include <vector>

// What one writer makes of a template: its tokens by the place where they have a value, and its loops. Tokens stand
// with their brackets.
struct DtTemplateRules
{
    using Names = std::set<std::string>;

    Names freeTokens;                           // everywhere
    std::map<std::string, Names> loops;         // loop to the tokens that it alone sets
    std::map<std::string, std::string> parents; // loop to the one that it must stand in
    Names verbs;                                // conditions without operands, beside those that every writer has
    bool hasCountedLoops = true;

    bool knows(const std::string& token) const;
    Names allTokens() const;
    Names loopNames() const;
};

// The templates that the program itself opens, by their names below the directory of all templates, without those that
// they include.
std::vector<std::string> DtWrittenTemplates();

// The rules of the writer that opens one of them. It is asked itself, in a run scope of its own.
DtTemplateRules DtRulesOfTemplate(const std::string& name);

// The rules of templates that command files open. Where a command starts from a map of the context, `context` has the
// names of the command, divided by bars, and what these lists hold is known from the start.
DtTemplateRules DtContextRules(const std::string& context = std::string());

#endif
