#include "modelTools/color.h"

#include <cstdlib>
#include <unistd.h>

bool DtIsColored(DtColor color, int stream)
{
    if (color != DtColor::Auto)
        return color == DtColor::Always;
    const char* const off = std::getenv("NO_COLOR");
    return isatty(stream) == 1 && (off == nullptr || *off == '\0');
}
