#ifndef OMT_READER_CLASS_CHILDREN_H
#define OMT_READER_CLASS_CHILDREN_H

#include <list>
#include <memory>
#include <set>
#include <string>
#include <string_view>
#include <unordered_map>
#include <vector>

// The subclasses of one class in their order, and the walk along a dotted path through them. Owns no node.
//
// The walk goes down the path name by name and keeps, for each class on its way, the subclasses that are still to be
// tried. At each step `rest` is the part of the path that `node` and those below it have to answer for. A name may be
// the beginning of another, the character behind a name may be any, and siblings may share a name, so several
// subclasses can answer for one path; when one of them leads nowhere, the walk goes back and tries the next. The trap
// is the order: the first subclass of the list wins, whatever its name, and an index by name alone would find another
// one.
//
// A class with many subclasses gets such an index at the first walk, so that a walk costs about the same however many
// siblings there are. A look-up in it tries every length that a name of a subclass has, since the path does not tell
// where the name ends, and each entry knows its place in the list. A name does not change once its class is added.
template <typename Node>
class DtClassChildren
{
public:
    using Nodes = std::list<Node*>;

    void add(Node* child)
    {
        myNodes.push_back(child);
        if (myIndex != nullptr)
            myIndex->add(child);
    }
    const Nodes& nodes() const { return myNodes; }

    // `start` or one of its descendants, by this rule: a path that does not begin with the name of a node leads
    // nowhere; one that is the name leads to the node; otherwise the name and one more character, whatever it is, are
    // taken off and the children are asked in order with the rest. The first that answers wins. childrenOf(node) gives
    // the DtClassChildren of a node.
    template <typename ChildrenOf>
    static Node* find(Node* start, std::string_view path, ChildrenOf childrenOf);

private:
    enum
    {
        theLargestPlainList = 16 // children asked one by one
    };

    struct Entry
    {
        std::size_t order;
        Node* node;
    };

    // Finds the children of one class by name. Those that share a name stand in list order.
    struct Index
    {
        std::unordered_map<std::string, std::vector<Entry>> entries;
        std::set<std::size_t> lengths; // those that the names have
        std::size_t count = 0;

        void add(Node* child)
        {
            const std::string& name = child->getName().stdString();
            entries[name].push_back({count++, child});
            lengths.insert(name.size());
        }
    };

    // The children that may lead to the rest of a path, one by one in list order.
    class Candidates
    {
    public:
        Candidates(const DtClassChildren& children, std::string_view rest);
        Node* next(); // null when there are no more
        std::string_view rest() const { return myRest; }

    private:
        struct Run
        {
            const Entry* at;
            const Entry* end;
        };

        std::string_view myRest;
        typename Nodes::const_iterator myAt;
        typename Nodes::const_iterator myEnd;
        std::vector<Run> myRuns; // one for each name of a child with which the rest begins
    };

    const Index& index() const
    {
        if (myIndex == nullptr)
        {
            myIndex = std::make_unique<Index>();
            for (Node* child : myNodes)
                myIndex->add(child);
        }
        return *myIndex;
    }

    Nodes myNodes;
    mutable std::unique_ptr<Index> myIndex; // null until needed
};

template <typename Node>
DtClassChildren<Node>::Candidates::Candidates(const DtClassChildren& children, std::string_view rest)
    : myRest(rest), myAt(children.myNodes.begin()), myEnd(children.myNodes.end())
{
    if (children.myNodes.size() <= theLargestPlainList)
        return;
    myAt = myEnd;
    const Index& index = children.index();
    for (const std::size_t length : index.lengths)
    {
        if (length > rest.size())
            break;
        const auto found = index.entries.find(std::string(rest.substr(0, length)));
        if (found != index.entries.end())
            myRuns.push_back({found->second.data(), found->second.data() + found->second.size()});
    }
}

template <typename Node>
Node* DtClassChildren<Node>::Candidates::next()
{
    if (myAt != myEnd)
        return *myAt++;
    Run* first = nullptr;
    for (Run& run : myRuns)
        if (run.at != run.end && (first == nullptr || run.at->order < first->at->order))
            first = &run;
    return first != nullptr ? (first->at++)->node : nullptr;
}

template <typename Node>
template <typename ChildrenOf>
Node* DtClassChildren<Node>::find(Node* start, std::string_view path, ChildrenOf childrenOf)
{
    std::vector<Candidates> levels; // a stack of its own, so that no depth of classes exhausts the program's
    Node* node = start;
    std::string_view rest = path;
    while (true)
    {
        const std::string_view name = node->getName().stdString();
        if (rest.substr(0, name.size()) == name)
        {
            if (rest.size() == name.size())
                return node;
            levels.emplace_back(childrenOf(*node), rest.substr(name.size() + 1));
        }
        node = nullptr;
        while (!levels.empty() && (node = levels.back().next()) == nullptr)
            levels.pop_back();
        if (node == nullptr)
            return nullptr;
        rest = levels.back().rest();
    }
}

#endif
