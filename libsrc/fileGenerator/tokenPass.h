#ifndef FILE_GENERATOR_TOKEN_PASS_H
#define FILE_GENERATOR_TOKEN_PASS_H

#include "fileGenerator/compiledLine.h"
#include "foundation/string.h"

#include <cstddef>
#include <cstdint>
#include <initializer_list>
#include <string>
#include <string_view>
#include <vector>

// Ordered tables of template tokens, and the replacement of tokens in a line.
//
// A table is an array of rows: the text of a token and a function that works its value out from a context (a writer, an
// attribute, ...). A DtTokenTable is built once over the array, with an index by text; a DtTokenValues binds the table
// to one context and remembers the values. A DtTokenChain puts those in the order of replacement.
//
//     const DtTokenRow<DtAttribute> theAttributeRows[] = {
//         {"<!AttributeType!>", [](const DtAttribute& a) { return a.type(); }},
//     };
//     const DtTokenTable<DtAttribute>& attributeTable()
//     {
//         static const DtTokenTable<DtAttribute> theTable(theAttributeRows);
//         return theTable;
//     }
//     DtTokenValues<DtAttribute> values(attributeTable(), &attribute);
//     DtTokenChain chain;
//     chain.putAhead({&values, &classValues});
//     chain.expand(line);

class DtTokenPlaces;

// One row. The token is written with its brackets, "<!Name!>", and holds neither "<!" nor "!>" inside.
template <class Context>
struct DtTokenRow
{
    const char* token;
    DtString (*value)(const Context& context);
};

// The texts of one table's tokens, in row order, and a look-up by text.
class DtTokenIndex
{
public:
    explicit DtTokenIndex(std::vector<std::string_view> tokens);

    int size() const { return static_cast<int>(myTokens.size()); }
    std::string_view token(int row) const { return myTokens[static_cast<std::size_t>(row)]; }
    // First row with this text, -1 if there is none. The hash is hashOf(text).
    int find(std::string_view text, std::uint32_t hash) const;
    int find(std::string_view text) const { return find(text, hashOf(text)); }
    static std::uint32_t hashOf(std::string_view text);
    // A number that no other index of the process has, but for copies of this one.
    unsigned int serial() const { return mySerial; }

private:
    std::vector<std::string_view> myTokens;
    std::vector<int> mySlots; // open addressing, a power of two; -1 is free
    unsigned int mySerial;
};

// How long the values of a source are remembered.
enum class DtTokenMemory
{
    UntilCleared, // whoever changes what they are made of clears them
    OneLine       // they follow from something that nobody announces
};

// A value, once it has been worked out.
struct DtTokenValue
{
    DtString text;
    bool isKnown = false;
    bool isQuiet = true; // whether it brings about nothing new to replace, see DtCompiledLine
};

// One link of a chain: a table's index with the values of one context.
//
// A value is worked out when it is first asked for and kept until clear(), which costs next to nothing. Values that
// several sources have in common are kept elsewhere, and are not cleared.
class DtTokenSource
{
public:
    explicit DtTokenSource(const DtTokenIndex& index, DtTokenMemory memory = DtTokenMemory::UntilCleared)
        : myIndex(&index), myMemory(memory)
    {
    }
    virtual ~DtTokenSource();
    DtTokenSource(const DtTokenSource&) = delete;
    DtTokenSource& operator=(const DtTokenSource&) = delete;

    const DtTokenIndex& index() const { return *myIndex; }
    DtTokenMemory memory() const { return myMemory; }
    // Whether its tokens are replaced at present. They stay in the text while they are not.
    virtual bool isActive() const { return true; }
    // Valid until clear().
    const DtString& value(int row) { return known(row).text; }
    const DtTokenValue& known(int row);
    // Forgets all values: the context, or something that values are made of, is another one now.
    void clear() { myGeneration = nextGeneration(); }
    // Works out every value that is not known yet, in row order, for values whose working out has an effect.
    void workOutAll();

protected:
    virtual DtString workOut(int row) const = 0;
    // Has the values kept there, which is empty at first, or in the source itself again when it is null. The values
    // there do not depend on the source.
    void keepValuesIn(std::vector<DtTokenValue>* values) { myCommonValues = values; }

private:
    struct Leftovers;
    struct Entry
    {
        DtTokenValue value;
        std::uint64_t generation = 0;
    };

    // No two of the process are the same, so what is left in a place of other sources counts for nobody else.
    static std::uint64_t nextGeneration();
    void obtainEntries();

    const DtTokenValue& knownInCommon(std::size_t row);
    void workOut(int row, DtTokenValue& value) const;

    const DtTokenIndex* myIndex;
    DtTokenMemory myMemory;
    std::vector<Entry> myEntries; // obtained at first use
    std::vector<DtTokenValue>* myCommonValues = nullptr;
    std::uint64_t myGeneration = nextGeneration();
};

