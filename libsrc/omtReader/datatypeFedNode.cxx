#include "omtReader/datatypeFedNode.h"

#include "omtReader/cardinalityText.h"

#include <algorithm>
#include <locale>
#include <sstream>

void DtDatatypeFedNode::setCardinality(const DtString& cardinality)
{
    myCardinality = DtSharedText::recent(cardinality);
    myIsStale = true;
}

DtDatatypeFedNode::DtCardinalityType DtDatatypeFedNode::getCardinalityType() const
{
    deriveIfStale();
    return myCardinalityType;
}

int DtDatatypeFedNode::getCardinalityMinimum() const
{
    deriveIfStale();
    return myCardinalityMinimum;
}

int DtDatatypeFedNode::getCardinalityMaximum() const
{
    deriveIfStale();
    return myCardinalityMaximum;
}

void DtDatatypeFedNode::deriveIfStale() const
{
    if (myIsStale)
        setDerivedValues();
}

void DtDatatypeFedNode::setDerivedValues() const
{
    myIsStale = false;
    myCardinalityType = 0;
    myCardinalityMinimum = 1;
    myCardinalityMaximum = 1;
    if (DtIsBlank(myCardinality))
        return;
    std::istringstream in(myCardinality.get().stdString());
    in.imbue(std::locale::classic());
    myCardinalityMinimum = DtReadInteger(in);
    myCardinalityMaximum = myCardinalityMinimum;
    const int next = in.peek();
    if (next == '+')
    {
        myCardinalityType = 1;
        myCardinalityMaximum = 0;
    }
    else if (next == '-')
    {
        myCardinalityType = 2;
        in.ignore();
        myCardinalityMaximum = std::max(myCardinalityMinimum, DtReadInteger(in));
    }
}
