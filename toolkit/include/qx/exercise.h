#ifndef QX_EXERCISE_H
#define QX_EXERCISE_H

#include <map>
#include <memory>
#include <string>
#include <vector>

#include <qx/attributeValues.h>
#include <qx/exerciseObjectId.h>

// One thing that happened in an exercise, on its way to a member.
struct DtExerciseEvent
{
    enum Kind
    {
        ObjectAdded,
        ObjectUpdated,
        ObjectRemoved,
        InteractionSent,
        MessageSent
    };

    Kind kind;
    DtExerciseObjectId object; // 0 for an interaction and a message
    std::string fullClassName; // of the object or interaction, without the model's root class
    std::string objectName;
    DtAttributeValues values;
    DtValueBuffer octets; // of a message
};

// Takes the events of an exercise that other members caused.
class DtExerciseMember
{
public:
    virtual ~DtExerciseMember() {}
    virtual void receive(const DtExerciseEvent& event) = 0;

    // Members with the same number other than 0 reach each other by a way of their own, so the exercise passes nothing
    // on between them.
    virtual unsigned int group() const { return 0; }
};

// A running exercise inside this process: its members, and the objects of theirs with the latest values.
//
// Members of the same exercise name share one. It ends with its last member.
class DtExercise
{
public:
    struct Object
    {
        const DtExerciseMember* owner; // null for an object of another process
        std::string fullClassName;
        std::string name;
        DtAttributeValues values;
    };
    typedef std::map<DtExerciseObjectId, Object> Objects;

    static std::shared_ptr<DtExercise> named(const std::string& name);

    // True if `fullClassName` is `ancestor` or one of its subclasses. The model's root class is everyone's ancestor.
    static bool isKindOf(const std::string& fullClassName, const std::string& ancestor);

    static DtExerciseEvent eventOf(DtExerciseEvent::Kind kind, DtExerciseObjectId id, const Object& object);

    void join(DtExerciseMember* member);
    // Takes the member's objects along.
    void leave(DtExerciseMember* member);

    const Objects& objects() const { return myObjects; }
    // Null if there is no such object of that owner.
    const Object* objectOf(const DtExerciseMember* owner, DtExerciseObjectId id) const;
    // False for a member itself, and where the members have a way of their own.
    static bool passes(const DtExerciseMember* sender, const DtExerciseMember* receiver);

    // A number below 2^32 that no object had yet.
    DtExerciseObjectId newObjectId() { return ++myLastObject; }
    void addObject(const DtExerciseMember* owner, DtExerciseObjectId id, const std::string& fullClassName,
                   const std::string& name);
    // Attributes that `values` leaves out keep their latest value. An unknown object is passed over.
    void updateObject(DtExerciseObjectId id, const DtAttributeValues& values);
    void removeObject(DtExerciseObjectId id);

    void tellOthers(const DtExerciseMember* sender, const DtExerciseEvent& event) const;

private:
    DtExercise() : myMembers(), myObjects(), myLastObject(0) {}

    std::vector<DtExerciseMember*> myMembers;
    Objects myObjects;
    DtExerciseObjectId myLastObject;
};

#endif
