#ifndef FILE_GENERATOR_CONTEXT_ROW_H
#define FILE_GENERATOR_CONTEXT_ROW_H

#include "fileGenerator/contextKey.h"
#include "fileGenerator/mapSubstitute.h"
#include "fileGenerator/omtWriter.h"

#include <memory>
#include <optional>
#include <vector>

// Tables of the keys that the entries of a list have, and what fills entries by them.

// The value of a key in an entry; it is empty when the entry does not have the key.
using DtContextValue = std::optional<DtString>;

// One row: the key, how its value is got from a node of the model, and what else is put in beside it.
template <typename Node>
struct DtContextRow
{
    const char* key;
    DtContextValue (*value)(const Node& node, DtOMTWriter& writer);
    DtKeyForm form;
};

// The most frequent functions of rows: what a getter of the node gives, a text or a number, and the boundary of the
// datatype that it gives.
template <auto Getter, typename Node>
DtContextValue got(const Node& node, DtOMTWriter& /*writer*/)
{
    return DtString((node.*Getter)());
}

template <auto Getter, typename Node>
DtContextValue boundaryOf(const Node& node, DtOMTWriter& writer)
{
    return DtString(writer.getBoundary((node.*Getter)()));
}

void DtPutValue(DtMapSubstitute& entry, const DtString& key, const DtString& value, DtKeyForm form);
// The list and, ahead of it, its size.
void DtPutList(DtMapSubstitute& entry, const DtString& countKey, const DtString& listKey,
               std::unique_ptr<DtMapSubstitute> list);

template <typename Node, std::size_t N>
void DtPutRows(const DtContextRow<Node> (&rows)[N], const Node& node, DtOMTWriter& writer, DtMapSubstitute& entry)
{
    for (const DtContextRow<Node>& row : rows)
    {
        if (const DtContextValue value = row.value(node, writer))
            DtPutValue(entry, row.key, *value, row.form);
    }
}

// The keys of one list, gathered for the documentation.
class DtContextKeyList
{
public:
    DtContextKeyList(std::vector<DtContextKey>& keys, const char* list) : myKeys(keys), myList(list) {}

    template <typename Node, std::size_t N>
    DtContextKeyList& add(const DtContextRow<Node> (&rows)[N])
    {
        for (const DtContextRow<Node>& row : rows)
            add(row.key, row.form);
        return *this;
    }
    DtContextKeyList& addType(const DtString& prefix); // the keys of getType
    DtContextKeyList& addList(const char* countKey, const char* listKey);
    // A key that is there already is not added again.
    DtContextKeyList& add(const DtString& key, DtKeyForm form);

private:
    std::vector<DtContextKey>& myKeys;
    const char* myList;
};

void DtAddClassKeys(std::vector<DtContextKey>& keys);
void DtAddDatatypeKeys(std::vector<DtContextKey>& keys);

#endif
