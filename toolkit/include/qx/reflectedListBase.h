#ifndef QX_REFLECTED_LIST_BASE_H
#define QX_REFLECTED_LIST_BASE_H

#include <cstddef>
#include <map>
#include <memory>
#include <string>
#include <vector>

#include <qx/exercise.h>

// What the reflected lists of both protocols have in common: the objects by number, and the callbacks.
//
// ReflectedObject is DtHlaReflectedObject or DtDisReflectedObject. The list owns the objects and makes them through
// makeObject(). Callbacks run after an object came or was updated, and before it goes.
template <class ReflectedObject>
class DtReflectedListBase
{
public:
    virtual ~DtReflectedListBase() {}

    DtReflectedListBase(const DtReflectedListBase&) = delete;
    DtReflectedListBase& operator=(const DtReflectedListBase&) = delete;

    std::size_t count() const { return myObjects.size(); }

protected:
    enum Occasion
    {
        Addition,
        Update,
        Removal
    };

    DtReflectedListBase() : myObjects(), myCallbacks() {}

    virtual std::unique_ptr<ReflectedObject> makeObject(DtExerciseObjectId id, const std::string& name) const = 0;

    // Null if there is none. Objects stand in the order of their numbers.
    ReflectedObject* find(DtExerciseObjectId id) const
    {
        const typename Objects::const_iterator object = myObjects.find(id);
        return object == myObjects.end() ? nullptr : object->second.get();
    }
    ReflectedObject* findAfter(DtExerciseObjectId id) const
    {
        const typename Objects::const_iterator object = myObjects.upper_bound(id);
        return object == myObjects.end() ? nullptr : object->second.get();
    }

    template <class Object>
    void addCallback(Occasion occasion, void (*callback)(Object*, void*), void* user)
    {
        const Callback entry = {occasion, reinterpret_cast<AnyFunction>(callback), user, &callAs<Object>};
        myCallbacks.push_back(entry);
    }

    // Takes out one registration of that callback with that user pointer.
    template <class Object>
    void removeCallback(Occasion occasion, void (*callback)(Object*, void*), void* user)
    {
        const AnyFunction wanted = reinterpret_cast<AnyFunction>(callback);
        for (std::size_t index = 0; index < myCallbacks.size(); ++index)
        {
            const Callback& entry = myCallbacks[index];
            if (entry.occasion == occasion && entry.function == wanted && entry.user == user)
            {
                myCallbacks.erase(myCallbacks.begin() + static_cast<std::ptrdiff_t>(index));
                return;
            }
        }
    }

    // Makes an object without calling anyone.
    ReflectedObject& insert(DtExerciseObjectId id, const std::string& name)
    {
        std::unique_ptr<ReflectedObject>& object = myObjects[id];
        object = makeObject(id, name);
        return *object;
    }

    // Calls the callbacks and deletes the object; a number that has none is passed over.
    void remove(DtExerciseObjectId id)
    {
        ReflectedObject* const object = find(id);
        if (object != nullptr)
        {
            callBack(Removal, *object);
            myObjects.erase(id);
        }
    }

    // Works on a copy: a callback may add and remove callbacks, which counts from the next occasion on.
    void callBack(Occasion occasion, ReflectedObject& object)
    {
        const std::vector<Callback> callbacks = myCallbacks;
        for (std::size_t index = 0; index < callbacks.size(); ++index)
        {
            if (callbacks[index].occasion == occasion)
            {
                callbacks[index].call(callbacks[index].function, object, callbacks[index].user);
            }
        }
    }

private:
    typedef void (*AnyFunction)();
    typedef std::map<DtExerciseObjectId, std::unique_ptr<ReflectedObject>> Objects;

    struct Callback
    {
        Occasion occasion;
        AnyFunction function;
        void* user;
        void (*call)(AnyFunction function, ReflectedObject& object, void* user);
    };

    template <class Object>
    static void callAs(AnyFunction function, ReflectedObject& object, void* user)
    {
        reinterpret_cast<void (*)(Object*, void*)>(function)(static_cast<Object*>(&object), user);
    }

    Objects myObjects;
    std::vector<Callback> myCallbacks;
};

#endif
