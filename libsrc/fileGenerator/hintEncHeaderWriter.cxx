#include "fileGenerator/hintEncHeaderWriter.h"

#include "foundation/stringUtils.h"

void DtHlaInteractionEncoderHeaderWriter::decodeFileLine(DtString& line)
{
    DtRecordWriter::decodeFileLine(line);
    if (currentAttribute() == nullptr || !DtContainsSubstring(line, "<!NOGEN!>"))
        return;
    const bool isLeftOut = member(currentAttribute()->name()).noGen();
    line = DtReplaceAllSubstrings(line, "<!NOGEN!>", isLeftOut ? "1" : "");
}

std::vector<DtString> DtHlaInteractionEncoderHeaderWriter::knownTokens() const
{
    std::vector<DtString> tokens = DtRecordWriter::knownTokens();
    tokens.emplace_back("<!NOGEN!>");
    return tokens;
}
