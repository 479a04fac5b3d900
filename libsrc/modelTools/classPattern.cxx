#include "modelTools/classPattern.h"

#include "fileGenerator/omtProject.h"
#include "modelTools/nearNames.h"
#include "modelTools/toolFailure.h"
#include "omtReader/interactionClassFedNode.h"
#include "omtReader/objectClassFedNode.h"
#include "omtReader/omtTree.h"

#include <algorithm>
#include <string_view>

namespace
{
// Bytes of the UTF-8 character that begins there; 1 for what is none.
std::size_t characterLength(std::string_view text, std::size_t at)
{
    std::size_t end = at + 1;
    while (end < text.size() && (static_cast<unsigned char>(text[end]) & 0xC0U) == 0x80U)
        ++end;
    return end - at;
}

// Goes back to the last star when the rest does not match: at most the product of both lengths.
bool matchesGlob(std::string_view pattern, std::string_view text)
{
    constexpr std::size_t nowhere = std::string_view::npos;
    std::size_t inPattern = 0;
    std::size_t inText = 0;
    std::size_t star = nowhere;
    std::size_t behindStar = 0;
    while (inText < text.size())
    {
        if (inPattern < pattern.size() && pattern[inPattern] == '*')
        {
            star = inPattern++;
            behindStar = inText;
        }
        else if (inPattern < pattern.size() && pattern[inPattern] == '?')
        {
            ++inPattern;
            inText += characterLength(text, inText);
        }
        else if (inPattern < pattern.size() && pattern[inPattern] == text[inText])
        {
            ++inPattern;
            ++inText;
        }
        else if (star == nowhere)
            return false;
        else
        {
            inPattern = star + 1;
            inText = ++behindStar;
        }
    }
    return pattern.find_first_not_of('*', inPattern) == nowhere;
}

void addNames(const std::list<DtObjectClassFedNode*>& classes, std::vector<DtString>& names)
{
    for (const DtObjectClassFedNode* each : classes)
    {
        names.push_back(each->getFullName());
        addNames(each->getChildObjects(), names);
    }
}

void addNames(const std::list<DtInteractionClassFedNode*>& classes, std::vector<DtString>& names)
{
    for (const DtInteractionClassFedNode* each : classes)
    {
        names.push_back(each->getFullName());
        addNames(each->getChildInteractions(), names);
    }
}

// What somebody would type for a class: its name without the root, and its short name.
std::vector<std::string> typedNames(const std::vector<DtString>& fullNames)
{
    std::set<std::string> names;
    for (const DtString& fullName : fullNames)
    {
        const std::string& name = fullName.stdString();
        names.insert(name.substr(name.find('.') + 1));
        names.insert(name.substr(name.rfind('.') + 1));
    }
    return {names.begin(), names.end()};
}

[[noreturn]] void reportNoMatch(const DtClassPattern& pattern, const std::vector<DtString>& all,
                                const std::vector<DtString>& candidates)
{
    const std::string text = "no class matches \"" + pattern.text() + "\".";
    const bool isManagement =
        std::any_of(all.begin(), all.end(), [&pattern](const DtString& name) { return pattern.matches(name); });
    if (isManagement)
        throw DtToolFailure(DtExitCode::Usage,
                            text + " It matches management classes; --with-management lets them in.");
    throw DtToolFailure(DtExitCode::Usage, text + DtNearNamesHint(pattern.text(), typedNames(candidates)));
}
} // namespace

DtClassPattern::DtClassPattern(const std::string& text) : myText(text)
{
    if (!myText.empty() && myText.front() == '!')
    {
        myTakesAway = true;
        myText.erase(0, 1);
    }
}

bool DtClassPattern::matches(const DtString& fullName) const
{
    std::string_view rest(fullName.c_str(), fullName.length());
    for (;;)
    {
        if (matchesGlob(myText, rest))
            return true;
        const std::size_t dot = rest.find('.');
        if (dot == std::string_view::npos)
            return false;
        rest.remove_prefix(dot + 1);
    }
}

bool DtIsManagementClass(const DtString& fullName)
{
    const std::string& name = fullName.stdString();
    const std::size_t dot = name.find('.');
    if (dot == std::string::npos)
        return false;
    const std::string_view below = std::string_view(name).substr(dot + 1);
    const std::string_view first = below.substr(0, below.find('.'));
    return first == "HLAmanager" || first == "Manager";
}

std::vector<DtString> DtClassNames(const DtOMTTree& tree)
{
    std::vector<DtString> names;
    if (tree.objectClassRoot() != nullptr)
        addNames(tree.objectClassRoot()->getChildObjects(), names);
    if (tree.interactionClassRoot() != nullptr)
        addNames(tree.interactionClassRoot()->getChildInteractions(), names);
    return names;
}

std::set<DtString> DtClassesOfPatterns(const DtOMTTree& tree, const std::vector<std::string>& patterns,
                                       bool withManagement)
{
    const std::vector<DtString> all = DtClassNames(tree);
    std::vector<DtString> candidates;
    std::copy_if(all.begin(), all.end(), std::back_inserter(candidates),
                 [withManagement](const DtString& name) { return withManagement || !DtIsManagementClass(name); });
    std::set<DtString> selected;
    bool isFirst = true;
    for (const std::string& text : patterns)
    {
        const DtClassPattern pattern(text);
        if (isFirst && pattern.takesAway())
            selected.insert(candidates.begin(), candidates.end());
        isFirst = false;
        bool hasMatched = false;
        for (const DtString& name : candidates)
        {
            if (!pattern.matches(name))
                continue;
            hasMatched = true;
            if (pattern.takesAway())
                selected.erase(name);
            else
                selected.insert(name);
        }
        if (!hasMatched)
            reportNoMatch(pattern, all, candidates);
    }
    return selected;
}
