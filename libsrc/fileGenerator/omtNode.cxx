#include "fileGenerator/omtNode.h"

#include "fileGenerator/namedUuid.h"
#include "fileGenerator/settings.h"

#include <boost/uuid/random_generator.hpp>
#include <boost/uuid/uuid_io.hpp>

DtOmtNode::~DtOmtNode() = default;

void DtOmtNode::setFullName(DtString fullName)
{
    myFullName = DtSharedText::recent(fullName); // the members of a class name it, too
}

DtString DtOmtNode::fullName() const
{
    return myFullName;
}

void DtOmtNode::setName(DtString name)
{
    myName = DtSharedText::recent(name); // often the full name
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
    myRename = rename;
}

DtString DtOmtNode::rename() const
{
    return myRename;
}

// Copies share what they have in common, and each goes on by itself.
DtString DtOmtNode::uuid(unsigned int index) const
{
    const std::size_t known = myUuids != nullptr ? myUuids->size() : 0;
    if (index < known)
        return (*myUuids)[index];
    auto uuids = std::make_shared<std::vector<DtString>>();
    uuids->reserve(index + 1);
    if (myUuids != nullptr)
        *uuids = *myUuids;
    while (uuids->size() <= index)
        uuids->push_back(newUuid(uuids->size()));
    myUuids = uuids;
    return uuids->back();
}

DtString DtOmtNode::newUuid(std::size_t index) const
{
    if (DtSettings::instance().files.makesNamedUuids)
        return DtNamedUuid(myFullName.get() + "#" + DtString(static_cast<unsigned int>(index)));
    static boost::uuids::random_generator_mt19937 theGenerator; // seeded by the system
    return boost::uuids::to_string(theGenerator());
}
