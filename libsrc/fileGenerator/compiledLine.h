#ifndef FILE_GENERATOR_COMPILED_LINE_H
#define FILE_GENERATOR_COMPILED_LINE_H

#include <cstddef>
#include <string_view>
#include <vector>

// A piece of a template, or an operand of a condition, with its tokens found ahead.
//
// What always holds: the slots stand in the order of the text and do not overlap. When the line is plain, the tokens
// that stand in it are all that a replacement can ever find, as long as the values are quiet: no opening "<!" stands in
// a value, and none can come about where a value meets what is beside it.
class DtCompiledLine
{
public:
    // One token, with its brackets.
    struct DtSlot
    {
        std::size_t start;
        std::size_t end;
        int token; // its number, see DtNumberOfToken
    };

    DtCompiledLine() = default;
    // The text outlives the line.
    explicit DtCompiledLine(std::string_view text);

    std::string_view text() const { return myText; }
    const std::vector<DtSlot>& slots() const { return mySlots; }
    // Whether there is nothing to replace.
    bool isLiteral() const { return myIsPlain && mySlots.empty(); }
    // Whether each opening begins a token. The ordered passes have to do the others: they may find a token that comes
    // about on the way.
    bool isPlain() const { return myIsPlain; }

    // Whether a value can stand in a plain line without anything new to replace coming about.
    static bool isQuiet(std::string_view value);

private:
    bool findSlots();

    std::string_view myText;
    std::vector<DtSlot> mySlots;
    bool myIsPlain = true;
};

#endif
