#ifndef QX_ATTRIBUTE_VALUES_H
#define QX_ATTRIBUTE_VALUES_H

#include <map>
#include <string>
#include <vector>

// The coded form of one value, octet by octet as it goes over the wire.
typedef std::vector<unsigned char> DtValueBuffer;

// Coded values by name: what one update of an object or one interaction carries.
//
// The names are the model's attribute or parameter names in the form that fits a C++ identifier. A name that is absent
// has no value in this update; an empty buffer is a value of no octets.
typedef std::map<std::string, DtValueBuffer> DtAttributeValues;

#endif
