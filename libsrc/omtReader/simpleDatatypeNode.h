#ifndef OMT_READER_SIMPLE_DATATYPE_NODE_H
#define OMT_READER_SIMPLE_DATATYPE_NODE_H

#include "omtReader/omtNode.h"

// A simple datatype (IEEE 1516.2-2010, clause 4.13): a scalar in one of the basic data representations. Units, accuracy
// and resolution are texts for people.
class DtSimpleDatatypeNode : public DtOMTNode
{
public:
    virtual void setUnits(const DtString& units) { myUnits = units; }
    virtual const DtString& getUnits() const { return myUnits; }
    virtual void setRepresentation(const DtString& representation) { myRepresentation = representation; }
    virtual const DtString& getRepresentation() const { return myRepresentation; }
    virtual void setAccuracy(const DtString& accuracy) { myAccuracy = accuracy; }
    virtual const DtString& getAccuracy() const { return myAccuracy; }
    virtual void setResolution(const DtString& resolution) { myResolution = resolution; }
    virtual const DtString& getResolution() const { return myResolution; }
    virtual void setDescription(const DtString& description) { myDescription = description; }
    virtual const DtString& getDescription() const { return myDescription; }

private:
    DtString myUnits;
    DtString myRepresentation;
    DtString myAccuracy;
    DtString myResolution;
    DtString myDescription;
};

#endif