// Rows with their index, and when they count: always, or while a condition on the context holds. The array has to
// outlive it.
template <class Context>
class DtTokenTable
{
public:
    using Condition = bool (*)(const Context& context);

    template <std::size_t N>
    explicit DtTokenTable(const DtTokenRow<Context> (&rows)[N], Condition condition = nullptr)
        : myRows(rows), myIndex(tokensOf(rows, N)), myCondition(condition)
    {
    }

    const DtTokenIndex& index() const { return myIndex; }
    bool counts(const Context& context) const { return myCondition == nullptr || myCondition(context); }
    DtString value(int row, const Context& context) const { return myRows[row].value(context); }

private:
    static std::vector<std::string_view> tokensOf(const DtTokenRow<Context>* rows, std::size_t count)
    {
        std::vector<std::string_view> tokens;
        for (std::size_t row = 0; row < count; ++row)
            tokens.emplace_back(rows[row].token);
        return tokens;
    }

    const DtTokenRow<Context>* myRows;
    DtTokenIndex myIndex;
    Condition myCondition;
};

// A table bound to one context. Neither is owned; without a context it is not active.
template <class Context>
class DtTokenValues : public DtTokenSource
{
public:
    explicit DtTokenValues(const DtTokenTable<Context>& table, const Context* context = nullptr,
                           DtTokenMemory memory = DtTokenMemory::UntilCleared)
        : DtTokenSource(table.index(), memory), myTable(&table), myContext(context)
    {
    }
    bool isActive() const override { return myContext != nullptr && myTable->counts(*myContext); }

    // Binds to another context, or to the same one after it has changed, and forgets all values. They are kept with
    // the context if it has a place for them.
    void setContext(const Context* context, std::vector<DtTokenValue>* common = nullptr)
    {
        myContext = context;
        keepValuesIn(common);
        clear();
    }
    const Context* context() const { return myContext; }

protected:
    DtString workOut(int row) const override { return myTable->value(row, *myContext); }

private:
    const DtTokenTable<Context>* myTable;
    const Context* myContext;
};

// True when the text holds "<!", without which there is nothing to replace.
bool DtHasToken(const DtString& text);

// Replaces the tokens of the chain in the line.
//
// The outcome is that of one pass after the other: links in chain order, the rows of each from top to bottom, every row
// replacing all occurrences of its token and going on behind the inserted text. A value that holds the token of a later
// row is thus replaced in turn, one that holds the token of an earlier row stays, and so does an unknown token. Lines
// get there in one scan unless what comes out could still hold something to replace. Null links are left out.
void DtExpandTokens(DtString& line, DtTokenSource* const* chain, std::size_t count);
void DtExpandTokens(DtString& line, std::initializer_list<DtTokenSource*> chain);

// The passes one after the other, always.
void DtExpandTokensInOrder(DtString& line, DtTokenSource* const* chain, std::size_t count);

// Gives the values of tokens that stand in no table.
class DtTokenFinder
{
public:
    // Null when there is none. Valid until the next call.
    virtual const DtString* valueOf(int token) = 0;

protected:
    ~DtTokenFinder() = default;
};

// The tokens of a writer: its sources in the order of replacement.
//
// A chain is made up in the constructors of a writer, each class putting its own sources ahead of those of its base,
// and does not change afterwards: two writers of one class have the same tokens in the same order, and share the table
// of where these stand. Sources are not owned.
class DtTokenChain
{
public:
    struct DtLink
    {
        DtTokenSource* source;
        bool isScannedAgain; // whether later links replace tokens in what it puts in
    };

    // In front of all that are there, in this order.
    void putAhead(std::initializer_list<DtTokenSource*> sources);
    // Behind all that are there. Nothing looks for tokens in what it puts in.
    void putBehind(DtTokenSource& source);

    const std::vector<DtLink>& links() const { return myLinks; }
    // Every token, in the order of replacement.
    std::vector<DtString> tokens() const;
    // Replaces the tokens of the active sources, those of further sources ahead of them.
    void expand(DtString& line, std::initializer_list<DtTokenSource*> further = {}) const;
    // The same for a line whose tokens are found already, appended to the result; the finder is asked ahead of the
    // sources. False, with the result as it was, for a line that is not plain, and for a value beside a finder that is
    // not quiet: expand() has to do these.
    bool append(const DtCompiledLine& line, std::string& result, DtTokenFinder* finder = nullptr) const;

private:
    void linksChanged();
    DtTokenPlaces& places() const;
    // Null for an unknown token.
    const DtTokenValue* valueOf(int token) const;

    std::vector<DtLink> myLinks;
    std::vector<const DtTokenIndex*> myIndexes; // of the links
    std::vector<DtTokenSource*> myForgetful;    // the links whose values are remembered for one line
    mutable DtTokenPlaces* myPlaces = nullptr;  // obtained at first use
};

// Makes the text the content of the target, whose memory is used again where it suffices.
void DtAssignText(DtString& target, std::string_view text);

#endif
