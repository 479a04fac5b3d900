#include "fileGenerator/namedUuid.h"

#include <boost/uuid/name_generator_sha1.hpp>
#include <boost/uuid/uuid_io.hpp>

namespace
{
// Made once at random.
constexpr boost::uuids::uuid theNameSpace = {
    {0x5b, 0x0f, 0x1d, 0x7a, 0x3c, 0x52, 0x4e, 0x88, 0x9d, 0x41, 0xc6, 0x27, 0xe0, 0x95, 0x6b, 0xf3}
};
} // namespace

DtString DtNamedUuid(const DtString& name)
{
    const boost::uuids::name_generator_sha1 generator(theNameSpace);
    return boost::uuids::to_string(generator(name.c_str(), name.length()));
}
