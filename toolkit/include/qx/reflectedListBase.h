#ifndef QX_REFLECTED_LIST_BASE_H
#define QX_REFLECTED_LIST_BASE_H

#include <cstddef>
#include <map>
#include <memory>
#include <string>
#include <vector>

#include <qx/exerciseObjectId.h>

// What the reflected lists of both protocols have in common: the objects by number, and the callbacks.
//
// ReflectedObject is DtHlaReflectedObject or DtDisReflectedObject. The list owns the objects and makes them through
// makeObject(). Callbacks run after an object came or was updated, and before it goes. The operations stand in the
// library, for these two, and not in every file that includes this.
template <class ReflectedObject>
class DtReflectedListBase
{
public:
    virtual ~DtReflectedListBase();

    DtReflectedListBase(const DtReflectedListBase&) = delete;
    DtReflectedListBase& operator=(const DtReflectedListBase&) = delete;

    std::size_t count() const;

protected:
    enum Occasion
    {
        Addition,
        Update,
        Removal
    };

    DtReflectedListBase();

    virtual std::unique_ptr<ReflectedObject> makeObject(DtExerciseObjectId id, const std::string& name) const = 0;

    // Null if there is none. Objects stand in the order of their numbers.
    ReflectedObject* find(DtExerciseObjectId id) const;
    ReflectedObject* findAfter(DtExerciseObjectId id) const;

    template <class Object>
    void addCallback(Occasion occasion, void (*callback)(Object*, void*), void* user)
    {
        const Callback entry = {occasion, reinterpret_cast<AnyFunction>(callback), user, &callAs<Object>};
        enter(entry);
    }

    // Takes out one registration of that callback with that user pointer.
    template <class Object>
    void removeCallback(Occasion occasion, void (*callback)(Object*, void*), void* user)
    {
        const Callback entry = {occasion, reinterpret_cast<AnyFunction>(callback), user, &callAs<Object>};
        takeOut(entry);
    }

    // Makes an object without calling anyone.
    ReflectedObject& insert(DtExerciseObjectId id, const std::string& name);

    // Calls the callbacks and deletes the object; a number that has none is passed over.
    void remove(DtExerciseObjectId id);

    // Works on a copy: a callback may add and remove callbacks, which counts from the next occasion on.
    void callBack(Occasion occasion, ReflectedObject& object);

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

    void enter(const Callback& entry);
    void takeOut(const Callback& like);

    Objects myObjects;
    std::vector<Callback> myCallbacks;
};

#endif
