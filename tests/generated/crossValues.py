"""What the tests ask of a generated model_codec.py.

    crossValues.py refused               the datatypes of Probe's attributes that have no encoding
    crossValues.py values COUNT          random values of each attribute of Probe: its name and the octets
    crossValues.py back COUNT CLASS...   compares such lines, from the standard input, with the octets and the values;
                                         C++ classes that have no encoding have to be refused, by these names
    crossValues.py read COUNT CLASS...   compares what the accessors gave of such octets, a line each, with the values
    crossValues.py vectors FILE          encodes, decodes and cuts off the values of a list of vectors
    crossValues.py octets FILE           each vector as its attribute of Probe and the octets, then these cut off behind
                                         each octet, and with one more
    crossValues.py answers FILE          compares what comes back of these lines, from the standard input, with the
                                         octets, and what the accessors give, in as many lines again, with the values
"""

import itertools
import json
import random
import sys

import model_codec as codec
import printedValues


def probes():
    return codec.object_class("Probe").own.values()


def is_coded(member):
    return not codec.DATATYPES[member.datatype].fault


def values(count):
    """Pairs of attribute and value, the same in every run."""
    for member in filter(is_coded, probes()):
        generator = random.Random(member.datatype)
        for _ in range(count):
            yield member, codec.random_value(member.datatype, generator)


def class_of(datatype):
    return "Dt" + datatype.name[:1].upper() + datatype.name[1:]


def first_of(classes, datatype, value):
    """The first of the classes that a value in plain form is made of; empty when there is none in it."""
    if class_of(datatype) in classes:
        return class_of(datatype)
    parts = []
    if isinstance(value, list):
        parts = [(datatype.element, each) for each in value]
    elif isinstance(value, dict):
        fields = datatype.fields() if callable(datatype.fields) else datatype.fields
        datatypes = {field.name: field.datatype for field in fields}
        parts = [(datatypes[name], each) for name, each in value.items() if name in datatypes]
    return next(filter(None, (first_of(classes, *part) for part in parts)), "")


def open_arrays(datatype, passed=()):
    """How many arrays the datatype is and holds whose number of elements the model leaves open, padding too."""
    is_open = isinstance(datatype, codec.Array) and datatype.count is None
    return is_open + sum(open_arrays(part, passed + (datatype,)) for part in datatype.parts() if part not in passed)


def answer_fault(member, value, answer, classes):
    """What is wrong with that which the generated code makes of the octets of a value; empty when nothing is."""
    octets = codec.encode(member.datatype, value)
    refused = classes and first_of(classes, codec.DATATYPES[member.datatype], codec.plain(member.datatype, value))
    expected = "refused: %s has no encoding" % refused if refused else octets.hex()
    if answer != expected:
        return "%s comes back as %s" % (octets.hex(), answer)
    if not refused and codec.decode(member.datatype, bytes.fromhex(answer)) != value:
        return "%r comes back as %s" % (value, answer)
    return ""


def check_back(count, classes, lines):
    """A line for each datatype of which a value is wrong, or rightly refused; and how many values there are."""
    wrong = {name: "has one open array at most" for name, datatype in codec.DATATYPES.items()
             if class_of(datatype) in classes and open_arrays(datatype) < 2}
    refused, number = {}, 0
    for asked, line in itertools.zip_longest(values(count), lines):
        if asked is None or line is None:
            wrong["number of lines"] = "another one"
            break
        member, value = asked
        name, _, answer = line.rstrip("\n").partition(" ")
        fault = answer_fault(member, value, answer, classes) if name == member.name else "the line of " + name
        if fault:
            wrong.setdefault(member.datatype, fault)
        elif answer.startswith("refused"):
            refused[member.datatype] = answer
        number += 1
    lines = ["wrong %s: %s" % fault for fault in wrong.items()] + ["refused " + name for name in refused]
    return lines + ["%d values" % number]


def check_read(count, classes, lines):
    """A line for each datatype of which a value is read wrongly; and how many values there are."""
    wrong, number = {}, 0
    for asked, line in itertools.zip_longest(values(count), lines):
        if asked is None or line is None:
            wrong["number of lines"] = "another one"
            break
        member, value = asked
        datatype, content = codec.DATATYPES[member.datatype], codec.plain(member.datatype, value)
        if not (classes and first_of(classes, datatype, content)):
            found = read_fault(member, content, line)
            if found:
                wrong.setdefault(member.datatype, found)
        number += 1
    return ["wrong %s: %s" % fault for fault in wrong.items()] + ["%d values" % number]


