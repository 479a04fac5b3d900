#ifndef FILE_GENERATOR_TEMPLATE_TEXT_H
#define FILE_GENERATOR_TEMPLATE_TEXT_H

#include "fileGenerator/compiledLine.h"
#include "fileGenerator/templateCondition.h"
#include "foundation/string.h"

#include <cstddef>
#include <ios>
#include <map>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

// Templates taken apart ahead of their expansion.
//
// The idea: what the scanner of the writers makes of a template follows from its text and the length of a piece, and
// from nothing else: where line feeds come out, where the pieces end in which tokens are replaced, where blocks begin
// and end, which text is their body. So each text is scanned once, when it is first expanded, and what the scanner met
// is kept as a list of steps; a body is a text of its own within that of its template. To expand is to walk the steps.
//
// What cannot be decided ahead ends the list: a block that makes the scanner warn, because the warning belongs to each
// expansion. The rest of such a text is scanned line by line, every time.

class DtTemplateText;

// A block that the scanner finds complete.
struct DtTemplateBlockPart
{
    char delimiter = '#';
    DtString header;               // raw
    DtTemplateCondition condition; // of the header
    std::streamoff end = 0;        // position of the stream behind it
    // One of the two: the body of an inline block, or the path of a file block, which may be empty.
    std::unique_ptr<DtTemplateText> body;
    std::string path;
};

// What the scanner does next: line feeds come out, and then a line with its tokens replaced, or a block is expanded.
struct DtTemplateStep
{
    std::size_t lineFeeds = 0;
    DtCompiledLine line;
    std::unique_ptr<DtTemplateBlockPart> block; // null for a line
    std::streamoff start = 0;                   // position of the stream ahead of a block
    // Of a line without tokens: the text from its line feeds to the end of the last such line that follows without a
    // gap, and the number of steps that it stands for; 0 for any other step.
    std::string_view literalText;
    std::size_t literalSteps = 0;
};

// All steps of a text, for pieces of one length.
struct DtTemplateParts
{
    std::vector<DtTemplateStep> steps;
    // What is left behind the last step: line feeds that come out, and the stream, with where it stands and its state.
    // Where that is good, the rest of the text has to be scanned line by line.
    std::size_t lineFeeds = 0;
    std::streamoff end = 0;
    std::ios_base::iostate state = std::ios_base::goodbit;
};

// A text with its parts, which are found when it is first asked for them. Does not move.
class DtTemplateText
{
public:
    explicit DtTemplateText(std::string text) : myOwnText(std::move(text)), myText(myOwnText) {}
    // The body of a block, which lies in a text that outlives this one.
    static std::unique_ptr<DtTemplateText> bodyOf(std::string_view text);
    DtTemplateText(const DtTemplateText&) = delete;
    DtTemplateText& operator=(const DtTemplateText&) = delete;
    ~DtTemplateText();

    std::string_view text() const { return myText; }
    // The parts for pieces of at most that many bytes; they live as long as the text.
    const DtTemplateParts& parts(std::size_t pieceLimit) const;

private:
    DtTemplateText() = default;

    std::string myOwnText;
    std::string_view myText;
    mutable std::map<std::size_t, DtTemplateParts> myParts; // nearly always one
};

#endif
