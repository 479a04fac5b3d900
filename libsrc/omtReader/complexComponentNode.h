#ifndef OMT_READER_COMPLEX_COMPONENT_NODE_H
#define OMT_READER_COMPLEX_COMPONENT_NODE_H

#include "omtReader/omtDatatypeNode.h"

#include <iosfwd>

// A component of a complex datatype.
//
// Type, bounds and condition are derived from the cardinality text when they are asked for after it was set:
//   text     type  minimum  maximum  condition
//   "3"      0     3        3
//   "0-5"    1     0        5
//   "(x=1)"  2     0        1        component "x" has the value "1"; may also follow a number or a range
//   "1+"     3     1        -1       (what follows the "+" is not looked at)
//   "(x)"    5     0        1        component "x)": without a value the closing parenthesis stays in it
//   "%8"     6     0        8
// A text that is no number gives zeros, an empty or blank one the initial 0, -1, -1.
class DtComplexComponentNode : public DtOMTDatatypeNode
{
public:
    virtual void setCardinality(const DtString& cardinality);
    virtual const DtString& getCardinality() const { return myCardinality; }
    virtual void setAccuracy(const DtString& accuracy) { myAccuracy = accuracy; }
    virtual const DtString& getAccuracy() const { return myAccuracy; }
    virtual void setAccuracyCondition(const DtString& condition) { myAccuracyCondition = condition; }
    virtual const DtString& getAccuracyCondition() const { return myAccuracyCondition; }
    virtual int getCardinalityMinimum() const;
    virtual int getCardinalityMaximum() const;
    virtual const DtString& getConditionalComponent() const;
    virtual const DtString& getConditionalValue() const;
    virtual int getCardinalityType() const;
    virtual void setDerivedValues() const;

private:
    void deriveIfStale() const;
    void readBounds(std::istream& in) const;
    void readCondition(std::istream& in) const;

    DtString myCardinality;
    DtString myAccuracy;
    DtString myAccuracyCondition;
    mutable int myCardinalityType = 0;
    mutable int myCardinalityMinimum = -1;
    mutable int myCardinalityMaximum = -1;
    mutable DtString myConditionalComponent;
    mutable DtString myConditionalValue;
    mutable bool myIsStale = false;
};

#endif
