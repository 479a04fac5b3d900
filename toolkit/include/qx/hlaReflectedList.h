#ifndef QX_HLA_REFLECTED_LIST_H
#define QX_HLA_REFLECTED_LIST_H

#include <map>
#include <memory>
#include <string>
#include <vector>

#include <qx/exerciseConn.h>
#include <qx/hlaReflectedObject.h>

// Base of the generated reflected lists: the objects of one class and its subclasses that others publish.
//
// Owns the objects. They come, change and go while DtExerciseConn::drainInput() runs, and the callbacks are called from
// there: after an object came or was updated, and before it goes. The connection must outlive the list.
class DtHlaReflectedList : private DtExerciseObserver
{
public:
    virtual ~DtHlaReflectedList() { myExerciseConn->removeObserver(this); }

    DtHlaReflectedList(const DtHlaReflectedList&) = delete;
    DtHlaReflectedList& operator=(const DtHlaReflectedList&) = delete;

    std::size_t count() const { return myObjects.size(); }

protected:
    enum Occasion
    {
        Addition,
        Update,
        Removal
    };

    DtHlaReflectedList(DtExerciseConn* exerciseConn, const std::string& fullClassName)
        : myExerciseConn(exerciseConn), myObjects(), myCallbacks()
    {
        exerciseConn->addObserver(this, fullClassName);
    }

    virtual std::unique_ptr<DtHlaReflectedObject> makeObject(DtExerciseObjectId id, const std::string& name) const = 0;

    // Null if there is none. Objects stand in the order of their numbers.
    DtHlaReflectedObject* find(DtExerciseObjectId id) const
    {
        const Objects::const_iterator object = myObjects.find(id);
        return object == myObjects.end() ? nullptr : object->second.get();
    }
    DtHlaReflectedObject* findAfter(DtExerciseObjectId id) const
    {
        const Objects::const_iterator object = myObjects.upper_bound(id);
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

private:
    typedef void (*AnyFunction)();
    typedef std::map<DtExerciseObjectId, std::unique_ptr<DtHlaReflectedObject>> Objects;

    struct Callback
    {
        Occasion occasion;
        AnyFunction function;
        void* user;
        void (*call)(AnyFunction function, DtHlaReflectedObject& object, void* user);
    };

    template <class Object>
    static void callAs(AnyFunction function, DtHlaReflectedObject& object, void* user)
    {
        reinterpret_cast<void (*)(Object*, void*)>(function)(static_cast<Object*>(&object), user);
    }

    void objectAdded(DtExerciseObjectId id, const std::string& name) override
    {
        if (find(id) == nullptr)
        {
            std::unique_ptr<DtHlaReflectedObject>& object = myObjects[id];
            object = makeObject(id, name);
            callBack(Addition, *object);
        }
    }

    void objectUpdated(DtExerciseObjectId id, const DtAttributeValues& values) override
    {
        DtHlaReflectedObject* const object = find(id);
        if (object != nullptr)
        {
            object->update(values);
            callBack(Update, *object);
        }
    }

    void objectRemoved(DtExerciseObjectId id) override
    {
        DtHlaReflectedObject* const object = find(id);
        if (object != nullptr)
        {
            callBack(Removal, *object);
            myObjects.erase(id);
        }
    }

    // Works on a copy: a callback may add and remove callbacks, which counts from the next occasion on.
    void callBack(Occasion occasion, DtHlaReflectedObject& object)
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

    DtExerciseConn* myExerciseConn;
    Objects myObjects;
    std::vector<Callback> myCallbacks;
};

#endif
