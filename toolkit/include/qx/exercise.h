#ifndef QX_EXERCISE_H
#define QX_EXERCISE_H

#include <algorithm>
#include <map>
#include <memory>
#include <string>
#include <vector>

#include <qx/attributeValues.h>

// Number of an object within its exercise; 0 is no object.
typedef unsigned long long DtExerciseObjectId;

// One thing that happened in an exercise, on its way to a member.
struct DtExerciseEvent
{
    enum Kind
    {
        ObjectAdded,
        ObjectUpdated,
        ObjectRemoved,
        InteractionSent
    };

    Kind kind;
    DtExerciseObjectId object; // 0 for an interaction
    std::string fullClassName; // of the object or interaction, without the model's root class
    std::string objectName;
    DtAttributeValues values;
};

// Takes the events of an exercise that other members caused.
class DtExerciseMember
{
public:
    virtual ~DtExerciseMember() {}
    virtual void receive(const DtExerciseEvent& event) = 0;
};

// A running exercise inside this process: its members, and the objects that stand in it with their latest values.
//
// Members of the same exercise name share one. It ends with its last member.
class DtExercise
{
public:
    struct Object
    {
        const DtExerciseMember* owner;
        std::string fullClassName;
        std::string name;
        DtAttributeValues values;
    };
    typedef std::map<DtExerciseObjectId, Object> Objects;

    static std::shared_ptr<DtExercise> named(const std::string& name)
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

    // True if `fullClassName` is `ancestor` or one of its subclasses. The model's root class is everyone's ancestor.
    static bool isKindOf(const std::string& fullClassName, const std::string& ancestor)
    {
        return isRootClass(ancestor) || fullClassName == ancestor ||
               fullClassName.compare(0, ancestor.size() + 1, ancestor + ".") == 0;
    }

    void join(DtExerciseMember* member) { myMembers.push_back(member); }

    // Takes the member's objects along.
    void leave(DtExerciseMember* member)
    {
        const std::vector<DtExerciseObjectId> owned = objectsOf(member);
        for (std::size_t index = 0; index < owned.size(); ++index)
        {
            removeObject(owned[index]);
        }
        myMembers.erase(std::remove(myMembers.begin(), myMembers.end(), member), myMembers.end());
    }

    const Objects& objects() const { return myObjects; }

    DtExerciseObjectId addObject(const DtExerciseMember* owner, const std::string& fullClassName,
                                 const std::string& name)
    {
        const DtExerciseObjectId id = ++myLastObject;
        const Object object = {owner, fullClassName, name, DtAttributeValues()};
        myObjects[id] = object;
        tellOthers(owner, eventOf(DtExerciseEvent::ObjectAdded, id, object));
        return id;
    }

    // Attributes that `values` leaves out keep their latest value.
    void updateObject(DtExerciseObjectId id, const DtAttributeValues& values)
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

    void removeObject(DtExerciseObjectId id)
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

    void sendInteraction(const DtExerciseMember* sender, const std::string& fullClassName,
                         const DtAttributeValues& values) const
    {
        const DtExerciseEvent event = {DtExerciseEvent::InteractionSent, 0, fullClassName, std::string(), values};
        tellOthers(sender, event);
    }

    static DtExerciseEvent eventOf(DtExerciseEvent::Kind kind, DtExerciseObjectId id, const Object& object)
    {
        const DtExerciseEvent event = {kind, id, object.fullClassName, object.name, DtAttributeValues()};
        return event;
    }

private:
    DtExercise() : myMembers(), myObjects(), myLastObject(0) {}

    static bool isRootClass(const std::string& name)
    {
        return name == "HLAobjectRoot" || name == "ObjectRoot" || name == "HLAinteractionRoot" ||
               name == "InteractionRoot";
    }

    std::vector<DtExerciseObjectId> objectsOf(const DtExerciseMember* member) const
    {
        std::vector<DtExerciseObjectId> owned;
        for (Objects::const_iterator object = myObjects.begin(); object != myObjects.end(); ++object)
        {
            if (object->second.owner == member)
            {
                owned.push_back(object->first);
            }
        }
        return owned;
    }

    void tellOthers(const DtExerciseMember* sender, const DtExerciseEvent& event) const
    {
        for (std::size_t index = 0; index < myMembers.size(); ++index)
        {
            if (myMembers[index] != sender)
            {
                myMembers[index]->receive(event);
            }
        }
    }

    std::vector<DtExerciseMember*> myMembers;
    Objects myObjects;
    DtExerciseObjectId myLastObject;
};

#endif
