#include "fileGenerator/omtNode.h"

#include "fileGenerator/namedUuid.h"
#include "fileGenerator/settings.h"

#include <boost/uuid/random_generator.hpp>
#include <boost/uuid/uuid_io.hpp>

DtOmtNode::~DtOmtNode() = default;

void DtOmtNode::setFullName(DtString fullName)
{
    myFullName = std::move(fullName);
}

DtString DtOmtNode::fullName() const
{
    return myFullName;
}

void DtOmtNode::setName(DtString name)
{
    myName = std::move(name);
}

DtString DtOmtNode::name() const
{
    return myName;
}

void DtOmtNode::setShouldRename(bool shouldRename)
{
    myShouldRename = shouldRename;
}

bool DtOmtNode::shouldRename() const
{
    return myShouldRename;
}

void DtOmtNode::setRename(DtString rename)
{
    myRename = std::move(rename);
}

DtString DtOmtNode::rename() const
{
    return myRename;
}

DtString DtOmtNode::uuid(unsigned int index) const
{
    while (myUuids.size() <= index)
        myUuids.push_back(newUuid());
    return myUuids[index];
}

DtString DtOmtNode::newUuid() const
{
    if (DtSettings::instance().files.makesNamedUuids)
        return DtNamedUuid(myFullName + "#" + DtString(static_cast<unsigned int>(myUuids.size())));
    static boost::uuids::random_generator_mt19937 theGenerator; // seeded by the system
    return boost::uuids::to_string(theGenerator());
}
