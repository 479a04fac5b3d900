#include "foundation/exception.h"

#include "foundation/filename.h"

#include <ostream>

DtException::DtException(const char* message, const DtException* previous)
    : myMessage(DtString("DtException: ") + message),
      myPrevious(previous != nullptr ? std::make_shared<const DtException>(*previous) : nullptr)
{
}

DtException::DtException(const char* message, const char* where, const char* file, unsigned int line,
                         const DtException* previous)
    : DtException(message, previous)
{
    myWhere = DtString(where) + " [" + DtFilename::stripPath(DtFilename(file)) + ":" + DtString(line) + "]";
}

const DtException& DtException::initialException() const
{
    const DtException* oldest = this;
    while (oldest->previous() != nullptr)
        oldest = oldest->previous();
    return *oldest;
}

std::ostream& operator<<(std::ostream& out, const DtException& exception)
{
    for (const DtException* each = &exception; each != nullptr; each = each->previous())
    {
        out << each->message();
        if (!each->where().isEmpty())
            out << " " << each->where();
        out << "\n";
    }
    return out;
}
