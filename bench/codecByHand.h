#ifndef BENCH_CODEC_BY_HAND_H
#define BENCH_CODEC_BY_HAND_H

#include <cstddef>
#include <cstdint>
#include <cstring>
#include <string>
#include <vector>

// What somebody would write for the datatypes of codecModel.xml and nothing else: offsets worked out with a pencil, one
// check of the bounds for what has a fixed size, the discriminant and the counts checked. The octets are those of the
// generated code.
namespace byhand
{
struct Place
{
    double x, y, z;
};
struct Rates
{
    float u, v, w;
};
struct Motion // with the largest of its alternatives
{
    std::uint8_t kind; // 1, 2 or 4
    Place place;
    std::uint32_t isFrozen;
    Rates heading, velocity, acceleration;
    float turn;
};
struct Report
{
    std::uint8_t kind, octet;
    std::int16_t shortWord;
    std::int32_t word;
    std::int64_t longWord;
    std::int32_t littleWord;
    float single;
    double wide;
    bool isValid;
    Rates rates;
    double littleDouble;
    std::string remark;
};
struct TrackPoint
{
    std::int32_t number;
    float bearing;
    double range, height;
};

inline std::uint16_t swapped(std::uint16_t bits)
{
    return __builtin_bswap16(bits);
}
inline std::uint32_t swapped(std::uint32_t bits)
{
    return __builtin_bswap32(bits);
}
inline std::uint64_t swapped(std::uint64_t bits)
{
    return __builtin_bswap64(bits);
}

template <class Bits, class Value>
void put(unsigned char* at, Value value)
{
    static_assert(sizeof(Bits) == sizeof(Value), "A number goes into bits of its own size");
    Bits bits;
    std::memcpy(&bits, &value, sizeof bits);
    bits = swapped(bits);
    std::memcpy(at, &bits, sizeof bits);
}
template <class Bits, class Value>
void get(const unsigned char* at, Value& value)
{
    static_assert(sizeof(Bits) == sizeof(Value), "A number comes from bits of its own size");
    Bits bits;
    std::memcpy(&bits, at, sizeof bits);
    bits = swapped(bits);
    std::memcpy(&value, &bits, sizeof bits);
}

inline void putRates(unsigned char* at, const Rates& rates)
{
    put<std::uint32_t>(at, rates.u);
    put<std::uint32_t>(at + 4, rates.v);
    put<std::uint32_t>(at + 8, rates.w);
}
inline void getRates(const unsigned char* at, Rates& rates)
{
    get<std::uint32_t>(at, rates.u);
    get<std::uint32_t>(at + 4, rates.v);
    get<std::uint32_t>(at + 8, rates.w);
}

constexpr std::size_t theTurnSize = 76;

// Octets written, 0 when they do not fit or the kind is no turn.
inline std::size_t encode(const Motion& motion, unsigned char* octets, std::size_t size)
{
    if (size < theTurnSize || motion.kind != 4)
        return 0;
    std::memset(octets, 0, 8);
    octets[0] = motion.kind;
    put<std::uint64_t>(octets + 8, motion.place.x);
    put<std::uint64_t>(octets + 16, motion.place.y);
    put<std::uint64_t>(octets + 24, motion.place.z);
    put<std::uint32_t>(octets + 32, motion.isFrozen);
    putRates(octets + 36, motion.heading);
    putRates(octets + 48, motion.velocity);
    putRates(octets + 60, motion.acceleration);
    put<std::uint32_t>(octets + 72, motion.turn);
    return theTurnSize;
}
inline bool decode(const unsigned char* octets, std::size_t size, Motion& motion)
{
    if (size != theTurnSize || octets[0] != 4)
        return false;
    motion.kind = octets[0];
    get<std::uint64_t>(octets + 8, motion.place.x);
    get<std::uint64_t>(octets + 16, motion.place.y);
    get<std::uint64_t>(octets + 24, motion.place.z);
    get<std::uint32_t>(octets + 32, motion.isFrozen);
    getRates(octets + 36, motion.heading);
    getRates(octets + 48, motion.velocity);
    getRates(octets + 60, motion.acceleration);
    get<std::uint32_t>(octets + 72, motion.turn);
    return true;
}

constexpr std::size_t theReportSize = 60; // ahead of the characters

inline std::size_t encode(const Report& report, unsigned char* octets, std::size_t size)
{
    const std::size_t whole = theReportSize + report.remark.size();
    if (size < whole)
        return 0;
    octets[0] = report.kind;
    octets[1] = report.octet;
    put<std::uint16_t>(octets + 2, report.shortWord);
    put<std::uint32_t>(octets + 4, report.word);
    put<std::uint64_t>(octets + 8, report.longWord);
    std::memcpy(octets + 16, &report.littleWord, 4);
    put<std::uint32_t>(octets + 20, report.single);
    put<std::uint64_t>(octets + 24, report.wide);
    put<std::uint32_t>(octets + 32, std::uint32_t(report.isValid));
    putRates(octets + 36, report.rates);
    std::memcpy(octets + 48, &report.littleDouble, 8);
    put<std::uint32_t>(octets + 56, static_cast<std::uint32_t>(report.remark.size()));
    std::memcpy(octets + theReportSize, report.remark.data(), report.remark.size());
    return whole;
}
inline bool decode(const unsigned char* octets, std::size_t size, Report& report)
{
    std::uint32_t isValid = 0;
    std::uint32_t length = 0;
    if (size < theReportSize)
        return false;
    get<std::uint32_t>(octets + 56, length);
    if (size != theReportSize + std::size_t(length))
        return false;
    report.kind = octets[0];
    report.octet = octets[1];
    get<std::uint16_t>(octets + 2, report.shortWord);
    get<std::uint32_t>(octets + 4, report.word);
    get<std::uint64_t>(octets + 8, report.longWord);
    std::memcpy(&report.littleWord, octets + 16, 4);
    get<std::uint32_t>(octets + 20, report.single);
    get<std::uint64_t>(octets + 24, report.wide);
    get<std::uint32_t>(octets + 32, isValid);
    report.isValid = isValid != 0;
    getRates(octets + 36, report.rates);
    std::memcpy(&report.littleDouble, octets + 48, 8);
    report.remark.assign(reinterpret_cast<const char*>(octets) + theReportSize, length);
    return true;
}

// The first point starts behind the count and its padding.
inline std::size_t encode(const std::vector<TrackPoint>& track, unsigned char* octets, std::size_t size)
{
    if (size < 8 + 24 * track.size())
        return 0;
    std::memset(octets, 0, 8);
    put<std::uint32_t>(octets, static_cast<std::uint32_t>(track.size()));
    unsigned char* at = octets + 8;
    for (const TrackPoint& point : track)
    {
        put<std::uint32_t>(at, point.number);
        put<std::uint32_t>(at + 4, point.bearing);
        put<std::uint64_t>(at + 8, point.range);
        put<std::uint64_t>(at + 16, point.height);
        at += 24;
    }
    return static_cast<std::size_t>(at - octets);
}
inline bool decode(const unsigned char* octets, std::size_t size, std::vector<TrackPoint>& track)
{
    std::uint32_t count = 0;
    if (size < 8)
        return false;
    get<std::uint32_t>(octets, count);
    if (size != 8 + 24 * std::size_t(count))
        return false;
    track.resize(count);
    const unsigned char* at = octets + 8;
    for (TrackPoint& point : track)
    {
        get<std::uint32_t>(at, point.number);
        get<std::uint32_t>(at + 4, point.bearing);
        get<std::uint64_t>(at + 8, point.range);
        get<std::uint64_t>(at + 16, point.height);
        at += 24;
    }
    return true;
}

inline std::size_t encode(const std::string& text, unsigned char* octets, std::size_t size)
{
    if (size < 4 + text.size())
        return 0;
    put<std::uint32_t>(octets, static_cast<std::uint32_t>(text.size()));
    std::memcpy(octets + 4, text.data(), text.size());
    return 4 + text.size();
}
inline bool decode(const unsigned char* octets, std::size_t size, std::string& text)
{
    std::uint32_t length = 0;
    if (size < 4)
        return false;
    get<std::uint32_t>(octets, length);
    if (size != 4 + std::size_t(length))
        return false;
    text.assign(reinterpret_cast<const char*>(octets) + 4, length);
    return true;
}
} // namespace byhand

#endif
