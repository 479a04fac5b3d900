#include "fileGenerator/mapSubstitute.h"

#include "fileGenerator/cCompatibleName.h"
#include "fileGenerator/escapedText.h"
#include "fileGenerator/tokenPass.h"
#include "foundation/perRun.h"

#include <algorithm>
#include <typeinfo>

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
    myHashes.push_back(DtTokenIndex::hashOf(key.stdString()));
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
    myHashes.erase(myHashes.begin() + (found - myEntries.cbegin()));
    myEntries.erase(found);
    myIndex.reset();
}

void DtMapSubstitute::clear()
{
    for (const Entry& entry : myEntries)
        delete entry.second;
    myEntries.clear();
    myHashes.clear();
    myIndex.reset();
}

DtMapSubstitute::Iterator DtMapSubstitute::find(const DtString& key) const
{
    if (myEntries.size() <= theLargestPlainMap)
    {
        const std::uint32_t hash = DtTokenIndex::hashOf(key.stdString());
        for (std::size_t at = 0; at < myEntries.size(); ++at)
            if (myHashes[at] == hash && myEntries[at].first == key)
                return myEntries.begin() + static_cast<std::ptrdiff_t>(at);
        return myEntries.end();
    }
    if (myIndex == nullptr)
    {
        myIndex = std::make_unique<Index>(myEntries.size());
        for (std::size_t at = 0; at < myEntries.size(); ++at)
            myIndex->emplace(myEntries[at].first, at); // does nothing for a key that is there
    }
    const auto found = myIndex->find(key);
    return found != myIndex->end() ? myEntries.begin() + static_cast<std::ptrdiff_t>(found->second) : myEntries.end();
}

// Nearly every value is of just one of the two classes, which is asked first: a cast to a base takes a walk.
const DtString* DtMapSubstitute::stringOf(const DtUniversalSubstitute* value)
{
    if (value == nullptr)
        return nullptr;
    if (typeid(*value) == typeid(DtStringSubstitute))
        return static_cast<const DtStringSubstitute*>(value)->value();
    const auto* text = dynamic_cast<const DtStringSubstitute*>(value);
    return text != nullptr ? text->value() : nullptr;
}

DtMapSubstitute* DtMapSubstitute::mapOf(DtUniversalSubstitute* value)
{
    if (value == nullptr || typeid(*value) == typeid(DtStringSubstitute))
        return nullptr;
    return typeid(*value) == typeid(DtMapSubstitute) ? static_cast<DtMapSubstitute*>(value)
                                                     : dynamic_cast<DtMapSubstitute*>(value);
}
