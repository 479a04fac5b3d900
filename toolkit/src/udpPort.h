#ifndef QX_SRC_UDP_PORT_H
#define QX_SRC_UDP_PORT_H

#include <chrono>

#include <qx/attributeValues.h>

// One of sixteen UDP ports on the loopback address, and the way to the fifteen others.
//
// The number of a port among the sixteen is its slot. Nothing here waits but wait(). What cannot be sent is lost. On a
// system without POSIX sockets no port is ever open.
class DtUdpPort
{
public:
    static const int theSlots = 16;

    // Takes the first port that is free.
    explicit DtUdpPort(unsigned short firstPort);
    ~DtUdpPort();

    DtUdpPort(const DtUdpPort&) = delete;
    DtUdpPort& operator=(const DtUdpPort&) = delete;

    bool isOpen() const { return mySocket >= 0; }
    int slot() const { return mySlot; }
    unsigned short port() const { return isOpen() ? static_cast<unsigned short>(myFirstPort + mySlot) : 0; }

    void send(int slot, const DtValueBuffer& datagram);
    void sendToOthers(const DtValueBuffer& datagram);

    // False if nothing is there. `slot` is the sender's, or -1 if the sender is none of the fifteen.
    bool receive(DtValueBuffer& datagram, int& slot);

    // Until a datagram is there or the time has passed.
    void wait(std::chrono::steady_clock::duration time);

private:
    bool bindTo(int slot);
    int slotOf(unsigned short port) const;

    unsigned short myFirstPort;
    int mySlot;
    int mySocket; // -1 if none is open
};

#endif
