#ifndef OMT_READER_OMT_NODE_H
#define OMT_READER_OMT_NODE_H

#include "foundation/sharedText.h"
#include "foundation/string.h"

// Root of the node classes: one named entry of an object model.
//
// A node gets its name before it is added to a list of the tree or of another node: the look-ups of those lists know it
// by the name it had then. The unique name is free for the writers, who keep clashing names apart with it.
class DtOMTNode
{
public:
    virtual ~DtOMTNode() = default;
    DtOMTNode() = default;
    DtOMTNode(const DtOMTNode&) = default;
    DtOMTNode& operator=(const DtOMTNode&) = default;

    virtual void setName(const DtString& name) { myName = name; }
    virtual const DtString& getName() const { return myName.get(); }
    virtual void setUniqueName(const DtString& name) { myUniqueName = name; }
    virtual const DtString& getUniqueName() const { return myUniqueName.get(); }
    virtual void setNote(const DtString& note) { myNote = note; }
    virtual const DtString& getNote() const { return myNote.get(); }
    // The labels of the notes that the model refers to at the node and its values, with blanks in between.
    void setNoteLabels(const DtString& labels) { myNoteLabels = labels; }
    const DtString& noteLabels() const { return myNoteLabels.get(); }

private:
    DtSharedText myName;
    DtSharedText myNote;
    DtSharedText myUniqueName;
    DtSharedText myNoteLabels;
};

#endif
