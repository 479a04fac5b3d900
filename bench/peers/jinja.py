#!/usr/bin/env python3
"""jinja.py MODEL TEMPLATES OUT: what one would write instead of a generator, a Jinja2 script over the model's XML.

Writes the twelve files of each object class into two folders, and prints the files, the bytes, and the processor
seconds from before the model is read.
"""
import os
import sys

import jinja2
import lxml.etree

FILES = [("hobjEncHeader", "{low}EncoderHLA.h"), ("hobjEncSource", "{low}EncoderHLA.cxx"),
         ("stateRepSource", "{low}StateRepository.cxx"), ("stateRepHeader", "{low}StateRepository.h"),
         ("hpubHeader", "{low}PublisherHLA.h"), ("hpubSource", "{low}PublisherHLA.cxx"),
         ("hrefObjHeader", "reflected{name}HLA.h"), ("hrefObjSource", "reflected{name}HLA.cxx"),
         ("hrefListHeader", "reflected{name}ListHLA.h"), ("hrefListSource", "reflected{name}ListHLA.cxx"),
         ("hobjDecHeader", "{low}DecoderHLA.h"), ("hobjDecSource", "{low}DecoderHLA.cxx")]
SPACE = "{http://standards.ieee.org/IEEE1516-2010}"


def lower(text):
    return text[:1].lower() + text[1:]


def values(element, full_name):
    name = element.findtext(SPACE + "name")
    low = lower(name)
    attributes = []
    for attribute in element.findall(SPACE + "attribute"):
        plain = attribute.findtext(SPACE + "name")
        attributes.append({"ExactAttributeName": plain, "AttributeName": plain[:1].upper() + plain[1:],
                           "attributeName": lower(plain), "AttributeSize": 8,
                           "AttributeDatatype": "Dt" + attribute.findtext(SPACE + "dataType")})
    return {"FullClassName": full_name, "DllExport": "DT_DLL_BENCH", "BitCount": "64", "GenerateErrors": "",
            "SrHeader": low + "StateRepository", "SrMethod": low + "StateRep",
            "StateRepName": "Dt" + name + "StateRepository", "HEncHeader": low + "EncoderHLA",
            "HDecHeader": low + "DecoderHLA", "PublisherClassName": "Dt" + name + "Publisher",
            "EncoderClassName": "Dt" + name + "Encoder", "DecoderClassName": "Dt" + name + "Decoder",
            "ReflectedListClassName": "DtReflected" + name + "List",
            "ReflectedObjectClassName": "DtReflected" + name, "attributes": attributes}


def classes(element, path):
    for child in element.findall(SPACE + "objectClass"):
        full_name = path + "." + child.findtext(SPACE + "name")
        yield child, full_name
        yield from classes(child, full_name)


def main():
    model, templates, out = sys.argv[1:4]
    before = os.times()
    environment = jinja2.Environment(loader=jinja2.FileSystemLoader(templates), trim_blocks=True,
                                     keep_trailing_newline=True)
    rows = [(environment.get_template(name + ".j2"), pattern) for name, pattern in FILES]
    os.makedirs(os.path.join(out, "include"))
    root = lxml.etree.parse(model).getroot().find(SPACE + "objects").find(SPACE + "objectClass")
    count = size = 0
    for element, full_name in classes(root, "HLAobjectRoot"):
        name = element.findtext(SPACE + "name")
        known = values(element, full_name)
        for template, pattern in rows:
            text = template.render(known)
            file_name = pattern.format(name=name, low=lower(name))
            folder = os.path.join(out, "include") if file_name.endswith(".h") else out
            with open(os.path.join(folder, file_name), "w", encoding="utf-8") as file:
                file.write(text)
            count += 1
            size += len(text)
    after = os.times()
    print(count, size, after.user - before.user + after.system - before.system)


main()
