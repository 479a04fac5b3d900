#ifndef OMT_READER_CLASS_LIST_H
#define OMT_READER_CLASS_LIST_H

#include "omtReader/nodeIndex.h"

#include <iterator>
#include <list>

// The flat list of all object or all interaction classes of a tree. Owns the classes and is not copied.
//
// The full name of a class can change while the tree is being built, and an index would keep the old one. So the index
// covers only the head of the list, up to the first class whose name is not settled yet, and each look-up moves that
// border on as far as it can.
template <typename Node>
class DtClassList
{
public:
    using Nodes = std::list<Node*>;

    DtClassList() = default;
    DtClassList(const DtClassList&) = delete;
    DtClassList& operator=(const DtClassList&) = delete;
    ~DtClassList()
    {
        for (Node* node : myNodes)
            delete node;
    }

    // Takes the class over; null is ignored.
    void add(Node* node)
    {
        if (node == nullptr)
            return;
        myIdentifierIndex.add(node, myNodes.size());
        myNodes.push_back(node);
    }
    const Nodes& nodes() const { return myNodes; }

    // First class with the number or the full name, null if none.
    Node* findByIdentifier(int identifier) const { return myIdentifierIndex.find(identifier); }
    Node* findByFullName(const DtString& name) const;

private:
    struct IdentifierOf
    {
        int operator()(const Node& node) const { return node.getIdentifier(); }
    };
    struct FullNameOf
    {
        const DtString& operator()(const Node& node) const { return node.getFullName(); }
    };

    Nodes myNodes;
    DtNodeIndex<Node, IdentifierOf> myIdentifierIndex;
    // The index covers the first myIndexedCount classes of the list; every one of them has a full name that no longer
    // changes. The classes behind them are asked one by one.
    mutable DtNodeIndex<Node, FullNameOf> myFullNameIndex;
    mutable std::size_t myIndexedCount = 0;
    mutable typename Nodes::const_iterator myLastIndexed = myNodes.end(); // when the count is not 0
};

template <typename Node>
Node* DtClassList<Node>::findByFullName(const DtString& name) const
{
    if (Node* known = myFullNameIndex.find(name))
        return known;
    auto at = myIndexedCount == 0 ? myNodes.begin() : std::next(myLastIndexed);
    for (bool isSettled = true; at != myNodes.end(); ++at)
    {
        const bool isMatch = (*at)->getFullName() == name;
        isSettled = isSettled && (*at)->isFullNameSettled();
        if (isSettled)
        {
            myFullNameIndex.add(*at, myIndexedCount++);
            myLastIndexed = at;
        }
        if (isMatch)
            return *at;
    }
    return nullptr;
}

#endif
