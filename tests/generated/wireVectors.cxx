// Values of the sample model's datatypes and the octets that IEEE 1516.2 lays them out in, worked out by hand.
//
// Compiled and run together with the code that is generated from data/samples/sample.xml. Each vector is encoded and
// compared, decoded and compared, and cut off behind each of its octets, which has to be refused; other and random
// octets may be anything but trouble. Without arguments it prints a line for each failure and, at the end, the number
// of vectors and of random buffers that were values; with --list it prints the vectors themselves, as they stand in
// wireVectors.txt. The JSON beside each value is for other implementations: records by their fields, variant records
// with "discriminant", enumerations as numbers, characters of arrays as numbers.

#include "allDatatypes.h"

#include <cctype>
#include <cstdio>
#include <cstring>
#include <functional>
#include <map>
#include <random>
#include <set>
#include <string>

namespace
{
typedef std::vector<DtU8> Octets;

int theVectors = 0;
int theFailures = 0;
int theRandomValues = 0; // buffers of random octets that were taken
bool theListing = false;

// Hexadecimal digits; blanks group them.
Octets octetsOf(const std::string& hex)
{
    Octets octets;
    std::string digits;
    for (char digit : hex)
        if (!std::isspace(static_cast<unsigned char>(digit)))
            digits += digit;
    for (std::size_t i = 0; i + 1 < digits.size(); i += 2)
        octets.push_back(static_cast<DtU8>(std::stoul(digits.substr(i, 2), nullptr, 16)));
    return octets;
}

std::string hexOf(const DtU8* octets, std::size_t count)
{
    std::string hex;
    char digits[3];
    for (std::size_t i = 0; i < count; ++i)
    {
        std::snprintf(digits, sizeof digits, "%02x", octets[i]);
        hex += digits;
    }
    return hex;
}

std::string times(int count, const std::string& hex)
{
    std::string all;
    for (; count > 0; --count)
        all += hex;
    return all;
}

void fail(const std::string& datatype, const std::string& json, const std::string& what)
{
    ++theFailures;
    std::printf("FAILED %s %s: %s\n", datatype.c_str(), json.c_str(), what.c_str());
}

// What a prefix of an array without length is: fewer elements, or a refusal.
enum Cut
{
    Refused,
    RefusedOrShorter
};

// How values of one type are written and read.
template <class Value>
struct Coding
{
    std::function<bool(const Value&, Octets&)> write;
    std::function<bool(const Octets&, Value&)> read; // keeps the value when it answers false
};

template <class Value>
Coding<Value> codingOf(const DtWireForm& form)
{
    return {[form](const Value& value, Octets& octets)
            {
                DtWireWriter writer;
                const bool done = DtWriteValue(writer, value, form);
                octets = writer.bytes();
                return done;
            },
            [form](const Octets& octets, Value& value)
            {
                DtWireReader reader(octets);
                const bool done = DtReadValue(reader, value, form);
                return done == reader.ok() && done;
            }};
}

template <class Value>
void checkCuts(const Coding<Value>& coding, const std::string& name, const std::string& json, const Octets& whole,
               Cut cut)
{
    for (std::size_t length = 0; length < whole.size(); ++length)
    {
        const Octets part(whole.begin(), whole.begin() + static_cast<std::ptrdiff_t>(length));
        Value value = Value();
        if (!coding.read(part, value))
        {
            if (!(value == Value()))
                fail(name, json, "a refused buffer changed the value");
            continue;
        }
        Octets again;
        if (cut == Refused || !coding.write(value, again) || again != part)
            fail(name, json, "cut off behind octet " + std::to_string(length) + " it is still taken");
    }
}

// Whatever stands in one octet: the buffer is taken or refused, and a refused one leaves the value alone.
template <class Value>
void checkOtherOctets(const Coding<Value>& coding, const std::string& name, const std::string& json,
                      const Octets& whole)
{
    for (std::size_t place = 0; place < whole.size(); ++place)
    {
        for (const int other : {0x00, 0x01, 0x7f, 0x80, 0xff})
        {
            Octets octets = whole;
            octets[place] = static_cast<DtU8>(other);
            Value value = Value();
            if (!coding.read(octets, value) && !(value == Value()))
                fail(name, json, "a refused buffer changed the value");
        }
    }
}

// The same on every machine and in every run. Half of them are as long as the usual ones, which go further.
Octets randomOctets(std::size_t usualLength)
{
    static std::mt19937 theGenerator(20);
    // Small octets are counts and discriminants that lead further than most of the others.
    const unsigned range = theGenerator() % 3 == 0 ? 256 : 4;
    Octets octets(theGenerator() % 2 == 0 ? usualLength : theGenerator() % 80);
    for (DtU8& octet : octets)
        octet = static_cast<DtU8>(theGenerator() % range);
    return octets;
}

// Whatever arrives is refused and leaves the value alone, or is a value: it can be written, and what is written reads
// as the same again. Values are compared by their octets, since there are numbers that do not equal themselves.
template <class Value>
void checkRandomOctets(const Coding<Value>& coding, const std::string& name, std::size_t usualLength)
{
    for (int round = 0; round < 50; ++round)
    {
        const Octets octets = randomOctets(usualLength);
        const std::string hex = hexOf(octets.data(), octets.size());
        Value value = Value();
        if (!coding.read(octets, value))
        {
            if (!(value == Value()))
                fail(name, hex, "a refused buffer changed the value");
            continue;
        }
        ++theRandomValues;
        Octets once, twice;
        Value back = Value();
        if (!coding.write(value, once))
            fail(name, hex, "taken, and cannot be written");
        else if (!coding.read(once, back) || !coding.write(back, twice) || once != twice)
            fail(name, hex, "taken, and gives another value behind a way there and back");
    }
}

template <class Value>
void check(const Coding<Value>& coding, const std::string& name, const std::string& json, const Value& value,
           const std::string& hex, Cut cut = Refused)
{
    ++theVectors;
    const Octets expected = octetsOf(hex);
    if (theListing)
        std::printf("%s | %s | %s\n", name.c_str(), json.c_str(), hexOf(expected.data(), expected.size()).c_str());
    Octets octets;
    if (!coding.write(value, octets))
        return fail(name, json, "not encoded");
    if (octets != expected)
        fail(name, json, "gives " + hexOf(octets.data(), octets.size()));
    Value back = Value();
    if (!coding.read(expected, back))
        fail(name, json, "not decoded");
    else if (!(back == value))
        fail(name, json, "decodes to another value");
    checkCuts(coding, name, json, expected, cut);
    checkOtherOctets(coding, name, json, expected);
    checkRandomOctets(coding, name, expected.size());
    Octets longer = expected;
    longer.push_back(0x5a);
    Value untouched = Value();
    if (cut == Refused && coding.read(longer, untouched))
        fail(name, json, "an octet too many is taken");
    if (!(untouched == Value()) && cut == Refused)
        fail(name, json, "a refused buffer changed the value");
}

// A value whose class, or whose enumeration, knows its wire form.
template <class Value>
void own(const std::string& name, const std::string& json, const Value& value, const std::string& hex,
         Cut cut = Refused)
{
    check(codingOf<Value>(DtWireForm()), name, json, value, hex, cut);
}

// An attribute, through the encoder and the decoder of its class; the name is that of the attribute's datatype.
template <class Encoder, class Decoder, class State, class Value>
void attribute(const std::string& name, const char* attributeName, void (State::*set)(const Value&),
               const Value& (State::*get)() const, const std::string& json, const Value& value, const std::string& hex)
{
    const std::string key = attributeName;
    const Coding<Value> coding = {[=](const Value& given, Octets& octets)
                                  {
                                      State state;
                                      (state.*set)(given);
                                      DtAttributeValues values;
                                      const std::vector<std::string> names(1, key);
                                      const bool done = Encoder().encode(state, names, values);
                                      octets = values[key];
                                      return done;
                                  },
                                  [=](const Octets& octets, Value& taken)
                                  {
                                      State state;
                                      (state.*set)(taken);
                                      DtAttributeValues values;
                                      values[key] = octets;
                                      const bool done = Decoder().decode(values, state);
                                      taken = (state.*get)();
                                      return done;
                                  }};
    check(coding, name, json, value, hex);
}

// A value that has no wire form.
template <class Value>
void refused(const std::string& name, const Value& value)
{
    DtWireWriter writer;
    if (DtWriteValue(writer, value, DtWireForm()) || !*writer.reason())
        fail(name, "", "encoded, though it has no wire form");
}

// Octets that are no value of the type.
template <class Value>
void unreadable(const std::string& name, const std::string& hex)
{
    const Octets octets = octetsOf(hex);
    DtWireReader reader(octets);
    Value value = Value();
    if (DtReadValue(reader, value, DtWireForm()) || !*reader.reason() || !(value == Value()))
        fail(name, hex, "taken, though it is no value");
}

// Octets that are read as a value which is written in another way.
template <class Value>
void readAs(const std::string& name, const std::string& hex, const Value& expected)
{
    const Octets octets = octetsOf(hex);
    DtWireReader reader(octets);
    Value value = Value();
    if (!DtReadValue(reader, value, DtWireForm()) || !(value == expected))
        fail(name, hex, "not read as it should be");
}

template <class Array>
Array arrayOf(const typename Array::Elements& elements)
{
    return Array(elements);
}

typedef std::vector<DtU8> Letters;

Letters letters(const char* text)
{
    return Letters(text, text + std::strlen(text));
}

template <class Enumeration>
Enumeration numbered(DtInt64 number)
{
    return static_cast<Enumeration>(number);
}

// Values that several vectors are made of.

DtGeoPoint point()
{
    DtGeoPoint value;
    value.setLatitude(53.5);
    value.setLongitude(10.25);
    value.setHeight(2.5f);
    return value;
}
const char thePoint[] = "404ac00000000000 4024800000000000 40200000";
const char thePointText[] = "{\"Latitude\":53.5,\"Longitude\":10.25,\"Height\":2.5}";

DtClockTime clock(DtU8 hour, DtU8 minute, DtU8 second)
{
    DtClockTime value;
    value.setHour(hour);
    value.setMinute(minute);
    value.setSecond(second);
    return value;
}

DtTideMark tideMark(const DtClockTime& at, DtInt16 level)
{
    DtTideMark value;
    value.setAt(at);
    value.setLevel(level);
    return value;
}

DtBerthSlot slot()
{
    DtBerthSlot value;
    value.setNumber(7);
    value.setStart(tideMark(clock(6, 30, 0), -12));
    value.setLoad__Max(70000u);
    value.setUntil(tideMark(clock(18, 21, 0), 25));
    return value;
}
// 07, a gap so that the mark starts at 2; clock, a gap, level; weight at 8; mark at 12
const char theSlot[] = "07 00 061e00 00 fff4 00011170 121500 00 0019";
const char theSlotText[] =
    "{\"Number\":7,\"Start\":{\"At\":{\"Hour\":6,\"Minute\":30,\"Second\":0},\"Level\":-12},"
    "\"Load-Max\":70000,\"Until\":{\"At\":{\"Hour\":18,\"Minute\":21,\"Second\":0},\"Level\":25}}";

DtRotation rotation()
{
    DtRotation value;
    value.setSlot(slot());
    value.setCentre(point());
    value.setTurns(2);
    return value;
}
// 18 octets, a gap of 6 so that the point starts at 24, and the last field directly behind it
const std::string theRotation = std::string(theSlot) + "000000000000" + thePoint + "02";
const std::string theRotationText =
    std::string("{\"Slot\":") + theSlotText + ",\"Centre\":" + thePointText + ",\"Turns\":2}";

DtPerson person(const char* name, DtU8 age, DtInt16 height)
{
    DtPerson value;
    value.setFullName(name);
    value.setAge(age);
    value.setHeight__cm(height);
    return value;
}

DtHold hold(bool full, DtU32 load, DtVesselState8 state, DtU8 sub)
{
    DtHold value;
    value.setFull(full);
    value.setLoad(load);
    value.setState(state);
    value.setSub(sub);
    return value;
}

DtPlain__Four four()
{
    return arrayOf<DtPlain__Four>({1.0f, 2.5f, 0.5f, -1.5f});
}
const char theFour[] = "3f800000 40200000 3f000000 bfc00000";

DtCargo__Item item(const char* label, DtU32 weight)
{
    DtCargo__Item value;
    value.setLabel(DtOldText(letters(label)));
    value.setWeight__Gross(weight);
    value.setTheTemplate(four());
    return value;
}

DtSignalMessage words(DtSignalKind16 kind, const char* text)
{
    DtSignalMessage value;
    value.setDiscriminant(kind);
    value.setWords(text);
    return value;
}

DtPaddedReport padded()
{
    DtPaddedReport value;
    value.setCode(1);
    value.setValue(2);
    value.setTail(3);
    return value;
}

// Basic data: the octets of the model's size, in the model's order.
void checkBasicData()
{
    own("HarbourUnsigned8", "0", DtHarbourUnsigned8(0), "00");
    own("HarbourUnsigned8", "255", DtHarbourUnsigned8(255), "ff");
    own("HarbourInteger8", "-1", DtHarbourInteger8(-1), "ff");
    own("HarbourInteger8", "-128", DtHarbourInteger8(-128), "80");
    own("HarbourUnsigned16LE", "258", DtHarbourUnsigned16LE(258), "0201"); // 0x0102, low octet first
    own("HarbourUnsigned16LE", "65535", DtHarbourUnsigned16LE(65535), "ffff");
    own("HarbourUnsigned32", "16909060", DtHarbourUnsigned32(16909060u), "01020304");
    own("HarbourUnsigned32", "4294967295", DtHarbourUnsigned32(4294967295u), "ffffffff");
    own("HarbourInteger24", "1", DtHarbourInteger24(1), "000001"); // three octets
    own("HarbourInteger24", "-8388608", DtHarbourInteger24(-8388608), "800000");
    own("HarbourInteger24", "8388607", DtHarbourInteger24(8388607), "7fffff");
    own("HarbourInteger24LE", "-2", DtHarbourInteger24LE(-2), "feffff");
    own("HarbourUnsigned64LE", "72623859790382856", DtHarbourUnsigned64LE(72623859790382856u), "0807060504030201");
    own("HarbourSwappedFloat", "1.0", DtHarbourSwappedFloat(1.0f), "0000803f"); // 3f800000, low octet first
    own("HarbourSwappedFloat", "-1.5", DtHarbourSwappedFloat(-1.5f), "0000c0bf");
    refused("HarbourInteger24", DtHarbourInteger24(8388608)); // needs a fourth octet
    refused("HarbourInteger24", DtHarbourInteger24(-8388609));
}

// Simple data: as the representation that they lead to.
void checkSimpleData()
{
    own("Count8", "200", DtCount8(200), "c8");
    own("Sub<Count>", "3", DtSub_Count_(3), "03");
    own("Tide16LE", "258", DtTide16LE(258), "0201");
    own("Weight-Kg", "70000", DtWeight__Kg(70000u), "00011170");
    own("RegisterNumber", "1", DtRegisterNumber(1u), "0100000000000000");
    own("Trim24", "-2", DtTrim24(-2), "fffffe");
    own("Celsius", "-40", DtCelsius(-40), "d8");
    own("Bearing", "2.5", DtBearing(2.5f), "00002040");
}

// Enumerations: the number, in the size, sign and byte order of their representation.
void checkEnumerations()
{
    own("VesselState8", "0", DtVesselState8::eMoored, "00"); // HLAoctet
    own("VesselState8", "255", DtVesselState8::eUnknown, "ff");
    own("VesselState8", "77", numbered<DtVesselState8>(77), "4d"); // no enumerator has it
    own("VesselState16", "300", DtVesselState16::eLarge, "012c");  // HLAinteger16BE
    own("VesselState16", "-2", numbered<DtVesselState16>(-2), "fffe");
    own("LineState32", "-1", DtLineState32::eBroken, "ffffffff"); // HLAinteger32BE
    own("LineState32", "1", DtLineState32::eTight, "00000001");
    own("BerthKind64", "2", DtBerthKind64::e7th, "0000000000000002"); // HLAinteger64BE
    own("BerthKind64", "72623859790382856", numbered<DtBerthKind64>(72623859790382856), "0102030405060708");
    own("Urgency8", "2", DtUrgency8::eLater, "02");     // unsigned, one octet
    own("lampState", "-1", DtLampState::eFaulty, "ff"); // signed, one octet
    own("lampState", "1", DtLampState::eFlash, "01");
    own("SignalKind16", "100", DtSignalKind16::eSilence, "0064");
    own("Current16", "-300", DtCurrent16::eEbb, "d4fe"); // 0xfed4, low octet first
    own("Current16", "300", DtCurrent16::eFlood, "2c01");
    own("Tool16", "513", DtTool16::eRadio, "0102"); // 0x0201, low octet first
    own("Tool16", "65535", numbered<DtTool16>(65535), "ffff");
    own("Slack24", "70000", DtSlack24::eStrong, "701101"); // 0x011170, low octet first
    own("Slack24", "-1", DtSlack24::eWeak, "ffffff");
    own("Deep32", "-70000", DtDeep32::eShallow, "90eefeff"); // 0xfffeee90, low octet first
    own("Deep32", "70000", DtDeep32::eBasin, "70110100");
    own("Zone64", "16909060", DtZone64::eOpenSea, "0403020100000000"); // low octet first
    own("HullPart32", "2", DtHullPart32::eScrew, "00000002");
    own("HullPart32", "4294967295", numbered<DtHullPart32>(4294967295), "ffffffff");
    refused("VesselState8", numbered<DtVesselState8>(256));
    refused("VesselState8", numbered<DtVesselState8>(-1));
    refused("lampState", numbered<DtLampState>(128));
}

// Fixed arrays: element by element, each at its boundary, without a count; several dimensions in row order.
void checkFixedArrays()
{
    own("ShortText", "[65,66,67,68,69,70,71,72,73,74,75,76,77,78,79,80]", DtShortText(letters("ABCDEFGHIJKLMNOP")),
        "4142434445464748494a4b4c4d4e4f50");
    own("Seal-Code", "[1,2,3,4,5,6,7,8]", DtSeal__Code(Letters{1, 2, 3, 4, 5, 6, 7, 8}), "0102030405060708");
    // 10 octets each (truth value 4, weight 4, two of 1), and a gap of 2 up to the next, which starts at 4
    own("HoldTable",
        "[{\"Full\":true,\"Load\":1,\"State\":1,\"Sub\":2},{\"Full\":false,\"Load\":2,\"State\":0,\"Sub\":3},"
        "{\"Full\":true,\"Load\":3,\"State\":2,\"Sub\":4},{\"Full\":false,\"Load\":4,\"State\":255,\"Sub\":5}]",
        arrayOf<DtHoldTable>({hold(true, 1, DtVesselState8::eUnderWay, 2), hold(false, 2, DtVesselState8::eMoored, 3),
                              hold(true, 3, DtVesselState8::eAgroundSunk, 4),
                              hold(false, 4, DtVesselState8::eUnknown, 5)}),
        "00000001 00000001 01 02 0000 00000000 00000002 00 03 0000 00000001 00000003 02 04 0000 "
        "00000000 00000004 ff 05");
    // three rows of four
    own("DepthGrid", "[1,2,3,4,11,12,13,14,-1,-2,-3,-4]",
        arrayOf<DtDepthGrid>({1, 2, 3, 4, 11, 12, 13, 14, -1, -2, -3, -4}),
        "0001 0002 0003 0004 000b 000c 000d 000e ffff fffe fffd fffc");
    // two rows of three
    own("LampMatrix", "[1,0,-1,0,1,0]",
        arrayOf<DtLampMatrix>({DtLampState::eFlash, DtLampState::eDark, DtLampState::eFaulty, DtLampState::eDark,
                               DtLampState::eFlash, DtLampState::eDark}),
        "01 00 ff 00 01 00");
    // two by two by two
    own("LockGrid", "[1,2,3,4,5,6,7,70000]", arrayOf<DtLockGrid>({1u, 2u, 3u, 4u, 5u, 6u, 7u, 70000u}),
        "00000001 00000002 00000003 00000004 00000005 00000006 00000007 00011170");
    // three octets at a boundary of 4: a gap of 1 between, none at the end
    own("TiltTable", "[1,-1,2]", arrayOf<DtTiltTable>({1, -1, 2}), "000001 00 ffffff 00 000002");
    own("DoorStates", "[true,false,true]", arrayOf<DtDoorStates>({true, false, true}), "00000001 00000000 00000001");
    // three octets at a boundary of 1: no gap
    own("GateTimes",
        "[{\"Hour\":6,\"Minute\":0,\"Second\":0},{\"Hour\":12,\"Minute\":15,\"Second\":1},"
        "{\"Hour\":18,\"Minute\":30,\"Second\":2},{\"Hour\":23,\"Minute\":59,\"Second\":59}]",
        arrayOf<DtGateTimes>({clock(6, 0, 0), clock(12, 15, 1), clock(18, 30, 2), clock(23, 59, 59)}),
        "060000 0c0f01 121e02 173b3b");
    own("DraughtTable", "[1.0,2.5,-1.5]", arrayOf<DtDraughtTable>({1.0f, 2.5f, -1.5f}), "0000803f 00002040 0000c0bf");
    own("Plain-Four", "[1.0,2.5,0.5,-1.5]", four(), theFour); // four by its cardinality, whatever its encoding is
    refused("ShortText", DtShortText(letters("too short")));
    refused("DepthGrid", arrayOf<DtDepthGrid>({1, 2, 3}));
}

// Variable arrays: a count of four octets, then the elements, each at its boundary; nothing behind a count of 0.
void checkVariableArrays()
{
    own("PersonList", "[]", DtPersonList(), "00000000");
    // the person starts at 4: count and two characters, then 1 octet, a gap, 2 octets
    own("PersonList", "[{\"FullName\":\"Al\",\"Age\":30,\"Height#cm\":180}]",
        arrayOf<DtPersonList>({person("Al", 30, 180)}), "00000001 00000002 0041 006c 1e 00 00b4");
    own("PersonList",
        "[{\"FullName\":\"A\",\"Age\":30,\"Height#cm\":180},{\"FullName\":\"\",\"Age\":5,\"Height#cm\":100}]",
        arrayOf<DtPersonList>({person("A", 30, 180), person("", 5, 100)}),
        // the first ends at 14, the second starts at 16
        "00000002 00000001 0041 1e 00 00b4 0000 00000000 05 00 0064");
    own("Cargo<Item>List", "[]", DtCargo_Item_List(), "00000000");
    // text and its zero, weight at the next multiple of 4
    own("Cargo<Item>List",
        "[{\"Label\":[116,101,97],\"Weight/Gross\":16,\"template\":[1.0,2.5,0.5,-1.5]},"
        "{\"Label\":[114,117,109,33],\"Weight/Gross\":17,\"template\":[1.0,2.5,0.5,-1.5]}]",
        arrayOf<DtCargo_Item_List>({item("tea", 16), item("rum!", 17)}),
        std::string("00000002 746561 00 00000010") + theFour + "72756d21 00 000000 00000011" + theFour);
    own("CodeRange", "[1,70000]", arrayOf<DtCodeRange>({1u, 70000u}), "00000002 00000001 00011170");
    own("TideRing", "[1,258]", arrayOf<DtTideRing>({1, 258}), "00000002 0100 0201"); // count first, elements low first
    own("LineList", "[1,-1]", arrayOf<DtLineList>({DtLineState32::eTight, DtLineState32::eBroken}),
        "00000002 00000001 ffffffff"); // the count is sent, though the model gives a number
    own("LineList", "[" + times(299, "1,") + "1]", DtLineList(DtLineList::Elements(300, DtLineState32::eTight)),
        "0000012c" + times(300, "00000001"));
    own("TugNames",
        "[[65,66,67,68,69,70,71,72,73,74,75,76,77,78,79,80],[49,49,49,49,49,49,49,49,49,49,49,49,49,49,49,49]]",
        arrayOf<DtTugNames>({DtShortText(letters("ABCDEFGHIJKLMNOP")), DtShortText(letters("1111111111111111"))}),
        "00000002 4142434445464748494a4b4c4d4e4f50 31313131313131313131313131313131");
    // each name has a count of its own and starts at a multiple of 4
    own("NameList", "[\"A\",\"\",\"BC\"]", arrayOf<DtNameList>({DtString("A"), DtString(""), DtString("BC")}),
        "00000003 00000001 0041 0000 00000000 00000002 0042 0043");
    own("BearingList", "[]", DtBearingList(), "00000000"); // no gap behind a count of 0
    // the first element starts at 8
    own("BearingList", "[1.0,-0.5]", arrayOf<DtBearingList>({1.0, -0.5}),
        "00000002 00000000 3ff0000000000000 bfe0000000000000");
    own("RotationList", "[]", DtRotationList(), "00000000");
    // elements at 8 and, 45 octets and a gap of 3 later, at 56
    own("RotationList", "[" + theRotationText + "]", arrayOf<DtRotationList>({rotation()}),
        "00000001 00000000" + theRotation);
    own("RotationList", "[" + theRotationText + "," + theRotationText + "]",
        arrayOf<DtRotationList>({rotation(), rotation()}), "00000002 00000000" + theRotation + "000000" + theRotation);
    unreadable<DtPersonList>("PersonList", "ffffffff 00000000 05 00 0064"); // a count beyond the octets
    unreadable<DtLineList>("LineList", "ffffffff");
    unreadable<DtLineList>("LineList", "00000001 00000001 00000001"); // an element more than counted
}

// Arrays of other encodings.
void checkOtherArrays()
{
    own("ReportText", "[]", DtReportText(), "00"); // up to a zero
    own("ReportText", "[67,97,108,109]", DtReportText(letters("Calm")), "43616c6d 00");
    own("OldText", "[116,101,97]", DtOldText(letters("tea")), "746561 00");
    own("RouteCode", "[]", DtRouteCode(), "0000"); // the zero is as long as an element
    own("RouteCode", "[65,256]", arrayOf<DtRouteCode>({65, 256}), "0041 0100 0000");
    own("SampleRun", "[]", DtSampleRun(), "", RefusedOrShorter); // without a length
    own("SampleRun", "[1,-1]", arrayOf<DtSampleRun>({1, -1}), "0001 ffff", RefusedOrShorter);
    own("OldRun", "[120,121]", DtOldRun(letters("xy")), "7879", RefusedOrShorter);
    own("FillTo32", "[]", DtFillTo32(), ""); // nothing to fill at the start of a value
    own("FillTo64", "[]", DtFillTo64(), "");
    own("FenderList", "[]", DtFenderList(), "");
    own("PaddedTrace", "[]", DtPaddedTrace(), "");
    refused("ReportText", DtReportText(Letters{67, 0, 67})); // the zero would end it
    refused("FlagBits", DtFlagBits());                       // bits have no wire form here
    unreadable<DtSampleRun>("SampleRun", "0001 ff");
    unreadable<DtReportText>("ReportText", "43 00 43");
}

// Fixed records: each field at its boundary, counted from the start of the record; nothing behind the last.
void checkFixedRecords()
{
    own("Empty&Record", "{}", DtEmpty__Record(), "");
    own("ClockTime", "{\"Hour\":6,\"Minute\":30,\"Second\":59}", clock(6, 30, 59), "061e3b"); // boundary 1
    own("TideMark", "{\"At\":{\"Hour\":6,\"Minute\":30,\"Second\":0},\"Level\":-12}", tideMark(clock(6, 30, 0), -12),
        "061e00 00 fff4");                                     // boundary 2
    own("BerthSlot", theSlotText, slot(), theSlot);            // boundary 4
    own("GeoPoint", thePointText, point(), thePoint);          // boundary 8, nothing behind the float
    own("Rotation", theRotationText, rotation(), theRotation); // three records deep
    own("Person", "{\"FullName\":\"Al\",\"Age\":30,\"Height#cm\":180}", person("Al", 30, 180),
        "00000002 0041 006c 1e 00 00b4");
    own("Hold", "{\"Full\":true,\"Load\":70000,\"State\":255,\"Sub\":9}",
        hold(true, 70000, DtVesselState8::eUnknown, 9), "00000001 00011170 ff 09");
    own("Cargo-Item", "{\"Label\":[],\"Weight/Gross\":1,\"template\":[1.0,2.5,0.5,-1.5]}", item("", 1),
        std::string("00 000000 00000001") + theFour);
    DtGustPair gusts;
    gusts.setLow(1.0f);
    gusts.setHigh(2.5f);
    own("GustPair", "{\"Low\":1.0,\"High\":2.5}", gusts, "3f800000 40200000");
    DtWindRecord wind;
    wind.setSpeed(12.0f);
    wind.setFrom(1.0);
    wind.setGusts(gusts);
    wind.setMarks(DtOldRun(letters("ab")));
    // float, a gap up to the double; the letters reach to the end
    own("WindRecord", "{\"Speed\":12.0,\"From\":1.0,\"Gusts\":{\"Low\":1.0,\"High\":2.5},\"Marks\":[97,98]}", wind,
        "41400000 00000000 3ff0000000000000 3f800000 40200000 6162", RefusedOrShorter);
    DtLongNote note;
    note.setAuthor(65);
    note.setWords(arrayOf<DtRouteCode>({72, 105}));
    note.setRating(5);
    note.setSum(1u);
    // two octets, two characters and their zero up to 8, one octet, a gap up to 16
    own("LongNote", "{\"Author\":65,\"Words\":[72,105],\"Rating\":5,\"Sum\":1}", note,
        "0041 0048 0069 0000 05 00000000000000 0100000000000000");
}

// Padding arrays: filled up from the start of the record that holds them.
void checkPadding()
{
    const char* const text = "{\"Code\":1,\"Fill\":[],\"Value\":2,\"Rest\":[],\"Tail\":3}";
    own("PaddedReport", text, padded(), "01 000000 02 000000 03"); // up to 4, then up to 8
    DtReportFrame frame;
    frame.setLead(9);
    frame.setBody(padded());
    own("ReportFrame", std::string("{\"Lead\":9,\"Body\":") + text + "}", frame, "09 01 000000 02 000000 03");
    readAs("PaddedReport", "01 aabbcc 02 ddeeff 03", padded()); // what fills is not looked at
    readAs("TideMark", "061e00 ff fff4", tideMark(clock(6, 30, 0), -12));
}

// Variant records: discriminant, a gap up to the largest boundary of the alternatives, the alternative.
void checkVariantRecords()
{
    DtSignalMessage signal;
    signal.setVisibility(1000);
    own("SignalMessage", "{\"discriminant\":5,\"Visibility\":1000}", signal, "0005 000000000000 000003e8"); // one
    signal.setStrength(9);
    own("SignalMessage", "{\"discriminant\":1,\"Strength\":9}", signal, "0001 000000000000 09"); // first of a list
    signal.setDiscriminant(DtSignalKind16::eDrill);
    signal.setStrength(8);
    own("SignalMessage", "{\"discriminant\":7,\"Strength\":8}", signal, "0007 000000000000 08"); // second of it
    const struct
    {
        DtSignalKind16 kind;
        const char *number, *hex;
    } places[] = {
        {DtSignalKind16::eIce,   "9",  "0009"}, // declared from the one end of the range ...
        {DtSignalKind16::eFloe,  "12", "000c"}, // ... between its ends, though its number is not ...
        {DtSignalKind16::eWreck, "3",  "0003"}, // ... to the other
    };
    for (const auto& place : places)
    {
        signal.setDiscriminant(place.kind);
        signal.setPlace(point());
        own("SignalMessage", std::string("{\"discriminant\":") + place.number + ",\"Place\":" + thePointText + "}",
            signal, std::string(place.hex) + "000000000000" + thePoint);
    }
    signal.setStation("ok");
    own("SignalMessage", "{\"discriminant\":2,\"Station\":\"ok\"}", signal, "0002 000000000000 00000002 6f6b");
    signal.setDiscriminant(DtSignalKind16::eSilence);
    own("SignalMessage", "{\"discriminant\":100}", signal, "0064"); // selects nothing: no gap
    own("SignalMessage", "{\"discriminant\":77,\"Words\":\"x\"}", words(numbered<DtSignalKind16>(77), "x"),
        "004d 000000000000 00000001 0078"); // HLAother
    DtSignalMessage free;
    free.setWords("");
    own("SignalMessage", "{\"discriminant\":0,\"Words\":\"\"}", free, "0000 000000000000 00000000");
    readAs("SignalMessage", "0001 ffffffffffff 09",
           []
           {
               DtSignalMessage value;
               value.setStrength(9);
               return value;
           }());

    DtSignalEntry entry;
    entry.setSentAt(clock(1, 2, 3));
    entry.setWhat(words(numbered<DtSignalKind16>(77), "x"));
    const std::string entryText =
        "{\"SentAt\":{\"Hour\":1,\"Minute\":2,\"Second\":3},\"What\":{\"discriminant\":77,\"Words\":\"x\"}}";
    // the variant record has the boundary of its largest alternative; 22 octets in all
    const std::string entryHex = "010203 0000000000 004d 000000000000 00000001 0078";
    own("SignalEntry", entryText, entry, entryHex);
    own("SignalLog", "[" + entryText + "," + entryText + "]", arrayOf<DtSignalLog>({entry, entry}),
        "00000002 00000000" + entryHex + "0000" + entryHex);

    DtOccupant occupant;
    occupant.setShip(DtShortText(letters("ABCDEFGHIJKLMNOP")));
    own("Occupant", "{\"discriminant\":0,\"Ship\":[65,66,67,68,69,70,71,72,73,74,75,76,77,78,79,80]}", occupant,
        "00 00000000000000 4142434445464748494a4b4c4d4e4f50");
    occupant.setArrival(1.0);
    own("Occupant", "{\"discriminant\":1,\"Arrival\":1.0}", occupant, "01 00000000000000 3ff0000000000000");
    occupant.setWreck(item("tea", 16));
    own("Occupant",
        "{\"discriminant\":2,\"Wreck\":{\"Label\":[116,101,97],\"Weight/Gross\":16,\"template\":[1.0,2.5,0.5,-1.5]}}",
        occupant, std::string("02 00000000000000 746561 00 00000010") + theFour);
    occupant.setDiscriminant(DtVesselState8::eUnknown);
    own("Occupant", "{\"discriminant\":255}", occupant, "ff"); // HLAother has no value
}

// Variant records whose discriminants are of other kinds and sizes.
void checkDiscriminants()
{
    DtPositionFix fix;
    fix.setExact(point());
    own("PositionFix", std::string("{\"discriminant\":1,\"Exact\":") + thePointText + "}", fix,
        std::string("00000001 00000000") + thePoint); // HLAboolean: four octets
    fix.setRough(-5);
    own("PositionFix", "{\"discriminant\":0,\"Rough\":-5}", fix, "00000000 00000000 fffb");
    DtTestResult result;
    result.setScore(300);
    own("TestResult", "{\"discriminant\":1,\"Score\":300}", result, "01 00 012c"); // RPRboolean: one octet
    result.setFault(7);
    own("TestResult", "{\"discriminant\":0,\"Fault\":7}", result, "00 00 07"); // at the boundary of the other
    DtPermit permit;
    permit.setUntil(clock(6, 30, 0));
    own("Permit", "{\"discriminant\":1,\"Until\":{\"Hour\":6,\"Minute\":30,\"Second\":0}}", permit,
        "0001 061e00"); // OMT13boolean of this model: two octets
    permit.setDiscriminant(false);
    own("Permit", "{\"discriminant\":0}", permit, "0000");
    DtLampReport lamp;
    own("LampReport", "{\"discriminant\":0}", lamp, "00"); // signed, one octet
    lamp.setPeriod(2.5f);
    own("LampReport", "{\"discriminant\":1,\"Period\":2.5}", lamp, "01 000000 40200000");
    lamp.setCause("wet");
    own("LampReport", "{\"discriminant\":-1,\"Cause\":\"wet\"}", lamp, "ff 000000 00000003 776574");
    DtZoneRule zone;
    zone.setLimit(2.5f);
    own("ZoneRule", "{\"discriminant\":1,\"Limit\":2.5}", zone, "0100000000000000 40200000"); // eight, low octet first
    zone.setDiscriminant(DtZone64::eOuter);
    zone.setLimit(1.0f);
    own("ZoneRule", "{\"discriminant\":2,\"Limit\":1.0}", zone, "0200000000000000 3f800000");
    zone.setDiscriminant(DtZone64::eOpenSea);
    zone.setFree(4);
    own("ZoneRule", "{\"discriminant\":16909060,\"Free\":4}", zone, "0403020100000000 04");
}

// Variant records that give the length of their alternative.
void checkLongVariantRecords()
{
    DtInspection inspection; // discriminant, length, alternative, without gaps
    inspection.setHull(arrayOf<DtDepthGrid>({1, 2, 3, 4, 5, 6, 7, 8, 9, 10, 11, 12}));
    own("Inspection", "{\"discriminant\":0,\"Hull\":[1,2,3,4,5,6,7,8,9,10,11,12]}", inspection,
        "00 00000018 0001 0002 0003 0004 0005 0006 0007 0008 0009 000a 000b 000c");
    inspection.setHours(1.0);
    own("Inspection", "{\"discriminant\":1,\"Hours\":1.0}", inspection, "01 00000008 3ff0000000000000");
    inspection.setHole(4660);
    own("Inspection", "{\"discriminant\":2,\"Hole\":4660}", inspection, "02 00000002 3412");
    inspection.setDiscriminant(DtVesselState8::eUnknown);
    own("Inspection", "{\"discriminant\":255}", inspection, "ff 00000000");
    DtInspection unknown;
    unknown.setDiscriminant(numbered<DtVesselState8>(9));
    readAs("Inspection", "09 00000003 aabbcc", unknown); // passed over by its length
    unreadable<DtInspection>("Inspection", "01 00000009 3ff0000000000000 00");
    unreadable<DtInspection>("Inspection", "01 00000007 3ff00000000000");
    unreadable<DtInspection>("Inspection", "09 ffffffff aabbcc");

    DtEquipment equipment; // length at a multiple of 4, alternative at one of 8
    equipment.setChain(70000u);
    own("Equipment", "{\"discriminant\":1,\"Chain\":70000}", equipment, "0100 0000 00000004 00011170");
    equipment.setLift(5);
    own("Equipment", "{\"discriminant\":2,\"Lift\":5}", equipment, "0200 0000 00000001 05");
    equipment.setBand("vhf");
    own("Equipment", "{\"discriminant\":513,\"Band\":\"vhf\"}", equipment, "0102 0000 00000007 00000003 766866");
    equipment.setDiscriminant(numbered<DtTool16>(9));
    own("Equipment", "{\"discriminant\":9}", equipment, "0900 0000 00000000");
    readAs("Equipment", "0900 0000 00000002 aabb", equipment);
}

// Ready-made types, through the classes whose attributes and parameters have them.
void checkAttributes()
{
    attribute<DtVesselEncoder, DtVesselDecoder>("Knots", "Speed", &DtVesselStateRepository::setSpeed,
                                                &DtVesselStateRepository::speed, "2.5", 2.5f, "40200000");
    attribute<DtVesselEncoder, DtVesselDecoder>("Degrees", "Heading__True", &DtVesselStateRepository::setHeading__True,
                                                &DtVesselStateRepository::heading__True, "53.5", 53.5,
                                                "404ac00000000000");
    // characters beyond the first 65536 are two units, and the count is that of units
    attribute<DtVesselEncoder, DtVesselDecoder>("HLAunicodeString", "_class", &DtVesselStateRepository::setTheClass,
                                                &DtVesselStateRepository::theClass, "\"\xc3\x84\xf0\x9f\x98\x80\"",
                                                DtString("\xc3\x84\xf0\x9f\x98\x80"), "00000003 00c4 d83d de00");
    attribute<DtVesselEncoder, DtVesselDecoder>("HLAinteger32BE", "int", &DtVesselStateRepository::setTheInt,
                                                &DtVesselStateRepository::theInt, "-2", -2, "fffffffe");
    attribute<DtVesselEncoder, DtVesselDecoder>("HLAinteger64BE", "Serial", &DtPortEntityStateRepository::setSerial,
                                                &DtPortEntityStateRepository::serial, "-2", DtInt64(-2),
                                                "fffffffffffffffe");
    attribute<DtVesselEncoder, DtVesselDecoder>(
        "ShortText", "Name", &DtPortEntityStateRepository::setName, &DtPortEntityStateRepository::name,
        "[90,90,90,90,90,90,90,90,90,90,90,90,90,90,90,90]", DtShortText(letters("ZZZZZZZZZZZZZZZZ")), times(16, "5a"));
    attribute<DtCargoShipEncoder, DtCargoShipDecoder>("HLAfloat32LE", "Draught",
                                                      &DtCargoShipStateRepository::setDraught,
                                                      &DtCargoShipStateRepository::draught, "1.5", 1.5f, "0000c03f");
    attribute<DtCargoShipEncoder, DtCargoShipDecoder>("HLAboolean", "Dangerous",
                                                      &DtCargoShipStateRepository::setDangerous,
                                                      &DtCargoShipStateRepository::dangerous, "true", true, "00000001");
    attribute<DtTug__PusherEncoder, DtTug__PusherDecoder>(
        "Newton", "Pull__Push", &DtTug__PusherStateRepository::setPull__Push, &DtTug__PusherStateRepository::pull__Push,
        "1.0", 1.0, "000000000000f03f");
    attribute<DtTug__PusherEncoder, DtTug__PusherDecoder>(
        "HLAASCIIstring", "Owner", &DtTug__PusherStateRepository::setOwner, &DtTug__PusherStateRepository::owner,
        "\"Tow\"", DtString("Tow"), "00000003 546f77");
    attribute<DtBeaconEncoder, DtBeaconDecoder>("Initial", "Mark", &DtBeaconStateRepository::setMark,
                                                &DtBeaconStateRepository::mark, "233", DtU16(233), "00e9");
    attribute<DtBeaconEncoder, DtBeaconDecoder>("HLAopaqueData", "Image", &DtBeaconStateRepository::setImage,
                                                &DtBeaconStateRepository::image, "[0,255,0]", DtString("\0\xff\0", 3),
                                                "00000003 00ff00");
    attribute<DtBeaconEncoder, DtBeaconDecoder>("HLAopaqueData", "Image", &DtBeaconStateRepository::setImage,
                                                &DtBeaconStateRepository::image, "[" + times(999, "171,") + "171]",
                                                DtString(std::string(1000, '\xab')), "000003e8" + times(1000, "ab"));
    attribute<DtBeaconEncoder, DtBeaconDecoder>("RPRboolean", "Tested", &DtBeaconStateRepository::setTested,
                                                &DtBeaconStateRepository::tested, "true", true, "01");
    attribute<DtBeaconEncoder, DtBeaconDecoder>("OMT13boolean", "Manned", &DtBeaconStateRepository::setManned,
                                                &DtBeaconStateRepository::manned, "true", true, "0001");
    attribute<DtBeaconEncoder, DtBeaconDecoder>("Zone64", "Zone", &DtBeaconStateRepository::setZone,
                                                &DtBeaconStateRepository::zone, "1", DtZone64::eInner,
                                                "0100000000000000");
    attribute<DtBeaconEncoder, DtBeaconDecoder>("lampState", "Lamp", &DtBeaconStateRepository::setLamp,
                                                &DtBeaconStateRepository::lamp, "-1", DtLampState::eFaulty, "ff");
    attribute<DtBeaconEncoder, DtBeaconDecoder>("HLAinteger16LE", "Floor", &DtBeaconStateRepository::setFloor,
                                                &DtBeaconStateRepository::floor, "-2", DtInt16(-2), "feff");
    attribute<DtBeaconEncoder, DtBeaconDecoder>("HLAinteger32LE", "Steps", &DtBeaconStateRepository::setSteps,
                                                &DtBeaconStateRepository::steps, "70000", DtInt32(70000), "70110100");
    attribute<DtBeaconEncoder, DtBeaconDecoder>("HLAinteger64LE", "Rank", &DtBeaconStateRepository::setRank,
                                                &DtBeaconStateRepository::rank, "-2", DtInt64(-2), "feffffffffffffff");
    attribute<DtBeaconEncoder, DtBeaconDecoder>("Depth", "Footing", &DtBeaconStateRepository::setFooting,
                                                &DtBeaconStateRepository::footing, "-300", DtInt16(-300), "fed4");
    attribute<DtBeaconEncoder, DtBeaconDecoder>("Letter", "Sign", &DtBeaconStateRepository::setSign,
                                                &DtBeaconStateRepository::sign, "65", DtU8(65), "41");
}
// Each of these has to be noticed.
void checkFaultyVectors()
{
    own("ClockTime", "{}", clock(6, 30, 59), "061e3c");                   // another octet
    own("TideMark", "{}", tideMark(clock(6, 30, 0), -12), "061e00 fff4"); // no gap
    own("BearingList", "[]", DtBearingList(), "00000000 00000000");       // a gap behind a count of 0
    own("SampleRun", "[1]", arrayOf<DtSampleRun>({1}), "0001");           // cut off, it is a shorter one
    refused("ClockTime", clock(6, 30, 59));
    unreadable<DtClockTime>("ClockTime", "061e3b");
    readAs("ClockTime", "061e3c", clock(6, 30, 59));
}
} // namespace

int main(int count, char** arguments)
{
    const std::string option = count > 1 ? arguments[1] : "";
    theListing = option == "--list";
    if (option == "--faulty")
    {
        checkFaultyVectors();
        return theFailures == 0 ? 0 : 1;
    }
    checkBasicData();
    checkSimpleData();
    checkEnumerations();
    checkFixedArrays();
    checkVariableArrays();
    checkOtherArrays();
    checkFixedRecords();
    checkPadding();
    checkVariantRecords();
    checkDiscriminants();
    checkLongVariantRecords();
    checkAttributes();
    if (!theListing)
        std::printf("%d vectors, %d random values, %d failures\n", theVectors, theRandomValues, theFailures);
    return theFailures == 0 ? 0 : 1;
}
