#ifndef FILE_GENERATOR_TEMPLATE_CONDITION_H
#define FILE_GENERATOR_TEMPLATE_CONDITION_H

#include "fileGenerator/compiledLine.h"
#include "foundation/string.h"

#include <string_view>

// The header of a conditional taken apart: its verb and the operands, whose tokens the writer replaces one by one.
//
// The verbs are exists, notexists, greaterthan, lessthan, equals and notequals. A header whose verb is none of them
// makes a condition that never holds.
class DtTemplateCondition
{
public:
    DtTemplateCondition() = default;
    // The header outlives the condition.
    explicit DtTemplateCondition(std::string_view header);

    bool isKnown() const { return myTest != nullptr; }
    bool hasTwoOperands() const { return myHasTwoOperands; }
    const DtCompiledLine& left() const { return myLeft; }
    const DtCompiledLine& right() const { return myRight; }
    // For a known verb, with the operands as they are behind the replacement of their tokens.
    bool holds(const DtString& left, const DtString& right) const { return myTest(left, right); }

private:
    using DtTest = bool (*)(const DtString& left, const DtString& right);
    struct DtVerb;

    static const DtVerb* findVerb(std::string_view name);

    DtTest myTest = nullptr;
    bool myHasTwoOperands = false;
    DtCompiledLine myLeft;
    DtCompiledLine myRight;
};

#endif
