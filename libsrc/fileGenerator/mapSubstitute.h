#ifndef FILE_GENERATOR_MAP_SUBSTITUTE_H
#define FILE_GENERATOR_MAP_SUBSTITUTE_H

#include "fileGenerator/stringSubstitute.h"
#include "fileGenerator/universalSubstitute.h"

#include <cstddef>
#include <cstdint>
#include <memory>
#include <unordered_map>
#include <utility>
#include <vector>

// The inner node of a substitution context: keys with values, in the order in which they were put in, which is the
// order in which a loop walks them.
//
// Owns its values. A key may come again; look-ups give its first entry only, so lists want keys that differ. A look-up
// compares numbers made of the keys, and the keys themselves only where these agree.
class DtMapSubstitute : public DtUniversalSubstitute
{
public:
    using Entry = std::pair<DtString, DtUniversalSubstitute*>;
    using Iterator = std::vector<Entry>::const_iterator;

    DtMapSubstitute() : DtUniversalSubstitute(DtMapSubstituteType) {}
    ~DtMapSubstitute() override;

    // Appends, and takes the value over. Null stands for no value.
    virtual void put(const DtString& key, DtUniversalSubstitute* value);
    virtual void put(const DtString& key, const DtString& value);
    // The value under the key, and its form as an identifier under the key with "Id" behind it.
    virtual void putId(const DtString& key, const DtString& value);
    // The look-ups give null for what is not there; the latter two also for a value of the other kind.
    virtual DtUniversalSubstitute* get(const DtString& key) const;
    virtual const DtString* getValue(const DtString& key) const;
    virtual DtMapSubstitute* getMap(const DtString& key) const;
    // Takes out the first entry of that key. Its value, which is not deleted, belongs to the caller then.
    virtual void remove(const DtString& key);
    virtual Iterator begin() const { return myEntries.begin(); }
    virtual Iterator end() const { return myEntries.end(); }
    virtual std::size_t size() const { return myEntries.size(); }
    virtual void clear();
    // The first entry of that key, or end().
    virtual Iterator find(const DtString& key) const;

    // The value in two safe forms: escaped for XML under the key with "Html" behind it, and for a string in double
    // quotes under the key with "Quoted" behind it.
    void putSafeForms(const DtString& key, const DtString& value);
    // Appends an empty map and gives it.
    DtMapSubstitute& putMap(const DtString& key);

    // The text or the map that a value is; null when it is none, or null.
    static const DtString* stringOf(const DtUniversalSubstitute* value);
    static DtMapSubstitute* mapOf(DtUniversalSubstitute* value);

private:
    using Index = std::unordered_map<DtString, std::size_t>;

    std::vector<Entry> myEntries;
    std::vector<std::uint32_t> myHashes;    // of the keys of the entries
    mutable std::unique_ptr<Index> myIndex; // first entry of each key; made when a map that is no longer small is asked
};

#endif
