#ifndef OMT_READER_FED_NODE_H
#define OMT_READER_FED_NODE_H

#include "omtReader/omtNode.h"

#include <memory>

// A node of a class hierarchy: an object or interaction class, or an attribute or parameter below its class.
//
// The parent is not owned. A copy keeps the parent of its source until it is placed under one of its own.
class DtFedNode : public DtOMTNode
{
public:
    explicit DtFedNode(DtFedNode* parent = nullptr) : myParent(parent) {}
    DtFedNode(const DtFedNode& other) : DtOMTNode(other), myParent(other.myParent) {}
    DtFedNode& operator=(const DtFedNode& other);

    // Compares the names only.
    bool operator==(const DtFedNode& other) const { return getName() == other.getName(); }

    // A node cannot be its own parent: the program ends.
    virtual void setParentObject(DtFedNode* parent);
    virtual DtFedNode* getParentObject() const { return myParent; }
    // The names from the top class down, joined by dots; a parent without a name does not contribute, and neither does
    // what is above it. Worked out once: after the first call a new name or parent no longer shows in it, unless the
    // node had no parent with a name then.
    virtual const DtString& getFullName() const;

    // True once the full name can no longer change.
    bool isFullNameSettled() const { return myFullName != nullptr; }

private:
    const DtFedNode* namedParent() const;
    bool isBelowRing() const;

    DtFedNode* myParent;
    mutable std::unique_ptr<DtString> myFullName; // null until asked for
};

#endif
