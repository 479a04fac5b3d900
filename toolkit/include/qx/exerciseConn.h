#ifndef QX_EXERCISE_CONN_H
#define QX_EXERCISE_CONN_H

#include <deque>
#include <functional>
#include <memory>
#include <string>
#include <vector>

#include <qx/exercise.h>
#include <qx/interactionWithEncDec.h>

// Hears of the objects of one class and its subclasses, from DtExerciseConn::drainInput(). An object that stood already
// when the observer was added may be gone by the time it is told of; its removal follows.
class DtExerciseObserver
{
public:
    virtual ~DtExerciseObserver() {}
    virtual void objectAdded(DtExerciseObjectId id, const std::string& name) = 0;
    virtual void objectUpdated(DtExerciseObjectId id, const DtAttributeValues& values) = 0;
    virtual void objectRemoved(DtExerciseObjectId id) = 0;
};

// One application's connection to an exercise: the way out for publishers and interactions, and the queue of what the
// others sent.
//
// Connections of one process that name the same exercise hear each other, and none hears itself. Nothing is delivered
// but by drainInput(). Publishers and reflected lists hold a pointer to their connection and must go before it.
class DtExerciseConn : private DtExerciseMember
{
public:
    explicit DtExerciseConn(const std::string& exerciseName = std::string())
        : myExercise(DtExercise::named(exerciseName)), myEvents(), myObservers(), myReceivers(), myLastKey(0)
    {
        myExercise->join(this);
    }
    ~DtExerciseConn() { myExercise->leave(this); }

    DtExerciseConn(const DtExerciseConn&) = delete;
    DtExerciseConn& operator=(const DtExerciseConn&) = delete;

    DtExerciseObjectId addObject(const std::string& fullClassName, const std::string& name)
    {
        return myExercise->addObject(this, fullClassName, name);
    }
    void updateObject(DtExerciseObjectId id, const DtAttributeValues& values) { myExercise->updateObject(id, values); }
    void removeObject(DtExerciseObjectId id) { myExercise->removeObject(id); }

    // The observer hears of the objects that stand already, too, at the next drainInput().
    void addObserver(DtExerciseObserver* observer, const std::string& fullClassName)
    {
        const Observer entry = {++myLastKey, observer, fullClassName};
        myObservers.push_back(entry);
        const DtExercise::Objects& objects = myExercise->objects();
        for (DtExercise::Objects::const_iterator object = objects.begin(); object != objects.end(); ++object)
        {
            if (object->second.owner != this)
            {
                queueObject(object->first, object->second, entry.key);
            }
        }
    }

    void removeObserver(const DtExerciseObserver* observer)
    {
        for (std::size_t index = myObservers.size(); index-- > 0;)
        {
            if (myObservers[index].observer == observer)
            {
                myObservers.erase(myObservers.begin() + static_cast<std::ptrdiff_t>(index));
            }
        }
    }

    // False if a parameter could not be coded; the interaction goes out without it.
    bool sendInteraction(const DtInteractionWithEncDec& interaction)
    {
        DtAttributeValues values;
        const bool complete = interaction.encode(values);
        myExercise->sendInteraction(this, interaction.fullClassName(), values);
        return complete;
    }

    // The callback gets every interaction of class Kind or a subclass, as a Kind.
    template <class Kind>
    void addInteractionCallback(void (*callback)(Kind*, void*), void* user)
    {
        const Kind sample;
        Receiver receiver;
        receiver.key = ++myLastKey;
        receiver.fullClassName = static_cast<const DtInteraction&>(sample).fullClassName();
        receiver.callback = reinterpret_cast<AnyFunction>(callback);
        receiver.user = user;
        receiver.deliver = [callback, user](const DtAttributeValues& values)
        {
            Kind interaction;
            static_cast<DtInteractionWithEncDec&>(interaction).decode(values);
            callback(&interaction, user);
        };
        myReceivers.push_back(receiver);
    }

    // Takes out one registration of that callback with that user pointer.
    template <class Kind>
    void removeInteractionCallback(void (*callback)(Kind*, void*), void* user)
    {
        const AnyFunction wanted = reinterpret_cast<AnyFunction>(callback);
        for (std::size_t index = 0; index < myReceivers.size(); ++index)
        {
            if (myReceivers[index].callback == wanted && myReceivers[index].user == user)
            {
                myReceivers.erase(myReceivers.begin() + static_cast<std::ptrdiff_t>(index));
                return;
            }
        }
    }

