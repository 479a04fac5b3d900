#ifndef DT_DLL_CASE_DtBeaconDecoder_H
#define DT_DLL_CASE_DtBeaconDecoder_H
 
// Generated from case; the next generation writes it anew.
 
#include "portEntityDecoderHLA.h"
#include "beaconStateRepository.h"
#include "dllExport.h"
 
// Sets the attributes of HLAobjectRoot.PortEntity.Beacon and of its superclasses from named buffers.
class DT_DLL_CASE DtBeaconDecoder
    : public DtPortEntityDecoder
{
public:
    DtBeaconDecoder();
 
protected:
    // One for each attribute; false if the buffer holds no value of it.
    static bool decodeLamp(DtBeaconStateRepository& state, DtWireReader& reader);
    static bool decodeLamps(DtBeaconStateRepository& state, DtWireReader& reader);
    static bool decodeSector(DtBeaconStateRepository& state, DtWireReader& reader);
    static bool decodeCallSign(DtBeaconStateRepository& state, DtWireReader& reader);
    static bool decodeTemperature(DtBeaconStateRepository& state, DtWireReader& reader);
    static bool decodeTilt(DtBeaconStateRepository& state, DtWireReader& reader);
    static bool decodeTilts(DtBeaconStateRepository& state, DtWireReader& reader);
    static bool decodeTheRegister(DtBeaconStateRepository& state, DtWireReader& reader);
    static bool decodeMark(DtBeaconStateRepository& state, DtWireReader& reader);
    static bool decodeImage(DtBeaconStateRepository& state, DtWireReader& reader);
    static bool decodeTested(DtBeaconStateRepository& state, DtWireReader& reader);
    static bool decodeManned(DtBeaconStateRepository& state, DtWireReader& reader);
    static bool decodeNeighbours(DtBeaconStateRepository& state, DtWireReader& reader);
    static bool decodeSights(DtBeaconStateRepository& state, DtWireReader& reader);
    static bool decodeZone(DtBeaconStateRepository& state, DtWireReader& reader);
    static bool decodeCurrent(DtBeaconStateRepository& state, DtWireReader& reader);
    static bool decodeWatch(DtBeaconStateRepository& state, DtWireReader& reader);
    static bool decodeCalls(DtBeaconStateRepository& state, DtWireReader& reader);
    static bool decodeFix(DtBeaconStateRepository& state, DtWireReader& reader);
    static bool decodeTest(DtBeaconStateRepository& state, DtWireReader& reader);
    static bool decodePass(DtBeaconStateRepository& state, DtWireReader& reader);
    static bool decodeCondition(DtBeaconStateRepository& state, DtWireReader& reader);
    static bool decodeSurvey(DtBeaconStateRepository& state, DtWireReader& reader);
    static bool decodeGear(DtBeaconStateRepository& state, DtWireReader& reader);
    static bool decodeRule(DtBeaconStateRepository& state, DtWireReader& reader);
    static bool decodePaper(DtBeaconStateRepository& state, DtWireReader& reader);
    static bool decodeTimes(DtBeaconStateRepository& state, DtWireReader& reader);
    static bool decodeChambers(DtBeaconStateRepository& state, DtWireReader& reader);
    static bool decodeRemark(DtBeaconStateRepository& state, DtWireReader& reader);
    static bool decodeDraughts(DtBeaconStateRepository& state, DtWireReader& reader);
    static bool decodeRing(DtBeaconStateRepository& state, DtWireReader& reader);
    static bool decodeLines(DtBeaconStateRepository& state, DtWireReader& reader);
    static bool decodeDeep(DtBeaconStateRepository& state, DtWireReader& reader);
    static bool decodeSlack(DtBeaconStateRepository& state, DtWireReader& reader);
    static bool decodeFind(DtBeaconStateRepository& state, DtWireReader& reader);
    static bool decodeSpare(DtBeaconStateRepository& state, DtWireReader& reader);
    static bool decodeSteps(DtBeaconStateRepository& state, DtWireReader& reader);
    static bool decodeRank(DtBeaconStateRepository& state, DtWireReader& reader);
    static bool decodeFloor(DtBeaconStateRepository& state, DtWireReader& reader);
    static bool decodeSign(DtBeaconStateRepository& state, DtWireReader& reader);
    static bool decodeFooting(DtBeaconStateRepository& state, DtWireReader& reader);
    static bool decodeSwing(DtBeaconStateRepository& state, DtWireReader& reader);
    static bool decodeDoors(DtBeaconStateRepository& state, DtWireReader& reader);
};

#endif
