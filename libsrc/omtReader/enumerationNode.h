#ifndef OMT_READER_ENUMERATION_NODE_H
#define OMT_READER_ENUMERATION_NODE_H

#include "foundation/string.h"

// One enumerator: a name and its number.
class DtEnumerationNode
{
public:
    virtual ~DtEnumerationNode() = default;
    DtEnumerationNode() = default;
    DtEnumerationNode(const DtEnumerationNode&) = default;
    DtEnumerationNode& operator=(const DtEnumerationNode&) = default;

    virtual void setEnum(const DtString& name) { myEnum = name; }
    virtual const DtString& getEnum() const { return myEnum; }
    virtual void setNumber(int number) { myNumber = number; }
    virtual int getNumber() const { return myNumber; }

private:
    DtString myEnum;
    int myNumber = 0;
};

#endif
