#ifndef CODE_GEN_APP_NAMED_SCRIPT_WRITER_H
#define CODE_GEN_APP_NAMED_SCRIPT_WRITER_H

#include "fileGenerator/omtWriter.h"

// Driver of a command file whose identifiers follow from names, where the settings ask for these: an entry's from the
// keys that lead to it, those of the products from their number. The same model gives the same text then.
class DtNamedScriptWriter : public DtOMTWriter
{
public:
    DtString makeUUID() override;
    void addUUIDs(DtMapSubstitute* map) override;

private:
    unsigned int myCount = 0; // of the identifiers that were asked for without a name
};

#endif
