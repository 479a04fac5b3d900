// Generated from case; the next generation writes it anew.
//
// Prints what becomes known of objects of the class CargoShip until the first of them is removed.
//
//     listen [port] [seconds]
//
// The port is that of talk. Without a removal it ends after so many seconds, and its exit code is 1.
 
#ifdef QX_DIS
#include "reflectedCargoShipListDIS.h"
#else
#include "reflectedCargoShipListHLA.h"
#endif
 
#include <qx/exerciseConn.h>
#include <qx/valueText.h>
 
#include <chrono>
#include <cstdlib>
#include <iostream>
#include <string>
 
namespace
{
typedef DtReflectedCargoShip Object;
typedef DtCargoShipStateRepository State;
 
template <class Value>
void print(const char* name, const Value& value)
{
    std::cout << "    " << name << ": " << DtValueText(value) << std::endl;
}
 
// What the latest update has brought; the other values stand as they were.
void printChanges(const State& state)
{
    (void)state; // in case that the class has no attributes of its own
    if (state.DtStateRepository::isChanged("Position"))
    {
        print("Position", state.position());
    }
    if (state.DtStateRepository::isChanged("Name"))
    {
        print("Name", state.name());
    }
    if (state.DtStateRepository::isChanged("Serial"))
    {
        print("Serial", state.serial());
    }
    if (state.DtStateRepository::isChanged("Speed"))
    {
        print("Speed", state.speed());
    }
    if (state.DtStateRepository::isChanged("Heading__True"))
    {
        print("Heading__True", state.heading__True());
    }
    if (state.DtStateRepository::isChanged("State"))
    {
        print("State", state.state());
    }
    if (state.DtStateRepository::isChanged("_class"))
    {
        print("TheClass", state.theClass());
    }
    if (state.DtStateRepository::isChanged("int"))
    {
        print("TheInt", state.theInt());
    }
    if (state.DtStateRepository::isChanged("Template"))
    {
        print("TheTemplate", state.theTemplate());
    }
    if (state.DtStateRepository::isChanged("Crew"))
    {
        print("Crew", state.crew());
    }
    if (state.DtStateRepository::isChanged("Holds"))
    {
        print("Holds", state.holds());
    }
    if (state.DtStateRepository::isChanged("Manifest"))
    {
        print("Manifest", state.manifest());
    }
    if (state.DtStateRepository::isChanged("Draught"))
    {
        print("Draught", state.draught());
    }
    if (state.DtStateRepository::isChanged("Dangerous"))
    {
        print("Dangerous", state.dangerous());
    }
    if (state.DtStateRepository::isChanged("Seal"))
    {
        print("Seal", state.seal());
    }
}
 
void added(Object* object, void*)
{
    std::cout << "discovered: " << object->objectName() << std::endl;
}
 
void updated(Object* object, void*)
{
    std::cout << "updated: " << object->objectName() << std::endl;
    printChanges(*object->cargoShipStateRep());
    for (const std::string& name : object->refused())
    {
        std::cout << "    " << name << " could not be read" << std::endl;
    }
}
 
void removed(Object* object, void* isRemoved)
{
    std::cout << "removed: " << object->objectName() << std::endl;
    *static_cast<bool*>(isRemoved) = true;
}
} // namespace
 
int main(int argc, char* argv[])
{
    const int port = argc > 1 ? std::atoi(argv[1]) : 17000;
    const double seconds = argc > 2 ? std::atof(argv[2]) : 30;
 
    // The connection takes the first of sixteen ports that is free.
    DtExerciseConn exerciseConn("case", static_cast<unsigned short>(port));
    if (exerciseConn.port() == 0)
    {
        std::cerr << "listen: none of the ports from " << port << " on is free" << std::endl;
        return 1;
    }
 
    bool isRemoved = false;
    DtReflectedCargoShipList objects(&exerciseConn);
    objects.addAdditionCallback(&added, nullptr);
    objects.addUpdateCallback(&updated, nullptr);
    objects.addRemovalCallback(&removed, &isRemoved);
 
    const auto end = std::chrono::steady_clock::now() + std::chrono::duration<double>(seconds);
    while (!isRemoved && std::chrono::steady_clock::now() < end)
    {
        exerciseConn.waitForInput(0.1);
        exerciseConn.drainInput(); // calls the functions above
    }
    return isRemoved ? 0 : 1;
}
