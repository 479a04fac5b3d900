#include "fileGenerator/tokenPass.h"

#include "fileGenerator/tokenPlaces.h"
#include "foundation/assertion.h"

#include <algorithm>
#include <cstring>
#include <string>

// How a line is expanded.
//
// The rule is that of ordered passes: each row in turn replaces its token all over the line, so a row sees what the
// rows ahead of it have put in. Taken literally that is a search of the line for every row, some hundred of them, and
// nearly every line holds two or three tokens whose values hold none.
//
// The idea: one scan looks each token of the line up by its text and puts its value in. The outcome is that of the
// passes as long as no pass could have found a token that did not stand in the line, be it in a value, be it where the
// end of one piece meets the start of another.
//
// What always holds: a token begins with "<!", and an opening that anything could come of is still there when the scan
// is done. So the openings of the outcome are counted; unless they are just those of the unknown tokens, which stay,
// what the scan made is thrown away and the passes do the work. The passes are always right, the scan is quick.
//
// Most lines are pieces of templates, which come again for every file. Their tokens are found once (DtCompiledLine),
// and where these stand in a chain is looked up once for all writers of a class (DtTokenPlaces). What is left of the
// scan is to copy texts and values one behind the other. Values that are not quiet have the line scanned as it stands.
//
// The traps: an opening inside a token, or one without an end, has the scan give up at once, since the passes might
// find their token from either. And values are worked out in the order in which tokens are met, which is not that of
// the rows: a value whose working out has an effect has to be worked out ahead, see workOutAll().

namespace
{
constexpr std::size_t theNowhere = std::string_view::npos;
constexpr std::string_view theOpening = "<!";
constexpr std::string_view theClosing = "!>";
// Values that hold each other's tokens multiply. Once a text has grown to this many bytes, its tokens stay.
constexpr std::size_t theLongestText = 16u << 20;

// The tables of one replacement, in order; links may be null.
struct DtChain
{
    DtTokenSource* const* links;
    std::size_t count;

    // Null for an unknown token.
    const DtString* valueOf(std::string_view token) const
    {
        const std::uint32_t hash = DtTokenIndex::hashOf(token);
        for (std::size_t link = 0; link < count; ++link)
        {
            const int row = links[link] != nullptr ? links[link]->index().find(token, hash) : -1;
            if (row >= 0)
                return &links[link]->value(row);
        }
        return nullptr;
    }
};

std::size_t countOpenings(std::string_view text)
{
    std::size_t count = 0;
    for (std::size_t at = text.find(theOpening); at != theNowhere; at = text.find(theOpening, at + 2))
        ++count;
    return count;
}

// Replaces each token where it stands. False when the ordered passes might give another result: when an opening comes
// out that is not the one of an unknown token of the line. Every opening that a pass could meet on its way, in a value
// or where two pieces join, is still there in the outcome of the scan, so none of them is missed.
bool expandInOneScan(std::string_view line, const DtChain& chain, std::string& result)
{
    std::size_t copied = 0;
    std::size_t unknown = 0;
    for (std::size_t at = line.find(theOpening), next = 0; at != theNowhere; at = next)
    {
        const std::size_t end = line.find(theClosing, at + 2);
        next = line.find(theOpening, at + 2);
        if (end == theNowhere || next < end)
            return false;
        const DtString* value = chain.valueOf(line.substr(at, end + 2 - at));
        if (value == nullptr)
        {
            ++unknown;
            continue;
        }
        result.append(line, copied, at - copied).append(value->stdString());
        copied = end + 2;
    }
    result.append(line, copied);
    return countOpenings(result) == unknown;
}

// One pass of one row over the text.
void replaceToken(std::string& text, std::string_view token, DtTokenSource& source, int row)
{
    std::size_t at = text.find(token);
    if (at == std::string::npos)
        return;
    const std::string& value = source.value(row).stdString();
    std::string result;
    std::size_t copied = 0;
    for (; at != std::string::npos && result.size() < theLongestText; at = text.find(token, copied))
    {
        result.append(text, copied, at - copied).append(value);
        copied = at + token.size();
    }
    text = result.append(text, copied);
}

std::string expandInOrder(std::string text, const DtChain& chain)
{
    for (std::size_t link = 0; link < chain.count; ++link)
        for (int row = 0; chain.links[link] != nullptr && row < chain.links[link]->index().size(); ++row)
            replaceToken(text, chain.links[link]->index().token(row), *chain.links[link], row);
    return text;
}
} // namespace

