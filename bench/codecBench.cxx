// Measures what the coding of values costs in generated code.
//
//   codecBench [ROUNDS]
//
// Generates nothing itself: the build has made the datatypes of codecModel.xml. Each value is coded and decoded by the
// generated code, by code written by hand for it, and by protobuf with the same fields where that was found; each with
// the same objects again and again, and with new ones each time. Prints nanoseconds a value, the medians of the rounds,
// and how the generated code compares with the others. The octets of the code by hand are compared with those of the
// generated code first, and so are the decoded values, so that all measure the same.

#include "codecByHand.h"

#include "DataTypes/codecModelEnums.h"
#include "DataTypes/motionVariant.h"
#include "DataTypes/reportRecord.h"
#include "DataTypes/trackArray.h"
#include "DataTypes/trackPoint.h"

#include <qx/valueCoding.h>

#ifdef QX_HAS_PROTOBUF
#include "codec.pb.h"
#endif

#include <algorithm>
#include <cstdio>
#include <cstdlib>
#include <ctime>
#include <functional>
#include <string>
#include <vector>

namespace
{
constexpr std::size_t thePoints = 1000;
constexpr double theRoundTime = 0.01; // seconds
const std::string theText(64, 'q');

// As the generated encoders give them.
const DtWireForm theRecordForm;
const DtWireForm theTextForm("HLAASCIIstring", "HLAoctet", "HLAvariableArray", -1, 1, false);

// Has the compiler take it that the value is used, and may have changed.
template <class Value>
void use(Value& value)
{
    asm volatile("" : : "r"(&value) : "memory");
}

[[noreturn]] void fail(const char* what)
{
    std::fprintf(stderr, "codecBench: %s\n", what);
    std::exit(1);
}

// Those of this process, so that what others do at the same time counts less.
double processorSeconds()
{
    return static_cast<double>(std::clock()) / CLOCKS_PER_SEC;
}

double secondsOf(const std::function<void(int)>& repeat, int count)
{
    const double start = processorSeconds();
    repeat(count);
    return processorSeconds() - start;
}

// What one kind of code has for a value. Each operation does its work as often as it is told.
struct DtCodec
{
    std::string name;
    std::function<void(int)> encodeAgain, encodeNew, decodeAgain, decodeNew;
};

double nanoseconds(const std::function<void(int)>& repeat, int rounds)
{
    int count = 1;
    while (secondsOf(repeat, count) < theRoundTime)
        count *= 2;
    std::vector<double> times;
    for (int round = 0; round < rounds; ++round)
        times.push_back(secondsOf(repeat, count) / count * 1e9);
    std::nth_element(times.begin(), times.begin() + rounds / 2, times.end());
    return times[static_cast<std::size_t>(rounds) / 2];
}

std::vector<double> measure(const DtCodec& codec, int rounds)
{
    std::vector<double> times;
    for (const std::function<void(int)>* each :
         {&codec.encodeAgain, &codec.encodeNew, &codec.decodeAgain, &codec.decodeNew})
        times.push_back(nanoseconds(*each, rounds));
    return times;
}

void compare(const char* value, const std::vector<DtCodec>& codecs, int rounds)
{
    std::printf("%s\n%-12s %13s %13s %13s %13s\n", value, "", "encode again", "encode new", "decode again",
                "decode new");
    std::vector<double> own;
    for (const DtCodec& codec : codecs)
    {
        const std::vector<double> times = measure(codec, rounds);
        if (own.empty())
            own = times;
        std::printf("%-12s", codec.name.c_str());
        for (const double time : times)
            std::printf(" %10.1f ns", time);
        std::printf("\n");
        if (&codec == &codecs.front())
            continue;
        std::printf("%-12s", "  generated");
        for (std::size_t i = 0; i < times.size(); ++i)
            std::printf(" %9.2f of", own[i] / times[i]);
        std::printf("\n");
    }
    std::printf("\n");
}

template <class Value>
DtCodec generated(const Value& value, const DtWireForm& form)
{
    DtWireWriter whole;
    if (!DtWriteValue(whole, value, form))
        fail(whole.reason());
    const std::vector<DtU8> octets = whole.bytes();
    Value back = Value();
    DtWireReader check(octets);
    if (!DtReadValue(check, back, form) || !(back == value))
        fail("generated code does not decode what it has encoded");
    DtCodec codec;
    codec.name = "generated";
    codec.encodeAgain = [value, &form](int count)
    {
        DtWireWriter writer;
        for (; count > 0; --count)
        {
            writer.clear();
            DtWriteValue(writer, value, form);
            use(writer);
        }
    };
    codec.encodeNew = [value, &form](int count)
    {
        for (; count > 0; --count)
        {
            DtWireWriter writer;
            DtWriteValue(writer, value, form);
            use(writer);
        }
    };
    codec.decodeAgain = [octets, &form](int count)
    {
        Value target = Value();
        for (; count > 0; --count)
        {
            DtWireReader reader(octets);
            DtReadValue(reader, target, form);
            use(target);
        }
    };
    codec.decodeNew = [octets, &form](int count)
    {
        for (; count > 0; --count)
        {
            Value target = Value();
            DtWireReader reader(octets);
            DtReadValue(reader, target, form);
            use(target);
        }
    };
    return codec;
}

// The octets that are expected come from the generated code.
template <class Value, class Generated>
DtCodec byHand(const Value& value, const Generated& same, const DtWireForm& form)
{
    DtWireWriter expected;
    DtWriteValue(expected, same, form);
    std::vector<unsigned char> octets(expected.size() + 64);
    octets.resize(byhand::encode(value, octets.data(), octets.size()));
    if (octets != expected.bytes())
        fail("code by hand and generated code differ");
    DtCodec codec;
    codec.name = "by hand";
    codec.encodeAgain = [value, octets](int count)
    {
        std::vector<unsigned char> target(octets.size() + 64);
        for (; count > 0; --count)
        {
            byhand::encode(value, target.data(), target.size());
            use(target);
        }
    };
    codec.encodeNew = [value, octets](int count)
    {
        for (; count > 0; --count)
        {
            std::vector<unsigned char> target(octets.size() + 64);
            byhand::encode(value, target.data(), target.size());
            use(target);
        }
    };
    codec.decodeAgain = [octets](int count)
    {
        Value target = Value();
        for (; count > 0; --count)
        {
            byhand::decode(octets.data(), octets.size(), target);
            use(target);
        }
    };
    codec.decodeNew = [octets](int count)
    {
        for (; count > 0; --count)
        {
            Value target = Value();
            byhand::decode(octets.data(), octets.size(), target);
            use(target);
        }
    };
    return codec;
}

#ifdef QX_HAS_PROTOBUF
template <class Message>
DtCodec protobuf(const Message& message)
{
    const std::string octets = message.SerializeAsString();
    DtCodec codec;
    codec.name = "protobuf";
    codec.encodeAgain = [message](int count)
    {
        std::string target;
        for (; count > 0; --count)
        {
            message.SerializeToString(&target);
            use(target);
        }
    };
    codec.encodeNew = [message](int count)
    {
        for (; count > 0; --count)
        {
            std::string target;
            message.SerializeToString(&target);
            use(target);
        }
    };
    codec.decodeAgain = [octets](int count)
    {
        Message target;
        for (; count > 0; --count)
        {
            target.ParseFromString(octets);
            use(target);
        }
    };
    codec.decodeNew = [octets](int count)
    {
        for (; count > 0; --count)
        {
            Message target;
            target.ParseFromString(octets);
            use(target);
        }
    };
    return codec;
}

codecpeer::Rates* newRates(float u)
{
    auto* const rates = new codecpeer::Rates;
    rates->set_u(u);
    rates->set_v(u + 1);
    rates->set_w(u + 2);
    return rates;
}
#endif

codec::DtRateRecord ratesFrom(float u)
{
    codec::DtRateRecord rates;
    rates.setU(u);
    rates.setV(u + 1);
    rates.setW(u + 2);
    return rates;
}

void compareMotion(int rounds)
{
    codec::DtPlaceRecord place;
    place.setX(1.5);
    place.setY(-2.5);
    place.setZ(1e6);
    codec::DtTurnRecord turn;
    turn.setPlace(place);
    turn.setIsFrozen(codec::DtFlag::eOn);
    turn.setHeading(ratesFrom(10));
    turn.setVelocity(ratesFrom(20));
    turn.setAcceleration(ratesFrom(30));
    turn.setTurn(40);
    codec::DtMotionVariant motion;
    motion.setTurn(turn);
    const byhand::Motion same = {
        4, {1.5, -2.5, 1e6},
         1, {10,  11,   12 },
         {20,  21,   22 },
         {30,  31,   32 },
         40
    };
    std::vector<DtCodec> codecs = {generated(motion, theRecordForm), byHand(same, motion, theRecordForm)};
#ifdef QX_HAS_PROTOBUF
    codecpeer::Motion message;
    codecpeer::TurnRecord& peer = *message.mutable_turn();
    peer.mutable_place()->set_x(1.5);
    peer.mutable_place()->set_y(-2.5);
    peer.mutable_place()->set_z(1e6);
    peer.set_is_frozen(true);
    peer.set_allocated_heading(newRates(10));
    peer.set_allocated_velocity(newRates(20));
    peer.set_allocated_acceleration(newRates(30));
    peer.set_turn(40);
    codecs.push_back(protobuf(message));
#endif
    compare("A variant record of 76 octets", codecs, rounds);
}

void compareReport(int rounds)
{
    codec::DtReportRecord report;
    report.setKind(codec::DtMotionKind::eTurning);
    report.setOctet(7);
    report.setTheShort(-300);
    report.setWord(70000);
    report.setTheLong(-5000000000LL);
    report.setLittleWord(-70000);
    report.setSingle(0.5F);
    report.setTheDouble(-0.25);
    report.setIsValid(true);
    report.setRates(ratesFrom(3));
    report.setLittleDouble(1e9);
    report.setRemark("all is well");
    byhand::Report same;
    same.kind = 4;
    same.octet = 7;
    same.shortWord = -300;
    same.word = 70000;
    same.longWord = -5000000000LL;
    same.littleWord = -70000;
    same.single = 0.5F;
    same.wide = -0.25;
    same.isValid = true;
    same.rates = {3, 4, 5};
    same.littleDouble = 1e9;
    same.remark = "all is well";
    std::vector<DtCodec> codecs = {generated(report, theRecordForm), byHand(same, report, theRecordForm)};
#ifdef QX_HAS_PROTOBUF
    codecpeer::Report peer;
    peer.set_kind(codecpeer::Turning);
    peer.set_octet(7);
    peer.set_short_word(-300);
    peer.set_word(70000);
    peer.set_long_word(-5000000000LL);
    peer.set_little_word(-70000);
    peer.set_single(0.5F);
    peer.set_wide(-0.25);
    peer.set_is_valid(true);
    peer.set_allocated_rates(newRates(3));
    peer.set_little_double(1e9);
    peer.set_remark("all is well");
    codecs.push_back(protobuf(peer));
#endif
    compare("A record of 12 mixed fields", codecs, rounds);
}

void compareTrack(int rounds)
{
    codec::DtTrackArray track;
    std::vector<byhand::TrackPoint> same;
#ifdef QX_HAS_PROTOBUF
    codecpeer::Track peer;
#endif
    for (std::size_t i = 0; i < thePoints; ++i)
    {
        const int number = static_cast<int>(i);
        const auto bearing = static_cast<float>(number) * 0.5F;
        const double range = number * 100.0;
        codec::DtTrackPoint point;
        point.setNumber(number);
        point.setBearing(bearing);
        point.setRange(range);
        point.setHeight(-range);
        track.push_back(point);
        same.push_back({number, bearing, range, -range});
#ifdef QX_HAS_PROTOBUF
        codecpeer::TrackPoint& added = *peer.add_points();
        added.set_number(number);
        added.set_bearing(bearing);
        added.set_range(range);
        added.set_height(-range);
#endif
    }
    std::vector<DtCodec> codecs = {generated(track, theRecordForm), byHand(same, track, theRecordForm)};
#ifdef QX_HAS_PROTOBUF
    codecs.push_back(protobuf(peer));
#endif
    compare("An array of 1,000 records", codecs, rounds);
}

void compareText(int rounds)
{
    const DtString text(theText);
    std::vector<DtCodec> codecs = {generated(text, theTextForm), byHand(theText, text, theTextForm)};
#ifdef QX_HAS_PROTOBUF
    codecpeer::Text peer;
    peer.set_text(theText);
    codecs.push_back(protobuf(peer));
#endif
    compare("A string of 64 characters", codecs, rounds);
}
} // namespace

int main(int argc, char** argv)
{
    const int rounds = argc > 1 ? std::max(1, std::atoi(argv[1])) : 9;
    compareMotion(rounds);
    compareReport(rounds);
    compareTrack(rounds);
    compareText(rounds);
    return 0;
}
