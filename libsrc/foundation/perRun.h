#ifndef FOUNDATION_PER_RUN_H
#define FOUNDATION_PER_RUN_H

#include <memory>
#include <typeindex>
#include <unordered_map>

// Class-wide state of a run.
//
// Much of what a run notes on its way is asked for from everywhere and therefore kept class-wide: settings, tables of
// datatypes, the numbers of long names. Kept for the process, as by the window, one run goes on where the last one
// ended. A DtRunScope gives a run a set of its own, each part made when it is first asked for, and takes it away at its
// end: the run finds nothing of earlier ones, and leaves nothing. Scopes nest. One thread only.
//
//     DtTable& table = DtPerRun<DtTable>(); // in place of a static DtTable
//
// A second type argument keeps several of one kind apart; it need not be defined.
class DtRunScope
{
public:
    DtRunScope();
    ~DtRunScope();
    DtRunScope(const DtRunScope&) = delete;
    DtRunScope& operator=(const DtRunScope&) = delete;

    // Changes whenever a scope begins or ends.
    static unsigned long generation();
    // The part of that key in the innermost scope, or of the process. Made by `make` when it is not there.
    static void* part(std::type_index key, std::shared_ptr<void> (*make)());

private:
    using DtParts = std::unordered_map<std::type_index, std::shared_ptr<void>>;

    static DtParts& processParts();

    DtParts myParts;
    DtRunScope* myOuter;
};

template <typename Part, typename Key = Part>
Part& DtPerRun()
{
    // The look-up is spared as long as no scope has come or gone.
    static Part* thePart = nullptr;
    static unsigned long theGeneration = 0;
    if (thePart == nullptr || theGeneration != DtRunScope::generation())
    {
        struct DtKey; // a type for each pair of arguments
        const auto make = [] { return std::shared_ptr<void>(new Part(), [](Part* part) { delete part; }); };
        thePart = static_cast<Part*>(DtRunScope::part(typeid(DtKey*), make));
        theGeneration = DtRunScope::generation();
    }
    return *thePart;
}

#endif
