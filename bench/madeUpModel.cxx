#include "madeUpModel.h"

#include <algorithm>
#include <iterator>

namespace
{
struct DtShapeName
{
    const char* name;
    DtModelShape shape;
};

const DtShapeName theShapes[] = {
    {"classes",   DtModelShape::Classes  },
    {"siblings",  DtModelShape::Siblings },
    {"namesakes", DtModelShape::Namesakes},
    {"datatypes", DtModelShape::Datatypes},
};

std::string element(const std::string& name, const std::string& content)
{
    return "<" + name + ">" + content + "</" + name + ">";
}

std::string attribute(const std::string& name, const std::string& datatype)
{
    return element("attribute", element("name", name) + element("dataType", datatype));
}

std::string attributesOf(int classNumber, int count)
{
    static const char* const theNames[] = {"First", "Second", "Third", "Fourth", "Fifth"};
    constexpr int theNameCount = 5;
    std::string text;
    for (int index = 0; index < count; ++index)
    {
        const std::string round = index < theNameCount ? "" : "Of" + std::to_string(index / theNameCount) + "x";
        text += attribute(theNames[index % theNameCount] + round + std::to_string(classNumber), "Size");
    }
    return text;
}

// Chains of ten classes below the root.
std::string chains(int count, int attributes, bool areNamesakes)
{
    constexpr int length = 10;
    std::string text;
    for (int index = 0; index < count; ++index)
    {
        // Two classes side by side need names that differ.
        const int name = areNamesakes && index % length != 0 ? index % length : index;
        text += "<objectClass>" + element("name", "Class" + std::to_string(name)) + attributesOf(index, attributes);
        if (index % length == length - 1 || index == count - 1)
            for (int depth = 0; depth <= index % length; ++depth)
                text += "</objectClass>";
    }
    return text;
}

std::string siblings(int count, int attributes)
{
    std::string text;
    for (int index = 0; index < count; ++index)
    {
        text +=
            element("objectClass", element("name", "Class" + std::to_string(index)) + attributesOf(index, attributes));
    }
    return text;
}

std::string datatypeName(int index)
{
    return "Type" + std::to_string(index);
}

std::string classOfDatatypes(int count)
{
    std::string text = element("name", "Holder");
    for (int index = 0; index < count; ++index)
        text += attribute("Value" + std::to_string(index), datatypeName(index));
    return element("objectClass", text);
}

// A third of the datatypes each: the first, the second, the third of every three.
std::string enumerations(int count)
{
    std::string text;
    for (int index = 0; index < count; index += 3)
    {
        std::string values;
        for (int value = 0; value < 4; ++value)
            values += element("enumerator", element("name", datatypeName(index) + "V" + std::to_string(value)) +
                                                element("value", std::to_string(value)));
        text += element("enumeratedData",
                        element("name", datatypeName(index)) + element("representation", "HLAinteger32BE") + values);
    }
    return text;
}

std::string arrays(int count)
{
    std::string text;
    for (int index = 1; index < count; index += 3)
        text += element("arrayData", element("name", datatypeName(index)) + element("dataType", "Size") +
                                         element("cardinality", "Dynamic") + element("encoding", "HLAvariableArray"));
    return text;
}

std::string records(int count)
{
    std::string text;
    for (int index = 2; index < count; index += 3)
    {
        std::string fields;
        for (const char* field : {"X", "Y", "Z"})
            fields += element("field", element("name", field) + element("dataType", "Size"));
        text += element("fixedRecordData",
                        element("name", datatypeName(index)) + element("encoding", "HLAfixedRecord") + fields);
    }
    return text;
}

std::string classesOf(DtModelShape shape, int count, int attributes)
{
    switch (shape)
    {
    case DtModelShape::Classes:
    case DtModelShape::Namesakes:
        return chains(count, attributes, shape == DtModelShape::Namesakes);
    case DtModelShape::Siblings:
        return siblings(count, attributes);
    case DtModelShape::Datatypes:
        return classOfDatatypes(count);
    }
    return std::string();
}
} // namespace

bool shapeOfName(const std::string& name, DtModelShape& shape)
{
    const auto* found = std::find_if(std::begin(theShapes), std::end(theShapes),
                                     [&name](const DtShapeName& row) { return name == row.name; });
    if (found == std::end(theShapes))
        return false;
    shape = found->shape;
    return true;
}

std::string madeUpModel(DtModelShape shape, int count, int attributes)
{
    const int datatypes = shape == DtModelShape::Datatypes ? count : 0;
    const std::string size = element("simpleData", element("name", "Size") + element("representation", "HLAfloat64BE"));
    return "<objectModel xmlns=\"http://standards.ieee.org/IEEE1516-2010\">" +
           element("modelIdentification", element("name", "Synthetic")) +
           element("objects",
                   element("objectClass", element("name", "HLAobjectRoot") + classesOf(shape, count, attributes))) +
           element("dataTypes", "<basicDataRepresentations/>" + element("simpleDataTypes", size) +
                                    element("enumeratedDataTypes", enumerations(datatypes)) +
                                    element("arrayDataTypes", arrays(datatypes)) +
                                    element("fixedRecordDataTypes", records(datatypes))) +
           "</objectModel>";
}
