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
    DtArrayCardinality kind;
    DtArrayCardinality kindOfText; // when the elements are "HLAASCIIchar"
};

//   encoding                  kind                   of text
const DtEncodingRow theEncodings[] = {
    {"HLAbitArray",            DtArrayOfBits,         DtArrayOfBits        },
    {"BitArray",               DtArrayOfBits,         DtArrayOfBits        },
    {"HLAnullTerminatedArray", DtArrayNullTerminated, DtArrayNullTerminated},
    {"NullTerminatedArray",    DtArrayNullTerminated, DtArrayNullTerminated},
    {"RPRnullTerminatedArray", DtArrayNullTerminated, DtArrayNullTerminated},
    {"HLAlengthlessVarArray",  DtArrayLengthless,     DtArrayNullTerminated},
    {"RPRlengthlessArray",     DtArrayLengthless,     DtArrayNullTerminated},
    {"HLAvariableArray",       DtArrayVariable,       DtArrayVariable      },
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
    return myKind;
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
    myKind = DtArrayLengthless;
    myCardinalityMinimum = 0;
    myCardinalityMaximum = -1;
    for (const DtEncodingRow& row : theEncodings)
    {
        if (myEncoding == row.encoding)
        {
            myKind = getDatatype() == "HLAASCIIchar" ? row.kindOfText : row.kind;
            return;
        }
    }
    if (DtContainsSubstring(myEncoding, "addingTo"))
    {
        myKind = DtArrayPadded;
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
    myKind = DtArrayFixed;
    myCardinalityMinimum = length;
    myCardinalityMaximum = length;
}

void DtArrayDatatypeNode::setDimensions() const
{
    myKind = DtArrayMultiDim;
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
    myKind = DtArrayBounded;
    myCardinalityMinimum = integerOf(text.substr(open + 1, firstDot - open - 1));
    myCardinalityMaximum = integerOf(text.substr(secondDot + 1, close - secondDot - 1));
}

int DtArrayDatatypeNode::extractInteger(const DtString& text) const
{
    const std::string& bytes = text.stdString();
    const auto start = std::find_if(bytes.begin(), bytes.end(), DtIsDigit);
    return integerOf(std::string(start, std::find_if_not(start, bytes.end(), DtIsDigit)));
}
