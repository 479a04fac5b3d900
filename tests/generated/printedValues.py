"""Compares values in plain form, as model_codec.plain() and the lists of vectors have them, with what the accessors of
the generated C++ gave: the JSON that printedValues.h writes.

Members go by their names, never by their place: fields by the names of their accessors, components of the toolkit's
structures by the words in the names that the model gives them.
"""

import math
import re
import struct

import model_codec as codec

# Component and a pattern for the last name on the way to it. "Subcategory" has to be looked for ahead of "Category".
COMPONENTS = {
    "vector": [("x", "^x"), ("y", "^y"), ("z", "^z")],
    "angles": [("psi", "psi"), ("theta", "theta"), ("phi", "phi")],
    "entityType": [("kind", "kind"), ("domain", "domain"), ("country", "country"), ("subcategory", "sub"),
                   ("category", "category"), ("specific", "specific"), ("extra", "extra")],
    "entity": [("site", "site"), ("application", "application"), ("entity", "entity")],
}


def fault(datatype, value, printed):
    """Where the printed value is another one, and how; empty when it is the same."""
    try:
        return _fault(datatype, value, printed)
    except (AttributeError, KeyError, TypeError, ValueError, struct.error):
        return "is of another kind: %s instead of %s" % (printed, value)


def _fault(datatype, value, printed):
    if isinstance(printed, dict) and len(printed) == 1:
        kind, content = next(iter(printed.items()))
        return COMPARISONS[kind](datatype, value, content) if kind in COMPARISONS else \
            _component_fault(COMPONENTS[kind], datatype, value, content)
    if isinstance(printed, dict):
        return _enumeration_fault(datatype, value, printed)
    if isinstance(printed, list):
        return _array_fault(datatype, value, printed)
    number = ord(value) if isinstance(value, str) and len(value) == 1 else value
    same = not isinstance(number, (float, str, list, dict)) and number == printed
    return "" if same else _other(value, printed)


def _other(value, printed):
    return "is %s instead of %s" % (printed, value)


def _float_fault(datatype, value, printed):
    number = struct.unpack(">d", bytes.fromhex(printed))[0]
    same = datatype.is_float and \
        (struct.pack(">d", value) == struct.pack(">d", number) or math.isnan(value) and math.isnan(number))
    return "" if same else _other(value, number)


def _units(datatype, value):
    """The numbers of the elements of a text or of an array of octets."""
    if not isinstance(value, str):
        return list(value)
    if datatype.element.octets == 1:
        return list(value.encode("latin-1"))
    octets = value.encode("utf-16-be", "surrogatepass")
    return list(struct.unpack(">%dH" % (len(octets) // 2), octets))


def _octets_of_text(datatype, value):
    units = _units(datatype, value)
    if datatype.element.octets == 1:
        return bytes(units)
    wide = struct.pack(">%dH" % len(units), *units)
    return wide.decode("utf-16-be", "surrogatepass").encode("utf-8", "surrogatepass")


def _text_fault(datatype, value, printed):
    """A text of a fixed length ends ahead of the zeros that fill it."""
    if isinstance(datatype, codec.FixedRecord) and len(datatype.fields) == 1:  # HLA 1.3 has no arrays of their own
        only = datatype.fields[0]
        return _text_fault(only.datatype, value[only.name], printed)
    if not isinstance(datatype, codec.Array):
        return "is a text"
    octets = _octets_of_text(datatype, value)
    if datatype.count is not None:
        octets = octets.rstrip(b"\0")
    return "" if octets.hex() == printed else _other(octets.hex(), printed)


def _octets_fault(datatype, value, printed):
    octets = bytes(_units(datatype, value)).hex()
    return "" if octets == printed else _other(octets, printed)


def _array_fault(datatype, value, printed):
    elements = _units(datatype, value)
    if len(elements) != len(printed):
        return "has %d elements instead of %d" % (len(printed), len(elements))
    for index, pair in enumerate(zip(elements, printed)):
        found = fault(datatype.element, *pair)
        if found:
            return "[%d] %s" % (index, found)
    return ""


def _enumeration_fault(datatype, value, printed):
    """In C++ the number of every enumeration has 64 bits and a sign: the largest of 64 bits come out negative."""
    is_wide = datatype.number.octets == 8 and not datatype.number.is_signed
    number = printed["number"] % 2**64 if is_wide else printed["number"]
    if value != number:
        return _other(value, number)
    names = [name.encode("utf-8").hex() for name, number in datatype.enumerators if number == value]
    return "" if names == printed["names"] else _other(names, printed["names"])


def accessors(name):
    """What the accessor of a member may be called: the generator puts something in front of words of C++."""
    text = re.sub("[()<>]", "_", re.sub("[-/#&. ]", "__", name))
    lower = text[:1].lower() + text[1:]
    return {text, lower, "_" + lower, "the" + text[:1].upper() + text[1:]}


def _record_fault(datatype, value, printed):
    if len(printed) != len(datatype.fields):
        return "has %d fields instead of %d" % (len(printed), len(datatype.fields))
    for field in datatype.fields:
        names = [name for name in printed if name in accessors(field.name)]
        if len(names) != 1:
            return ".%s has no accessor" % field.name
        found = fault(field.datatype, value[field.name], printed[names[0]])
        if found:
            return ".%s %s" % (field.name, found)
    return ""


def _variant_fault(datatype, value, printed):
    found = fault(datatype.discriminant, value["discriminant"], printed["discriminant"])
    if found:
        return ".discriminant " + found
    fields = {field.name: field for field in datatype.fields() if field.name in value}
    if not fields:
        return "" if printed["selected"] == -1 else "selects %s" % printed.get("name")
    name, field = next(iter(fields.items()))
    if printed.get("name") not in accessors(name):
        return "selects %s instead of %s" % (printed.get("name"), name)
    found = fault(field.datatype, value[name], printed["value"])
    return ".%s %s" % (name, found) if found else ""


def _leaves(datatype, value):
    """Name, datatype and value of each field, those of records in it instead of these."""
    for field in datatype.fields:
        if isinstance(field.datatype, codec.FixedRecord):
            yield from _leaves(field.datatype, value[field.name])
        else:
            yield field.name, field.datatype, value[field.name]


def _component_fault(components, datatype, value, printed):
    found = {}
    for name, part, content in _leaves(datatype, value):
        component = next((each for each, pattern in components if re.search(pattern, name.lower())), name)
        found[component] = (part, content)
    if sorted(found) != sorted(printed):
        return "has %s instead of %s" % (sorted(printed), sorted(found))
    for component, (part, content) in found.items():
        wrong = fault(part, content, printed[component])
        if wrong:
            return ".%s %s" % (component, wrong)
    return ""


COMPARISONS = {"float": _float_fault, "text": _text_fault, "octets": _octets_fault, "record": _record_fault,
               "variant": _variant_fault}
