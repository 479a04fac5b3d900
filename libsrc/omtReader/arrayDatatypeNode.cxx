#include "omtReader/arrayDatatypeNode.h"

#include "foundation/stringUtils.h"

#include <algorithm>
#include <climits>
#include <cstdlib>

namespace
{
// The number at the start of the text, in decimal, octal ("010") or hexadecimal ("0x10").
int integerOf(const std::string& text)
{
    return static_cast<int>(std::clamp<long>(std::strtol(text.c_str(), nullptr, 0), INT_MIN, INT_MAX));
}

struct DtEncodingRow
{
    const char* encoding;
    int type;
    int typeOfText; // when the elements are "HLAASCIIchar"
};

//   encoding                   type  of text
const DtEncodingRow theEncodings[] = {
    {"HLAbitArray",            7,  7 },
    {"BitArray",               7,  7 },
    {"HLAnullTerminatedArray", 4,  4 },
    {"NullTerminatedArray",    4,  4 },
    {"RPRnullTerminatedArray", 4,  4 },
    {"HLAlengthlessVarArray",  8,  4 },
    {"RPRlengthlessArray",     8,  4 },
    {"HLAvariableArray",       10, 10},
};
} // namespace

void DtArrayDatatypeNode::setCardinality(const DtString& cardinality)
{
    myCardinality = cardinality;
    myIsStale = true;
}

void DtArrayDatatypeNode::setEncoding(const DtString& encoding)
{
    myEncoding = encoding;
    myIsStale = true;
}

int DtArrayDatatypeNode::getCardinalityType() const
{
    deriveIfStale();
    return myCardinalityType;
}

int DtArrayDatatypeNode::getCardinalityMinimum() const
{
    deriveIfStale();
    return myCardinalityMinimum;
}

int DtArrayDatatypeNode::getCardinalityMaximum() const
{
    deriveIfStale();
    return myCardinalityMaximum;
}

const std::vector<int>& DtArrayDatatypeNode::getMultiDimCardinality() const
{
    deriveIfStale();
    return myDimensions;
}

void DtArrayDatatypeNode::deriveIfStale() const
{
    if (myIsStale)
        setDerivedValues();
}

void DtArrayDatatypeNode::setDerivedValues() const
{
    myIsStale = false;
    myCardinalityType = 8;
    myCardinalityMinimum = 0;
    myCardinalityMaximum = -1;
    for (const DtEncodingRow& row : theEncodings)
    {
        if (myEncoding == row.encoding)
        {
            myCardinalityType = getDatatype() == "HLAASCIIchar" ? row.typeOfText : row.type;
            return;
        }
    }
    if (DtContainsSubstring(myEncoding, "addingTo"))
    {
        myCardinalityType = 5;
        myCardinalityMaximum = extractInteger(myEncoding) / 8;
    }
    else if (myEncoding == "HLAfixedArray")
        deriveFromFixedEncoding();
    else if (myCardinality.toInt() != 0)
        setLength(myCardinality.toInt());
}

void DtArrayDatatypeNode::deriveFromFixedEncoding() const
{
    if (DtContainsSubstring(myCardinality, "["))
        setBounds();
    else if (DtContainsSubstring(myCardinality, ","))
        setDimensions();
    else
        setLength(myCardinality.toInt());
}

void DtArrayDatatypeNode::setLength(int length) const
{
    myCardinalityType = 1;
    myCardinalityMinimum = length;
    myCardinalityMaximum = length;
}

void DtArrayDatatypeNode::setDimensions() const
{
    myCardinalityType = 9;
    for (const DtString& piece : DtSplit(myCardinality, ','))
        myDimensions.push_back(integerOf(piece.stdString()));
}

// "[1..10]"; a text without both dots and the bracket behind them leaves the array without a length.
void DtArrayDatatypeNode::setBounds() const
{
    const std::string& text = myCardinality.stdString();
    const std::size_t open = text.find('[');
    const std::size_t firstDot = text.find('.', open);
    const std::size_t secondDot = firstDot != std::string::npos ? text.find('.', firstDot + 1) : firstDot;
    const std::size_t close = secondDot != std::string::npos ? text.find(']', secondDot) : secondDot;
    if (close == std::string::npos)
        return;
    myCardinalityType = 2;
    myCardinalityMinimum = integerOf(text.substr(open + 1, firstDot - open - 1));
    myCardinalityMaximum = integerOf(text.substr(secondDot + 1, close - secondDot - 1));
}

int DtArrayDatatypeNode::extractInteger(const DtString& text) const
{
    const std::string& bytes = text.stdString();
    const auto start = std::find_if(bytes.begin(), bytes.end(), DtIsDigit);
    return integerOf(std::string(start, std::find_if_not(start, bytes.end(), DtIsDigit)));
}
