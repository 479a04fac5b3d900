"""What the tests ask of a generated model_codec.py.

    crossValues.py refused               the datatypes of Probe's attributes that have no encoding
    crossValues.py values COUNT          random values of each attribute of Probe: its name and the octets
    crossValues.py back COUNT            compares such lines, from the standard input, with the values themselves
    crossValues.py vectors FILE          encodes, decodes and cuts off the values of a list of vectors
"""

import json
import random
import sys

import model_codec as codec


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


def check_back(count, lines):
    faults = {}
    for (member, value), line in zip(values(count), lines):
        name, _, digits = line.strip().partition(" ")
        if name != member.name or codec.decode(member.datatype, bytes.fromhex(digits)) != value:
            faults[member.datatype] = "%r comes back as %s" % (value, line.strip())
    return ["%s: %s" % fault for fault in faults.items()]


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


def check_vectors(file):
    count = 0
    faults = []
    with open(file, encoding="utf-8") as lines:
        for line in lines:
            name, value, digits = line.rstrip("\n").split(" | ")
            count += 1
            try:
                found = list(vector_faults(name, json.loads(value), bytes.fromhex(digits)))
            except codec.CodecError as error:
                found = [str(error)]
            faults += ["%s %s %s" % (name, value, fault) for fault in found]
    return faults, count


def main(command, *arguments):
    faults = []
    if command == "refused":
        print("\n".join(member.datatype for member in probes() if not is_coded(member)))
    elif command == "values":
        for member, value in values(int(arguments[0])):
            print(member.name, codec.encode(member.datatype, value).hex())
    elif command == "back":
        faults = check_back(int(arguments[0]), sys.stdin)
    else:
        faults, count = check_vectors(arguments[0])
        print("%d vectors, %d failures" % (count, len(faults)))
    print("\n".join(faults), end="")
    return 1 if faults else 0


sys.exit(main(*sys.argv[1:]))
