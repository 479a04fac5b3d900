#ifndef FILE_GENERATOR_TOKEN_PLACES_H
#define FILE_GENERATOR_TOKEN_PLACES_H

#include <cstdint>
#include <vector>

class DtTokenIndex;

// Where the tokens stand in chains of the same make-up.
//
// All writers of one class have the same tables in the same order, so they share one of these: a token is looked up by
// its text once, and from then on by its number.
class DtTokenPlaces
{
public:
    // One row of one link.
    struct DtPlace
    {
        std::uint16_t link;
        std::uint16_t row;
    };
    struct DtPlaceRange
    {
        const DtPlace* first;
        const DtPlace* last;
        const DtPlace* begin() const { return first; }
        const DtPlace* end() const { return last; }
    };

    // The one for these indexes, in the order of the links.
    static DtTokenPlaces& of(const std::vector<const DtTokenIndex*>& indexes);

    // Every link that has the token, in their order; its first row there. Valid until the next call.
    DtPlaceRange placesOf(int token, const std::vector<const DtTokenIndex*>& indexes);

private:
    struct DtEntry
    {
        std::uint32_t start = 0; // in myPlaces
        std::uint16_t count = 0;
        bool isKnown = false;
    };

    void lookUp(int token, const std::vector<const DtTokenIndex*>& indexes, DtEntry& entry);

    std::vector<DtEntry> myEntries; // by the token's number
    std::vector<DtPlace> myPlaces;
};

#endif
