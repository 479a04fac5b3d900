#ifndef TESTS_TOOLKIT_EXERCISE_FIXTURE_H
#define TESTS_TOOLKIT_EXERCISE_FIXTURE_H

// What the tests of the toolkit share: a port range of their own, ways to run connections, recorders, and one object
// class and one interaction written as the generator writes them.

#include "udpPort.h"

#include <qx/disPublisherBase.h>
#include <qx/disReflectedList.h>
#include <qx/exerciseConn.h>
#include <qx/hlaPublisherBase.h>
#include <qx/hlaReflectedList.h>

#include <QtCore/QCoreApplication>
#include <QtCore/QElapsedTimer>
#include <QtCore/QStringList>

#include <functional>
#include <memory>
#include <vector>

inline DtValueBuffer octetsOf(const std::string& text)
{
    return DtValueBuffer(text.begin(), text.end());
}

inline QString textOf(const DtValueBuffer& octets)
{
    return QString::fromLatin1(reinterpret_cast<const char*>(octets.data()), static_cast<int>(octets.size()));
}

inline QString textOf(const DtAttributeValues& values)
{
    QStringList texts;
    for (const auto& [name, value] : values)
        texts += QString::fromStdString(name) + "=" + textOf(value);
    return texts.join(' ');
}

inline DtAttributeValues valuesOf(const std::string& name, const std::string& text)
{
    return {
        {name, octetsOf(text)}
    };
}

inline bool isWholeRangeFree(unsigned short first)
{
    std::vector<std::unique_ptr<DtUdpPort>> ports;
    for (int slot = 0; slot < DtUdpPort::theSlots; ++slot)
    {
        ports.push_back(std::make_unique<DtUdpPort>(first));
        if (!ports.back()->isOpen() || ports.back()->slot() != slot)
            return false;
    }
    return true;
}

// The first of sixteen free ports, below those that the system hands out. Programs that run at the same time begin to
// look at different places.
inline unsigned short freeRange()
{
    static qint64 theNext = QCoreApplication::applicationPid() * 37;
    for (int tries = 0; tries < 1300; ++tries)
    {
        const auto first = static_cast<unsigned short>(10000 + (theNext++ % 1300) * DtUdpPort::theSlots);
        if (isWholeRangeFree(first))
            return first;
    }
    qFatal("no free ports");
    return 0;
}

// Drains the connections in turn until the condition holds; false if it does not within four seconds.
inline bool runUntil(const std::vector<DtExerciseConn*>& connections, const std::function<bool()>& condition)
{
    QElapsedTimer timer;
    timer.start();
    while (!condition())
    {
        if (timer.elapsed() > 4000)
            return false;
        for (DtExerciseConn* connection : connections)
        {
            connection->waitForInput(0.001);
            connection->drainInput();
        }
    }
    return true;
}

// Drains them for a while, for what is not to come.
inline void runFor(const std::vector<DtExerciseConn*>& connections, int milliseconds)
{
    QElapsedTimer timer;
    timer.start();
    runUntil(connections, [&] { return timer.elapsed() > milliseconds; });
}

// Writes down what it hears, a line each: "+ name", "name: values", "- name".
class Recorder : public DtExerciseObserver
{
public:
    explicit Recorder(DtExerciseConn& connection, const std::string& fullClassName = "HLAobjectRoot")
        : myConnection(connection)
    {
        myConnection.addObserver(this, fullClassName);
    }
    ~Recorder() override { myConnection.removeObserver(this); }

    QStringList lines;
    std::map<DtExerciseObjectId, QString> names;

private:
    void objectAdded(DtExerciseObjectId id, const std::string& name) override
    {
        names[id] = QString::fromStdString(name);
        lines += "+ " + names[id];
    }
    void objectUpdated(DtExerciseObjectId id, const DtAttributeValues& values) override
    {
        lines += names[id] + ": " + textOf(values);
    }
    void objectRemoved(DtExerciseObjectId id) override
    {
        lines += "- " + names[id];
        names.erase(id);
    }

    DtExerciseConn& myConnection;
};

class MessageRecorder : public DtMessageObserver
{
public:
    explicit MessageRecorder(DtExerciseConn& connection) : myConnection(connection)
    {
        myConnection.addMessageObserver(this);
    }
    ~MessageRecorder() override { myConnection.removeMessageObserver(this); }

    std::vector<DtValueBuffer> messages;

private:
    void messageReceived(const DtValueBuffer& octets) override { messages.push_back(octets); }

    DtExerciseConn& myConnection;
};

// The state of a Vessel: a number and a text.
class VesselState : public DtStateRepository
{
public:
    void setSpeed(double speed)
    {
        mySpeed = speed;
        markChanged("Speed");
    }
    double speed() const { return mySpeed; }
    void setCargo(const std::string& cargo)
    {
        myCargo = cargo;
        markChanged("Cargo");
    }
    const std::string& cargo() const { return myCargo; }

private:
    double mySpeed = 0;
    std::string myCargo;
};

// A negative speed has no wire form.
template <class Base>
class VesselEncoder : public Base
{
public:
    VesselEncoder()
    {
        this->addCoder("Speed", &encodeSpeed);
        this->addCoder("Cargo", &encodeCargo);
    }

private:
    static bool encodeSpeed(const VesselState& state, DtWireWriter& writer)
    {
        writer.putFloat64(state.speed());
        return state.speed() >= 0;
    }
    static bool encodeCargo(const VesselState& state, DtWireWriter& writer)
    {
        writer.putBytes(state.cargo().data(), state.cargo().size());
        return true;
    }
};

