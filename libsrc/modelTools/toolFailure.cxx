#include "modelTools/toolFailure.h"

#include <algorithm>
#include <iterator>

namespace
{
const DtExitCode theOrder[] = {DtExitCode::Usage, DtExitCode::Unreadable, DtExitCode::Unwritable, DtExitCode::Findings,
                               DtExitCode::Differs};

// Signals and faults end a command at once, so they go ahead of what it has found.
std::ptrdiff_t rank(DtExitCode code)
{
    if (code == DtExitCode::Done)
        return std::size(theOrder);
    const auto* const found = std::find(std::begin(theOrder), std::end(theOrder), code);
    return found != std::end(theOrder) ? found - std::begin(theOrder) : -1;
}
} // namespace

DtExitCode DtGraver(DtExitCode one, DtExitCode other)
{
    return rank(other) < rank(one) ? other : one;
}
