#include "fileGenerator/tokenPlaces.h"

#include "fileGenerator/tokenNames.h"
#include "fileGenerator/tokenPass.h"

#include <map>

DtTokenPlaces& DtTokenPlaces::of(const std::vector<const DtTokenIndex*>& indexes)
{
    static std::map<std::vector<unsigned int>, DtTokenPlaces> thePlaces;
    std::vector<unsigned int> key;
    key.reserve(indexes.size());
    for (const DtTokenIndex* index : indexes)
        key.push_back(index->serial());
    return thePlaces[key];
}

DtTokenPlaces::DtPlaceRange DtTokenPlaces::placesOf(int token, const std::vector<const DtTokenIndex*>& indexes)
{
    const std::size_t number = static_cast<std::size_t>(token);
    if (number >= myEntries.size())
        myEntries.resize(number + 1);
    DtEntry& entry = myEntries[number];
    if (!entry.isKnown)
        lookUp(token, indexes, entry);
    const DtPlace* const first = myPlaces.data() + entry.start;
    return {first, first + entry.count};
}

void DtTokenPlaces::lookUp(int token, const std::vector<const DtTokenIndex*>& indexes, DtEntry& entry)
{
    entry.isKnown = true;
    entry.start = static_cast<std::uint32_t>(myPlaces.size());
    for (std::size_t link = 0; link < indexes.size(); ++link)
    {
        const int row = indexes[link]->find(DtTokenOfNumber(token));
        if (row < 0)
            continue;
        myPlaces.push_back({static_cast<std::uint16_t>(link), static_cast<std::uint16_t>(row)});
        ++entry.count;
    }
}
