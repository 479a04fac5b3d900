#!/usr/bin/env python3
"""schema.py proto|fbs MESSAGES FIELDS: a schema of that many messages, for the compilers of Protocol Buffers and of
FlatBuffers."""
import sys

KINDS = {"proto": (["double", "int32", "string", "bool"], 'syntax = "proto3";\npackage bench;'),
         "fbs": (["double", "int", "string", "bool"], "namespace bench;")}


def field(kind, message, number, types):
    name = "field%d_of%d" % (number, message)
    type_name = types[number % len(types)]
    return "  %s %s = %d;" % (type_name, name, number + 1) if kind == "proto" else "  %s:%s;" % (name, type_name)


def main():
    kind, messages, fields = sys.argv[1], int(sys.argv[2]), int(sys.argv[3])
    types, head = KINDS[kind]
    print(head)
    for message in range(messages):
        print("%s Message%d {" % ("message" if kind == "proto" else "table", message))
        for number in range(fields):
            print(field(kind, message, number, types))
        print("}")


main()
