// Prints what becomes known of platforms, and who fires, until the first platform goes.
//
//     listen [port] [seconds]
//
// The port is that of talk. When nothing goes within so many seconds, it ends with 1.

#include "reflectedPlatformListHLA.h"
#include "weaponFireInterHLA.h"

#include <qx/exerciseConn.h>
#include <qx/valueText.h>

#include <chrono>
#include <cstdlib>
#include <iostream>

namespace
{
void platformCame(DtReflectedPlatform* platform, void*)
{
    std::cout << platform->objectName() << " is here" << std::endl;
}

void platformChanged(DtReflectedPlatform* platform, void*)
{
    const DtPlatformStateRepository& state = *platform->platformStateRep();
    std::cout << platform->objectName() << ", marked " << state.marking().c_str() << ", is " << state.location().y()
              << " m along, damage: " << DtValueText(state.damageState()) << std::endl;
}

void platformWent(DtReflectedPlatform* platform, void* hasGone)
{
    std::cout << platform->objectName() << " is gone" << std::endl;
    *static_cast<bool*>(hasGone) = true;
}

void weaponFired(DtWeaponFireInter* interaction, void*)
{
    std::cout << "entity " << interaction->firingEntity().site() << "." << interaction->firingEntity().entity()
              << " fires " << interaction->roundsFired() << " rounds" << std::endl;
}
} // namespace

int main(int argc, char* argv[])
{
    const int port = argc > 1 ? std::atoi(argv[1]) : 17000;
    const double seconds = argc > 2 ? std::atof(argv[2]) : 60;
    DtExerciseConn connection("entities", static_cast<unsigned short>(port));
    if (connection.port() == 0)
    {
        std::cerr << "listen: none of the ports from " << port << " on is free" << std::endl;
        return 1;
    }

    bool hasGone = false;
    DtReflectedPlatformList platforms(&connection); // aircraft and ground vehicles too
    platforms.addAdditionCallback(&platformCame, nullptr);
    platforms.addUpdateCallback(&platformChanged, nullptr);
    platforms.addRemovalCallback(&platformWent, &hasGone);
    DtWeaponFireInter::addCallback(&connection, &weaponFired, nullptr);

    const auto end = std::chrono::steady_clock::now() + std::chrono::duration<double>(seconds);
    while (!hasGone && std::chrono::steady_clock::now() < end)
    {
        connection.waitForInput(0.1);
        connection.drainInput(); // calls the functions above
    }
    DtWeaponFireInter::removeCallback(&connection, &weaponFired, nullptr);
    return hasGone ? 0 : 1;
}
