#ifndef DT_DLL_CASE_DtBeaconEncoder_H
#define DT_DLL_CASE_DtBeaconEncoder_H
 
// Generated from case; the next generation writes it anew.
 
#include "portEntityEncoderHLA.h"
#include "beaconStateRepository.h"
#include "dllExport.h"
 
// Puts the attributes of HLAobjectRoot.PortEntity.Beacon into named buffers, behind those of its superclasses.
class DT_DLL_CASE DtBeaconEncoder
    : public DtPortEntityEncoder
{
public:
    DtBeaconEncoder();
 
protected:
    // One for each attribute; false if the value has no wire form.
    static bool encodeLamp(const DtBeaconStateRepository& state, DtWireWriter& writer);
    static bool encodeLamps(const DtBeaconStateRepository& state, DtWireWriter& writer);
    static bool encodeSector(const DtBeaconStateRepository& state, DtWireWriter& writer);
    static bool encodeCallSign(const DtBeaconStateRepository& state, DtWireWriter& writer);
    static bool encodeTemperature(const DtBeaconStateRepository& state, DtWireWriter& writer);
    static bool encodeTilt(const DtBeaconStateRepository& state, DtWireWriter& writer);
    static bool encodeTilts(const DtBeaconStateRepository& state, DtWireWriter& writer);
    static bool encodeTheRegister(const DtBeaconStateRepository& state, DtWireWriter& writer);
    static bool encodeMark(const DtBeaconStateRepository& state, DtWireWriter& writer);
    static bool encodeImage(const DtBeaconStateRepository& state, DtWireWriter& writer);
    static bool encodeTested(const DtBeaconStateRepository& state, DtWireWriter& writer);
    static bool encodeManned(const DtBeaconStateRepository& state, DtWireWriter& writer);
    static bool encodeNeighbours(const DtBeaconStateRepository& state, DtWireWriter& writer);
    static bool encodeSights(const DtBeaconStateRepository& state, DtWireWriter& writer);
    static bool encodeZone(const DtBeaconStateRepository& state, DtWireWriter& writer);
    static bool encodeCurrent(const DtBeaconStateRepository& state, DtWireWriter& writer);
    static bool encodeWatch(const DtBeaconStateRepository& state, DtWireWriter& writer);
    static bool encodeCalls(const DtBeaconStateRepository& state, DtWireWriter& writer);
    static bool encodeFix(const DtBeaconStateRepository& state, DtWireWriter& writer);
    static bool encodeTest(const DtBeaconStateRepository& state, DtWireWriter& writer);
    static bool encodePass(const DtBeaconStateRepository& state, DtWireWriter& writer);
    static bool encodeCondition(const DtBeaconStateRepository& state, DtWireWriter& writer);
    static bool encodeSurvey(const DtBeaconStateRepository& state, DtWireWriter& writer);
    static bool encodeGear(const DtBeaconStateRepository& state, DtWireWriter& writer);
    static bool encodeRule(const DtBeaconStateRepository& state, DtWireWriter& writer);
    static bool encodePaper(const DtBeaconStateRepository& state, DtWireWriter& writer);
    static bool encodeTimes(const DtBeaconStateRepository& state, DtWireWriter& writer);
    static bool encodeChambers(const DtBeaconStateRepository& state, DtWireWriter& writer);
    static bool encodeRemark(const DtBeaconStateRepository& state, DtWireWriter& writer);
    static bool encodeDraughts(const DtBeaconStateRepository& state, DtWireWriter& writer);
    static bool encodeRing(const DtBeaconStateRepository& state, DtWireWriter& writer);
    static bool encodeLines(const DtBeaconStateRepository& state, DtWireWriter& writer);
    static bool encodeDeep(const DtBeaconStateRepository& state, DtWireWriter& writer);
    static bool encodeSlack(const DtBeaconStateRepository& state, DtWireWriter& writer);
    static bool encodeFind(const DtBeaconStateRepository& state, DtWireWriter& writer);
    static bool encodeSpare(const DtBeaconStateRepository& state, DtWireWriter& writer);
    static bool encodeSteps(const DtBeaconStateRepository& state, DtWireWriter& writer);
    static bool encodeRank(const DtBeaconStateRepository& state, DtWireWriter& writer);
    static bool encodeFloor(const DtBeaconStateRepository& state, DtWireWriter& writer);
    static bool encodeSign(const DtBeaconStateRepository& state, DtWireWriter& writer);
    static bool encodeFooting(const DtBeaconStateRepository& state, DtWireWriter& writer);
    static bool encodeSwing(const DtBeaconStateRepository& state, DtWireWriter& writer);
    static bool encodeDoors(const DtBeaconStateRepository& state, DtWireWriter& writer);
};

#endif
