#include "fileGenerator/hintEncHeaderWriter.h"

DtHlaInteractionEncoderHeaderWriter::DtHlaInteractionEncoderHeaderWriter(const DtString& fileName,
                                                                         const DtString& templateName,
                                                                         const DtOmtInteraction& interaction)
    : DtRecordWriter(fileName, templateName, interaction), myNoGenToken(table(), this, DtTokenMemory::OneLine)
{
    myTokenChain.putBehind(myNoGenToken);
}

const DtTokenTable<DtHlaInteractionEncoderHeaderWriter>& DtHlaInteractionEncoderHeaderWriter::table()
{
    using Writer = const DtHlaInteractionEncoderHeaderWriter&;
    static const DtTokenRow<DtHlaInteractionEncoderHeaderWriter> theRows[] = {
        {"<!NOGEN!>", [](Writer w) { return DtString(w.member(w.currentAttribute()->name()).noGen() ? "1" : ""); }},
    };
    static const DtTokenTable<DtHlaInteractionEncoderHeaderWriter> theTable(
        theRows, [](Writer w) { return w.currentAttribute() != nullptr; });
    return theTable;
}
