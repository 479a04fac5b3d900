#ifndef FOUNDATION_EXCEPTION_H
#define FOUNDATION_EXCEPTION_H

#include "foundation/string.h"

#include <exception>
#include <iosfwd>
#include <memory>

// Thrown for a wrong calling order. Carries a message, the place it comes from, and the exceptions that led to it.
//
// what() and message() give "DtException: " and the message; the place is written by the stream operator.
class DtException : public std::exception
{
public:
    explicit DtException(const char* message, const DtException* previous = nullptr);
    // where: the function's signature; file: its path is cut off; line: in that file.
    DtException(const char* message, const char* where, const char* file, unsigned int line,
                const DtException* previous = nullptr);

    const char* what() const noexcept override { return myMessage.c_str(); }
    const DtString& message() const { return myMessage; }
    // "function [file:line]", empty when unknown.
    const DtString& where() const { return myWhere; }
    // The oldest and the newest of the chain; this one itself when there is no other.
    const DtException& initialException() const;
    const DtException& lastException() const { return *this; }
    const DtException* previous() const { return myPrevious.get(); }

private:
    DtString myMessage;
    DtString myWhere;
    std::shared_ptr<const DtException> myPrevious;
};

// An exception that differs by its type alone.
template <int theCode>
class DtTemplatedException : public DtException
{
public:
    using DtException::DtException;
    static constexpr int code() { return theCode; }
};

// Writes the whole chain, newest first, one exception a line.
std::ostream& operator<<(std::ostream& out, const DtException& exception);

// Throws a DtException that names the place of the call.
#define DT_THROW(message) throw DtException(message, __PRETTY_FUNCTION__, __FILE__, __LINE__)

#endif
