#include "udpPort.h"

#ifndef _WIN32

#include <arpa/inet.h>
#include <cstdint>
#include <cstring>
#include <fcntl.h>
#include <netinet/in.h>
#include <poll.h>
#include <sys/socket.h>
#include <unistd.h>

namespace
{
const std::size_t theLongestDatagram = 65536;
const int theReceiveBuffer = 4 << 20; // the system may give less

sockaddr_in loopback(unsigned short port)
{
    sockaddr_in address;
    std::memset(&address, 0, sizeof address);
    address.sin_family = AF_INET;
    address.sin_port = htons(port);
    address.sin_addr.s_addr = htonl(INADDR_LOOPBACK);
    return address;
}

int openSocket()
{
    const int descriptor = ::socket(AF_INET, SOCK_DGRAM, 0);
    if (descriptor >= 0)
    {
        ::fcntl(descriptor, F_SETFD, FD_CLOEXEC);
        ::fcntl(descriptor, F_SETFL, ::fcntl(descriptor, F_GETFL) | O_NONBLOCK);
        ::setsockopt(descriptor, SOL_SOCKET, SO_RCVBUF, &theReceiveBuffer, sizeof theReceiveBuffer);
    }
    return descriptor;
}
} // namespace

DtUdpPort::DtUdpPort(unsigned short firstPort) : myFirstPort(firstPort), mySlot(-1), mySocket(openSocket())
{
    for (int slot = 0; slot < theSlots && isOpen(); ++slot)
    {
        if (bindTo(slot))
        {
            mySlot = slot;
            return;
        }
    }
    if (isOpen())
    {
        ::close(mySocket);
    }
    mySocket = -1;
}

DtUdpPort::~DtUdpPort()
{
    if (isOpen())
    {
        ::close(mySocket);
    }
}

bool DtUdpPort::bindTo(int slot)
{
    if (myFirstPort + slot > 0xFFFF)
    {
        return false;
    }
    const sockaddr_in address = loopback(static_cast<unsigned short>(myFirstPort + slot));
    return ::bind(mySocket, reinterpret_cast<const sockaddr*>(&address), sizeof address) == 0;
}

int DtUdpPort::slotOf(unsigned short port) const
{
    const int slot = static_cast<int>(port) - static_cast<int>(myFirstPort);
    return slot >= 0 && slot < theSlots && slot != mySlot ? slot : -1;
}

void DtUdpPort::send(int slot, const DtValueBuffer& datagram)
{
    if (myFirstPort + slot <= 0xFFFF)
    {
        const sockaddr_in address = loopback(static_cast<unsigned short>(myFirstPort + slot));
        (void)::sendto(mySocket, datagram.data(), datagram.size(), 0, reinterpret_cast<const sockaddr*>(&address),
                       sizeof address);
    }
}

void DtUdpPort::sendToOthers(const DtValueBuffer& datagram)
{
    for (int slot = 0; slot < theSlots; ++slot)
    {
        if (slot != mySlot)
        {
            send(slot, datagram);
        }
    }
}

bool DtUdpPort::receive(DtValueBuffer& datagram, int& slot)
{
    datagram.resize(theLongestDatagram);
    sockaddr_in sender;
    std::memset(&sender, 0, sizeof sender);
    socklen_t size = sizeof sender;
    const ssize_t length =
        ::recvfrom(mySocket, datagram.data(), datagram.size(), 0, reinterpret_cast<sockaddr*>(&sender), &size);
    if (length < 0)
    {
        return false;
    }
    datagram.resize(static_cast<std::size_t>(length));
    slot = sender.sin_addr.s_addr == htonl(INADDR_LOOPBACK) ? slotOf(ntohs(sender.sin_port)) : -1;
    return true;
}

void DtUdpPort::wait(std::chrono::steady_clock::duration time)
{
    const auto milliseconds = std::chrono::duration_cast<std::chrono::milliseconds>(time).count();
    pollfd waiting;
    waiting.fd = mySocket;
    waiting.events = POLLIN;
    waiting.revents = 0;
    (void)::poll(&waiting, 1, milliseconds < 0 ? 0 : static_cast<int>(milliseconds < 60000 ? milliseconds + 1 : 60000));
}

#else

#include <thread>

DtUdpPort::DtUdpPort(unsigned short firstPort) : myFirstPort(firstPort), mySlot(-1), mySocket(-1)
{
}
DtUdpPort::~DtUdpPort()
{
}
void DtUdpPort::send(int, const DtValueBuffer&)
{
}
void DtUdpPort::sendToOthers(const DtValueBuffer&)
{
}
bool DtUdpPort::receive(DtValueBuffer&, int&)
{
    return false;
}
void DtUdpPort::wait(std::chrono::steady_clock::duration time)
{
    std::this_thread::sleep_for(time);
}

#endif
