#ifndef QX_ATTRIBUTE_VALUES_H
#define QX_ATTRIBUTE_VALUES_H

#include <map>
#include <string>

#include <qx/valueTypes.h>

// Coded values by name: what one update of an object or one interaction carries.
//
// The names are the model's attribute or parameter names in the form that fits a C++ identifier. A name that is absent
// has no value in this update; an empty buffer is a value of no octets.
typedef std::map<std::string, DtValueBuffer> DtAttributeValues;

// The values as one run of octets, appended: their number in four octets, then each name and value behind its length
// in four octets. Numbers have the high octet first.
void DtEncodeValues(const DtAttributeValues& values, DtValueBuffer& octets);

// False, with nothing changed, if the octets are anything but such a run from the first to the last.
bool DtDecodeValues(const DtValueBuffer& octets, DtAttributeValues& values);

#endif
