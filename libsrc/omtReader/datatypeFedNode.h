#ifndef OMT_READER_DATATYPE_FED_NODE_H
#define OMT_READER_DATATYPE_FED_NODE_H

#include "omtReader/fedNode.h"

// Common base of attributes and parameters: a member of a class, with its datatype and how many values it has.
//
// Texts stay as they are in the file. Three numbers are derived from the cardinality text when they are first asked
// for:
//   text      type  minimum  maximum
//   "5"       0     5        5
//   "1+"      1     1        0
//   "0-4"     2     0        4   (a maximum below the minimum counts as the minimum)
// A text that is no number gives zeros, an empty or blank one the initial 0, 1, 1.
class DtDatatypeFedNode : public DtFedNode
{
public:
    typedef int DtCardinalityType;

    using DtFedNode::DtFedNode;

    virtual void setDatatype(const DtString& datatype) { myDatatype = DtSharedText::recent(datatype); }
    virtual const DtString& getDatatype() const { return myDatatype.get(); }
    virtual void setCardinality(const DtString& cardinality);
    virtual const DtString& getCardinality() const { return myCardinality.get(); }
    virtual void setAccuracy(const DtString& accuracy) { myAccuracy = DtSharedText::recent(accuracy); }
    virtual const DtString& getAccuracy() const { return myAccuracy.get(); }
    virtual void setAccuracyCondition(const DtString& condition)
    {
        myAccuracyCondition = DtSharedText::recent(condition);
    }
    virtual const DtString& getAccuracyCondition() const { return myAccuracyCondition.get(); }
    virtual void setDescription(const DtString& description) { myDescription = description; }
    virtual const DtString& getDescription() const { return myDescription.get(); }
    virtual DtCardinalityType getCardinalityType() const;
    virtual int getCardinalityMinimum() const;
    virtual int getCardinalityMaximum() const;
    virtual void setDerivedValues() const;

private:
    void deriveIfStale() const;

    DtSharedText myDatatype;
    DtSharedText myCardinality = DtSharedText::recent("1");
    DtSharedText myAccuracy;
    DtSharedText myAccuracyCondition;
    DtSharedText myDescription;
    mutable DtCardinalityType myCardinalityType = 0;
    mutable int myCardinalityMinimum = 1;
    mutable int myCardinalityMaximum = 1;
    mutable bool myIsStale = false;
};

#endif
