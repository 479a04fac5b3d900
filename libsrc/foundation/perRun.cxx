#include "foundation/perRun.h"

namespace
{
DtRunScope* theInnermost = nullptr;
unsigned long theGeneration = 0;
} // namespace

DtRunScope::DtRunScope() : myOuter(theInnermost)
{
    theInnermost = this;
    ++theGeneration;
}

DtRunScope::~DtRunScope()
{
    theInnermost = myOuter;
    ++theGeneration;
}

unsigned long DtRunScope::generation()
{
    return theGeneration;
}

// Never destroyed: what is class-wide may be asked for until the process ends.
DtRunScope::DtParts& DtRunScope::processParts()
{
    static auto* const theParts = new DtParts;
    return *theParts;
}

void* DtRunScope::part(std::type_index key, std::shared_ptr<void> (*make)())
{
    DtParts& parts = theInnermost != nullptr ? theInnermost->myParts : processParts();
    const auto found = parts.find(key);
    if (found != parts.end())
        return found->second.get();
    const std::shared_ptr<void> made = make(); // may ask for parts itself
    return parts.emplace(key, made).first->second.get();
}
