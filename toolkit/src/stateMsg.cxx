#include <qx/stateMsg.h>
#include <qx/wireBuffer.h>

const std::size_t DtStateMsg::theMaximumName;

DtStateMsg::DtStateMsg() : myHeader(), myObject(0), myName(), myIsRemoval(false), myBody()
{
}

bool DtStateMsg::values(DtAttributeValues& values) const
{
    return DtDecodeValues(myBody, values);
}

void DtStateMsg::setValues(const DtAttributeValues& values)
{
    myBody.clear();
    DtEncodeValues(values, myBody);
}

bool DtStateMsg::encodeMessage(DtValueBuffer& octets) const
{
    octets.clear();
    if (myName.size() > theMaximumName)
    {
        return false;
    }
    DtWireWriter writer;
    writer.putInteger(myObject, 8);
    writer.putByte(myIsRemoval ? 1 : 0);
    writer.putInteger(myName.size(), 2);
    writer.putBytes(myName.data(), myName.size());
    writer.putBytes(myBody.data(), myBody.size());
    return DtEncodePdu(myHeader, writer.bytes(), octets);
}

bool DtStateMsg::decodeMessage(const DtValueBuffer& octets)
{
    DtNetPduHeader header;
    DtValueBuffer content;
    return DtDecodePdu(octets, header, content) && decodeMessage(header, content);
}

bool DtStateMsg::decodeMessage(const DtNetPduHeader& header, const DtValueBuffer& content)
{
    DtWireReader reader(content);
    DtU64 object = 0;
    DtU8 removal = 0;
    DtU64 length = 0;
    if (!reader.getInteger(object, 8) || !reader.getByte(removal) || removal > 1 || !reader.getInteger(length, 2) ||
        length > reader.remaining())
    {
        return false;
    }
    const DtValueBuffer::const_iterator name = content.begin() + static_cast<std::ptrdiff_t>(reader.offset());
    const DtValueBuffer::const_iterator body = name + static_cast<std::ptrdiff_t>(length);
    myHeader = header;
    myObject = object;
    myIsRemoval = removal == 1;
    myName.assign(name, body);
    myBody.assign(body, content.end());
    return true;
}
