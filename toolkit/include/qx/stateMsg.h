#ifndef QX_STATE_MSG_H
#define QX_STATE_MSG_H

#include <string>

#include <qx/exercise.h>
#include <qx/packets/pduHeader.h>

// A protocol data unit that tells the whole state of one object, or that the object is gone.
//
// Behind the header stand the object's number (8 octets), 1 or 0 for whether it is removed (1), the length of its name
// (2), the name, and the body: the coded attributes. As in DtStateRepository nothing but the destructor is virtual, so
// an accessor of a generated subclass may be called anything.
class DtStateMsg
{
public:
    static const std::size_t theMaximumName = 0xFFFF;

    DtStateMsg();
    virtual ~DtStateMsg() {}

    const DtNetPduHeader& header() const { return myHeader; }
    void setHeader(const DtNetPduHeader& header) { myHeader = header; }
    int pduKind() const { return myHeader.pduKind(); }
    void setPduKind(int kind) { myHeader.setPduKind(kind); }

    DtExerciseObjectId objectId() const { return myObject; }
    void setObjectId(DtExerciseObjectId object) { myObject = object; }
    const std::string& objectName() const { return myName; }
    void setObjectName(const std::string& name) { myName = name; }
    bool isRemoval() const { return myIsRemoval; }
    void setRemoval(bool isRemoval) { myIsRemoval = isRemoval; }

    const DtValueBuffer& body() const { return myBody; }
    void setBody(const DtValueBuffer& body) { myBody = body; }
    // The body as named values, which is what DtStateEncoder makes of it. False if it is none.
    bool values(DtAttributeValues& values) const;
    void setValues(const DtAttributeValues& values);

    // Replaces `octets` by the whole unit. False, and no octets, if it is too long.
    bool encodeMessage(DtValueBuffer& octets) const;
    // False, with nothing changed, if the octets are no such unit or fewer than the header tells. What stands behind is
    // left.
    bool decodeMessage(const DtValueBuffer& octets);
    // The same for what DtPduObserver is given: the unit's header, and the octets between it and the end.
    bool decodeMessage(const DtNetPduHeader& header, const DtValueBuffer& content);

private:
    DtNetPduHeader myHeader;
    DtExerciseObjectId myObject;
    std::string myName;
    bool myIsRemoval;
    DtValueBuffer myBody;
};

#endif
