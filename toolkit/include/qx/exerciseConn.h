#ifndef QX_EXERCISE_CONN_H
#define QX_EXERCISE_CONN_H

#include <cstddef>
#include <memory>
#include <string>
#include <vector>

#include <qx/exerciseObjectId.h>
#include <qx/interactionWithEncDec.h>

class DtNetPduHeader;

// Hears of the objects of one class and its subclasses, from DtExerciseConn::drainInput(). An object that stood already
// when the observer was added may be gone by the time it is told of; its removal follows. After a queue ran over, an
// object that is known already may be added again.
class DtExerciseObserver
{
public:
    virtual ~DtExerciseObserver() {}
    virtual void objectAdded(DtExerciseObjectId id, const std::string& name) = 0;
    virtual void objectUpdated(DtExerciseObjectId id, const DtAttributeValues& values) = 0;
    virtual void objectRemoved(DtExerciseObjectId id) = 0;
};

// Gets every opaque message of the others, protocol data units included, from DtExerciseConn::drainInput().
class DtMessageObserver
{
public:
    virtual ~DtMessageObserver() {}
    virtual void messageReceived(const DtValueBuffer& octets) = 0;
};

// Gets the protocol data units of one kind, from DtExerciseConn::drainInput().
class DtPduObserver
{
public:
    virtual ~DtPduObserver() {}
    virtual void pduReceived(const DtNetPduHeader& header, const DtValueBuffer& body) = 0;
    // Called at the end of every drainInput(), for what depends on time.
    virtual void inputDrained() {}
};

// One application's connection to an exercise: the way out for publishers, interactions and messages, and the queue of
// what the others sent.
//
// Connections of one process that name the same exercise hear each other, and none hears itself. A connection with a
// port also speaks over UDP on the loopback address with those of other processes that name the same exercise and
// port: each takes one of sixteen ports, and every datagram goes to the fifteen others. It learns of the objects that
// stand, and tells of its own when asked, while one of its operations runs; so a program calls drainInput() or
// waitForInput() now and then, also when it only sends.
//
// Nothing is delivered but by drainInput(). Publishers and reflected lists hold a pointer to their connection and must
// go before it. No operation may be called from two threads at once; connections of the same exercise count as one
// here.
class DtExerciseConn
{
public:
    // Longest message in octets, and as much as one interaction with its class name, or one value of an object with its
    // name, may take of a datagram. For connections without a port only messages are bounded.
    static const std::size_t theMaximumMessage = 60000;
    // A connection with a port has so many objects at most, and takes so many of each other one ...
    static const std::size_t theMostObjects = 4096;
    static const std::size_t theMostAttributes = 1024; // ... with so many values each,
    static const std::size_t theLongestName = 1024;    // characters in the name of an object or class
    static const std::size_t theLongestAttributeName = 255;
    // When more comes without a drainInput(), the queue is given up: interactions and messages in it are lost, and the
    // next drainInput() tells of the objects as they then stand.
    static const std::size_t theMostEvents = 65536;
    static const std::size_t theMostQueuedOctets = 64u << 20;

    explicit DtExerciseConn(const std::string& exerciseName = std::string());
    // `firstPort` is the first of the sixteen; 0 stays within this process.
    DtExerciseConn(const std::string& exerciseName, unsigned short firstPort);
    // Removes the connection's objects.
    ~DtExerciseConn();

    DtExerciseConn(const DtExerciseConn&) = delete;
    DtExerciseConn& operator=(const DtExerciseConn&) = delete;

    // The port that is ours; 0 if the connection stays within this process, because it was told to, all sixteen are
    // taken, the exercise's name has more than 255 characters, or the system has no sockets of the kind.
    unsigned short port() const;
    // Seconds between two signs of life to the other processes, 2 at the start and 0.02 to 60. Others take a connection
    // for dead, and remove its objects, after five of these without a word.
    void setHeartbeat(double seconds);

    // A number for an object that no other of the exercise has.
    DtExerciseObjectId newObjectId();

    // 0, and nothing is added, if the bounds above do not allow it.
    DtExerciseObjectId addObject(const std::string& fullClassName, const std::string& name);
    // False if the object is none of ours, or if a value is beyond the bounds above: such a value does not go out and
    // is named in `refused`, if given. What takes several datagrams reaches others as several updates.
    bool updateObject(DtExerciseObjectId id, const DtAttributeValues& values,
                      std::vector<std::string>* refused = nullptr);
    // An object that is none of ours is passed over.
    void removeObject(DtExerciseObjectId id);

