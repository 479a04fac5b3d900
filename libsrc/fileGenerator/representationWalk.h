#ifndef FILE_GENERATOR_REPRESENTATION_WALK_H
#define FILE_GENERATOR_REPRESENTATION_WALK_H

#include "foundation/string.h"

#include <set>
#include <vector>

// A datatype and what stands below it, each name once: the datatype itself first, then its representation, then the
// representation of that, and so on.
struct DtRepresentationChain
{
    std::vector<DtString> names;
    bool isRing = false; // the last name leads back to one of them, so the chain has no end
};

// Follows a datatype down its representations. next: gives the name that stands below a name, empty where nothing does.
// A name that is met again ends the walk. A loop rather than a recursion: no chain of datatypes may exhaust the stack.
template <typename Next>
DtRepresentationChain followRepresentations(const DtString& start, Next next)
{
    DtRepresentationChain chain{{start}};
    std::set<DtString> seen = {start};
    for (DtString name = next(start); !name.isEmpty(); name = next(chain.names.back()))
    {
        chain.isRing = !seen.insert(name).second;
        if (chain.isRing)
            break;
        chain.names.push_back(name);
    }
    return chain;
}

#endif
