#ifndef OMT_READER_NODE_INDEX_H
#define OMT_READER_NODE_INDEX_H

#include "foundation/string.h"

#include <cstddef>
#include <cstdint>
#include <functional>
#include <type_traits>
#include <utility>
#include <vector>

// Finds the first node of each key in a list that only grows. Owns nothing.
//
// KeyOf gives the key of a node. The index keeps no copy of the keys: it asks the nodes, which therefore outlive it and
// keep the key they were added with.
//
// The nodes lie in one table of slots. The hash of a key tells where its search starts; the search goes on slot by slot
// until it meets the key or a free slot, so there must always be a free one, and a node is never taken out again.
template <typename Node, typename KeyOf>
class DtNodeIndex
{
public:
    using Key = std::decay_t<decltype(KeyOf()(std::declval<const Node&>()))>;

    struct Entry
    {
        Node* node = nullptr;
        std::uint32_t order = 0;
        std::uint32_t hash = 0; // of the key, so that it is neither asked for nor compared without need
    };

    // order: the node's position in the list. A key that is known already stays with its node.
    void add(Node* node, std::size_t order)
    {
        if (mySlots.size() * 2 <= myCount * 3 + 2)
            grow();
        insert({node, static_cast<std::uint32_t>(order), hashOf(KeyOf()(*node))});
    }

    // Null when no node has the key.
    const Entry* findEntry(const Key& key) const
    {
        if (mySlots.empty())
            return nullptr;
        const Entry& entry = mySlots[slotOf(hashOf(key), key)];
        return entry.node != nullptr ? &entry : nullptr;
    }

    Node* find(const Key& key) const
    {
        const Entry* entry = findEntry(key);
        return entry != nullptr ? entry->node : nullptr;
    }

private:
    static std::uint32_t hashOf(const Key& key)
    {
        return static_cast<std::uint32_t>((std::hash<Key>()(key) * std::uint64_t(0x9E3779B97F4A7C15)) >> 32);
    }

    // The slot of the node with the key, or the free one where it belongs. There is always a free one.
    std::size_t slotOf(std::uint32_t hash, const Key& key) const
    {
        std::size_t slot = hash & (mySlots.size() - 1);
        while (mySlots[slot].node != nullptr && (mySlots[slot].hash != hash || !(KeyOf()(*mySlots[slot].node) == key)))
            slot = (slot + 1) & (mySlots.size() - 1);
        return slot;
    }

    void insert(const Entry& entry)
    {
        Entry& slot = mySlots[slotOf(entry.hash, KeyOf()(*entry.node))];
        if (slot.node != nullptr)
            return;
        slot = entry;
        ++myCount;
    }

    // Nodes that are there already have different keys.
    void reinsert(const Entry& entry)
    {
        std::size_t slot = entry.hash & (mySlots.size() - 1);
        while (mySlots[slot].node != nullptr)
            slot = (slot + 1) & (mySlots.size() - 1);
        mySlots[slot] = entry;
    }

    void grow()
    {
        std::vector<Entry> old(mySlots.empty() ? 4 : mySlots.size() * 2);
        old.swap(mySlots);
        for (const Entry& entry : old)
            if (entry.node != nullptr)
                reinsert(entry);
    }

    std::vector<Entry> mySlots; // their number is a power of two, and at least a third of them is free
    std::size_t myCount = 0;
};

// The key of most lists: the name of the node.
struct DtNameOfNode
{
    template <typename Node>
    const DtString& operator()(const Node& node) const
    {
        return node.getName();
    }
};

#endif
