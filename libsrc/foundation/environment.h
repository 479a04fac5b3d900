#ifndef FOUNDATION_ENVIRONMENT_H
#define FOUNDATION_ENVIRONMENT_H

#include "foundation/string.h"

#include <iosfwd>
#include <list>
#include <memory>
#include <vector>

// One node of a configuration store: an object, an attribute of an object, or a comment.
class DtEnvValue
{
public:
    // What format() answers.
    enum Format
    {
        Comment = 1,
        Attribute = 2,
        Object = 7
    };

    explicit DtEnvValue(const DtString& name) : myName(name) {}
    virtual ~DtEnvValue() = default;
    DtEnvValue(const DtEnvValue&) = delete; // nodes are shared between handles, never copied
    DtEnvValue& operator=(const DtEnvValue&) = delete;

    virtual int format() const = 0;
    // The text of an attribute or a comment; of an object the text of its attribute "value", empty when it has none.
    virtual DtString value() const = 0;
    // Makes the attribute "value" of an object when there is none yet.
    virtual void setValue(const DtString& text) = 0;
    const DtString& name() const { return myName; } // empty for a comment

private:
    DtString myName;
};

// A node that is a text and nothing else: an attribute, or a comment, which has no name.
class DtEnvText : public DtEnvValue
{
public:
    DtEnvText(Format format, const DtString& name, const DtString& text);
    int format() const override { return myFormat; }
    DtString value() const override { return myText; }
    void setValue(const DtString& text) override { myText = text; }

private:
    Format myFormat;
    DtString myText;
};

// A node with a type, attributes and children. One whose type equals its name is also called a list.
//
// Attributes have distinct names. Children are objects and comments in the order of the file; names may repeat.
class DtEnvObject : public DtEnvValue
{
public:
    using Nodes = std::vector<std::shared_ptr<DtEnvValue>>;

    DtEnvObject(const DtString& name, const DtString& type) : DtEnvValue(name), myType(type) {}
    int format() const override { return Object; }
    DtString value() const override;
    void setValue(const DtString& text) override;
    bool hasValue() const { return attribute("value") != nullptr; }
    const DtString& type() const { return myType; }
    bool isList() const { return myType == name(); }

    // The attribute of that name, null if none.
    std::shared_ptr<DtEnvValue> attribute(const DtString& name) const;
    const Nodes& attributes() const { return myAttributes; }
    const Nodes& children() const { return myChildren; }

    // Gives the attribute its text, adding it when there is none of that name.
    std::shared_ptr<DtEnvValue> setAttribute(const DtString& name, const DtString& text);
    void addChild(const std::shared_ptr<DtEnvValue>& child) { myChildren.push_back(child); }

    // The node as an object, null if it is not one.
    static DtEnvObject* castToObject(const std::shared_ptr<DtEnvValue>& node);

private:
    DtString myType;
    Nodes myAttributes;
    Nodes myChildren;
};

// A handle on a tree of named values.
//
// Copies are shallow: they share the nodes, so a change through one is seen by all. The nodes live as long as any
// handle or pointer reaches them. Adding to a handle without a root gives that handle a nameless root first; other
// handles do not learn of it.
class DtEnvironment
{
public:
    using NodePtr = std::shared_ptr<DtEnvValue>;

    DtEnvironment() = default;
    explicit DtEnvironment(const NodePtr& root) : myRoot(root) {}
    DtEnvironment(const DtEnvironment&) = default;
    DtEnvironment& operator=(const DtEnvironment&) = default;
    virtual ~DtEnvironment() = default;

    const NodePtr& root() const { return myRoot; } // may be null
    void setRoot(const NodePtr& root) { myRoot = root; }

    // Each adds a child under the root or under `parent` and returns it; null when the parent is no object. An object
    // added without a type is a list.
    NodePtr addObject(const DtString& name);
    NodePtr addObject(const DtString& name, const DtString& type);
    NodePtr addObject(const DtString& name, const NodePtr& parent);
    NodePtr addObject(const DtString& name, const DtString& type, const NodePtr& parent);
    // An attribute that is already there gets the new text.
    NodePtr addAttribute(const DtString& name, const DtString& value);
    NodePtr addAttribute(const DtString& name, const DtString& value, const NodePtr& parent);
    NodePtr addComment(const DtString& text);

    // The first list of that name below the root, null if none.
    NodePtr getNamedList(const DtString& name) const;
    // The object of that name and type below the root, null if none. Of several the last one counts, so that an object
    // added later stands for the earlier ones.
    NodePtr getObject(const DtString& name, const DtString& type) const;
    // Appends the root's attribute and all children of that name.
    void getObjectsByName(const DtString& name, std::list<NodePtr>& list) const;

private:
    const NodePtr& rootForAdding();

    NodePtr myRoot;
};

// One line an entry, "name (type) = value", two blanks an indent; without " = value" where an entry has none. A
// nameless root has no line. Attributes other than "value" stand ahead of the children with the type "attribute";
// comments are left out.
std::ostream& operator<<(std::ostream& out, const DtEnvironment& environment);

#endif
