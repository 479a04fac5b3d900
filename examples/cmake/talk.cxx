// Flies an aircraft for some rounds, fires once a round, and takes the aircraft away.
//
//     talk [port] [rounds]
//
// A round takes a quarter of a second. listen with the same port shows what comes.

#include "aircraftPublisherHLA.h"
#include "weaponFireInterHLA.h"

#include <qx/exerciseConn.h>

#include <chrono>
#include <cstdlib>
#include <iostream>
#include <thread>

namespace
{
DtWorldLocation placeIn(int round)
{
    DtWorldLocation place;
    place.setX(6378137.0);
    place.setY(60.0 * round);
    place.setZ(1000.0);
    return place;
}

DtEntityNumber ownNumber()
{
    DtEntityNumber number;
    number.setSite(1);
    number.setEntity(7);
    return number;
}

void fire(DtExerciseConn& connection, const DtWorldLocation& place)
{
    DtWeaponFireInter interaction;
    interaction.setFiringEntity(ownNumber());
    interaction.setFiringLocation(place);
    interaction.setRoundsFired(3);
    connection.sendInteraction(interaction);
}
} // namespace

int main(int argc, char* argv[])
{
    const int port = argc > 1 ? std::atoi(argv[1]) : 17000;
    const int rounds = argc > 2 ? std::atoi(argv[2]) : 20;
    DtExerciseConn connection("entities", static_cast<unsigned short>(port));
    if (connection.port() == 0)
    {
        std::cerr << "talk: none of the ports from " << port << " on is free" << std::endl;
        return 1;
    }

    DtAircraftPublisher aircraft(&connection, "Kestrel");
    DtAircraftStateRepository& state = *aircraft.aircraftStateRep();
    state.setEntityNumber(ownNumber());
    state.setMarking("K-07");
    state.setDamageState(DtDamageState::eNone);
    state.setAirspeed(240.0F);
    for (int round = 0; round < rounds; ++round)
    {
        state.setLocation(placeIn(round));
        if (round == rounds / 2)
            state.setDamageState(DtDamageState::eModerate);
        aircraft.tick(); // sends what was set since the last time
        fire(connection, placeIn(round));
        std::this_thread::sleep_for(std::chrono::milliseconds(250));
        connection.drainInput(); // answers those who have come
    }
    return 0; // and the publisher takes the aircraft away
}
