#ifndef QX_SRC_DATAGRAM_H
#define QX_SRC_DATAGRAM_H

#include <string>
#include <vector>

#include <qx/exercise.h>
#include <qx/valueTypes.h>

// What connections of different processes send each other. Numbers have the high octet first, and texts stand behind
// their length in two octets.
//
// A datagram is: "QXEX", the version (1 octet), the kind (1), the exercise's name behind its length in one octet, the
// sender's number (4), the sender's count of datagrams to all (4), the sender's heartbeat in milliseconds (4), the
// length of the content (4), and the content. Anything else is no datagram.
struct DtDatagram
{
    //  kind             goes to   content
    enum Kind
    {
        Alive,       //  all       nothing
        Bye,         //  all       nothing
        Added,       //  all       object, class name, object name
        Updated,     //  all       object, values
        Removed,     //  all       object
        Interaction, //  all       class name, values
        Message,     //  all       octets
        Ask,         //  one       place
        Page,        //  one       page
        theKinds
    };

    Kind kind;
    DtU32 sender; // its slot in the low four bits
    DtU32 sequence;
    DtU32 heartbeat;
    DtValueBuffer content;

    // Datagrams of these kinds are counted, so that a receiver sees when it lost one.
    static bool isCounted(Kind kind) { return kind >= Added && kind <= Message; }
};

// Longest name of an exercise in octets.
const std::size_t theLongestExerciseName = 255;

void DtEncodeDatagram(const DtDatagram& datagram, const std::string& exercise, DtValueBuffer& octets);
// False if the octets are no datagram of that exercise.
bool DtDecodeDatagram(const DtValueBuffer& octets, const std::string& exercise, DtDatagram& datagram);

// Contents with an object tell its number without the owner's, which is the sender's.
struct DtObjectContent
{
    DtU32 object;
    std::string fullClassName;
    std::string name;
    DtAttributeValues values;
};
DtValueBuffer DtEncodeAdded(const DtObjectContent& content);
bool DtDecodeAdded(const DtValueBuffer& octets, DtObjectContent& content);
DtValueBuffer DtEncodeUpdated(const DtObjectContent& content);
bool DtDecodeUpdated(const DtValueBuffer& octets, DtObjectContent& content);
DtValueBuffer DtEncodeRemoved(const DtObjectContent& content);
bool DtDecodeRemoved(const DtValueBuffer& octets, DtObjectContent& content);
// With class name and values, and no object.
DtValueBuffer DtEncodeInteraction(const DtObjectContent& content);
bool DtDecodeInteraction(const DtValueBuffer& octets, DtObjectContent& content);

// A place in the sequence of one owner's objects and their values: behind that value of that object.
struct DtPlace
{
    DtPlace() : object(0), attribute() {}
    bool operator==(const DtPlace& other) const { return object == other.object && attribute == other.attribute; }

    DtU32 object; // 0 at the start
    std::string attribute;
};
DtValueBuffer DtEncodePlace(const DtPlace& place);
bool DtDecodePlace(const DtValueBuffer& octets, DtPlace& place);

// The objects and values from one place to the next. An object whose values do not fit one page is in several.
struct DtPage
{
    DtPlace from;
    DtPlace to;
    bool isLast;
    std::vector<DtObjectContent> objects;
};
DtValueBuffer DtEncodePage(const DtPage& page);
bool DtDecodePage(const DtValueBuffer& octets, DtPage& page);

// What a value takes in a content.
std::size_t DtOctetsOfValue(const DtAttributeValues::value_type& value);

#endif
