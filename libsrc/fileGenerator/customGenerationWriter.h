#ifndef FILE_GENERATOR_CUSTOM_GENERATION_WRITER_H
#define FILE_GENERATOR_CUSTOM_GENERATION_WRITER_H

#include "fileGenerator/recordWriter.h"

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
    DtCustomGenerationWriter(const DtString& fileName, const DtString& templateName,
                             const typename Holder::Record& record)
        : DtRecordWriter<theRow, Holder>(fileName, templateName, record),
          myCustomTokens(table(), this, DtTokenMemory::OneLine)
    {
        this->myTokenChain.putBehind(myCustomTokens);
    }

    // Text of the file that the member's record names. For users of the class; generation takes the project's text.
    virtual DtString customGeneration(const DtAttribute& attribute) const
    {
        return DtCustomGenerationText(this->member(attribute.name()).customGenerationRef());
    }

private:
    using Writer = DtCustomGenerationWriter;

    // Without a text of the project, the token of the output stays, for the template's conditional to leave out.
    static const DtTokenTable<Writer>& table()
    {
        static const DtTokenRow<Writer> theRows[] = {
            {"<!CUSTOMGENERATION!>", [](const Writer& w) { return DtString(w.hasCustomText() ? "1" : ""); }},
            {theOutputToken,
             [](const Writer& w) { return w.hasCustomText() ? w.customText() : DtString(theOutputToken); } },
        };
        static const DtTokenTable<Writer> theTable(theRows,
                                                   [](const Writer& w) { return w.currentAttribute() != nullptr; });
        return theTable;
    }
    bool findText(DtString& text) const
    {
        const DtString key = this->record().fullName() + "." + this->member(this->currentAttribute()->name()).name();
        DtOmtProject::DtCodingPair coding;
        const bool isCustom = this->omtProject().customCodingsFromName(key, coding);
        text = coding.*theText;
        return isCustom;
    }
    bool hasCustomText() const
    {
        DtString text;
        return findText(text);
    }
    DtString customText() const
    {
        DtString text;
        findText(text);
        return text;
    }

    static constexpr const char* theOutputToken = "<!CUSTOMGENERATIONOUTPUT!>";

    DtTokenValues<Writer> myCustomTokens;
};

#endif
