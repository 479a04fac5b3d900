#include "codeGenApp/classFacts.h"

#include "codeGenApp/projectBadge.h"
#include "omtReader/interactionClassFedNode.h"
#include "omtReader/objectClassFedNode.h"

namespace
{
struct DtMemberFacts
{
    QString name, datatype, semantics;
};

struct DtClassFacts
{
    QString semantics;
    const char* memberNoun = "attribute";
    std::vector<DtMemberFacts> members; // of the class itself
};

QString text(const DtString& value)
{
    return QString::fromUtf8(value.c_str());
}

template <typename Members>
void addMembers(const Members& members, DtClassFacts& facts)
{
    for (const auto* member : members)
        if (member != nullptr) // stands where one was removed from the model
            facts.members.push_back(
                {text(member->getName()), text(member->getDatatype()), text(member->getDescription()).simplified()});
}

DtClassFacts factsOf(const DtFedNode& node)
{
    DtClassFacts facts;
    if (const auto* object = dynamic_cast<const DtObjectClassFedNode*>(&node))
    {
        facts.semantics = text(object->getDescriptor()).simplified();
        addMembers(object->getAttributes(), facts);
    }
    else if (const auto* interaction = dynamic_cast<const DtInteractionClassFedNode*>(&node))
    {
        facts.semantics = text(interaction->getDescriptor()).simplified();
        facts.memberNoun = "parameter";
        addMembers(interaction->getParameters(), facts);
    }
    return facts;
}

QString firstSentence(const QString& text)
{
    const int end = text.indexOf(QStringLiteral(". "));
    return end < 0 ? text : text.left(end + 1);
}

QString paragraph(const QString& text)
{
    return text.isEmpty() ? QString() : "<p>" + text.toHtmlEscaped() + "</p>";
}

// A heading and a row for each member; nothing for a class without members.
QString memberTable(const DtFedNode& node)
{
    const DtClassFacts facts = factsOf(node);
    if (facts.members.empty())
        return QString();
    QString table = "<h4>" + text(node.getFullName()).toHtmlEscaped() + "</h4><table cellspacing=\"4\">";
    for (const DtMemberFacts& member : facts.members)
        table += "<tr><td><b>" + member.name.toHtmlEscaped() + "</b></td><td>" + member.datatype.toHtmlEscaped() +
                 "</td></tr><tr><td colspan=\"2\">" + member.semantics.toHtmlEscaped() + "</td></tr>";
    return table + "</table>";
}
} // namespace

QStringList DtMemberNames(const DtFedNode& node)
{
    QStringList names;
    for (const DtMemberFacts& member : factsOf(node).members)
        names += member.name;
    return names;
}

QString DtClassToolTip(const DtFedNode& node)
{
    const DtClassFacts facts = factsOf(node);
    const std::string plural = std::string(facts.memberNoun) + "s";
    return "<p><b>" + text(node.getFullName()).toHtmlEscaped() + "</b></p>" +
           paragraph(firstSentence(facts.semantics)) +
           paragraph(DtCounted(facts.members.size(), facts.memberNoun, plural.c_str()));
}

QString DtClassDetails(const DtFedNode& node)
{
    QString tables;
    for (const DtFedNode* each = &node; each != nullptr; each = each->getParentObject())
        tables.prepend(memberTable(*each));
    return "<h3>" + text(node.getName()).toHtmlEscaped() + "</h3>" + paragraph(text(node.getFullName())) +
           paragraph(factsOf(node).semantics) + tables;
}
