#ifndef BENCH_MADE_UP_MODEL_H
#define BENCH_MADE_UP_MODEL_H

#include <string>

// Models that are made up here, to see how the cost of a run grows with one of the things that a model has many of.
enum class DtModelShape
{
    Classes,   // object classes in chains of ten below the root, with attributes of a simple type
    Siblings,  // object classes side by side below the root, with the same attributes
    Namesakes, // object classes in chains of ten that have ten short names between them
    Datatypes  // one object class with an attribute of each of that many datatypes: records, arrays, enumerations
};

// False, with nothing changed, for a name of no shape.
bool shapeOfName(const std::string& name, DtModelShape& shape);
// The text of a 2010 model with that many classes or datatypes; classes have that many attributes.
std::string madeUpModel(DtModelShape shape, int count, int attributes);

#endif
