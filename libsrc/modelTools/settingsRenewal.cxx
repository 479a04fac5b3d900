#include "modelTools/settingsRenewal.h"

#include "foundation/envXmlReader.h"
#include "foundation/envXmlWriter.h"
#include "modelTools/outputException.h"

#include <algorithm>

namespace
{
// The child of that name and type; null without one.
std::shared_ptr<DtEnvValue> childLike(const DtEnvObject& parent, const DtEnvObject& wanted)
{
    const auto isLike = [&wanted](const std::shared_ptr<DtEnvValue>& child)
    {
        const DtEnvObject* const object = DtEnvObject::castToObject(child);
        return object != nullptr && object->name() == wanted.name() && object->type() == wanted.type();
    };
    const auto found = std::find_if(parent.children().begin(), parent.children().end(), isLike);
    return found != parent.children().end() ? *found : nullptr;
}

// Adds the children that are missing, and in lists of both those that are missing there. True when there were any.
bool addMissing(const DtEnvObject& shipped, DtEnvObject& user)
{
    bool isChanged = false;
    for (const std::shared_ptr<DtEnvValue>& child : shipped.children())
    {
        const DtEnvObject* const object = DtEnvObject::castToObject(child);
        if (object == nullptr)
            continue;
        const std::shared_ptr<DtEnvValue> present = childLike(user, *object);
        if (present == nullptr)
            user.addChild(child);
        else if (!object->isList() || !addMissing(*object, *DtEnvObject::castToObject(present)))
            continue;
        isChanged = true;
    }
    return isChanged;
}
} // namespace

void DtRenewSettings(const std::string& shippedFile, const std::string& userFile)
{
    bool isShippedGood = false, isUserGood = false;
    const DtEnvironment shipped = DtEnvXMLReader(false).readFile(DtString(shippedFile), &isShippedGood);
    DtEnvironment user = DtEnvXMLReader(true).readFile(DtString(userFile), &isUserGood);
    const DtEnvObject* const from = DtEnvObject::castToObject(shipped.root());
    DtEnvObject* const to = DtEnvObject::castToObject(user.root());
    if (!isShippedGood || !isUserGood || from == nullptr || to == nullptr || !addMissing(*from, *to))
        return;
    const DtEnvXMLWriter writer("codeGenConfig", "codeGenConfig.dtd");
    if (!writer.writeFile(user, DtString(userFile)))
        throw DtOutputException::ofSystem(userFile, "cannot be written");
}