def read_fault(member, value, line):
    """What is wrong with the line that was printed for a value in plain form; empty when nothing is."""
    name, _, text = line.rstrip("\n").partition(" ")
    if name != member.name:
        return "the line of " + name
    if not text or text.startswith("refused"):
        return text or "no value"
    return printedValues.fault(codec.DATATYPES[member.datatype], value, json.loads(text))


def as_given(value, given):
    """A value in the words of a vector: characters and octets as numbers where these are so."""
    if isinstance(value, dict) and isinstance(given, dict):
        return {name: as_given(each, given.get(name)) for name, each in value.items()}
    if isinstance(value, list) and isinstance(given, list) and len(value) == len(given):
        return [as_given(each, other) for each, other in zip(value, given)]
    return [ord(each) for each in value] if isinstance(value, str) and isinstance(given, list) else value


def vector_faults(name, value, octets):
    if codec.encode(name, value) != octets:
        yield "gives " + codec.encode(name, value).hex()
    decoded = codec.decode(name, octets)
    if as_given(codec.plain(name, decoded), value) != value:
        yield "is decoded to %r" % decoded
    if codec.encode(name, decoded) != octets:
        yield "goes back as " + codec.encode(name, decoded).hex()
    for length in range(len(octets)):
        try:
            shorter = codec.decode(name, octets[:length])
        except codec.CodecError:
            continue
        if not codec.DATATYPES[name].is_open or codec.encode(name, shorter) != octets[:length]:
            yield "is taken when it is cut off behind octet %d" % length
    try:
        codec.decode(name, octets + b"\x5a")
    except codec.CodecError:
        return
    if not codec.DATATYPES[name].is_open:
        yield "is taken with an octet too many"


def vectors(file):
    """Datatype, value and octets of each line."""
    with open(file, encoding="utf-8") as lines:
        for line in lines:
            name, value, digits = line.rstrip("\n").split(" | ")
            yield name, json.loads(value), bytes.fromhex(digits)


def check_vectors(file):
    count = 0
    faults = []
    for name, value, octets in vectors(file):
        count += 1
        try:
            found = list(vector_faults(name, value, octets))
        except codec.CodecError as error:
            found = [str(error)]
        faults += ["%s %s %s" % (name, json.dumps(value), fault) for fault in found]
    return faults, count


def asked_octets(file):
    """Attribute, value and octets of a vector, and the octets that a line asks for: all, too few, too many."""
    members = {member.datatype: member for member in probes()}
    for name, value, octets in vectors(file):
        for length in [len(octets)] + list(range(len(octets))):
            yield members[name], value, octets, octets[:length]
        yield members[name], value, octets, octets + b"\x5a"


def check_answers(file, lines):
    """A line for each wrong answer; and how many vectors there are."""
    asked = list(asked_octets(file))
    if len(lines) != 2 * len(asked):
        return ["wrong number of lines: %d" % len(lines)]
    wrong, count = [], 0
    for (member, value, octets, part), answer, line in zip(asked, lines, lines[len(asked):]):
        about = "%s %s" % (member.datatype, octets.hex())
        answer = answer.partition(" ")[2].rstrip("\n")
        if part == octets:
            count += 1
            found = read_fault(member, value, line)
            if answer != octets.hex():
                wrong.append("wrong %s: comes back as %s" % (about, answer))
            if found:
                wrong.append("wrong %s: %s" % (about, found))
        elif not answer.startswith("refused") and not codec.DATATYPES[member.datatype].is_open:
            wrong.append("wrong %s: taken with %d octets" % (about, len(part)))
    return wrong + ["%d vectors" % count]


def main(command, *arguments):
    if command == "refused":
        lines = [each.datatype for each in probes() if not is_coded(each)]
    elif command == "values":
        lines = ["%s %s" % (member.name, codec.encode(member.datatype, value).hex())
                 for member, value in values(int(arguments[0]))]
    elif command == "back":
        lines = check_back(int(arguments[0]), arguments[1:], sys.stdin)
    elif command == "read":
        lines = check_read(int(arguments[0]), arguments[1:], sys.stdin)
    elif command == "octets":
        lines = ["%s %s" % (member.name, part.hex()) for member, _, _, part in asked_octets(arguments[0])]
    elif command == "answers":
        lines = check_answers(arguments[0], list(sys.stdin))
    else:
        faults, count = check_vectors(arguments[0])
        lines = ["wrong " + fault for fault in faults] + ["%d vectors, %d failures" % (count, len(faults))]
    for line in lines:
        print(line)
    return 1 if any(line.startswith("wrong ") for line in lines) else 0


sys.exit(main(*sys.argv[1:]))
