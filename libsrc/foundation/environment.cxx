#include "foundation/environment.h"

#include <algorithm>
#include <ostream>

DtEnvText::DtEnvText(Format format, const DtString& name, const DtString& text)
    : DtEnvValue(name), myFormat(format), myText(text)
{
}

DtString DtEnvObject::value() const
{
    const std::shared_ptr<DtEnvValue> found = attribute("value");
    return found != nullptr ? found->value() : DtString();
}

void DtEnvObject::setValue(const DtString& text)
{
    setAttribute("value", text);
}

std::shared_ptr<DtEnvValue> DtEnvObject::attribute(const DtString& name) const
{
    const auto found = std::find_if(myAttributes.begin(), myAttributes.end(),
                                    [&name](const auto& each) { return each->name() == name; });
    return found != myAttributes.end() ? *found : nullptr;
}

std::shared_ptr<DtEnvValue> DtEnvObject::setAttribute(const DtString& name, const DtString& text)
{
    std::shared_ptr<DtEnvValue> node = attribute(name);
    if (node != nullptr)
        node->setValue(text);
    else
    {
        node = std::make_shared<DtEnvText>(Attribute, name, text);
        myAttributes.push_back(node);
    }
    return node;
}

DtEnvObject* DtEnvObject::castToObject(const std::shared_ptr<DtEnvValue>& node)
{
    return node != nullptr && node->format() == Object ? static_cast<DtEnvObject*>(node.get()) : nullptr;
}

const DtEnvironment::NodePtr& DtEnvironment::rootForAdding()
{
    if (myRoot == nullptr)
        myRoot = std::make_shared<DtEnvObject>("", "");
    return myRoot;
}

DtEnvironment::NodePtr DtEnvironment::addObject(const DtString& name)
{
    return addObject(name, name, rootForAdding());
}

DtEnvironment::NodePtr DtEnvironment::addObject(const DtString& name, const DtString& type)
{
    return addObject(name, type, rootForAdding());
}

DtEnvironment::NodePtr DtEnvironment::addObject(const DtString& name, const NodePtr& parent)
{
    return addObject(name, name, parent);
}

DtEnvironment::NodePtr DtEnvironment::addObject(const DtString& name, const DtString& type, const NodePtr& parent)
{
    DtEnvObject* const object = DtEnvObject::castToObject(parent);
    if (object == nullptr)
        return nullptr;
    const NodePtr child = std::make_shared<DtEnvObject>(name, type);
    object->addChild(child);
    return child;
}

DtEnvironment::NodePtr DtEnvironment::addAttribute(const DtString& name, const DtString& value)
{
    return addAttribute(name, value, rootForAdding());
}

DtEnvironment::NodePtr DtEnvironment::addAttribute(const DtString& name, const DtString& value, const NodePtr& parent)
{
    DtEnvObject* const object = DtEnvObject::castToObject(parent);
    return object != nullptr ? object->setAttribute(name, value) : nullptr;
}

DtEnvironment::NodePtr DtEnvironment::addComment(const DtString& text)
{
    DtEnvObject* const object = DtEnvObject::castToObject(rootForAdding());
    if (object == nullptr)
        return nullptr;
    const NodePtr comment = std::make_shared<DtEnvText>(DtEnvValue::Comment, "", text);
    object->addChild(comment);
    return comment;
}

DtEnvironment::NodePtr DtEnvironment::getNamedList(const DtString& name) const
{
    const DtEnvObject* const root = DtEnvObject::castToObject(myRoot);
    if (root == nullptr)
        return nullptr;
    for (const NodePtr& child : root->children())
    {
        const DtEnvObject* const object = DtEnvObject::castToObject(child);
        if (object != nullptr && object->isList() && object->name() == name)
            return child;
    }
    return nullptr;
}

DtEnvironment::NodePtr DtEnvironment::getObject(const DtString& name, const DtString& type) const
{
    const DtEnvObject* const root = DtEnvObject::castToObject(myRoot);
    if (root == nullptr)
        return nullptr;
    const DtEnvObject::Nodes& children = root->children();
    for (auto child = children.rbegin(); child != children.rend(); ++child)
    {
        const DtEnvObject* const object = DtEnvObject::castToObject(*child);
        if (object != nullptr && object->name() == name && object->type() == type)
            return *child;
    }
    return nullptr;
}

void DtEnvironment::getObjectsByName(const DtString& name, std::list<NodePtr>& list) const
{
    const DtEnvObject* const root = DtEnvObject::castToObject(myRoot);
    if (root == nullptr)
        return;
    if (const NodePtr attribute = root->attribute(name))
        list.push_back(attribute);
    for (const NodePtr& child : root->children())
        if (child->format() != DtEnvValue::Comment && child->name() == name)
            list.push_back(child);
}

namespace
{
void printEntry(std::ostream& out, int depth, const DtString& name, const DtString& type)
{
    for (int indent = 0; indent < depth; ++indent)
        out << "  ";
    out << name << " (" << type << ")";
}

// The attributes but for "value", then the children with all that is below them.
void printContent(std::ostream& out, const DtEnvObject& object, int depth)
{
    for (const auto& attribute : object.attributes())
    {
        if (attribute->name() == "value")
            continue;
        printEntry(out, depth, attribute->name(), "attribute");
        out << " = " << attribute->value() << "\n";
    }
    for (const auto& node : object.children())
    {
        const DtEnvObject* const child = DtEnvObject::castToObject(node);
        if (child == nullptr)
            continue;
        printEntry(out, depth, child->name(), child->type());
        if (child->hasValue())
            out << " = " << child->value();
        out << "\n";
        printContent(out, *child, depth + 1);
    }
}
} // namespace

std::ostream& operator<<(std::ostream& out, const DtEnvironment& environment)
{
    const DtEnvObject* const root = DtEnvObject::castToObject(environment.root());
    if (root == nullptr)
        return out;
    if (root->name().isEmpty())
    {
        printContent(out, *root, 0);
        return out;
    }
    DtEnvObject holder("", ""); // so that the root is printed as any other entry
    holder.addChild(environment.root());
    printContent(out, holder, 0);
    return out;
}