DtTokenIndex::DtTokenIndex(std::vector<std::string_view> tokens) : myTokens(std::move(tokens))
{
    static unsigned int theLastSerial = 0;
    mySerial = ++theLastSerial;
    std::size_t slots = 8;
    while (slots < 2 * myTokens.size())
        slots *= 2;
    mySlots.assign(slots, -1);
    for (int row = 0; row < size(); ++row)
    {
        if (find(token(row)) >= 0)
            continue;
        std::size_t slot = hashOf(token(row)) & (slots - 1);
        while (mySlots[slot] >= 0)
            slot = (slot + 1) & (slots - 1);
        mySlots[slot] = row;
    }
}

int DtTokenIndex::find(std::string_view text, std::uint32_t hash) const
{
    for (std::size_t slot = hash & (mySlots.size() - 1); mySlots[slot] >= 0; slot = (slot + 1) & (mySlots.size() - 1))
        if (token(mySlots[slot]) == text)
            return mySlots[slot];
    return -1;
}

std::uint32_t DtTokenIndex::hashOf(std::string_view text)
{
    constexpr std::uint64_t factor = 0x9E3779B97F4A7C15u;
    std::uint64_t hash = text.size();
    for (std::size_t at = 0; at < text.size(); at += sizeof(std::uint64_t))
    {
        std::uint64_t word = 0;
        std::memcpy(&word, text.data() + at, std::min(sizeof word, text.size() - at));
        hash = (hash ^ word) * factor;
        hash ^= hash >> 32;
    }
    return static_cast<std::uint32_t>(hash);
}

// Writers come and go by the thousand, each with a source of some dozens of values. What the last ones have left is
// used again, down to the memory of the texts.
struct DtTokenSource::Leftovers
{
    static constexpr std::size_t theMost = 64; // as many as a class has writers, and some

    std::vector<std::vector<Entry>> entries;

    // Never destroyed: sources of tables may go later than anything else.
    static Leftovers& instance()
    {
        static auto* const theLeftovers = new Leftovers;
        return *theLeftovers;
    }
};

DtTokenSource::~DtTokenSource()
{
    std::vector<std::vector<Entry>>& leftovers = Leftovers::instance().entries;
    if (!myEntries.empty() && leftovers.size() < Leftovers::theMost)
        leftovers.push_back(std::move(myEntries));
}

std::uint64_t DtTokenSource::nextGeneration()
{
    static std::uint64_t theLastGeneration = 0;
    return ++theLastGeneration;
}

void DtTokenSource::obtainEntries()
{
    std::vector<std::vector<Entry>>& leftovers = Leftovers::instance().entries;
    if (!leftovers.empty())
    {
        myEntries = std::move(leftovers.back());
        leftovers.pop_back();
    }
    myEntries.resize(static_cast<std::size_t>(myIndex->size()));
}

const DtTokenValue& DtTokenSource::known(int row)
{
    const std::size_t place = static_cast<std::size_t>(row);
    if (myCommonValues != nullptr)
        return knownInCommon(place);
    if (myEntries.empty())
        obtainEntries();
    Entry& entry = myEntries[place];
    if (entry.generation != myGeneration)
    {
        workOut(row, entry.value);
        entry.generation = myGeneration;
    }
    return entry.value;
}

const DtTokenValue& DtTokenSource::knownInCommon(std::size_t row)
{
    if (myCommonValues->empty())
        myCommonValues->resize(static_cast<std::size_t>(myIndex->size()));
    DtTokenValue& value = (*myCommonValues)[row];
    if (!value.isKnown)
        workOut(static_cast<int>(row), value);
    return value;
}

void DtTokenSource::workOut(int row, DtTokenValue& value) const
{
    value.text = workOut(row);
    value.isQuiet = DtCompiledLine::isQuiet(value.text.stdString());
    value.isKnown = true;
}

void DtTokenSource::workOutAll()
{
    for (int row = 0; row < myIndex->size(); ++row)
        value(row);
}

bool DtHasToken(const DtString& text)
{
    return text.stdString().find(theOpening) != std::string::npos;
}

void DtExpandTokens(DtString& line, DtTokenSource* const* chain, std::size_t count)
{
    if (!DtHasToken(line))
        return;
    // Taken out while in use: the function of a row may expand a text of its own.
    static std::string theScratch;
    std::string result = std::move(theScratch);
    result.clear();
    if (expandInOneScan(line.stdString(), {chain, count}, result))
        DtAssignText(line, result);
    else
        DtExpandTokensInOrder(line, chain, count);
    theScratch = std::move(result);
}

