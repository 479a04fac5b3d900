#include <qx/attributeValues.h>
#include <qx/wireBuffer.h>

namespace
{
bool takeRun(DtWireReader& reader, DtValueBuffer& run)
{
    DtU64 length = 0;
    if (!reader.getInteger(length, 4) || length > reader.remaining())
    {
        return false;
    }
    run.resize(static_cast<std::size_t>(length));
    return reader.getBytes(run.data(), run.size());
}

bool takeValue(DtWireReader& reader, DtAttributeValues& values)
{
    DtValueBuffer name;
    DtValueBuffer value;
    if (!takeRun(reader, name) || !takeRun(reader, value))
    {
        return false;
    }
    return values.insert(std::make_pair(std::string(name.begin(), name.end()), value)).second;
}
} // namespace

void DtEncodeValues(const DtAttributeValues& values, DtValueBuffer& octets)
{
    DtWireWriter writer;
    writer.putInteger(values.size(), 4);
    for (DtAttributeValues::const_iterator value = values.begin(); value != values.end(); ++value)
    {
        writer.putInteger(value->first.size(), 4);
        writer.putBytes(value->first.data(), value->first.size());
        writer.putInteger(value->second.size(), 4);
        writer.putBytes(value->second.data(), value->second.size());
    }
    octets.insert(octets.end(), writer.data(), writer.data() + writer.size());
}

bool DtDecodeValues(const DtValueBuffer& octets, DtAttributeValues& values)
{
    DtWireReader reader(octets);
    DtAttributeValues taken;
    DtU64 count = 0;
    bool good = reader.getInteger(count, 4);
    for (; good && count > 0; --count)
    {
        good = takeValue(reader, taken);
    }
    if (!good || !reader.atEnd())
    {
        return false;
    }
    values.swap(taken);
    return true;
}
