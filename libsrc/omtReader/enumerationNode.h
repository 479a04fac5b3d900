#ifndef OMT_READER_ENUMERATION_NODE_H
#define OMT_READER_ENUMERATION_NODE_H

#include "foundation/sharedText.h"
#include "foundation/string.h"

// One enumerator: a name and its number. The value that a model states may be longer than the number, or none at all,
// so it is kept beside it.
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

    // The value as the model states it. Kept only where it is other than the digits of the number, which is set first.
    void setValueText(const DtString& text);
    // As those of a DtOMTNode.
    void setNoteLabels(const DtString& labels) { myNoteLabels = labels; }
    const DtString& noteLabels() const { return myNoteLabels.get(); }
    // In decimal digits: the value where it is an integer of 64 bits, with or without a sign, and the number otherwise.
    DtString numberText() const;
    // False when a value is stated that the number does not hold.
    bool isNumberTheValue() const;

private:
    DtString myEnum;
    int myNumber = 0;
    DtSharedText myValueText; // empty where the number tells it all
    DtSharedText myNoteLabels;
};

#endif