    // Delivers what is in the queue now; what the callbacks cause comes with the next call.
    void drainInput()
    {
        std::deque<Event> events;
        events.swap(myEvents);
        for (std::size_t index = 0; index < events.size(); ++index)
        {
            deliver(events[index]);
        }
    }

private:
    typedef void (*AnyFunction)();
    typedef unsigned long Key; // of a registration; never used twice, so an event cannot reach a successor

    // For the registrations from `first` to `last`: an event does not reach one that was made after it.
    struct Event
    {
        DtExerciseEvent what;
        Key first;
        Key last;
    };
    struct Observer
    {
        Key key;
        DtExerciseObserver* observer;
        std::string fullClassName;
    };
    struct Receiver
    {
        Key key;
        std::string fullClassName;
        AnyFunction callback;
        void* user;
        std::function<void(const DtAttributeValues&)> deliver;
    };

    void receive(const DtExerciseEvent& what) override
    {
        const Event event = {what, 0, myLastKey};
        myEvents.push_back(event);
    }

    void queueObject(DtExerciseObjectId id, const DtExercise::Object& object, Key only)
    {
        Event event = {DtExercise::eventOf(DtExerciseEvent::ObjectAdded, id, object), only, only};
        myEvents.push_back(event);
        event.what.kind = DtExerciseEvent::ObjectUpdated;
        event.what.values = object.values;
        myEvents.push_back(event);
    }

    // Callbacks may add and remove registrations, so each is looked up again by its key before it is called.
    void deliver(const Event& event)
    {
        if (event.what.kind == DtExerciseEvent::InteractionSent)
        {
            deliverInteraction(event);
        }
        else
        {
            deliverObject(event);
        }
    }

    void deliverInteraction(const Event& event)
    {
        const std::vector<Key> keys = keysFor(event, myReceivers);
        for (std::size_t index = 0; index < keys.size(); ++index)
        {
            const Receiver* const receiver = find(myReceivers, keys[index]);
            if (receiver != nullptr)
            {
                const std::function<void(const DtAttributeValues&)> handOver = receiver->deliver;
                handOver(event.what.values);
            }
        }
    }

    void deliverObject(const Event& event)
    {
        const std::vector<Key> keys = keysFor(event, myObservers);
        for (std::size_t index = 0; index < keys.size(); ++index)
        {
            const Observer* const entry = find(myObservers, keys[index]);
            if (entry != nullptr)
            {
                tell(*entry->observer, event.what);
            }
        }
    }

    static void tell(DtExerciseObserver& observer, const DtExerciseEvent& what)
    {
        switch (what.kind)
        {
        case DtExerciseEvent::ObjectAdded:
            observer.objectAdded(what.object, what.objectName);
            break;
        case DtExerciseEvent::ObjectUpdated:
            observer.objectUpdated(what.object, what.values);
            break;
        case DtExerciseEvent::ObjectRemoved:
            observer.objectRemoved(what.object);
            break;
        case DtExerciseEvent::InteractionSent:
            break;
        }
    }

    template <class Entry>
    static std::vector<Key> keysFor(const Event& event, const std::vector<Entry>& entries)
    {
        std::vector<Key> keys;
        for (std::size_t index = 0; index < entries.size(); ++index)
        {
            const Key key = entries[index].key;
            if (event.first <= key && key <= event.last &&
                DtExercise::isKindOf(event.what.fullClassName, entries[index].fullClassName))
            {
                keys.push_back(key);
            }
        }
        return keys;
    }

    template <class Entry>
    static const Entry* find(const std::vector<Entry>& entries, Key key)
    {
        for (std::size_t index = 0; index < entries.size(); ++index)
        {
            if (entries[index].key == key)
            {
                return &entries[index];
            }
        }
        return nullptr;
    }

    std::shared_ptr<DtExercise> myExercise;
    std::deque<Event> myEvents;
    std::vector<Observer> myObservers;
    std::vector<Receiver> myReceivers;
    Key myLastKey;
};

#endif
