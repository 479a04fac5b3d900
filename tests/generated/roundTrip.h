#ifndef TESTS_ROUND_TRIP_H
#define TESTS_ROUND_TRIP_H

// Random values through the encoder and decoder of a generated class. Compiled with generated code, not with the tests.

#include <qx/attributeValues.h>

#include <cstdio>
#include <map>
#include <random>
#include <set>
#include <string>
#include <vector>

// What a class has shown.
struct DtRoundTripResult
{
    std::set<std::string> coded; // attributes that can be encoded
    std::set<std::string> moved; // of these, the ones that took more than one value
    std::string fault;           // empty when every value came back as it went
};

// Coding is a class with encode(object, values) and decode(values, object, refused) for objects of the type Object.
//
// A value is what the decoder accepts of octets that are changed at random. Its encoding has to be accepted whole, and
// to come out again as it was.
template <class Object, class Coding>
class DtRoundTrip
{
public:
    explicit DtRoundTrip(const Coding& coding) : myCoding(coding), myRandom(20250117u) {}

    DtRoundTripResult run(unsigned int rounds)
    {
        const Object initial;
        DtAttributeValues values;
        myCoding.encode(initial, values);
        const DtAttributeValues start = values;
        for (DtAttributeValues::const_iterator value = start.begin(); value != start.end(); ++value)
            myResult.coded.insert(value->first);
        for (unsigned int round = 0; round < rounds && myResult.fault.empty(); ++round)
        {
            for (DtAttributeValues::iterator value = values.begin(); value != values.end(); ++value)
            {
                if (isOpenCount(value->second))
                    grow(value->first, value->second);
                change(value->second);
            }
            values = sent(values, start);
        }
        return myResult;
    }

private:
    unsigned int below(unsigned int limit) { return static_cast<unsigned int>(myRandom() % limit); }

    static bool isOpenCount(const DtValueBuffer& octets)
    {
        return octets.size() == 4 && octets[0] == 0 && octets[1] == 0 && octets[2] == 0 && octets[3] == 0;
    }

    // An array that is empty gets one element of as many zeros as the decoder asks for.
    void grow(const std::string& name, DtValueBuffer& octets)
    {
        for (std::size_t length = 5; length < 400; ++length)
        {
            DtAttributeValues attempt;
            DtValueBuffer& grown = attempt[name];
            grown.assign(length, 0);
            grown[3] = 1;
            Object object;
            if (myCoding.decode(attempt, object, nullptr))
            {
                octets = grown;
                return;
            }
        }
    }

    // Nothing, one octet, several, or a few more of them: the decoder refuses most of what has open arrays in it.
    void change(DtValueBuffer& octets)
    {
        const unsigned int kind = below(4);
        if (kind == 3)
            octets.insert(octets.begin() + below(static_cast<unsigned int>(octets.size()) + 1), below(8) + 1,
                          static_cast<unsigned char>(below(256)));
        for (unsigned int count = octets.empty() || kind == 3 ? 0 : kind * 2; count > kind / 2; --count)
            octets[below(static_cast<unsigned int>(octets.size()))] = static_cast<unsigned char>(below(256));
    }

    // What comes out of the values that are accepted; the rest starts anew.
    DtAttributeValues sent(const DtAttributeValues& values, const DtAttributeValues& start)
    {
        Object first;
        myCoding.decode(values, first, nullptr);
        DtAttributeValues octets;
        myCoding.encode(first, octets);
        Object second;
        std::vector<std::string> refused;
        if (!myCoding.decode(octets, second, &refused))
            myResult.fault = refused.front() + " refuses its own encoding";
        DtAttributeValues again;
        myCoding.encode(second, again);
        for (DtAttributeValues::const_iterator value = octets.begin(); value != octets.end(); ++value)
        {
            if (again[value->first] != value->second)
                myResult.fault = value->first + " comes back changed";
            const DtAttributeValues::const_iterator old = start.find(value->first);
            if (old == start.end() || old->second != value->second)
                myResult.moved.insert(value->first);
        }
        DtAttributeValues next = start;
        for (DtAttributeValues::const_iterator value = octets.begin(); value != octets.end(); ++value)
            next[value->first] = value->second;
        return next;
    }

    const Coding& myCoding;
    std::mt19937 myRandom;
    DtRoundTripResult myResult;
};

// The coding of an object class.
template <class State, class Encoder, class Decoder>
struct DtStateCoding
{
    Encoder encoder;
    Decoder decoder;

    void encode(const State& state, DtAttributeValues& values) const { encoder.encode(state, values); }
    bool decode(const DtAttributeValues& values, State& state, std::vector<std::string>* refused) const
    {
        return decoder.decode(values, state, refused);
    }
};

// The coding of an interaction class, whose accessors may hide the operations of its base.
template <class Base>
struct DtInteractionCoder
{
    void encode(const Base& interaction, DtAttributeValues& values) const { interaction.encode(values); }
    bool decode(const DtAttributeValues& values, Base& interaction, std::vector<std::string>* refused) const
    {
        return interaction.decode(values, refused);
    }
};

inline void DtPrintResult(const char* name, const DtRoundTripResult& result)
{
    std::printf("%s: %u coded, %u moved", name, static_cast<unsigned int>(result.coded.size()),
                static_cast<unsigned int>(result.moved.size()));
    for (std::set<std::string>::const_iterator each = result.coded.begin(); each != result.coded.end(); ++each)
        if (result.moved.count(*each) == 0)
            std::printf(" -%s", each->c_str());
    std::printf("%s%s\n", result.fault.empty() ? "" : " FAULT ", result.fault.c_str());
}

template <class State, class Encoder, class Decoder>
void DtRoundTripOfState(const char* name, unsigned int rounds)
{
    const DtStateCoding<State, Encoder, Decoder> coding = {};
    DtPrintResult(name, DtRoundTrip<State, DtStateCoding<State, Encoder, Decoder>>(coding).run(rounds));
}

template <class Interaction, class Base>
void DtRoundTripOfInteraction(const char* name, unsigned int rounds)
{
    const DtInteractionCoder<Base> coding = {};
    DtPrintResult(name, DtRoundTrip<Interaction, DtInteractionCoder<Base>>(coding).run(rounds));
}

#endif