void DtExpandTokens(DtString& line, std::initializer_list<DtTokenSource*> chain)
{
    DtExpandTokens(line, chain.begin(), chain.size());
}

namespace
{
constexpr std::size_t theUsualLinks = 8; // a few more than the chain of any writer has
}

void DtTokenChain::putAhead(std::initializer_list<DtTokenSource*> sources)
{
    myLinks.reserve(theUsualLinks);
    auto at = myLinks.insert(myLinks.begin(), sources.size(), DtLink{nullptr, true});
    for (DtTokenSource* source : sources)
        (at++)->source = source;
    linksChanged();
}

void DtTokenChain::putBehind(DtTokenSource& source)
{
    myLinks.push_back({&source, false});
    linksChanged();
}

void DtTokenChain::linksChanged()
{
    myPlaces = nullptr;
    myIndexes.clear();
    myForgetful.clear();
    myIndexes.reserve(theUsualLinks);
    for (const DtLink& link : myLinks)
    {
        myIndexes.push_back(&link.source->index());
        if (link.source->memory() == DtTokenMemory::OneLine)
            myForgetful.push_back(link.source);
    }
}

DtTokenPlaces& DtTokenChain::places() const
{
    if (myPlaces == nullptr)
        myPlaces = &DtTokenPlaces::of(myIndexes);
    return *myPlaces;
}

const DtTokenValue* DtTokenChain::valueOf(int token) const
{
    for (const DtTokenPlaces::DtPlace& place : places().placesOf(token, myIndexes))
    {
        DtTokenSource* const source = myLinks[place.link].source;
        if (source->isActive())
            return &source->known(place.row);
    }
    return nullptr;
}

std::vector<DtString> DtTokenChain::tokens() const
{
    std::vector<DtString> tokens;
    for (const DtLink& link : myLinks)
        for (int row = 0; row < link.source->index().size(); ++row)
            tokens.emplace_back(std::string(link.source->index().token(row)));
    return tokens;
}

void DtTokenChain::expand(DtString& line, std::initializer_list<DtTokenSource*> further) const
{
    if (!DtHasToken(line))
        return;
    constexpr std::size_t mostLinks = 24;
    DT_ASSERT(further.size() + myLinks.size() <= mostLinks);
    DtTokenSource* active[mostLinks];
    DtTokenSource** end = std::copy(further.begin(), further.end(), active);
    for (const DtLink& link : myLinks)
    {
        if (!link.source->isActive())
            continue;
        if (link.source->memory() == DtTokenMemory::OneLine)
            link.source->clear();
        *end++ = link.source;
    }
    DtExpandTokens(line, active, static_cast<std::size_t>(end - active));
}

namespace
{
// With the values that are known already: working one out may have an effect, such as a warning, and has it once a
// line.
bool appendInOrder(const std::vector<DtTokenChain::DtLink>& links, std::string_view text, std::string& result)
{
    std::vector<DtTokenSource*> active;
    for (const DtTokenChain::DtLink& link : links)
        if (link.source->isActive())
            active.push_back(link.source);
    DtString line{std::string(text)};
    DtExpandTokens(line, active.data(), active.size());
    result += line.stdString();
    return true;
}
} // namespace

bool DtTokenChain::append(const DtCompiledLine& line, std::string& result, DtTokenFinder* finder) const
{
    if (!line.isPlain())
        return false;
    for (DtTokenSource* source : myForgetful)
        source->clear();
    const std::size_t size = result.size();
    std::size_t copied = 0;
    for (const DtCompiledLine::DtSlot& slot : line.slots())
    {
        const DtString* found = finder != nullptr ? finder->valueOf(slot.token) : nullptr;
        bool isQuiet = found == nullptr || DtCompiledLine::isQuiet(found->stdString());
        if (const DtTokenValue* value = found == nullptr ? valueOf(slot.token) : nullptr)
        {
            found = &value->text;
            isQuiet = value->isQuiet;
        }
        if (found == nullptr)
            continue; // the token stays, as part of the text around it
        if (!isQuiet)
        {
            result.resize(size);
            return finder == nullptr && appendInOrder(myLinks, line.text(), result);
        }
        result.append(line.text(), copied, slot.start - copied).append(found->stdString());
        copied = slot.end;
    }
    result.append(line.text(), copied);
    return true;
}

void DtExpandTokensInOrder(DtString& line, DtTokenSource* const* chain, std::size_t count)
{
    line = DtString(expandInOrder(line.stdString(), {chain, count}));
}

void DtAssignText(DtString& target, std::string_view text)
{
    target.assign(text);
}
