#ifndef CODE_GEN_APP_TREE_ENV_WRITER_H
#define CODE_GEN_APP_TREE_ENV_WRITER_H

#include "fileGenerator/omtEnvWriter.h"

// Driver of the generation of C++ into plain files and directories, which a compiler finds without further help.
//
// Some headers are included by a name that their file does not have: ShipPdu.h for shipPdu.h, dshipEncoder.h for
// shipEncoderDIS.h. Under each such name a header is written that includes the other, and all lists name it.
class DtTreeEnvWriter : public DtOMTEnvWriter
{
public:
    void writeProjectFiles() override;

    // The second name by which a header is included; empty when there is none.
    static DtString secondNameOf(const DtString& header);

private:
    void writeForwardingHeaders();
};

#endif
