#ifndef OMT_READER_NOTE_NODE_H
#define OMT_READER_NOTE_NODE_H

#include "foundation/string.h"

// A note of a model, known by its label. A number is a label in digits: setNumber(3) and setLabel("3") make the same
// note, and a label that is no number counts as number 0.
class DtNoteNode
{
public:
    virtual ~DtNoteNode() = default;
    DtNoteNode() = default;
    DtNoteNode(const DtNoteNode&) = default;
    DtNoteNode& operator=(const DtNoteNode&) = default;

    virtual void setText(const DtString& text) { myText = text; }
    virtual const DtString& getText() const { return myText; }
    virtual void setNumber(int number) { myLabel = DtString(number); }
    virtual int getNumber() const { return myLabel.toInt(); }
    virtual void setLabel(const DtString& label) { myLabel = label; }
    virtual const DtString& getLabel() const { return myLabel; }

private:
    DtString myText;
    DtString myLabel{"0"};
};

#endif
