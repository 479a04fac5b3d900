// The generated classes of a model that has an object class Probe, as a filter: reads lines of an attribute's name and
// octets, decodes the octets, encodes what has come of them and prints the line with these octets, or with a word that
// tells what was refused.

#include "probeDecoderHLA.h"
#include "probeEncoderHLA.h"

#include <cstdio>
#include <iostream>
#include <set>
#include <string>

namespace
{
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
        return "notDecoded";
    return theEncoder.encode(theState, std::set<std::string>{name}, given) ? hexOf(given[name]) : "notEncoded";
}
} // namespace

int main()
{
    for (std::string line; std::getline(std::cin, line);)
    {
        const std::size_t blank = line.find(' ');
        const std::string name = line.substr(0, blank);
        std::puts((name + ' ' + thereAndBack(name, octetsOf(line.substr(blank + 1)))).c_str());
    }
}
