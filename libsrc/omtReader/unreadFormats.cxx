#include "omtReader/unreadFormats.h"

#include "foundation/outputStream.h"

void DtWarnOfUnreadFormat(DtFomType type, const char* file)
{
    switch (type)
    {
    case DtFomOmt13:
        DtWarn("%s: models in the OMT text format are recognised but not read.\n", file);
        break;
    case DtFom1516:
        DtWarn("%s: models in the IEEE 1516 XML format are recognised but not read.\n", file);
        break;
    case DtFomHla4:
        DtWarn("%s: the standard management model of IEEE 1516-2025 is not merged.\n", file);
        break;
    default:
        break;
    }
}
