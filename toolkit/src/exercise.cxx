#include <qx/exercise.h>

#include <algorithm>

namespace
{
bool isRootClass(const std::string& name)
{
    return name == "HLAobjectRoot" || name == "ObjectRoot" || name == "HLAinteractionRoot" || name == "InteractionRoot";
}
} // namespace

std::shared_ptr<DtExercise> DtExercise::named(const std::string& name)
{
    static std::map<std::string, std::weak_ptr<DtExercise>> theExercises;
    std::weak_ptr<DtExercise>& known = theExercises[name];
    std::shared_ptr<DtExercise> exercise = known.lock();
    if (!exercise)
    {
        exercise.reset(new DtExercise);
        known = exercise;
    }
    return exercise;
}

bool DtExercise::isKindOf(const std::string& fullClassName, const std::string& ancestor)
{
    return isRootClass(ancestor) || fullClassName == ancestor ||
           fullClassName.compare(0, ancestor.size() + 1, ancestor + ".") == 0;
}

DtExerciseEvent DtExercise::eventOf(DtExerciseEvent::Kind kind, DtExerciseObjectId id, const Object& object)
{
    const DtExerciseEvent event = {kind, id, object.fullClassName, object.name, DtAttributeValues(), DtValueBuffer()};
    return event;
}

void DtExercise::join(DtExerciseMember* member)
{
    myMembers.push_back(member);
}

void DtExercise::leave(DtExerciseMember* member)
{
    std::vector<DtExerciseObjectId> owned;
    for (Objects::const_iterator object = myObjects.begin(); object != myObjects.end(); ++object)
    {
        if (object->second.owner == member)
        {
            owned.push_back(object->first);
        }
    }
    for (std::size_t index = 0; index < owned.size(); ++index)
    {
        removeObject(owned[index]);
    }
    myMembers.erase(std::remove(myMembers.begin(), myMembers.end(), member), myMembers.end());
}

const DtExercise::Object* DtExercise::objectOf(const DtExerciseMember* owner, DtExerciseObjectId id) const
{
    const Objects::const_iterator found = myObjects.find(id);
    return found != myObjects.end() && found->second.owner == owner ? &found->second : nullptr;
}

bool DtExercise::passes(const DtExerciseMember* sender, const DtExerciseMember* receiver)
{
    return sender != receiver && (receiver->group() == 0 || receiver->group() != sender->group());
}

void DtExercise::addObject(const DtExerciseMember* owner, DtExerciseObjectId id, const std::string& fullClassName,
                           const std::string& name)
{
    const Object object = {owner, fullClassName, name, DtAttributeValues()};
    myObjects[id] = object;
    tellOthers(owner, eventOf(DtExerciseEvent::ObjectAdded, id, object));
}

void DtExercise::updateObject(DtExerciseObjectId id, const DtAttributeValues& values)
{
    const Objects::iterator found = myObjects.find(id);
    if (found == myObjects.end())
    {
        return;
    }
    for (DtAttributeValues::const_iterator value = values.begin(); value != values.end(); ++value)
    {
        found->second.values[value->first] = value->second;
    }
    DtExerciseEvent event = eventOf(DtExerciseEvent::ObjectUpdated, id, found->second);
    event.values = values;
    tellOthers(found->second.owner, event);
}

void DtExercise::removeObject(DtExerciseObjectId id)
{
    const Objects::iterator found = myObjects.find(id);
    if (found == myObjects.end())
    {
        return;
    }
    const Object object = found->second;
    myObjects.erase(found);
    tellOthers(object.owner, eventOf(DtExerciseEvent::ObjectRemoved, id, object));
}

void DtExercise::tellOthers(const DtExerciseMember* sender, const DtExerciseEvent& event) const
{
    for (std::size_t index = 0; index < myMembers.size(); ++index)
    {
        if (passes(sender, myMembers[index]))
        {
            myMembers[index]->receive(event);
        }
    }
}
