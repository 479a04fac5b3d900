#include "omtReader/complexComponentNode.h"

#include "foundation/stringUtils.h"
#include "omtReader/cardinalityText.h"

#include <locale>
#include <sstream>

void DtComplexComponentNode::setCardinality(const DtString& cardinality)
{
    myCardinality = cardinality;
    myIsStale = true;
}

int DtComplexComponentNode::getCardinalityMinimum() const
{
    deriveIfStale();
    return myCardinalityMinimum;
}

int DtComplexComponentNode::getCardinalityMaximum() const
{
    deriveIfStale();
    return myCardinalityMaximum;
}

const DtString& DtComplexComponentNode::getConditionalComponent() const
{
    deriveIfStale();
    return myConditionalComponent;
}

const DtString& DtComplexComponentNode::getConditionalValue() const
{
    deriveIfStale();
    return myConditionalValue;
}

int DtComplexComponentNode::getCardinalityType() const
{
    deriveIfStale();
    return myCardinalityType;
}

void DtComplexComponentNode::deriveIfStale() const
{
    if (myIsStale)
        setDerivedValues();
}

namespace
{
// The next character behind white space, not taken; no character at the end and after a failed read.
int peekPastSpace(std::istream& in)
{
    if (in.good())
        in >> std::ws;
    return in.peek();
}

// What stands behind white space up to the next white space or the stop character.
DtString readWord(std::istream& in, char stop)
{
    peekPastSpace(in);
    DtString word;
    for (int next = in.peek(); in.good() && next != stop && !DtIsSpace(static_cast<char>(next)); next = in.peek())
        word += static_cast<char>(in.get());
    return word;
}
} // namespace

void DtComplexComponentNode::setDerivedValues() const
{
    myIsStale = false;
    myCardinalityType = 0;
    myCardinalityMinimum = -1;
    myCardinalityMaximum = -1;
    myConditionalComponent = DtString();
    myConditionalValue = DtString();
    if (DtIsBlank(myCardinality))
        return;
    std::istringstream in(myCardinality.stdString());
    in.imbue(std::locale::classic());
    readBounds(in);
    if (myCardinalityType != 6)
        readCondition(in);
}

void DtComplexComponentNode::readBounds(std::istream& in) const
{
    switch (peekPastSpace(in))
    {
    case '%':
        in.ignore();
        myCardinalityType = 6;
        myCardinalityMinimum = 0;
        myCardinalityMaximum = DtReadInteger(in);
        return;
    case '(':
        myCardinalityType = 5;
        myCardinalityMinimum = 0;
        myCardinalityMaximum = 1;
        return;
    default:
        break;
    }
    myCardinalityMinimum = DtReadInteger(in);
    myCardinalityMaximum = myCardinalityMinimum;
    const int next = peekPastSpace(in);
    if (next == '-')
    {
        in.ignore();
        myCardinalityType = 1;
        myCardinalityMaximum = DtReadInteger(in);
    }
    else if (next == '+') // not taken, so that no condition is read behind it
    {
        myCardinalityType = 3;
        myCardinalityMaximum = -1;
    }
}

void DtComplexComponentNode::readCondition(std::istream& in) const
{
    const int next = peekPastSpace(in);
    if (next != '(' && next != ',')
        return;
    in.ignore();
    myConditionalComponent = readWord(in, '=');
    if (peekPastSpace(in) != '=')
        return; // the closing parenthesis stays in the component
    in.ignore();
    myCardinalityType = 2;
    myConditionalValue = readWord(in, '\0');
    const unsigned int length = myConditionalValue.length();
    if (length > 0 && myConditionalValue[length - 1] == ')')
        myConditionalValue.snipBack(')'); // the last one only
}
