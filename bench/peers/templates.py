#!/usr/bin/env python3
"""templates.py DATA OUT LINES LOOP: the twelve templates of an object class, made up of about LINES lines each.

Written twice, with the same output: as NAME.tlt over those in DATA/templates, and as NAME.j2 into OUT. Four lines of
ten hold a token, one line of ten is blank, and each template has one loop over the attributes with LOOP lines in it
and one condition.
"""
import os
import re
import sys

NAMES = ["hobjEncHeader", "hobjEncSource", "stateRepSource", "stateRepHeader", "hpubHeader", "hpubSource",
         "hrefObjHeader", "hrefObjSource", "hrefListHeader", "hrefListSource", "hobjDecHeader", "hobjDecSource"]
PLAIN = ["// Changes that are made here are lost when the model is generated again.", "#include <vector>", "public:",
         "    // Gives the number of octets of the encoded form.", "    if (buffer == nullptr || size < minimum)", "    {",
         "        return false;", "    }", "    unsigned int myVersion;", "    std::vector<unsigned char> myBuffer;"]
TOKENS = ['#include "<!SrHeader!>.h"', "class <!DllExport!> <!StateRepName!>", "    <!StateRepName!>* <!SrMethod!>() const;",
          '#include "<!HEncHeader!>.h"', '#include "<!HDecHeader!>.h"', "namespace { class <!PublisherClassName!>; }",
          "    // State of <!ReflectedObjectClassName!> in <!BitCount!> bits, <!FullClassName!>",
          "    <!EncoderClassName!>* make(const <!DecoderClassName!>& decoder, <!ReflectedListClassName!>* list);"]
LOOP = ["    // <!ExactAttributeName!>", "    void set<!AttributeName!>(const <!AttributeDatatype!>& value);",
        "    const <!AttributeDatatype!>& <!attributeName!>() const;", "    {",
        "        copy(buffer + offset, my<!AttributeName!>, <!AttributeSize!>);", "        offset += sizeof(net);", "    }",
        "    <!AttributeDatatype!> my<!AttributeName!>;"]


def lines(number, count, loop):
    """The lines of a template: texts, and the words that begin and end a block."""
    result = []
    for index in range(count - loop - 6):
        if index % 10 == 9:
            result.append(" ")
        elif (index * 7 + number) % 10 < 4:
            result.append(TOKENS[(index * 3 + number) % len(TOKENS)])
        else:
            result.append(PLAIN[(index + number) % len(PLAIN)])
    middle = len(result) // 2
    body = ["LOOP"] + [LOOP[(index + number) % len(LOOP)] for index in range(loop)] + ["END LOOP"]
    return result[:middle] + ["IF", "#define <!StateRepName!>Errors 1", "END IF"] + body + result[middle:]


def as_template(texts):
    starts = {"LOOP": "<#Attributes>", "END LOOP": "<#>", "IF": "<?exists <!GenerateErrors!>>", "END IF": "<?>"}
    result = []
    is_behind_block = False
    for text in texts:
        result.append(("|" if is_behind_block else "") + starts.get(text, text))
        is_behind_block = text in starts
    return "\n".join(result) + "\n"


def as_jinja(texts):
    starts = {"LOOP": "{% for a in attributes %}", "END LOOP": "{% endfor %}", "IF": "{% if GenerateErrors %}",
              "END IF": "{% endif %}"}
    result = []
    is_in_loop = False
    for text in texts:
        is_in_loop = text == "LOOP" or (is_in_loop and text != "END LOOP")
        prefix = "a." if is_in_loop else ""
        result.append(starts.get(text) or re.sub("<!(.*?)!>", "{{ " + prefix + r"\1 }}", text))
    return "\n".join(result) + "\n"


def main():
    data, out, count, loop = sys.argv[1], sys.argv[2], int(sys.argv[3]), int(sys.argv[4])
    os.makedirs(out, exist_ok=True)
    for number, name in enumerate(NAMES):
        texts = lines(number, count, loop)
        with open(os.path.join(data, "templates", name + ".tlt"), "w", encoding="utf-8") as file:
            file.write(as_template(texts))
        with open(os.path.join(out, name + ".j2"), "w", encoding="utf-8") as file:
            file.write(as_jinja(texts))


main()
