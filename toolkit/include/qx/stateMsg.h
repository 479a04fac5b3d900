#ifndef QX_STATE_MSG_H
#define QX_STATE_MSG_H

#include <cstdint>

#include <qx/packets/pduHeader.h>

// A protocol data unit that carries the state of one object: the header, and behind it the coded attributes.
class DtStateMsg
{
public:
    // Longest body that the header's length field can tell.
    static const std::size_t theMaximumBody = 0xFFFFu - DtNetPduHeader::theSize;

    DtStateMsg() : myHeader(), myBody() {}
    virtual ~DtStateMsg() {}

    const DtNetPduHeader& header() const { return myHeader; }
    void setHeader(const DtNetPduHeader& header) { myHeader = header; }
    const DtValueBuffer& body() const { return myBody; }
    void setBody(const DtValueBuffer& body) { myBody = body; }

    // Replaces `octets` by the whole unit. False, and no octets, if the body is too long.
    bool encodeMessage(DtValueBuffer& octets) const
    {
        octets.clear();
        if (myBody.size() > theMaximumBody)
        {
            return false;
        }
        DtNetPduHeader header(myHeader);
        header.setLength(static_cast<std::uint16_t>(DtNetPduHeader::theSize + myBody.size()));
        header.encodeHeader(octets);
        octets.insert(octets.end(), myBody.begin(), myBody.end());
        return true;
    }

    // False, with nothing changed, if the octets are no header or fewer than it tells. What stands behind is left.
    bool decodeMessage(const DtValueBuffer& octets)
    {
        DtNetPduHeader header;
        if (!header.decodeHeader(octets) || octets.size() < header.length())
        {
            return false;
        }
        myHeader = header;
        myBody.assign(octets.begin() + static_cast<std::ptrdiff_t>(DtNetPduHeader::theSize),
                      octets.begin() + header.length());
        return true;
    }

private:
    DtNetPduHeader myHeader;
    DtValueBuffer myBody;
};

#endif
