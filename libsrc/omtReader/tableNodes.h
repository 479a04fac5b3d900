#ifndef OMT_READER_TABLE_NODES_H
#define OMT_READER_TABLE_NODES_H

#include "omtReader/omtDatatypeNode.h"

// The rows of the small tables of a model (IEEE 1516.2-2010, clauses 4.6 to 4.12): plain records, whose texts stay as
// they are in the file.

// A switch. The note of "automaticResignAction" is the action.
class DtBoolAttrNode : public DtOMTNode
{
public:
    virtual void setEnabled(bool enabled) { myIsEnabled = enabled; }
    virtual bool getEnabled() const { return myIsEnabled; }

private:
    bool myIsEnabled = false;
};

// A way of transporting updates, reliable or not.
class DtDescriptionNode : public DtOMTNode
{
public:
    virtual void setDescription(const DtString& description) { myDescription = description; }
    virtual const DtString& getDescription() const { return myDescription; }
    virtual void setReliable(const DtString& reliable) { myReliable = reliable; }
    virtual const DtString& getReliable() const { return myReliable; }

private:
    DtString myDescription;
    DtString myReliable;
};

// A dimension, along which federates tell the regions of their interest.
class DtDimensionNode : public DtOMTDatatypeNode
{
public:
    virtual void setNormalization(const DtString& normalization) { myNormalization = normalization; }
    virtual const DtString& getNormalization() const { return myNormalization; }
    virtual void setValue(const DtString& value) { myValue = value; }
    virtual const DtString& getValue() const { return myValue; }
    virtual void setUpperBound(const DtString& bound) { myUpperBound = bound; }
    virtual const DtString& getUpperBound() const { return myUpperBound; }

private:
    DtString myNormalization;
    DtString myValue;
    DtString myUpperBound;
};

// A synchronisation point; its name is the label.
class DtSynchroNode : public DtOMTDatatypeNode
{
public:
    virtual void setCapability(const DtString& capability) { myCapability = capability; }
    virtual const DtString& getCapability() const { return myCapability; }
    virtual void setDescription(const DtString& description) { myDescription = description; }
    virtual const DtString& getDescription() const { return myDescription; }

private:
    DtString myCapability;
    DtString myDescription;
};

// A user-supplied tag; its name is that of the service it goes with.
class DtTagNode : public DtOMTDatatypeNode
{
public:
    virtual void setDescription(const DtString& description) { myDescription = description; }
    virtual const DtString& getDescription() const { return myDescription; }

private:
    DtString myDescription;
};

// An update rate, in updates a second.
class DtUpdateRateNode : public DtOMTNode
{
public:
    virtual void setRate(double rate) { myRate = rate; }
    virtual double rate() const { return myRate; }
    virtual void setSemantics(const DtString& semantics) { mySemantics = semantics; }
    virtual const DtString& semantics() const { return mySemantics; }

private:
    DtString mySemantics;
    double myRate = 0.0;
};

// How the federation represents time; a model has one at most.
class DtTimeRepNode
{
public:
    virtual ~DtTimeRepNode() = default;
    DtTimeRepNode() = default;
    DtTimeRepNode(const DtTimeRepNode&) = default;
    DtTimeRepNode& operator=(const DtTimeRepNode&) = default;

    virtual void setFederationTimeDatatype(const DtString& datatype) { myFederationTimeDatatype = datatype; }
    virtual const DtString& getFederationTimeDatatype() const { return myFederationTimeDatatype; }
    virtual void setFederationTimeSemantics(const DtString& semantics) { myFederationTimeSemantics = semantics; }
    virtual const DtString& getFederationTimeSemantics() const { return myFederationTimeSemantics; }
    virtual void setLookaheadDatatype(const DtString& datatype) { myLookaheadDatatype = datatype; }
    virtual const DtString& getLookaheadDatatype() const { return myLookaheadDatatype; }
    virtual void setLookaheadSemantics(const DtString& semantics) { myLookaheadSemantics = semantics; }
    virtual const DtString& getLookaheadSemantics() const { return myLookaheadSemantics; }

private:
    DtString myFederationTimeDatatype;
    DtString myFederationTimeSemantics;
    DtString myLookaheadDatatype;
    DtString myLookaheadSemantics;
};

#endif
