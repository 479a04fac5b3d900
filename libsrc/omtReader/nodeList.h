#ifndef OMT_READER_NODE_LIST_H
#define OMT_READER_NODE_LIST_H

#include "omtReader/nodeIndex.h"

#include <list>
#include <utility>

// A list that owns its nodes and finds the first node of a key quickly. Copied deep.
template <typename Node, typename KeyOf = DtNameOfNode>
class DtNodeList
{
public:
    using Nodes = std::list<Node*>;
    using Iterator = typename Nodes::const_iterator;
    using Key = typename DtNodeIndex<Node, KeyOf>::Key;

    DtNodeList() = default;
    DtNodeList(const DtNodeList& other)
    {
        for (const Node* node : other.myNodes)
            add(new Node(*node));
    }
    DtNodeList& operator=(const DtNodeList&) = delete;
    ~DtNodeList()
    {
        for (Node* node : myNodes)
            delete node;
    }

    // Takes the node over; null is ignored.
    void add(Node* node)
    {
        if (node == nullptr)
            return;
        myIndex.add(node, myNodes.size());
        myNodes.push_back(node);
    }
    // First node whose key equals the argument, null if none.
    Node* find(const Key& key) const { return myIndex.find(key); }
    // The same with its position in the list.
    const typename DtNodeIndex<Node, KeyOf>::Entry* findEntry(const Key& key) const { return myIndex.findEntry(key); }

    const Nodes& nodes() const { return myNodes; }
    Iterator begin() const { return myNodes.begin(); }
    Iterator end() const { return myNodes.end(); }

    // Adds a copy of each node of the other list whose key is not here yet.
    void merge(const DtNodeList& other)
    {
        for (const Node* node : other.myNodes)
            if (find(KeyOf()(*node)) == nullptr)
                add(new Node(*node));
    }
    // Adds those nodes themselves. The others stay where they are.
    void takeNew(DtNodeList& other)
    {
        other.myIndex = {};
        for (Node* node : std::exchange(other.myNodes, {}))
            (find(KeyOf()(*node)) == nullptr ? *this : other).add(node);
    }

private:
    Nodes myNodes;
    DtNodeIndex<Node, KeyOf> myIndex;
};

#endif
