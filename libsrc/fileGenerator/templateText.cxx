#include "fileGenerator/templateText.h"

#include "fileGenerator/templateBlock.h"
#include "fileGenerator/templateScan.h"
#include "fileGenerator/templateStream.h"

namespace
{
// Notes what the scanner meets in a text.
class DtPartsTaker
{
public:
    DtPartsTaker(DtTemplateStream& in, std::string_view text, std::size_t pieceLimit, DtTemplateParts& parts)
        : myStream(in), myText(text), myPieceLimit(pieceLimit), myParts(parts)
    {
    }

    void lineFeed() { ++myLineFeeds; }
    void piece(std::string_view text) { addStep().line = DtCompiledLine(text); }
    bool block(char delimiter);
    void finish();

private:
    DtTemplateStep& addStep();
    void joinLiterals();
    std::unique_ptr<DtTemplateBlockPart> readBlock(DtTemplateCursor& cursor, char delimiter) const;
    bool readBody(DtTemplateBlock& block, DtTemplateCursor& cursor, DtTemplateBlockPart& part) const;

    DtTemplateStream& myStream;
    std::string_view myText;
    std::size_t myPieceLimit;
    DtTemplateParts& myParts;
    std::size_t myLineFeeds = 0;
    bool myHasStopped = false;
};

DtTemplateStep& DtPartsTaker::addStep()
{
    DtTemplateStep& step = myParts.steps.emplace_back();
    step.lineFeeds = myLineFeeds;
    myLineFeeds = 0;
    return step;
}

// The list ends ahead of a block that is not complete, and of one behind which the stream is not good any more.
bool DtPartsTaker::block(char delimiter)
{
    DtTemplateCursor cursor(myStream, myPieceLimit);
    const std::streamoff start = cursor.position();
    std::unique_ptr<DtTemplateBlockPart> part = readBlock(cursor, delimiter);
    if (part == nullptr || !myStream.good())
    {
        myParts.end = start;
        myHasStopped = true;
        return false;
    }
    part->end = cursor.position();
    DtTemplateStep& step = addStep();
    step.block = std::move(part);
    step.start = start;
    return true;
}

std::unique_ptr<DtTemplateBlockPart> DtPartsTaker::readBlock(DtTemplateCursor& cursor, char delimiter) const
{
    DtTemplateBlock block;
    if (block.readHeader(cursor, delimiter) != DtHeaderOutcome::Read)
        return nullptr;
    auto part = std::make_unique<DtTemplateBlockPart>();
    part->delimiter = delimiter;
    part->header = block.header;
    part->condition = DtTemplateCondition(part->header.stdString());
    const bool isRead = block.isInline() ? readBody(block, cursor, *part)
                                         : DtTakeBlockPath(block.line, block.headerEnd + 1, cursor, block.linePosition,
                                                           delimiter, part->path);
    return isRead ? std::move(part) : nullptr;
}

bool DtPartsTaker::readBody(DtTemplateBlock& block, DtTemplateCursor& cursor, DtTemplateBlockPart& part) const
{
    const std::size_t start = static_cast<std::size_t>(block.linePosition) + block.headerEnd + 1;
    std::string body;
    DtTakeBlockBody(block.line, block.headerEnd + 1, cursor, block.linePosition, part.delimiter, body);
    part.body = DtTemplateText::bodyOf(myText.substr(start, body.size()));
    return part.body->text() == body;
}

// From the back, so that each step finds its follower joined. The text of a step begins with its line feeds where they
// stand in the template next to the line, as they do but for bars.
void DtPartsTaker::joinLiterals()
{
    const DtTemplateStep* next = nullptr;
    for (auto step = myParts.steps.rbegin(); step != myParts.steps.rend(); next = &*step++)
    {
        const std::string_view line = step->line.text();
        const bool isInTemplate = line.data() >= myText.data() && line.data() <= myText.data() + myText.size();
        if (step->block != nullptr || !step->line.isLiteral() || !isInTemplate)
            continue;
        const std::size_t start = static_cast<std::size_t>(line.data() - myText.data());
        const std::size_t feeds = step->lineFeeds;
        if (feeds > start || myText.substr(start - feeds, feeds).find_first_not_of('\n') != std::string_view::npos)
            continue;
        step->literalText = myText.substr(start - feeds, feeds + line.size());
        step->literalSteps = 1;
        const char* const end = line.data() + line.size();
        if (next == nullptr || next->literalSteps == 0 || next->literalText.data() != end)
            continue;
        step->literalText = myText.substr(start - feeds, feeds + line.size() + next->literalText.size());
        step->literalSteps += next->literalSteps;
    }
}

void DtPartsTaker::finish()
{
    joinLiterals();
    myParts.lineFeeds = myLineFeeds;
    if (myHasStopped)
        return;
    myParts.end = static_cast<std::streamoff>(myText.size());
    myParts.state = myStream.rdstate();
}
} // namespace

DtTemplateText::~DtTemplateText() = default;

std::unique_ptr<DtTemplateText> DtTemplateText::bodyOf(std::string_view text)
{
    std::unique_ptr<DtTemplateText> body(new DtTemplateText);
    body->myText = text;
    return body;
}

const DtTemplateParts& DtTemplateText::parts(std::size_t pieceLimit) const
{
    const auto [found, isNew] = myParts.try_emplace(pieceLimit);
    DtTemplateParts& parts = found->second;
    if (!isNew)
        return parts;
    DtTemplateStream in;
    in.open(*this);
    DtPartsTaker taker(in, myText, pieceLimit, parts);
    DtScanTemplate(in, pieceLimit, taker);
    taker.finish();
    return parts;
}
