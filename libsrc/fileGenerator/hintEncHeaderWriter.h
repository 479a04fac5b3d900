#ifndef FILE_GENERATOR_HINT_ENC_HEADER_WRITER_H
#define FILE_GENERATOR_HINT_ENC_HEADER_WRITER_H

#include "fileGenerator/recordWriter.h"

// The row of DtHlaInteractionEncoderHeaderWriter.
inline constexpr DtWriterRow theHlaInteractionEncoderHeaderRow = {
    DtClassTree::Interaction, "Dt%P%NEncoder",        "DtInteractionEncoder", "<qx/interactionEncoder.h>",
    "Dt%P%QEncoder",          "\"%C%qEncoderHLA.h\"", DtFullName::AsGiven,    {{{"<!InteractionName!>", "Dt%P%N"}}},
};

// Header of the class that writes an interaction's parameters for HLA. It alone knows the token NOGEN, "1" inside the
// loop for a parameter that the user wants nothing generated for.
class DtHlaInteractionEncoderHeaderWriter
    : public DtRecordWriter<theHlaInteractionEncoderHeaderRow, DtInteractionHolder>
{
public:
    DtHlaInteractionEncoderHeaderWriter(const DtString& fileName, const DtString& templateName,
                                        const DtOmtInteraction& interaction);

private:
    static const DtTokenTable<DtHlaInteractionEncoderHeaderWriter>& table();

    DtTokenValues<DtHlaInteractionEncoderHeaderWriter> myNoGenToken;
};

#endif