template <class Base>
class VesselDecoder : public Base
{
public:
    VesselDecoder()
    {
        this->addCoder("Speed", &decodeSpeed);
        this->addCoder("Cargo", &decodeCargo);
    }

private:
    static bool decodeSpeed(VesselState& state, DtWireReader& reader)
    {
        double speed = 0;
        if (!reader.getFloat64(speed))
            return false;
        state.setSpeed(speed);
        return true;
    }
    static bool decodeCargo(VesselState& state, DtWireReader& reader)
    {
        std::string cargo(reader.remaining(), ' ');
        if (!reader.getBytes(cargo.data(), cargo.size()))
            return false;
        state.setCargo(cargo);
        return true;
    }
};

template <class Base, class Encoder>
class VesselPublisherOf : public Base
{
public:
    template <class... Names>
    explicit VesselPublisherOf(DtExerciseConn* connection, const Names&... names)
        : Base(connection, names..., std::make_unique<VesselState>(), std::make_unique<VesselEncoder<Encoder>>())
    {
    }
    VesselState* vesselStateRep() const { return static_cast<VesselState*>(this->stateRepository()); }
};
using HlaVesselPublisher = VesselPublisherOf<DtHlaPublisherBase, DtHlaStateEncoder>;
using DisVesselPublisher = VesselPublisherOf<DtDisPublisherBase, DtStateEncoder>;

template <class Base, class Decoder>
class ReflectedVesselOf : public Base
{
public:
    ReflectedVesselOf(DtExerciseObjectId id, const std::string& name)
        : Base(id, name, std::make_unique<VesselState>(), std::make_unique<VesselDecoder<Decoder>>())
    {
    }
    VesselState* vesselStateRep() const { return static_cast<VesselState*>(this->stateRepository()); }
};

// Both lists write down what their callbacks are called for.
template <class Base, class Object, class Decoder>
class VesselListOf : public Base
{
public:
    using Vessel = ReflectedVesselOf<Object, Decoder>;

    template <class Key>
    VesselListOf(DtExerciseConn* connection, const Key& key) : Base(connection, key)
    {
        this->addCallback(Base::Addition, &noteAddition, this);
        this->addCallback(Base::Update, &noteUpdate, this);
        this->addCallback(Base::Removal, &noteRemoval, this);
    }
    Vessel* first() const { return static_cast<Vessel*>(this->findAfter(0)); }
    Vessel* next(const Vessel* vessel) const { return static_cast<Vessel*>(this->findAfter(vessel->objectId())); }
    Vessel* lookup(DtExerciseObjectId id) const { return static_cast<Vessel*>(this->find(id)); }

    void stopNotingUpdates() { this->removeCallback(Base::Update, &noteUpdate, this); }

    QStringList lines;

private:
    std::unique_ptr<Object> makeObject(DtExerciseObjectId id, const std::string& name) const override
    {
        return std::make_unique<Vessel>(id, name);
    }
    static void note(const char* what, Vessel* vessel, void* list)
    {
        const VesselState* state = vessel->vesselStateRep();
        static_cast<VesselListOf*>(list)->lines += QString("%1 %2 %3 %4")
                                                       .arg(what, QString::fromStdString(vessel->objectName()))
                                                       .arg(state->speed())
                                                       .arg(QString::fromStdString(state->cargo()));
    }
    static void noteAddition(Vessel* vessel, void* list) { note("+", vessel, list); }
    static void noteUpdate(Vessel* vessel, void* list) { note("=", vessel, list); }
    static void noteRemoval(Vessel* vessel, void* list) { note("-", vessel, list); }
};
using HlaVesselList = VesselListOf<DtHlaReflectedList, DtHlaReflectedObject, DtHlaStateDecoder>;
using DisVesselList = VesselListOf<DtDisReflectedList, DtDisReflectedObject, DtStateDecoder>;

// Interactions with one parameter: a signal, and one of its subclasses. A text that begins with an exclamation mark has
// no wire form.
class Signal : public DtInteractionWithEncDec
{
public:
    Signal();
    std::string text;

protected:
    explicit Signal(const DtInteractionCoding& coding) : DtInteractionWithEncDec(coding) {}
};

// The same parameter in an interaction that is sent as a protocol data unit.
class PduSignal : public DtInteraction
{
public:
    PduSignal() : DtInteraction("Signal") {}
    std::string text;
};

template <class Kind>
class SignalEncoder : public DtInteractionEncoder
{
public:
    SignalEncoder() { addCoder("Text", &encodeText); }

private:
    static bool encodeText(const Kind& signal, DtWireWriter& writer)
    {
        writer.putBytes(signal.text.data(), signal.text.size());
        return signal.text.compare(0, 1, "!") != 0;
    }
};

template <class Kind>
class SignalDecoder : public DtInteractionDecoder
{
public:
    SignalDecoder() { addCoder("Text", &decodeText); }

private:
    static bool decodeText(Kind& signal, DtWireReader& reader)
    {
        signal.text.assign(reader.remaining(), ' ');
        return reader.getBytes(signal.text.data(), signal.text.size());
    }
};

inline Signal::Signal()
    : Signal(DtInteractionCoding{"Signal", &DtSharedEncoder<SignalEncoder<Signal>>,
                                 &DtSharedDecoder<SignalDecoder<Signal>>})
{
}

class HornSignal : public Signal
{
public:
    HornSignal()
        : Signal(DtInteractionCoding{"Signal.Horn", &DtSharedEncoder<SignalEncoder<Signal>>,
                                     &DtSharedDecoder<SignalDecoder<Signal>>})
    {
    }
};

template <class Kind>
void noteText(Kind* signal, void* texts)
{
    *static_cast<QStringList*>(texts) += QString::fromStdString(signal->text);
}

inline bool sendText(DtExerciseConn& connection, const std::string& text)
{
    Signal signal;
    signal.text = text;
    return connection.sendInteraction(signal);
}

#endif
