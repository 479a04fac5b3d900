#include "modelTools/programVersion.h"

const char* DtProgramVersion()
{
    return QX_VERSION; // from the build
}
