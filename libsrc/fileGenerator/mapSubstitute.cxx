#include "fileGenerator/mapSubstitute.h"

#include "fileGenerator/cCompatibleName.h"
#include "fileGenerator/escapedText.h"
#include "foundation/perRun.h"

#include <algorithm>

namespace
{
// A map of more entries gets an index; in a smaller one a walk is as quick.
constexpr std::size_t theLargestPlainMap = 128;

DtCCompatibleNames& names()
{
    return DtPerRun<DtCCompatibleNames, DtMapSubstitute>();
}
} // namespace

DtMapSubstitute::~DtMapSubstitute()
{
    DtMapSubstitute::clear();
}

void DtMapSubstitute::put(const DtString& key, DtUniversalSubstitute* value)
{
    std::unique_ptr<DtUniversalSubstitute> owner(value); // until it stands in the vector
    myEntries.emplace_back(key, value);
    static_cast<void>(owner.release());
    if (myIndex != nullptr)
        myIndex->emplace(key, myEntries.size() - 1);
}

void DtMapSubstitute::put(const DtString& key, const DtString& value)
{
    put(key, new DtStringSubstitute(value));
}

void DtMapSubstitute::putId(const DtString& key, const DtString& value)
{
    put(key, value);
    put(key + "Id", names().MakeCCompatibleString(value));
}

void DtMapSubstitute::putSafeForms(const DtString& key, const DtString& value)
{
    const DtSafeForms forms(value);
    put(key + "Html", forms.html);
    put(key + "Quoted", forms.quoted);
}

DtMapSubstitute& DtMapSubstitute::putMap(const DtString& key)
{
    auto* map = new DtMapSubstitute;
    put(key, map);
    return *map;
}

DtUniversalSubstitute* DtMapSubstitute::get(const DtString& key) const
{
    const Iterator found = find(key);
    return found != end() ? found->second : nullptr;
}

const DtString* DtMapSubstitute::getValue(const DtString& key) const
{
    return stringOf(get(key));
}

DtMapSubstitute* DtMapSubstitute::getMap(const DtString& key) const
{
    return mapOf(get(key));
}

void DtMapSubstitute::remove(const DtString& key)
{
    const Iterator found = find(key);
    if (found == end())
        return;
    myEntries.erase(found);
    myIndex.reset();
}

void DtMapSubstitute::clear()
{
    for (const Entry& entry : myEntries)
        delete entry.second;
    myEntries.clear();
    myIndex.reset();
}

DtMapSubstitute::Iterator DtMapSubstitute::find(const DtString& key) const
{
    if (myEntries.size() <= theLargestPlainMap)
        return std::find_if(myEntries.begin(), myEntries.end(), [&](const Entry& entry) { return entry.first == key; });
    if (myIndex == nullptr)
    {
        myIndex = std::make_unique<Index>(myEntries.size());
        for (std::size_t at = 0; at < myEntries.size(); ++at)
            myIndex->emplace(myEntries[at].first, at); // does nothing for a key that is there
    }
    const auto found = myIndex->find(key);
    return found != myIndex->end() ? myEntries.begin() + static_cast<std::ptrdiff_t>(found->second) : myEntries.end();
}

const DtString* DtMapSubstitute::stringOf(const DtUniversalSubstitute* value)
{
    const auto* text = dynamic_cast<const DtStringSubstitute*>(value);
    return text != nullptr ? text->value() : nullptr;
}

DtMapSubstitute* DtMapSubstitute::mapOf(DtUniversalSubstitute* value)
{
    return dynamic_cast<DtMapSubstitute*>(value);
}
