#ifndef FILE_GENERATOR_CUSTOM_GENERATION_WRITER_H
#define FILE_GENERATOR_CUSTOM_GENERATION_WRITER_H

#include "fileGenerator/recordWriter.h"

// Puts the hand-written text for a member into a line, or empties the condition when there is none (a null text): then
// the output token stays, for the template's conditional to leave out.
void DtReplaceCustomGeneration(DtString& line, const DtString* text);
// The lines of a file, each with a line end; empty when it cannot be read.
DtString DtCustomGenerationText(const DtString& fileName);

// Source of an encoder or decoder: members with hand-written text in the project get that text.
//
// The text goes in behind the whole pass of the base, so it is not scanned for tokens. theText picks the encoder's or
// the decoder's text of the project's pair.
template <const DtWriterRow& theRow, typename Holder, DtString DtOmtProject::DtCodingPair::*theText>
class DtCustomGenerationWriter : public DtRecordWriter<theRow, Holder>
{
public:
    using DtRecordWriter<theRow, Holder>::DtRecordWriter;

    void decodeFileLine(DtString& line) override
    {
        DtRecordWriter<theRow, Holder>::decodeFileLine(line);
        const DtAttribute* attribute = this->currentAttribute();
        if (attribute == nullptr || line.findString("<!CUSTOMGENERATION") >= line.length())
            return;
        const DtString key = this->record().fullName() + "." + this->member(attribute->name()).name();
        DtOmtProject::DtCodingPair coding;
        const bool isCustom = this->omtProject().customCodingsFromName(key, coding);
        DtReplaceCustomGeneration(line, isCustom ? &(coding.*theText) : nullptr);
    }

    std::vector<DtString> knownTokens() const override
    {
        std::vector<DtString> tokens = DtRecordWriter<theRow, Holder>::knownTokens();
        tokens.insert(tokens.end(), {"<!CUSTOMGENERATION!>", "<!CUSTOMGENERATIONOUTPUT!>"});
        return tokens;
    }

    // Text of the file that the member's record names. For users of the class; generation takes the project's text.
    virtual DtString customGeneration(const DtAttribute& attribute) const
    {
        return DtCustomGenerationText(this->member(attribute.name()).customGenerationRef());
    }
};

#endif
