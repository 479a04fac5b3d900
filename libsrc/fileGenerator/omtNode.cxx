#include "fileGenerator/omtNode.h"

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
    boost::uuids::random_generator generator;
    while (myUuids.size() <= index)
        myUuids.emplace_back(boost::uuids::to_string(generator()));
    return myUuids[index];
}
