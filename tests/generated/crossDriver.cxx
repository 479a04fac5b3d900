// The generated classes of a model that has an object class Probe, as a filter: reads lines of an attribute's name and
// octets, decodes the octets, encodes what has come of them and prints the line with these octets, or with the reason
// for a refusal.
//
// With the argument "values" it prints what the octets are decoded to, by the accessors of the generated classes. With
// "start" it reads nothing: it prints the attributes that an object as it starts refuses to encode, and those whose own
// encoding it does not take back, with the reasons; and how many it encodes all the same.

#include "printers.h"
#include "probeDecoderHLA.h"
#include "probeEncoderHLA.h"

#include <cstdio>
#include <iostream>
#include <map>
#include <set>
#include <string>

namespace
{
// The coders keep the reason for a refusal to themselves, so their operations are asked for it one by one. probes.h has
// a line PROBE(name, accessor) for each attribute.
struct DtOpenDecoder : DtProbeDecoder
{
    static std::string refusal(const std::string& name, const DtValueBuffer& octets)
    {
        typedef bool (*Decode)(DtProbeStateRepository&, DtWireReader&);
        static const std::map<std::string, Decode> theOperations = {
#define PROBE(name, accessor) {#name, &DtOpenDecoder::decode##name},
#include "probes.h"
#undef PROBE
        };
        DtProbeStateRepository state;
        DtWireReader reader(octets.data(), octets.size());
        return theOperations.at(name)(state, reader) ? "no reason" : std::string("refused: ") + reader.reason();
    }
};

struct DtOpenEncoder : DtProbeEncoder
{
    static std::string refusal(const std::string& name, const DtProbeStateRepository& state)
    {
        typedef bool (*Encode)(const DtProbeStateRepository&, DtWireWriter&);
        static const std::map<std::string, Encode> theOperations = {
#define PROBE(name, accessor) {#name, &DtOpenEncoder::encode##name},
#include "probes.h"
#undef PROBE
        };
        DtWireWriter writer;
        return theOperations.at(name)(state, writer) ? "no reason" : std::string("refused: ") + writer.reason();
    }
};

DtValueBuffer octetsOf(const std::string& hex)
{
    DtValueBuffer octets;
    for (std::size_t at = 0; at + 1 < hex.size(); at += 2)
        octets.push_back(static_cast<unsigned char>(std::stoul(hex.substr(at, 2), nullptr, 16)));
    return octets;
}

std::string hexOf(const DtValueBuffer& octets)
{
    std::string hex;
    char digits[3];
    for (const unsigned char octet : octets)
    {
        std::snprintf(digits, sizeof digits, "%02x", octet);
        hex += digits;
    }
    return hex;
}

std::string thereAndBack(const std::string& name, const DtValueBuffer& octets)
{
    static const DtProbeDecoder theDecoder;
    static const DtProbeEncoder theEncoder;
    static DtProbeStateRepository theState;
    DtAttributeValues taken, given;
    taken[name] = octets;
    if (!theDecoder.decode(taken, theState))
        return DtOpenDecoder::refusal(name, octets);
    if (!theEncoder.encode(theState, std::vector<std::string>{name}, given))
        return DtOpenEncoder::refusal(name, theState) + " (when encoded)";
    return hexOf(given[name]);
}

std::string valueText(const std::string& name, const DtProbeStateRepository& state)
{
    typedef std::string (*Print)(const DtProbeStateRepository&);
    static const std::map<std::string, Print> thePrinters = {
#define PROBE(name, accessor) {#name, [](const DtProbeStateRepository& probe) { return printed(probe.accessor()); }},
#include "probes.h"
#undef PROBE
    };
    return thePrinters.at(name)(state);
}

std::string decodedValue(const std::string& name, const DtValueBuffer& octets)
{
    static const DtProbeDecoder theDecoder;
    DtProbeStateRepository state;
    DtAttributeValues taken;
    taken[name] = octets;
    return theDecoder.decode(taken, state) ? valueText(name, state) : DtOpenDecoder::refusal(name, octets);
}

void printStart()
{
    const DtProbeStateRepository state;
    DtAttributeValues given;
    std::vector<std::string> refused;
    DtProbeEncoder().encode(state, given, &refused);
    for (const std::string& name : refused)
        std::puts((name + ' ' + DtOpenEncoder::refusal(name, state)).c_str());
    for (const DtAttributeValues::value_type& each : given)
    {
        const std::string answer = thereAndBack(each.first, each.second);
        if (answer != hexOf(each.second))
            std::puts((each.first + " not taken back, " + answer).c_str());
    }
    std::printf("%u encoded\n", static_cast<unsigned int>(given.size()));
}
} // namespace

int main(int argc, char** argv)
{
    const std::string mode = argc > 1 ? argv[1] : "";
    const bool isForValues = mode == "values";
    if (mode == "start")
        printStart();
    for (std::string line; mode != "start" && std::getline(std::cin, line);)
    {
        const std::size_t blank = line.find(' ');
        const std::string name = line.substr(0, blank);
        const DtValueBuffer octets = octetsOf(line.substr(blank + 1));
        std::puts((name + ' ' + (isForValues ? decodedValue(name, octets) : thereAndBack(name, octets))).c_str());
    }
}
