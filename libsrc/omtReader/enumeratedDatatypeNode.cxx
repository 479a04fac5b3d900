#include "omtReader/enumeratedDatatypeNode.h"

#include "foundation/warningRules.h"

int DtEnumeratedDatatypeNode::defaultEnumerationSize = 2;

DtEnumeratedDatatypeNode::DtEnumeratedDatatypeNode(const DtEnumeratedDatatypeNode& other)
    : DtOMTNode(other),
      myDescription(other.myDescription),
      myRepresentation(other.myRepresentation),
      myEnumerations(other.myEnumerations)
{
    std::size_t order = 0;
    for (DtEnumerationNode* node : myEnumerations.nodes())
        myNumberIndex.add(node, order++);
}

std::list<DtEnumerationNode*>::const_iterator DtEnumeratedDatatypeNode::getEnumerationNodeList() const
{
    return myEnumerations.begin();
}

std::list<DtEnumerationNode*>::const_iterator DtEnumeratedDatatypeNode::getEnumerationNodeEnd() const
{
    return myEnumerations.end();
}

bool DtEnumeratedDatatypeNode::addEnumerationNode(DtEnumerationNode* node)
{
    if (node == nullptr || isDuplicate(*node))
        return false;
    myNumberIndex.add(node, myEnumerations.nodes().size());
    myEnumerations.add(node);
    return true;
}

// The first enumerator that clashes decides which warning is written, its name ahead of its number.
bool DtEnumeratedDatatypeNode::isDuplicate(const DtEnumerationNode& node) const
{
    const auto* sameName = myEnumerations.findEntry(node.getEnum());
    const auto* sameNumber = myNumberIndex.findEntry(node.getNumber());
    if (sameName == nullptr && sameNumber == nullptr)
        return false;
    if (sameName != nullptr && (sameNumber == nullptr || sameName->order <= sameNumber->order))
    {
        DtTellWarning(DtRules::duplicateEnumerator, DtSubject::enumerator(node.getEnum(), getName()),
                      "Duplicated enum name " + node.getEnum());
        return true;
    }
    // The number is not printed: it is how much of the text is left out at the start.
    static const DtString theText("Duplicated enum number ");
    const int number = node.getNumber();
    if (number >= 0 && number < static_cast<int>(theText.length()))
        DtTellWarning(DtRules::duplicateEnumerator, DtSubject::enumerator(node.getEnum(), getName()),
                      theText.c_str() + number);
    return true;
}

namespace
{
struct DtSizeRow
{
    const char* text;
    int size; // in bytes
};

const DtSizeRow theRepresentationStarts[] = {
    {"HLAinteger16", 2},
    {"HLAinteger32", 4},
};

const DtSizeRow theNameEnds[] = {
    {"8",  1},
    {"16", 2},
    {"32", 4},
};

bool endsWith(const std::string& text, const std::string& end)
{
    return text.size() >= end.size() && text.compare(text.size() - end.size(), end.size(), end) == 0;
}
} // namespace

int DtEnumeratedDatatypeNode::getExpectedEnumerationSize() const
{
    const int bits = myRepresentation.toInt();
    if (bits >= 1)
        return bits / 8;
    if (myRepresentation == "HLAoctet")
        return 1;
    for (const DtSizeRow& row : theRepresentationStarts)
        if (myRepresentation.startsWith(row.text))
            return row.size;
    for (const DtSizeRow& row : theNameEnds)
        if (endsWith(getName().stdString(), row.text))
            return row.size;
    return getName() == "RPRboolean" ? 1 : defaultEnumerationSize;
}
