// Generated from case; the next generation writes it anew.
//
// Prints what becomes known of objects of the class Beacon until the first of them is removed.
//
//     listen [port] [seconds]
//
// The port is that of talk. Without a removal it ends after so many seconds, and its exit code is 1.
 
#ifdef QX_DIS
#include "reflectedBeaconListDIS.h"
#else
#include "reflectedBeaconListHLA.h"
#endif
 
#include <qx/exerciseConn.h>
#include <qx/valueText.h>
 
#include <chrono>
#include <cstdlib>
#include <iostream>
#include <string>
 
namespace
{
typedef DtReflectedBeacon Object;
typedef DtBeaconStateRepository State;
 
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
    if (state.DtStateRepository::isChanged("Lamp"))
    {
        print("Lamp", state.lamp());
    }
    if (state.DtStateRepository::isChanged("Lamps"))
    {
        print("Lamps", state.lamps());
    }
    if (state.DtStateRepository::isChanged("Sector"))
    {
        print("Sector", state.sector());
    }
    if (state.DtStateRepository::isChanged("CallSign"))
    {
        print("CallSign", state.callSign());
    }
    if (state.DtStateRepository::isChanged("Temperature"))
    {
        print("Temperature", state.temperature());
    }
    if (state.DtStateRepository::isChanged("Tilt"))
    {
        print("Tilt", state.tilt());
    }
    if (state.DtStateRepository::isChanged("Tilts"))
    {
        print("Tilts", state.tilts());
    }
    if (state.DtStateRepository::isChanged("Register"))
    {
        print("TheRegister", state.theRegister());
    }
    if (state.DtStateRepository::isChanged("Mark"))
    {
        print("Mark", state.mark());
    }
    if (state.DtStateRepository::isChanged("Image"))
    {
        print("Image", state.image());
    }
    if (state.DtStateRepository::isChanged("Tested"))
    {
        print("Tested", state.tested());
    }
    if (state.DtStateRepository::isChanged("Manned"))
    {
        print("Manned", state.manned());
    }
    if (state.DtStateRepository::isChanged("Neighbours"))
    {
        print("Neighbours", state.neighbours());
    }
    if (state.DtStateRepository::isChanged("Sights"))
    {
        print("Sights", state.sights());
    }
    if (state.DtStateRepository::isChanged("Zone"))
    {
        print("Zone", state.zone());
    }
    if (state.DtStateRepository::isChanged("Current"))
    {
        print("Current", state.current());
    }
    if (state.DtStateRepository::isChanged("Watch"))
    {
        print("Watch", state.watch());
    }
    if (state.DtStateRepository::isChanged("Calls"))
    {
        print("Calls", state.calls());
    }
    if (state.DtStateRepository::isChanged("Fix"))
    {
        print("Fix", state.fix());
    }
    if (state.DtStateRepository::isChanged("Test"))
    {
        print("Test", state.test());
    }
    if (state.DtStateRepository::isChanged("Pass"))
    {
        print("Pass", state.pass());
    }
    if (state.DtStateRepository::isChanged("Condition"))
    {
        print("Condition", state.condition());
    }
    if (state.DtStateRepository::isChanged("Survey"))
    {
        print("Survey", state.survey());
    }
    if (state.DtStateRepository::isChanged("Gear"))
    {
        print("Gear", state.gear());
    }
    if (state.DtStateRepository::isChanged("Rule"))
    {
        print("Rule", state.rule());
    }
    if (state.DtStateRepository::isChanged("Paper"))
    {
        print("Paper", state.paper());
    }
    if (state.DtStateRepository::isChanged("Times"))
    {
        print("Times", state.times());
    }
    if (state.DtStateRepository::isChanged("Chambers"))
    {
        print("Chambers", state.chambers());
    }
    if (state.DtStateRepository::isChanged("Remark"))
    {
        print("Remark", state.remark());
    }
    if (state.DtStateRepository::isChanged("Draughts"))
    {
        print("Draughts", state.draughts());
    }
    if (state.DtStateRepository::isChanged("Ring"))
    {
        print("Ring", state.ring());
    }
    if (state.DtStateRepository::isChanged("Lines"))
    {
        print("Lines", state.lines());
    }
    if (state.DtStateRepository::isChanged("Deep"))
    {
        print("Deep", state.deep());
    }
    if (state.DtStateRepository::isChanged("Slack"))
    {
        print("Slack", state.slack());
    }
    if (state.DtStateRepository::isChanged("Find"))
    {
        print("Find", state.find());
    }
    if (state.DtStateRepository::isChanged("Spare"))
    {
        print("Spare", state.spare());
    }
    if (state.DtStateRepository::isChanged("Steps"))
    {
        print("Steps", state.steps());
    }
    if (state.DtStateRepository::isChanged("Rank"))
    {
        print("Rank", state.rank());
    }
    if (state.DtStateRepository::isChanged("Floor"))
    {
        print("Floor", state.floor());
    }
    if (state.DtStateRepository::isChanged("Sign"))
    {
        print("Sign", state.sign());
    }
    if (state.DtStateRepository::isChanged("Footing"))
    {
        print("Footing", state.footing());
    }
    if (state.DtStateRepository::isChanged("Swing"))
    {
        print("Swing", state.swing());
    }
    if (state.DtStateRepository::isChanged("Doors"))
    {
        print("Doors", state.doors());
    }
}
 
void added(Object* object, void*)
{
    std::cout << "discovered: " << object->objectName() << std::endl;
}
 
void updated(Object* object, void*)
{
    std::cout << "updated: " << object->objectName() << std::endl;
    printChanges(*object->beaconStateRep());
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
    DtReflectedBeaconList objects(&exerciseConn);
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