    // The observer hears of the objects that stand already, too, at the next drainInput().
    void addObserver(DtExerciseObserver* observer, const std::string& fullClassName);
    void removeObserver(const DtExerciseObserver* observer);

    // False if a parameter could not be coded, and the interaction goes out without it, or if the whole is too long for
    // a datagram, and stays here.
    bool sendInteraction(const DtInteractionWithEncDec& interaction);

    // The callback gets every interaction of class Kind or a subclass, as a Kind.
    template <class Kind>
    void addInteractionCallback(void (*callback)(Kind*, void*), void* user)
    {
        const Kind sample;
        const DtInteraction& interaction = sample;
        enterInteraction(interaction.fullClassName(), callbackOf(callback, user, &deliverInteraction<Kind>));
    }

    // Takes out one registration of that callback with that user pointer.
    template <class Kind>
    void removeInteractionCallback(void (*callback)(Kind*, void*), void* user)
    {
        removeInteraction(callbackOf(callback, user, &deliverInteraction<Kind>));
    }

    // False, and nothing is sent, if the message is longer than theMaximumMessage.
    bool sendMessage(const DtValueBuffer& octets);
    void addMessageObserver(DtMessageObserver* observer);
    void removeMessageObserver(const DtMessageObserver* observer);

    // Sends a message that is a protocol data unit. False if it is too long or the kind is none.
    bool sendPdu(int kind, const DtValueBuffer& body);
    void addPduObserver(DtPduObserver* observer, int kind);
    void removePduObserver(const DtPduObserver* observer);

    // The same with an interaction's parameters as the body. False if a parameter could not be coded, and the unit goes
    // out without it, or if the unit stays here.
    bool sendPdu(int kind, const DtInteraction& interaction, const DtInteractionEncoder& encoder);

    // The callback gets the units of that kind whose body holds parameters, as a Kind. A subclass has another kind.
    // `decoder` is usually &DtSharedDecoder<...>.
    template <class Kind>
    void addPduCallback(int kind, const DtInteractionDecoder& (*decoder)(), void (*callback)(Kind*, void*), void* user)
    {
        enterPdu(kind, decoder, callbackOf(callback, user, &deliverPdu<Kind>));
    }

    // Takes out one registration of that callback for that kind with that user pointer.
    template <class Kind>
    void removePduCallback(int kind, void (*callback)(Kind*, void*), void* user)
    {
        removePdu(kind, callbackOf(callback, user, &deliverPdu<Kind>));
    }

    // Delivers what is in the queue now; what the callbacks cause comes with the next call.
    void drainInput();

    // Waits until there is something to drain, or until the time has passed: then false.
    bool waitForInput(double seconds);

private:
    typedef void (*AnyFunction)();
    typedef const DtInteractionDecoder& (*Decoder)();

    // A callback of some class, the pointer that goes with it, and what knows the class.
    struct Callback
    {
        AnyFunction function; // null for none
        void* user;
        void (*deliver)(const Callback& callback, Decoder decoder, const DtAttributeValues& values);
    };
    template <class Kind>
    static Callback callbackOf(void (*function)(Kind*, void*), void* user,
                               void (*deliver)(const Callback&, Decoder, const DtAttributeValues&))
    {
        const Callback callback = {reinterpret_cast<AnyFunction>(function), user, deliver};
        return callback;
    }
    template <class Kind>
    static void deliverInteraction(const Callback& callback, Decoder, const DtAttributeValues& values)
    {
        Kind interaction;
        static_cast<DtInteractionWithEncDec&>(interaction).decode(values);
        reinterpret_cast<void (*)(Kind*, void*)>(callback.function)(&interaction, callback.user);
    }
    template <class Kind>
    static void deliverPdu(const Callback& callback, Decoder decoder, const DtAttributeValues& values)
    {
        Kind interaction;
        decoder().decode(values, interaction);
        reinterpret_cast<void (*)(Kind*, void*)>(callback.function)(&interaction, callback.user);
    }

    void enterInteraction(const std::string& fullClassName, const Callback& callback);
    void removeInteraction(const Callback& callback);
    void enterPdu(int kind, Decoder decoder, const Callback& callback);
    void removePdu(int kind, const Callback& callback);

    class Own; // the exercise, the way to other processes, the queue and the registrations
    std::unique_ptr<Own> myOwn;
};

#endif
